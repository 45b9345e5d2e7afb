#pragma once

#include <string>
#include <vector>

#include "kvload/store.h"

namespace kvload {

/// Something in a dataset that the dialogs would stumble over.
struct Fault {
    std::string what;                ///< as "Blocks without an outline"
    std::vector<std::string> which;  ///< one or more
};

/// Reads a dataset and tells what is amiss; nothing where all is well. Throws std::runtime_error,
/// also where the dataset lacks a table.
std::vector<Fault> CheckDataset(Store& store);

}  // namespace kvload
