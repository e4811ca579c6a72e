#include "tests/till/kill/Cashier.h"

namespace till {

namespace {

//! Lines that the cashier works on. The first stays as it is: it is an ordinary article, whose
//! quantity can be set without the plugin changing a record.
QList<LineRecord> workedOn(const ToldReceipt &receipt)
{
    QList<LineRecord> lines;
    for (const LineRecord &line : receipt.record.lines) {
        if (!line.stornoed && line.posnum > 1)
            lines.append(line);
    }
    return lines;
}

QByteArray toWord(double number)
{
    return QByteArray::number(number, 'f', 3);
}

} // namespace

QByteArray Cashier::next(const ToldReceipt &receipt)
{
    if (m_prepared.isEmpty())
        m_prepared = think(receipt);
    return m_prepared.takeFirst();
}

QByteArrayList Cashier::think(const ToldReceipt &receipt)
{
    if (!receipt.isOpen())
        return {number(0, 9) == 0 ? "open return" : "open"};
    if (receipt.record.lines.isEmpty())
        return {"add CHIPS"};
    const Lines lines = workedOn(receipt);
    const int dice = number(0, 99);
    if (receipt.record.lines.size() > 30 || dice < 4)
        return {yesOrNo(), "pay"};
    if (dice < 6)
        return {yesOrNo(), "cancel"};
    if (dice < 9)
        return {yesOrNo(), "subtotal"};
    if (dice == 9 && receipt.record.state == ReceiptState::Open)
        return {"pay 0.01"};
    if (dice == 10)
        return {"softcheck " + QByteArray::number(++m_documents)};
    if (dice == 11 && receipt.record.order.isEmpty())
        return {"order A" + QByteArray::number(++m_documents)};
    if (dice < 48 || lines.isEmpty())
        return {add()};
    const LineRecord &line = lines[number(0, static_cast<int>(lines.size()) - 1)];
    if (dice < 70)
        return {change(line)};
    if (dice < 80)
        return {yesOrNo(), "storno " + QByteArray::number(line.posnum)};
    return dice < 90 ? split(line) : unite(lines);
}

QByteArray Cashier::add()
{
    static const QByteArrayList taras{"PET05", "PET1", "PET15", "CAN3", "BUCKET5"};
    static const QByteArrayList goods{"BEER", "DARK", "BEER3", "MILK"};
    static const QByteArrayList others{"BAG", "CRATE20"};
    const int dice = number(0, 99);
    if (dice < 45)
        return "add " + taras[number(0, 4)] + ' ' + QByteArray::number(number(1, 3));
    if (dice < 92)
        return "add " + goods[number(0, 3)] + ' ' + quantity(0.05, 4);
    return "add " + others[number(0, 1)] + ' ' + QByteArray::number(number(1, 3));
}

QByteArray Cashier::change(const LineRecord &line)
{
    const bool isPoured = line.article.taraMode == Tmc::PackagingGoods;
    return "qty " + QByteArray::number(line.posnum) + ' '
           + (isPoured ? quantity(0, 5) : QByteArray::number(number(0, 4)));
}

QByteArrayList Cashier::split(const LineRecord &line)
{
    QByteArray command = "split " + QByteArray::number(line.posnum);
    double left = line.count;
    for (int part = number(1, 3); part > 0; --part) {
        const double taken = number(0, 4) == 0 ? left : left * fraction() / 2;
        if (toWord(taken).toDouble() <= 0 || toWord(taken).toDouble() > left)
            break;
        command += ' ' + toWord(taken);
        left -= toWord(taken).toDouble();
    }
    return {command.count(' ') > 1 ? command : add()};
}

//! Puts lines of one article together, when there are such; adds more otherwise.
QByteArrayList Cashier::unite(const Lines &lines)
{
    const LineRecord &first = lines[number(0, static_cast<int>(lines.size()) - 1)];
    QByteArray command = "unite " + QByteArray::number(first.posnum);
    for (const LineRecord &line : lines) {
        if (line.posnum != first.posnum && line.article == first.article && number(0, 3) > 0)
            command += ' ' + QByteArray::number(line.posnum);
    }
    return {command.count(' ') > 1 ? command : add()};
}

QByteArray Cashier::quantity(double from, double to)
{
    return toWord(from + (to - from) * fraction());
}

} // namespace till
