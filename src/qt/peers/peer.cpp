#include "qt/peers/peer.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QHash>
#include <algorithm>

#include "qt/drawing/colors.h"
#include "qt/drawing/text.h"
#include "qt/peers/acting.h"
#include "qt/peers/keyboard.h"
#include "qt/peers/names.h"
#include "window/owner_draw.h"
#include "window/window_system.h"

namespace kv::qt {

namespace {

QHash<const QWidget*, Peer*>& Peers() {
    static QHash<const QWidget*, Peer*> peers;
    return peers;
}

void (*g_announce)(const Peer&, Change) = nullptr;

bool IsGroupBox(const Node& node) {
    return node.Class() == NodeClass::kButton && (node.Style() & BS_TYPEMASK) == BS_GROUPBOX;
}

/// Whether its accessible interface is the platform's own.
bool GoesByItsWidget(const Node& node) {
    const NodeClass kind = node.Class();
    return kind == NodeClass::kFrame || kind == NodeClass::kBar || kind == NodeClass::kToolBar ||
           kind == NodeClass::kOther;
}

/// Some widgets become known to screen readers while they are being made, as the platform's own;
/// also before one listens. To look whether one did would make it known.
void ForgetInterfaceOf(QWidget* widget, NodeClass kind) {
    if (kind == NodeClass::kStatic || kind == NodeClass::kButton) return;
    QAccessibleInterface* early = QAccessible::queryAccessibleInterface(widget);
    if (early) QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(early));
}

/// One for the widgets of all peers.
class KeyFilter : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!IsOfKeyboard(*event)) return false;
        Peer* peer = Peers().value(static_cast<QWidget*>(watched));
        return peer && TakeKey(*event, peer->GetNode());
    }
};

void FilterKeysOf(QWidget* widget) {
    static QPointer<KeyFilter> filter;
    if (!filter) filter = new KeyFilter(QCoreApplication::instance());
    widget->installEventFilter(filter);
}

/// What lies in a window that has left goes with it.
bool GoesWithItsWindow(const Node& node) {
    return node.Parent() && !node.Parent()->GetView();
}

}  // namespace

Peer::Peer(Node& node, QWidget* widget) : node_(node), widget_(widget) {
    ForgetInterfaceOf(widget, node.Class());
    AddWidget(*this, widget);
    widget->setFocusPolicy(Qt::NoFocus);
}

Peer::~Peer() {
    for (const QWidget* widget : widgets_) {
        if (Peers().value(widget) == this) Peers().remove(widget);
    }
    if (widget_ && !GoesWithItsWindow(node_)) LetGo(widget_);
    if (!node_.Parent()) SettleSoon();
}

Peer* PeerOf(const QWidget* widget) {
    for (; widget; widget = widget->parentWidget()) {
        if (Peer* peer = Peers().value(widget)) return peer;
    }
    return nullptr;
}

Peer* PeerOf(const Node& node) {
    return dynamic_cast<Peer*>(node.GetView());
}

void AddWidget(Peer& peer, QWidget* widget) {
    Peers().insert(widget, &peer);
    peer.widgets_.push_back(widget);
    FilterKeysOf(widget);
}

void Peer::ShowAll() {
    ShowStyle();
    ShowText();
    ShowRect();
    ShowEnabled();
    ShowColors();
    if (GoesByItsWidget(node_)) ShowOwnName();
    if (node_.OwnFont()) ShowFont();
    if (!node_.ToolTip().empty()) ShowToolTip();
    if (ChildHost()) MakeChildren();
    ShowVisible();
    if (WindowSystem::Get().Focus() == &node_) ShowFocus();
}

void Peer::Changed(Change change) {
    if (!widget_) return;
    switch (change) {
        case Change::kText:
            ShowText();
            // What can be typed is neither its own name nor another's.
            if (ShowsOwnText(node_)) ShowName();
            break;
        case Change::kRect:
            ShowRect();
            break;
        case Change::kEnabled:
            ShowEnabled();
            ShowColors();
            ShowLabels();
            SettleSoon();
            break;
        case Change::kVisible:
            ShowVisible();
            SettleSoon();
            break;
        case Change::kStyle:
        case Change::kDefault:
            ShowStyle();
            ShowColors();
            break;
        case Change::kFocus:
            ShowFocus();
            break;
        case Change::kChildren:
            if (ChildHost()) MakeChildren();
            break;
        case Change::kZOrder:
            ShowOrder();
            break;
        case Change::kPaint:
            ShowColors();
            widget_->update();
            break;
        case Change::kFont:
            ShowFont();
            break;
        case Change::kToolTip:
            ShowToolTip();
            ShowNameWithParts();
            break;
        default:
            widget_->update();
            break;
    }
    Announce(change);
}

void Peer::Announce(Change change) const {
    if (g_announce) g_announce(*this, change);
}

void SetAnnouncer(void (*announce)(const Peer&, Change)) {
    g_announce = announce;
}

void Peer::ShowRect() {
    widget_->setGeometry(CurrentScale().ToScreen(node_.Rect()));
}

