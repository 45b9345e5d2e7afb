#include "services/kvcom/projection_domain.h"

#include <cmath>

#include "base/numbers.h"

namespace kv::coord {

namespace {

/// About the false origin, the larger ones first: from pole to pole, where a projection can be
/// turned back that far; a continent; a land; and what is below the tip of a cone.
constexpr Domain kTried[] = {
    {-2e6, 2e6, -9.5e6, 9.5e6},
    {-2e6, 2e6, -2e6, 2e6},
    {-1e6, 1e6, -1e6, 1e6},
    {-1e6, 1e6, -2e6, -1e5},
};

/// In how many steps a domain is walked from end to end. An odd number passes the axes by, where
/// PROJ's Cassini has no answer.
constexpr int kSteps = 7;

double Parameter(const std::string& definition, const std::string& name, double otherwise) {
    const std::size_t at = definition.find(name);
    return at == std::string::npos ? otherwise : Atof(definition.substr(at + name.size()));
}

Domain AboutFalseOrigin(const Domain& tried, const std::string& definition) {
    const bool utm = definition.find("+proj=utm") != std::string::npos;
    const bool south = definition.find("+south") != std::string::npos;
    const double x = Parameter(definition, "+x_0=", utm ? 500'000.0 : 0.0);
    const double y = Parameter(definition, "+y_0=", utm && south ? 1e7 : 0.0);
    return {x + tried.west, x + tried.east, y + tried.south, y + tried.north};
}

/// The places on the line from south to north that is so far to the east, as a share of the width.
bool ComesBackAlong(PJ* operation, const Domain& domain, double share) {
    for (int row = 0; row <= kSteps; ++row) {
        const double x = std::lerp(domain.west, domain.east, share);
        const double y = std::lerp(domain.south, domain.north, row / double{kSteps});
        const PJ_COORD place = proj_trans(operation, PJ_INV, {{x, y, 0.0, 0.0}});
        if (!ComesBack(operation, place, x, y)) return false;
    }
    return true;
}

bool ComesBackAll(PJ* operation, const Domain& domain) {
    // Beyond the tip of a cone a wedge about the axis is nowhere on earth, however narrow.
    constexpr double kBesideTheAxis = 0.500001;
    for (int column = 0; column <= kSteps; ++column) {
        if (!ComesBackAlong(operation, domain, column / double{kSteps})) return false;
    }
    return ComesBackAlong(operation, domain, kBesideTheAxis);
}

}  // namespace

bool ComesBack(PJ* operation, const PJ_COORD& place, double x, double y) {
    // What polynomials lose on the way is below it; the next turn is thousands of kilometres off.
    constexpr double kMetres = 0.01;
    const PJ_COORD back = proj_trans(operation, PJ_FWD, place);
    return std::abs(back.xy.x - x) <= kMetres && std::abs(back.xy.y - y) <= kMetres;
}

Domain DomainOf(PJ* operation, const std::string& definition) {
    for (const Domain& tried : kTried) {
        const Domain domain = AboutFalseOrigin(tried, definition);
        if (ComesBackAll(operation, domain)) return domain;
    }
    return {};
}

}  // namespace kv::coord
