#include "kvload/to_dataset.h"

#include <proj.h>
#include <proj_experimental.h>

#include <array>
#include <cmath>
#include <numbers>

#include "base/text.h"
#include "kvload/refused.h"

namespace kvload {
namespace {

constexpr const char* kGrid = "us_noaa_conus.tif";
constexpr double kDegreesPerRadian = 180.0 / std::numbers::pi;
/// How far beyond the region that a projection is for a place may lie, in degrees.
constexpr double kBeyond = 10.0;

struct ReleaseProj {
    void operator()(PJ_CONTEXT* context) const { proj_context_destroy(context); }
    void operator()(PJ* object) const { proj_destroy(object); }
};
using Context = std::unique_ptr<PJ_CONTEXT, ReleaseProj>;
using Object = std::unique_ptr<PJ, ReleaseProj>;

/// A datum from which there is a way: its geographic system, and whether the way is the grid's.
struct Datum {
    const char* code;
    bool byGrid;
    const char* way;
};
constexpr std::array kDatums = {
    Datum{"EPSG:4267", false, "the dataset's own datum"},
    Datum{"EPSG:4269", true, "by the datum grid us_noaa_conus.tif"},
    Datum{"EPSG:4326", true, "taken for NAD83, by the datum grid us_noaa_conus.tif"},
};

std::string NameOf(const Object& object) {
    const char* name = proj_get_name(object.get());
    return name ? name : "?";
}

bool IsSystem(const Object& object) {
    return object && proj_is_crs(object.get());
}

/// The system of horizontal places within: without heights, and without a shift that a file brings
/// along, which is a coarse one.
Object Horizontal(PJ_CONTEXT* context, Object system) {
    for (;;) {
        switch (proj_get_type(system.get())) {
            case PJ_TYPE_COMPOUND_CRS:
                system.reset(proj_crs_get_sub_crs(context, system.get(), 0));
                break;
            case PJ_TYPE_BOUND_CRS:
                system.reset(proj_get_source_crs(context, system.get()));
                break;
            default:
                return Object(proj_crs_demote_to_2D(context, nullptr, system.get()));
        }
        if (!system) return system;
    }
}

/// Where PROJ says that a system is used, or else its datum.
struct Region {
    double west = -1000.0, south = -1000.0, east = -1000.0, north = -1000.0;

