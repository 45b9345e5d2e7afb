#include "workbench/work_runner.h"

#include <QElapsedTimer>
#include <algorithm>

#include "window/held_back.h"
#include "workbench/failure_words.h"

namespace workbench {

namespace {

/// How long the windows wait at most, in milliseconds, where a step is shorter.
constexpr qint64 kTurn = 12;

}  // namespace

WorkRunner::WorkRunner(QObject* parent) : QObject(parent) {
    timer_.setInterval(0);
    connect(&timer_, &QTimer::timeout, this, &WorkRunner::Continue);
}

void WorkRunner::Begin(std::shared_ptr<StepWork> work) {
    waiting_.push_front(std::move(work));
    timer_.start();
}

void WorkRunner::Drop(const std::shared_ptr<StepWork>& work) {
    std::erase(waiting_, work);
    if (waiting_.empty()) EndCurrent();
}

void WorkRunner::Finish() {
    while (Busy())
        StepOnce();
}

void WorkRunner::Cancel() {
    if (waiting_.empty()) return;
    const auto work = waiting_.front();
    waiting_.pop_front();
    work->Finished();
    EndCurrent();
}

void WorkRunner::Continue() {
    // A message box of a failed step pumps the timer, and so does a query that somebody waits for.
    if (stepping_ || kv::HoldsBack()) return;
    QElapsedTimer elapsed;
    elapsed.start();
    while (StepOnce() && elapsed.elapsed() < kTurn) {
    }
    if (Busy()) {
        const StepWork& work = *waiting_.front();
        emit Progress(QString::fromStdString(work.Title()), work.Done(), work.Total());
    }
}

bool WorkRunner::StepOnce() {
    if (waiting_.empty()) return false;
    const auto work = waiting_.front();
    QString failure;
    bool more = false;
    stepping_ = true;
    try {
        more = work->Step();
    } catch (const CKvException& e) {
        failure = FailureWords(e);
    }
    stepping_ = false;
    if (more) return true;
    std::erase(waiting_, work);
    // What was cancelled ends with what it has.
    if (failure.isEmpty()) work->Finished();
    EndCurrent();
    if (!failure.isEmpty()) emit Failed(failure);
    return false;
}

void WorkRunner::EndCurrent() {
    if (!waiting_.empty()) return;
    timer_.stop();
    emit Idle();
}

}  // namespace workbench
