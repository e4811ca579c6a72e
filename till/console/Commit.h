#ifndef TILL_CONSOLE_COMMIT_H
#define TILL_CONSOLE_COMMIT_H

namespace till {

//! The commit that the program was built from, with "-dirty" where files were changed since; empty
//! when it was built from something else than a clone.
extern const char *const commit;

} // namespace till

#endif // TILL_CONSOLE_COMMIT_H
