#include "tests/model/Command.h"

#include "tests/model/ModelHost.h"

#include <algorithm>
#include <charconv>

namespace model {

// The script is written while the model runs it: only then is known which positions are meant, and
// which questions are asked.

namespace {

constexpr double greatestQuantity = 999999.999; // of a position of the till

//! Whether the till takes such a quantity.
bool isTyped(double quantity)
{
    return quantity >= 0 && quantity <= greatestQuantity
           && static_cast<double>(static_cast<long long>(quantity * 1000 + 0.5)) / 1000 == quantity;
}

bool isTyped(const Command &command)
{
    switch (command.verb) {
    case Verb::Add:
        return command.quantity > 0 && isTyped(command.quantity);
    case Verb::Quantity:
        return isTyped(command.quantity);
    case Verb::Split:
        return std::all_of(command.parts.begin(), command.parts.end(),
                           [](double part) { return part > 0 && isTyped(part); });
    default:
        return true;
    }
}

std::string typed(double quantity)
{
    char text[64];
    const auto end =
        std::to_chars(text, text + sizeof text, quantity, std::chars_format::fixed).ptr;
    return {text, end};
}

const Article &articleOf(const Command &command)
{
    return articles.at(static_cast<std::size_t>(command.which) % articles.size());
}

//! Whether a catalogue of the till can have \a article.
bool isCatalogued(const Article &article)
{
    constexpr int tara = 1;
    constexpr int lastMode = 2;
    return article.taraMode <= lastMode && isTyped(article.capacity) && isTyped(article.pack)
           && (article.taraMode != tara || article.capacity > 0);
}

//! Whether the position has as much as the parts: the till looks at thousandths.
bool hasParts(const Position &position, const std::vector<double> &parts)
{
    double left = position.count;
    for (const double part : parts)
        left -= part;
    return left * 1000 > -0.5;
}

bool canUnite(const std::vector<PositionPtr> &lines)
{
    double count = 0;
    for (const PositionPtr &line : lines)
        count += line->count;
    const auto isAlike = [&](const PositionPtr &line) {
        return line->article == lines.front()->article;
    };
    return lines.size() > 1 && count <= greatestQuantity
           && std::all_of(lines.begin(), lines.end(), isAlike);
}

//! Whether the till can do with \a lines what the model does.
bool takes(const Command &command, const std::vector<PositionPtr> &lines)
{
    if (command.verb == Verb::Add)
        return isCatalogued(articleOf(command));
    if (lines.empty())
        return true;
    if (command.verb == Verb::Split)
        return lines.size() == 1 && !command.parts.empty()
               && hasParts(*lines.front(), command.parts);
    return command.verb != Verb::Unite || canUnite(lines);
}

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
        m_isTaken = isTyped(command) && takes(command, lines);
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

private:
    static bool needsPosition(const Command &command)
    {
        return command.verb == Verb::Quantity || command.verb == Verb::Modify
               || command.verb == Verb::Storno || command.verb == Verb::Split
               || command.verb == Verb::Unite;
    }

    void note(const std::string &text) { m_out << "# " << text << '\n'; }
    void say(const std::string &line) { m_out << line << '\n'; }
    void say(const std::string &line, End end);
    void sayOrNote(const std::string &line, End end);

    void writeNotes(const Command &command);
    void writeReplies(const Command &command);
    void writeMeanwhile(const Command &command);
    void writeCommand(const Command &command);
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
    const std::string when =
        "meanwhile, at request " + std::to_string(command.meanwhileAt + 1) + ", ";
    const std::string which =
        "live position number " + std::to_string(command.meanwhileWhich) + " (counted round) ";
    switch (command.meanwhile) {
    case Meanwhile::Nothing:
        break;
    case Meanwhile::Storno:
        note(when + which + "is stornoed");
        break;
    case Meanwhile::Quantity:
        note(when + which + "becomes " + toText(command.meanwhileQuantity) + " pieces");
        break;
    case Meanwhile::Publish:
        note(when + which + "is reported as changed");
        break;
    case Meanwhile::Suspend:
        note(when + "the plugin is given no receipt");
        break;
    case Meanwhile::Reopen:
        note(when + "the plugin is given the receipt in hand once more");
        break;
    case Meanwhile::Switch:
        note(when + "the register turns to the other one of its two receipts");
        break;
    }
}

void Writer::writeCommand(const Command &command)
{
    std::string parts;
    for (const double part : command.parts)
        parts += ' ' + typed(part);
    if (command.shape != 0 && (command.verb == Verb::Split || command.verb == Verb::Unite))
        note("the plugin is told of it in form " + std::to_string(command.shape));
    const End end = m_host.wasRefused() ? End::Refused : End::Done;
    switch (command.verb) {
    case Verb::Open:
        say("answer yes\ncancel");
        say(command.shape == 0 ? "open" : "open return");
        break;
    case Verb::Add:
        writeArticle(command);
        break;
    case Verb::Quantity:
        sayOrNote("qty" + m_positions + ' ' + typed(command.quantity), end);
        break;
    case Verb::Modify:
        note("modifiers other than the quantity are applied to position" + m_positions);
        break;
    case Verb::Storno:
        say("answer yes\nstorno" + m_positions);
        break;
    case Verb::Split:
        sayOrNote("split" + m_positions + parts, end);
        break;
    case Verb::Unite:
        sayOrNote("unite" + m_positions, end);
        break;
    case Verb::Subtotal:
        writeGate(command, "subtotal");
        break;
    case Verb::Pay:
        writePay(command);
        break;
    case Verb::SoftCheck:
        say("softcheck " + std::to_string(++m_numbers));
        break;
    case Verb::Order:
        say("order " + std::to_string(++m_numbers), m_hadOrder ? End::Mistake : End::Done);
        break;
    case Verb::Setting:
        say(std::string("set PackagingControl:allowSaleEmptyTara ")
            + (command.yes ? "true" : "false"));
        break;
    case Verb::Restart:
        say("restart");
        break;
    case Verb::Reopen:
        note("the plugin is given the receipt in hand once more");
        break;
    case Verb::Switch:
        note("the register turns to the other one of its two receipts");
        break;
    case Verb::Forget:
        note("the plugin is given no receipt");
        break;
    case Verb::Publish:
        writeEvent(command);
        break;
    }
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
    if (m_wasEmpty) // and is in hand still
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
    return out;
}

} // namespace model
