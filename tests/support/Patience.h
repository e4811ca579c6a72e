#ifndef TESTS_SUPPORT_PATIENCE_H
#define TESTS_SUPPORT_PATIENCE_H

//! How long a test waits for what must come, in milliseconds: longer than ctest lets it run, which
//! so ends what hangs. A starved machine is no fault of what is tested.
constexpr int patience = 3'600'000;

#endif // TESTS_SUPPORT_PATIENCE_H
