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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using kv::db::OnlyReads;
    const std::string sql(reinterpret_cast<const char*>(data), size);
    if (!OnlyReads(sql)) return 0;
    Check(!kv::db::HoldsTwoStatements(sql));
    // What only reads does so among blanks, and no longer with anything that changes behind it.
    Check(OnlyReads(" \n" + sql + "\n "));
    Check(!OnlyReads(sql + "; select 1 from dual"));
    Check(!OnlyReads(sql + "\n; drop table t"));
    Check(!OnlyReads(sql + "\ninto t"));
    Check(!OnlyReads("delete from t where a in (" + sql + ")"));
    return 0;
}
