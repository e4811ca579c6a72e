#include "tests/model/Command.h"

#include "tests/model/ModelHost.h"
#include "tests/model/TillLimits.h"

namespace model {

// The script is written while the model runs it: only then is known which positions are meant, and
// which questions are asked.

namespace {

//! How a command ends at the till.
enum class End { Done, Refused, Mistake };

class Writer
{
public:
    Writer(std::ostream &out, const Script &script)
        : m_out(out)
        , m_host(script.salt, script.allowSaleEmptyTara)
    {
    }

    void write(const Command &command)
    {
        const auto lines = m_host.picked(command);
        m_isTaken = tillTakes(command, lines);
        m_wasEmpty = m_host.receipt().isEmpty();
        m_hadOrder = m_host.receipt().hasOrder;
        m_host.run(command);
        m_positions.clear();
        for (const PositionPtr &line : lines)
            m_positions += ' ' + std::to_string(line->posnum);
        if (lines.empty() && needsPosition(command))
            return;
        writeNotes(command);
        writeCommand(command);
        followState(command);
    }

    void end()
    {
        if (!m_hasSaid)
            note("nothing of this can be typed at a till");
    }

private:
    static bool needsPosition(const Command &command)
    {
        return command.verb == Verb::Quantity || command.verb == Verb::Modify
               || command.verb == Verb::Storno || command.verb == Verb::Split
               || command.verb == Verb::Unite;
    }

    void note(const std::string &text) { m_out << "# " << text << '\n'; }
    void say(const std::string &line)
    {
        m_out << line << '\n';
        m_hasSaid = true;
    }
    void say(const std::string &line, End end);
    void sayOrNote(const std::string &line, End end);

    void writeNotes(const Command &command);
    void writeReplies(const Command &command);
    void writeMeanwhile(const Command &command);
    void writeCommand(const Command &command);
    void writeOnPositions(const Command &command);
    void writeOnReceipt(const Command &command);
    void writeOnRegister(const Command &command);
    void writeArticle(const Command &command);
    void writeEvent(const Command &command);
    void writeGate(const Command &command, const std::string &verb);
    void writePay(const Command &command);
    void followState(const Command &command);

