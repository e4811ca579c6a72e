#include "tests/model/Generate.h"
#include "tests/model/TillProgram.h"
#include "tests/support/Chance.h"

#include <gmock/gmock.h>

#include <iostream>
#include <utility>

// Receipts at random, recorded by the till as scripts, and the scripts played.

namespace {

using namespace model;

/*!
 * What somebody may type who tries what \a script does, whether or not the till takes it: receipt
 * by receipt, each of which is saved before it is left.
 */
class Typed
{
public:
    //! Receipts are saved in \a folder, the first under the number \a receipts + 1.
    Typed(const std::string &script, const QString &folder, int receipts)
        : m_folder(folder.toStdString())
        , m_receipts(receipts)
    {
        for (const std::string &line : linesOf(script))
            type(line);
        leaveReceipt();
    }

    const std::string &text() const { return m_text; }
    int receipts() const { return m_receipts; }

private:
    void type(const std::string &line)
    {
        if (line.empty() || line.starts_with("#"))
            return;
        if (line.starts_with("open"))
            leaveReceipt();
        m_isOpen = m_isOpen || line.starts_with("open");
        const bool isExpected = line.starts_with("expect ");
        m_text += (isExpected ? line.substr(std::string("expect refused ").size()) : line) + '\n';
    }

    //! Saves the receipt, and makes place for another.
    void leaveReceipt()
    {
        if (!std::exchange(m_isOpen, false))
            return;
        m_text += "save " + m_folder + '/' + std::to_string(++m_receipts) + ".till\n";
        m_text += "answer yes\ncancel\n";
    }

    const std::string m_folder;
    int m_receipts;
    bool m_isOpen = false;
    std::string m_text;
};

class RecordedReceipts : public TillProgram
{
protected:
    //! Records so many receipts more, or a few beyond, by a plugin that is right; their files.
    QStringList record(int wanted)
    {
        const int before = receipts;
        std::string input;
        while (receipts < before + wanted) {
            const std::string script = printed(generator(random.split(), 0).value());
            takeRows(script);
            const Typed typed(script, directory.path(), receipts);
            receipts = typed.receipts();
            input += typed.text();
        }
        const Run session = run({"--db", ":memory:", "--plugin", pluginFile("Sound")}, input);
        EXPECT_NE(session.status, -1);
        QStringList files;
        for (int receipt = before + 1; receipt <= receipts; ++receipt)
            files.append(directory.filePath(QString("%1.till").arg(receipt)));
        return files;
    }

    Run play(const QStringList &files, const char *fault) const
    {
        return run(QStringList{"--plugin", pluginFile(fault), "--jobs", "1", "--stop", "play"}
                   + files);
    }

private:
    const rc::Gen<Script> generator = scripts();
    rc::Random random{testSeed()};
    int receipts = 0;
};

TEST_F(RecordedReceipts, AtRandom_HoldWhenTheyArePlayed)
{
    SCOPED_TRACE(repeatedBy(testSeed()));
    const QStringList files = record(100 * testEffort());
    const Run played = play(files, "Sound");
    EXPECT_EQ(played.status, 0);
    EXPECT_EQ(played.err, "") << blamed(played, files);
    const std::string all = std::to_string(files.size());
    const std::size_t end = played.out.find('\n' + all + " of " + all + " scripts held; ");
    ASSERT_NE(end, std::string::npos) << played.out;
    std::cout << "recorder: " << played.out.substr(end + 1) << "recorder: seed " << testSeed()
              << std::endl;
}

TEST_F(RecordedReceipts, OnBrokenPlugins_DoNotAllHold)
{
    SCOPED_TRACE(repeatedBy(testSeed()));
    constexpr int plenty = 50; // batches
    std::vector<const char *> faults{"Forgetful", "Careless",  "Mute",
                                     "Stubborn",  "Ungrouped", "Secretive"};
    for (int batch = 0; batch < plenty && !faults.empty(); ++batch) {
        const QStringList files = record(100);
        const auto isFound = [&](const char *fault) {
            const Run played = play(files, fault);
            if (played.status != 0)
                std::cout << "recorder: " << fault << ": "
                          << played.err.substr(0, played.err.find('\n')) << std::endl;
            EXPECT_TRUE(played.status == 0 || played.status == 1);
            return played.status == 1;
        };
        std::erase_if(faults, isFound);
    }
    EXPECT_THAT(faults, testing::IsEmpty());
}

} // namespace
