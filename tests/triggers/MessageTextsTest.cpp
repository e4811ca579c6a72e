#include "tests/triggers/TriggerTest.h"

#include "host/Dialog.h"
#include "host/Quantity.h"

// What the cashier reads and what the log says, by code points: many of these letters look like
// Latin ones.

namespace {

//! Тара используется разными товарами. / Изменение количества запрещено
const char16_t sharedText[] =
    u"\u0422\u0430\u0440\u0430 "
    u"\u0438\u0441\u043F\u043E\u043B\u044C\u0437\u0443\u0435\u0442\u0441\u044F "
    u"\u0440\u0430\u0437\u043D\u044B\u043C\u0438 "
    u"\u0442\u043E\u0432\u0430\u0440\u0430\u043C\u0438.\n"
    u"\u0418\u0437\u043C\u0435\u043D\u0435\u043D\u0438\u0435 "
    u"\u043A\u043E\u043B\u0438\u0447\u0435\u0441\u0442\u0432\u0430 "
    u"\u0437\u0430\u043F\u0440\u0435\u0449\u0435\u043D\u043E";
//! Тара частично заполнена. / Изменение количества запрещено
const char16_t partlyFilledText[] = u"\u0422\u0430\u0440\u0430 "
                                    u"\u0447\u0430\u0441\u0442\u0438\u0447\u043D\u043E "
                                    u"\u0437\u0430\u043F\u043E\u043B\u043D\u0435\u043D\u0430.\n"
                                    u"\u0418\u0437\u043C\u0435\u043D\u0435\u043D\u0438\u0435 "
                                    u"\u043A\u043E\u043B\u0438\u0447\u0435\u0441\u0442\u0432\u0430 "
                                    u"\u0437\u0430\u043F\u0440\u0435\u0449\u0435\u043D\u043E";
//! В чеке есть пустая тара. / Сторнировать тару и перейти к оплате?
const char16_t questionText[] =
    u"\u0412 "
    u"\u0447\u0435\u043A\u0435 "
    u"\u0435\u0441\u0442\u044C "
    u"\u043F\u0443\u0441\u0442\u0430\u044F "
    u"\u0442\u0430\u0440\u0430.\n"
    u"\u0421\u0442\u043E\u0440\u043D\u0438\u0440\u043E\u0432\u0430\u0442\u044C "
    u"\u0442\u0430\u0440\u0443 "
    u"\u0438 "
    u"\u043F\u0435\u0440\u0435\u0439\u0442\u0438 "
    u"\u043A "
    u"\u043E\u043F\u043B\u0430\u0442\u0435?";
//! ОК
const char16_t confirmText[] = u"\u041E\u041A";
//! Отмена
const char16_t cancelText[] = u"\u041E\u0442\u043C\u0435\u043D\u0430";
//! Обработка разбиения позиции
const char16_t splitLog[] = u"\u041E\u0431\u0440\u0430\u0431\u043E\u0442\u043A\u0430 "
                            u"\u0440\u0430\u0437\u0431\u0438\u0435\u043D\u0438\u044F "
                            u"\u043F\u043E\u0437\u0438\u0446\u0438\u0438";
//! Обработка объединения позиций
const char16_t uniteLog[] = u"\u041E\u0431\u0440\u0430\u0431\u043E\u0442\u043A\u0430 "
                            u"\u043E\u0431\u044A\u0435\u0434\u0438\u043D\u0435\u043D\u0438\u044F "
                            u"\u043F\u043E\u0437\u0438\u0446\u0438\u0439";
//! Сторнирование пустой тары
const char16_t stornoLog[] =
    u"\u0421\u0442\u043E\u0440\u043D\u0438\u0440\u043E\u0432\u0430\u043D\u0438\u0435 "
    u"\u043F\u0443\u0441\u0442\u043E\u0439 "
    u"\u0442\u0430\u0440\u044B";

class MessageTexts : public TriggerTest<TestPlugin>
{
protected:
    class AskedDialog : public Dialog
    {
    public:
        explicit AskedDialog(QList<tr::Tr> &shown)
            : m_shown(shown)
        {
        }
        bool showQuestion(const tr::Tr &question, int, const tr::Tr &confirm, const tr::Tr &cancel,
                          int) override
        {
            m_shown = {question, confirm, cancel};
            return false;
        }

    private:
        QList<tr::Tr> &m_shown;
    };

    QString refusalOfTara1()
    {
        host.putPosition(1, Tmc::Tara, 10.0, 1, 1);
        host.modifiers().set(modifiers::Quantity, QVariant::fromValue(Quantity(2, quantModeNone)));
        before(actions::on(1, control::ApplyModifiers));
        return host.errors.value(0).value("errorText", {}).value<tr::Tr>().text();
    }

    //! The question and its two choices.
    QList<tr::Tr> askedBeforeSubtotal()
    {
        QList<tr::Tr> shown;
        MockFactory<Dialog>::mocked = QSharedPointer<AskedDialog>::create(shown);
        plugin.putTara(1, "A", 10, 10);
        before(control::Action(control::Subtotal, {}));
        MockFactory<Dialog>::mocked.reset();
        return shown;
    }

    static QString info(const char16_t *text) { return "INFO " + QString::fromUtf16(text); }
};

TEST_F(MessageTexts, SharedTara_IsSpelledExactly)
{
    plugin.putTara(1, "A", 10, 5);
    plugin.putGoods(2, {{"A", 2}});
    plugin.putGoods(3, {{"A", 3}});
    EXPECT_EQ(refusalOfTara1(), QString::fromUtf16(sharedText));
}

TEST_F(MessageTexts, PartlyFilledTara_IsSpelledExactly)
{
    plugin.putTara(1, "A", 10, 5);
    EXPECT_EQ(refusalOfTara1(), QString::fromUtf16(partlyFilledText));
}

TEST_F(MessageTexts, Question_IsSpelledExactly)
{
    EXPECT_EQ(askedBeforeSubtotal().value(0).text(), QString::fromUtf16(questionText));
}

TEST_F(MessageTexts, Confirmation_IsWrittenWithTwoCyrillicLetters)
{
    EXPECT_EQ(askedBeforeSubtotal().value(1).text(), QString::fromUtf16(confirmText));
}

TEST_F(MessageTexts, Refusal_IsSpelledExactly)
{
    EXPECT_EQ(askedBeforeSubtotal().value(2).text(), QString::fromUtf16(cancelText));
}

TEST_F(MessageTexts, QuestionAndRefusals_HaveTwoLines)
{
    plugin.putTara(1, "A", 10, 5);
    EXPECT_EQ(refusalOfTara1().count('\n'), 1);
    EXPECT_EQ(askedBeforeSubtotal().value(0).text().count('\n'), 1);
}

TEST_F(MessageTexts, LogOfASplit_IsSpelledExactly)
{
    after(actions::split({}));
    EXPECT_EQ(log.lines(), QStringList{info(splitLog)});
}

TEST_F(MessageTexts, LogOfAUnion_IsSpelledExactly)
{
    after(actions::unite({}, {}));
    EXPECT_EQ(log.lines(), QStringList{info(uniteLog)});
}

TEST_F(MessageTexts, LogOfAStorno_IsSpelledExactly)
{
    storno();
    EXPECT_EQ(log.lines(), QStringList{info(stornoLog)});
}

} // namespace
