#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

// Each fuzz target has an entry of this name.
#define LLVMFuzzerTestOneInput QualifierFileFuzzOneInput
#include "fuzz/qualifier_file_fuzz.cpp"
#undef LLVMFuzzerTestOneInput

namespace {

std::vector<std::filesystem::path> Corpus() {
    const auto folder = std::filesystem::path(__FILE__).parent_path().parent_path() / "fuzz" /
                        "corpus" / "qualifier_file";
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        files.push_back(entry.path());
    std::ranges::sort(files);
    return files;
}

TEST(QualifierFileCorpus, IsReadWithoutHarm) {
    const auto files = Corpus();
    ASSERT_FALSE(files.empty());
    for (const auto& file : files) {
        SCOPED_TRACE(file.filename());
        std::ifstream in(file, std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(in), {}};
        ASSERT_TRUE(in.good() || in.eof());
        EXPECT_EQ(QualifierFileFuzzOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                            bytes.size()),
                  0);
    }
}

}  // namespace
