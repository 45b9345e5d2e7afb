#include <gtest/gtest.h>

#include "frame/kvdbkvn/db_dataset_set.h"
#include "support/temp_folder.h"

namespace {

using test::TempFolder;

TEST(DatasetSet, AFreshMachineHasTheGulfOfMexico) {
    const TempFolder folder;
    EXPECT_EQ(CKvDbDatasetSet::S_GetGlobalOwner(), "NORVADON");
    EXPECT_EQ(CKvDbDatasetSet::S_GetGlobalDataset(), "GULF_MEXICO");
}

TEST(DatasetSet, TheRegistryNamesAnother) {
    const TempFolder folder;
    folder.Write("registry.ini", "[SOFTWARE\\KVI]\nDATASET_OWNER=OTHER\nDATASET=PACIFIC\n");
    EXPECT_EQ(CKvDbDatasetSet::S_GetGlobalOwner(), "OTHER");
    EXPECT_EQ(CKvDbDatasetSet::S_GetGlobalDataset(), "PACIFIC");
}

TEST(DatasetSet, WhatIsMadeCurrentHoldsUntilItIsEmptied) {
    const TempFolder folder;
    CKvDbDatasetSet::S_SetGlobalOwner("MINE");
    CKvDbDatasetSet::S_SetGlobalDataset("ALASKA");
    EXPECT_EQ(CKvDbDatasetSet::S_GetGlobalOwner(), "MINE");
    EXPECT_EQ(CKvDbDatasetSet::S_GetGlobalDataset(), "ALASKA");
    CKvDbDatasetSet::S_SetGlobalOwner("");
    CKvDbDatasetSet::S_SetGlobalDataset("");
    EXPECT_EQ(CKvDbDatasetSet::S_GetGlobalOwner(), "NORVADON");
    EXPECT_EQ(CKvDbDatasetSet::S_GetGlobalDataset(), "GULF_MEXICO");
}

TEST(DatasetSet, ADatasetMayHaveAnOwnerOfItsOwn) {
    const TempFolder folder;
    const CKvDbDatasetSet set;
    EXPECT_EQ(set.GetDSOwner(KV_DATASET_WELL_HEADER, "GULF_MEXICO"), "NORVADON");
    folder.Write("registry.ini", "[SOFTWARE\\KVI\\Datasets]\nGULF_MEXICO.3=WELLS\n");
    EXPECT_EQ(set.GetDSOwner(KV_DATASET_WELL_HEADER, "GULF_MEXICO"), "WELLS");
    EXPECT_EQ(set.GetDSOwner(KV_DATASET_OFFSHORE, "GULF_MEXICO"), "NORVADON");
    EXPECT_EQ(set.GetDSOwner(KV_DATASET_WELL_HEADER, "PACIFIC"), "NORVADON");
}

}  // namespace
