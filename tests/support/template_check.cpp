#include "support/template_check.h"

#include <algorithm>
#include <map>
#include <set>

#include "base/text.h"
#include "window/desktop.h"
#include "window/drawing/text_metrics.h"

namespace test {

namespace {

using kv::ControlKind;
using kv::ControlRow;
using kv::DialogTemplate;
using kv::DialogUnits;
using kv::NodeClass;

constexpr int kLineHeight = 13;
/// Pixels of a control's width that its text does not get.
constexpr int kCheckMark = 13 + 4;
constexpr int kButtonPadding = 2 * 6;
constexpr int kGroupBoxPadding = 2 * 8;
constexpr int kCloseButton = 40;
constexpr CSize kScreen{960, 540};
/// Where the caption of a group box stands, in dialog units.
constexpr int kCaptionIndent = 6;
constexpr int kCaptionHeight = 8;
/// From there on what has a frame of its own does not touch that of the group box.
constexpr int kInsideFrame = 12;

int TextWidth(const std::string& text) {
    return kv::MeasureText(text, {"", kLineHeight, false, false}).cx;
}

std::string Name(const ControlRow& row) {
    const std::string text = "\"" + std::string(row.text) + "\"";
    if (row.id == IDC_STATIC) return text;
    return std::to_string(row.id) + (*row.text ? " " + text : "");
}

CRect Units(const DialogUnits& place) {
    return {place.x, place.y, place.x + place.width, place.y + place.height};
}

bool Contains(const CRect& outer, const CRect& inner) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

bool TakeTurns(const ControlRow& a, const ControlRow& b) {
    return a.style.alternate > 0 && a.style.alternate == b.style.alternate;
}

/// The one pair of texts that are used as they stand though they share a mnemonic.
bool AreGivenSo(const ControlRow& a, const ControlRow& b) {
    const std::set<std::string> texts{a.text, b.text};
    return texts == std::set<std::string>{"&Cancel", "&Customize..."};
}

bool IsLabel(ControlKind kind) {
    return kind == ControlKind::kLabel || kind == ControlKind::kRightLabel ||
           kind == ControlKind::kCenterLabel;
}

/// Lines that the text takes at that width; none when a word alone is too wide.
int LinesAt(const std::string& text, int width) {
    int lines = 0;
    for (const std::string& paragraph : kv::Split(text, '\n')) {
        std::string line;
        ++lines;
        for (const std::string& word : kv::Split(paragraph, ' ')) {
            if (TextWidth(word) > width) return 0;
            const std::string longer = line.empty() ? word : line + " " + word;
            if (TextWidth(longer) > width) {
                ++lines;
                line = word;
            } else {
                line = longer;
            }
        }
    }
    return lines;
}

class Checker {
public:
    explicit Checker(const DialogTemplate& dialogTemplate) : template_(dialogTemplate) {
        for (const ControlRow& row : dialogTemplate.rows) {
            const bool visible = (kv::StyleOf(row) & WS_VISIBLE) != 0;
            if (visible || row.style.alternate > 0) rows_.push_back(&row);
        }
    }

    std::vector<std::string> Faults() {
        CheckSize();
        CheckPlaces();
        CheckOverlaps();
        CheckTexts();
        CheckMnemonics();
        CheckTabOrder();
        return std::move(faults_);
    }

private:
    void Complain(const std::string& fault) {
        faults_.push_back("dialog " + std::to_string(template_.id) + ": " + fault);
    }

    void CheckSize() {
        const CRect size = kv::ToPixels({0, 0, template_.width, template_.height});
        if (size.right <= kScreen.cx && size.bottom <= kScreen.cy) return;
        Complain("it takes " + std::to_string(size.right) + " by " + std::to_string(size.bottom) +
                 " pixels");
    }

    void CheckPlaces() {
        const CRect all{0, 0, template_.width, template_.height};
        for (const ControlRow* row : rows_) {
            if (!Contains(all, Units(row->place))) Complain(Name(*row) + " lies outside");
        }
    }

    void CheckOverlaps() {
        for (std::size_t i = 0; i < rows_.size(); ++i) {
            for (std::size_t j = i + 1; j < rows_.size(); ++j)
                CheckPair(*rows_[i], *rows_[j]);
        }
    }

    void CheckPair(const ControlRow& a, const ControlRow& b) {
        CRect common;
        if (TakeTurns(a, b) || !common.IntersectRect(Units(a.place), Units(b.place))) return;
        const bool aAround = IsAround(a, b);
        if (!aAround && !IsAround(b, a)) {
            Complain(Name(a) + " and " + Name(b) + " overlap");
            return;
        }
        const ControlRow& box = aAround ? a : b;
        const ControlRow& member = aAround ? b : a;
        if (*box.text && common.IntersectRect(CaptionOf(box), Units(member.place))) {
            Complain(Name(member) + " covers the caption of " + Name(box));
        } else if (*box.text && HasFrame(member.kind) &&
                   member.place.y < box.place.y + kInsideFrame) {
            Complain(Name(member) + " touches the frame of " + Name(box));
        }
    }

    static bool IsAround(const ControlRow& box, const ControlRow& member) {
        return box.kind == ControlKind::kGroupBox &&
               Contains(Units(box.place), Units(member.place));
    }

    static bool HasFrame(ControlKind kind) {
        return !IsLabel(kind) && kind != ControlKind::kGroupBox && kind != ControlKind::kRadio &&
               kind != ControlKind::kCheckBox;
    }

    static CRect CaptionOf(const ControlRow& box) {
        const int left = box.place.x + kCaptionIndent;
        const int width =
            (TextWidth(kv::WithoutMnemonic(box.text)) * 4 + kv::kBaseUnitX - 1) / kv::kBaseUnitX;
        return {left, box.place.y, left + width, box.place.y + kCaptionHeight};
    }

