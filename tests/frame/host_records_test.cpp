#include <gtest/gtest.h>

#include <string>
#include <type_traits>

#include "frame/common_frame_work.h"
#include "frame/kvcom/color.h"
#include "frame/kvcom/host_records.h"
#include "frame/kvcom/map_bounds.h"
#include "frame/kvcom/misc.h"
#include "frame/kvcom/ut_registry.h"
#include "frame/kvcom/util_geo.h"
#include "frame/kvcom/util_lldrv.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/db_dataset_set.h"
#include "frame/kvdbkvn/db_info.h"
#include "frame/kvdbkvn/db_util.h"
#include "frame/kvdbkvn/host_records.h"
#include "frame/kvdbkvn/table_owner.h"
#include "frame/kvlogs/host_records.h"
#include "frame/kvlogs/log.h"

namespace {

template <typename... Classes>
struct All {
    static constexpr bool kCopyable =
        ((std::is_copy_constructible_v<Classes> && std::is_copy_assignable_v<Classes> &&
          std::is_destructible_v<Classes>)&&...);
    static constexpr bool kMadeOfNothing = (std::is_default_constructible_v<Classes> && ...);
};

// What a host compiles against.
static_assert(
    All<CKvUtilLLdrv, CKvUtRegistry, CKvMapBounds, CKvUtilGeo, CommonFrameWork, CKvMisc,
        CKvLayerInfo, CKvMath, CKvUvException, CKvProjectInfo, CKvColor, CKvNavKey, CKvDbInfo,
        CKvDbAbsDataMgr, CKvTableOwner, CKvDbDatasetSet, CKvException, CKvOperName, CKvDbUtil,
        CKvLogFile, CKvLog, CKvGuiDbInfo, CKvServerNameDlg, CKvLogView>::kCopyable);
static_assert(All<CKvLayerInfo, CKvMath, CKvProjectInfo, CKvNavKey, CKvOperName, CKvLogFile,
                  CKvGuiDbInfo, CKvServerNameDlg, CKvLogView>::kMadeOfNothing);

TEST(HostRecords, CarryWhatAHostAddsToThemWhenTheyAreCopied) {
    struct HostLayer : CKvLayerInfo {
        std::string title;
    };
    HostLayer layer;
    layer.title = "Wells";
    const HostLayer copy = layer;
    EXPECT_EQ(copy.title, "Wells");
}

TEST(HostRecords, AFailureOfTheHostsLibrariesIsCaughtAsAnyOther) {
    try {
        throw CKvUvException("no such line");
    } catch (const CKvException& failure) {
        EXPECT_EQ(failure.GetErrorMessage(false, true), "no such line");
    }
}

}  // namespace
