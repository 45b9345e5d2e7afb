#include <gtest/gtest.h>

#include "support/fuzz_corpus.h"

// Each fuzz target has an entry of this name.
#define LLVMFuzzerTestOneInput IniFileFuzzOneInput
#include "fuzz/ini_file_fuzz.cpp"
#undef LLVMFuzzerTestOneInput

namespace {

TEST(IniFileCorpus, IsReadAndWrittenWithoutHarm) {
    test::RunCorpus("ini_file", IniFileFuzzOneInput);
}

}  // namespace
