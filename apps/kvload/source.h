#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

/// What is read from a file of the user's, whatever its format.
namespace kvload {

/// A place in a source's own reference system, or in degrees: X is east, Y is north.
struct Spot {
    double x = 0.0;
    double y = 0.0;
    bool operator==(const Spot&) const = default;
};
using Spots = std::vector<Spot>;

enum class ShapeKind { kNone, kPoint, kLine, kPolygon, kOther };

/// The geometry of one row. A part of a polygon is its outer ring with its holes behind it; one of
/// a line, or a point, is a single run of places.
struct Shape {
    ShapeKind kind = ShapeKind::kNone;
    std::vector<std::vector<Spots>> parts;
    /// Why it is of no known kind.
    std::string trouble;
};

/// As text: a number in full, a date as year-month-day, letters in UTF-8. None is null.
using Cell = std::optional<std::string>;

struct Feature {
    std::vector<Cell> cells;
    Shape shape;
};

/// What a file tells of a field beside its name, as geodatabases do.
struct FieldFacts {
    /// Another name, for people; "" where there is none.
    std::string alias = {};
    /// Where its values are those of a list: the text that stands for each.
    std::map<std::string, std::string> texts = {};
};

/// One table of a file, read row by row. No exception crosses its border.
class Layer {
public:
    enum class Reading { kRow, kEnd, kFailed };

    virtual ~Layer() = default;
    virtual const std::string& Name() const noexcept = 0;
    /// The names of the fields, in the order of a feature's cells.
    virtual const std::vector<std::string>& Fields() const noexcept = 0;
    virtual const std::vector<FieldFacts>& Facts() const noexcept = 0;
    virtual ShapeKind Kind() const noexcept = 0;
    /// In the words that PROJ reads; "" where the file tells none.
    virtual const std::string& ReferenceSystem() const noexcept = 0;
    /// How many rows there are; below 0 where that is not known ahead.
    virtual long long Count() const noexcept = 0;
    /// `failure` tells what is broken.
    virtual Reading Read(Feature& feature, std::string& failure) noexcept = 0;
};

/// Which table of which file.
struct SourceName {
    std::string path;
    /// "" for the only one.
    std::string layer;
    /// A field that holds the geometry as well-known text; "" for the file's own geometry.
    std::string wktField;
};

/// The function that a library of readers exports, and its name. The caller owns the layer; null
/// where there is none, with the reason.
using OpenLayer = Layer*(const SourceName& source, std::string& failure);
inline constexpr const char* kOpenLayer = "KVGuiCtlOpenLayer";

}  // namespace kvload
