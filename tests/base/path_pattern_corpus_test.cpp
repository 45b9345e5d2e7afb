#include "support/fuzz_corpus.h"

// Each fuzz target has an entry of this name.
#define LLVMFuzzerTestOneInput PathPatternFuzzOneInput
#include "fuzz/path_pattern_fuzz.cpp"
#undef LLVMFuzzerTestOneInput

namespace {

TEST(PathPatternCorpus, IsReadWithoutHarm) {
    test::RunCorpus("path_pattern", PathPatternFuzzOneInput);
}

}  // namespace
