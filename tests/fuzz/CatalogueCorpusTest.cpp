#include "fuzz/CatalogueRun.h"
#include "tests/fuzz/Corpus.h"

TEST(CatalogueCorpus, EachInput_IsReadOrRefused)
{
    replay("catalogue", fuzz::readCatalogue);
}
