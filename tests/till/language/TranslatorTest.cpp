#include "till/language/Translator.h"
#include "tests/support/Printers.h"
#include "till/language/TillMessages.h"

#include <QtCore/QDir>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>

#include <gtest/gtest.h>

using till::Translator;

namespace {

QList<tr::Tr> pluginMessages()
{
    return {{"packingControlTaraUsedDiffGoods",
             "Тара используется разными товарами.\nИзменение количества запрещено"},
            {"packingControlTaraAlmostFull",
             "Тара частично заполнена.\nИзменение количества запрещено"},
            {"packingControlSaleEmptyTara",
             "В чеке есть пустая тара.\nСторнировать тару и перейти к оплате?"},
            {"dialogChoiceOk", "ОК"},
            {"dialogChoiceCancel", "Отмена"}};
}

QList<tr::Tr> allMessages()
{
    return pluginMessages() + till::messages::all();
}

bool hasCyrillic(const QString &text)
{
    return text.contains(QRegularExpression("\\p{Cyrillic}"));
}

//! "%1", "%Q" and the like, each once.
QSet<QString> placesIn(const QString &text)
{
    QSet<QString> places;
    auto matches = QRegularExpression("%[0-9Q]").globalMatch(text);
    while (matches.hasNext())
        places.insert(matches.next().captured());
    return places;
}

TEST(Translator, Languages_AreRussianAndEnglish)
{
    EXPECT_EQ(Translator::languages(), (QStringList{"ru", "en"}));
}

TEST(Translator, LanguageThatShips_IsKnown)
{
    EXPECT_TRUE(Translator::isKnown("ru"));
    EXPECT_TRUE(Translator::isKnown("en"));
}

TEST(Translator, OtherLanguage_IsUnknown)
{
    EXPECT_FALSE(Translator::isKnown("de"));
    EXPECT_FALSE(Translator::isKnown("EN"));
    EXPECT_FALSE(Translator::isKnown("en.ini"));
    EXPECT_FALSE(Translator::isKnown(""));
}

TEST(Translator, Russian_GivesEachTextCodePointByCodePoint)
{
    const Translator russian("ru");
    for (const tr::Tr &message : allMessages())
        EXPECT_EQ(russian.text(message).toUcs4(), message.text().toUcs4());
}

TEST(Translator, RussianOk_IsTwoCyrillicLetters)
{
    EXPECT_EQ(Translator("ru").text({"dialogChoiceOk", "ОК"}).toUcs4(),
              (QList<uint>{0x041e, 0x041a}));
}

TEST(Translator, NoLanguage_IsRussian)
{
    EXPECT_EQ(Translator().text(till::messages::tillCancelReceipt()), "Отменить чек?");
}

TEST(Translator, UnknownLanguage_IsRussian)
{
    EXPECT_EQ(Translator("de").text(till::messages::tillCancelReceipt()), "Отменить чек?");
}

TEST(Translator, English_HasATextForEachKey)
{
    const Translator english("en");
    for (const tr::Tr &message : allMessages()) {
        const QString text = english.text({message.key(), QString()});
        EXPECT_FALSE(text.isEmpty()) << message.key().toStdString();
        EXPECT_FALSE(hasCyrillic(text)) << message.key().toStdString();
    }
}

TEST(Translator, English_HasThePlacesForValuesThatRussianHas)
{
    const Translator english("en");
    for (const tr::Tr &message : allMessages())
        EXPECT_EQ(placesIn(english.text(message)), placesIn(message.text()))
            << message.key().toStdString();
}

TEST(Translator, English_HasAsManyLinesAsRussian)
{
    const Translator english("en");
    for (const tr::Tr &message : allMessages())
        EXPECT_EQ(english.text(message).count('\n'), message.text().count('\n'))
            << message.key().toStdString();
}

TEST(Translator, English_GivesTheTextOfTheKey)
{
    EXPECT_EQ(Translator("en").text(till::messages::tillCancelReceipt()), "Cancel the receipt?");
}

TEST(Translator, EnglishOk_IsLatin)
{
    EXPECT_EQ(Translator("en").text({"dialogChoiceOk", "ОК"}), "\x4f\x4b");
}

TEST(Translator, UnknownKey_GivesItsOwnText)
{
    EXPECT_EQ(Translator("en").text({"noSuchKey", "Сам текст"}), "Сам текст");
}

TEST(Translator, WhatIsQuoted_HasTheTextOfItsKeyInOneLine)
{
    const till::Message declined{till::messages::tillDeclined(), {}, pluginMessages()[2]};
    EXPECT_EQ(Translator("en").text(declined),
              "\"There is empty tara in the receipt. Storno the tara and go on to payment?\" was "
              "answered no");
    EXPECT_EQ(Translator("en").text(
                  till::Message{till::messages::tillDeclined(), {}, {"", "Сам\nтекст с %1"}}),
              "\"Сам текст с %1\" was answered no");
}

TEST(Translator, EmptyKey_GivesItsOwnText)
{
    EXPECT_EQ(Translator("en").text({"", "Сам текст"}), "Сам текст");
}

TEST(Translator, KeyInOtherCase_GivesItsOwnText)
{
    EXPECT_EQ(Translator("en").text({"dialogchoiceok", "Сам текст"}), "Сам текст");
}

TEST(TillMessages, Keys_AreUnique)
{
    QSet<QString> keys;
    for (const tr::Tr &message : allMessages())
        keys.insert(message.key());

    EXPECT_EQ(keys.size(), allMessages().size());
}

TEST(TillMessages, Keys_BeginWithTill)
{
    for (const tr::Tr &message : till::messages::all())
        EXPECT_TRUE(message.key().startsWith("till")) << message.key().toStdString();
}

TEST(TillMessages, QuestionsAndRefusals_SayThis)
{
    EXPECT_EQ(till::messages::tillStornoPosition(),
              tr::Tr("tillStornoPosition", "Сторнировать позицию?"));
    EXPECT_EQ(till::messages::tillCancelReceipt(), tr::Tr("tillCancelReceipt", "Отменить чек?"));
    EXPECT_EQ(till::messages::tillNotEnoughMoney(),
              tr::Tr("tillNotEnoughMoney", "Недостаточно денег для оплаты"));
    EXPECT_EQ(till::messages::tillReceiptEmpty(), tr::Tr("tillReceiptEmpty", "В чеке нет позиций"));
}

} // namespace
