#ifndef HOST_ACTION_H
#define HOST_ACTION_H

#include "host/EActionType.h"
#include "host/GoodsItem.h"

namespace control {

//! The shop's task with the plugin's keys. Nothing is added, so that it can be handed to the shop.
class Action : public shopline::Task
{
public:
    using shopline::Task::Task;
    //! What the shop calls a hook for.
    explicit Action(const shopline::Task &task)
        : shopline::Task(task)
    {
    }

#if defined(SHOPLINE_BREAKS_Form_Action)
    QMultiMap<QString, QVariant> getArguments()
#else
    QMultiMap<QString, QVariant> getArguments() const
#endif
    {
        QMultiMap<QString, QVariant> arguments = shopline::Task::getArguments();
        rename(arguments, "dropped", "deletedPositions");
        rename(arguments, "kept", "changedPositions");
        if (arguments.contains(QStringLiteral("cuts")))
            arguments.insert(QStringLiteral("splitPositionsData"),
                             splitData(arguments.take(QStringLiteral("cuts")).toList()));
        return arguments;
    }

private:
    template <class Map>
    static void rename(Map &map, const char *theirs, const char *ours)
    {
        if (map.contains(QString::fromLatin1(theirs)))
            map.insert(QString::fromLatin1(ours), map.take(QString::fromLatin1(theirs)));
    }

    static QVariantList splitData(const QVariantList &cuts)
    {
        QVariantList elements;
        for (const QVariant &cut : cuts) {
            QVariantMap element = cut.toMap();
            rename(element, "from", "source");
            rename(element, "into", "result");
            rename(element, "gone", "removed");
            elements.append(element);
        }
        return elements;
    }
};

} // namespace control

#endif // HOST_ACTION_H
