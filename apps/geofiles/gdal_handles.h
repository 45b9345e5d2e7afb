#pragma once

#include <cpl_error.h>
#include <gdal.h>
#include <ogr_api.h>
#include <ogr_srs_api.h>

#include <memory>
#include <string>

/// What of GDAL has to be given back, and what GDAL says. For the module alone.
namespace geofiles {

struct Release {
    void operator()(void* dataset) const { GDALClose(dataset); }
};
struct ReleaseFeature {
    void operator()(void* feature) const { OGR_F_Destroy(static_cast<OGRFeatureH>(feature)); }
};
struct ReleaseGeometry {
    void operator()(void* geometry) const {
        OGR_G_DestroyGeometry(static_cast<OGRGeometryH>(geometry));
    }
};
struct ReleaseSystem {
    void operator()(void* system) const { OSRRelease(static_cast<OGRSpatialReferenceH>(system)); }
};
using Dataset = std::unique_ptr<void, Release>;
using FeaturePtr = std::unique_ptr<void, ReleaseFeature>;
using Geometry = std::unique_ptr<void, ReleaseGeometry>;
using System = std::unique_ptr<void, ReleaseSystem>;

/// While it lives, hears what GDAL complains of, which goes nowhere else.
class Complaints {
public:
    Complaints() { CPLPushErrorHandlerEx(&Hear, this); }
    ~Complaints() { CPLPopErrorHandler(); }
    Complaints(const Complaints&) = delete;
    Complaints& operator=(const Complaints&) = delete;

    bool Any() const { return !first_.empty(); }
    std::string Words(const char* otherwise) const { return Any() ? first_ : otherwise; }

private:
    static void CPL_STDCALL Hear(CPLErr level, CPLErrorNum, const char* words) {
        auto* self = static_cast<Complaints*>(CPLGetErrorHandlerUserData());
        if (level >= CE_Failure && self->first_.empty()) self->first_ = words ? words : "";
    }

    std::string first_;
};

}  // namespace geofiles
