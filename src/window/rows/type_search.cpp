#include "window/rows/type_search.h"

namespace kv {

namespace {

constexpr std::chrono::milliseconds kPause{1000};

}  // namespace

bool TypeSearch::Running(Time now) const {
    return !typed_.empty() && now >= last_ && now - last_ < kPause;
}

int TypeSearch::Type(char ch, Time now, const Find& find, int current) {
    if (!Running(now)) typed_.clear();
    last_ = now;
    typed_ += ch;
    const bool oneCharacter = typed_.find_first_not_of(ch) == std::string::npos;
    if (typed_.size() > 1) {
        // The row that fits what was typed so far may go on to fit.
        const int found = find(typed_, current - 1);
        if (found >= 0 || !oneCharacter) return found;
    }
    return find(std::string(1, ch), current);
}

int TypeSearch::Type(char ch, Time now, const RowList& rows, int current) {
    const auto find = [&rows](const std::string& text, int behind) {
        return rows.FindPrefix(text, behind);
    };
    return Type(ch, now, find, current);
}

}  // namespace kv
