#include "services/kvdbkvn/session_pool.h"

#include "services/kvdbkvn/engines/open_session.h"

#include <algorithm>
#include <new>
#include <utility>

namespace kv::db {
namespace {

constexpr std::ptrdiff_t kMostIdleOfOneRecord = 4;
constexpr std::size_t kMostIdle = 16;

}  // namespace

/// Never destroyed: who uses it may outlive a static object.
SessionPool& SessionPool::Instance() {
    static auto* const pool = new SessionPool;
    static const struct AtExit {
        ~AtExit() { std::erase_if(pool->idle_, ClosesAtExit); }
        static bool ClosesAtExit(const Entry& entry) { return entry.session->ClosesAtExit(); }
    } atExit;
    return *pool;
}

std::unique_ptr<Session> SessionPool::Borrow(const CKvDbInfo& info) {
    for (std::size_t i = idle_.size(); i-- > 0;) {
        if (idle_[i].info != info) continue;
        std::unique_ptr<Session> session = std::move(idle_[i].session);
        idle_.erase(idle_.begin() + static_cast<std::ptrdiff_t>(i));
        if (session->IsAlive()) return session;
    }
    return Open(info);
}

void SessionPool::GiveBack(const CKvDbInfo& info, std::unique_ptr<Session> session) noexcept {
    try {
        if (!session->Rollback() || !session->IsAlive()) return;
        idle_.push_back({info, std::move(session)});
        CloseBeyondLimits(info);
    } catch (const std::bad_alloc&) {
        // One that cannot be kept is closed.
    }
}

void SessionPool::Forget(const CKvDbInfo& info) {
    std::erase_if(idle_, [&](const Entry& entry) { return entry.info == info; });
}

void SessionPool::CloseBeyondLimits(const CKvDbInfo& info) {
    const auto ofRecord = [&](const Entry& entry) { return entry.info == info; };
    if (std::ranges::count_if(idle_, ofRecord) > kMostIdleOfOneRecord)
        idle_.erase(std::ranges::find_if(idle_, ofRecord));
    if (idle_.size() > kMostIdle) idle_.pop_front();
}

}  // namespace kv::db
