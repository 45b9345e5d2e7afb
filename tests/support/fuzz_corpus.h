#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "fuzz_corpus_folder.h"

namespace test {

/// Hands each file of a fuzz target's corpus to the target, which ends the process when something
/// is wrong, and answers 0.
inline void RunCorpus(const std::string& name, int (*target)(const std::uint8_t*, std::size_t)) {
    const auto folder = std::filesystem::path(KVGUICTL_FUZZ_CORPUS) / name;
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        files.push_back(entry.path());
    std::ranges::sort(files);
    ASSERT_FALSE(files.empty());
    for (const auto& file : files) {
        SCOPED_TRACE(file.filename());
        std::ifstream in(file, std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(in), {}};
        ASSERT_TRUE(in.good() || in.eof());
        EXPECT_EQ(target(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()), 0);
    }
}

}  // namespace test
