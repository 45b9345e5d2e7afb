#pragma once

#include <proj.h>

#include <memory>
#include <string>
#include <unordered_map>

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

/// The projections by their codes. An operation takes longitude and latitude in radians and gives
/// X and Y in metres.
class Projections {
public:
    static Projections& Get();

    /// Null for an unknown code, and for Straight Mercator at an impossible rectifying point.
    PJ* Find(int code) {
        const auto found = kept_.find(code);
        return found != kept_.end() ? found->second.get() : Build(code);
    }

    /// The rectifying point of the Straight Mercator codes, in degrees.
    void SetRectLat(double degrees);
    void SetRectLon(double degrees);

    /// See `CKvUtilLLdrv::RegisterProjection`.
    bool Register(int code, const std::string& definition);

private:
    PJ* Build(int code);
    void ForgetStraightMercator();

    /// A null one is an unknown code's.
    std::unordered_map<int, Operation> kept_;
    std::unordered_map<int, std::string> registered_;
    double rectLat_ = 0.0;
    double rectLon_ = 0.0;
};

}  // namespace kv::coord
