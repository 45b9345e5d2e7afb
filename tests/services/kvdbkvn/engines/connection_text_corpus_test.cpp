#include "support/fuzz_corpus.h"

// Each fuzz target has an entry of this name.
#define LLVMFuzzerTestOneInput ConnectionTextFuzzOneInput
#include "fuzz/connection_text_fuzz.cpp"
#undef LLVMFuzzerTestOneInput

namespace {

TEST(ConnectionTextCorpus, IsReadWithoutHarm) {
    test::RunCorpus("connection_text", ConnectionTextFuzzOneInput);
}

}  // namespace
