#include "fuzz/TillRun.h"
#include "tests/fuzz/Corpus.h"

TEST(TillCorpus, EachInput_IsPlayedOrRefused)
{
    replay("till", fuzz::playScript);
}
