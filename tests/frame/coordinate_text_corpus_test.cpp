#include <gtest/gtest.h>

#include "support/fuzz_corpus.h"

// Each fuzz target has an entry of this name.
#define LLVMFuzzerTestOneInput CoordinateTextFuzzOneInput
#include "fuzz/coordinate_text_fuzz.cpp"
#undef LLVMFuzzerTestOneInput

namespace {

TEST(CoordinateTextCorpus, IsReadWithoutHarm) {
    test::RunCorpus("coordinate_text", CoordinateTextFuzzOneInput);
}

}  // namespace
