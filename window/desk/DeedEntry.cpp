#include "window/desk/DeedEntry.h"

#include "till/language/TillMessages.h"
#include "till/view/DisplayText.h"
#include "till/view/TaraText.h"

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace till {

namespace {

//! The command that was entered, or the mistake in it.
using Entered = Result<Command, Outcome>;

Outcome noNumber(const QString &text)
{
    return Outcome::mistake(told("till", "\"%1\" is not a number").with({text}));
}

Entered quantity(int posnum, const QString &text)
{
    const auto count = parseQuantity(text);
    if (!count)
        return noNumber(text);
    return Command(command::ChangeCount{posnum, *count});
}

//! "1+0.5", or the parts with spaces between them.
Entered split(int posnum, const QString &text)
{
    static const QRegularExpression between(QStringLiteral("[\\s+;]+"));
    command::Split split{posnum, {}};
    const QStringList parts = text.split(between, Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const auto count = parseQuantity(part);
        if (!count)
            return noNumber(part);
        split.parts.append(*count);
    }
    return Command(split);
}

//! What is proposed is the sum, which is paid exactly while it is the sum still.
Entered pay(const QString &proposal, const QString &text, Kopecks total)
{
    const auto tendered = parseMoney(text);
    if (!tendered)
        return noNumber(text);
    const bool isExact = text == proposal && *tendered == total;
    return Command(isExact ? command::Pay{} : command::Pay{tendered});
}

Entered enteredFor(Deed deed, int posnum, const QString &proposal, const QString &text,
                   const Doer &doer)
{
    switch (deed) {
    case Deed::Quantity:
        return quantity(posnum, text);
    case Deed::Split:
        return split(posnum, text);
    case Deed::Order:
        return Command(command::AttachOrder{text});
    case Deed::SoftCheck:
        return Command(command::AddSoftCheck{text});
    default:
        return pay(proposal, text, doer.total());
    }
}

//! What stands in the field before anything is typed.
QString proposalFor(Deed deed, int posnum, const Receipt &receipt)
{
    if (deed == Deed::Pay)
        return toText(receipt.total());
    const auto line = receipt.line(posnum);
    return deed == Deed::Quantity && line ? toText(line->getCquant()) : QString();
}

struct Asked
{
    Message title;
    Message hint;
    QString signs;
};

//! In what a quantity of \a article is counted.
Message unitHint(const ArticleData &article)
{
    const QString unit = unitOf(article);
    if (unit.isEmpty())
        return told("till", "In pieces, up to three decimals");
    if (article.pack == 1.0)
        return told("till", "In %1, up to three decimals").with({unit});
    return told("till", "In pieces of %1, up to three decimals")
        .with({amountText(article.pack, unit)});
}

Asked askedFor(Deed deed, int posnum, const Receipt &receipt)
{
    const QStringList position{QString::number(posnum)};
    const auto line = receipt.line(posnum);
    switch (deed) {
    case Deed::Quantity:
        return {told("till", "Quantity of position %1").with(position),
                unitHint(line ? line->article() : ArticleData()), QStringLiteral(".")};
    case Deed::Split:
        return {told("till", "Parts to split off position %1").with(position),
                told("till", "As \"1+0.5\"; what is left stays in the position"),
                QStringLiteral(".+")};
    case Deed::Order:
        return {told("till", "Number of the order"), {}, QString()};
    case Deed::SoftCheck:
        return {told("till", "Number of the soft-check"), {}, QString()};
    default:
        return {told("till", "To pay: %1. Money given").with({toText(receipt.total())}),
                told("till", "As it stands, the sum is paid exactly"), QStringLiteral(".")};
    }
}

} // namespace

std::optional<Command> commandOf(Deed deed, const QList<int> &selected)
{
    switch (deed) {
    case Deed::OpenSale:
        return command::Open{Document::Sale};
    case Deed::OpenReturn:
        return command::Open{Document::Return};
    case Deed::Cancel:
        return command::Cancel{};
    case Deed::Storno:
        return command::Storno{selected.value(0)};
    case Deed::Unite:
        return command::Unite{selected};
    case Deed::Subtotal:
        return command::Subtotal{};
    case Deed::Quantity:
    case Deed::Split:
    case Deed::Order:
    case Deed::SoftCheck:
    case Deed::Pay:
        break;
    }
    return {};
}

Message aboutOf(const Command &command, const Receipt &receipt)
{
    const auto *const storno = std::get_if<command::Storno>(&command);
    const auto line = storno ? receipt.line(storno->posnum) : nullptr;
    if (!line)
        return {};
    return told("till", "Position %1: %2")
        .with({QString::number(storno->posnum), printable(line->article().name)});
}

EntryDialog::Wanted entryFor(Deed deed, const QList<int> &selected, const Receipt &receipt,
                             const Translator &translator, const Doer &doer)
{
    const int posnum = selected.value(0);
    const Asked asked = askedFor(deed, posnum, receipt);
    const QString proposal = proposalFor(deed, posnum, receipt);
    const auto read = [=](const QString &text) {
        return enteredFor(deed, posnum, proposal, text, doer);
    };
    const auto check = [read, translator, doer](const QString &text) -> Result<void, QString> {
        const Entered entered = read(text);
        const Outcome outcome = entered ? doer.check(*entered) : entered.error();
        return outcome ? Result<void, QString>() : outcome.text(translator);
    };
    const auto taken = [read, doer](const QString &text) {
        if (const Entered entered = read(text))
            doer.carryOut(*entered);
    };
    const auto &rows = deedRows();
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [deed](const DeedRow &one) { return one.deed == deed; });
    return {translator.text(row->text),
            translator.text(asked.title),
            translator.text(asked.hint),
            proposal,
            asked.signs,
            check,
            taken};
}

} // namespace till
