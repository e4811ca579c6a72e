#ifndef PLUGIN_PACKAGINGCONTROL_H
#define PLUGIN_PACKAGINGCONTROL_H

#include "host/BaseActivityListener.h"
#include "host/BasicPlugin.h"
#include "host/DocumentWatcher.h"
#include "host/Event.h"
#include "host/GoodsItem.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>

namespace Log4Qt {
class Logger;
}

/*!
 * Ties the goods of a receipt to the tara that they are sold into.
 *
 * A *tara* position is a container with a capacity; *packaging goods* are poured into the taras of
 * the same receipt, first fit, in the order in which the taras were added. All capacities and
 * quantities are in one unit: the goods' base unit.
 *
 * The host creates one object through Qt's plugin loader, calls `init()` once and then
 * `setDocument()` whenever the current document changes. In between it delivers events to
 * `handleEvent()` and calls the trigger callbacks. Everything runs on the host's thread, one call
 * at a time. An action that the plugin asks for comes back as an event before the asking call
 * returns, so the lists may have changed after any operation that says that the host calls back.
 *
 * Nothing here throws or reports an error to the host other than by a trigger's answer. Bad or
 * missing data become 0, empty or null.
 *
 * The order of the bases, of the data members and of the virtual operations is binary contract.
 */
class PackagingControl : public BaseActivityListener, public BasicPlugin, protected DocumentWatcher
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "PackagingControl")
    Q_INTERFACES(BasicPlugin)

public:
    //! What is known of one tara position.
    struct TaraInfo
    {
        int posnum = 0;            //!< number of the tara position
        QString id;                //!< names this tara in `PackagingInfo::usedTara`
        double capacity = 0.0;     //!< tara capacity of the article times the count of pieces
        double freeCapacity = 0.0; //!< what is not used yet; negative for an over-full tara

        //! What the goods use of the capacity, exactly.
        double getUsedCapacity() const;
        //! Nothing is poured in, within the tolerance. A tara of no capacity is full as well.
        bool isEmpty() const;
        //! Nothing more fits in, within the tolerance. An over-full tara is not full.
        bool isFull() const;

        bool operator==(const TaraInfo &other) const = default;
    };

    //! What is known of one position of packaging goods.
    struct PackagingInfo
    {
        int posnum = 0;                 //!< number of the goods position
        QMap<QString, double> usedTara; //!< what the goods use of each tara, by the tara's `id`

        bool operator==(const PackagingInfo &other) const = default;
    };

    //! Logger "packaging", object name "PackagingControl", no records. Asks nothing of the host.
    PackagingControl();
    //! Releases the records. Does not save, unsubscribe or unregister anything. Not while one of
    //! the plugin's operations runs: it still needs the object when the host returns.
    ~PackagingControl() override = default;

public Q_SLOTS:
    //! Handles positions added (19), stornoed (21) and changed (26, 252); ignores every other code.
    //! The host may call back.
    void handleEvent(const Event &event) override;

public:
    /*!
     * Registers the triggers and subscribes to the events. Always true. The subtotal is guarded
     * only when the setting "PackagingControl:allowSaleEmptyTara", true by default, is false; it is
     * read here and nowhere else.
     */
    bool init() override;

    /*!
     * Takes up \a newDocument and rebuilds the records from it, if it is a sale (type 1) without an
     * order. With an order, everything stays as it was. A document of another type, or null,
     * suspends the plugin.
     */
    void setDocument(const QSharedPointer<AbstractDocument> &newDocument) override;

    //! Whether the article of \a goods is a tara. The position must have a catalogue record.
    static bool isTara(const QSharedPointer<GoodsItem> &goods);
    //! Whether it is packaging goods. The position must have a catalogue record.
    static bool isPackaging(const QSharedPointer<GoodsItem> &goods);

