#include "support/small_database.h"

#include <sqlite3.h>

#include <stdexcept>

namespace test {

namespace {

constexpr const char* kStatements = R"(
create table gulf_mexico_connam2 (areaname text, stcode text, area_abbr text);
create table gulf_mexico_lbi (areacode text, lbnum text, lbext text, refnum integer);
create table gulf_mexico_lbv (refnum integer, ptnum integer, lat real, lon real);
insert into gulf_mexico_connam2 values
    ('GRAND ISLE', '017', 'GI'), ('GRAND ISLE SOUTH', '018', 'GI'), ('GULF BAY', '4201', null),
    ('SHORE LANDS', '4261', 'SL'), ('LAKE LANDS', '4271', 'LL'), ('HARBOR', '4281', 'HB'),
    ('PLAIN', '4301', 'PL'), ('EMPTY', '099', 'EM');
insert into gulf_mexico_lbi values
    ('017', '10', null, 1), ('017', '9', null, 2), ('017', '9', 'A', 3), ('017', '100', null, 4),
    ('018', '45', null, 5), ('018', '46', 'B', 6),
    ('4201', '1', null, 7), ('4261', '123', 'A', 8), ('4271', '7', null, 9), ('4281', '8', null, 10),
    ('4301', '55', null, 11);
)";

}  // namespace

std::string MakeSmallDatabase(const std::string& path) {
    sqlite3* database = nullptr;
    char* error = nullptr;
    const bool made = sqlite3_open(path.c_str(), &database) == SQLITE_OK &&
                      sqlite3_exec(database, kStatements, nullptr, nullptr, &error) == SQLITE_OK;
    const std::string words = error ? error : "";
    sqlite3_free(error);
    sqlite3_close(database);
    if (!made) throw std::runtime_error("The small database could not be made: " + words);
    return path;
}

}  // namespace test
