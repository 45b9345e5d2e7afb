#pragma once

#include <string>

#include "adaptors/adaptor.h"
#include "window/node.h"

namespace kvdlg {

using adaptors::Json;

/// A window's controls as they stand: id, kind, text, and what the kind has of rows, selection and
/// check.
Json Describe(kv::Node& window, const std::string& snapshot);

/// The rows of a template: id, kind, text.
Json DescribeTemplate(int templateId);

/// The text of a JSON value; bytes that JSON cannot carry are replaced.
std::string Print(const Json& value);

}  // namespace kvdlg
