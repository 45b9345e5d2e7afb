#include "support/fuzz_corpus.h"

// Each fuzz target has an entry of this name.
#define LLVMFuzzerTestOneInput VertexFileFuzzOneInput
#include "fuzz/vertex_file_fuzz.cpp"
#undef LLVMFuzzerTestOneInput

namespace {

TEST(VertexFileCorpus, IsReadByteByByteWithoutHarm) {
    test::RunCorpus("vertex_file", VertexFileFuzzOneInput);
}

}  // namespace
