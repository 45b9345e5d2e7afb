#pragma once

#include <span>
#include <string_view>

namespace kv::sample {

/// Projection codes that the areas are laid out on.
inline constexpr int kTexasSouthCentral = 1;
inline constexpr int kTexasSouth = 2;
inline constexpr int kLouisianaSouth = 3;
inline constexpr int kUtm14 = 114;
inline constexpr int kUtm15 = 115;
inline constexpr int kUtm16 = 116;
inline constexpr int kUtm17 = 117;

/// How the blocks of an area are laid out and numbered.
enum class Layout {
    kProtraction,      ///< 4,800 m squares, 44 numbers to a row
    kLouisiana,        ///< 5,000 acre squares; remnants take a neighbour's number and A or B
    kTexas,            ///< 5,760 acre squares
    kTexasLettered,    ///< the same, each number with an A
    kTexasStateTract,  ///< 1,440 acre squares
    kTexasBayTract,    ///< 640 acre squares
};

/// A corner of an area, in degrees.
struct Corner {
    double lat;
    double lon;
};

/// One area: its names, where it lies and how it is divided.
struct Area {
    const char* name;
    const char* code;
    /// The MMS code, "" where it has none.
    const char* mmsCode;
    /// Code of the projection it is laid out on.
    int projection;
    Layout layout;
    /// Planning area or state, as the leases have it: C, E, W, L, T.
    char plan;
    /// A convex outline of three or four corners; a triangle repeats its last corner.
    Corner corners[4];
    /// 0 in the Gulf of Mexico, above that elsewhere.
    int region = 0;
};

/// Every area of the Gulf, in its default order.
std::span<const Area> Areas();

/// What stands behind a block's number and extension where a user sees it: the water, by the area
/// code's first three characters.
std::string_view WaterSuffix(std::string_view areaCode);

}  // namespace kv::sample
