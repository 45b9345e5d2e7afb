#include "support/fuzz_corpus.h"

// Each fuzz target has an entry of this name.
#define LLVMFuzzerTestOneInput QualifierFileFuzzOneInput
#include "fuzz/qualifier_file_fuzz.cpp"
#undef LLVMFuzzerTestOneInput

namespace {

TEST(QualifierFileCorpus, IsReadWithoutHarm) {
    test::RunCorpus("qualifier_file", QualifierFileFuzzOneInput);
}

}  // namespace
