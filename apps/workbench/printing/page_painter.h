#pragma once

#include <QStringList>

#include "workbench/printing/paper.h"
#include "workbench/printing/print_plan.h"

namespace workbench {

/// Draws a page of the plan, counted from 0, on a sheet whose upper left corner is the origin.
/// Answers the names of what is set into the map and had no room.
QStringList DrawPage(const PrintPlan& plan, std::int64_t page, Paper& paper);

/// Says so of what had no room; empty where all had.
QString NoRoomFor(const QStringList& leftOut);

}  // namespace workbench
