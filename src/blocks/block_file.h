#pragma once

#include <array>
#include <cstddef>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/export.h"
#include "blocks/import_format.h"
#include "blocks/selection.h"

/// Block selection files: a header, a line for each entry, and behind an empty line and a marker
/// the neighbors of the blocks. All of this works on text; no file is opened here.
namespace kv::blocks {

/// What areas are called by, by the numbers that the block dialogs give it.
enum class Vocabulary { kNames = 0, kCodes = 1, kMmsCodes = 2 };
inline constexpr std::array kVocabularies{Vocabulary::kNames, Vocabulary::kCodes,
                                          Vocabulary::kMmsCodes};

/// Of a dialog's field string; a text that is none of the three columns stands for MMS codes.
KVGUICTL_API Vocabulary VocabularyOf(const std::string& fieldString);
KVGUICTL_API std::string FieldStringOf(Vocabulary vocabulary);

/// The beginning of a file, which tells what kind of file it is; in letters of either case.
class KVGUICTL_API FileHead {
public:
    /// No more of a file is looked at than this.
    static constexpr std::size_t kLength = 60;

    explicit FileHead(std::string_view text);

    /// Whether a header word of that vocabulary stands there.
    bool Names(Vocabulary vocabulary) const;
    /// The first of these whose word stands there.
    std::optional<Vocabulary> FirstOf(const std::array<Vocabulary, 3>& order) const;
    /// 1 where no block column is named, 2 where no extension is, else 3.
    int Columns() const;

private:
    bool Has(std::string_view word) const { return text_.find(word) != std::string::npos; }

    std::string text_;
};

struct ColumnWidths {
    std::size_t area = 0;
    std::size_t block = 0;
    std::size_t ext = 0;
};

/// Of the file that `WriteFixed` writes for areas of that vocabulary.
KVGUICTL_API ColumnWidths WidthsOf(Vocabulary vocabulary);

// Readers. Each leaves out the header line, and ends at a line that is too short for an entry or
// has no line feed.

/// Columns with tabs between them: the area, and with 2 or 3 columns the block, with 3 its
/// extension.
KVGUICTL_API std::vector<ImportedBlock> ReadColumns(std::string_view text, int columns);
/// Lines that the user laid out.
KVGUICTL_API std::vector<ImportedBlock> ReadLines(std::string_view text,
                                                  const ImportFormat& format);
/// Columns of fixed widths, each with a tab behind it. Ends also at an empty area, and at the
/// marker.
KVGUICTL_API std::vector<ImportedBlock> ReadFixed(std::string_view text,
                                                  const ColumnWidths& widths);

/// Whether a text holds the marker of the neighbors.
KVGUICTL_API bool HasMarker(std::string_view text);
/// Adds the neighbors behind the marker to what the relation holds. The first word that is a part
/// of the marker is taken for its beginning, wherever it stands.
KVGUICTL_API void ReadRelation(std::string_view text, NeighborRelation& relation);

/// A block as a file has it: the number that its digits give, and what stands behind as many
/// characters as that number has; one blank where the block is, or nothing but the number.
struct BlockParts {
    std::string number;
    std::string ext;
    bool operator==(const BlockParts&) const = default;
};
KVGUICTL_API BlockParts PartsOf(const std::string& block);

// Writers. A field string that is none of the three columns gets no header line.

KVGUICTL_API void WriteColumns(std::ostream& out, const std::string& fieldString,
                               const Selection& selection);
/// Writes no header line for MMS codes, either.
KVGUICTL_API void WriteFixed(std::ostream& out, const std::string& fieldString,
                             const Selection& selection);
/// The empty line, the marker, and the neighbors.
KVGUICTL_API void WriteRelation(std::ostream& out, const NeighborRelation& relation);

}  // namespace kv::blocks
