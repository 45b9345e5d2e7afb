// kvload: fills the dataset's tables from files of other programs, and checks a dataset.

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "kvload/check.h"
#include "kvload/guess.h"
#include "kvload/load.h"
#include "kvload/source_module.h"
#include "kvload/store.h"
#include "services/kvdbkvn/engines/secrets.h"

namespace {

using namespace kvload;

constexpr int kDone = 0, kFailed = 1, kSomethingAmiss = 3, kCancelled = 130;
constexpr size_t kMostLines = 20;

struct Options {
    std::vector<std::string> sources;
    std::vector<std::string> maps;
    std::string database;
    std::string layer;
    bool replace = false;
    bool all = false;
};

volatile std::sig_atomic_t interrupted = 0;

/// A second Ctrl+C ends the program at once, which leaves the database as it was, too.
void OnInterrupt(int signal) {
    interrupted = 1;
    std::signal(signal, SIG_DFL);
}

std::vector<std::string> arguments;

/// Whatever a client library repeats of a server's text, or a complaint of a misplaced one, goes
/// without the passwords in it.
void Complain(std::string words) {
    for (const std::string& argument : arguments)
        words = kv::db::Scrub(words, CKvDbInfo("", "", argument.c_str()));
    std::fputs(words.c_str(), stderr);
}

/// One line on the terminal that is written over and over; nothing where nobody looks.
class ProgressLine {
public:
    void Tell(const std::string& step, long long done, long long of) {
        if (!shown_ || (done % kEach != 0 && done != of)) return;
        const std::string total = of < 0 ? "" : " of " + std::to_string(of);
        std::fprintf(stderr, "\r\033[K%s: %lld%s", step.c_str(), done, total.c_str());
    }
    void Clear() {
        if (shown_) std::fputs("\r\033[K", stderr);
    }

private:
    static constexpr long long kEach = 500;
    bool shown_ = isatty(STDERR_FILENO) == 1;
};

void PrintList(const char* title, const std::vector<std::string>& lines, bool all) {
    if (lines.empty()) return;
    std::printf("  %s: %zu\n", title, lines.size());
    const size_t shown = all ? lines.size() : std::min(lines.size(), kMostLines);
    for (size_t i = 0; i < shown; ++i)
        std::printf("    %s\n", lines[i].c_str());
    if (shown < lines.size())
        std::printf("    and %zu more; --all lists them\n", lines.size() - shown);
}

void Print(const Outcome& outcome, bool all) {
    std::printf("%s: %lld of %lld rows loaded as %s\n", outcome.path.c_str(), outcome.loaded,
                outcome.rows, outcome.target.c_str());
    if (!outcome.system.empty()) std::printf("  places from %s\n", outcome.system.c_str());
    if (outcome.repeated > 0) std::printf("  there already: %lld\n", outcome.repeated);
    PrintList("left out", outcome.leftOut, all);
    PrintList("taken, but not as they stand", outcome.notes, all);
}

Mapping ReadMappingFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    if (!file) throw std::runtime_error("The mapping " + path + " cannot be read");
    try {
        return ReadMapping(text);
    } catch (const BadMapping& bad) {
        throw std::runtime_error(path + ": " + bad.what());
    }
}

std::vector<Job> JobsOf(const Options& options) {
    if (options.maps.size() != options.sources.size() && options.maps.size() != 1)
        throw std::runtime_error("There must be one --map for each source, or one for all");
    std::vector<Job> jobs;
    for (size_t i = 0; i < options.sources.size(); ++i)
        jobs.push_back(
            {options.sources[i], ReadMappingFile(options.maps[options.maps.size() == 1 ? 0 : i])});
    return jobs;
}

int RunLoad(const Options& options) {
    std::vector<Job> jobs = JobsOf(options);
    std::signal(SIGINT, OnInterrupt);
    const auto store = OpenStore(options.database, Purpose::kLoad);
    ProgressLine line;
    const Watcher watcher{
        [&](const std::string& step, long long done, long long of) { line.Tell(step, done, of); },
        [] { return interrupted != 0; }};
    std::vector<Outcome> outcomes;
    try {
        outcomes = Load(std::move(jobs), *store, options.replace, watcher);
    } catch (...) {
        line.Clear();
        throw;
    }
    line.Clear();
    bool whole = true;
    for (const Outcome& outcome : outcomes) {
        Print(outcome, options.all);
        whole = whole && outcome.leftOut.empty();
    }
    return whole ? kDone : kSomethingAmiss;
}

