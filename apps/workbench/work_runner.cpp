#include "workbench/work_runner.h"

#include <QElapsedTimer>
#include <algorithm>
#include <chrono>
#include <optional>
#include <utility>

#include "window/blocked_windows.h"
#include "window/held_back.h"
#include "window/query_waits.h"
#include "workbench/dataset.h"
#include "workbench/failure_words.h"

namespace workbench {

namespace {

/// How long the windows wait at most, in milliseconds, where a step is shorter.
constexpr qint64 kTurn = 12;
/// How long a query of work that nobody waits for goes without the sign that blocks the windows.
constexpr std::chrono::milliseconds kPatience{5'000};

class MorePatience {
public:
    MorePatience() {
        if (before_) kv::SetPatience(std::max(*before_, kPatience));
    }
    ~MorePatience() { kv::SetPatience(before_); }
    MorePatience(const MorePatience&) = delete;
    MorePatience& operator=(const MorePatience&) = delete;

private:
    std::optional<std::chrono::milliseconds> before_ = kv::Patience();
};

/// What the workbench asks is no part of what is done in a dialog that is open meanwhile.
struct OwnQueries {
    OwnQueries() = default;
    ~OwnQueries() { kv::SetQueryWaits(std::move(others)); }
    OwnQueries(const OwnQueries&) = delete;
    OwnQueries& operator=(const OwnQueries&) = delete;

    kv::QueryWaits others = kv::SetQueryWaits({});
};

}  // namespace

WorkRunner::WorkRunner(QObject* parent) : QObject(parent) {
    timer_.setInterval(0);
    connect(&timer_, &QTimer::timeout, this, &WorkRunner::Continue);
}

void WorkRunner::Begin(std::shared_ptr<StepWork> work) {
    waiting_.push_front({std::move(work), LoginInForce()});
    timer_.start();
}

const StepWork* WorkRunner::Writing() const {
    const auto found =
        std::ranges::find_if(waiting_, [](const Job& job) { return job.work->Writes(); });
    return found == waiting_.end() ? nullptr : found->work.get();
}

void WorkRunner::Drop(const std::shared_ptr<StepWork>& work) {
    Remove(work);
    EndCurrent();
}

void WorkRunner::DropAll() {
    if (waiting_.empty()) return;
    const auto dropped = std::exchange(waiting_, {});
    for (const Job& job : dropped) {
        if (job.work->Writes()) job.work->Finished(false);
    }
    EndCurrent();
}

void WorkRunner::Finish() {
    while (Busy())
        StepOnce(Waits::kPerson);
}

void WorkRunner::Cancel() {
    if (waiting_.empty()) return;
    const auto work = waiting_.front().work;
    waiting_.pop_front();
    work->Finished(false);
    EndCurrent();
}

void WorkRunner::Continue() {
    // A message box of a failed step pumps the timer, and so does a query that somebody waits for.
    if (stepping_ || kv::HoldsBack()) return;
    if (!Busy() || waiting_.front().login != LoginInForce()) return;
    QElapsedTimer elapsed;
    elapsed.start();
    while (StepOnce(Waits::kNobody) && elapsed.elapsed() < kTurn) {
    }
    if (Busy()) {
        const StepWork& work = *waiting_.front().work;
        emit Progress(QString::fromStdString(work.Title()), work.Done(), work.Total());
    }
}

bool WorkRunner::StepOnce(Waits waits) {
    if (waiting_.empty()) return false;
    const auto work = waiting_.front().work;
    QString failure;
    bool more = false;
    bool cancelled = false;
    stepping_ = true;
    try {
        std::optional<MorePatience> patience;
        if (waits == Waits::kNobody) patience.emplace();
        const OwnQueries own;
        more = work->Step();
    } catch (const CKvException& e) {
        failure = FailureWords(e);
        cancelled = failure.isEmpty();
    }
    stepping_ = false;
    if (more) return true;
    Remove(work);
    // What was cancelled ends with what it has.
    if (failure.isEmpty()) work->Finished(!cancelled);
    EndCurrent();
    if (!failure.isEmpty()) emit Failed(failure);
    return false;
}

void WorkRunner::Remove(const std::shared_ptr<StepWork>& work) {
    std::erase_if(waiting_, [&](const Job& job) { return job.work == work; });
}

void WorkRunner::EndCurrent() {
    if (!waiting_.empty()) return;
    timer_.stop();
    emit Idle();
}

}  // namespace workbench
