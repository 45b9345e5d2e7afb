#include "qt/peers/combo_box_peer.h"

#include <QAbstractListModel>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <algorithm>

#include "qt/drawing/paint.h"
#include "qt/drawing/scale.h"
#include "qt/drawing/text.h"
#include "qt/peers/acting.h"
#include "qt/peers/edit_peer.h"
#include "qt/peers/keyboard.h"
#include "qt/peers/list_box_peer.h"
#include "qt/peers/names.h"
#include "qt/peers/wheel.h"
#include "window/acting/input.h"

namespace kv::qt {

namespace {

constexpr int kMostRowsShown = 16;
/// Rows that are measured for the width of a dropped list.
constexpr int kRowsMeasured = 200;

/// The one row that a closed box shows: its text, and the image of the current row.
class TextModel : public QAbstractListModel {
public:
    explicit TextModel(ComboBoxNode& node) : node_(node.weak_from_this()) {}

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : 1; }
    QVariant data(const QModelIndex&, int role) const override {
        const auto node = node_.lock();
        if (!node || node->Destroyed()) return {};
        if (role == Qt::DisplayRole) return ToQString(node->Text());
        const auto& box = static_cast<const ComboBoxNode&>(*node);
        const Raster* image = box.RowImage(box.CurrentRow());
        return role == Qt::DecorationRole && image ? QVariant(IconOf(*image)) : QVariant();
    }
    void Changed() { emit dataChanged(index(0), index(0)); }

private:
    std::weak_ptr<Node> node_;
};

class ComboView : public QComboBox {
public:
    ComboView(ComboBoxNode& node, QWidget* host)
        : QComboBox(host), node_(node.weak_from_this()), editable_(node.Editable()), model_(node) {
        setModel(&model_);
        setCurrentIndex(0);
    }

    void RowChanged() {
        const auto node = node_.lock();
        const auto* images =
            node && !node->Destroyed() ? static_cast<ComboBoxNode&>(*node).Images() : nullptr;
        if (images) setIconSize(CurrentScale().ToScreen(images->Size()));
        model_.Changed();
        update();
    }
    /// The edit lies where the style has it.
    void PlaceEdit() {
        auto* edit = findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
        if (!edit) return;
        QStyleOptionComboBox option;
        initStyleOption(&option);
        edit->setGeometry(style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                  QStyle::SC_ComboBoxEditField, this));
    }

    void showPopup() override {
        Act(node_, [](Node& combo) { input::DropDown(combo); });
    }
    void hidePopup() override {
        Act(node_, [](Node& combo) { input::CloseList(combo); });
    }

protected:
    void mousePressEvent(QMouseEvent* event) override {
        event->accept();
        if (event->button() == Qt::LeftButton) showPopup();
    }
    void mouseReleaseEvent(QMouseEvent* event) override { event->accept(); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
    void wheelEvent(QWheelEvent* event) override {
        const int notches = wheel_.Take(*event);
        bool taken = notches == 0;
        Act(node_, [&](Node& combo) { taken = input::TurnWheel(combo, notches) || taken; });
        event->setAccepted(taken);
    }
    void resizeEvent(QResizeEvent* event) override {
        QComboBox::resizeEvent(event);
        PlaceEdit();
    }
    void changeEvent(QEvent* event) override {
        QComboBox::changeEvent(event);
        if (event->type() == QEvent::StyleChange) PlaceEdit();
    }
    void initStyleOption(QStyleOptionComboBox* option) const override {
        QComboBox::initStyleOption(option);
        const auto node = node_.lock();
        option->editable = editable_;
        if (editable_) option->currentText.clear();
        if (!node || node->Destroyed()) return;
        auto& combo = static_cast<ComboBoxNode&>(*node);
        if (combo.Dropped()) option->state |= QStyle::State_On;
        // The focus of its edit is the box's.
        const auto* edit = findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
        if (edit && edit->hasFocus()) option->state |= QStyle::State_HasFocus;
    }

private:
    std::weak_ptr<Node> node_;
    bool editable_;
    TextModel model_;
    WheelNotches wheel_;
};

/// The dropped list. A click elsewhere closes it.
class PopupFrame : public QFrame {
public:
    PopupFrame(ComboBoxNode& node, QWidget* box)
        : QFrame(box, Qt::Popup), node_(node.weak_from_this()), box_(box) {
        setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
        setAttribute(Qt::WA_WindowPropagation);
    }

protected:
    void mousePressEvent(QMouseEvent* event) override {
        const QPoint inBox = box_->mapFromGlobal(event->globalPosition().toPoint());
        // The box's own arrow closes the list; pressed anew it would open it again.
        setAttribute(Qt::WA_NoMouseReplay, box_->rect().contains(inBox));
        if (!rect().contains(event->position().toPoint())) Close();
    }
    void hideEvent(QHideEvent* event) override {
        QFrame::hideEvent(event);
        Close();
    }

private:
    void Close() {
        Act(node_, [](Node& combo) { input::CloseList(combo); });
    }

    std::weak_ptr<Node> node_;
    QWidget* box_;
};

QWidget* MakeView(ComboBoxNode& node, QWidget* host) {
    if (node.Simple()) return new QWidget(host);
    return new ComboView(node, host);
}

}  // namespace

ComboBoxPeer::ComboBoxPeer(ComboBoxNode& node, QWidget* host) : Peer(node, MakeView(node, host)) {}

ComboBoxPeer::~ComboBoxPeer() {
    if (popup_) LetGo(popup_);
}

