#include "host/Dialog.h"

template <>
QSharedPointer<Dialog> MockFactory<Dialog>::mocked{};

Dialog::Dialog() = default;
Dialog::~Dialog() = default;

bool Dialog::showQuestion(const tr::Tr &question, int kind, const tr::Tr &confirm,
                          const tr::Tr &cancel, int flags)
{
    Q_UNUSED(question)
    Q_UNUSED(kind)
    Q_UNUSED(confirm)
    Q_UNUSED(cancel)
    Q_UNUSED(flags)
    return false;
}
