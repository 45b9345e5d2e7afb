#pragma once

namespace test {

/// Statements that every engine takes: areas with blocks whose corners lie in two maps. In the map
/// from 28 to 29 degrees north and 90 to 91 west there are GRAND ISLE (two codes under one MMS
/// code), O'HARA BAY, which has no MMS code, and LAKE.
inline constexpr const char* kBuiltMapTables = R"(
create table gulf_mexico_connam2 (areaname text, stcode text, area_abbr text);
create table gulf_mexico_lbi (areacode text, lbnum text, lbext text, refnum integer);
create table gulf_mexico_lbv (refnum integer, ptnum integer, lat numeric, lon numeric);
create table gulf_mexico_well_hdr (api_no text);
insert into gulf_mexico_connam2 values
    ('GRAND ISLE', '017', 'GI'), ('GRAND ISLE SOUTH', '018', 'GI'), ('O''HARA BAY', '4281', null),
    ('LAKE', '4271', 'LL'), ('FAR', '099', 'FA');
insert into gulf_mexico_lbi values
    ('017', '10', null, 1), ('017', '9', 'A', 2), ('018', '45', null, 3), ('4281', '1', null, 4),
    ('4271', '7', null, 5), ('099', '3', null, 6), ('017', '11', null, 7);
insert into gulf_mexico_lbv values
    (1, 1, 28.5, -90.5), (1, 2, 28.6, -90.5), (2, 1, 29, -91), (3, 1, 28.0, -90.0),
    (3, 2, 35, -90), (4, 1, 28.2, -90.2), (5, 1, 28.3, -90.3), (6, 1, 28.5, -80),
    (7, 1, 29.000002, -90.5);
)";

}  // namespace test
