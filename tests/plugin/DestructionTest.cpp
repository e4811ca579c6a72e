#include "tests/plugin/RecordingHost.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

//! Notes in the journal when the last owner of what it made lets go.
class Trace
{
public:
    explicit Trace(QStringList &journal)
        : m_journal(journal)
    {
    }

    template <class T>
    QSharedPointer<T> of(T *object, const QString &name) const
    {
        QStringList &journal = m_journal;
        return QSharedPointer<T>(object, [&journal, name](T *dying) {
            journal << name;
            delete dying;
        });
    }

private:
    QStringList &m_journal;
};

class Destruction : public testing::Test
{
protected:
    Destruction() { plugin->init(); }

    QStringList journal;
    Trace trace{journal};
    FakeHost host;
    RecordingNotifier notifier{journal};
    Installed<ActivityNotifier> installed{&notifier};
    std::unique_ptr<TestPlugin> plugin = std::make_unique<TestPlugin>();
};

TEST_F(Destruction, Always_ReleasesGoodsTarasDocumentTriggersObject)
{
    plugin->setDocument(trace.of(new Document, "document"));
    plugin->taraList << trace.of(new TestPlugin::TaraInfo, "tara");
    plugin->packagingList << trace.of(new TestPlugin::PackagingInfo, "goods");
    plugin->addTrigger(ActionTrigger(
        EContext::Receipt, control::Payment, ActionTrigger::After,
        [owned = trace.of(new int(), "triggers")](const control::Action &) {
            return *owned ? EContext::Error : EContext::Continue;
        },
        ActionTrigger::DefaultResult, ActionTrigger::Low));
    QObject::connect(plugin.get(), &QObject::destroyed, [this] { journal << "object"; });
    journal.clear();

    plugin.reset();

    EXPECT_EQ(journal, (QStringList{"goods", "tara", "document", "triggers", "object"}));
}

TEST_F(Destruction, Always_DropsOneReferenceOnEachRecord)
{
    const auto tara = plugin->putTara(2, "{a}", 5.0, 3.0);
    const auto goods = plugin->putGoods(3, {{"{a}", 2.0}});

    plugin.reset();

    EXPECT_EQ(*tara, (PackagingControl::TaraInfo{2, "{a}", 5.0, 3.0}));
    EXPECT_EQ(*goods, (PackagingControl::PackagingInfo{3, {{"{a}", 2.0}}}));
}

TEST_F(Destruction, Active_NeitherSavesNorAsksTheNotifier)
{
    plugin->setDocument(host.receipt());
    plugin->putTara(2, "{a}", 5.0, 3.0);
    journal.clear();
    host.journal.clear();

    plugin.reset();

    EXPECT_EQ(journal, QStringList());
    EXPECT_EQ(host.journal, QStringList());
}

TEST_F(Destruction, RecordRemovedFromItsList_LivesWhileItIsHeld)
{
    plugin->setDocument(host.receipt());
    const auto position = host.putPosition(2, Tmc::Tara, 5.0, 1, 1);
    const auto held = plugin->createTara(position);

    plugin->handleEvent(Event(EActivityListener::eventPositionStorno)
                            .addArgument("position", QVariant::fromValue(position)));

    ASSERT_TRUE(plugin->taraList.isEmpty());
    EXPECT_EQ(held->posnum, 2);
    EXPECT_EQ(held->capacity, 5.0);
}

TEST_F(Destruction, RecordsReplacedByARestore_LiveWhileTheyAreHeld)
{
    const auto tara = plugin->putTara(2, "{a}", 5.0, 3.0);
    const auto goods = plugin->putGoods(3, {{"{a}", 2.0}});

    plugin->setDocument(host.receipt());

    ASSERT_TRUE(plugin->taraList.isEmpty());
    EXPECT_EQ(tara->freeCapacity, 3.0);
    EXPECT_EQ(goods->usedTara.value("{a}"), 2.0);
}

} // namespace
