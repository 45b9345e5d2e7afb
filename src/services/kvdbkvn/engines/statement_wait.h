#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "base/export.h"
#include "window/query_waits.h"

namespace kv::db {

/// The time that a person waits for a query. Where it takes longer than they are left without a
/// sign, all windows are blocked, and one comes up by which the query can be cancelled. One within
/// another waits for nothing.
class KVGUICTL_API StatementWait {
public:
    explicit StatementWait(const std::string& sql);
    ~StatementWait();
    StatementWait(const StatementWait&) = delete;
    StatementWait& operator=(const StatementWait&) = delete;

    /// It may be so before the query runs.
    bool Cancelled() const { return cancelled_; }

    /// Engines ask it again and again while the query runs, which keeps that window alive: whether
    /// the query is to stop.
    static bool IsOver() noexcept;

private:
    using Clock = std::chrono::steady_clock;
    struct Shown;

    void LookOn();
    void Show();
    void ShowTo(const ActOnWait& act);

    StatementWait* outer_;
    Clock::time_point begun_ = Clock::now();
    Clock::time_point nextLook_ = begun_;
    std::unique_ptr<Shown> shown_;
    /// Nothing can be shown.
    bool blind_ = false;
    bool cancelled_ = false;
};

}  // namespace kv::db
