#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "services/kvdbkvn/engines/statement_words.h"

namespace {

void Check(bool holds) {
    if (!holds) std::abort();
}

bool OnlyReads(const std::string& sql) {
    return kv::db::ReadingOf(sql, kv::db::Quoting::kUnknown) == kv::db::Reading::kReads;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string sql(reinterpret_cast<const char*>(data), size);
    kv::db::ReadingOf(sql, kv::db::Quoting::kStandard);
    kv::db::ReadingOf(sql, kv::db::Quoting::kSqlite);
    if (!OnlyReads(sql)) return 0;
    Check(!kv::db::HoldsTwoStatements(sql));
    // What only reads does so among blanks, and no longer with anything that changes behind it.
    Check(OnlyReads(" \n" + sql + "\n "));
    for (const char* behind : {"; select 1 from dual", "\n; drop table t", "\ninto t"})
        Check(!OnlyReads(sql + behind));
    Check(!OnlyReads("delete from t where a in (" + sql + ")"));
    return 0;
}
