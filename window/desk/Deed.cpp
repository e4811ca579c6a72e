#include "window/desk/Deed.h"

namespace till {

const QList<DeedRow> &deedRows()
{
    static const QList<DeedRow> rows{
        {Deed::Quantity, "quantity", told("till", "Quantity"), {Qt::Key_F2}},
        {Deed::Storno, "storno", told("till", "Storno"), {Qt::Key_F4}},
        {Deed::Split, "split", told("till", "Split"), {Qt::Key_F5}},
        {Deed::Unite, "unite", told("till", "Unite"), {Qt::Key_F6}},
        {Deed::Order, "order", told("till", "Order"), {Qt::Key_F7}},
        {Deed::SoftCheck, "softCheck", told("till", "Soft-check"), {Qt::Key_F8}},
        {Deed::OpenSale, "openSale", told("till", "New receipt"), {Qt::CTRL | Qt::Key_N}},
        {Deed::OpenReturn, "openReturn", told("till", "Return"), {Qt::CTRL | Qt::Key_R}},
        {Deed::Cancel, "cancelReceipt", told("till", "Cancel receipt"), {Qt::SHIFT | Qt::Key_F4}},
        {Deed::Subtotal, "subtotal", told("till", "Subtotal"), {Qt::Key_F11}},
        {Deed::Pay, "pay", told("till", "Pay"), {Qt::Key_F12}},
    };
    return rows;
}

namespace {

double countOf(const Register &cashRegister, int posnum)
{
    const auto line = cashRegister.receipt() ? cashRegister.receipt()->line(posnum) : nullptr;
    return line ? line->getCquant() : 0.0;
}

//! Of what is done to one position.
Outcome whyNotTo(Deed deed, const Register &cashRegister, int posnum)
{
    switch (deed) {
    case Deed::Quantity:
        return cashRegister.check(command::ChangeCount{posnum, countOf(cashRegister, posnum)});
    case Deed::Split:
        return cashRegister.check(command::Split{posnum, {countOf(cashRegister, posnum)}});
    default:
        return cashRegister.check(command::Storno{posnum});
    }
}

} // namespace

Outcome whyNot(Deed deed, const Register &cashRegister, const QList<int> &selected)
{
    switch (deed) {
    case Deed::OpenSale:
    case Deed::OpenReturn:
        return cashRegister.check(command::Open{});
    case Deed::Cancel:
        return cashRegister.check(command::Cancel{});
    case Deed::Unite:
        return cashRegister.check(command::Unite{selected});
    case Deed::Order:
        return cashRegister.check(command::AttachOrder{QStringLiteral("1")});
    case Deed::SoftCheck:
        return cashRegister.check(command::Cancel{}); // which numbers are taken shows later
    case Deed::Subtotal:
        return cashRegister.check(command::Subtotal{});
    case Deed::Pay:
        return cashRegister.check(command::Pay{});
    case Deed::Quantity:
    case Deed::Storno:
    case Deed::Split:
        break;
    }
    if (const Outcome open = cashRegister.check(command::Cancel{}); !open)
        return open;
    if (selected.size() != 1)
        return Outcome::mistake(told("till", "Select one position in the receipt"));
    return whyNotTo(deed, cashRegister, selected[0]);
}

} // namespace till
