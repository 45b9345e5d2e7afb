#include "support/fuzz_corpus.h"

// Each fuzz target has an entry of this name.
#define LLVMFuzzerTestOneInput MapOutlineFuzzOneInput
#include "fuzz/map_outline_fuzz.cpp"
#undef LLVMFuzzerTestOneInput

namespace {

TEST(MapOutlineCorpus, IsReadWithoutHarm) {
    test::RunCorpus("map_outline", MapOutlineFuzzOneInput);
}

}  // namespace
