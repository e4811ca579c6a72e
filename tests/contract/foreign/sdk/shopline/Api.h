#ifndef SHOPLINE_API_H
#define SHOPLINE_API_H

#define SHOPLINE_API __attribute__((visibility("default")))

namespace shopline {

/*!
 * Whether this host breaks that promise, named as the kit's check of it: SHOPLINE_BREAKS in the
 * environment says which one. What only the headers can break is chosen by macros called
 * SHOPLINE_BREAKS_… when a file is compiled.
 */
SHOPLINE_API bool breaks(const char *promise);

} // namespace shopline

#endif // SHOPLINE_API_H
