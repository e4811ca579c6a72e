#include "till/lookup/Lookup.h"

#include "till/course/JsonLine.h"
#include "till/lookup/Progress.h"
#include "till/options/ExitStatus.h"
#include "till/reports/CourseText.h"
#include "till/reports/ReceiptJson.h"
#include "till/reports/ReceiptRows.h"
#include "till/terminal/Output.h"

#include <QtCore/QJsonDocument>

#include <limits>

#include <unistd.h>

namespace till {

namespace {

using Form = LookupOptions::Form;

int fail(ExitStatus status, const Fault &fault)
{
    Output::error(fault.text());
    return status;
}

QString nameOf(qint64 id)
{
    return "receipt " + QString::number(id);
}

//! Where a look at receipts goes: as wide as a terminal, unless programs read it.
Output outputOf(const Options &options)
{
    return options.lookup.form == Form::Text ? Output(options.style.colour) : Output();
}

//! Lines of a list are as wide as a terminal; in a pipe nothing is cut.
Style styleOfList(Style style)
{
    if (isatty(STDOUT_FILENO) == 0)
        style.columns = [] { return std::numeric_limits<int>::max(); };
    return style;
}

//! Receipts being listed: what was told of them goes out in large pieces.
class Listing
{
public:
    Listing(const Options &options, const Translator &translator, Archive &archive)
        : m_options(options)
        , m_archive(archive)
        , m_rows(translator, styleOfList(options.style))
        , m_output(outputOf(options))
    {
    }

    int run()
    {
        const Selection &selection = m_options.lookup.selection;
        if (Progress::isSeen())
            m_progress.start(m_archive.count(selection).value_or(0));
        begin();
        const Result<> listed =
            m_archive.list(selection, [this](const KeptReceipt &receipt) { return take(receipt); });
        m_progress.end();
        flush();
        if (!listed)
            return fail(StartFailed, listed.error());
        if (m_count == 0 && m_options.lookup.form == Form::Text)
            m_output.print(m_rows.none());
        return m_damaged == 0 ? AllWell : CommandFailed;
    }

private:
    void begin()
    {
        if (m_options.lookup.form == Form::Csv)
            m_text = csvCaptions();
    }

    //! The fault is why there is no use in going on.
    Result<> take(const KeptReceipt &header)
    {
        constexpr qsizetype piece = 1 << 16;
        if (m_count++ == 0 && m_options.lookup.form == Form::Text)
            m_text = m_rows.captions();
        const Result<QString> text = textOf(header);
        if (!text)
            return text.error();
        m_text += *text;
        m_progress.show(m_count);
        if (m_text.size() >= piece)
            flush();
        return Output::written();
    }

    Result<QString> textOf(const KeptReceipt &header)
    {
        if (m_options.lookup.form == Form::Json)
            return lineOf(header.record.id);
        noteDamage(header);
        return m_options.lookup.form == Form::Csv ? csvRow(header) : m_rows.row(header);
    }

    Result<QString> lineOf(qint64 id)
    {
        const auto read = m_archive.receipt(id, taraPlugin());
        if (!read)
            return read.error();
        noteDamage(**read);
        return QString::fromUtf8(jsonLine(jsonOf(**read)));
    }

    void noteDamage(const KeptReceipt &receipt)
    {
        const Result<> held = receipt.holds();
        if (held || !receipt.setApart.isEmpty())
            return;
        ++m_damaged;
        m_progress.hide();
        Output::error(nameOf(receipt.record.id) + ": " + held.error().reason);
    }

    void flush()
    {
        if (!m_text.isEmpty())
            m_output.print(std::exchange(m_text, {}));
    }

    const Options &m_options;
    Archive &m_archive;
    ReceiptRows m_rows;
    Output m_output;
    Progress m_progress;
    QString m_text;
    qint64 m_count = 0;
    qint64 m_damaged = 0;
};

//! As the register shows it.
QString shown(const KeptReceipt &kept, const ReceiptView &view)
{
    const Receipt receipt(kept.record);
    const TaraState taras = TaraState::read(kept.record.pluginData, taraPlugin());
    return view.render(receipt, taras, controlOf(receipt));
}

int showReceipt(const Options &options, const Translator &translator, Archive &archive, qint64 id)
{
    const auto read = archive.receipt(id, taraPlugin());
    if (!read)
        return fail(StartFailed, read.error());
    if (!*read)
        return fail(CommandFailed, {options.setup.database, "there is no " + nameOf(id)});
    const KeptReceipt &kept = **read;
    if (kept.recordHolds)
        outputOf(options).print(options.lookup.form == Form::Json
                                    ? QString::fromUtf8(jsonLine(jsonOf(kept)))
                                    : shown(kept, ReceiptView(translator, options.style)));
    if (const Result<> held = kept.holds(); !held)
        return fail(CommandFailed,
                    {options.setup.database, nameOf(id) + ": " + held.error().reason});
    return AllWell;
}

//! In the form of a trace.
QString linesOf(const QList<JournalEntry> &journal)
{
    QByteArray lines;
    qint64 number = 0;
    for (const JournalEntry &entry : journal) {
        QJsonObject note = QJsonDocument::fromJson(entry.json).object();
        note.insert("line", ++number);
        lines += jsonLine(note);
    }
    return QString::fromUtf8(lines);
}

int showJournal(const Options &options, const Translator &translator, Archive &archive, qint64 id)
{
    const auto journal = archive.journal(id);
    if (!journal)
        return fail(StartFailed, journal.error());
    const QList<JournalEntry> &entries = journal->entries;
    if (entries.isEmpty() && journal->faults.isEmpty())
        return fail(CommandFailed,
                    {options.setup.database, "there is no journal of " + nameOf(id)});
    if (!entries.isEmpty())
        outputOf(options).print(options.lookup.form == Form::Json
                                    ? linesOf(entries)
                                    : courseText(entries, translator, options.style));
    for (const QString &fault : journal->faults)
        Output::error(nameOf(id) + ": " + fault);
    return journal->faults.isEmpty() ? AllWell : CommandFailed;
}

} // namespace

int lookUp(const Options &options, const Translator &translator)
{
    bool isNumber = false;
    const QString word = options.words.value(0);
    const qint64 id = word.toLongLong(&isNumber);
    if (options.mode != "receipts" && !isNumber)
        return fail(UsageError, {options.mode, '"' + brief(word) + "\" is no number of a receipt"});
    const auto archive = Archive::open(options.setup.database);
    if (!archive)
        return fail(StartFailed, archive.error());
    if (options.mode == "receipts")
        return Listing(options, translator, **archive).run();
    return options.mode == "receipt" ? showReceipt(options, translator, **archive, id)
                                     : showJournal(options, translator, **archive, id);
}

} // namespace till
