#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kvload/area_index.h"
#include "kvload/mapping.h"
#include "kvload/source.h"
#include "kvload/to_dataset.h"
#include "sampledata/sink.h"

namespace kvload {

/// One row of a source as the dataset takes it.
struct Made {
    /// Cells in the order of the target's table. That of `refnum` is empty.
    kv::sample::Row row;
    /// The outline or line, in degrees of the dataset.
    Spots vertices;
    /// Of an area: code of its projection, or "".
    std::string projection;
    /// What was not taken as it stands.
    std::vector<std::string> notes;
};

/// Makes the dataset's rows of one source, by its mapping.
class RowMaker {
public:
    /// All must outlive it. Throws BadMapping with the names of fields that the source lacks, and
    /// BadSource where its places cannot be taken to the dataset.
    RowMaker(const Mapping& mapping, const Layer& layer, const AreaIndex& areas);

    /// Throws Refused.
    Made Make(const Feature& feature) const;

    /// A row in a few words, as "row 17, 123A".
    std::string NameOf(const Feature& feature, long long number) const;

    /// Where the places come from; "" where there are none.
    const std::string& System() const { return way_; }

private:
    /// A rule with the places of its field and its column; -1 for none.
    struct Bound {
        const FieldRule* rule;
        int field;
        int column;
    };

    void Bind();
    void BindPlaces();
    int FieldNamed(const std::string& name);
    bool IsRequired(std::string_view column) const;
    static std::string TextIn(const Feature& feature, int field);
    std::string TextOf(const Bound& bound, const Feature& feature) const;
    std::string AreaCode(const Bound& bound, const Feature& feature, Made& made) const;
    std::string AreaOfBlock(const std::vector<std::string>& codes, std::string_view column,
                            const Feature& feature) const;
    std::string Rounded(const kv::sample::Column& column, const std::string& text,
                        Made& made) const;
    void FillColumn(const Bound& bound, const Feature& feature, Made& made) const;
    void SplitLabel(const Bound& bound, const Feature& feature, Made& made) const;
    void Fill(const Bound& bound, const Feature& feature, Made& made) const;
    void Require(const Made& made) const;

    static std::optional<Spot> PlaceIn(const Feature& feature, int x, int y);
    void PutPlace(const std::optional<Spot>& place, const ToDataset& system, const char* lat,
                  const char* lon, Made& made) const;
    void PutVertices(const Spots& places, Made& made) const;
    void TakePoint(const Feature& feature, Made& made) const;
    void TakeOutline(const Shape& shape, Made& made) const;
    void TakeLine(const Shape& shape, Made& made) const;

    const Mapping& mapping_;
    const Layer& layer_;
    const AreaIndex& areas_;
    const kv::sample::Table& table_;
    std::vector<Bound> bound_;
    std::vector<std::string> missing_;
    int x_ = -1, y_ = -1, bottomX_ = -1, bottomY_ = -1;
    std::optional<ToDataset> system_;
    std::string way_;
    std::optional<ToDataset> bottomSystem_;
};

}  // namespace kvload
