#pragma once

#include <string>
#include <vector>

#include "kvload/source.h"

namespace kvload {

/// A first mapping for a source, and what must be looked at in it.
struct Guess {
    std::string json;
    std::vector<std::string> notes;
};

/// Goes by the names of the fields, the kind of geometry, and the first rows, which it reads. A
/// column that is needed and that no field was found for stands there with an empty text, which a
/// load refuses. `asked` is the name by which the layer was asked for, "" where the file has no
/// other.
Guess GuessMapping(Layer& layer, const std::string& asked);

}  // namespace kvload
