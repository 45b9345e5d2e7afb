#include "support/fuzz_corpus.h"

// Each fuzz target has an entry of this name.
#define LLVMFuzzerTestOneInput BlockColumnsFuzzOneInput
#include "fuzz/block_columns_fuzz.cpp"
#undef LLVMFuzzerTestOneInput
#define LLVMFuzzerTestOneInput BlockLinesFuzzOneInput
#include "fuzz/block_lines_fuzz.cpp"
#undef LLVMFuzzerTestOneInput
#define LLVMFuzzerTestOneInput BlockFixedFuzzOneInput
#include "fuzz/block_fixed_fuzz.cpp"
#undef LLVMFuzzerTestOneInput
#define LLVMFuzzerTestOneInput BlockRelationFuzzOneInput
#include "fuzz/block_relation_fuzz.cpp"
#undef LLVMFuzzerTestOneInput

namespace {

TEST(BlockFileCorpus, ColumnsAreReadWithoutHarm) {
    test::RunCorpus("block_columns", BlockColumnsFuzzOneInput);
}

TEST(BlockFileCorpus, LinesOfTheUsersAreReadWithoutHarm) {
    test::RunCorpus("block_lines", BlockLinesFuzzOneInput);
}

TEST(BlockFileCorpus, FixedWidthsAreReadWithoutHarm) {
    test::RunCorpus("block_fixed", BlockFixedFuzzOneInput);
}

TEST(BlockFileCorpus, NeighborsAreReadWithoutHarm) {
    test::RunCorpus("block_relation", BlockRelationFuzzOneInput);
}

}  // namespace
