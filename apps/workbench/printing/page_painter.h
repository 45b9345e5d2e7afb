#pragma once

#include "workbench/printing/paper.h"
#include "workbench/printing/print_plan.h"

namespace workbench {

/// Draws a page of the plan, counted from 0, on a sheet whose upper left corner is the origin.
void DrawPage(const PrintPlan& plan, std::int64_t page, Paper& paper);

}  // namespace workbench
