#pragma once

#include <cstddef>
#include <deque>
#include <memory>

#include "frame/kvdbkvn/db_info.h"
#include "services/kvdbkvn/engines/engine.h"

namespace kv::db {

/// Open sessions that nobody uses at the moment, so that connecting costs a look instead of a
/// login. One for the process.
class SessionPool {
public:
    static SessionPool& Instance();

    /// An idle session of that very record, if one is alive, otherwise a new one. Throws
    /// CKvException when that cannot be opened.
    std::unique_ptr<Session> Borrow(const CKvDbInfo& info);

    /// Takes a session back. What its transaction has changed is undone; it is closed if it is not
    /// alive, if a transaction may still be open in it, or if there is no memory to keep it.
    /// Otherwise the oldest idle one is closed where there are too many.
    void GiveBack(const CKvDbInfo& info, std::unique_ptr<Session> session) noexcept;

    /// Closes the idle sessions of a record whose server turned out to be gone: a client library
    /// may not know it of them yet.
    void Forget(const CKvDbInfo& info);

    /// Closes all idle sessions.
    void Clear() { idle_.clear(); }
    std::size_t Idle() const { return idle_.size(); }

private:
    struct Entry {
        CKvDbInfo info;
        std::unique_ptr<Session> session;
    };

    void CloseBeyondLimits(const CKvDbInfo& info);

    /// The one given back last stands last.
    std::deque<Entry> idle_;
};

}  // namespace kv::db
