#ifndef WINDOW_DIALOGS_BANNER_H
#define WINDOW_DIALOGS_BANNER_H

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

    explicit Banner(QWidget *parent = nullptr);

    void tell(const QString &text, Tone tone);
    void clear();

    //! How long a message stays, in milliseconds.
    void setLifetime(int milliseconds) { m_timer.setInterval(milliseconds); }
    bool isTelling() const { return !text().isEmpty(); }

    //! Told when a message came, true, or went.
    std::function<void(bool isTelling)> changed;

protected:
    void mousePressEvent(QMouseEvent *event) override;

private:
    QTimer m_timer;
};

} // namespace till

#endif // WINDOW_DIALOGS_BANNER_H
