// Carries the precompiled header for the tests; it has no tests of its own.
