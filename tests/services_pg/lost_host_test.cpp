// A query that a person cancels when the server's host has gone without a word.

#include <arpa/inet.h>
#include <gmock/gmock.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>
#include <vector>

#include "frame/kvcom/cancelled.h"
#include "frame/module.h"
#include "services/kvdbkvn/session_pool.h"
#include "support/database_helpers.h"
#include "support/dialog_fixture.h"
#include "support/postgres_database.h"
#include "window/acting/wait_scene.h"
#include "window/blocked_windows.h"
#include "window/frames/frame_wnd.h"

namespace test {
namespace {

using std::chrono::steady_clock;

/// A way over TCP to a server that listens at a socket of this machine. Once it is broken, no byte
/// goes either way, and nobody else is let in or turned away.
class Line {
public:
    explicit Line(const std::string& server) : listening_(socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address = Here();
        if (bind(listening_, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
            listen(listening_, 0) != 0)
            throw std::runtime_error("Cannot listen");
        relay_ = std::thread([this, server] { Relay(server); });
    }
    ~Line() {
        Stop();
        for (const int end : ends_)
            close(end);
        close(listening_);
    }
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    int Port() const {
        sockaddr_in address{};
        socklen_t length = sizeof address;
        getsockname(listening_, reinterpret_cast<sockaddr*>(&address), &length);
        return ntohs(address.sin_port);
    }

    void Break() {
        Stop();
        // Whoever comes when the queue is full is not heard.
        for (int i = 0; i < 4; ++i) {
            sockaddr_in address = Here();
            address.sin_port = htons(static_cast<std::uint16_t>(Port()));
            const int waiting = socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0);
            connect(waiting, reinterpret_cast<sockaddr*>(&address), sizeof address);
            ends_.push_back(waiting);
        }
    }

private:
    static sockaddr_in Here() {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        return address;
    }

    void Stop() {
        broken_ = true;
        if (relay_.joinable()) relay_.join();
    }

    /// Ends stand in pairs that pass on to each other.
    void Relay(const std::string& server) {
        while (!broken_) {
            std::vector<pollfd> polled{{listening_, POLLIN, 0}};
            for (const int end : ends_)
                polled.push_back({end, POLLIN, 0});
            constexpr int kBetweenLooks = 5;
            if (poll(polled.data(), polled.size(), kBetweenLooks) <= 0) continue;
            if (polled[0].revents) LetIn(server);
            for (std::size_t i = 1; i < polled.size(); ++i)
                if (polled[i].revents) PassOn(i - 1);
        }
    }

    void LetIn(const std::string& server) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        server.copy(address.sun_path, sizeof(address.sun_path) - 1);
        const int out = socket(AF_UNIX, SOCK_STREAM, 0);
        connect(out, reinterpret_cast<sockaddr*>(&address), sizeof address);
        ends_.push_back(accept(listening_, nullptr, nullptr));
        ends_.push_back(out);
    }

    void PassOn(std::size_t from) {
        std::array<char, 4096> bytes{};
        const ssize_t count = read(ends_[from], bytes.data(), bytes.size());
        if (count > 0 && write(ends_[from ^ 1], bytes.data(), static_cast<std::size_t>(count)) < 0)
            broken_ = true;
    }

    int listening_;
    std::vector<int> ends_;
    std::atomic<bool> broken_ = false;
    std::thread relay_;
};

class LostHost : public DialogTest {
protected:
    LostHost() {
        InitControlDll();
        database_.Run(
            "create table kvt (a text); insert into kvt values ('x');"
            "create view slow as select kvt.a from kvt, pg_sleep(600)");
        frame_.Create("Host");
        frame_.ShowWindow(SW_SHOW);
        kv::db::SessionPool::Instance().Clear();
        kv::SetPatience(std::chrono::milliseconds(50));
    }
    ~LostHost() override { kv::db::SessionPool::Instance().Clear(); }

    PostgresDatabase database_;
    CFrameWnd frame_;
    CKvDbAbsDataMgr manager_{1};
};

TEST_F(LostHost, ACancelledQueryIsGivenUpWithoutWaitingForIt) {
    Line line(database_.SocketFolder() + "/.s.PGSQL.5432");
    const std::string user = database_.Url().substr(0, database_.Url().find('@') + 1);
    const std::string url =
        user + "127.0.0.1:" + std::to_string(line.Port()) + "/" + database_.Name();
    ConnectTo(CKvDbInfo("", "", url.c_str()));
    manager_.Connect();
    manager_.Select("select a from kvt");
    EXPECT_STREQ(manager_.GetItem(0, 0), "x");
    steady_clock::time_point cancelled;
    kv::ExpectWait(desktop, [&](kv::User& wait) {
        line.Break();
        cancelled = steady_clock::now();
        wait.Click(IDCANCEL);
    });
    EXPECT_THROW(manager_.Select("select a from slow"), CKvCancelled);
    // The client library alone waits half a minute for an answer to its call.
    EXPECT_LT(steady_clock::now() - cancelled, std::chrono::seconds(15));
    ConnectTo(CKvDbInfo("", "", database_.Url().c_str()));
    manager_.Connect();
    EXPECT_EQ(manager_.Select("select a from kvt"), 1);
}

}  // namespace
}  // namespace test
