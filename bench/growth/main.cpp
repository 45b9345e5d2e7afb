// Measures on datasets of several sizes, and tells what takes longer with the size than it may.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "growth/dialogs.h"
#include "growth/figure.h"
#include "services_pg/many_users.h"
#include "support/postgres_cluster.h"

namespace {

namespace fs = std::filesystem;
using growth::Figure;

constexpr std::array kScales = {1, 3, 10};
/// What does not depend on the answer's size may grow so much from the least to the greatest; what
/// does, so much more than the answer.
constexpr double kMostGrowth = 1.3;
/// A difference of less is none, in seconds.
constexpr double kNoise = 0.001;

constexpr int kProcesses = 50;
constexpr std::chrono::seconds kAlone{15};
constexpr std::chrono::seconds kTogether{60};

fs::path Program(const char* name) {
    return fs::read_symlink("/proc/self/exe").parent_path() / name;
}

/// The same figure at each size.
struct Row {
    explicit Row(Figure figure) : first(std::move(figure)) {
        values.fill(std::numeric_limits<double>::quiet_NaN());
        answers = values;
    }
    Figure first;
    /// Not a number where it could not be measured.
    std::array<double, kScales.size()> values{};
    std::array<double, kScales.size()> answers{};

    bool IsWhole() const {
        return std::ranges::none_of(values, [](double value) { return std::isnan(value); });
    }
    double Growth() const { return values.back() / values.front(); }
    double MostGrowth() const {
        return kMostGrowth * std::max(1.0, answers.back() / answers.front());
    }
    bool IsAbove() const {
        const double greatest = *std::max_element(values.begin(), values.end());
        if (first.most > 0 && greatest > first.most) return true;
        const bool isNoise = !first.isMemory && values.back() - values.front() < kNoise;
        return first.most == 0 && !isNoise && Growth() > MostGrowth();
    }
};

class Table {
public:
    void Add(std::size_t scale, const Figure& figure) {
        const auto at = std::find_if(rows_.begin(), rows_.end(),
                                     [&](const Row& row) { return row.first.name == figure.name; });
        Row& row = at == rows_.end() ? rows_.emplace_back(figure) : *at;
        row.values[scale] = figure.value;
        row.answers[scale] = figure.answer;
    }
    /// False where something is above its bound, or was not measured.
    bool Print() const {
        bool within = true;
        std::printf("%-52s%11s%11s%11s%9s%12s\n", "", "1", "3", "10", "growth", "bound");
        for (const Row& row : rows_) {
            std::printf("%-52s", row.first.name.c_str());
            for (const double value : row.values)
                std::printf("%11s", Text(row, value).c_str());
            if (!row.IsWhole()) {
                std::printf("%9s%12s  NOT MEASURED\n", "", "");
                within = false;
                continue;
            }
            const bool isAbove = row.IsAbove();
            std::printf("%9.2f%12s%s\n", row.Growth(), BoundOf(row).c_str(),
                        isAbove ? "  ABOVE" : "");
            within = within && !isAbove;
        }
        return within;
    }

private:
    static std::string Text(const Row& row, double value) {
        if (std::isnan(value)) return "-";
        std::array<char, 32> text{};
        std::snprintf(text.data(), text.size(), row.first.isMemory ? "%.0f MiB" : "%.4g ms",
                      row.first.isMemory ? value : value * 1000);
        return text.data();
    }
    static std::string BoundOf(const Row& row) {
        if (row.first.most > 0) return Text(row, row.first.most);
        std::array<char, 32> text{};
        std::snprintf(text.data(), text.size(), "%.3g", row.MostGrowth());
        return text.data();
    }

