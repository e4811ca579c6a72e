#include "tests/triggers/TriggerTest.h"

#include "host/Dialog.h"
#include "host/DocumentLogic.h"

#include <gmock/gmock.h>

#include <QtCore/QWeakPointer>

#include <functional>

// The calls to the host around a storno, and how long the objects made for them live.

namespace {

using testing::_;
using testing::InSequence;
using testing::Return;

class MockDocument : public AbstractDocument
{
public:
    MOCK_METHOD(int, getType, (), (const, override));
    MOCK_METHOD(QSharedPointer<Order>, getOrder, (), (const, override));
    MOCK_METHOD(GoodsItemPtr, getPositionByPosnum, (int), (const, override));
    MOCK_METHOD(void, setDocumentSwitch, (bool), (override));
    MOCK_METHOD(GoodsItemPtrList, getPositionList, (), (const, override));
    MOCK_METHOD(QVariant, getPluginData, (const QString &, const QString &, const QVariant &),
                (const, override));
    MOCK_METHOD(void, setPluginData, (const QString &, const QString &, const QVariant &),
                (override));
};

MATCHER_P(IsOnPosition, posnum, "")
{
    return control::args::Core(arg).positionNumber() == posnum;
}

class CountedDocumentLogic : public DocumentLogic
{
public:
    MOCK_METHOD(bool, stornoPosition, (const control::Action &), (override));
};

class StornoCalls : public TriggerTest<TestPlugin>
{
protected:
    StornoCalls()
    {
        EXPECT_CALL(*receipt, getType()).WillOnce(Return(1));
        EXPECT_CALL(*receipt, getOrder()).WillOnce(Return(nullptr));
        EXPECT_CALL(*receipt, getPluginData(_, _, _)).WillRepeatedly(Return(QVariant()));
        plugin.setDocument(receipt);
        plugin.putTara(1, "A", 10, 10);
        plugin.putTara(2, "B", 10, 3);
        plugin.putTara(3, "C", 10, 10);
        MockFactory<DocumentLogic>::mocked = logic;
    }

    void expectGone(int posnum, const GoodsItemPtrList &left)
    {
        EXPECT_CALL(*logic, stornoPosition(IsOnPosition(posnum)));
        EXPECT_CALL(*receipt, getPositionByPosnum(posnum)).WillOnce(Return(nullptr));
        EXPECT_CALL(*receipt, getPositionList()).WillOnce(Return(left));
    }

    const QSharedPointer<testing::StrictMock<MockDocument>> receipt{
        new testing::StrictMock<MockDocument>};
    const QSharedPointer<testing::StrictMock<CountedDocumentLogic>> logic{
        new testing::StrictMock<CountedDocumentLogic>};
    const GoodsItemPtr someone = GoodsItemPtr::create(90, QSharedPointer<Tmc>::create());
};

TEST_F(StornoCalls, EveryStorno_IsCheckedBeforeTheNext)
{
    const InSequence order;
    expectGone(1, {someone});
    expectGone(3, {someone});
    EXPECT_TRUE(storno());
}

TEST_F(StornoCalls, PositionIsStillThere_FailsAtOnceAndAsksForNoList)
{
    const InSequence order;
    EXPECT_CALL(*logic, stornoPosition(IsOnPosition(1)));
    EXPECT_CALL(*receipt, getPositionByPosnum(1)).WillOnce(Return(someone));
    EXPECT_FALSE(storno());
}

TEST_F(StornoCalls, NoPositionIsLeft_FailsAtOnce)
{
    const InSequence order;
    expectGone(1, {});
    EXPECT_FALSE(storno());
}

TEST_F(StornoCalls, SecondIsStillThere_FailsThere)
{
    const InSequence order;
    expectGone(1, {someone});
    EXPECT_CALL(*logic, stornoPosition(IsOnPosition(3)));
    EXPECT_CALL(*receipt, getPositionByPosnum(3)).WillOnce(Return(someone));
    EXPECT_FALSE(storno());
}

class StornoCallsAnswered : public StornoCalls, public testing::WithParamInterface<bool>
{
};

TEST_P(StornoCallsAnswered, AnswerOfTheStorno_IsNotRead)
{
    const InSequence order;
    for (const int posnum : {1, 3}) {
        EXPECT_CALL(*logic, stornoPosition(IsOnPosition(posnum))).WillOnce(Return(GetParam()));
        EXPECT_CALL(*receipt, getPositionByPosnum(posnum)).WillOnce(Return(nullptr));
        EXPECT_CALL(*receipt, getPositionList()).WillOnce(Return(GoodsItemPtrList{someone}));
    }
    EXPECT_TRUE(storno());
}

INSTANTIATE_TEST_SUITE_P(Answer, StornoCallsAnswered, testing::Bool());

// Life of the objects that are made for one use.

//! The host's object for the next use: `current` while nobody but the factory and a user has it.
template <class T>
class OneUse
{
public:
    //! Puts \a object into the factory in place of an earlier one.
    void prepare(const QSharedPointer<T> &object)
    {
        MockFactory<T>::mocked = object;
        m_current = object;
    }
    //! Takes it out of the factory: from now on only its user keeps it.
    void handOver() { MockFactory<T>::mocked.reset(); }
    bool isAlive() const { return !m_current.isNull(); }

private:
    QWeakPointer<T> m_current;
};

class ScriptedDialog : public Dialog
{
public:
    explicit ScriptedDialog(std::function<bool()> answer)
        : m_answer(std::move(answer))
    {
    }
    bool showQuestion(const tr::Tr &, int, const tr::Tr &, const tr::Tr &, int) override
    {
        return m_answer();
    }

private:
    std::function<bool()> m_answer;
};

class ScriptedLogic : public DocumentLogic
{
public:
    explicit ScriptedLogic(std::function<void(const control::Action &)> storno)
        : m_storno(std::move(storno))
    {
    }
    bool stornoPosition(const control::Action &action) override
    {
        m_storno(action);
        return true;
    }

private:
    std::function<void(const control::Action &)> m_storno;
};

//! A receipt that runs a check whenever a position is looked up.
class CheckedReceipt : public Document
{
public:
    GoodsItemPtr getPositionByPosnum(int posnum) const override
    {
        if (onLookup)
            onLookup();
        return Document::getPositionByPosnum(posnum);
    }
    std::function<void()> onLookup;
};

class ObjectsOfOneUse : public TriggerTest<TestPlugin>
{
protected:
    ObjectsOfOneUse()
    {
        plugin.setDocument(receipt);
        for (const int posnum : {1, 2, 3})
            receipt->addPosition(GoodsItemPtr::create(posnum, QSharedPointer<Tmc>::create()));
        plugin.putTara(1, "A", 10, 10);
        plugin.putTara(2, "B", 10, 10);
    }

