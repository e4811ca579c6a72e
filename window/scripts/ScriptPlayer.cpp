#include "window/scripts/ScriptPlayer.h"

namespace till {

ScriptPlayer::ScriptPlayer(CashDesk &desk, Notes &notes, const Translator &translator,
                           std::function<void(const QString &text)> print)
    : m_desk(desk)
    , m_notes(notes)
    , m_translator(translator)
    , m_print(std::move(print))
{
}

Result<> ScriptPlayer::open(const QString &path)
{
    Script script;
    if (Result<> read = script.read(path); !read)
        return read;
    close();
    m_script = script;
    return {};
}

void ScriptPlayer::close()
{
    rewind();
    m_script.reset();
}

void ScriptPlayer::rewind()
{
    m_play.reset();
    m_commands.reset();
    m_fault.reset();
}

bool ScriptPlayer::step()
{
    if (!m_script || m_isStepping || m_desk.isBusy() || hasEnded())
        return false;
    m_isStepping = true;
    if (!m_play) { // the settings and the receipt of now are its start
        m_commands.emplace(m_desk, m_notes, m_translator, Style(),
                           CommandLine::Person{m_print, {}, m_script->maySave()});
        m_play.emplace(*m_script, *m_commands,
                       [this](const QString &line) { m_print("> " + line); });
    }
    if (const auto played = m_play->step(); !played)
        m_fault = played.error();
    m_isStepping = false;
    return true;
}

} // namespace till
