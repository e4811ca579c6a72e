#include "till/course/Notes.h"

#include <QtCore/QStringList>

#include <gtest/gtest.h>

// Notes reach those who want them: what happens all, states only who asked for them.

namespace till {

namespace {

class NotesHeard : public testing::Test
{
protected:
    Subscription hearer(const QString &name, Notes::Of of)
    {
        return notes.subscribe(
            [this, name](const QJsonObject &note) {
                heard.append(name + ' ' + note.value("kind").toString());
            },
            of);
    }

    Notes notes;
    QStringList heard;
};

TEST_F(NotesHeard, States_AreForThoseWhoWantThem)
{
    const auto plain = hearer("plain", Notes::Of::Course);
    const auto full = hearer("full", Notes::Of::CourseAndStates);
    notes.add("action", {});
    notes.addState("position", {});
    notes.add("result", {});
    EXPECT_EQ(heard, QStringList({"plain action", "full action", "full position", "plain result",
                                  "full result"}));
}

TEST_F(NotesHeard, States_AreWantedAsLongAsAnyoneDoes)
{
    const auto plain = hearer("plain", Notes::Of::Course);
    EXPECT_FALSE(notes.wantsStates());
    auto first = hearer("first", Notes::Of::CourseAndStates);
    auto second = hearer("second", Notes::Of::CourseAndStates);
    first.reset();
    EXPECT_TRUE(notes.wantsStates());
    second.reset();
    EXPECT_FALSE(notes.wantsStates());
}

TEST_F(NotesHeard, Depth_IsOneMoreForWhatHappensInside)
{
    QList<int> depths;
    const auto hearing = notes.subscribe(
        [&](const QJsonObject &note) { depths.append(note.value("depth").toInt()); });
    notes.add("command", {});
    {
        const Notes::Nesting inside(notes);
        notes.add("action", {});
    }
    notes.add("outcome", {});
    EXPECT_EQ(depths, QList<int>({0, 1, 0}));
}

} // namespace

} // namespace till
