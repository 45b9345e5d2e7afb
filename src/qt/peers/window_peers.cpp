#include "qt/peers/window_peers.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QKeyEvent>
#include <QMainWindow>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QToolBar>
#include <algorithm>
#include <utility>

#include "qt/drawing/paint.h"
#include "qt/drawing/text.h"
#include "qt/peers/acting.h"
#include "qt/peers/keyboard.h"
#include "window/acting/input.h"
#include "window/dialogs/dialog.h"
#include "window/frames/control_bar.h"
#include "window/held_back.h"
#include "window/window_system.h"

namespace kv::qt {

namespace {

constexpr int kBarMargin = 7;
/// Less than that no bar needs to show.
constexpr int kLeastBarWidth = 120;
/// What is seen around a control that was scrolled to.
constexpr int kSightMargin = 8;

QWidget* OwnerOf(const Node& node) {
    Peer* owner = node.Owner() ? PeerOf(*node.Owner()->Root()) : nullptr;
    return owner ? owner->Widget() : nullptr;
}

/// Brings a window that has just been shown to the front. Where no window manager does so, the
/// keyboard is to be fetched, too.
void ComeUp(const Node& node, QWidget& window) {
    window.raise();
    if (WindowSystem::Get().ActiveWindow() == &node) window.activateWindow();
}

/// Scrolls to the control that a widget is a part of. Where a window goes, its focus goes nowhere:
/// the area may be half gone by then.
void BringIntoView(QScrollArea& area, const QWidget* widget) {
    if (!widget) return;
    const QWidget* body = area.widget();
    if (!body->isAncestorOf(widget)) return;
    while (widget->parentWidget() != body)
        widget = widget->parentWidget();
    const QRect place = widget->geometry();
    area.ensureVisible(place.right(), place.bottom(), kSightMargin, kSightMargin);
    area.ensureVisible(place.left(), place.top(), kSightMargin, kSightMargin);
}

/// Where the corner of a window lies for all of it to be in the room, or at least that corner.
QPoint KeptIn(const QRect& room, const QRect& window) {
    const QPoint farthest = room.bottomRight() - window.bottomRight() + window.topLeft();
    return {std::max(room.left(), std::min(window.left(), farthest.x())),
            std::max(room.top(), std::min(window.top(), farthest.y()))};
}

void FollowFocus(QScrollArea& area) {
    QObject::connect(qApp, &QApplication::focusChanged, &area,
                     [&area](QWidget*, const QWidget* now) { BringIntoView(area, now); });
}

/// A window of the platform, whose user closes, moves and activates it through the layer.
template <typename Base>
class WindowView : public Base {
public:
    WindowView(Node& node, QWidget* owner) : Base(owner), node_(node.weak_from_this()) {}

    /// Takes the node's place, as far as it lies on a screen. A place that the window was dragged
    /// to is left alone.
    void Place(const CRect& rect, bool fixedSize) {
        const bool dragged = std::exchange(mirroring_, true);
        const Scale scale = CurrentScale();
        const QRect contents = scale.ToScreen(rect);
        const QScreen* screen = ScreenAround(contents.center());
        const QRect room = screen ? RoomOn(*screen) : contents;
        const QSize size = SizeFor(contents.size(), room.size());
        // A place that is only rounded otherwise is the same one.
        const CRect stands = scale.ToLogical(ClientPlace());
        if (fixedSize) {
            this->setFixedSize(size);
        } else if (!placed_ || stands.Size() != rect.Size()) {
            this->resize(size);
        }
        const QPoint inFrame = this->geometry().topLeft() - this->pos();
        const QPoint corner = KeptIn(room, QRect(contents.topLeft() - inFrame, size));
        const bool moved = stands.TopLeft() != scale.ToLogical(corner + inFrame);
        if (!placed_ || (moved && !dragged)) this->move(corner);
        placed_ = true;
        mirroring_ = dragged;
    }

protected:
    /// The window's size for contents of that size, on a screen with that room.
    virtual QSize SizeFor(const QSize& contents, const QSize& room) const {
        return contents.boundedTo(room);
    }
    /// What the contents lie on.
    virtual QWidget* Body() { return this; }