void ComboBoxPeer::ShowAll() {
    if (EditNode* edit = Combo().Edit()) {
        auto peer = std::make_unique<EditPeer>(*edit, Widget(), Combo().Simple());
        EditPeer* shown = peer.get();
        edit->SetView(std::move(peer));
        shown->ShowAll();
    }
    if (Combo().Simple()) {
        MakeRows(Widget());
        Widget()->show();
    }
    Peer::ShowAll();
    ShowDropped();
}

void ComboBoxPeer::ShowRect() {
    Peer::ShowRect();
    Peer* edit = Combo().Simple() && Combo().Edit() ? PeerOf(*Combo().Edit()) : nullptr;
    if (!edit || !rows_) return;
    const QSize size = Widget()->size();
    const int editHeight = std::min(edit->Widget()->sizeHint().height(), size.height());
    edit->Widget()->setGeometry(0, 0, size.width(), editHeight);
    rows_->setGeometry(0, editHeight, size.width(), size.height() - editHeight);
}

void ComboBoxPeer::MakeRows(QWidget* parent) {
    const auto weak = GetNode().weak_from_this();
    rows_ = new RowsView(SourceOf(Combo().List()), parent);
    AddWidget(*this, rows_);
    rows_->setFocusPolicy(Qt::NoFocus);
    const auto pick = [weak](int row) {
        if (row < 0) return;
        Act(weak, [row](Node& combo) { input::ClickRow(combo, row); });
    };
    if (Combo().Simple()) {
        rows_->onPress = [pick](int row, Qt::KeyboardModifiers) { pick(row); };
    } else {
        rows_->onRelease = pick;
        rows_->setFrameShape(QFrame::NoFrame);
        rows_->FollowMouse();
    }
}

void ComboBoxPeer::ShowText() {
    if (auto* view = dynamic_cast<ComboView*>(Widget())) view->RowChanged();
}

void ComboBoxPeer::ShowEnabled() {
    Peer::ShowEnabled();
    if (!GetNode().Enabled() && popup_) popup_->hide();
}

void ComboBoxPeer::ShowFocus() {
    Peer::ShowFocus();
    Widget()->update();
}

void ComboBoxPeer::Changed(Change change) {
    if (!Widget()) return;
    switch (change) {
        case Change::kDropped:
            ShowDropped();
            Announce(change);
            break;
        case Change::kRows:
            if (rows_) rows_->RowsChanged();
            break;
        case Change::kSelection:
            if (rows_) rows_->SelectionChanged();
            Announce(change);
            break;
        case Change::kImage:
            if (rows_) rows_->RowsChanged();
            ShowText();
            break;
        default:
            Peer::Changed(change);
            break;
    }
}

void ComboBoxPeer::RowsInserted(int first, int count) {
    if (rows_) rows_->Model().Inserted(first, count);
}

void ComboBoxPeer::RowsRemoved(int first, int count) {
    if (rows_) rows_->Model().Removed(first, count);
}

void ComboBoxPeer::ShowDropped() {
    if (Combo().Simple()) return;
    Widget()->update();
    if (Combo().Dropped()) {
        OpenPopup();
    } else if (popup_ && popup_->isVisible()) {
        popup_->hide();
    }
}

void ComboBoxPeer::OpenPopup() {
    if (!Widget()->isVisible()) return;
    if (!popup_) {
        popup_ = new PopupFrame(Combo(), Widget());
        AddWidget(*this, popup_);
        MakeRows(popup_);
    }
    popup_->setAccessibleName(AccessibleName(GetNode()));
    rows_->setAccessibleName(AccessibleName(GetNode()));
    PlacePopup();
    popup_->show();
    rows_->SelectionChanged();
    const int current = Combo().CurrentRow();
    if (current >= 0) {
        rows_->scrollTo(rows_->model()->index(current, 0), QAbstractItemView::PositionAtCenter);
    }
}

/// Under the box, or above it where there is more room; wide enough for its rows.
void ComboBoxPeer::PlacePopup() {
    const RowList& rows = Combo().Rows();
    const int shown = std::clamp(rows.Count(), 1, kMostRowsShown);
    const int frame = 2 * popup_->frameWidth();
    int width = 0;
    for (int row = 0; row < std::min(rows.Count(), kRowsMeasured); ++row) {
        width = std::max(width, rows_->fontMetrics().horizontalAdvance(ToQString(rows.Text(row))));
    }
    if (const ImageList* images = Combo().Images())
        width += CurrentScale().ToScreen(images->Size()).width();
    const int margin = 2 * rows_->RowHeight() / 2 + rows_->verticalScrollBar()->sizeHint().width();
    const QRect screen = Widget()->screen()->availableGeometry();
    QSize size(std::clamp(width + margin + frame, Widget()->width(),
                          std::max(Widget()->width(), screen.width() / 2)),
               shown * rows_->RowHeight() + frame);
    const QPoint below = Widget()->mapToGlobal(QPoint(0, Widget()->height()));
    const QPoint above = Widget()->mapToGlobal(QPoint(0, 0));
    const int roomBelow = screen.bottom() - below.y();
    const int roomAbove = above.y() - screen.top();
    const bool up = size.height() > roomBelow && roomAbove > roomBelow;
    size.setHeight(std::min(size.height(), std::max(up ? roomAbove : roomBelow, frame + 1)));
    const int left = std::clamp(below.x(), screen.left(),
                                std::max(screen.left(), screen.right() - size.width() + 1));
    const int top = up ? above.y() - size.height() : below.y();
    popup_->setGeometry(QRect(QPoint(left, top), size));
    rows_->setGeometry(popup_->contentsRect());
}

}  // namespace kv::qt
