#pragma once

#include <string>
#include <vector>

#include "sampledata/blocks.h"
#include "sampledata/names.h"
#include "sampledata/sink.h"

namespace kv::sample {

/// What one company has in a lease.
struct Interest {
    int company;
    int percent;
};

/// One lease of a block; a block may have had several, one after the other. A block that never had
/// one may have a record that says so, which has no number and no owner.
struct Lease {
    const Block* block = nullptr;
    std::string number;
    const char* status = "";
    Day issued = 0;
    Day expires = 0;
    int operatingCompany = 0;
    /// The highest first; they sum up to 100.
    std::vector<Interest> owners;
    bool inForce = false;
};

/// Leases of the blocks, oldest first within a block. The blocks must outlive them.
std::vector<Lease> MakeLeases(const std::vector<Block>& blocks);

/// Fills the tables of leases, owners, companies, operators and bids.
void WriteLeases(const std::vector<Lease>& leases, Sink& sink);

}  // namespace kv::sample
