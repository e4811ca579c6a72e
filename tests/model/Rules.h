#ifndef TESTS_MODEL_RULES_H
#define TESTS_MODEL_RULES_H

#include "tests/model/Shop.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

// The rules of tara, written down once more from the description of the plugin. Nothing here knows
// the plugin's code or Qt.

namespace model {

//! A line of a receipt.
struct Position
{
    int posnum = 0;
    const Article *article = nullptr;
    double count = 0; //!< pieces
    double base = 0;  //!< base units
    std::string group;
    bool isStornoed = false;

    void setCount(double pieces);
    void setBase(double baseUnits);
};
using PositionPtr = std::shared_ptr<Position>;

struct Tara
{
    int posnum = 0;
    std::string id;
    double capacity = 0;
    double free = 0;

    bool isEmpty() const;
    bool isFull() const;
};

struct Goods
{
    int posnum = 0;
    std::map<std::string, double> used; //!< by the tara's id
};

struct Receipt
{
    int number = 0;
    bool isSale = true;
    bool hasOrder = false;
    bool hasSoftCheck = false;
    std::vector<PositionPtr> lines; //!< stornoed ones too
    std::vector<Tara> savedTara;
    std::vector<Goods> savedGoods;

    //! The line \a posnum, unless it is stornoed.
    PositionPtr find(int posnum) const;
    bool isEmpty() const;
};
using ReceiptPtr = std::shared_ptr<Receipt>;

//! The modifiers that are to be applied.
struct Modifiers
{
    bool hasQuantity = false;
    double quantity = 0; //!< base units
    int mode = 0;
    bool hasOthers = false;
};

//! One position that was split.
struct SplitPosition
{
    PositionPtr source;
    std::vector<PositionPtr> pieces;
    bool isSourceGone = false;
};

//! What the rules need of the world.
class World
{
public:
    virtual ~World() = default;
    //! Runs an action on a position; true when it was carried out.
    virtual bool run(int actionType, int posnum) = 0;
    virtual void storno(int posnum) = 0;
    virtual bool askAboutEmptyTara() = 0;
    virtual std::string newIdentifier() = 0;
    virtual void setListening(bool on) = 0;

    Modifiers modifiers;
    std::string journal; //!< everything that is said and asked, a line each
};

//! What a trigger answers.
enum Answer { Cancel = 0, Error = 1, Continue = 2 };

class Rules
{
public:
    explicit Rules(World &world)
        : m_world(world)
    {
    }

    void setDocument(const ReceiptPtr &receipt);
    void suspend();

    void positionAdded(const PositionPtr &position);
    void positionStornoed(const PositionPtr &position);
    void modifiersApplied(const PositionPtr &position);

    Answer beforeModifiers(int posnum);
    void afterSplit(const std::vector<SplitPosition> &splits);
    void afterUnion(const std::vector<PositionPtr> &deleted,
                    const std::vector<PositionPtr> &changed);
    Answer beforeSubtotal();
    void afterSoftCheck();

    std::vector<std::shared_ptr<Tara>> taras;
    std::vector<std::shared_ptr<Goods>> goods;

private:
    std::shared_ptr<Tara> taraAt(int posnum) const;
    std::shared_ptr<Goods> goodsAt(int posnum) const;
    PositionPtr positionAt(int posnum) const;
    bool isShared(const Tara &tara) const;

    void resize(Tara &tara, double capacity);
    void place(Goods &info, double quantity);
    void recordGoods(const Position &position);
    void forgetGoods(int posnum);
    void dropTara(const std::shared_ptr<Tara> &tara);
    void followTara(const Position &position);
    bool changeGoods(const Goods &info, double delta);
    bool stornoEmptyTara();
    void save();
    void say(const std::string &line) { m_world.journal += line + '\n'; }

    World &m_world;
    ReceiptPtr m_receipt;
};

// How what is saved and loaded shows in the journal; the real host writes the same.
std::string toText(const Tara &tara);
std::string toText(const Goods &goods);

} // namespace model

#endif // TESTS_MODEL_RULES_H
