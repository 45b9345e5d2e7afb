#include "qt/peers/names.h"

#include <QStringList>
#include <algorithm>
#include <iterator>

#include "qt/drawing/text.h"
#include "window/list_view/list_view_node.h"
#include "window/mnemonics.h"
#include "window/named.h"

namespace kv::qt {

namespace {

bool IsNamedGroupBox(const Node& node) {
    return node.Class() == NodeClass::kButton && (node.Style() & BS_TYPEMASK) == BS_GROUPBOX &&
           !node.Text().empty();
}

bool IsLabel(const Node& node) {
    return node.Class() == NodeClass::kStatic && !node.Text().empty() &&
           (node.Style() & SS_TYPEMASK) != SS_ICON;
}

bool HasOwnText(const Node& node) {
    return ShowsOwnText(node) && !node.Text().empty();
}

bool IsPartOfCombo(const Node& node) {
    return node.Parent() && node.Parent()->Class() == NodeClass::kComboBox;
}

/// A control's text as the name of another one.
QString NameFrom(const Node& node) {
    QString name = PlainText(node.Text()).trimmed();
    if (name.endsWith(u':')) name.chop(1);
    return name;
}

/// A check box or radio button that has its text in another control.
bool IsBareCheck(const Node& node) {
    const DWORD kind = node.Style() & BS_TYPEMASK;
    return node.Class() == NodeClass::kButton && node.Text().empty() &&
           (kind == BS_AUTOCHECKBOX || kind == BS_AUTORADIOBUTTON);
}

/// The control with a text close to the right of another one, null for none.
const Node* TextBeside(const Node& node) {
    constexpr int kMostGap = 12;
    const CRect& own = node.Rect();
    for (const auto& sibling : node.Parent()->Children()) {
        const CRect& other = sibling->Rect();
        const int gap = other.left - own.right;
        const bool beside =
            gap >= 0 && gap <= kMostGap && other.top < own.bottom && other.bottom > own.top;
        if (beside && HasOwnText(*sibling)) return sibling.get();
    }
    return nullptr;
}

auto PlaceOf(const Node& node) {
    const auto& siblings = node.Parent()->Children();
    return std::find_if(siblings.begin(), siblings.end(),
                        [&](const auto& each) { return each.get() == &node; });
}

/// Whether a label is the unit of the number ahead of it, or of what the spin button there steps.
bool IsUnit(const Node& label, const Node& ahead) {
    if (ahead.Class() == NodeClass::kEdit) return FieldOf(label) == &ahead;
    return ahead.Class() == NodeClass::kSpin && TextBeside(ahead) == &label;
}

/// The unit behind a number or a spin button; null for none.
const Node* UnitOf(const Node& node) {
    const auto end = node.Parent()->Children().end();
    auto at = PlaceOf(node);
    if (at != end && node.Class() != NodeClass::kSpin) ++at;
    const Node* behind = at == end ? nullptr : at->get();
    if (behind && IsLabel(*behind) && IsUnit(*behind, node)) return behind;
    if (!behind || behind->Class() != NodeClass::kSpin) return nullptr;
    const Node* unit = TextBeside(*behind);
    return unit && IsLabel(*unit) ? unit : nullptr;
}

bool IsHeading(const Node& node) {
    return IsLabel(node) && !FieldOf(node);
}

/// Of a row of headings, which are labels of no field, the one over a control; null for none.
const Node* HeadingOf(const Node& node) {
    const auto& siblings = node.Parent()->Children();
    for (const auto& sibling : siblings) {
        const CRect& other = sibling->Rect();
        const bool over = other.left == node.Rect().left && other.bottom <= node.Rect().top;
        if (!over || sibling->Visible() != node.Visible() || !IsHeading(*sibling)) continue;
        const bool inRow = std::any_of(siblings.begin(), siblings.end(), [&](const auto& each) {
            return each != sibling && each->Rect().top == other.top && IsHeading(*each);
        });
        if (inRow) return sibling.get();
    }
    return nullptr;
}

/// The nearest label or group box ahead of a control that is no unit, null for none.
const Node* LabelAhead(const Node& node) {
    const auto first = node.Parent()->Children().begin();
    for (auto at = PlaceOf(node); at != first;) {
        --at;
        if (IsNamedGroupBox(**at)) return at->get();
        if (IsLabel(**at) && (at == first || !IsUnit(**at, **std::prev(at)))) return at->get();
    }
    return nullptr;
}

/// What the columns of a list view say, with commas between.
QString Headings(const Node& node) {
    QStringList headings;
    for (const ListColumn& column : static_cast<const ListViewNode&>(node).Columns()) {
        if (!column.text.empty()) headings.append(ToQString(column.text));
    }
    return headings.join(QStringLiteral(", "));
}

/// Whether a list view has headings, and no label directly ahead of it.
bool GoesByHeadings(const Node& node) {
    if (node.Class() != NodeClass::kListView || Headings(node).isEmpty()) return false;
    const auto own = PlaceOf(node);
    return own == node.Parent()->Children().begin() || !IsLabel(**std::prev(own));
}

struct Labels {
    const Node* label = nullptr;
    /// A unit, or what heads the column.
    const Node* more = nullptr;
};

Labels FindLabels(const Node& node) {
    if (!node.Parent() || node.Class() == NodeClass::kStatic || HasOwnText(node)) return {};
    if (IsPartOfCombo(node)) return FindLabels(*node.Parent());
    if (IsBareCheck(node)) {
        if (!node.ToolTip().empty()) return {};
        if (const Node* beside = TextBeside(node)) return {beside, nullptr};
    }
    if (GoesByHeadings(node)) return {};
    const Node* unit = UnitOf(node);
    return {LabelAhead(node), unit ? unit : HeadingOf(node)};
}

}  // namespace

bool ShowsOwnText(const Node& node) {
    switch (node.Class()) {
        case NodeClass::kButton:
        case NodeClass::kStatic:
        case NodeClass::kDialog:
        case NodeClass::kFrame:
        case NodeClass::kBar:
        case NodeClass::kToolBar:
            return true;
        default:
            return false;
    }
}

QString AccessibleName(const Node& node) {
    const auto* named = dynamic_cast<const Named*>(node.Handle());
    if (const std::string name = named ? named->SpokenName() : ""; !name.empty()) {
        return ToQString(name);
    }
    if (HasOwnText(node)) return PlainText(node.Text());
    if (IsPartOfCombo(node)) return AccessibleName(*node.Parent());
    if (!node.Parent() || node.Class() == NodeClass::kStatic) return {};
    if (GoesByHeadings(node)) return Headings(node);
    const auto [label, more] = FindLabels(node);
    if (!label && !node.ToolTip().empty()) return ToQString(node.ToolTip());
    const QString name = label ? NameFrom(*label) : PlainText(node.Parent()->Text());
    return more ? name + u' ' + NameFrom(*more) : name;
}

std::vector<const Node*> LabelsOf(const Node& node) {
    const auto [label, more] = FindLabels(node);
    std::vector<const Node*> labels;
    for (const Node* each : {label, more}) {
        if (each) labels.push_back(each);
    }
    return labels;
}

}  // namespace kv::qt