protected:
    // The plugin's own virtual operations. They call each other through the virtual table only.

    //! Whether at least two goods positions use the tara position \a goods. False without a record.
    virtual bool isTaraSplitted(const QSharedPointer<GoodsItem> &goods) const;
    //! Whether the tara position \a goods is neither empty nor full. False without a record.
    virtual bool isTaraPartialFilled(const QSharedPointer<GoodsItem> &goods) const;
    //! A new identifier on every call: a UUID in braces, 38 characters.
    virtual QString getId() const;

    /*!
     * Records the tara position \a goods, or resizes its record if there is one; the capacity comes
     * from the count of pieces. Returns the record, which is in `taraList`. Does not save.
     */
    virtual QSharedPointer<TaraInfo> createTara(const QSharedPointer<GoodsItem> &goods);
    /*!
     * Records the goods position \a goods, unless it has a record, and brings what it uses of the
     * taras to its base quantity. Returns the record, which is in `packagingList`. Does not save.
     */
    virtual QSharedPointer<PackagingInfo>
    createPackagingInfo(const QSharedPointer<GoodsItem> &goods);

    //! Stores all records in the document, replacing what was there. Without a document: nothing.
    virtual void savePluginData() const;
    //! Replaces all records by those of the document; what is malformed there becomes 0 or empty.
    virtual void restorePluginData();

    //! The first tara record of position \a posnum, or null.
    virtual QSharedPointer<TaraInfo> getTaraByPosnum(int posnum) const;
    /*!
     * The first goods record of position \a posnum, or else a new empty one, number 0, that is in
     * no list. Never null, unlike `getTaraByPosnum`.
     */
    virtual QSharedPointer<PackagingInfo> getPackagingInfoByPosnum(int posnum) const;

    /*!
     * Gives \a tara the capacity \a newCapacity and moves its free capacity by the same amount,
     * below 0 if it holds more. A change within the tolerance is ignored.
     */
    virtual void modifyTaraCapacity(const QSharedPointer<TaraInfo> &tara, double newCapacity);
    /*!
     * Brings what the goods of \a info use in all to \a newUsedCapacity: fills taras with free
     * capacity, first fit, or releases over-full taras that the goods use. What finds no place is
     * dropped.
     */
    virtual void modifyPackagingUsedCapacity(const QSharedPointer<PackagingInfo> &info,
                                             double newUsedCapacity);
    /*!
     * Asks the host to change the quantity of the goods position of \a info by \a quantityDelta, or
     * to remove the position when nothing would be left. True when the host did so or nothing was
     * to be done. Changes no record itself: the host calls back with the resulting event.
     */
    virtual bool modifyPackagingPositionQuantity(const QSharedPointer<PackagingInfo> &info,
                                                 double quantityDelta);

    /*!
     * Asks the host to storno every empty tara. False at the first that stays in the receipt, or
     * that leaves the receipt without positions, or during which another receipt became current.
     * True without a document. The argument is not read. The host calls back with each storno.
     */
    virtual bool stornoAllEmptyTara(const control::Action &action);

    //! Whether some tara is empty.
    virtual bool isExistsEmptyTara() const;

    //! Suspends the plugin: releases the document and stops events. Keeps the records.
    virtual void disablePlugin();

    // Trigger callbacks and event handlers. The host may call back.

    //! Before modifiers are applied: refuses a new quantity for a shared or partly filled tara.
    EContext::Result beforeApplyModifiers(const control::Action &action);
    //! After a split: records the pieces as goods of one group. Always continues.
    EContext::Result afterSplitPositions(const control::Action &action);
    //! After a union: forgets deleted positions, places changed ones anew. Always continues.
    EContext::Result afterUnitePositions(const control::Action &action);
    //! Before payment: asks whether to storno empty taras. Cancels on no, or when a storno fails.
    EContext::Result beforeSubtotal(const control::Action &action);
    //! After a soft-check or an order was added: suspends the plugin. Always continues.
    EContext::Result afterSoftcheck(const control::Action &action);

    //! Records an added tara or goods position that the document holds, and saves.
    void onPositionAddEvent(const Event &event);
    //! Forgets a stornoed position, takes a tara's goods back out of the receipt, and saves.
    void onPositionStornoEvent(const Event &event);
    //! Follows a changed quantity of tara or goods, and saves.
    void onModifierApplyEvent(const Event &event);

    //! Forgets the goods position \a position and gives what it used back to its taras.
    void removePackagingInfo(const QSharedPointer<GoodsItem> &position);

    QList<QSharedPointer<TaraInfo>> taraList; //!< in order of creation: the order of filling
    QList<QSharedPointer<PackagingInfo>> packagingList; //!< in order of creation
    Log4Qt::Logger *logger;                             //!< logger "packaging"; not owned

private:
    using Callback = EContext::Result (PackagingControl::*)(const control::Action &);

    //! Registers the trigger `callback` before or after actions of \a type.
    template <Callback callback>
    void attach(ActionTrigger::Order order, control::EActionType type,
                ActionTrigger::Priority priority);
    //! Refuses a new quantity for the tara \a position, when it is shared or partly filled.
    EContext::Result decideOnTara(const QSharedPointer<GoodsItem> &position);
    //! Asks whether to storno the empty taras, and does so. Cancels on no, or when one fails.
    EContext::Result decideOnEmptyTara(const control::Action &action);
    //! Forgets \a tara and takes what was poured into it back out of the receipt.
    void dropTara(const QSharedPointer<TaraInfo> &tara);
    //! Takes what was poured into \a tara out of the receipt, as long as that stays current.
    void takeGoodsOut(const TaraInfo &tara);
    //! Resizes the record of the changed tara \a position; its first goods change by as much.
    void resizeTara(const QSharedPointer<GoodsItem> &position);
    //! Records the pieces of one split position as goods of one group.
    void recordPieces(const QVariantMap &split);
    //! The position \a posnum of the document, or null; null too without a document.
    QSharedPointer<GoodsItem> findPosition(int posnum) const;
};

#endif // PLUGIN_PACKAGINGCONTROL_H
