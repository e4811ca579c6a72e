#ifndef HOST_DIALOG_H
#define HOST_DIALOG_H

#include "host/HostGlobal.h"
#include "host/MockFactory.h"
#include "host/Tr.h"

//! A modal dialog with the cashier, made for one question by `MockFactory<Dialog>::create()`.
class HOST_EXPORT Dialog
{
public:
    Dialog();
    Q_DISABLE_COPY_MOVE(Dialog)

    /*!
     * Asks \a question and waits for one of two choices. True when \a confirm is taken.
     *
     * \a kind and \a flags are the host's; plugins pass 1 and 0. Without a host program there is
     * nobody to ask: this implementation answers false.
     */
    virtual bool showQuestion(const tr::Tr &question, int kind, const tr::Tr &confirm,
                              const tr::Tr &cancel, int flags);

    virtual ~Dialog();
};

template <>
HOST_EXPORT QSharedPointer<Dialog> MockFactory<Dialog>::mocked;

#endif // HOST_DIALOG_H
