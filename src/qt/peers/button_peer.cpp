#include "qt/peers/button_peer.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <type_traits>

#include "base/text.h"
#include "qt/drawing/paint.h"
#include "qt/drawing/text.h"
#include "qt/peers/acting.h"
#include "qt/peers/keyboard.h"
#include "window/acting/input.h"

namespace kv::qt {

namespace {

/// An image stands beside the text, unless the style asks for the image alone.
bool ShowsImageAlone(const ButtonNode& button) {
    return button.Image() != 0 && (button.Style() & (BS_ICON | BS_BITMAP)) != 0;
}

/// A button that neither goes down nor changes its check of itself: the node says how it stands.
template <typename Base>
class ButtonView : public Base {
public:
    ButtonView(ButtonNode& node, QWidget* host) : Base(host), node_(node.weak_from_this()) {
        // What is left of clicks are those of tools that act on the widget itself.
        QObject::connect(this, &QAbstractButton::clicked, this,
                         [this] { Act(node_, [](Node& button) { input::Click(button); }); });
    }

protected:
    void mousePressEvent(QMouseEvent* event) override {
        event->accept();
        if (event->button() != Qt::LeftButton) return;
        held_ = true;
        inside_ = true;
        Act(node_, [&](Node& button) {
            held_ = input::Press(button, PlaceOf(*event), ToModifiers(event->modifiers()));
        });
    }
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        event->accept();
        if (event->button() != Qt::LeftButton) return;
        held_ = true;
        inside_ = true;
        Act(node_, [&](Node& button) { held_ = input::PressAgain(button, PlaceOf(*event)); });
    }
    void mouseMoveEvent(QMouseEvent* event) override {
        const bool inside = this->rect().contains(event->position().toPoint());
        if (!held_ || inside == inside_) return;
        inside_ = inside;
        Act(node_, [inside](Node& button) { input::HoldOver(button, inside); });
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton || !held_) return;
        held_ = false;
        Act(node_, [&](Node& button) { input::Release(button, PlaceOf(*event)); });
    }
    void nextCheckState() override {}

    void paintEvent(QPaintEvent* event) override {
        const auto node = node_.lock();
        if (!node || PaintByLayer(*this, *node)) return;
        Base::paintEvent(event);
        if constexpr (std::is_same_v<Base, QPushButton>) {
            QPainter painter(this);
            MarkFocusedButton(painter, *this);
        } else {
            OutlineIndicator();
        }
    }

    void initStyleOption(QStyleOptionButton* option) const override {
        Base::initStyleOption(option);
        const auto node = node_.lock();
        if (!node || node->Destroyed()) return;
        const auto& button = static_cast<const ButtonNode&>(*node);
        option->text = ShowsImageAlone(button) ? QString() : ShownText(button);
        if (DefaultButton(*node->Host()) == node.get()) {
            option->features |= QStyleOptionButton::DefaultButton;
        }
    }

private:
    static CPoint PlaceOf(const QMouseEvent& event) {
        return CurrentScale().ToLogical(event.position().toPoint());
    }

    void OutlineIndicator() {
        constexpr bool kRound = std::is_same_v<Base, QRadioButton>;
        QStyleOptionButton option;
        initStyleOption(&option);
        QPainter painter(this);
        const QRect indicator = this->style()->subElementRect(
            kRound ? QStyle::SE_RadioButtonIndicator : QStyle::SE_CheckBoxIndicator, &option, this);
        OutlineOnDark(painter, indicator, kRound, *this);
    }

    std::weak_ptr<Node> node_;
    bool held_ = false;
    bool inside_ = false;
};

class GroupBoxView : public QGroupBox {
public:
    GroupBoxView(Node& node, QWidget* host) : QGroupBox(host), node_(node.weak_from_this()) {}

protected:
    void initStyleOption(QStyleOptionGroupBox* option) const override {
        QGroupBox::initStyleOption(option);
        if (const auto node = node_.lock()) option->text = ToQString(Trim(node->Text()));
    }

private:
    std::weak_ptr<Node> node_;
};

QAbstractButton* MakeView(ButtonNode& node, QWidget* host) {
    switch (node.Kind()) {
        case BS_AUTOCHECKBOX:
            return new ButtonView<QCheckBox>(node, host);
        case BS_AUTORADIOBUTTON:
            return new ButtonView<QRadioButton>(node, host);
        default:
            return new ButtonView<QPushButton>(node, host);
    }
}

bool IsPush(const Node& node) {
    return node.Class() == NodeClass::kButton && (node.Style() & BS_TYPEMASK) <= BS_DEFPUSHBUTTON;
}

}  // namespace

ButtonPeer::ButtonPeer(ButtonNode& node, QWidget* host) : Peer(node, MakeView(node, host)) {
    if (auto* push = qobject_cast<QPushButton*>(Widget())) push->setAutoDefault(false);
    View()->setAutoExclusive(false);
}

void ButtonPeer::ShowAll() {
    View()->setCheckable(Button().Kind() == BS_AUTOCHECKBOX ||
                         Button().Kind() == BS_AUTORADIOBUTTON);
    Peer::ShowAll();
    ShowCheck();
    ShowImage();
}

void ButtonPeer::Changed(Change change) {
    Peer::Changed(change);
    if (!Widget()) return;
    if (change == Change::kCheck) ShowCheck();
    if (change == Change::kImage) ShowImage();
    if (change == Change::kPaint) View()->setDown(Button().Pushed());
}

void ButtonPeer::ShowText() {
    View()->setText(Escaped(PlainText(GetNode().Text())));
}

void ButtonPeer::ShowCheck() {
    View()->setChecked(Button().CheckState() == BST_CHECKED);
}

void ButtonPeer::ShowImage() {
    const auto image = static_cast<int>(Button().Image());
    if (image == 0 && View()->icon().isNull()) return;
    const QPixmap pixmap = PixmapOf(image);
    if (!pixmap.isNull())
        View()->setIconSize(CurrentScale().ToScreen(CSize{pixmap.width(), pixmap.height()}));
    View()->setIcon(IconOf(image));
    if (GetNode().ToolTip().empty()) {
        View()->setToolTip(image == 0 ? QString() : PlainText(GetNode().Text()));
    }
    View()->update();
}

/// With the focus, Enter comes to another button.
void ButtonPeer::ShowFocus() {
    Peer::ShowFocus();
    ShowStyle();
}

void ButtonPeer::ShowStyle() {
    if (!GetNode().Parent() || !Widget()->isVisible()) return;
    for (const auto& sibling : GetNode().Parent()->Children()) {
        Peer* peer = IsPush(*sibling) ? PeerOf(*sibling) : nullptr;
        if (peer && peer->Widget()) peer->Widget()->update();
    }
}

GroupBoxPeer::GroupBoxPeer(ButtonNode& node, QWidget* host)
    : Peer(node, new GroupBoxView(node, host)) {
    Widget()->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void GroupBoxPeer::ShowText() {
    static_cast<QGroupBox*>(Widget())->setTitle(Escaped(PlainText(Trim(GetNode().Text()))));
}

}  // namespace kv::qt
