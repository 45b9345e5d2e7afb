#include "services/kvdbkvn/known_translations.h"

#include <algorithm>
#include <utility>

namespace kv::db {

namespace {

/// Of texts, as they came and as they were translated. One list of some thousand members fits.
constexpr std::size_t kMostBytes = std::size_t{1} << 20;

std::string KeyOf(const std::string& sql, Session& session) {
    const auto target = static_cast<char>('0' + static_cast<int>(session.Target()));
    return std::string{target, session.HasOwnFunctions() ? '+' : '-'} + sql;
}

}  // namespace

bool KnownTranslations::Holds(const Known& known, Session& session) {
    const bool schemasHold = std::ranges::all_of(known.schemas, [&](const Schema& schema) {
        return session.HasSchema(schema.name) == schema.isThere;
    });
    return schemasHold && std::ranges::all_of(known.tables, [&](const Table& table) {
               return session.ColumnsOf(table.schema, table.name) == table.columns;
           });
}

KnownTranslations::Known KnownTranslations::Translate(const std::string& sql, Session& session) {
    Known known;
    dialect::Context context;
    context.target = session.Target();
    context.hasOwnFunctions = session.HasOwnFunctions();
    context.hasSchema = [&](const std::string& name) {
        known.schemas.push_back({name, session.HasSchema(name)});
        return known.schemas.back().isThere;
    };
    context.columnsOf = [&](const std::string& schema, const std::string& table) {
        known.tables.push_back({schema, table, session.ColumnsOf(schema, table)});
        return known.tables.back().columns;
    };
    known.translation =
        std::make_shared<const dialect::Translation>(dialect::Translate(sql, context));
    return known;
}

std::shared_ptr<const dialect::Translation> KnownTranslations::Of(const std::string& sql,
                                                                  Session& session) {
    session.StatementBegins();
    const std::string key = KeyOf(sql, session);
    if (const auto found = known_.find(key); found != known_.end()) {
        if (Holds(found->second, session)) return found->second.translation;
    }
    Known known = Translate(sql, session);
    const auto translation = known.translation;
    const std::size_t bytes = key.size() + translation->text.size();
    if (bytes_ + bytes > kMostBytes) {
        known_.clear();
        bytes_ = 0;
    }
    bytes_ += bytes;
    known_.insert_or_assign(key, std::move(known));
    return translation;
}

}  // namespace kv::db
