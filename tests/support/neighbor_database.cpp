#include "support/neighbor_database.h"

#include "support/sqlite_file.h"

namespace test {

namespace {

constexpr const char* kTables = R"(
create table gulf_mexico_connam2 (areaname text, stcode text, area_abbr text);
create table gulf_mexico_lbi (areacode text, lbnum text, lbext text, refnum integer);
create table gulf_mexico_lbv (refnum integer, ptnum integer, lat real, lon real);
create table nvd2000_tmp_abe2 (machine_ID text, o_area text, o_bext text, n_area text, n_bext text,
                               area_type text);
insert into gulf_mexico_connam2 values
    ('ALPHA', 'A01', 'AL'), ('BETA ISLE', 'B01', 'BI'), ('GULF BAY', 'G01', null),
    ('SHORE', '42601', 'SH');
)";

/// In tenths of a degree east and north of 20 degrees east, 10 north: the south-west corner.
struct Square {
    const char* areaCode;
    const char* number;
    const char* ext;
    int east;
    int north;
};
constexpr Square kSquares[] = {
    {"A01", "1", "", 0, 2},   {"A01", "2", "", 1, 2}, {"A01", "3", "", 2, 2},
    {"A01", "4", "", 0, 1},   {"A01", "5", "", 1, 1}, {"A01", "6", "", 2, 1},
    {"A01", "7", "", 0, 0},   {"A01", "8", "", 1, 0}, {"A01", "9", "", 2, 0},
    {"B01", "1", "A", 3, 1},  {"G01", "1", "", 2, 3}, {"42601", "7", "", 1, -1},
    {"A01", "99", "", 50, 0},
};

std::string Cell(const char* text) {
    return *text ? "'" + std::string(text) + "'" : "null";
}

std::string Rows(const Square& square, int refnum) {
    const std::string reference = std::to_string(refnum);
    std::string sql = "insert into gulf_mexico_lbi values ('" + std::string(square.areaCode) +
                      "', '" + square.number + "', " + Cell(square.ext) + ", " + reference + ");";
    constexpr int kCorners[4][2] = {{0, 1}, {1, 1}, {1, 0}, {0, 0}};
    const double off = refnum % 3 * 1e-6;
    // The last corner first: it is `ptnum` that tells their order.
    for (int corner = 3; corner >= 0; --corner) {
        sql += "insert into gulf_mexico_lbv values (" + reference + ", " +
               std::to_string(corner + 1) + ", " +
               std::to_string(10 + (square.north + kCorners[corner][1]) / 10.0 + off) + ", " +
               std::to_string(20 + (square.east + kCorners[corner][0]) / 10.0 - off) + ");";
    }
    return sql;
}

}  // namespace

std::string MakeNeighborDatabase(const std::string& path) {
    std::string sql = std::string("begin;") + kTables;
    int refnum = 0;
    for (const Square& square : kSquares)
        sql += Rows(square, ++refnum);
    RunOnSqliteFile(path, sql + "commit");
    return path;
}

}  // namespace test
