#include "support/fuzz_corpus.h"

// Each fuzz target has an entry of this name.
#define LLVMFuzzerTestOneInput BlockRowsFuzzOneInput
#include "fuzz/block_rows_fuzz.cpp"
#undef LLVMFuzzerTestOneInput

namespace {

TEST(BlockRowsCorpus, IsReadWithoutHarm) {
    test::RunCorpus("block_rows", BlockRowsFuzzOneInput);
}

}  // namespace
