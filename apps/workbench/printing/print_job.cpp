#include "workbench/printing/print_job.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "workbench/printing/page_painter.h"

namespace workbench {

namespace {

int Shown(std::int64_t count) {
    return static_cast<int>(std::min<std::int64_t>(count, std::numeric_limits<int>::max()));
}

}  // namespace

PrintJob::PrintJob(PrintPlan plan, std::unique_ptr<PageSink> sink,
                   std::function<void(const PrintEnd&)> ended)
    : plan_(std::move(plan)), sink_(std::move(sink)), ended_(std::move(ended)) {}

int PrintJob::Done() const {
    return Shown(next_);
}

int PrintJob::Total() const {
    return Shown(plan_.grid.Count());
}

bool PrintJob::Step() {
    bool written =
        sink_->Page([this](Paper& paper) { end_.leftOut << DrawPage(plan_, next_, paper); });
    if (written && ++next_ < plan_.grid.Count()) return true;
    written = written && sink_->End();
    end_.whole = written;
    if (!written) end_.failure = sink_->Error();
    end_.leftOut.removeDuplicates();
    return false;
}

void PrintJob::Finished(bool) {
    sink_.reset();
    ended_(end_);
}

}  // namespace workbench
