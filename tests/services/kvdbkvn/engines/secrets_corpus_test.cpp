#include "support/fuzz_corpus.h"

// Each fuzz target has an entry of this name.
#define LLVMFuzzerTestOneInput SecretsFuzzOneInput
#include "fuzz/secrets_fuzz.cpp"
#undef LLVMFuzzerTestOneInput

namespace {

TEST(SecretsCorpus, IsReadWithoutHarm) {
    test::RunCorpus("secrets", SecretsFuzzOneInput);
}

}  // namespace
