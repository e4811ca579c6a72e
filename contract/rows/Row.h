#ifndef CONTRACT_ROWS_ROW_H
#define CONTRACT_ROWS_ROW_H

//! Whether a row of the file is compiled: all of them, or the one that ONLY_ROW names.
#if defined(ONLY_ROW)
#    define ROW(number) (ONLY_ROW == (number))
#else
#    define ROW(number) 1
#endif

#endif // CONTRACT_ROWS_ROW_H
