#include "window/scripts/ScriptPanel.h"

#include "till/language/TillMessages.h"
#include "window/look/Paints.h"

#include <QtCore/QFileInfo>
#include <QtGui/QFontDatabase>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTableView>

namespace till {

namespace {

QString scriptsFilter()
{
    return QStringLiteral("*.till");
}

//! The folder of the sample scripts, which lie beside the sample catalogue; empty without them.
QString scriptsBeside(const QString &catalogue)
{
    const QFileInfo folder(QFileInfo(catalogue).absolutePath() + QStringLiteral("/scripts"));
    return folder.isDir() ? folder.filePath() : QString();
}

} // namespace

ScriptPanel::ScriptPanel(CashDesk &desk, Notes &notes, const Translator &translator,
                         QWidget *parent)
    : QWidget(parent)
    , chooseScript([this](QWidget *window, const QString &title) {
        return QFileDialog::getOpenFileName(window, title, m_folder, scriptsFilter());
    })
    , chooseTarget([this](QWidget *window, const QString &title) {
        QFileDialog dialog(window, title, m_folder, scriptsFilter());
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setDefaultSuffix(QStringLiteral("till"));
        return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
    })
    , confirmLoss([](QWidget *window, const QString &question) {
        return QMessageBox::question(window, window->window()->windowTitle(), question)
               == QMessageBox::Yes;
    })
    , atWork([](const std::function<void()> &line) { line(); })
    , m_translator(translator)
    , m_folder(scriptsBeside(desk.setup().catalogue))
    , m_player(desk, notes, m_translator,
               [this](const QString &text) { m_printed->appendPlainText(text); })
    , m_recording(desk, notes)
    , m_model(translator)
    , m_open(makeButton("scriptOpen", &ScriptPanel::open))
    , m_run(makeButton("scriptRun", &ScriptPanel::run))
    , m_step(makeButton("scriptStep", &ScriptPanel::step))
    , m_runToLine(makeButton("scriptRunToLine", &ScriptPanel::runToLine))
    , m_rewind(makeButton("scriptRewind", &ScriptPanel::rewind))
    , m_record(makeButton("scriptRecord", &ScriptPanel::record))
    , m_save(makeButton("scriptSave", &ScriptPanel::save))
    , m_lines(new QTableView)
    , m_printed(new QPlainTextEdit)
    , m_status(new QLabel)
{
    m_lines->setObjectName("scriptLines");
    m_printed->setObjectName("scriptPrinted");
    m_status->setObjectName("scriptStatus");
    connect(&m_timer, &QTimer::timeout, this, [this] { tick(); });
    layOut();
    tellTexts();
}

QPushButton *ScriptPanel::makeButton(const char *name, void (ScriptPanel::*click)())
{
    auto *const button = new QPushButton(this);
    button->setObjectName(name);
    button->setMinimumHeight(touchHeight);
    connect(button, &QPushButton::clicked, this, [this, click] { (this->*click)(); });
    return button;
}

void ScriptPanel::layOutLines()
{
    m_lines->setModel(&m_model);
    m_lines->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_lines->setSelectionMode(QAbstractItemView::SingleSelection);
    m_lines->setTabKeyNavigation(false);
    m_lines->setShowGrid(false);
    m_lines->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_lines->verticalHeader()->hide();
    m_lines->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_lines->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_lines->horizontalHeader()->setStretchLastSection(true);
    // Enter ends what a scanner types, and some desktops activate with one click.
    connect(m_lines, &QTableView::doubleClicked, this, [this] { runToLine(); });
    connect(m_lines->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { tellState(); });
}

void ScriptPanel::layOut()
{
    constexpr int printedLines = 2000;
    layOutLines();
    m_printed->setReadOnly(true);
    m_printed->setTabChangesFocus(true);
    m_printed->setMaximumBlockCount(printedLines);
    m_printed->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_printed->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_status->setWordWrap(true);

    auto *const all = new QGridLayout(this);
    const QList<QPushButton *> buttons{m_open,   m_run,    m_step, m_runToLine,
                                       m_rewind, m_record, m_save};
    constexpr int columns = 3;
    for (int i = 0; i < buttons.size(); ++i)
        all->addWidget(buttons[i], i / columns, i % columns);
    auto *const parts = new QSplitter(Qt::Vertical);
    parts->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // content with its least
    parts->addWidget(m_lines);
    parts->addWidget(m_printed);
    parts->setStretchFactor(0, 2);
    parts->setStretchFactor(1, 1);
    const int below = all->rowCount();
    all->addWidget(m_status, below, 0, 1, columns);
    all->addWidget(parts, below + 1, 0, 1, columns);
    all->setRowStretch(below + 1, 1);
}

void ScriptPanel::translate(const Translator &translator)
{
    m_translator = translator;
    m_model.translate(translator);
    tellTexts();
}

bool ScriptPanel::mayDropRecording()
{
    return !m_recording.isUnsaved()
           || confirmLoss(this,
                          m_translator.text(told("till", "The recording is not saved. Drop it?")));
}

void ScriptPanel::open()
{
    if (!mayDropRecording())
        return;
    const QString path = chooseScript(this, m_translator.text(told("till", "Open a script")));
    if (!path.isEmpty())
        showScript(path);
}

void ScriptPanel::showScript(const QString &path)
{
    if (const Result<> read = m_player.open(path); !read)
        return tell(read.error().text());
    m_folder = QFileInfo(path).absolutePath();
    m_model.show(m_player.script().lines(), m_player.script().path());
    m_printed->clear();
    tell({});
    mark();
}

void ScriptPanel::run()
{
    if (m_timer.isActive())
        return pause();
    if (m_player.hasEnded())
        rewind();
    m_until = -1;
    m_timer.start();
    tell({});
}

void ScriptPanel::runToLine()
{
    if (!m_runToLine->isEnabled())
        return;
    m_until = m_lines->currentIndex().row();
    m_timer.start();
    tell({});
}

void ScriptPanel::step()
{
    if (m_player.hasEnded())
        rewind();
    tell(carryOutNext() ? QString() : m_translator.text(messages::tillBusy()));
    mark();
}

bool ScriptPanel::carryOutNext()
{
    bool isDone = false;
    atWork([&] { isDone = m_player.step(); });
    return isDone;
}

void ScriptPanel::tick()
{
    if (QApplication::activeModalWidget()) { // what is being entered is for the receipt as it is
        pause();
        return tell(m_translator.text(told("till", "Paused: something is being entered")));
    }
    if (!carryOutNext()) {
        pause();
        return tell(m_translator.text(messages::tillBusy()));
    }
    if (m_player.hasEnded() || m_player.next() == m_until)
        pause();
    mark();
}

void ScriptPanel::pause()
{
    m_timer.stop();
    tellState();
}

void ScriptPanel::rewind()
{
    m_player.rewind();
    m_printed->clear();
    m_model.show(m_player.script().lines(), m_player.script().path());
    tell({});
    mark();
}

void ScriptPanel::mark()
{
    m_model.mark(m_player.next(), m_player.fault());
    const qsizetype seen = m_player.fault() ? m_player.next() - 1 : m_player.next();
    m_lines->scrollTo(m_model.index(static_cast<int>(seen), ScriptModel::Mark));
    tellState();
}

void ScriptPanel::record()
{
    if (m_recording.isOn()) {
        if (!m_recording.stop())
            return tell(m_translator.text(messages::tillBusy()));
        return tell(m_translator.text(told("till", "Recorded: %1 lines, to be saved")
                                          .with({QString::number(m_recording.lines().size())})));
    }
    if (!mayDropRecording())
        return;
    m_player.close();
    m_model.show({});
    const bool started = m_recording.start([this] {
        m_model.append(m_recording.lines().constLast());
        m_lines->scrollToBottom();
        tellState();
    });
    tell(started ? QString() : m_translator.text(messages::tillBusy()));
}

void ScriptPanel::save()
{
    const QString path = chooseTarget(this, m_translator.text(told("till", "Save the script")));
    if (path.isEmpty())
        return;
    const auto saved = m_recording.save(path);
    if (saved)
        showScript(path);
    tell(saved ? m_translator.text(*saved) : saved.error().text());
}

void ScriptPanel::tell(const QString &text)
{
    m_told = text;
    tellState();
}

} // namespace till
