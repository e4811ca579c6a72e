// Carries the precompiled header for the tests of the window.
