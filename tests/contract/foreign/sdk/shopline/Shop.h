#ifndef SHOPLINE_SHOP_H
#define SHOPLINE_SHOP_H

#include "shopline/Activity.h"
#include "shopline/Desk.h"
#include "shopline/Extension.h"
#include "shopline/Talk.h"

#include <memory>

namespace shopline {

//! The shop's program, as far as a receipt goes. One in a process.
class SHOPLINE_API Shop
{
public:
    Shop();
    ~Shop();
    Q_DISABLE_COPY_MOVE(Shop)

    //! Puts the process-wide objects in place.
    void start();
    //! Takes up a plugin's object. False when it is none of ours.
    bool take(QObject *plugin);

    QSharedPointer<Receipt> open();
    int sell(const Article &article, double quantity);
    bool setByHand(int number, double quantity);
    bool cancel(int number);
    bool cut(int number, const QList<double> &parts);
    bool join(const QList<int> &numbers);
    bool total();
    bool addChit();

    //! The one road of every task: hooks, the task, hooks; then the modifiers are cleared.
    Answer perform(const Task &task, bool isByHand);
    //! Cancels a line on a program's word, asking the cashier unless the task is quiet.
    bool cancelFor(const Task &task);
    bool ask();
    void tell(const Activity &activity);

    bool saysYes = true; //!< the cashier
    int questions = 0;
    QString shown; //!< what the cashier reads

    QSharedPointer<Receipt> receipt;

private:
    class Ears;

    Answer callHooks(const Task &task, Hook::Moment moment, bool isByHand);
    Answer carryOut(const Task &task, bool isByHand);
    Answer setAmount(const Task &task, bool isByHand);
    Answer takeOut(const Task &task, bool isByHand);
    Answer cutUp(const Task &task);
    Answer joinUp(const Task &task);
    void setLate();

    Extension *m_extension = nullptr;
    ReceiptHolder *m_holder = nullptr;
    std::unique_ptr<Ears> m_ears;
    QList<std::function<void()>> m_late; //!< quantities that are set when it is too late
};

} // namespace shopline

#endif // SHOPLINE_SHOP_H
