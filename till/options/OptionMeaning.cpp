#include "till/options/OptionMeaning.h"

#include "till/options/Options.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QMap>
#include <QtCore/QRegularExpression>

namespace till {

Result<> checkMeaning(const QCommandLineParser &parser, const QString &mode)
{
    static const QStringList ofTills{"", "play", "demo"};
    static const QStringList ofPlugins = ofTills + QStringList{"info"};
    static const QStringList ofPlays{"play", "demo"};
    static const QStringList ofLists{"receipts"};
    static const QMap<QString, QStringList> modes{
        {"db",
         ofTills + QStringList{"receipts", "receipt", "journal", "check", "backup", "set-apart"}},
        {"catalogue", ofTills},
        {"plugin", ofPlugins},
        {"no-plugin", ofPlugins},
        {"config", ofPlugins},
        {"set", ofPlugins},
        {"jobs", ofPlays},
        {"timeout", ofPlays},
        {"junit", ofPlays},
        {"tap", ofPlays},
        {"update", {"play"}},
        {"stop", ofPlays},
        {"json", {"receipts", "receipt", "journal"}},
        {"csv", ofLists},
        {"from", ofLists},
        {"to", ofLists},
        {"state", ofLists},
    };
    for (auto entry = modes.cbegin(); entry != modes.cend(); ++entry) {
        const QString all = entry->join(", ").replace(QRegularExpression("^, "), "the register, ");
        if (parser.isSet(entry.key()) && !entry->contains(mode))
            return Fault{"--" + entry.key(), "means something to " + all + " alone"};
    }
    return {};
}

Result<> checkOnce(const QCommandLineParser &parser)
{
    static const QStringList several{"set", "state"};
    const QList<QCommandLineOption> options = programOptions();
    for (const QCommandLineOption &option : options) {
        const QString name = option.names().constFirst();
        if (!option.valueName().isEmpty() && !several.contains(name)
            && parser.values(name).size() > 1)
            return Fault{"--" + name, "is given twice"};
    }
    return {};
}

} // namespace till
