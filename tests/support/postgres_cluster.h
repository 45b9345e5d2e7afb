#pragma once

#include <string>

namespace test {

/// A PostgreSQL server of the test's own: a fresh cluster in a folder under the system's temporary
/// one, on a Unix socket there and on no network. Who runs as root has it run as the user
/// "postgres", since the server refuses root. A failure of its tools is thrown as
/// `std::runtime_error`, with what they said.
class PostgresCluster {
public:
    /// Makes a cluster and starts it. Everyone may connect as its superuser "kv"; the role
    /// "guarded" needs its password.
    PostgresCluster();
    /// Makes a standby of a running one, and starts it: it follows what the other commits.
    explicit PostgresCluster(const PostgresCluster* primary);
    /// Takes over one that was left running by `Release`, by its folder.
    explicit PostgresCluster(std::string folder) : folder_(std::move(folder)) {}
    PostgresCluster(const PostgresCluster&) = delete;
    PostgresCluster& operator=(const PostgresCluster&) = delete;
    /// Stops the server and removes the folder.
    ~PostgresCluster();

    void Start();
    /// At once, cutting off its clients.
    void Stop();
    /// As a machine that dies.
    void Kill();
    /// Lets a standby take changes from now on.
    void Promote();

    /// The folder as it stands in the place of a host in a URL.
    std::string Host() const;
    const std::string& Folder() const { return folder_; }
    /// The URL of one of its databases, with a user and, if there is one, a password.
    std::string Url(const std::string& database = "postgres", const std::string& user = "kv",
                    const std::string& password = "") const;

    /// Leaves the server running; returns its folder.
    std::string Release();

    static constexpr const char* kGuardedPassword = "Gulf-of-nowhere-61";

private:
    void MakeData(const PostgresCluster* primary);
    void RunTool(const std::string& tool, const std::string& arguments) const;

    std::string folder_;
};

}  // namespace test