void Peer::ShowEnabled() {
    widget_->setEnabled(node_.Enabled());
    // Qt takes the keyboard from what is disabled, and does not give it back.
    const bool holder = WindowSystem::Get().Focus() == &node_;
    if (holder && node_.Enabled() && !widget_->hasFocus()) widget_->setFocus(Qt::OtherFocusReason);
}

/// The label of a disabled field is grey.
void Peer::ShowLabels() {
    if (!node_.Parent()) return;
    for (const auto& sibling : node_.Parent()->Children()) {
        const bool label = sibling->Class() == NodeClass::kStatic;
        Peer* peer = label ? PeerOf(*sibling) : nullptr;
        if (peer && peer->Widget()) peer->Widget()->update();
    }
}

void Peer::ShowVisible() {
    // What nobody hid comes on the screen with the window around it.
    const QWidget* around = widget_->parentWidget();
    const bool comes =
        around && !around->isVisible() && !widget_->testAttribute(Qt::WA_WState_ExplicitShowHide);
    if (!comes || !node_.Visible()) widget_->setVisible(node_.Visible());
}

void Peer::ShowFont() {
    widget_->setFont(node_.OwnFont() ? ToQFont(*node_.OwnFont()) : QFont());
}

void Peer::ShowToolTip() {
    widget_->setToolTip(ToQString(node_.ToolTip()));
}

void Peer::ShowFocus() {
    if (WindowSystem::Get().Focus() != &node_) return;
    widget_->setFocus(Qt::OtherFocusReason);
    QWidget* window = widget_->window();
    // A style may draw the focus only where it came by a key: it is to be seen always.
    window->setAttribute(Qt::WA_KeyboardFocusChange);
    if (window->isVisible() && !window->isActiveWindow()) window->activateWindow();
}

/// The first child of the order lies in front.
void Peer::ShowOrder() {
    for (const auto& child : node_.Children()) {
        if (Peer* peer = PeerOf(*child); peer && peer->Widget()) peer->Widget()->lower();
    }
}

void Peer::MakeChildren() {
    const auto children = node_.Children();
    bool joined = false;
    bool others = false;
    for (const auto& child : children) {
        const bool fresh = !child->GetView() && !child->Destroyed();
        if (fresh) MakePeer(*child, ChildHost());
        (fresh ? joined : others) = true;
    }
    // Those that were there may go by a label that joined them.
    for (const auto& child : children) {
        Peer* peer = joined && others ? PeerOf(*child) : nullptr;
        if (peer && peer->Widget()) peer->ShowOwnName();
    }
    for (const auto& child : children) {
        Peer* peer = IsGroupBox(*child) ? PeerOf(*child) : nullptr;
        if (peer && peer->Widget()) peer->Widget()->lower();
    }
}

void Peer::ShowColors() {
    CDC context;
    const ControlColors colors = AskColors(node_, context);
    const bool field = node_.Class() == NodeClass::kEdit || node_.Class() == NodeClass::kComboBox ||
                       node_.Class() == NodeClass::kListBox ||
                       node_.Class() == NodeClass::kListView;
    const std::initializer_list<SystemColor> texts = {
        SystemColor::kWindowText, SystemColor::kButtonText, SystemColor::kGrayText};
    const std::initializer_list<SystemColor> backgrounds = {SystemColor::kWindow,
                                                            SystemColor::kButtonFace};
    const auto isPlatform = [](COLORREF color, std::initializer_list<SystemColor> own) {
        return std::any_of(own.begin(), own.end(),
                           [color](SystemColor each) { return PaletteColor(each) == color; });
    };
    QPalette palette = OwnPalette();
    if (!isPlatform(colors.text, texts)) {
        palette.setColor(field ? QPalette::Text : QPalette::WindowText, ToQColor(colors.text));
        palette.setColor(QPalette::ButtonText, ToQColor(colors.text));
    }
    const bool ownBackground = colors.background && !isPlatform(*colors.background, backgrounds);
    if (ownBackground) {
        palette.setColor(field ? QPalette::Base : QPalette::Window, ToQColor(*colors.background));
    }
    if (palette.resolveMask() == 0 && !widget_->testAttribute(Qt::WA_SetPalette)) return;
    widget_->setPalette(palette);
    widget_->setAutoFillBackground(ownBackground && !field);
}

/// The parts of a control go by its name.
void Peer::ShowNameWithParts() {
    ShowName();
    for (const auto& part : node_.Children()) {
        if (Peer* peer = PeerOf(*part); peer && peer->Widget()) peer->ShowName();
    }
}

/// A reader that asks a control for its name has it from the node.
void Peer::ShowOwnName() {
    if (GoesByItsWidget(node_)) {
        widget_->setAccessibleName(AccessibleName(node_));
    } else if (QAccessible::isActive()) {
        QAccessibleEvent event(widget_, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    }
}

void Peer::ShowName() {
    ShowOwnName();
    if (!ShowsOwnText(node_) || !node_.Parent()) return;
    // Controls without a text of their own may go by this one's.
    for (const auto& sibling : node_.Parent()->Children()) {
        const bool ownText = ShowsOwnText(*sibling) && !sibling->Text().empty();
        Peer* peer = ownText ? nullptr : PeerOf(*sibling);
        if (peer && peer->Widget()) peer->ShowOwnName();
    }
}

}  // namespace kv::qt
