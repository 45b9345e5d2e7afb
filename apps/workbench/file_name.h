#pragma once

#include <string>

namespace workbench {

/// A title as the name of a file: without what paths are made of.
std::string FileNameOf(std::string title);

}  // namespace workbench
