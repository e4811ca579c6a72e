#include "till/recorder/ExpectedReceipt.h"

#include "till/receipt/TaraState.h"
#include "till/register/Command.h"
#include "till/words/Words.h"

#include <QtCore/QHash>

#include <algorithm>
#include <cmath>
#include <set>

namespace till {

namespace {

//! The records of tara and goods, as the plugin that keeps such stored them.
TaraState taraStateOf(const ExpectedReceipt &receipt)
{
    const Document::PluginData data = receipt.whole().pluginData;
    for (auto plugin = data.cbegin(); plugin != data.cend(); ++plugin) {
        if (plugin->contains("taraInfo") || plugin->contains("packagingInfo"))
            return TaraState::read(data, plugin.key());
    }
    return {};
}

//! Whether a script can ask for \a quantity and find it whatever its last bit is.
bool canBeAskedFor(double quantity)
{
    const double thousandths = std::abs(quantity) * 1000.0;
    const bool isHalfway = std::abs(thousandths - std::floor(thousandths) - 0.5) < 0.01;
    return !isHalfway && parseQuantity(toText(quantity));
}

//! Adds to \a words that \a part is \a quantity, if that can be said.
void addPart(QStringList &words, const QString &part, double quantity)
{
    if (canBeAskedFor(quantity))
        words += {part, toText(quantity)};
}

/*!
 * What can be asked of the groups of \a lines: by the number of each that is in one, that of the
 * first in it. The name of a group is another one each time.
 */
QHash<int, int> groupsOf(const QList<LineRecord> &lines)
{
    QHash<QString, int> firsts;
    QHash<int, int> groups;
    for (const LineRecord &line : lines) {
        if (line.groupId.isEmpty())
            continue;
        if (!firsts.contains(line.groupId))
            firsts.insert(line.groupId, line.posnum);
        groups.insert(line.posnum, firsts.value(line.groupId));
    }
    return groups;
}

//! What is expected of \a line where it differs from \a before, which is null when it is new.
QStringList partsOf(const LineRecord &line, const LineRecord *before)
{
    const auto differs = [&](auto part) { return !before || before->*part != line.*part; };
    QStringList words;
    if (!before)
        words += {"article", asWord(line.article.code)};
    if (differs(&LineRecord::count))
        addPart(words, "quantity", line.count);
    if (differs(&LineRecord::base) && toText(line.base) != toText(line.count))
        addPart(words, "base", line.base);
    if (!before || before->sum() != line.sum())
        words += {"sum", toText(line.sum())};
    if (differs(&LineRecord::stornoed))
        words += line.stornoed ? "stornoed" : "live";
    return words;
}

QStringList partsOf(const TaraUse &tara, const TaraUse *before)
{
    QStringList words;
    if (!before || before->capacity != tara.capacity)
        addPart(words, "capacity", tara.capacity);
    if (!before || before->free != tara.free)
        addPart(words, "free", tara.free);
    return words;
}

//! A receipt, looked up by the numbers of positions.
class Looked
{
public:
    explicit Looked(const ExpectedReceipt &receipt)
        : m_record(receipt.record)
        , m_state(taraStateOf(receipt))
        , m_index(m_state)
        , m_groups(groupsOf(m_record.lines))
    {
        for (const LineRecord &line : m_record.lines)
            m_lines.insert(line.posnum, &line);
    }
    Q_DISABLE_COPY_MOVE(Looked)

    const TaraState &state() const { return m_state; }
    const LineRecord *line(int posnum) const { return m_lines.value(posnum); }
    //! The number of the first line in its group; 0 when it is in none.
    int groupOf(int posnum) const { return m_groups.value(posnum); }
    const TaraUse *tara(int posnum) const { return m_index.tara(posnum); }
    const GoodsUse *goods(int posnum) const { return m_index.goodsOf(posnum); }

