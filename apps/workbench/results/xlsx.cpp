#include "workbench/results/xlsx.h"

#include <fcntl.h>
#include <unistd.h>
#include <xlsxwriter.h>

#include <QTemporaryDir>
#include <algorithm>
#include <cerrno>
#include <optional>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "base/paths.h"
#include "base/text.h"
#include "geofiles/table.h"
#include "workbench/results/cell_text.h"

namespace workbench {

namespace {

/// What a spreadsheet keeps of a number.
constexpr int kMostDigits = 15;
constexpr int kWidestColumn = 60;

std::optional<double> NumberIn(const std::string& cell) {
    if (std::ranges::count_if(cell, kv::IsDigit) > kMostDigits) return std::nullopt;
    return geofiles::NumberOf(cell);
}

void Require(lxw_error error) {
    if (error != LXW_NO_ERROR) throw std::runtime_error(lxw_strerror(error));
}

/// Throws where the disk has no room for so many bytes.
void NeedRoom(const std::string& folder, off_t bytes) {
    const std::string path = folder + "/room";
    const int file = open(path.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
    const int failure = file < 0 ? errno : posix_fallocate(file, 0, bytes);
    if (file >= 0) close(file);
    unlink(path.c_str());
    if (failure != 0) throw std::runtime_error(std::generic_category().message(failure));
}

/// At most how many bytes a cell is, where it stands and in the list of texts.
off_t RoomOf(const std::string& cell) {
    constexpr off_t kMarks = 100;
    constexpr off_t kLongestEscape = 7;
    const auto escaped = std::ranges::count_if(cell, [](char ch) {
        return (ch >= 0 && ch < ' ') || ch == '&' || ch == '<' || ch == '>' || ch == '_';
    });
    return static_cast<off_t>(cell.size()) + kLongestEscape * escaped + kMarks;
}

/// A workbook that is written to a folder when it is closed.
class Workbook {
public:
    explicit Workbook(std::string folder) : folder_(std::move(folder)) {
        lxw_workbook_options options{};
        options.tmpdir = folder_.data();
        book_ = workbook_new_opt(Path().c_str(), &options);
        if (!book_) Require(LXW_ERROR_MEMORY_MALLOC_FAILED);
        sheet_ = workbook_add_worksheet(book_, "Results");
        heading_ = workbook_add_format(book_);
        if (!sheet_ || !heading_) Require(LXW_ERROR_MEMORY_MALLOC_FAILED);
        format_set_bold(heading_);
        worksheet_freeze_panes(sheet_, 1, 0);
    }
    ~Workbook() {
        if (book_) workbook_close(book_);
    }
    Workbook(const Workbook&) = delete;
    Workbook& operator=(const Workbook&) = delete;

    void AddHeading(int column, const std::string& text) { Put(0, column, text, heading_); }
    void Add(std::size_t row, int column, const std::string& cell, bool number) {
        room_ += RoomOf(cell);
        const auto value = number ? NumberIn(cell) : std::nullopt;
        if (value) {
            Require(worksheet_write_number(sheet_, static_cast<lxw_row_t>(row),
                                           static_cast<lxw_col_t>(column), *value, nullptr));
        } else if (!cell.empty()) {
            Put(row, column, CellInUtf8(cell), nullptr);
        }
    }
    void SetWidth(int column, std::size_t characters) {
        const auto at = static_cast<lxw_col_t>(column);
        const auto width = std::min<std::size_t>(characters + 2, kWidestColumn);
        Require(worksheet_set_column(sheet_, at, at, static_cast<double>(width), nullptr));
    }
    /// Its writer does not notice a disk that is full while it puts the parts together.
    void Close() {
        NeedRoom(folder_, room_);
        Require(workbook_close(std::exchange(book_, nullptr)));
    }
    std::string Path() const { return folder_ + "/results.xlsx"; }

private:
    void Put(std::size_t row, int column, const std::string& text, lxw_format* format) {
        Require(worksheet_write_string(sheet_, static_cast<lxw_row_t>(row),
                                       static_cast<lxw_col_t>(column), text.c_str(), format));
    }

    std::string folder_;
    off_t room_ = 1 << 16;  ///< of what is in any workbook
    lxw_workbook* book_ = nullptr;
    lxw_worksheet* sheet_ = nullptr;
    lxw_format* heading_ = nullptr;
};

void Fill(Workbook& book, const ResultTable& table, std::span<const int> rows) {
    for (int column = 0; column < table.ColumnCount(); ++column) {
        const ResultTable::Column& head = table.columns[static_cast<std::size_t>(column)];
        book.AddHeading(column, head.heading);
        std::size_t widest = head.heading.size();
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const std::string& cell = table.Cell(rows[i], column);
            book.Add(i + 1, column, cell, head.number);
            widest = std::max(widest, cell.size());
        }
        book.SetWidth(column, widest);
    }
}

}  // namespace

/// The workbook is made aside, since its writer knows no way to replace a file whole.
bool SaveXlsx(const ResultTable& table, std::span<const int> rows, std::string_view path,
              std::string& error) {
    try {
        const QTemporaryDir aside;
        if (!aside.isValid()) throw std::runtime_error(aside.errorString().toStdString());
        Workbook book(aside.path().toStdString());
        Fill(book, table, rows);
        book.Close();
        const auto bytes = kv::ReadBinaryFile(book.Path());
        if (!bytes) throw std::runtime_error("It is too large.");
        return kv::WriteFileWhole(path, *bytes, &error);
    } catch (const std::runtime_error& failure) {
        error = failure.what();
        return false;
    }
}

}  // namespace workbench
