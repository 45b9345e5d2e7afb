#include "support/fuzz_corpus.h"

// Each fuzz target has an entry of this name.
#define LLVMFuzzerTestOneInput VertexRowFuzzOneInput
#include "fuzz/vertex_row_fuzz.cpp"
#undef LLVMFuzzerTestOneInput

namespace {

TEST(VertexRowCorpus, IsReadWithoutHarm) {
    test::RunCorpus("vertex_row", VertexRowFuzzOneInput);
}

}  // namespace
