#include "services_pg/partitions.h"

#include <string>

#include "base/text.h"
#include "sampledata/tables.h"

namespace test {
namespace {

using kv::sample::CreateIndexes;
using kv::sample::CreateTable;
using kv::sample::kOwner;
using kv::sample::PostgresType;
using kv::sample::Table;

struct Part {
    const char* name;
    const char* from;
    const char* to;
    bool isFar;
};
/// By the beginnings of area codes.
constexpr Part kParts[] = {{"bays", "minvalue", "'430'", false},
                           {"texas", "'430'", "'431'", false},
                           {kFarParts[0], "'431'", "'436'", true},
                           {kFarParts[1], "'436'", "maxvalue", true}};

std::string PartOf(const std::string& table, const Part& part) {
    return table + "_" + part.name;
}

/// The same table with its indexes, empty.
std::string Made(const Table& table) {
    std::string sql = CreateTable(table, kOwner, PostgresType) + ";";
    for (const std::string& index : CreateIndexes(table, kOwner))
        sql += index + ";";
    return sql;
}

/// On a foreign partition the server cannot keep a key unique: each of its tables does.
std::string Split(const Table& table, PostgresClient& far) {
    const std::string whole = table.name;
    const std::string owned = std::string(kOwner) + "." + whole;
    std::string sql = "alter table " + owned + " rename to " + whole + "_whole; create table " +
                      owned + " (like " + owned + "_whole) partition by range (areacode);";
    for (const Part& part : kParts) {
        const std::string name = PartOf(whole, part);
        Table like = table;
        like.name = name.c_str();
        const std::string bounds = std::string(" partition of ") + owned + " for values from (" +
                                   part.from + ") to (" + part.to + ")";
        if (part.isFar) {
            far.Run(Made(like));
            sql += "create foreign table " + std::string(kOwner) + "." + name + bounds +
                   " server far options (schema_name '" + kOwner + "');";
            continue;
        }
        sql += "create table " + std::string(kOwner) + "." + name + bounds + ";";
        for (const std::string& index : CreateIndexes(like, kOwner))
            sql += index + ";";
    }
    return sql + "insert into " + owned + " select * from " + owned + "_whole; drop table " +
           owned + "_whole; analyze " + owned + ";";
}

}  // namespace

void SplitByArea(const PostgresDatabase& database, const PostgresCluster& other) {
    PostgresClient far(other.Url());
    far.Run(std::string("create schema ") + kOwner);
    std::string sql =
        "create extension postgres_fdw;"
        "create server far foreign data wrapper postgres_fdw options (host '" +
        other.Folder() +
        "', dbname 'postgres', use_remote_estimate 'true', fetch_size '10000', batch_size '1000');"
        "create user mapping for kv server far options (user 'kv');";
    for (const char* table : kSplitTables)
        sql += Split(kv::sample::TableNamed(table), far);
    database.Run(sql);
}

}  // namespace test
