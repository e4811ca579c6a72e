#ifndef TESTS_MODEL_MODELHOST_H
#define TESTS_MODEL_MODELHOST_H

#include "tests/model/Command.h"
#include "tests/model/Rules.h"

#include <array>
#include <functional>
#include <memory>
#include <vector>

namespace model {

/*!
 * A register in which the rules take the plugin's place. It carries out commands, answers what the
 * rules ask for before the asking call returns, and reports with events.
 */
class ModelHost : private World
{
public:
    ModelHost(std::uint64_t salt, bool allowSaleEmptyTara);

    void run(const Command &command);

    //! What commands change while receipt, rules and settings stay the same.
    struct Moment
    {
        int identifiers;
        Receipt receipt;
        std::vector<std::shared_ptr<Tara>> taras;
        std::vector<std::shared_ptr<Goods>> goods;
    };
    Moment moment() const;
    void returnTo(const Moment &moment);

    //! What was said and asked since the journal was cleared.
    std::string &journal() { return World::journal; }
    const Rules &rules() const { return *m_rules; }
    const Receipt &receipt() const { return *m_receipts[m_inHand]; }

    // How a command turned out, for whoever tells it to a cashier.

    //! The lines that \a command picks in the current receipt, in the command's order.
    std::vector<PositionPtr> picked(const Command &command) const;
    bool wasAsked() const { return m_wasAsked; }
    //! The rules, or the cashier's answer, kept the command from being carried out.
    bool wasRefused() const { return m_wasRefused; }
    bool wasClosed() const { return m_wasClosed; }
    int requests() const { return m_requests; }

private:
    struct Event
    {
        int code;
        PositionPtr position;
    };

    bool run(int actionType, int posnum) override;
    void storno(int posnum) override;
    bool askAboutEmptyTara() override;
    std::string newIdentifier() override;
    void setListening(bool on) override;

    void carryOut(const Command &command);
    void add(const Command &command);
    void changePosition(const Command &command);
    void split(const Command &command);
    void unite(const Command &command);
    void publish(const Command &command);
    void pay(int actionType);
    void attach(const Command &command);
    void turnToOther();
    void takeUp(const ReceiptPtr &receipt);
    void restart();

    bool request(int actionType, int posnum);
    void meanwhile();
    Answer perform(int actionType, int posnum, int eventCode, bool isRequest);
    bool change(int actionType, int posnum, int eventCode, bool isRequest);
    Answer changeCount(const PositionPtr &position, double count, bool withQuantity);
    void report(Event event, bool isRequest);
    void deliver(const Event &event);
    void deliverLate();

    ReceiptPtr inHand() const { return m_receipts[m_inHand]; }
    PositionPtr line(int posnum) const;
    ReceiptPtr newReceipt(bool isSale);
    PositionPtr newPosition(const Article &article, double count);
    PositionPtr live(int which) const;
    std::vector<PositionPtr> liveLines() const;
    void say(const std::string &line) { World::journal += line + '\n'; }

    std::uint64_t m_salt;
    int m_identifiers = 0;
    bool m_allowSaleEmptyTara;
    int m_receiptNumber = 0;
    std::array<ReceiptPtr, 2> m_receipts;
    std::size_t m_inHand = 0;

    std::unique_ptr<Rules> m_rules;
    bool m_isListening = true;
    std::vector<Event> m_late;

    Command m_command; //!< the one that is being carried out
    int m_requests = 0;
    int m_depth = 0;
    bool m_isMeanwhileDone = false;
    bool m_wasAsked = false;
    bool m_wasRefused = false;
    bool m_wasClosed = false;
};

} // namespace model

#endif // TESTS_MODEL_MODELHOST_H
