#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "services/kvdbkvn/dialect/translate.h"

using kv::dialect::Context;
using kv::dialect::Kind;
using kv::dialect::Target;
using kv::dialect::Translation;

namespace {

void Check(bool holds) {
    if (!holds) std::abort();
}

void TranslateFor(std::string_view sql, Target target, bool known) {
    Context context;
    context.target = target;
    context.hasOwnFunctions = known;
    context.hasSchema = [known](const std::string&) { return known; };
    context.columnsOf = [known](const std::string&, const std::string&) {
        using kv::dialect::Type;
        return known ? kv::dialect::Columns{{"a", Type::kText}, {"b", Type::kNumber}}
                     : kv::dialect::Columns();
    };
    const Translation translation = kv::dialect::Translate(sql, context);
    if (!translation.refusal.empty()) {
        Check(translation.text.empty() || translation.text == sql);
        return;
    }
    if (translation.kind == Kind::kUnknown) Check(!translation.notes.empty());
    if (translation.kind == Kind::kRead) Check(!translation.text.empty());
    if (target == Target::kOracle) Check(sql.starts_with(translation.text));
    if (translation.kind == Kind::kCommit && target != Target::kOracle)
        Check(translation.text == "commit");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view sql(reinterpret_cast<const char*>(data), size);
    for (const Target target : {Target::kSqlite, Target::kPostgres, Target::kOracle})
        for (const bool known : {false, true})
            TranslateFor(sql, target, known);
    return 0;
}