int RunGuess(const Options& options) {
    const auto layer = Open({options.sources.front(), options.layer, ""});
    const Guess guess = GuessMapping(*layer, options.layer);
    std::printf("%s", guess.json.c_str());
    for (const std::string& note : guess.notes)
        Complain("kvload: " + note + "\n");
    return kDone;
}

int RunCheck(const Options& options) {
    const auto store = OpenStore(options.database, Purpose::kCheck);
    const std::vector<Fault> faults = CheckDataset(*store);
    for (const Fault& fault : faults)
        PrintList(fault.what.c_str(), fault.which, options.all);
    if (faults.empty()) std::printf("The dataset is sound\n");
    return faults.empty() ? kDone : kSomethingAmiss;
}

/// Runs what was asked for, and sees that what it prints arrives.
int RunWhole(int (*run)(const Options&), const Options& options, const char* undone) {
    int code = kFailed;
    try {
        code = run(options);
    } catch (const Cancelled&) {
        Complain(std::string("kvload: Cancelled.") + undone + "\n");
        return kCancelled;
    } catch (const CommitUnanswered& error) {
        Complain(std::string("kvload: ") + error.what() + "\n");
        return kFailed;
    } catch (const std::exception& error) {
        std::string words = error.what();
        if (*undone && !words.ends_with('.')) words += '.';
        Complain("kvload: " + words + undone + "\n");
        return kFailed;
    }
    if (std::fflush(stdout) == 0) return code;
    std::fprintf(stderr, "kvload: The output cannot be written%s\n",
                 *undone ? ". The rows are loaded" : "");
    return kFailed;
}

}  // namespace

int main(int argc, char** argv) {
    arguments.assign(argv, argv + argc);
    Options options;
    CLI::App app(
        "Fills the dataset's tables from files of other programs: shapefiles, GeoPackages, file\n"
        "geodatabases, CSV and what else GDAL reads. A mapping says which field is what. All is\n"
        "loaded or nothing; rows that cannot be taken are listed with the reason.\n\n"
        "Ends with 0 when all is well, 1 when it failed, 3 when rows were left out or a check "
        "found\n"
        "something, 130 when it was cancelled by Ctrl+C.");
    app.require_subcommand(0, 1);
    app.add_option("source", options.sources, "The files");
    app.add_option("--map", options.maps,
                   "The mapping of each source, in their order, or one for all")
        ->allow_extra_args(false);
    app.add_option("--db", options.database, "sqlite:PATH or postgresql://...")->check(CheckServer);
    app.add_flag("--replace", options.replace, "Empty the tables that are filled, first");
    app.add_flag("--all", options.all, "List every row that is left out, not the first 20");

    CLI::App* guess =
        app.add_subcommand("guess", "Write a first mapping from the names of the fields");
    guess->add_option("file", options.sources, "The file")->required()->expected(1);
    guess->add_option("--layer", options.layer, "The table, where the file has several");
    CLI::App* check = app.add_subcommand("check", "Tell what the dialogs would stumble over");
    check->add_option("--db", options.database, "sqlite:PATH or postgresql://...")
        ->required()
        ->check(CheckServer);
    check->add_flag("--all", options.all, "List all that is found, not the first 20 of each");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        std::ostringstream complaint;
        const int code = app.exit(error, std::cout, complaint);
        Complain(complaint.str());
        return code;
    }

    if (guess->parsed()) return RunWhole(RunGuess, options, "");
    if (check->parsed()) return RunWhole(RunCheck, options, "");
    if (options.sources.empty() || options.maps.empty() || options.database.empty()) {
        std::fprintf(stderr, "%s", app.help().c_str());
        return 2;
    }
    return RunWhole(RunLoad, options, " Nothing was loaded");
}
