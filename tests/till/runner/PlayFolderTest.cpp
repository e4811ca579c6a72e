#include "tests/till/runner/PlayFixture.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// The scripts of a folder.

namespace {

using testing::EndsWith;
using testing::HasSubstr;

class PlayFolder : public PlayTest
{
};

TEST_F(PlayFolder, Folder_StandsForTheScriptsBelow)
{
    script("all/b.till", good);
    script("all/a/deep/c.till", good);
    script("all/a/notes.txt", bad);
    const RunResult done = played({path("all"), script("z.till", good)});
    EXPECT_EQ(done.status, 0) << done.err;
    EXPECT_EQ(done.out, "[1/3] c.till\n[2/3] b.till\n[3/3] z.till\n"
                        "3 of 3 scripts held; expectations: 6\n");
}

TEST_F(PlayFolder, LinksToFolders_AreFollowedOnce)
{
    script("all/real/a.till", good);
    script("elsewhere/b.till", good);
    ASSERT_TRUE(QFile::link(path("elsewhere"), path("all/link")));
    ASSERT_TRUE(QFile::link(path("all"), path("all/real/circle")));
    ASSERT_TRUE(QFile::link(path("all/real"), path("all/again")));
    const RunResult done = played({path("all")});
    EXPECT_EQ(done.status, 0) << done.err;
    EXPECT_EQ(done.out, "[1/2] b.till\n[2/2] a.till\n2 of 2 scripts held; expectations: 4\n");
}

TEST_F(PlayFolder, ScriptsThatCannotBeRead_AreWrong)
{
    script("all/a.till", good);
    ASSERT_TRUE(QFile::link("nowhere", path("all/b.till")));
    ASSERT_EQ(mkfifo(QFile::encodeName(path("all/c.till")).constData(), 0600), 0);
    const QByteArray name = QFile::encodeName(path("all/")) + "\xff.till";
    ASSERT_EQ(close(open(name.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600)), 0);
    script("all/.hidden.till", bad);
    const RunResult done = played({path("all")});
    EXPECT_EQ(done.status, 3);
    const std::string at = "wrong     " + path("all/").toStdString();
    EXPECT_THAT(done.out, HasSubstr(at + "b.till\nfound     a link that leads nowhere\n"));
    EXPECT_THAT(done.out, HasSubstr(at + "c.till\nfound     no file\n"));
    EXPECT_THAT(done.out,
                HasSubstr(at + "\\xff.till\nfound     its name is not UTF-8: give it another\n"));
    EXPECT_THAT(done.out, EndsWith("1 of 4 scripts held, 3 wrong; expectations: 2\n"));
}

TEST_F(PlayFolder, FolderThatCannotBeRead_IsWrong)
{
    script("all/a.till", good);
    script("all/closed/b.till", bad);
    // Whoever may read everything, as in a container, gives that up.
    const RunResult done = runInShell("chmod 0 '" + path("all/closed")
                                          + "'; [ $(id -u) != 0 ] || set -- setpriv "
                                            "--bounding-set=-all --inh-caps=-all \"$@\"; "
                                            "exec \"$@\"",
                                      {"--lang", "en", "--quiet", "play", path("all")});
    EXPECT_EQ(chmod(QFile::encodeName(path("all/closed")).constData(), 0700), 0);
    EXPECT_EQ(done.status, 3);
    EXPECT_THAT(done.out,
                HasSubstr("wrong     " + path("all/closed").toStdString()
                          + "\nfound     Permission denied: no script in it is played\n"));
}

TEST_F(PlayFolder, FolderWithoutScripts_IsSaid)
{
    ASSERT_TRUE(QDir().mkdir(path("none")));
    const RunResult none = played({script("s.till", good), path("none")});
    EXPECT_EQ(none.status, 3);
    EXPECT_EQ(none.out, "");
    EXPECT_EQ(none.err, "till: " + path("none").toStdString() + ": no scripts there\n");
}

} // namespace
