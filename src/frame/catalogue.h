#pragma once

#include <string>
#include <string_view>

#include "base/export.h"

/// The vocabulary that the pickers, qualifiers and block dialogs share.
namespace kv::catalogue {

/// How an area is named. A plain `int` in every signature.
enum AreaMode : int { kMmsCode = 0, kAreaName = 1, kAreaCode = 2 };

/// Columns of the area table, by area mode.
inline constexpr const char* kColumnMmsCode = "area_abbr";
inline constexpr const char* kColumnAreaName = "areaname";
inline constexpr const char* kColumnAreaCode = "stcode";

/// The rows that switch a picker's mode. Each begins with a blank so that it sorts ahead of every
/// real area.
inline constexpr const char* kLabelMmsCode = " -MMS CODE-";
inline constexpr const char* kLabelAreaName = " -AREA NAME-";
inline constexpr const char* kLabelAreaCode = " -AREA CODE-";

/// The pseudo block that stands for every block of an area, and the row by which a picker offers
/// it.
inline constexpr const char* kAllBlocks = "ALL";
inline constexpr const char* kSelectAllBlocks = "select 'ALL',-1 from dual union ";

/// What a caller's control shows when its vector holds more than one value.
inline constexpr const char* kListMarker = "<LIST>";

/// Suffixes of the dataset's tables, behind owner + "." + dataset.
inline constexpr const char* kAreaTable = "_connam2";
inline constexpr const char* kBlockTable = "_lbi";
inline constexpr const char* kVertexTable = "_lbv";

/// The folders below work and home folder.
inline constexpr const char* kReportFolder = "\\Report";
inline constexpr const char* kAppFolder = "\\App";

/// The SQL expression that gives a block's label with the suffix of its water, from its first
/// literal to the last common one; `select` is "select decode(" or "select distinct decode(". The
/// caller appends its closing literal.
KVGUICTL_API std::string BlockLabelExpression(std::string_view select = "select decode(");

/// The branches of such an expression behind its first one, for a block column, or expression, of
/// another name: "'427', " + block + " || '-L'," and so on.
KVGUICTL_API std::string WaterBranches(const std::string& block);

/// The block of a label: what stands before the first "-" that is not the first character.
KVGUICTL_API std::string StripWaterSuffix(const std::string& label);

/// A pick taken apart.
struct AbeItem {
    std::string area;
    std::string block;
    std::string ext;
};

/// Takes a pick of the form area + "#" + block and extension apart: behind the first "#", "ALL"
/// gives the block "ALL" and an empty extension; of any other text the digits go to the block and
/// all else to the extension, which is one blank if it stayed empty. False, with three empty texts,
/// when there is no "#".
KVGUICTL_API bool ParseAbeItem(const std::string& item, AbeItem& out);

}  // namespace kv::catalogue

/// Kind of map or report object that a run asks for.
enum E_Layer : int {
    KV_LAYER_NONE = 0,
    KV_LAYER_LEASES = 13,
    KV_LAYER_PIPELINES = 15,
    KV_LAYER_2D_SHOTPOINTS = 16,
    KV_LAYER_WELLS = 25,
    KV_LAYER_FIELDS = 28,
    KV_LAYER_BIDS = 53,
    KV_LAYER_PROSPECTS = 54,
    KV_LAYER_WELL_COMPLETIONS = 62,
    KV_LAYER_PLATFORMS = 66,
    KV_LAYER_APDS = 67,
    KV_LAYER_PLANS = 68,
};

namespace kv::catalogue {

/// Layer of a title such as "Wells"; KV_LAYER_NONE for any other title.
KVGUICTL_API E_Layer LayerFromTitle(std::string_view title);

}  // namespace kv::catalogue
