// The work that goes on between what a person does.

#include <gtest/gtest.h>

#include <QApplication>
#include <QSignalSpy>
#include <chrono>
#include <memory>
#include <optional>
#include <vector>

#include "support/database_helpers.h"
#include "window/blocked_windows.h"
#include "workbench/work_runner.h"

namespace workbench {
namespace {

using std::chrono::milliseconds;

class Work : public StepWork {
public:
    explicit Work(bool writes = false) : writes_(writes) {}

    std::string Title() const override { return "Work"; }
    int Done() const override { return 0; }
    int Total() const override { return 2; }
    bool Step() override {
        patience.push_back(kv::Patience());
        return more;
    }
    void Finished(bool whole) override { ended = whole; }
    bool Writes() const override { return writes_; }

    bool more = true;
    std::optional<bool> ended;  ///< whether as a whole
    std::vector<std::optional<milliseconds>> patience;

private:
    bool writes_;
};

TEST(WorkRunner, TellsWorkWhetherItWasDoneToItsEnd) {
    WorkRunner runner;
    const auto whole = std::make_shared<Work>();
    whole->more = false;
    runner.Begin(whole);
    runner.Finish();
    EXPECT_EQ(whole->ended, true);
    const auto cancelled = std::make_shared<Work>();
    runner.Begin(cancelled);
    runner.Cancel();
    EXPECT_EQ(cancelled->ended, false);
}

TEST(WorkRunner, DropsAllAndTellsOfWhatIsLost) {
    WorkRunner runner;
    const QSignalSpy idle(&runner, &WorkRunner::Idle);
    const auto reads = std::make_shared<Work>();
    const auto writes = std::make_shared<Work>(true);
    runner.Begin(writes);
    EXPECT_EQ(runner.Writing(), writes.get());
    runner.Begin(reads);
    EXPECT_EQ(runner.Writing(), writes.get()) << "what waits counts, too";
    runner.DropAll();
    EXPECT_EQ(writes->ended, false);
    EXPECT_FALSE(reads->ended);
    EXPECT_FALSE(runner.Busy());
    EXPECT_EQ(runner.Writing(), nullptr);
    EXPECT_EQ(idle.size(), 1);
}

TEST(WorkRunner, WaitsWhileAnotherLoginIsInForce) {
    test::ConnectTo({"me", "", "sqlite:/here.db"});
    WorkRunner runner;
    const auto work = std::make_shared<Work>();
    runner.Begin(work);
    test::ConnectTo({"somebody", "", "sqlite:/here.db"});
    for (int i = 0; i < 10; ++i)
        QApplication::processEvents();
    EXPECT_TRUE(work->patience.empty()) << "a step would read with that login";
    test::ConnectTo({"me", "", "sqlite:/here.db"});
    for (int i = 0; i < 10; ++i)
        QApplication::processEvents();
    EXPECT_FALSE(work->patience.empty());
    test::ConnectTo({});
}

/// Puts the patience back that was there.
class Patience {
public:
    explicit Patience(std::optional<milliseconds> patience) { kv::SetPatience(patience); }
    ~Patience() { kv::SetPatience(before_); }
    Patience(const Patience&) = delete;
    Patience& operator=(const Patience&) = delete;

private:
    std::optional<milliseconds> before_ = kv::Patience();
};

TEST(WorkRunner, ShowsNoWaitSoSoonForWorkThatNobodyWaitsFor) {
    const Patience usual(milliseconds(100));
    WorkRunner runner;
    const auto work = std::make_shared<Work>();
    runner.Begin(work);
    while (work->patience.empty())
        QApplication::processEvents();
    EXPECT_EQ(work->patience.back(), milliseconds(5000));
    EXPECT_EQ(kv::Patience(), milliseconds(100)) << "of what the person asks for";
    work->more = false;
    runner.Finish();
    EXPECT_EQ(work->patience.back(), milliseconds(100)) << "somebody waits for the end";
}

TEST(WorkRunner, ShowsNoWaitWhereNoneIsEverShown) {
    const Patience endless({});
    WorkRunner runner;
    const auto work = std::make_shared<Work>();
    runner.Begin(work);
    while (work->patience.empty())
        QApplication::processEvents();
    EXPECT_EQ(work->patience.back(), std::nullopt);
}

}  // namespace
}  // namespace workbench
