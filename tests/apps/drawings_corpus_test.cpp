#include "support/fuzz_corpus.h"

// Each fuzz target has an entry of this name.
#define LLVMFuzzerTestOneInput DrawingsFuzzOneInput
#include "fuzz/drawings_fuzz.cpp"
#undef LLVMFuzzerTestOneInput

namespace {

TEST(DrawingsCorpus, IsReadWithoutHarm) {
    test::RunCorpus("drawings", DrawingsFuzzOneInput);
}

}  // namespace
