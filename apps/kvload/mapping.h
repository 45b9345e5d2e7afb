#pragma once

#include <map>
#include <string>
#include <vector>

#include "kvload/label.h"
#include "kvload/refused.h"
#include "kvload/targets.h"

namespace kvload {

/// A mapping file that cannot be followed. The text tells where and why.
class BadMapping : public BadSource {
public:
    using BadSource::BadSource;
};

/// What fills one column.
struct FieldRule {
    std::string column;  ///< one of `FillableNames`
    std::string field;   ///< of the source; "" where `value` stands for all rows
    std::string value;
    /// Text of the source in upper case to what stands for it; "*" is any other. Empty for none.
    std::map<std::string, std::string> codes;
    std::string format;  ///< of dates
    /// The column of the area table that the text is looked up in, instead of an area's code.
    std::string by;
    LabelRule label;
};

/// Where a row's place is told, if not by its geometry.
struct PlaceRule {
    std::string x;    ///< field of longitude or X
    std::string y;    ///< field of latitude or Y
    std::string wkt;  ///< field of well-known text
    std::string crs;  ///< reference system, if not the source's
};

/// What a mapping file says of one source.
struct Mapping {
    const Target* target = nullptr;
    std::string layer;
    std::string crs;
    std::vector<FieldRule> fields;
    PlaceRule place;
    /// The bottom of a well.
    PlaceRule bottom;
};

/// Reads the JSON text. Throws BadMapping, also where a word is not known.
Mapping ReadMapping(const std::string& text);

}  // namespace kvload
