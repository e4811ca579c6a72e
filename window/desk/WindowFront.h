#ifndef WINDOW_DESK_WINDOWFRONT_H
#define WINDOW_DESK_WINDOWFRONT_H

#include "till/actions/Front.h"
#include "till/language/Translator.h"
#include "window/desk/TopStrip.h"

namespace till {

//! Asks the cashier in a dialog of the window, and shows messages in its strip.
class WindowFront final : public Front
{
public:
    //! All must outlive it; \a translator may change its language.
    WindowFront(QWidget &window, TopStrip &strip, const Translator &translator)
        : m_window(window)
        , m_strip(strip)
        , m_translator(translator)
    {
    }

    bool ask(const Question &question) override;
    void show(const tr::Tr &message) override;

    //! What the questions from now on are about; empty when they say it themselves.
    void setAbout(const Message &about) { m_about = about; }

private:
    QWidget &m_window;
    TopStrip &m_strip;
    const Translator &m_translator;
    Message m_about;
};

} // namespace till

#endif // WINDOW_DESK_WINDOWFRONT_H
