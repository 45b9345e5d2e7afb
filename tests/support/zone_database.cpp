#include "support/zone_database.h"

#include "support/sqlite_file.h"

namespace test {

namespace {

constexpr const char* kStatements = R"(
create table gulf_mexico_zone_code
    (zone_code integer, description text, category text, state_plane_code integer);
insert into gulf_mexico_zone_code values
    (300, 'Bessel', 'utm_spheroids', null),
    (1, 'Texas South Central', 'state_lambert', 4204),
    (2, 'Texas South', 'state_lambert', 4205),
    (3, 'Louisiana South', 'state_lambert', 1702),
    (4, 'North Coast', 'state_lambert', 4203),
    (40, 'West Hills', 'state_trans_mercator', 102),
    (60, 'Two Parallels', 'misc_lambert', null),
    (100, 'Clarke 1866', 'utm_spheroids', null),
    (200, 'International', 'utm_spheroids', null),
    (5000, 'Old Survey', 'misc_cassini', null),
    (5001, 'Heart', 'misc_boone', null),
    (5002, 'Globe', 'misc_other', null),
    (6000, 'Of no kind', 'no_such_category', null);
)";

}  // namespace

const char* const kZoneCatalogueStatement =
    "select zone_code, description, category from NORVADON.gulf_mexico_zone_code order by "
    "zone_code";
const char* const kStatePlaneCatalogueStatement =
    "select 'Zone: ' || to_char(-1*state_plane_code) || ': ' || description, state_plane_code "
    "from NORVADON.gulf_mexico_zone_code where state_plane_code is not null order by description";

std::string MakeZoneDatabase(const std::string& path) {
    RunOnSqliteFile(path, kStatements);
    return path;
}

}  // namespace test
