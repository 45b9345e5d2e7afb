#include "services_pg/line.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <stdexcept>

namespace test {
namespace {

sockaddr_in Here() {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

}  // namespace

Line::Line(const PostgresDatabase& database)
    : user_(database.Url().substr(0, database.Url().find('@') + 1)),
      database_(database.Name()),
      server_(database.SocketFolder() + "/.s.PGSQL.5432"),
      listening_(socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in address = Here();
    if (bind(listening_, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
        listen(listening_, 0) != 0)
        throw std::runtime_error("Cannot listen");
    relay_ = std::thread([this] { Relay(); });
}

Line::~Line() {
    Stop();
    for (const int end : ends_)
        close(end);
    close(listening_);
}

std::string Line::Url() const {
    return user_ + "127.0.0.1:" + std::to_string(Port()) + "/" + database_;
}

int Line::Port() const {
    sockaddr_in address{};
    socklen_t length = sizeof address;
    getsockname(listening_, reinterpret_cast<sockaddr*>(&address), &length);
    return ntohs(address.sin_port);
}

void Line::Break() {
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

void Line::Stop() {
    broken_ = true;
    if (relay_.joinable()) relay_.join();
}

void Line::Relay() {
    while (!broken_) {
        std::vector<pollfd> polled{{listening_, POLLIN, 0}};
        for (const int end : ends_)
            polled.push_back({end, POLLIN, 0});
        constexpr int kBetweenLooks = 5;
        if (poll(polled.data(), polled.size(), kBetweenLooks) <= 0) continue;
        if (polled[0].revents) LetIn();
        for (std::size_t i = 1; i < polled.size(); ++i)
            if (polled[i].revents) PassOn(i - 1);
    }
}

void Line::LetIn() {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    server_.copy(address.sun_path, sizeof(address.sun_path) - 1);
    const int out = socket(AF_UNIX, SOCK_STREAM, 0);
    connect(out, reinterpret_cast<sockaddr*>(&address), sizeof address);
    ends_.push_back(accept(listening_, nullptr, nullptr));
    ends_.push_back(out);
}

void Line::PassOn(std::size_t from) {
    std::array<char, 4096> bytes{};
    const ssize_t count = read(ends_[from], bytes.data(), bytes.size());
    if (count <= 0) return;
    const bool serverSpeaks = from % 2 == 1;
    if (serverSpoke_ && !serverSpeaks) ++turns_;
    serverSpoke_ = serverSpeaks;
    if (write(ends_[from ^ 1], bytes.data(), static_cast<std::size_t>(count)) < 0) broken_ = true;
}

}  // namespace test
