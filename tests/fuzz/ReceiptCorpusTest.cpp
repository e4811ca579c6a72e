#include "fuzz/ReceiptRun.h"
#include "tests/fuzz/Corpus.h"

TEST(ReceiptCorpus, EachInput_KeepsWhatThePluginPromises)
{
    replay("receipt", fuzz::playReceipt);
}