    bool event(QEvent* event) override {
        // Showing a window took this from it: what has the focus at the start is to be seen, too.
        if (event->type() == QEvent::WindowActivate) {
            this->setAttribute(Qt::WA_KeyboardFocusChange);
        }
        const bool done = Base::event(event);
        if (event->type() == QEvent::WindowActivate && !HostHasFocus()) {
            Act(node_, [](Node& window) { input::Activate(window); });
        }
        return done;
    }
    void closeEvent(QCloseEvent* event) override {
        event->ignore();
        Act(node_, [](Node& window) { input::CloseWindow(window); });
    }
    void moveEvent(QMoveEvent* event) override {
        Base::moveEvent(event);
        TellPlace();
    }
    void resizeEvent(QResizeEvent* event) override {
        Base::resizeEvent(event);
        TellPlace();
    }
    void paintEvent(QPaintEvent* event) override {
        const auto node = node_.lock();
        if (node && !PaintByLayer(*this, *node)) Base::paintEvent(event);
    }
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton) return;
        Act(node_, [&](Node& window) {
            input::Press(window, PlaceOf(*event), ToModifiers(event->modifiers()));
        });
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton) return;
        Act(node_, [&](Node& window) { input::Release(window, PlaceOf(*event)); });
    }
    void keyPressEvent(QKeyEvent* event) override { event->ignore(); }

    std::weak_ptr<Node> node_;

private:
    CPoint PlaceOf(const QMouseEvent& event) {
        return CurrentScale().ToLogical(Body()->mapFromGlobal(event.globalPosition()).toPoint());
    }
    QRect ClientPlace() const { return this->geometry(); }

    /// A widget that the host has put into the window keeps the focus.
    bool HostHasFocus() const {
        const QWidget* focus = this->focusWidget();
        Peer* peer = focus ? PeerOf(focus) : nullptr;
        return focus && focus != this && peer && peer->Widget() == this;
    }

    void TellPlace() {
        if (mirroring_ || !this->isVisible()) return;
        const auto node = node_.lock();
        if (!node || node->Destroyed()) return;
        mirroring_ = true;
        CRect rect = CurrentScale().ToLogical(ClientPlace());
        if (this->minimumSize() == this->maximumSize()) {
            rect.right = rect.left + node->Rect().Width();
            rect.bottom = rect.top + node->Rect().Height();
        }
        node->SetRect(rect);
        mirroring_ = false;
    }

    bool mirroring_ = false;
    bool placed_ = false;
};

class BodyView : public QWidget {
public:
    BodyView(Node& node, QWidget* parent) : QWidget(parent), node_(node.weak_from_this()) {}

protected:
    void paintEvent(QPaintEvent* event) override {
        const auto node = node_.lock();
        if (node && !PaintByLayer(*this, *node)) QWidget::paintEvent(event);
    }

private:
    std::weak_ptr<Node> node_;
};

/// Contents that are larger than the screen scroll.
class DialogView : public WindowView<QDialog> {
public:
    DialogView(Node& node, QWidget* owner) : WindowView(node, owner) {
        setWindowFlag(Qt::WindowContextHelpButtonHint, false);
        // The one that comes up then holds back the host's own widgets, too.
        if (HoldsBack()) setWindowModality(Qt::ApplicationModal);
        const auto* dialog = dynamic_cast<const DialogNode*>(&node);
        if (!dialog || !dialog->Modal()) return;
        setWindowModality(owner ? Qt::WindowModal : Qt::ApplicationModal);
    }
    /// It is the node that ends.
    void done(int) override {
        Act(node_, [](Node& window) { input::CloseWindow(window); });
    }

