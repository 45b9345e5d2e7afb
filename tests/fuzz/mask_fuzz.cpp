#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "controls/mask.h"
#include "controls/mask_format.h"

namespace {

void Check(bool holds) {
    if (!holds) std::abort();
}

/// Whether every byte belongs to a character: others may make one up with their neighbours.
bool IsWhole(std::string_view text) {
    while (!text.empty()) {
        const std::size_t size = kv::CharacterSize(text);
        if (size == 1 && static_cast<unsigned char>(text.front()) >= 0x80) return false;
        text.remove_prefix(size);
    }
    return true;
}

/// The first line of the
/// input is the mask and the format, the rest is what is entered.
void CheckMask(std::string_view input) {
    const std::size_t line = input.find('\n');
    const std::string_view pattern = input.substr(0, line);
    const std::string entered(line == std::string_view::npos ? "" : input.substr(line + 1));

    (void)kv::FormatMasked(pattern, entered);
    kv::Mask mask;
    if (!mask.SetPattern(pattern)) {
        Check(mask.Pattern().empty() && mask.Empty());
        return;
    }
    const std::string empty = mask.Shown();
    Check(mask.Text().empty() && mask.Entered().empty() && !mask.AnythingEntered());

    int caret = 0;
    for (std::string_view rest = entered; !rest.empty();) {
        const std::size_t size = kv::CharacterSize(rest);
        const kv::Mask former = mask;
        if (const auto behind = mask.Enter(caret, rest.substr(0, size))) {
            Check(*behind > caret && *behind <= static_cast<int>(mask.Shown().size()));
            caret = *behind;
        } else {
            Check(mask.Shown() == former.Shown());
        }
        rest.remove_prefix(size);
    }
    Check(mask.Entered().size() <= entered.size());
    Check(mask.Clip(0, static_cast<int>(mask.Shown().size()), true, true) == mask.Shown());

    kv::Mask pasted = mask;
    pasted.Clear();
    Check(pasted.Shown() == empty);
    const int end = pasted.Paste(0, entered);
    Check(end >= 0 && end <= static_cast<int>(pasted.Shown().size()));
    Check(pasted.AnythingEntered() == !pasted.Entered().empty());

    // What is shown is taken back as it is.
    kv::Mask again = mask;
    if (IsWhole(pattern) && IsWhole(entered)) {
        Check(again.Assign(mask.Shown()));
        Check(again.Shown() == mask.Shown());
    }

    for (int place = static_cast<int>(mask.Shown().size()); place > 0;) {
        const int ahead = mask.EraseAhead(place);
        Check(ahead <= place);
        if (ahead == place) break;
        place = ahead;
    }
    mask.EraseBehind(0);
    mask.Erase(0, static_cast<int>(mask.Shown().size()));
    Check(mask.Shown() == empty);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CheckMask({reinterpret_cast<const char*>(data), size});
    return 0;
}
