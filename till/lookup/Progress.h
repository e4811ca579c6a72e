#ifndef TILL_LOOKUP_PROGRESS_H
#define TILL_LOOKUP_PROGRESS_H

#include <QtCore/qglobal.h>

namespace till {

//! How far something long has come, in one line on standard error that is written over.
class Progress
{
public:
    //! Whether a person sees it there, and not what is told beside it.
    static bool isSeen();

    Progress() = default;
    ~Progress() { end(); }
    Q_DISABLE_COPY_MOVE(Progress)

    //! Begins; \a all is 100 %. Before that, nothing is shown.
    void start(qint64 all);
    //! So much is done.
    void show(qint64 done);
    //! Takes the line away, for something else to be told; it comes back.
    void hide();
    //! Takes the line away for good.
    void end();

private:
    qint64 m_all = 0;
    qint64 m_shown = -1; //!< percent
};

} // namespace till

#endif // TILL_LOOKUP_PROGRESS_H
