#include "sampledata/zones.h"

#include "services/kvcom/projection_zones.h"

namespace kv::sample {

void WriteZones(Sink& sink) {
    sink.Begin(TableNamed("gulf_mexico_zone_code"));
    for (const coord::Zone& zone : coord::Zones()) {
        sink.Add({std::to_string(zone.code), zone.description, zone.category,
                  zone.statePlaneCode ? std::to_string(zone.statePlaneCode) : "", zone.definition});
    }
    sink.End();
}

}  // namespace kv::sample
