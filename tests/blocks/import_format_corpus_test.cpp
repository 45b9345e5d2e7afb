#include <gtest/gtest.h>

#include "support/fuzz_corpus.h"

// Each fuzz target has an entry of this name.
#define LLVMFuzzerTestOneInput ImportFormatFuzzOneInput
#include "fuzz/import_format_fuzz.cpp"
#undef LLVMFuzzerTestOneInput

namespace {

TEST(ImportFormatCorpus, IsReadWithoutHarm) {
    test::RunCorpus("import_format", &ImportFormatFuzzOneInput);
}

}  // namespace
