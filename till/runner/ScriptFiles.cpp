#include "till/runner/ScriptFiles.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QStringDecoder>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include <sys/stat.h>

namespace till {

namespace {

bool isText(const std::string &name)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(QByteArrayView(name.data(), std::ssize(name)));
    return !decoder.hasError();
}

//! \a name as text; of one that is none, each byte that is no ASCII as its number.
QString textOf(const std::string &name)
{
    if (isText(name))
        return QString::fromStdString(name);
    QString escaped;
    for (const char byte : name) {
        const auto code = static_cast<unsigned char>(byte);
        escaped += code < 0x80 ? QString(QLatin1Char(byte)) : QString("\\x%1").arg(code, 2, 16);
    }
    return escaped;
}

//! Looks folders through.
class Search
{
public:
    explicit Search(ScriptFiles &found)
        : m_found(found)
    {
    }

    void look(const std::filesystem::path &folder)
    {
        std::error_code error;
        if (!isNew(folder))
            return;
        std::vector<std::filesystem::path> links; // which may lead to folders that are met anyway
        std::filesystem::directory_iterator entries(folder, error);
        for (; !error && entries != std::filesystem::directory_iterator();
             entries.increment(error)) {
            const std::filesystem::path &path = entries->path();
            std::error_code unknown;
            if (path.filename().native().starts_with('.'))
                continue;
            if (!std::filesystem::is_directory(path, unknown))
                take(path);
            else if (std::filesystem::is_symlink(path, unknown))
                links.push_back(path);
            else
                look(path);
        }
        if (error)
            fail(folder, QString::fromStdString(error.message()) + ": no script in it is played");
        m_links.insert(m_links.end(), links.begin(), links.end());
    }

    //! Follows the links that were met, and those behind them.
    void followLinks()
    {
        while (!m_links.empty()) {
            std::vector<std::filesystem::path> links = std::exchange(m_links, {});
            std::sort(links.begin(), links.end());
            for (const std::filesystem::path &link : links)
                look(link);
        }
    }

private:
    bool isNew(const std::filesystem::path &folder)
    {
        struct stat status = {};
        return stat(folder.c_str(), &status) != 0
               || m_folders.insert({status.st_dev, status.st_ino}).second;
    }

    void take(const std::filesystem::path &path)
    {
        if (path.extension() != ".till")
            return;
        std::error_code unknown;
        if (!isText(path.native()))
            fail(path, "its name is not UTF-8: give it another");
        else if (std::filesystem::is_regular_file(path, unknown))
            m_found.scripts.append(textOf(path.native()));
        else
            fail(path,
                 std::filesystem::exists(path, unknown) ? "no file" : "a link that leads nowhere");
    }

    void fail(const std::filesystem::path &path, const QString &why)
    {
        m_found.scripts.append(textOf(path.native()));
        m_found.faults.insert(m_found.scripts.constLast(), why);
    }

    ScriptFiles &m_found;
    std::set<std::pair<dev_t, ino_t>> m_folders;
    std::vector<std::filesystem::path> m_links;
};

ScriptFiles scriptsBelow(const QString &folder)
{
    ScriptFiles found;
    Search search(found);
    search.look(QFile::encodeName(QDir::cleanPath(folder)).toStdString());
    search.followLinks();
    found.scripts.sort();
    return found;
}

} // namespace

Result<ScriptFiles> scriptsAt(const QStringList &paths)
{
    ScriptFiles all;
    for (const QString &path : paths) {
        const ScriptFiles named =
            QFileInfo(path).isDir() ? scriptsBelow(path) : ScriptFiles{{path}, {}};
        if (named.scripts.isEmpty())
            return Fault{path, "no scripts there"};
        all.scripts += named.scripts;
        all.faults.insert(named.faults);
    }
    return all;
}

} // namespace till
