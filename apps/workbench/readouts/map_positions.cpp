#include "workbench/readouts/map_positions.h"

#include <algorithm>
#include <cmath>

#include "frame/kvcom/projection_code.h"
#include "frame/kvcom/util_lldrv.h"
#include "frame/kvdbkvn/db_util.h"
#include "workbench/failure_words.h"

namespace workbench {

namespace {

constexpr int kClarke1866 = 100;
constexpr int kZones = 60;
constexpr double kZoneWidth = 6;

int UtmZoneAt(double lon) {
    return std::clamp(static_cast<int>(std::floor((lon + 180) / kZoneWidth)) + 1, 1, kZones);
}

}  // namespace

int MapPositions::ProjectionAt(const Place& place) {
    if (plane_) return plane_->code;
    const auto block = model_.BlockAt(ToMap(place));
    const int usual = block ? ProjectionOf(block->area->code) : kv::projection::kNone;
    return usual == kv::projection::kNone ? kClarke1866 + UtmZoneAt(place.lon) : usual;
}

int MapPositions::ProjectionOf(const std::string& areaCode) {
    const auto known = projections_.find(areaCode);
    if (known != projections_.end()) return known->second;
    QString failure;
    try {
        const kv::db::LookUpsThrow failures;
        return projections_[areaCode] = CKvDbUtil::S_GetProjectionByArea(areaCode, "");
    } catch (const CKvException& e) {
        failure = FailureWords(e);
    }
    if (!failure.isEmpty() && !std::exchange(failed_, true)) {
        fail_(QStringLiteral("The usual projection of an area could not be read. X and Y are those "
                             "of the UTM zone until it can.\n%1")
                  .arg(failure));
    }
    return kv::projection::kNone;
}

void MapPositions::Forget() {
    projections_.clear();
    failed_ = false;
}

Point MapPositions::InProjection(const Place& place, int projection) const {
    SetRectifyingPoint();
    Point at;
    CKvUtilLLdrv::LLdrv(place.lat, place.lon, &at.x, &at.y, projection, InFeet() ? 0 : 1, 1, 100.0F,
                        0.0F, 0.0F);
    return at;
}

void MapPositions::SetRectifyingPoint() const {
    if (plane_) {
        CKvUtilLLdrv::SetRectLat(plane_->rectifyingPoint.lat);
        CKvUtilLLdrv::SetRectLon(plane_->rectifyingPoint.lon);
        return;
    }
    if (model_.Bounds().Empty()) return;
    const Place middle = ToPlace(model_.Bounds().Middle());
    CKvUtilLLdrv::SetRectLat(middle.lat);
    CKvUtilLLdrv::SetRectLon(middle.lon);
}

}  // namespace workbench
