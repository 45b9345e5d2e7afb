#pragma once

#include <benchmark/benchmark.h>

#include <string>

/// What several benchmarks measure against.
namespace bench {

/// A file that is gone when the program ends.
class PassingFile {
public:
    explicit PassingFile(const std::string& name);
    ~PassingFile();
    PassingFile(const PassingFile&) = delete;
    PassingFile& operator=(const PassingFile&) = delete;

    const std::string& Path() const { return path_; }

private:
    std::string path_;
};

/// The sample database, built at the first call.
const std::string& SamplePath();

/// A peer's loop: runs a query on SQLite past the library, and copies the first column of its rows.
void QueryBareEngine(benchmark::State& state, const std::string& path, const std::string& sql);

}  // namespace bench
