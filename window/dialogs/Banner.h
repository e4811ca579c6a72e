#ifndef WINDOW_DIALOGS_BANNER_H
#define WINDOW_DIALOGS_BANNER_H

#include "till/language/Translator.h"

#include <QtCore/QTimer>
#include <QtWidgets/QLabel>

#include <functional>

namespace till {

/*!
 * A message across the window that cannot be overlooked, in large letters on a strong ground. It
 * goes by itself after some seconds, or when it is touched; a next message takes its place.
 */
class Banner final : public QLabel
{
public:
    enum class Tone { Notice, Warning };
    //! A message in the language of the translator.
    using Text = std::function<QString(const Translator &translator)>;

    explicit Banner(QWidget *parent = nullptr);

    void tell(const Text &text, Tone tone);
    void tell(const Message &message, Tone tone);
    void clear();
    //! What is told, now and from now on, is in the language of \a translator.
    void translate(const Translator &translator);

    //! How long a message stays, in milliseconds.
    void setLifetime(int milliseconds) { m_timer.setInterval(milliseconds); }
    bool isTelling() const { return !text().isEmpty(); }

    //! Told when a message came, true, or went.
    std::function<void(bool isTelling)> changed;

protected:
    void mousePressEvent(QMouseEvent *event) override;

private:
    void showText();

    Translator m_translator;
    Text m_text;
    QTimer m_timer;
};

} // namespace till

#endif // WINDOW_DIALOGS_BANNER_H
