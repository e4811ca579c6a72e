#ifndef TESTS_MODEL_TILLPROGRAM_H
#define TESTS_MODEL_TILLPROGRAM_H

#include "tests/model/Command.h"
#include "tests/till/support/FolderTest.h"

#include <QtCore/QStringList>

#include <set>
#include <string>
#include <vector>

namespace model {

//! How a script names a row that the till's catalogue lacks.
inline const std::string rowMark = "# catalogue: ";

std::string printed(const Script &script);
std::vector<std::string> linesOf(const std::string &text);

//! Runs the till's program in a folder of the test's.
class TillProgram : public till::FolderTest
{
protected:
    //! What a run left.
    struct Run
    {
        int status = -1; //!< -1 when the program did not end by itself
        std::string out;
        std::string err;
    };

    //! Writes a file into the folder; its path.
    QString write(const QString &name, const std::string &text) const;
    //! From now on the catalogue has the rows that \a script brings.
    void takeRows(const std::string &script);
    //! Runs the program with \a arguments on \a input, in English and quietly.
    Run run(const QStringList &arguments, const std::string &input = {}) const;
    //! The first of \a scripts that a run complains of, as a text: the file goes with its folder.
    static std::string blamed(const Run &run, const QStringList &scripts);
    //! A plugin with \a fault, whose identifiers are the same every time.
    static QString pluginFile(const char *fault)
    {
        return QString(FAULTY_PLUGIN_DIR "/%1Plugin.so").arg(fault);
    }

private:
    //! The sample shop's articles, and those that the scripts bring.
    QString catalogue() const;

    std::set<std::string> rows;
};

} // namespace model

#endif // TESTS_MODEL_TILLPROGRAM_H