    std::vector<Row> rows_;
};

/// Runs a program whose lines are figures. False where it failed.
bool TakeFigures(const std::string& command, std::size_t scale, Table& table) {
    FILE* lines = popen(command.c_str(), "r");
    std::array<char, 512> text{};
    while (lines && std::fgets(text.data(), text.size(), lines)) {
        std::istringstream line(text.data());
        Figure figure;
        std::getline(line, figure.name, '\t');
        if (line >> figure.value >> figure.isMemory >> figure.answer >> figure.most)
            table.Add(scale, figure);
    }
    return lines && pclose(lines) == 0;
}

void RunFailing(const std::string& command) {
    if (std::system(command.c_str()) != 0) throw std::runtime_error("This failed: " + command);
}

/// Builds a dataset, and tells how long it took and how much memory.
void Build(std::size_t scale, const fs::path& file, Table& table) {
    const std::string target = "sqlite:" + file.string();
    const std::string size = std::to_string(kScales[scale]);
    const growth::Watch watch;
    const pid_t child = fork();
    if (child == 0) {
        const fs::path program = Program("sampledata");
        execl(program.c_str(), program.c_str(), "--force", "--scale", size.c_str(), target.c_str(),
              nullptr);
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0)
        throw std::runtime_error("The dataset was not built");
    const double answer = kScales[scale];
    table.Add(scale, {"sampledata: time", watch.Seconds(), false, answer});
    table.Add(scale,
              {"sampledata: memory", static_cast<double>(usage.ru_maxrss) / 1024, true, answer});
}

/// False where some of it failed.
bool MeasureSize(std::size_t scale, const fs::path& folder, Table& table) {
    const fs::path file = folder / (std::to_string(kScales[scale]) + ".db");
    Build(scale, file, table);
    const std::string server = " 'sqlite:" + file.string() + "'";
    const bool dialogs =
        TakeFigures("'" + Program("kv_growth").string() + "' --measure" + server, scale, table);
    const bool workbench =
        TakeFigures("'" + Program("kv_growth_workbench").string() + "'" + server, scale, table);
    fs::remove(file);
    return dialogs && workbench;
}

void Print(const char* who, const test::ManyUsers& users, std::chrono::seconds time) {
    const auto picks = static_cast<double>(users.picks.size());
    std::printf(
        "%s: %.0f picks, %.1f a second, 95 of 100 within %.1f ms; %d searches, "
        "%d comments\n",
        who, picks, picks / static_cast<double>(time.count()), users.Percentile95() * 1000,
        users.searches, users.comments);
}

/// Many processes at once on one server. False where anything was lost or torn.
bool MeasureManyUsers() {
    const test::PostgresCluster cluster;
    RunFailing("'" + Program("sampledata").string() + "' '" + cluster.Url() + "' 2>/dev/null");
    const test::ManyUsers one = test::WorkAtOnce(cluster.Url(), 1, kAlone);
    const test::ManyUsers many = test::WorkAtOnce(cluster.Url(), kProcesses, kTogether);
    std::printf("\nMany at once, on %ld processors:\n", sysconf(_SC_NPROCESSORS_ONLN));
    Print("one process", one, kAlone);
    Print("50 processes", many, kTogether);
    std::printf("growth of the 95 of 100: %.1f\n", many.Percentile95() / one.Percentile95());
    for (const test::ManyUsers* each : {&one, &many})
        for (const std::string& fault : each->faults)
            std::printf("FAULT %s\n", fault.c_str());
    return one.faults.empty() && many.faults.empty();
}

bool Compare(const fs::path& folder) {
    fs::create_directories(folder);
    Table table;
    bool whole = true;
    for (std::size_t scale = 0; scale < kScales.size(); ++scale)
        whole = MeasureSize(scale, fs::absolute(folder), table) && whole;
    const bool within = table.Print();
    return MeasureManyUsers() && within && whole;
}

}  // namespace

int main(int count, char** arguments) {
    const std::string first = count > 1 ? arguments[1] : "";
    try {
        if (count == 3 && first == "--measure") {
            return growth::MeasureDialogs(arguments[2]) ? 0 : 1;
        }
        if (count == 2) return Compare(first) ? 0 : 1;
        std::fputs("usage: kv_growth FOLDER\n       kv_growth --measure SERVER\n", stderr);
        return 2;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "kv_growth: %s\n", failure.what());
        return 1;
    }
}