    void PlaceDialog(const CRect& rect) {
        Place(rect, true);
        const QSize contents = CurrentScale().ToScreen(rect).size();
        if (!scroll_ && contents == size()) return;
        if (!scroll_) MakeScroll();
        scroll_->setGeometry(QRect(QPoint(), size()));
        body_->setFixedSize(contents);
        // The controls take their places behind this.
        const auto bring = [this] { BringIntoView(*scroll_, QApplication::focusWidget()); };
        QMetaObject::invokeMethod(scroll_, bring, Qt::QueuedConnection);
    }
    QWidget* Body() override { return body_ ? body_ : this; }

protected:
    /// With room for the scroll bar of the other direction.
    QSize SizeFor(const QSize& contents, const QSize& room) const override {
        const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
        QSize size = contents;
        if (contents.height() > room.height()) size.rwidth() += bar;
        if (contents.width() > room.width()) size.rheight() += bar;
        return size.boundedTo(room);
    }

private:
    void MakeScroll() {
        const auto node = node_.lock();
        body_ = new BodyView(*node, nullptr);
        for (QWidget* child : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (child->isWindow()) continue;
            const bool hidden = child->isHidden();
            child->setParent(body_);
            child->setHidden(hidden);
        }
        scroll_ = new QScrollArea(this);
        scroll_->setFrameShape(QFrame::NoFrame);
        scroll_->setFocusPolicy(Qt::NoFocus);
        scroll_->setWidget(body_);
        scroll_->show();
        FollowFocus(*scroll_);
        Node* focus = WindowSystem::Get().Focus();
        if (Peer* peer = focus ? PeerOf(*focus) : nullptr) peer->Changed(Change::kFocus);
    }

    QScrollArea* scroll_ = nullptr;
    QWidget* body_ = nullptr;
};

/// What the controls of a bar in a frame lie on. In a narrow window they scroll.
class BarScroll : public QScrollArea {
public:
    BarScroll(Node& node, QWidget* bar) : QScrollArea(bar) {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setWidget(new BodyView(node, nullptr));
        // The bar is seen through it.
        widget()->setAutoFillBackground(false);
        viewport()->setAutoFillBackground(false);
        FollowFocus(*this);
    }
    void Fit(const QSize& contents) {
        widget()->setFixedSize(contents);
        updateGeometry();
        if (isVisible()) FindWhetherItScrolls();
    }
    QSize sizeHint() const override { return {widget()->width(), Height()}; }
    QSize minimumSizeHint() const override {
        return {std::min(widget()->width(), kLeastBarWidth), Height()};
    }

protected:
    void resizeEvent(QResizeEvent* event) override {
        QScrollArea::resizeEvent(event);
        BringIntoView(*this, QApplication::focusWidget());
        FindWhetherItScrolls();
    }

private:
    void FindWhetherItScrolls() {
        const bool scrolls = width() < widget()->width();
        if (scrolls == scrolls_) return;
        scrolls_ = scrolls;
        // Behind the layout that goes on.
        QMetaObject::invokeMethod(
            this, [this] { updateGeometry(); }, Qt::QueuedConnection);
    }
    /// With room for the scroll bar where there is one.
    int Height() const {
        const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
        return widget()->height() + (scrolls_ ? bar : 0);
    }

    bool scrolls_ = false;
};

QWidget* MakeBar(Node& node, QWidget* host) {
    auto* frame = qobject_cast<QMainWindow*>(host);
    if (!frame) return new BodyView(node, host);
    auto* bar = new QToolBar(frame);
    bar->setObjectName(QStringLiteral("bar%1").arg(node.Id()));
    bar->addWidget(new BarScroll(node, bar));
    frame->addToolBar(bar);
    const auto weak = node.weak_from_this();
    QObject::connect(bar, &QToolBar::visibilityChanged, bar, [weak, bar] {
        const auto shown = weak.lock();
        if (!shown || shown->Destroyed() || shown->Visible() == !bar->isHidden()) return;
        Act(weak, [bar](Node& each) { each.SetVisible(!bar->isHidden()); });
    });
    return bar;
}

BarScroll& ScrollOf(QWidget& widget) {
    const auto& bar = static_cast<const QToolBar&>(widget);
    return static_cast<BarScroll&>(*bar.widgetForAction(bar.actions().constFirst()));
}

const CControlBar* HandleOf(Node& node) {
    return dynamic_cast<CControlBar*>(node.Handle());
}

Qt::ToolBarAreas AreasOf(DWORD sides) {
    Qt::ToolBarAreas areas;
    areas.setFlag(Qt::LeftToolBarArea, sides & CBRS_ALIGN_LEFT);
    areas.setFlag(Qt::TopToolBarArea, sides & CBRS_ALIGN_TOP);
    areas.setFlag(Qt::RightToolBarArea, sides & CBRS_ALIGN_RIGHT);
    areas.setFlag(Qt::BottomToolBarArea, sides & CBRS_ALIGN_BOTTOM);
    return areas;
}

}  // namespace

