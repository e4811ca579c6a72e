// Carries the precompiled header of the till's modules.
