#include "window/program/JoinedOptions.h"

#include "tests/support/Printers.h"
#include "till/startup/SetupOptions.h"

#include <gmock/gmock.h>

using testing::UnorderedElementsAreArray;

namespace till {

namespace {

QByteArrayList joined(const QByteArrayList &words)
{
    return withJoinedOptions(QByteArrayList{"till-window"} + words).mid(1);
}

TEST(JoinedOptions, OptionAndItsValue_AreOneWord)
{
    EXPECT_EQ(joined({"--plugin", "a.so", "--set", "K=V", "--db", "--lang"}),
              (QByteArrayList{"--plugin=a.so", "--set=K=V", "--db=--lang"}));
}

TEST(JoinedOptions, OptionWithoutAValue_IsNotLost)
{
    EXPECT_EQ(joined({"--plugin"}), QByteArrayList{"--plugin="});
}

TEST(JoinedOptions, WhatIsNoOptionOfTheProgram_Stays)
{
    for (const QByteArrayList &words :
         {QByteArrayList{"-style", "fusion", "--platform", "offscreen", "word"},
          QByteArrayList{"--plugin=a.so", "--no-plugin", "x"}, QByteArrayList{"-plugin", "tuio"},
          QByteArrayList{"--", "--plugin", "x"}, QByteArrayList{}})
        EXPECT_EQ(joined(words), words);
}

TEST(JoinedOptions, EachOptionWithAValue_IsKnown)
{
    QByteArrayList names;
    const auto options = setupOptions() + QList<QCommandLineOption>{languageOption()};
    for (const QCommandLineOption &option : options) {
        if (!option.valueName().isEmpty())
            names.append(option.names().constFirst().toUtf8());
    }
    EXPECT_THAT(optionsWithValue(), UnorderedElementsAreArray(names));
}

} // namespace

} // namespace till
