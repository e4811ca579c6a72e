#include "till/startup/SetupOptions.h"
#include "window/desk/TillWindow.h"
#include "window/program/JoinedOptions.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QLoggingCategory>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>

#include <csignal>
#include <cstdio>
#include <vector>

using namespace till;

namespace {

// As those of the console program.
enum ExitStatus { UsageError = 2, StartFailed = 3 };

int fail(ExitStatus status, const QString &text)
{
    std::fputs(qPrintable(QStringLiteral("till-window: ") + text + u'\n'), stderr);
    return status;
}

bool hasDisplay()
{
    for (const char *const variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        if (!qEnvironmentVariableIsEmpty(variable))
            return true;
    }
    return false;
}

//! The words of a command line as a toolkit wants them, which takes out what is its own.
class Words
{
public:
    explicit Words(const QByteArrayList &words)
        : m_words(withJoinedOptions(words))
    {
        for (QByteArray &word : m_words)
            m_values.push_back(word.data());
        m_values.push_back(nullptr);
    }

    int count() const { return static_cast<int>(m_words.size()); }
    char **values() { return m_values.data(); }

private:
    QByteArrayList m_words;
    std::vector<char *> m_values;
};

int run(const Setup &setup, const QString &language)
{
    prepareFolder(setup.database);
    Notes notes;
    CashDesk desk(setup, notes);
    TillWindow window(desk, notes, language);
    window.switchOn();
    // Where its frame would lead beyond the screen it takes what there is.
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    if (screen.width() > window.width() && screen.height() > window.height())
        window.show();
    else
        window.showMaximized();
    return QApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    std::signal(SIGXFSZ, SIG_IGN); // the write that is too long fails instead, and is told
    const bool isShown = hasDisplay();
    if (!isShown) // so that what is wrong can be told
        qputenv("QT_QPA_PLATFORM", "offscreen");
    Words words(QByteArrayList(argv, argv + argc));
    int count = words.count();
    const QApplication application(count, words.values());
    QCoreApplication::setApplicationName(QStringLiteral("till"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TILL_VERSION));
    QLoggingCategory::setFilterRules(QStringLiteral("packaging=false"));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("The till in a window: a small cash register with the packaging plugin."));
    parser.addOptions(setupOptions());
    parser.addOption(languageOption());
    parser.addHelpOption();
    parser.addVersionOption();
    if (!parser.parse(QCoreApplication::arguments()))
        return fail(UsageError, parser.errorText() + QStringLiteral(" Try --help."));
    parser.process(application); // help and version
    const auto setup = readSetup(parser);
    if (!setup)
        return fail(UsageError, setup.error().text());
    const auto language = readLanguage(parser);
    if (!language)
        return fail(UsageError, language.error().text());
    if (!parser.positionalArguments().isEmpty())
        return fail(UsageError, QStringLiteral("\"%1\" is one word too many")
                                    .arg(brief(parser.positionalArguments()[0])));
    if (!isShown)
        return fail(
            StartFailed,
            QStringLiteral("there is no display: neither DISPLAY nor WAYLAND_DISPLAY is set; "
                           "start it on a desktop, or as \"xvfb-run till-window\", or use "
                           "the console program, till"));
    return run(*setup, *language);
}
