// Work of the workbench whose query the person has cancelled.

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <memory>
#include <optional>

#include "frame/kvcom/cancelled.h"
#include "workbench/failure_words.h"
#include "workbench/work_runner.h"

namespace workbench {
namespace {

/// Its first step is cancelled.
class CancelledWork : public StepWork {
public:
    std::string Title() const override { return "Work"; }
    int Done() const override { return 0; }
    int Total() const override { return 2; }
    bool Step() override { throw CKvCancelled(); }
    void Finished(bool whole) override { ended = whole; }

    std::optional<bool> ended;
};

TEST(CancelledQuery, EndsItsWorkWithWhatThereIsAndNothingIsTold) {
    WorkRunner runner;
    const QSignalSpy failed(&runner, &WorkRunner::Failed);
    const QSignalSpy idle(&runner, &WorkRunner::Idle);
    const auto work = std::make_shared<CancelledWork>();
    runner.Begin(work);
    runner.Finish();
    EXPECT_EQ(work->ended, false) << "it is not whole";
    EXPECT_TRUE(failed.isEmpty());
    EXPECT_EQ(idle.size(), 1);
    EXPECT_FALSE(runner.Busy());
}

TEST(CancelledQuery, IsNoFailureToTellOf) {
    EXPECT_EQ(FailureWords(CKvCancelled()), QString());
    EXPECT_EQ(FailureWords(CKvException("no such table", "select 1")),
              "Database error: no such table\n\nselect 1");
}

}  // namespace
}  // namespace workbench
