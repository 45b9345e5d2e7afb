#include "controls/mask.h"

#include <algorithm>

#include "base/text.h"

namespace kv {

namespace {

constexpr std::string_view kSlots = "#9?Aa&C";
constexpr std::string_view kRequired = "#?A&";

bool IsLetter(char ch) {
    return (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z');
}

bool IsPrintable(char ch) {
    return static_cast<unsigned char>(ch) >= ' ' && ch != 0x7F;
}

bool IsContinuation(char ch) {
    return (static_cast<unsigned char>(ch) & 0xC0) == 0x80;
}

}  // namespace

std::size_t SequenceSize(char lead) {
    const auto byte = static_cast<unsigned char>(lead);
    if (byte >= 0xF0 && byte <= 0xF4) return 4;
    if (byte >= 0xE0 && byte <= 0xEF) return 3;
    return byte >= 0xC2 && byte <= 0xDF ? 2 : 1;
}

std::size_t CharacterSize(std::string_view text) {
    const std::size_t size = SequenceSize(text.front());
    if (size > text.size()) return 1;
    const std::string_view rest = text.substr(1, size - 1);
    return std::all_of(rest.begin(), rest.end(), IsContinuation) ? size : 1;
}

// The mask.

std::optional<std::vector<Mask::Place>> Mask::Parse(std::string_view pattern) {
    std::vector<Place> places;
    Case letters = Case::kKept;
    while (!pattern.empty()) {
        const char first = pattern.front();
        if (first == '>' || first == '<') {
            letters = first == '>' ? Case::kUpper : Case::kLower;
            pattern.remove_prefix(1);
            continue;
        }
        const bool escaped = first == '\\' && pattern.size() > 1;
        if (escaped) pattern.remove_prefix(1);
        const std::size_t size = CharacterSize(pattern);
        const bool slot = !escaped && kSlots.find(first) != std::string_view::npos;
        if (slot) {
            places.push_back({first, letters, ""});
        } else {
            places.push_back({0, letters, std::string(pattern.substr(0, size))});
        }
        pattern.remove_prefix(size);
    }
    if (places.size() > kMostPlaces) return std::nullopt;
    return places;
}

bool Mask::SetPattern(std::string_view pattern) {
    if (pattern == pattern_) return true;
    auto places = Parse(pattern);
    if (!places) return false;
    const std::string entered = Entered();
    pattern_ = pattern;
    places_ = std::move(*places);
    Assign(entered);
    return true;
}

bool Mask::SetPrompt(char prompt) {
    if (!IsPrintable(prompt) || static_cast<unsigned char>(prompt) >= 0x80) return false;
    prompt_ = prompt;
    return true;
}

bool Mask::Accepts(const Place& place, std::string_view character) {
    const char ch = character.size() == 1 ? character.front() : '\0';
    switch (place.kind) {
        case '#':
        case '9':
            return IsDigit(ch);
        case '?':
            return IsLetter(ch);
        case 'A':
        case 'a':
            return IsLetter(ch) || IsDigit(ch);
        case '&':
        case 'C':
            return !character.empty() && IsPrintable(character.front());
        default:
            return false;
    }
}

bool Mask::IsPrompt(std::string_view character) const {
    return character.size() == 1 && character.front() == prompt_;
}

bool Mask::Put(Place& place, std::string_view character) const {
    if (IsPrompt(character) && !allowPrompt_) return false;
    if (!Accepts(place, character)) {
        if (!IsPrompt(character)) return false;
        place.text.clear();
        return true;
    }
    place.text = place.letters == Case::kUpper   ? ToUpper(character)
                 : place.letters == Case::kLower ? ToLower(character)
                                                 : std::string(character);
    return true;
}

// What it shows.

std::string Mask::ShownOf(const Place& place) const {
    return place.kind && place.text.empty() ? std::string(1, prompt_) : place.text;
}

std::string Mask::Shown() const {
    std::string shown;
    for (const Place& place : places_)
        shown += ShownOf(place);
    return shown;
}

std::string Mask::Text() const {
    std::string text;
    if (!AnythingEntered()) return text;
    for (const Place& place : places_)
        text += place.text;
    return text;
}

std::string Mask::Entered() const {
    std::string entered;
    for (const Place& place : places_) {
        if (place.kind) entered += place.text;
    }
    return entered;
}

std::string Mask::Clip(int first, int last, bool literals, bool prompts) const {
    std::string clip;
    int offset = 0;
    for (const Place& place : places_) {
        const std::string shown = ShownOf(place);
        const bool wanted = place.kind == 0 ? literals : prompts || !place.text.empty();
        if (wanted && offset >= first && offset < last) clip += shown;
        offset += static_cast<int>(shown.size());
    }
    return clip;
}

bool Mask::AnythingEntered() const {
    return std::any_of(places_.begin(), places_.end(),
                       [](const Place& place) { return place.kind && !place.text.empty(); });
}

bool Mask::Complete() const {
    return std::none_of(places_.begin(), places_.end(), [](const Place& place) {
        return place.kind && place.text.empty() &&
               kRequired.find(place.kind) != std::string_view::npos;
    });
}

bool Mask::FullAt(int offset) const {
    const auto behind = places_.begin() + static_cast<std::ptrdiff_t>(PlaceAt(offset));
    return Complete() && AnythingEntered() &&
           std::all_of(behind, places_.end(), [](const Place& place) { return place.kind == 0; });
}

// Entering.

/// The place that covers the offset; one that is behind the last one for an offset behind all.
std::size_t Mask::PlaceAt(int offset) const {
    int end = 0;
    for (std::size_t place = 0; place < places_.size(); ++place) {
        end += static_cast<int>(ShownOf(places_[place]).size());
        if (offset < end) return place;
    }
    return places_.size();
}

int Mask::OffsetOf(std::size_t place) const {
    int offset = 0;
    for (std::size_t each = 0; each < place; ++each) {
        offset += static_cast<int>(ShownOf(places_[each]).size());
    }
    return offset;
}

void Mask::Clear() {
    for (Place& place : places_) {
        if (place.kind) place.text.clear();
    }
}

/// The place behind a literal, if that is among the next literals.
std::optional<std::size_t> Mask::BehindLiteral(std::size_t place, std::string_view literal) const {
    while (place < places_.size() && places_[place].kind != 0)
        ++place;
    for (; place < places_.size() && places_[place].kind == 0; ++place) {
        if (places_[place].text == literal) return place + 1;
    }
    return std::nullopt;
}

/// The place behind the character that was entered, or none.
std::optional<std::size_t> Mask::EnterAt(std::size_t place, std::string_view character) {
    const std::size_t from = place;
    for (; place < places_.size() && places_[place].kind == 0; ++place) {
        if (places_[place].text == character) return place + 1;
    }
    if (place < places_.size() && Put(places_[place], character)) return place + 1;
    return BehindLiteral(from, character);
}

std::optional<int> Mask::Enter(int offset, std::string_view character) {
    const auto place = EnterAt(PlaceAt(offset), character);
    if (!place) return std::nullopt;
    return OffsetOf(*place);
}

int Mask::Paste(int offset, std::string_view text) {
    std::size_t place = PlaceAt(offset);
    bool entered = false;
    while (!text.empty()) {
        const std::size_t size = CharacterSize(text);
        if (const auto next = EnterAt(place, text.substr(0, size))) {
            place = *next;
            entered = true;
        }
        text.remove_prefix(size);
    }
    return entered ? OffsetOf(place) : offset;
}

bool Mask::Assign(std::string_view text) {
    Mask next = *this;
    next.Clear();
    std::size_t place = 0;
    while (!text.empty()) {
        const std::string_view character = text.substr(0, CharacterSize(text));
        text.remove_prefix(character.size());
        const bool empties = place < places_.size() && places_[place].kind && IsPrompt(character);
        if (empties) {
            ++place;
            continue;
        }
        const auto behind = next.EnterAt(place, character);
        if (!behind) return false;
        place = *behind;
    }
    *this = std::move(next);
    return true;
}

void Mask::Erase(int first, int last) {
    int offset = 0;
    for (Place& place : places_) {
        const auto size = static_cast<int>(ShownOf(place).size());
        if (place.kind && offset >= first && offset < last) place.text.clear();
        offset += size;
    }
}

int Mask::EraseAhead(int offset) {
    for (std::size_t place = PlaceAt(offset); place > 0; --place) {
        if (places_[place - 1].kind == 0) continue;
        places_[place - 1].text.clear();
        return OffsetOf(place - 1);
    }
    return offset;
}

int Mask::EraseBehind(int offset) {
    for (std::size_t place = PlaceAt(offset); place < places_.size(); ++place) {
        if (places_[place].kind == 0) continue;
        places_[place].text.clear();
        return OffsetOf(place + 1);
    }
    return offset;
}

}  // namespace kv
