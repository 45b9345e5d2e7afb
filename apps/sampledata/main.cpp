#include <CLI/CLI.hpp>
#include <chrono>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

#include "sampledata/dataset.h"
#include "sampledata/digest.h"
#include "sampledata/loader_postgres.h"
#include "sampledata/loader_sqlite.h"
#include "sampledata/scaled_areas.h"

namespace {

using kv::sample::Sink;

constexpr std::string_view kSqlite = "sqlite:";

struct Request {
    std::string target;
    bool force = false;
    bool digest = false;
    int scale = 1;
};

/// Makes the dataset, tells each step with the time since the start, and prints the digest if it is
/// wanted.
void Write(Sink* sink, const Request& request) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    auto tell = [start](const std::string& step) {
        const std::chrono::duration<double> since = Clock::now() - start;
        std::fprintf(stderr, "%6.1f s  %s\n", since.count(), step.c_str());
    };
    kv::sample::Digest digest(sink);
    Sink& into = request.digest || !sink ? static_cast<Sink&>(digest) : *sink;
    kv::sample::WriteDataset(into, tell, request.scale);
    tell("all rows written");
    if (request.digest) std::printf("%s\n", digest.Text().c_str());
}

template <class Loader>
void Load(Loader& loader, const Request& request) {
    Write(&loader, request);
    loader.Finish();
}

void Build(const Request& request) {
    if (request.target.empty()) return Write(nullptr, request);

    const std::string thereAlready = " holds a dataset already; --force replaces it";
    if (request.target.starts_with(kSqlite)) {
        const std::filesystem::path path = request.target.substr(kSqlite.size());
        if (!request.force && std::filesystem::exists(path)) {
            throw std::runtime_error(path.string() + thereAlready);
        }
        kv::sample::SqliteLoader loader(path);
        Load(loader, request);
    } else {
        kv::sample::PostgresLoader loader(request.target, request.force);
        if (!request.force && loader.HasDataset()) {
            throw std::runtime_error(std::string("The schema ") + kv::sample::kOwner +
                                     thereAlready);
        }
        Load(loader, request);
    }
}

std::string CheckTarget(const std::string& target) {
    for (const std::string_view prefix :
         {kSqlite, std::string_view("postgresql://"), std::string_view("postgres://")}) {
        if (target.starts_with(prefix) && target.size() > prefix.size()) return {};
    }
    return "The target is sqlite:PATH or postgresql://...";
}

}  // namespace

int main(int argc, char** argv) {
    Request request;
    CLI::App app(
        "Builds the sample dataset: areas and blocks of the Gulf of Mexico with leases, wells,\n"
        "platforms and pipelines that are made up. It is the same every time.");
    app.add_option("target", request.target,
                   "sqlite:PATH, or postgresql://... (into the schema \"norvadon\")")
        ->check(CheckTarget);
    app.add_flag("--force", request.force, "Replace a dataset that is there already");
    app.add_flag("--digest", request.digest,
                 "Print a digest of all rows; without a target, build nothing else");
    app.add_option("--scale", request.scale,
                   "How many times the size, with the same again in other regions of the earth")
        ->check(CLI::Range(1, kv::sample::kMostScale));
    CLI11_PARSE(app, argc, argv);
    if (request.target.empty() && !request.digest) {
        std::fprintf(stderr, "%s", app.help().c_str());
        return 2;
    }
    try {
        Build(request);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "sampledata: %s\n", error.what());
        return 1;
    }
    return 0;
}