    std::ostream &m_out;
    ModelHost m_host;
    std::string m_positions;
    bool m_isTaken = true; //!< the till can do what the model did
    bool m_wasEmpty = true;
    bool m_hadOrder = false;
    bool m_hasSaid = false;      //!< there is something to type
    bool m_isAtSubtotal = false; //!< the till, where it pays without asking the plugin again
    int m_numbers = 0;
};

//! Says a command and how it ends: a script stops at what does not end well, unless it is expected.
void Writer::say(const std::string &line, End end)
{
    static const std::string beginnings[]{"", "expect refused ", "expect mistake "};
    say(beginnings[static_cast<int>(end)] + line);
}

//! What the model did and the till cannot is only noted; what neither does, the till calls a
//! mistake.
void Writer::sayOrNote(const std::string &line, End end)
{
    if (m_isTaken)
        say(line, end);
    else if (end == End::Refused)
        say(line, End::Mistake);
    else
        note("the till takes no such command: " + line);
}

void Writer::writeNotes(const Command &command)
{
    writeReplies(command);
    writeMeanwhile(command);
    const bool isAsked = m_host.requests() > 0;
    if (isAsked && command.lateness > 0)
        note(command.lateness == 1 ? "the events of what the plugin asks for come after the command"
                                   : "the events of what the plugin asks for come later still");
}

void Writer::writeReplies(const Command &command)
{
    static const std::string texts[]{"obeys", "refuses", "obeys and says that it did not",
                                     "does nothing and says that it did"};
    for (int i = 0; i < m_host.requests(); ++i) {
        if (command.reply(i) != Reply::Obey)
            note("the host " + texts[static_cast<int>(command.reply(i))] + " when asked, time "
                 + std::to_string(i + 1));
    }
}

void Writer::writeMeanwhile(const Command &command)
{
    if (command.meanwhile == Meanwhile::Nothing || m_host.requests() <= command.meanwhileAt)
        return;
    const std::string position =
        "live position number " + std::to_string(command.meanwhileWhich) + " (counted round) ";
    const std::string texts[]{
        "",
        position + "is stornoed",
        position + "becomes " + toText(command.meanwhileQuantity) + " pieces",
        position + "is reported as changed",
        "the plugin is given no receipt",
        "the plugin is given the current receipt once more",
        "the register turns to the other one of its two receipts",
    };
    note("meanwhile, at request " + std::to_string(command.meanwhileAt + 1) + ", "
         + texts[static_cast<int>(command.meanwhile)]);
}

void Writer::writeCommand(const Command &command)
{
    if (needsPosition(command))
        return writeOnPositions(command);
    writeOnReceipt(command);
    writeOnRegister(command);
}

void Writer::writeOnPositions(const Command &command)
{
    const End end = m_host.wasRefused() ? End::Refused : End::Done;
    if (command.verb == Verb::Quantity)
        return sayOrNote("qty" + m_positions + ' ' + typed(command.quantity), end);
    if (command.verb == Verb::Modify)
        return note("modifiers other than the quantity are applied to position" + m_positions);
    if (command.verb == Verb::Storno)
        return say("answer yes\nstorno" + m_positions);
    if (command.shape != 0)
        note("the plugin is told of it in form " + std::to_string(command.shape));
    if (command.verb == Verb::Unite)
        return sayOrNote("unite" + m_positions, end);
    std::string parts;
    for (const double part : command.parts)
        parts += ' ' + typed(part);
    sayOrNote("split" + m_positions + parts, end);
}

void Writer::writeOnReceipt(const Command &command)
{
    if (command.verb == Verb::Open)
        say(command.shape == 0 ? "answer yes\ncancel\nopen" : "answer yes\ncancel\nopen return");
    if (command.verb == Verb::Add)
        writeArticle(command);
    if (command.verb == Verb::Subtotal)
        writeGate(command, "subtotal");
    if (command.verb == Verb::Pay)
        writePay(command);
    if (command.verb == Verb::SoftCheck)
        say("softcheck " + std::to_string(++m_numbers));
    if (command.verb == Verb::Order)
        say("order " + std::to_string(++m_numbers), m_hadOrder ? End::Mistake : End::Done);
}

void Writer::writeOnRegister(const Command &command)
{
    if (command.verb == Verb::Setting)
        say(std::string("set PackagingControl:allowSaleEmptyTara ")
            + (command.yes ? "true" : "false"));
    if (command.verb == Verb::Restart)
        say("restart");
    if (command.verb == Verb::Reopen)
        note("the plugin is given the current receipt once more");
    if (command.verb == Verb::Switch)
        note("the register turns to the other one of its two receipts");
    if (command.verb == Verb::Forget)
        note("the plugin is given no receipt");
    if (command.verb == Verb::Publish)
        writeEvent(command);
}

void Writer::writeArticle(const Command &command)
{
    const Article &article = articleOf(command);
    const std::string code = article.code;
    if (!article.isInCatalogue) {
        const std::string capacity =
            article.capacityText ? article.capacityText : toText(article.capacity);
        note((isCatalogued(article) ? "catalogue: " : "what no catalogue of the till has: ") + code
             + ';' + code + ";1,00;" + std::to_string(article.taraMode) + ';' + capacity + ';'
             + toText(article.pack) + ";");
    }
    sayOrNote("add " + code + ' ' + typed(command.quantity), End::Done);
}

void Writer::writeEvent(const Command &command)
{
    static const std::string codes[]{"26", "252", "19", "21", "20", "27"};
    const std::size_t lines = m_host.receipt().lines.size();
    const std::size_t which = static_cast<std::size_t>(command.which) % (lines + 1);
    note("the host publishes event " + codes[command.shape % 6] + " about "
         + (which == lines ? "no position" : "position " + std::to_string(which + 1)));
}

void Writer::writeGate(const Command &command, const std::string &verb)
{
    // Of an empty receipt, and of one that it pays from subtotal, the till does not ask the plugin.
    const bool asksPlugin = !m_wasEmpty && !(command.verb == Verb::Pay && m_isAtSubtotal);
    if (m_host.wasAsked() && asksPlugin)
        say(command.yes ? "answer yes" : "answer no");
    else if (m_host.wasAsked())
        note(std::string("the plugin is asked all the same; the cashier says ")
             + (command.yes ? "yes" : "no"));
    const bool isRefused = m_wasEmpty || (m_host.wasRefused() && asksPlugin);
    say(verb, isRefused ? End::Refused : End::Done);
}

void Writer::writePay(const Command &command)
{
    writeGate(command, "pay");
    if (!m_host.wasClosed())
        return;
    if (m_wasEmpty) // and is the current one still
        say("answer yes\ncancel");
    say("open");
}

//! Keeps up with whether the till is at subtotal, which any change of the receipt ends.
void Writer::followState(const Command &command)
{
    switch (command.verb) {
    case Verb::Subtotal:
        m_isAtSubtotal = m_isAtSubtotal || !(m_wasEmpty || m_host.wasRefused());
        break;
    case Verb::Quantity:
        m_isAtSubtotal = m_isAtSubtotal && m_host.wasRefused();
        break;
    case Verb::Pay:
        m_isAtSubtotal = m_isAtSubtotal && !m_host.wasClosed();
        break;
    case Verb::Open:
    case Verb::Add:
    case Verb::Storno:
    case Verb::Split:
    case Verb::Unite:
        m_isAtSubtotal = false;
        break;
    default:
        break;
    }
}

} // namespace

std::ostream &operator<<(std::ostream &out, const Script &script)
{
    out << "\n# identifiers: " << script.salt << "\nset PackagingControl:allowSaleEmptyTara "
        << (script.allowSaleEmptyTara ? "true" : "false") << "\nopen\n";
    Writer writer(out, script);
    for (const Command &command : script.commands)
        writer.write(command);
    if (!script.commands.empty())
        writer.end();
    return out;
}

} // namespace model
