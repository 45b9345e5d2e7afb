#include "base/text.h"
#include "frame/kvcom/ut_registry.h"
#include "frame/kvdbkvn/db_dataset_set.h"

namespace {

constexpr const char* kPath = "SOFTWARE\\KVI";
constexpr const char* kOwnersPath = "SOFTWARE\\KVI\\Datasets";

/// What was made current for the process; "" for what the registry says.
std::string& Owner() {
    static std::string owner;
    return owner;
}

std::string& Dataset() {
    static std::string dataset;
    return dataset;
}

std::string CurrentOr(const std::string& current, const char* key) {
    return current.empty() ? CKvUtRegistry().GetRegistry(kPath, key, true) : current;
}

}  // namespace

std::string CKvDbDatasetSet::S_GetGlobalOwner() {
    return CurrentOr(Owner(), "DATASET_OWNER");
}

std::string CKvDbDatasetSet::S_GetGlobalDataset() {
    return CurrentOr(Dataset(), "DATASET");
}

void CKvDbDatasetSet::S_SetGlobalOwner(const std::string& owner) {
    Owner() = owner;
}

void CKvDbDatasetSet::S_SetGlobalDataset(const std::string& dataset) {
    Dataset() = dataset;
}

std::string CKvDbDatasetSet::GetDSOwner(E_DATASET_INDEX index, const std::string& dataset) const {
    const std::string entry = kv::FormatText("%s.%d", dataset.c_str(), static_cast<int>(index));
    const std::string owner = CKvUtRegistry().GetRegistry(kOwnersPath, entry, true);
    return owner.empty() ? S_GetGlobalOwner() : owner;
}
