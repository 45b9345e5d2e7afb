#include <gtest/gtest.h>

#include "support/fuzz_corpus.h"

// Each fuzz target has an entry of this name.
#define LLVMFuzzerTestOneInput MaskFuzzOneInput
#include "fuzz/mask_fuzz.cpp"
#undef LLVMFuzzerTestOneInput

namespace {

TEST(MaskCorpus, IsEnteredWithoutHarm) {
    test::RunCorpus("mask", MaskFuzzOneInput);
}

}  // namespace
