// A shared library that is no Qt plugin.
extern "C" __attribute__((visibility("default"))) int nothingToSeeHere()
{
    return 0;
}
