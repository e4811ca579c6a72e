#include "tests/model/Command.h"

#include "tests/model/ModelHost.h"

#include <algorithm>
#include <charconv>
#include <numeric>

namespace model {

// The script is written while the model runs it: only then is known which positions are meant, and
// which questions are asked.

namespace {

//! Whether the till takes such a quantity.
bool isTyped(double quantity)
{
    return quantity >= 0 && quantity <= 1e6
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

//! Whether the till carries out \a command on \a lines.
bool takes(const Command &command, const std::vector<PositionPtr> &lines)
{
    if (lines.empty())
        return true;
    const Position &first = *lines.front();
    if (command.verb == Verb::Split) {
        const double taken = std::accumulate(command.parts.begin(), command.parts.end(), 0.0);
        return lines.size() == 1 && !command.parts.empty() && taken <= first.count;
    }
    if (command.verb == Verb::Unite) {
        const auto isAlike = [&](const PositionPtr &line) {
            return line->article == first.article;
        };
        return lines.size() > 1 && std::all_of(lines.begin(), lines.end(), isAlike);
    }
    return true;
}

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
        const bool isTaken = isTyped(command) && takes(command, lines);
        m_host.run(command);
        m_positions.clear();
        for (const PositionPtr &line : lines)
            m_positions += ' ' + std::to_string(line->posnum);
        if (lines.empty() && needsPosition(command))
            return;
        writeNotes(command);
        if (!isTaken)
            note("the till takes no such command:");
        writeCommand(command);
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

    void writeNotes(const Command &command);
    void writeReplies(const Command &command);
    void writeMeanwhile(const Command &command);
    void writeCommand(const Command &command);
    void writeArticle(const Command &command);
    void writeEvent(const Command &command);
    void writeGate(const Command &command, const std::string &verb);

    std::ostream &m_out;
    ModelHost m_host;
    std::string m_positions;
    int m_numbers = 0;
};

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
    switch (command.verb) {
    case Verb::Open:
        say("answer yes\ncancel");
        say(command.shape == 0 ? "open" : "open return");
        break;
    case Verb::Add:
        writeArticle(command);
        break;
    case Verb::Quantity:
        say("qty" + m_positions + ' ' + typed(command.quantity));
        break;
    case Verb::Modify:
        note("modifiers other than the quantity are applied to position" + m_positions);
        break;
    case Verb::Storno:
        say("answer yes\nstorno" + m_positions);
        break;
    case Verb::Split:
        say("split" + m_positions + parts);
        break;
    case Verb::Unite:
        say("unite" + m_positions);
        break;
    case Verb::Subtotal:
        writeGate(command, "subtotal");
        break;
    case Verb::Pay:
        writeGate(command, "pay");
        if (m_host.wasClosed())
            say("open");
        break;
    case Verb::SoftCheck:
        say("softcheck " + std::to_string(++m_numbers));
        break;
    case Verb::Order:
        say("order " + std::to_string(++m_numbers));
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
    const auto &article = articles.at(static_cast<std::size_t>(command.which) % articles.size());
    if (!article.isInCatalogue) {
        const std::string capacity =
            article.capacityText ? article.capacityText : toText(article.capacity);
        note("catalogue: " + std::string(article.code) + ";;1,00;"
             + std::to_string(article.taraMode) + ';' + capacity + ';' + toText(article.pack)
             + ";");
    }
    say("add " + std::string(article.code) + ' ' + typed(command.quantity));
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
    if (m_host.wasAsked())
        say(command.yes ? "answer yes" : "answer no");
    say(verb);
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
