#include "host/Dialog.h"

#include "contract/rows/Row.h"

namespace rowsDialog {

#if ROW(1) // MockFactory<Dialog>::create()
inline auto make()
{
    return MockFactory<Dialog>::create();
}
#endif

#if ROW(2) // Dialog::showQuestion(question, 1, confirm, cancel, 0)
inline bool ask(Dialog &dialog, const tr::Tr &text)
{
    return dialog.showQuestion(text, 1, text, text, 0);
}
#endif

} // namespace rowsDialog