    EContext::Result subtotal() { return before(control::Action(control::Subtotal, {})); }

    //! Prepares the object of the next storno, which notes its \a name and prepares its successor.
    void prepareLogic(const QString &name)
    {
        logic.prepare(QSharedPointer<ScriptedLogic>::create([=, this](const auto &action) {
            const int posnum = control::args::Core(action).positionNumber();
            used << QString("%1 stornoes %2").arg(name).arg(posnum);
            receipt->removePosition(posnum);
            logic.handOver();
            aliveInUse << logic.isAlive();
        }));
    }

    const QSharedPointer<CheckedReceipt> receipt = QSharedPointer<CheckedReceipt>::create();
    OneUse<Dialog> dialog;
    OneUse<DocumentLogic> logic;
    QStringList used;
    QList<bool> aliveInUse;
};

TEST_F(ObjectsOfOneUse, DialogLivesThroughTheQuestionAndIsReleasedBeforeTheStorno)
{
    bool aliveInQuestion = false;
    bool aliveInStorno = true;
    dialog.prepare(QSharedPointer<ScriptedDialog>::create([&] {
        dialog.handOver();
        aliveInQuestion = dialog.isAlive();
        return true;
    }));
    MockFactory<DocumentLogic>::mocked = QSharedPointer<ScriptedLogic>::create(
        [&](const auto &) { aliveInStorno = dialog.isAlive(); });

    subtotal();

    EXPECT_TRUE(aliveInQuestion);
    EXPECT_FALSE(aliveInStorno);
}

TEST_F(ObjectsOfOneUse, EachQuestion_GetsADialogOfItsOwn)
{
    QStringList asked;
    const auto prepare = [&](const QString &name) {
        dialog.prepare(QSharedPointer<ScriptedDialog>::create([&asked, name] {
            asked << name;
            return false;
        }));
    };
    prepare("first");
    subtotal();
    prepare("second");
    subtotal();
    EXPECT_EQ(asked, (QStringList{"first", "second"}));
}

TEST_F(ObjectsOfOneUse, EachTara_GetsADocumentLogicOfItsOwn)
{
    host.dialogAnswer = true;
    prepareLogic("first");
    receipt->onLookup = [&] { prepareLogic("next"); };

    EXPECT_EQ(subtotal(), EContext::Continue);

    EXPECT_EQ(used, (QStringList{"first stornoes 1", "next stornoes 2"}));
}

TEST_F(ObjectsOfOneUse, DocumentLogicLivesThroughTheStornoAndIsReleasedBeforeTheCheck)
{
    QList<bool> aliveAtCheck;
    host.dialogAnswer = true;
    prepareLogic("first");
    receipt->onLookup = [&] {
        aliveAtCheck << logic.isAlive();
        prepareLogic("next");
    };

    subtotal();

    EXPECT_EQ(aliveInUse, (QList<bool>{true, true}));
    EXPECT_EQ(aliveAtCheck, (QList<bool>{false, false}));
}

} // namespace
