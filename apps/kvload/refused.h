#pragma once

#include <stdexcept>

namespace kvload {

/// Why a source, as a whole, cannot be loaded. Begins with a capital, and does not name the source.
class BadSource : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Why one row cannot be taken. What else is thrown ends the whole load.
class Refused : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace kvload
