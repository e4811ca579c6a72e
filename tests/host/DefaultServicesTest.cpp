#include "tests/support/Printers.h"

#include "host/ActionArguments.h"
#include "host/ActionQueueController.h"
#include "host/Dialog.h"
#include "host/Document.h"
#include "host/DocumentLogic.h"
#include "host/GoodsItem.h"
#include "host/LoyaltySystemLayer.h"
#include "host/Session.h"

#include <gtest/gtest.h>

// What the services answer where no host program has put its own in their place.

namespace {

const tr::Tr question(QStringLiteral("key"), QStringLiteral("Текст"));

TEST(DefaultServices, Dialog_NobodyToAskMeansNo)
{
    EXPECT_FALSE(Dialog().showQuestion(question, 1, question, question, 0));
}

TEST(DefaultServices, DocumentLogic_StornoesNothing)
{
    const control::Action storno(control::StornoPosition, {});
    control::args::Core(storno).setPositionNumber(1);

    EXPECT_FALSE(DocumentLogic().stornoPosition(storno));
}

TEST(DefaultServices, ActionQueue_CarriesNothingOut)
{
    EXPECT_EQ(ActionQueueController().runAction(control::Action(control::RemovePosition, {})), 0);
}

TEST(DefaultServices, Loyalty_LeavesTheDocumentAlone)
{
    const QSharedPointer<Document> receipt(new Document);
    const QSharedPointer<GoodsItem> position(
        new GoodsItem(1, QSharedPointer<Tmc>::create(Tmc::Tara, 5)));
    position->setCquant(2);
    receipt->addPosition(position);

    LoyaltySystemLayer().updateDocument(receipt);

    EXPECT_EQ(receipt->getPositionList(), GoodsItemPtrList{position});
    EXPECT_EQ(position->getCquant(), 2);
    EXPECT_TRUE(receipt->pluginData().isEmpty());
}

TEST(DefaultServices, Loyalty_TakesANullDocument)
{
    EXPECT_NO_FATAL_FAILURE(LoyaltySystemLayer().updateDocument(nullptr));
}

TEST(DefaultServices, Session_StartsWithoutModifiers)
{
    EXPECT_FALSE(Session().getModifiers()->isSet(modifiers::Quantity));
}

TEST(DefaultServices, Session_KeepsWhatIsSet)
{
    Session session;
    session.getModifiers()->set(modifiers::Quantity, 2);

    EXPECT_EQ(session.getModifiers()->value(modifiers::Quantity), 2);
}

TEST(DefaultServices, TwoSessions_HaveModifiersOfTheirOwn)
{
    Session session;
    Session other;
    session.getModifiers()->set(modifiers::Quantity, 2);

    EXPECT_FALSE(other.getModifiers()->isSet(modifiers::Quantity));
}

} // namespace
