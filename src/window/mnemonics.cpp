#include "window/mnemonics.h"

#include <algorithm>
#include <array>
#include <vector>

#include "base/text.h"
#include "window/dialog_keys.h"
#include "window/drawing/text_metrics.h"

namespace kv {

namespace {

constexpr std::size_t kLetters = 26;

bool IsLetter(char ch) {
    return ToUpper(ch) >= 'A' && ToUpper(ch) <= 'Z';
}

bool CanHaveMnemonic(const Node& node) {
    return node.Class() == NodeClass::kButton ||
           (node.Class() == NodeClass::kStatic && !node.HasStyle(SS_NOPREFIX));
}

bool IsField(const Node& node) {
    switch (node.Class()) {
        case NodeClass::kEdit:
        case NodeClass::kComboBox:
        case NodeClass::kListBox:
        case NodeClass::kListView:
            return true;
        case NodeClass::kButton:
            return (node.Style() & BS_TYPEMASK) == BS_OWNERDRAW && node.Text().empty();
        default:
            return false;
    }
}

std::size_t PlaceAmongSiblings(const Node& node) {
    const auto& siblings = node.Parent()->Children();
    const auto at = std::find_if(siblings.begin(), siblings.end(),
                                 [&](const auto& each) { return each.get() == &node; });
    return static_cast<std::size_t>(at - siblings.begin());
}

/// Whether a label stands close behind a spin button, or as a letter, such as D for degrees, closer
/// behind an edit.
bool IsUnit(const Node& label, const Node& ahead) {
    constexpr int kMostGap = 12;
    constexpr int kMostGapOfLetter = 4;
    const bool letter = ahead.Class() == NodeClass::kEdit && label.Text().size() == 1;
    if (ahead.Class() != NodeClass::kSpin && !letter) return false;
    const CRect& number = ahead.Rect();
    const CRect& text = label.Rect();
    const int gap = text.left - number.right;
    return gap >= 0 && gap <= (letter ? kMostGapOfLetter : kMostGap) && text.top < number.bottom &&
           text.bottom > number.top;
}

/// Of what is seen, or hidden, together with a label. Null where the label is no name of a field: a
/// unit, say.
Node* FieldBehind(const Node& label) {
    const auto& siblings = label.Parent()->Children();
    const std::size_t own = PlaceAmongSiblings(label);
    if (own > 0 && IsUnit(label, *siblings[own - 1])) return nullptr;
    for (std::size_t at = own + 1; at < siblings.size(); ++at) {
        if (siblings[at]->Visible() != label.Visible()) continue;
        return IsField(*siblings[at]) ? siblings[at].get() : nullptr;
    }
    return nullptr;
}

bool WantsMnemonic(const Node& node) {
    if (!CanHaveMnemonic(node) || MarkedMnemonicOf(node)) return false;
    return IsPushButton(node) || (node.Class() == NodeClass::kStatic && FieldBehind(node));
}

/// The letters of a text in capitals, those ahead that begin words.
std::string LettersOf(const Node& node) {
    const std::string text = WithoutMnemonic(node.Text());
    std::string first;
    std::string others;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (!IsLetter(text[at])) continue;
        const bool begins = at == 0 || !IsLetter(text[at - 1]);
        (begins ? first : others) += ToUpper(text[at]);
    }
    return first + others;
}

/// Who has which letter. One who finds no free one gets that of another who can do with a different
/// one, so that no letter is left that somebody could use.
class Letters {
public:
    void Take(char letter) { owners_[IndexOf(letter)] = kTaken; }
    void Give(Node& node) {
        std::array<bool, kLetters> tried{};
        wanting_.push_back({&node, LettersOf(node)});
        Give(wanting_.size() - 1, tried);
    }
    void Finish() const {
        for (std::size_t index = 0; index < kLetters; ++index) {
            if (owners_[index] < 0) continue;
            Node& node = *wanting_[static_cast<std::size_t>(owners_[index])].node;
            node.SetGivenMnemonic(static_cast<char>('A' + index));
        }
    }

private:
    struct Wanting {
        Node* node;
        std::string letters;
    };
    static constexpr int kFree = -2;
    static constexpr int kTaken = -1;

    static std::size_t IndexOf(char letter) { return static_cast<std::size_t>(letter - 'A'); }

    bool Give(std::size_t who, std::array<bool, kLetters>& tried) {
        for (const char letter : wanting_[who].letters) {
            int& owner = owners_[IndexOf(letter)];
            if (owner != kFree) continue;
            owner = static_cast<int>(who);
            return true;
        }
        for (const char letter : wanting_[who].letters) {
            int& owner = owners_[IndexOf(letter)];
            if (owner == kTaken || tried[IndexOf(letter)]) continue;
            tried[IndexOf(letter)] = true;
            if (!Give(static_cast<std::size_t>(owner), tried)) continue;
            owner = static_cast<int>(who);
            return true;
        }
        return false;
    }

    std::vector<Wanting> wanting_;
    std::array<int, kLetters> owners_ = [] {
        std::array<int, kLetters> owners{};
        owners.fill(kFree);
        return owners;
    }();
};

}  // namespace

Node* FieldOf(const Node& label) {
    if (label.Class() != NodeClass::kStatic || !label.Parent()) return nullptr;
    const auto& siblings = label.Parent()->Children();
    const std::size_t own = PlaceAmongSiblings(label);
    if (own == 0 || !IsUnit(label, *siblings[own - 1])) return FieldBehind(label);
    if (siblings[own - 1]->Class() != NodeClass::kSpin) return siblings[own - 1].get();
    return own > 1 && IsField(*siblings[own - 2]) ? siblings[own - 2].get() : nullptr;
}

void GiveMnemonics(Node& dialog) {
    Letters letters;
    for (const auto& child : dialog.Children()) {
        const char marked = MarkedMnemonicOf(*child);
        if (IsLetter(marked)) letters.Take(marked);
    }
    // What is seen from the start comes first.
    for (const bool visible : {true, false}) {
        for (const auto& child : dialog.Children()) {
            if (child->Visible() == visible && WantsMnemonic(*child)) letters.Give(*child);
        }
    }
    letters.Finish();
}

char MarkedMnemonicOf(const Node& node) {
    return CanHaveMnemonic(node) ? ToUpper(MnemonicOf(node.Text())) : '\0';
}

char MnemonicOf(const Node& node) {
    const char marked = MarkedMnemonicOf(node);
    return marked ? marked : node.GivenMnemonic();
}

char KeyOf(const Node& control) {
    if (!IsField(control)) return IsCaption(control) ? '\0' : MnemonicOf(control);
    const auto& siblings = control.Parent()->Children();
    for (std::size_t at = PlaceAmongSiblings(control); at-- > 0 && IsCaption(*siblings[at]);) {
        if (const char letter = MnemonicOf(*siblings[at])) return letter;
    }
    return '\0';
}

std::string MarkedText(const Node& node) {
    std::string text = node.Text();
    const char given = MarkedMnemonicOf(node) ? '\0' : node.GivenMnemonic();
    if (!given) return text;
    std::size_t place = std::string::npos;
    for (std::size_t at = text.size(); at-- > 0;) {
        const bool begins = at == 0 || !IsLetter(text[at - 1]);
        if (ToUpper(text[at]) != given) continue;
        if (begins || place == std::string::npos || IsLetter(text[place - 1])) place = at;
    }
    return place == std::string::npos ? text : text.insert(place, 1, '&');
}

}  // namespace kv