const QScreen* ScreenAround(const QPoint& at) {
    const auto farFrom = [&at](const QScreen* screen) {
        const QRect area = screen->geometry();
        const int across = std::max({area.left() - at.x(), at.x() - area.right(), 0});
        const int down = std::max({area.top() - at.y(), at.y() - area.bottom(), 0});
        return across + down;
    };
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto nearest = std::ranges::min_element(screens, {}, farFrom);
    return nearest == screens.end() ? nullptr : *nearest;
}

QRect RoomOn(const QScreen& screen) {
    const QStyle& style = *QApplication::style();
    const int title = style.pixelMetric(QStyle::PM_TitleBarHeight);
    const int frame = style.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    return screen.availableGeometry().adjusted(0, 0, -2 * frame, -title - frame);
}

DialogPeer::DialogPeer(Node& node) : Peer(node, new DialogView(node, OwnerOf(node))) {}

void DialogPeer::ShowText() {
    Widget()->setWindowTitle(ToQString(GetNode().Text()));
}

void DialogPeer::ShowRect() {
    static_cast<DialogView*>(Widget())->PlaceDialog(GetNode().Rect());
}

QWidget* DialogPeer::ChildHost() {
    return static_cast<DialogView*>(Widget())->Body();
}

void DialogPeer::ShowVisible() {
    const bool visible = GetNode().Visible();
    if (visible == Widget()->isVisible()) return;
    // It may have been dragged beyond an edge, or the screen is another one.
    if (visible) ShowRect();
    Widget()->setVisible(visible);
    if (visible) ComeUp(GetNode(), *Widget());
}

FramePeer::FramePeer(Node& node) : Peer(node, new WindowView<QMainWindow>(node, nullptr)) {
    // Which bars there are is for the host to say.
    Widget()->setContextMenuPolicy(Qt::NoContextMenu);
}

void FramePeer::ShowText() {
    Widget()->setWindowTitle(ToQString(GetNode().Text()));
}

void FramePeer::ShowRect() {
    static_cast<WindowView<QMainWindow>*>(Widget())->Place(GetNode().Rect(), false);
}

void FramePeer::ShowVisible() {
    const bool visible = GetNode().Visible();
    if (visible == Widget()->isVisible()) return;
    Widget()->setVisible(visible);
    if (visible) ComeUp(GetNode(), *Widget());
}

BarPeer::BarPeer(Node& node, QWidget* host) : Peer(node, MakeBar(node, host)) {}

QMainWindow* BarPeer::Frame() const {
    return qobject_cast<QMainWindow*>(Widget()->parentWidget());
}

QWidget* BarPeer::ChildHost() {
    if (!Frame()) return Widget();
    return ScrollOf(*Widget()).widget();
}

void BarPeer::Changed(Change change) {
    Peer::Changed(change);
    if (Widget() && change == Change::kChildren) ShowRect();
}

void BarPeer::ShowText() {
    if (Frame()) Widget()->setWindowTitle(ToQString(GetNode().Text()));
}

void BarPeer::ShowVisible() {
    ShowDocking();
    Peer::ShowVisible();
}

/// In a frame it lies where it is docked, as wide as its controls ask for.
void BarPeer::ShowRect() {
    if (!Frame()) {
        Peer::ShowRect();
        return;
    }
    ShowDocking();
    CSize extent{0, GetNode().Rect().Height()};
    for (const auto& child : GetNode().Children()) {
        extent.cx = std::max(extent.cx, child->Rect().right + kBarMargin);
    }
    ScrollOf(*Widget()).Fit(CurrentScale().ToScreen(extent));
}

void BarPeer::ShowDocking() {
    const CControlBar* handle = HandleOf(GetNode());
    if (!Frame() || !handle) return;
    auto* bar = static_cast<QToolBar*>(Widget());
    const DWORD sides = handle->GetDockStyle();
    bar->setMovable(sides != 0);
    bar->setFloatable(sides != 0);
    if (sides) bar->setAllowedAreas(AreasOf(sides));
    const bool atBottom = handle->GetBarStyle() & CBRS_ALIGN_BOTTOM;
    if (atBottom && Frame()->toolBarArea(bar) != Qt::BottomToolBarArea && !Widget()->isVisible()) {
        Frame()->addToolBar(Qt::BottomToolBarArea, bar);
    }
}

}  // namespace kv::qt
