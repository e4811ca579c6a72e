#include "till/script/ScriptUpdate.h"
#include "tests/till/support/FolderTest.h"

// Changes that are made in a script.

namespace {

using namespace till;

class Rewriting : public FolderTest
{
protected:
    void SetUp() override { overwrite(script, "open\nexpect positions 7\n"); }

    //! Why the second line could not be changed; empty when it was.
    QString fault(const QByteArray &digest) const
    {
        const Result<> done =
            rewrite(script, digest, {{2, "expect positions 7", "expect positions 0"}});
        return done ? QString() : done.error().text();
    }

    const QString script = path("s.till");
};

TEST_F(Rewriting, FileAsItWas_IsChanged)
{
    EXPECT_EQ(fault(digestOf(script)), "");
    EXPECT_EQ(contents(script), "open\nexpect positions 0\n");
}

TEST_F(Rewriting, FileThatWasChangedMeanwhile_IsLeft)
{
    const QByteArray before = digestOf(script);
    for (const QByteArray text : {"", "open\n", "open\nadd CHIPS\nexpect positions 7\n"}) {
        overwrite(script, text);
        EXPECT_EQ(fault(before), script + ": was changed while it was played; play it again");
        EXPECT_EQ(contents(script), text);
    }
}

TEST_F(Rewriting, FileThatIsGone_IsSaid)
{
    const QByteArray before = digestOf(script);
    ASSERT_TRUE(QFile::remove(script));
    EXPECT_EQ(fault(before), script + ": No such file or directory");
}

} // namespace
