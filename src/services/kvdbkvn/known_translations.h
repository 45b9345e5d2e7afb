#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "services/kvdbkvn/dialect/translate.h"
#include "services/kvdbkvn/engines/engine.h"

namespace kv::db {

/// What statements were translated to, since dialogs ask the same again and again. One is used
/// again as long as the session answers what its reading asked as it did then.
class KnownTranslations {
public:
    /// Throws what the session throws. The result stays whole whatever is translated next.
    std::shared_ptr<const dialect::Translation> Of(const std::string& sql, Session& session);

private:
    struct Schema {
        std::string name;
        bool isThere;
    };
    struct Table {
        std::string schema;
        std::string name;
        dialect::Columns columns;
    };
    struct Known {
        std::vector<Schema> schemas;
        std::vector<Table> tables;
        std::shared_ptr<const dialect::Translation> translation;
    };

    static bool Holds(const Known& known, Session& session);
    static Known Translate(const std::string& sql, Session& session);

    std::unordered_map<std::string, Known> known_;
    std::size_t bytes_ = 0;
};

}  // namespace kv::db
