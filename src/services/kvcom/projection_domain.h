#pragma once

#include <proj.h>

#include <string>

namespace kv::coord {

/// X and Y, in metres, that are known to belong to places on earth. Beyond them a projection may
/// answer with the place that it would have on the next turn round the earth.
struct Domain {
    double west = 0.0;
    double east = 0.0;
    double south = 0.0;
    double north = 0.0;

    bool Holds(double x, double y) const {
        return x >= west && x <= east && y >= south && y <= north;
    }
};

/// The domain of an operation that is built, whose definition tells its false origin: as large as
/// what is tried there comes back from. Empty where nothing does.
Domain DomainOf(PJ* operation, const std::string& definition);

/// Whether the place, which X and Y were turned into, is turned into them again.
bool ComesBack(PJ* operation, const PJ_COORD& place, double x, double y);

}  // namespace kv::coord