    Region(PJ_CONTEXT* context, const Object& system, const Object& datum) {
        for (const Object* object : {&system, &datum})
            if (west == -1000.0)
                proj_get_area_of_use(context, object->get(), &west, &south, &east, &north, nullptr);
    }
    /// One that holds the meridian of 180 degrees has its west in the east.
    bool IsFar(const Spot& place) const {
        if (west == -1000.0) return false;
        const bool isWest = place.x<west - kBeyond, isEast = place.x> east + kBeyond;
        return (west <= east ? isWest || isEast : isWest && isEast) || place.y < south - kBeyond ||
               place.y > north + kBeyond;
    }
};

std::string Text(const Spot& spot) {
    return kv::FormatText("%.8g, %.8g", spot.x, spot.y);
}

/// No system that is flat has its origin in reach of a block, so what could be degrees is.
bool LooksLikeDegrees(const Spot& spot) {
    return std::abs(spot.x) <= 360.0 && std::abs(spot.y) <= 90.0;
}

/// Longitudes are counted from Greenwich to either side, also where a source goes round to the
/// east.
double WithinHalfTurn(double longitude) {
    if (longitude > 180.0) return longitude - 360.0;
    return longitude < -180.0 ? longitude + 360.0 : longitude;
}

/// What a place that is refused may have meant: those of the dataset are west of Greenwich.
const char* HintOfItsSign(const Spot& place) {
    return place.x > 0.0 ? " (a longitude to the west needs a minus or a W)" : "";
}

}  // namespace

struct ToDataset::Way {
    Context context;
    Object toDegrees;
    /// From NAD27 to NAD83, taken backwards; null where none is needed.
    Object grid;
    Object system;
    bool isFlat = false;
    std::string name;
    std::string description;
    std::unique_ptr<Region> region;
};

ToDataset::ToDataset(const std::string& text) : way_(std::make_unique<Way>()) {
    way_->context.reset(proj_context_create());
    PJ_CONTEXT* context = way_->context.get();
    proj_log_level(context, PJ_LOG_NONE);
    proj_context_set_enable_network(context, false);
    Object given(proj_create(context, text.c_str()));
    if (!IsSystem(given))
        throw BadSource("\"" + text.substr(0, 60) + "\" is no reference system that PROJ knows");
    Object system = Horizontal(context, std::move(given));
    const Object degrees(system ? proj_crs_get_geodetic_crs(context, system.get()) : nullptr);
    if (!degrees)
        throw BadSource(
            "The reference system is none of places on earth: name the right one "
            "as \"crs\" in the mapping, as EPSG:4267");
    way_->name = NameOf(system);

    for (const Datum& datum : kDatums) {
        const Object target(proj_create(context, datum.code));
        if (!target ||
            !proj_is_equivalent_to_with_ctx(context, degrees.get(), target.get(),
                                            PJ_COMP_EQUIVALENT_EXCEPT_AXIS_ORDER_GEOGCRS))
            continue;
        static constexpr const char* kExact[] = {"ALLOW_BALLPARK=NO", nullptr};
        const Object way(
            proj_create_crs_to_crs_from_pj(context, system.get(), target.get(), nullptr, kExact));
        if (way) way_->toDegrees.reset(proj_normalize_for_visualization(context, way.get()));
        if (!way_->toDegrees)
            throw BadSource("PROJ knows no way from " + way_->name + " to degrees");
        if (datum.byGrid) {
            way_->grid.reset(
                proj_create(context, (std::string("+proj=hgridshift +grids=") + kGrid).c_str()));
            if (!way_->grid)
                throw BadSource(
                    "From " + way_->name + " to NAD27 it goes by the datum grid " + kGrid +
                    ", which is not installed. It is fetched by: " + "projsync --file " + kGrid);
        }
        way_->region = std::make_unique<Region>(context, system, target);
        if (way_->name == "unnamed" || way_->name == "unknown")
            way_->name = "a system of " + NameOf(target);
        way_->description = way_->name + ", " + datum.way;
        way_->isFlat = proj_get_type(system.get()) == PJ_TYPE_PROJECTED_CRS;
        way_->system = std::move(system);
        return;
    }
    throw BadSource("It is in " + way_->name + ", on the datum of " + NameOf(degrees) +
                    ", from which no exact way leads to NAD27. Convert it to NAD83 first, or, "
                    "where it is not what it says, name the right system as \"crs\" in the "
                    "mapping");
}

ToDataset::~ToDataset() = default;
ToDataset::ToDataset(ToDataset&&) noexcept = default;

const std::string& ToDataset::Description() const {
    return way_->description;
}

std::string ToDataset::NameIfOther(const std::string& text) const {
    PJ_CONTEXT* context = way_->context.get();
    Object given(proj_create(context, text.c_str()));
    if (!IsSystem(given)) return {};
    const Object other = Horizontal(context, std::move(given));
    const bool isSame =
        other && proj_is_equivalent_to_with_ctx(context, way_->system.get(), other.get(),
                                                PJ_COMP_EQUIVALENT_EXCEPT_AXIS_ORDER_GEOGCRS);
    return other && !isSame ? NameOf(other) : "";
}

Spot ToDataset::Place(const Spot& spot) const {
    if (!std::isfinite(spot.x) || !std::isfinite(spot.y))
        throw Refused("a coordinate is no number");
    if (way_->isFlat && LooksLikeDegrees(spot))
        throw Refused(Text(spot) + " are degrees, it seems, and no place in " + way_->name);
    const PJ_COORD degrees =
        proj_trans(way_->toDegrees.get(), PJ_FWD, proj_coord(spot.x, spot.y, 0.0, 0.0));
    const Spot place{WithinHalfTurn(degrees.xy.x), degrees.xy.y};
    if (!std::isfinite(place.x) || !std::isfinite(place.y) || std::abs(place.y) > 90.0 ||
        std::abs(place.x) > 360.0)
        throw Refused(Text(spot) + " is no place in " + way_->name);
    const char* hint = way_->isFlat ? "" : HintOfItsSign(place);
    if (way_->region->IsFar(place))
        throw Refused(Text(spot) + " is far from where " + way_->name + " is used" + hint);
    if (!way_->grid) return place;
    const PJ_COORD shifted =
        proj_trans(way_->grid.get(), PJ_INV,
                   proj_coord(place.x / kDegreesPerRadian, place.y / kDegreesPerRadian, 0.0, 0.0));
    if (!std::isfinite(shifted.lp.lam) || !std::isfinite(shifted.lp.phi))
        throw Refused(Text(spot) + " lies outside of the datum grid" + hint);
    return {shifted.lp.lam * kDegreesPerRadian, shifted.lp.phi * kDegreesPerRadian};
}

}  // namespace kvload
