/// Starts and stops the PostgreSQL server that a test run shares: `pg_fixture start FILE` leaves
/// its URL in FILE, on the first line, and its folder on the second; `pg_fixture stop FILE` ends
/// it.

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <string>

#include "support/postgres_cluster.h"

namespace {

namespace fs = std::filesystem;

void Stop(const fs::path& file) {
    std::string url;
    std::string folder;
    std::ifstream in(file);
    if (std::getline(in, url) && std::getline(in, folder) && fs::exists(folder))
        test::PostgresCluster{folder};
    fs::remove(file);
}

void Start(const fs::path& file) {
    Stop(file);  // one that a broken-off run has left
    fs::create_directories(file.parent_path());
    test::PostgresCluster cluster;
    const std::string url = cluster.Url();
    std::ofstream(file) << url << '\n' << cluster.Release() << '\n';
}

}  // namespace

int main(int count, char** arguments) {
    const std::string verb = count == 3 ? arguments[1] : "";
    try {
        if (verb == "start")
            Start(arguments[2]);
        else if (verb == "stop")
            Stop(arguments[2]);
        else
            throw std::runtime_error("usage: pg_fixture start|stop FILE");
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