    double unplaced(const GoodsUse &goods) const
    {
        const LineRecord *const line = m_lines.value(goods.posnum);
        return goods.unplaced(line ? line->base : 0.0);
    }
    //! Where \a goods are: all of it, so that nothing is elsewhere.
    QStringList partsOf(const GoodsUse &goods) const
    {
        QStringList words;
        const QList<const TaraUse *> taras = m_index.tarasOf(goods);
        for (const TaraUse *const tara : taras) {
            if (m_index.tara(tara->posnum) == tara) // another is asked for by that number
                addPart(words, QString("in %1").arg(tara->posnum), goods.used.value(tara->id));
        }
        addPart(words, "unplaced", unplaced(goods));
        return words;
    }

private:
    const ReceiptRecord m_record;
    const TaraState m_state;
    const TaraIndex m_index;
    const QHash<int, int> m_groups;
    QHash<int, const LineRecord *> m_lines;
};

void append(QStringList &texts, const char *what, int posnum, const QStringList &words)
{
    if (!words.isEmpty())
        texts.append(QString("%1 %2 %3").arg(what).arg(posnum).arg(words.join(' ')));
}

//! The numbers of the positions of which either of both lists has a record.
template <typename Use>
std::set<int> posnumsOf(const QList<Use> &now, const QList<Use> &before)
{
    std::set<int> posnums;
    for (const QList<Use> &uses : {now, before}) {
        for (const Use &use : uses)
            posnums.insert(use.posnum);
    }
    return posnums;
}

void appendTaras(QStringList &texts, const Looked &now, const Looked &before)
{
    for (const int posnum : posnumsOf(now.state().taras, before.state().taras)) {
        const TaraUse *const tara = now.tara(posnum);
        append(texts, "tara", posnum,
               tara ? partsOf(*tara, before.tara(posnum)) : QStringList("none"));
    }
}

void appendGoods(QStringList &texts, const Looked &now, const Looked &before)
{
    for (const int posnum : posnumsOf(now.state().goods, before.state().goods)) {
        const GoodsUse *const goods = now.goods(posnum);
        const GoodsUse *const old = before.goods(posnum);
        if (!goods)
            append(texts, "goods", posnum, {"none"});
        else if (!old || old->used != goods->used || before.unplaced(*old) != now.unplaced(*goods))
            append(texts, "goods", posnum, now.partsOf(*goods));
    }
}

QString recordsOf(const TaraState &state)
{
    return QString("records %1 %2").arg(state.taras.size()).arg(state.goods.size());
}

QString stateOf(const ExpectedReceipt &receipt)
{
    return "state " + (receipt.isThere ? wordOf(receipt.record.state) : QStringLiteral("none"));
}

} // namespace

void ExpectedReceipt::read(const QJsonObject &note)
{
    const QString kind = note["kind"].toString();
    if (kind == "takeup")
        *this = {};
    RebuiltReceipt::read(note);
    if (kind != "receipt")
        return;
    isThere = true;
    total = note["total"].toInteger();
}

qsizetype ExpectedReceipt::livePositions() const
{
    return std::count_if(record.lines.cbegin(), record.lines.cend(),
                         [](const LineRecord &line) { return !line.stornoed; });
}

bool ExpectedReceipt::isUnfinished() const
{
    return isThere && till::isUnfinished(record.state);
}

QStringList expectationsOf(const ExpectedReceipt &now, const ExpectedReceipt *before)
{
    QStringList texts;
    const Looked nowLooked(now);
    const Looked beforeLooked(before ? *before : ExpectedReceipt());
    if (!before || stateOf(now) != stateOf(*before))
        texts.append(stateOf(now));
    if (!before)
        texts.append(QString("positions %1").arg(now.livePositions()));
    for (const LineRecord &line : now.record.lines) {
        QStringList words = partsOf(line, beforeLooked.line(line.posnum));
        const int group = nowLooked.groupOf(line.posnum);
        if (group != beforeLooked.groupOf(line.posnum))
            words += {"group", group == 0 ? QStringLiteral("none") : QString::number(group)};
        append(texts, "position", line.posnum, words);
    }
    appendTaras(texts, nowLooked, beforeLooked);
    appendGoods(texts, nowLooked, beforeLooked);
    if (!before || recordsOf(nowLooked.state()) != recordsOf(beforeLooked.state()))
        texts.append(recordsOf(nowLooked.state()));
    if (!before || now.total != before->total)
        texts.append("total " + toText(now.total));
    return texts;
}

} // namespace till
