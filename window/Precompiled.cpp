// Carries the precompiled header of the window's modules.
