#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

#include "workbench/printing/page_sink.h"
#include "workbench/printing/print_plan.h"
#include "workbench/step_work.h"

namespace workbench {

/// How the writing of pages has ended.
struct PrintEnd {
    bool whole = false;   ///< every page was written; otherwise it failed or was cancelled
    QString failure;      ///< empty where it did not fail
    QStringList leftOut;  ///< what is set into the map and had no room, each once
};

/// Writes the pages of a plan, one in each step.
class PrintJob final : public StepWork {
public:
    PrintJob(PrintPlan plan, std::unique_ptr<PageSink> sink,
             std::function<void(const PrintEnd&)> ended);

    std::string Title() const override { return "Writing the pages"; }
    int Done() const override;
    int Total() const override;
    bool Step() override;
    void Finished(bool whole) override;
    bool Writes() const override { return true; }

private:
    PrintPlan plan_;
    std::unique_ptr<PageSink> sink_;
    std::function<void(const PrintEnd&)> ended_;
    std::int64_t next_ = 0;
    PrintEnd end_;
};

}  // namespace workbench
