#include "qt/peers/small_peers.h"

#include <QAction>
#include <QMainWindow>
#include <QMouseEvent>
#include <QProgressBar>
#include <QToolBar>
#include <QToolButton>

#include "qt/drawing/paint.h"
#include "qt/drawing/text.h"
#include "qt/peers/acting.h"
#include "qt/peers/keyboard.h"
#include "qt/peers/wheel.h"
#include "window/acting/input.h"

namespace kv::qt {

namespace {

class ArrowButton : public QToolButton {
public:
    ArrowButton(Node& spin, bool up, QWidget* parent) : QToolButton(parent) {
        setArrowType(up ? Qt::UpArrow : Qt::DownArrow);
        setAutoRepeat(true);
        setFocusPolicy(Qt::NoFocus);
        setAccessibleName(up ? tr("Increase") : tr("Decrease"));
        const auto node = spin.weak_from_this();
        connect(this, &QToolButton::clicked, this,
                [node, up] { Act(node, [up](Node& each) { input::StepSpin(each, up); }); });
    }
};

class SpinView : public QWidget {
public:
    SpinView(SpinNode& node, QWidget* host)
        : QWidget(host),
          node_(node.weak_from_this()),
          up_(new ArrowButton(node, true, this)),
          down_(new ArrowButton(node, false, this)) {}

protected:
    void resizeEvent(QResizeEvent*) override {
        const int half = height() / 2;
        up_->setGeometry(0, 0, width(), half);
        down_->setGeometry(0, half, width(), height() - half);
        const int arrow = std::max(4, std::min(width(), half) - 6);
        up_->setIconSize({arrow, arrow});
        down_->setIconSize({arrow, arrow});
    }
    void wheelEvent(QWheelEvent* event) override {
        const int notches = wheel_.Take(*event);
        event->accept();
        Act(node_, [notches](Node& spin) { input::TurnWheel(spin, notches); });
    }

private:
    std::weak_ptr<Node> node_;
    ArrowButton* up_;
    ArrowButton* down_;
    WheelNotches wheel_;
};

class OtherView : public QWidget {
public:
    OtherView(Node& node, QWidget* host) : QWidget(host), node_(node.weak_from_this()) {}

protected:
    void paintEvent(QPaintEvent* event) override {
        const auto node = node_.lock();
        if (node && !PaintByLayer(*this, *node)) QWidget::paintEvent(event);
    }
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton) return;
        Act(node_, [&](Node& node) {
            input::Press(node, PlaceOf(*event), ToModifiers(event->modifiers()));
        });
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton) return;
        Act(node_, [&](Node& node) { input::Release(node, PlaceOf(*event)); });
    }

private:
    static CPoint PlaceOf(const QMouseEvent& event) {
        return CurrentScale().ToLogical(event.position().toPoint());
    }

    std::weak_ptr<Node> node_;
};

/// The part of the strip that a button shows.
QIcon IconAt(const QPixmap& strip, int image, CSize size) {
    if (strip.isNull() || image < 0) return {};
    return strip.copy(image * size.cx, 0, size.cx, size.cy);
}

}  // namespace

SpinPeer::SpinPeer(SpinNode& node, QWidget* host) : Peer(node, new SpinView(node, host)) {}

ProgressPeer::ProgressPeer(ProgressNode& node, QWidget* host) : Peer(node, new QProgressBar(host)) {
    static_cast<QProgressBar*>(Widget())->setTextVisible(false);
}

void ProgressPeer::ShowAll() {
    Peer::ShowAll();
    ShowPosition();
}

void ProgressPeer::Changed(Change change) {
    Peer::Changed(change);
    if (Widget() && (change == Change::kRange || change == Change::kPosition)) ShowPosition();
}

void ProgressPeer::ShowPosition() {
    const auto& node = static_cast<const ProgressNode&>(GetNode());
    auto* bar = static_cast<QProgressBar*>(Widget());
    // A bar with no range would look busy.
    bar->setRange(node.Lower(), std::max(node.Upper(), node.Lower() + 1));
    bar->setValue(node.Position());
}

ToolBarPeer::ToolBarPeer(ToolBarNode& node, QWidget* host) : Peer(node, new QToolBar(host)) {
    auto* bar = static_cast<QToolBar*>(Widget());
    bar->setObjectName(QStringLiteral("bar%1").arg(node.Id()));
    if (auto* frame = qobject_cast<QMainWindow*>(host)) frame->addToolBar(bar);
}

void ToolBarPeer::ShowAll() {
    ShowButtons();
    Peer::ShowAll();
}

void ToolBarPeer::Changed(Change change) {
    if (!Widget()) return;
    switch (change) {
        case Change::kRows:
        case Change::kImage:
        case Change::kColumns:
            ShowButtons();
            break;
        case Change::kCheck:
            ShowStates();
            break;
        default:
            Peer::Changed(change);
            break;
    }
}

/// In a frame it lies where it is docked.
void ToolBarPeer::ShowRect() {
    if (!qobject_cast<QMainWindow*>(Widget()->parentWidget())) Peer::ShowRect();
}

void ToolBarPeer::ShowText() {
    Widget()->setWindowTitle(ToQString(GetNode().Text()));
}

void ToolBarPeer::ShowButtons() {
    auto* bar = static_cast<QToolBar*>(Widget());
    bar->clear();
    bar->setIconSize(QSize(Bar().ImageSize().cx, Bar().ImageSize().cy) *
                     std::max(1, qRound(CurrentScale().y)));
    for (const ToolButton& button : Bar().Buttons()) {
        if (button.id == 0) {
            bar->addSeparator();
            continue;
        }
        QAction* action = bar->addAction(QString());
        const auto node = GetNode().weak_from_this();
        const int id = button.id;
        QObject::connect(action, &QAction::triggered, bar, [node, id] {
            Act(node, [id](Node& each) { input::PressTool(each, id); });
            // A button that can be checked has changed of itself.
            Act(node, [](Node& each) { static_cast<ToolBarPeer*>(PeerOf(each))->ShowStates(); });
        });
    }
    ShowStates();
    for (QToolButton* button : bar->findChildren<QToolButton*>()) {
        button->setFocusPolicy(Qt::NoFocus);
    }
}

void ToolBarPeer::ShowStates() {
    auto* bar = static_cast<QToolBar*>(Widget());
    const QPixmap strip = PixmapOf(Bar().Bitmap());
    const QList<QAction*> actions = bar->actions();
    bool labelled = false;
    for (qsizetype index = 0; index < actions.size(); ++index) {
        const ToolButton& button = Bar().Buttons()[static_cast<std::size_t>(index)];
        QAction* action = actions.at(index);
        if (button.id == 0) continue;
        action->setText(PlainText(button.text));
        action->setIcon(IconAt(strip, button.image, Bar().ImageSize()));
        action->setEnabled(button.enabled);
        action->setCheckable(button.checked);
        action->setChecked(button.checked);
        labelled = labelled || !button.text.empty();
    }
    const bool pictures = !strip.isNull();
    bar->setToolButtonStyle(!labelled  ? Qt::ToolButtonIconOnly
                            : pictures ? Qt::ToolButtonTextUnderIcon
                                       : Qt::ToolButtonTextOnly);
}

OtherPeer::OtherPeer(Node& node, QWidget* host) : Peer(node, new OtherView(node, host)) {}

}  // namespace kv::qt
