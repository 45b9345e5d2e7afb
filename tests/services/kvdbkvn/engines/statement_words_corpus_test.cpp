#include "support/fuzz_corpus.h"

// Each fuzz target has an entry of this name.
#define LLVMFuzzerTestOneInput StatementWordsFuzzOneInput
#include "fuzz/statement_words_fuzz.cpp"
#undef LLVMFuzzerTestOneInput

namespace {

TEST(StatementWordsCorpus, IsReadWithoutHarm) {
    test::RunCorpus("statement_words", StatementWordsFuzzOneInput);
}

}  // namespace
