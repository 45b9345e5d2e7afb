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

bool OnlyReads(const std::string& sql, kv::db::Quoting quoting) {
    return kv::db::ReadingOf(sql, quoting) == kv::db::Reading::kReads;
}

void CheckReading(const std::string& sql, kv::db::Quoting quoting) {
    if (!OnlyReads(sql, quoting)) return;
    Check(!kv::db::HoldsTwoStatements(sql));
    // What only reads does so among blanks, and no longer with anything that changes behind it.
    Check(OnlyReads(" \n" + sql + "\n ", quoting));
    for (const char* behind : {"; select 1 from dual", "\n; drop table t", "\ninto t"})
        Check(!OnlyReads(sql + behind, quoting));
    Check(!OnlyReads("delete from t where a in (" + sql + ")", quoting));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using kv::db::Quoting;
    const std::string sql(reinterpret_cast<const char*>(data), size);
    for (const Quoting quoting : {Quoting::kUnknown, Quoting::kStandard, Quoting::kSqlite})
        CheckReading(sql, quoting);
    return 0;
}
