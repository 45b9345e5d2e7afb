#include "window/message_map.h"

namespace kv {

const MessageEntry* MessageMap::Find(MessageEntry::Kind kind, int code, int id) const {
    for (const MessageMap* map = this; map; map = map->base) {
        for (const MessageEntry& entry : map->entries) {
            const bool anyId = kind == MessageEntry::Kind::kMessage ||
                               kind == MessageEntry::Kind::kReflected ||
                               kind == MessageEntry::Kind::kReflectedNotify;
            if (entry.kind == kind && entry.code == code &&
                (anyId || (id >= entry.first && id <= entry.last))) {
                return &entry;
            }
        }
    }
    return nullptr;
}

}  // namespace kv
