#pragma once

#include <proj.h>

#include <memory>
#include <string>
#include <unordered_map>

#include "services/kvcom/projection_domain.h"

/// What PROJ is asked for, built once and kept.
namespace kv::coord {

struct Release {
    void operator()(PJ_CONTEXT* context) const { proj_context_destroy(context); }
    void operator()(PJ* operation) const { proj_destroy(operation); }
};
using Operation = std::unique_ptr<PJ, Release>;

/// PROJ's state for the library: quiet, and off the network.
PJ_CONTEXT* Context();

/// The operation of PROJ's text, null where PROJ refuses it.
Operation CreateOperation(const std::string& definition);

/// An operation that takes longitude and latitude in radians and gives X and Y in metres.
struct Projection {
    Operation operation;
    Domain domain;
};

/// The projections by their codes.
class Projections {
public:
    static Projections& Get();

    /// Null for an unknown code, and for Straight Mercator at an impossible rectifying point. What
    /// PROJ refuses is tried again the next time.
    const Projection* Find(int code) {
        const auto found = kept_.find(code);
        return found != kept_.end() ? &found->second : Build(code);
    }

    /// The rectifying point of the Straight Mercator codes, in degrees.
    void SetRectLat(double degrees);
    void SetRectLon(double degrees);

    /// See `CKvUtilLLdrv::RegisterProjection`.
    bool Register(int code, const std::string& definition);
    bool IsRegistered(int code) const { return registered_.contains(code); }

private:
    const Projection* Build(int code);
    const Projection* Keep(int code, Operation operation, const std::string& definition);
    void ForgetStraightMercator();

    std::unordered_map<int, Projection> kept_;
    std::unordered_map<int, std::string> registered_;
    double rectLat_ = 0.0;
    double rectLon_ = 0.0;
};

}  // namespace kv::coord
