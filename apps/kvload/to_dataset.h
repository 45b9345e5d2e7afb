#pragma once

#include <memory>
#include <string>

#include "kvload/source.h"

namespace kvload {

/// Takes places of a source to the dataset's own: longitude and latitude on the North American
/// Datum of 1927, in degrees.
///
/// Projections are undone by PROJ. From NAD83 it goes by the grid that the rest of the program
/// uses; where that is missing, or the datum is any other, the source is refused: nothing is ever
/// shifted by less than the grid. WGS 84 is taken for NAD83, from which it differs by one to two
/// meters.
class ToDataset {
public:
    /// `system` is what PROJ reads: a code such as EPSG:4267, or well-known text. Throws
    /// BadSource with what is to be done about it.
    explicit ToDataset(const std::string& system);
    ~ToDataset();
    ToDataset(ToDataset&&) noexcept;

    /// Throws Refused where the place has none in the dataset.
    Spot Place(const Spot& spot) const;

    /// The system, and the way from it, in a few words.
    const std::string& Description() const;

    /// The name of a system that a source tells itself, where it is another one; "" where it is
    /// not, or is none.
    std::string NameIfOther(const std::string& system) const;

private:
    struct Way;
    std::unique_ptr<Way> way_;
};

}  // namespace kvload