    void CheckTexts() {
        for (const ControlRow* row : rows_) {
            if (!Fits(*row)) Complain("the text of " + Name(*row) + " does not fit");
        }
        const int room = kv::ToPixels({0, 0, template_.width, 0}).Width() - kCloseButton;
        const std::string caption = template_.caption;
        if (!caption.empty() && TextWidth(caption) > room) Complain("the caption does not fit");
    }

    static bool Fits(const ControlRow& row) {
        const bool prefix = !(kv::StyleOf(row) & SS_NOPREFIX) || !IsLabel(row.kind);
        const std::string text = prefix ? kv::WithoutMnemonic(row.text) : row.text;
        if (text.empty()) return true;
        const CRect place = kv::ToPixels(row.place);
        switch (row.kind) {
            case ControlKind::kLabel:
            case ControlKind::kRightLabel:
            case ControlKind::kCenterLabel:
                return FitsInLines(text, place.Width(), place.Height());
            case ControlKind::kCheckBox:
            case ControlKind::kRadio:
                return FitsInLines(text, place.Width() - kCheckMark, place.Height());
            case ControlKind::kPushButton:
            case ControlKind::kDefaultButton:
                return FitsInLines(text, place.Width() - kButtonPadding, kLineHeight) &&
                       place.Height() >= kLineHeight;
            case ControlKind::kGroupBox:
                return TextWidth(text) <= place.Width() - kGroupBoxPadding;
            default:
                return true;
        }
    }

    static bool FitsInLines(const std::string& text, int width, int height) {
        const int lines = LinesAt(text, width);
        return lines > 0 && lines * kLineHeight <= height;
    }

    void CheckMnemonics() {
        std::map<char, std::vector<const ControlRow*>> owners;
        for (const ControlRow* row : rows_) {
            const NodeClass nodeClass = kv::ClassOf(row->kind);
            const bool can = nodeClass == NodeClass::kButton ||
                             (nodeClass == NodeClass::kStatic && IsLabel(row->kind) &&
                              !(kv::StyleOf(*row) & SS_NOPREFIX));
            const char letter = can ? kv::ToUpper(kv::MnemonicOf(row->text)) : '\0';
            if (!letter) continue;
            for (const ControlRow* other : owners[letter]) {
                if (TakeTurns(*row, *other) || AreGivenSo(*row, *other)) continue;
                Complain(Name(*other) + " and " + Name(*row) + " share the mnemonic " +
                         std::string(1, letter));
            }
            owners[letter].push_back(row);
        }
    }

    void CheckTabOrder() {
        std::vector<const ControlRow*> stops;
        for (const ControlRow* row : rows_) {
            if (kv::StyleOf(*row) & WS_TABSTOP) stops.push_back(row);
        }
        while (!stops.empty() && IsOkOrCancel(*stops.back()))
            stops.pop_back();
        CheckOrderWithin(nullptr, stops);
    }

    static bool IsOkOrCancel(const ControlRow& row) { return row.id == IDOK || row.id == IDCANCEL; }

    /// The outermost group box inside `within` (null: the dialog) that `row` is in, or else the
    /// row.
    const ControlRow* UnitOf(const ControlRow& row, const ControlRow* within) const {
        const ControlRow* unit = &row;
        for (const ControlRow* box : rows_) {
            const bool inside =
                box != within && IsAround(*box, row) && (!within || IsAround(*within, *box));
            if (inside && (unit == &row || IsAround(*box, *unit))) unit = box;
        }
        return unit;
    }

    /// Looks at the order of the units in one container, and then into each of them.
    void CheckOrderWithin(const ControlRow* container,
                          const std::vector<const ControlRow*>& stops) {
        std::vector<const ControlRow*> units;
        std::map<const ControlRow*, std::vector<const ControlRow*>> members;
        for (const ControlRow* stop : stops) {
            const ControlRow* unit = UnitOf(*stop, container);
            if (units.empty() || units.back() != unit) {
                if (members.contains(unit)) {
                    Complain("the tab order leaves " + Name(*unit) + " and comes back to it at " +
                             Name(*stop));
                }
                units.push_back(unit);
            }
            members[unit].push_back(stop);
        }
        CheckReadingOrder(units);
        for (const auto& [unit, inside] : members) {
            if (unit->kind == ControlKind::kGroupBox) CheckOrderWithin(unit, inside);
        }
    }

    void CheckReadingOrder(const std::vector<const ControlRow*>& units) {
        for (std::size_t later = 1; later < units.size(); ++later) {
            for (std::size_t earlier = later; earlier-- > 0;) {
                const ControlRow& a = *units[earlier];
                const ControlRow& b = *units[later];
                if (&a == &b || TakeTurns(a, b) || !IsReadAhead(Units(b.place), Units(a.place))) {
                    continue;
                }
                Complain("the tab order jumps back from " + Name(a) + " to " + Name(b));
                break;
            }
        }
    }

    /// Whether `b` stands ahead of `a`: to its left in the same row, or above it and not in a
    /// column to its right.
    static bool IsReadAhead(const CRect& b, const CRect& a) {
        const int overlap = std::min(a.bottom, b.bottom) - std::max(a.top, b.top);
        const bool sameRow = 2 * overlap > std::min(a.Height(), b.Height());
        if (sameRow) return b.right <= a.left;
        return b.top < a.top && b.left < a.right;
    }

    const DialogTemplate& template_;
    std::vector<const ControlRow*> rows_;
    std::vector<std::string> faults_;
};

}  // namespace

std::vector<std::string> CheckTemplate(const DialogTemplate& dialogTemplate) {
    return Checker(dialogTemplate).Faults();
}

}  // namespace test
