#include "services/kvcom/projections.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "frame/kvcom/projection_code.h"
#include "services/kvcom/projection_zones.h"

namespace kv::coord {

namespace {

/// A datum by its name brings a shift along; the driver takes its spheroid alone. PROJ's names; of
/// the spheroid that PROJ rounds, the figures.
struct Replacement {
    std::string_view parameter;
    const char* spheroid;
};
constexpr Replacement kReplacements[] = {
    {"+datum=WGS84", "+ellps=WGS84"},          {"+datum=GGRS87", "+ellps=GRS80"},
    {"+datum=NAD83", "+ellps=GRS80"},          {"+datum=NAD27", "+ellps=clrk66"},
    {"+datum=potsdam", "+ellps=bessel"},       {"+datum=carthage", "+ellps=clrk80ign"},
    {"+datum=hermannskogel", "+ellps=bessel"}, {"+datum=ire65", kModifiedAiry},
    {"+datum=nzgd49", "+ellps=intl"},          {"+datum=OSGB36", "+ellps=airy"},
    {"+ellps=mod_airy", kModifiedAiry},
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
        const auto* at = std::ranges::find(kReplacements, parameter, &Replacement::parameter);
        if (at != std::end(kReplacements)) {
            bare += std::string(at->spheroid) + " ";
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
    static std::unique_ptr<PJ_CONTEXT, Release> context;
    if (!context) {
        context.reset(proj_context_create());
        proj_log_level(context.get(), PJ_LOG_NONE);
        proj_context_set_enable_network(context.get(), 0);
    }
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

const Projection* Projections::Build(int code) {
    const auto own = registered_.find(code);
    const std::string definition =
        own != registered_.end() ? own->second : DefinitionOf(code, rectLat_, rectLon_);
    return definition.empty() ? nullptr : Keep(code, CreateOperation(definition), definition);
}

const Projection* Projections::Keep(int code, Operation operation, const std::string& definition) {
    if (!operation) return nullptr;
    const Domain domain = DomainOf(operation.get(), definition);
    return &kept_.insert_or_assign(code, Projection{std::move(operation), domain}).first->second;
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
    if (code == 0 || code == projection::kNone) return false;
    const std::string bare = ProjectionAlone(ParametersOf(definition));
    Operation operation = CreateOperation(bare);
    if (!IsProjection(operation.get())) return false;
    registered_[code] = bare;
    Keep(code, std::move(operation), bare);
    return true;
}

}  // namespace kv::coord
