#pragma once

#include <string>
#include <vector>

#include "base/export.h"
#include "frame/kvcom/disp_point.h"
#include "frame/kvcom/min_max_2dd.h"

namespace kv::db {

/// For as long as one lives, a look-up that the database fails throws its `CKvException`. It is for
/// a dialog, which has to tell the person.
class KVGUICTL_API LookUpsThrow {
public:
    LookUpsThrow();
    ~LookUpsThrow();
    LookUpsThrow(const LookUpsThrow&) = delete;
    LookUpsThrow& operator=(const LookUpsThrow&) = delete;
};

/// The same of a look-up that the person cancels, which throws `CKvCancelled`, and of no other. It
/// is for whoever would keep the answer, or tell the person that there is no such place.
class KVGUICTL_API CancelledLookUpsThrow {
public:
    CancelledLookUpsThrow();
    ~CancelledLookUpsThrow();
    CancelledLookUpsThrow(const CancelledLookUpsThrow&) = delete;
    CancelledLookUpsThrow& operator=(const CancelledLookUpsThrow&) = delete;
};

}  // namespace kv::db

/// Look-ups in the dataset's tables. Each opens a short connection of its own.
///
/// None throws, unless a `kv::db::LookUpsThrow` lives: a failure of the database goes to the log,
/// and the look-up answers as for a place that is not there. So does one that the person cancels,
/// unless a `kv::db::CancelledLookUpsThrow` lives.
class KVGUICTL_API CKvDbUtil {
public:
    /// Area code of an area name; with `abbreviated` its MMS code. Empty when the name is unknown.
    static std::string S_GetArea(const std::string& areaName, bool abbreviated);

    /// Of an area code, with `abbreviated` the MMS code (`area_abbr`, may be empty), otherwise the
    /// area name. Empty when the area code is unknown.
    static std::string S_GetAreaName(const std::string& areaCode, bool abbreviated);

    /// The area codes under an MMS code, in byte order.
    static std::vector<std::string> S_GetAreacodesFromMMS(const std::string& mmsCode);

    /// The one area code under that MMS code that holds that block, which is given as a picker
    /// shows it: number, extension and, if any, water suffix. Empty when none does.
    static std::string S_GetAreacodeFromMMSandBlk(const std::string& mmsCode,
                                                  const std::string& block);

    /// Bounds of one block, of a whole area where `block` is "ALL". `area` is an area code, an MMS
    /// code or an area name, tried in this order; a blank `ext` means none; the suffix of the
    /// water may stand behind it, and without one the block may lie in any water; `dataset` is the
    /// table stem, with or without its owner ahead, the current one where it is empty. False, with
    /// `out` untouched, when nothing is found. Latitude stands in the X place of `out`, longitude
    /// in the Y place, in degrees on the tables' own datum.
    static bool S_GetLLBounds(std::string area, std::string block, std::string ext,
                              CMinMax2Dd_t& out, std::string dataset);

    /// The same as X/Y in a projection, around every corner of the outlines; `nUnits` 0 gives feet,
    /// 1 meters. A Straight Mercator code needs its rectifying point set. False, with `out`
    /// untouched, also where a corner has no X/Y.
    static bool S_GetXYBounds(std::string area, std::string block, std::string ext,
                              CMinMax2Dd_t& out, int nProjection, std::string dataset, int nUnits);

    /// A block as it is picked; its texts are those of the look-ups above.
    struct Pick {
        std::string area;
        std::string block;
        std::string ext;
        auto operator<=>(const Pick&) const = default;
    };
    /// The corners of each of these, latitude in X and longitude in Y, none for one that is not
    /// found. Many take hardly more statements than one.
    static std::vector<std::vector<CKvDispPoint>> S_GetOutlines(const std::vector<Pick>& picks,
                                                                const std::string& dataset);

    /// Bounds of a county, by its identifier. As above.
    static bool S_GetLLBoundsOnshore(std::string county, CMinMax2Dd_t& out);
    /// In X/Y they hold the whole box of latitude and longitude, whose sides are curves there.
    static bool S_GetXYBoundsOnshore(std::string county, CMinMax2Dd_t& out, int nProjection,
                                     bool bFeet);

    /// The usual projection code of an area, -1 when the area is unknown.
    static int S_GetProjectionByArea(std::string area, std::string dataset);

    /// The record of a county, by its identifier: its state, its name, its bounds in degrees
    /// (minimum and maximum latitude, minimum and maximum longitude), the projection code it is
    /// usually mapped in and its number within the state. With `upperCase` the name is in upper
    /// case. Texts are empty and numbers 0, the projection -1, when it is unknown.
    static void S_GetCountyInfo(std::string county, std::string& state, std::string& name,
                                double& minLat, double& maxLat, double& minLon, double& maxLon,
                                int& projection, int& number, bool upperCase);
};
