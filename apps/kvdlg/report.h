#pragma once

#include <string>

#include "kvdlg/records.h"
#include "window/node.h"

namespace kvdlg {

/// A window's controls as they stand: id, kind, text, and what the kind has of rows, selection and
/// check.
Json Describe(kv::Node& window, const std::string& snapshot);

/// All that is needed to write a script for a dialog.
Json DescribeDialog(const adaptors::Adaptor& adaptor);

/// What is told of a run in the end.
Json Outcome(const adaptors::Run& run, const Records& records, bool trace);

/// The text of a JSON value; bytes that JSON cannot carry are replaced.
std::string Print(const Json& value);

}  // namespace kvdlg
