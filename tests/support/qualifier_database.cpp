#include "support/qualifier_database.h"

#include "support/sqlite_file.h"

namespace test {

namespace {

constexpr const char* kStatements = R"(
pragma synchronous = off;
begin;
create table lease (lease_no text, lplana text, lessee text, operator text);
insert into lease values
    ('G10', 'C', 'SHELF', 'NORTH RIG'), ('G9', 'E', 'AMBER SHELF', 'NORTHERN'),
    ('G100', 'W', 'SHELF OIL', 'NORTH RIG'), ('L7', 'L', 'BLUE SHELF', 'NORTHERN'),
    ('T5', 'T', 'AMBER', 'SOUTH NORTH'), ('T4', 'T', null, null);
create table old_lease (lease_no text, lplana text, lessee text, operator text);
insert into old_lease values
    ('G1', 'C', 'SHELF', 'NORTH RIG'), ('G2', 'C', 'OLD SHELF', 'NORTH RIG');
create table company (company text);
insert into company values ('B'), ('ABC'), ('AB'), ('A');
create table operator (key_no integer, operator text);
insert into operator values
    (1, 'NORTH RIG'), (1, 'NORTHERN'), (2, 'NORTH RIG'), (2, 'SOUTH NORTH');
commit;
)";

}  // namespace

std::string MakeQualifierDatabase(const std::string& path) {
    RunOnSqliteFile(path, kStatements);
    return path;
}

}  // namespace test
