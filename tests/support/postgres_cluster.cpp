#include "support/postgres_cluster.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <utility>

namespace test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kServerUser = "postgres";

bool IsRoot() {
    return geteuid() == 0;
}

/// The newest server that is installed.
fs::path ToolFolder() {
    fs::path newest;
    int newestVersion = -1;
    for (const auto& entry : fs::directory_iterator("/usr/lib/postgresql")) {
        const int version = std::atoi(entry.path().filename().c_str());
        if (version <= newestVersion || !fs::exists(entry.path() / "bin" / "initdb")) continue;
        newest = entry.path() / "bin";
        newestVersion = version;
    }
    if (newest.empty()) throw std::runtime_error("No PostgreSQL server is installed");
    return newest;
}

std::string MakeFolder() {
    std::string folder = (fs::temp_directory_path() / "kvpg-XXXXXX").string();
    if (!mkdtemp(folder.data())) throw std::runtime_error("Cannot make the folder " + folder);
    if (!IsRoot()) return folder;
    const passwd* user = getpwnam(kServerUser);
    if (!user || chown(folder.c_str(), user->pw_uid, user->pw_gid) != 0)
        throw std::runtime_error("Cannot give the folder to the user \"postgres\"");
    return folder;
}

/// The folder as the host of a URL.
std::string EncodedSlashes(const std::string& path) {
    std::string encoded;
    for (const char ch : path)
        encoded += ch == '/' ? "%2F" : std::string(1, ch);
    return encoded;
}

}  // namespace

PostgresCluster::PostgresCluster() : PostgresCluster(nullptr) {}

PostgresCluster::PostgresCluster(const PostgresCluster* primary) : folder_(MakeFolder()) {
    try {
        MakeData(primary);
    } catch (...) {
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
        throw;
    }
}

void PostgresCluster::MakeData(const PostgresCluster* primary) {
    if (primary) {
        RunTool("pg_basebackup",
                "-D data -R -X stream -c fast --no-sync -U kv -h '" + primary->folder_ + "'");
        Start();
        return;
    }
    RunTool("initdb", "-D data -U kv --auth=trust -E UTF8 --locale=C --no-sync");
    std::ofstream(folder_ + "/data/pg_hba.conf")
        << "local all guarded scram-sha-256\nlocal all all trust\nlocal replication all trust\n";
    Start();
    RunTool("psql", "-h '" + folder_ +
                        "' -U kv -d postgres -q -c \"create role guarded login password '" +
                        kGuardedPassword + "'\"");
}

PostgresCluster::~PostgresCluster() {
    if (folder_.empty()) return;
    try {
        Stop();
    } catch (const std::exception&) {
        // It was stopped already.
    }
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

void PostgresCluster::Start() {
    RunTool("pg_ctl",
            "-D data -w -s -l server.log -o \"-F -c listen_addresses= "
            "-c unix_socket_directories='" +
                folder_ + "' -c max_connections=60 -c shared_buffers=16MB\" start");
}

void PostgresCluster::Kill() {
    RunTool("pg_ctl", "-D data -w -s -m immediate stop");
}

void PostgresCluster::Promote() {
    RunTool("pg_ctl", "-D data -w -s promote");
}

std::string PostgresCluster::Host() const {
    return EncodedSlashes(folder_);
}

void PostgresCluster::Stop() {
    RunTool("pg_ctl", "-D data -w -s -m fast stop");
}

std::string PostgresCluster::Url(const std::string& database, const std::string& user,
                                 const std::string& password) const {
    const std::string secret = password.empty() ? "" : ":" + password;
    return "postgresql://" + user + secret + "@" + Host() + "/" + database;
}

std::string PostgresCluster::Release() {
    return std::exchange(folder_, {});
}

void PostgresCluster::RunTool(const std::string& tool, const std::string& arguments) const {
    const std::string log = folder_ + "/" + tool + ".log";
    const std::string run = "'" + (ToolFolder() / tool).string() + "' " + arguments;
    const std::string as = IsRoot() ? std::string("setpriv --reuid=") + kServerUser +
                                          " --regid=" + kServerUser + " --init-groups "
                                    : "";
    const std::string command =
        "cd '" + folder_ + "' && " + as + run + " >'" + log + "' 2>&1 </dev/null";
    if (std::system(command.c_str()) == 0) return;
    std::ifstream said(log);
    throw std::runtime_error(tool +
                             " failed: " + std::string(std::istreambuf_iterator<char>(said), {}));
}

}  // namespace test
