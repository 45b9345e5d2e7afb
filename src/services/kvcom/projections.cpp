#include "services/kvcom/projections.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "services/kvcom/projection_zones.h"

namespace kv::coord {

namespace {

/// A datum by its name brings a shift along; the driver takes its spheroid alone. PROJ's names.
struct Datum {
    std::string_view parameter;
    const char* spheroid;
};
constexpr Datum kDatums[] = {
    {"+datum=WGS84", "+ellps=WGS84"},          {"+datum=GGRS87", "+ellps=GRS80"},
    {"+datum=NAD83", "+ellps=GRS80"},          {"+datum=NAD27", "+ellps=clrk66"},
    {"+datum=potsdam", "+ellps=bessel"},       {"+datum=carthage", "+ellps=clrk80ign"},
    {"+datum=hermannskogel", "+ellps=bessel"}, {"+datum=ire65", "+ellps=mod_airy"},
    {"+datum=nzgd49", "+ellps=intl"},          {"+datum=OSGB36", "+ellps=airy"},
};

/// Parameters of PROJ's texts that say in what a result is given, or what is shifted ahead of the
/// projection: the driver gives metres, and shifts nothing.
constexpr std::string_view kPutAside[] = {
    "+units=",    "+to_meter=",   "+vunits=", "+vto_meter=", "+towgs84=",
    "+nadgrids=", "+geoidgrids=", "+type=",   "+no_defs",    "+wktext"};

bool IsPutAside(const std::string& parameter) {
    return std::ranges::any_of(
        kPutAside, [&](std::string_view beginning) { return parameter.starts_with(beginning); });
}

std::string ProjectionAlone(const std::string& definition) {
    std::string bare;
    for (const std::string& parameter : Split(definition, ' ')) {
        const Datum* datum = std::ranges::find(kDatums, parameter, &Datum::parameter);
        if (datum != std::end(kDatums)) {
            bare += std::string(datum->spheroid) + " ";
        } else if (!parameter.empty() && !IsPutAside(parameter)) {
            bare += parameter + " ";
        }
    }
    return bare;
}

/// PROJ's parameters of a reference system that it knows by another text; of any other text, that
/// text.
std::string ParametersOf(const std::string& definition) {
    const Operation object = CreateOperation(definition);
    if (!object || !proj_is_crs(object.get())) return definition;
    const char* parameters = proj_as_proj_string(Context(), object.get(), PJ_PROJ_4, nullptr);
    return parameters ? parameters : "";
}

/// Whether it turns angles into X and Y, and back: a change to geocentric coordinates makes a Z.
bool IsProjection(PJ* operation) {
    if (!operation || !proj_angular_input(operation, PJ_FWD) ||
        proj_angular_output(operation, PJ_FWD) || !proj_pj_info(operation).has_inverse) {
        return false;
    }
    const PJ_COORD place = proj_trans(operation, PJ_FWD, {{0.1, 0.1, 0.0, 0.0}});
    return place.xyz.z == 0.0 || !std::isfinite(place.xyz.z);
}

}  // namespace

PJ_CONTEXT* Context() {
    static const std::unique_ptr<PJ_CONTEXT, Release> context = [] {
        std::unique_ptr<PJ_CONTEXT, Release> created(proj_context_create());
        proj_log_level(created.get(), PJ_LOG_NONE);
        proj_context_set_enable_network(created.get(), 0);
        return created;
    }();
    return context.get();
}

Operation CreateOperation(const std::string& definition) {
    return Operation(proj_create(Context(), definition.c_str()));
}

Projections& Projections::Get() {
    // Its operations go before PROJ's state, which is made first.
    Context();
    static Projections projections;
    return projections;
}

PJ* Projections::Build(int code) {
    const auto own = registered_.find(code);
    const std::string definition =
        own != registered_.end() ? own->second : DefinitionOf(code, rectLat_, rectLon_);
    Operation operation = definition.empty() ? nullptr : CreateOperation(definition);
    return kept_.insert_or_assign(code, std::move(operation)).first->second.get();
}

void Projections::SetRectLat(double degrees) {
    if (degrees == rectLat_) return;
    rectLat_ = degrees;
    ForgetStraightMercator();
}

void Projections::SetRectLon(double degrees) {
    if (degrees == rectLon_) return;
    rectLon_ = degrees;
    ForgetStraightMercator();
}

void Projections::ForgetStraightMercator() {
    std::erase_if(kept_, [](const auto& each) { return IsStraightMercator(each.first); });
}

bool Projections::Register(int code, const std::string& definition) {
    if (!DefinitionOf(code).empty()) return false;
    const std::string bare = ProjectionAlone(ParametersOf(definition));
    Operation operation = CreateOperation(bare);
    if (!IsProjection(operation.get())) return false;
    registered_[code] = bare;
    kept_[code] = std::move(operation);
    return true;
}

}  // namespace kv::coord
