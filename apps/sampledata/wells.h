#pragma once

#include <string>
#include <vector>

#include "sampledata/leases.h"

namespace kv::sample {

/// One well, drilled on a lease.
struct Well {
    const Lease* lease = nullptr;
    /// Twelve digits.
    std::string apiNumber;
    std::string name;
    GeoPoint surface;
    GeoPoint bottom;
    Day spud = 0;
};

/// Wells on the leases, which must outlive them.
std::vector<Well> DrillWells(const std::vector<Lease>& leases);

/// Fills the tables of wells and completions.
void WriteWells(const std::vector<Well>& wells, Sink& sink);

/// Something that stands somewhere in a block.
struct Site {
    const Block* block = nullptr;
    GeoPoint place;
};

/// Fills the tables of what else stands, is planned or was surveyed at a place: platforms, permits,
/// plans, prospects, fields and shotpoints, of which there are `scale` times as many lines as in
/// the Gulf. Answers the platforms, in the order of the leases.
std::vector<Site> WriteSites(const std::vector<Lease>& leases, int scale, Sink& sink);

}  // namespace kv::sample
