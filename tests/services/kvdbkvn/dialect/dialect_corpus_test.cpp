#include <gtest/gtest.h>

#include "support/fuzz_corpus.h"

// Each fuzz target has an entry of this name.
#define LLVMFuzzerTestOneInput DialectFuzzOneInput
#include "fuzz/dialect_fuzz.cpp"
#undef LLVMFuzzerTestOneInput

namespace {

TEST(DialectCorpus, IsTranslatedWithoutHarm) {
    test::RunCorpus("dialect", DialectFuzzOneInput);
}

}  // namespace
