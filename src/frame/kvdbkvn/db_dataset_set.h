#pragma once

#include <string>

#include "base/export.h"

/// Index of a dataset in the set. 3 is the well header dataset; the offshore dataset is 0.
enum E_DATASET_INDEX : int { KV_DATASET_OFFSHORE = 0, KV_DATASET_WELL_HEADER = 3 };

/// The datasets that are installed, and which one is current. Process-wide.
class KVGUICTL_API CKvDbDatasetSet {
public:
    /// Schema owner of the current dataset: prefixes every table name. From the registry entry
    /// "DATASET_OWNER", "NORVADON" where that is missing.
    static std::string S_GetGlobalOwner();

    /// Name stem of the current dataset: tables are named stem + "_connam2", "_lbi", "_lbv". From
    /// the registry entry "DATASET", "GULF_MEXICO" where that is missing.
    static std::string S_GetGlobalDataset();

    /// Make another dataset current, for the rest of the process. An empty text goes back to what
    /// the registry says.
    static void S_SetGlobalOwner(const std::string& owner);
    static void S_SetGlobalDataset(const std::string& dataset);

    /// Owner of the dataset with that name and index: the registry entry name + "." + index under
    /// "SOFTWARE\KVI\Datasets", the global owner where that is missing.
    std::string GetDSOwner(E_DATASET_INDEX index, const std::string& dataset) const;
};
