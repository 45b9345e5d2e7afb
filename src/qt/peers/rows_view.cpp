#include "qt/peers/rows_view.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include "qt/drawing/paint.h"
#include "qt/drawing/scale.h"
#include "qt/drawing/text.h"
#include "qt/peers/acting.h"
#include "window/acting/input.h"
#include "window/acting/row_texts.h"
#include "window/acting/user.h"
#include "window/controls/combo_box_node.h"

namespace kv::qt {

namespace {

/// Draws rows as the source says they stand.
class RowDelegate : public QStyledItemDelegate {
public:
    RowDelegate(const RowSource& source, RowsView& view)
        : QStyledItemDelegate(&view), source_(source), view_(view) {}

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
        return {view_.fontMetrics().averageCharWidth(), view_.RowHeight()};
    }
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem row = option;
        initStyleOption(&row, index);
        PaintCell(*painter, row, view_);
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const int hot = view_.HotRow();
        const bool selected = hot >= 0 ? index.row() == hot : source_.Selected(index.row());
        const bool caret = index.row() == source_.CaretRow() && view_.hasFocus();
        option->state.setFlag(QStyle::State_Selected, selected);
        option->state.setFlag(QStyle::State_HasFocus, caret);
        option->state.setFlag(QStyle::State_MouseOver, false);
        option->textElideMode = Qt::ElideRight;
        const CSize room = source_.ImageSize();
        if (room.cx == 0) return;
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->decorationSize = CurrentScale().ToScreen(room);
        const Raster* image = source_.Image(index.row());
        option->icon = image ? IconOf(*image) : QIcon();
    }

private:
    const RowSource& source_;
    RowsView& view_;
};

}  // namespace

RowModel::RowModel(std::shared_ptr<RowSource> source) : source_(std::move(source)) {
    if (const RowList* rows = source_->Rows()) count_ = rows->Count();
}

int RowModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count_;
}

QVariant RowModel::data(const QModelIndex& index, int role) const {
    const RowList* rows = source_->Rows();
    const bool text = role == Qt::DisplayRole || role == Qt::EditRole;
    if (!text || !rows || !rows->Has(index.row())) return {};
    return ToQString(rows->Text(index.row()));
}

void RowModel::Inserted(int first, int count) {
    beginInsertRows({}, first, first + count - 1);
    count_ += count;
    endInsertRows();
}

void RowModel::Removed(int first, int count) {
    beginRemoveRows({}, first, first + count - 1);
    count_ -= count;
    endRemoveRows();
}

void RowModel::Reset() {
    beginResetModel();
    const RowList* rows = source_->Rows();
    count_ = rows ? rows->Count() : 0;
    endResetModel();
}

RowsView::RowsView(std::shared_ptr<RowSource> source, QWidget* parent)
    : QListView(parent), source_(source), model_(source) {
    setModel(&model_);
    setItemDelegate(new RowDelegate(*source_, *this));
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setDragDropMode(QAbstractItemView::NoDragDrop);
    setTabKeyNavigation(false);
}

int RowsView::RowHeight() const {
    const int image = CurrentScale().ToScreen(source_->ImageSize()).height();
    return std::max(fontMetrics().height(), image) + 2;
}

int RowsView::RowAt(const QPoint& at) const {
    const QModelIndex index = indexAt(at);
    return index.isValid() ? index.row() : -1;
}

void RowsView::FollowMouse() {
    followsMouse_ = true;
    viewport()->setMouseTracking(true);
    setMouseTracking(true);
}

void RowsView::RowsChanged() {
    shownCaret_ = -1;
    hotRow_ = -1;
    model_.Reset();
}

void RowsView::SelectionChanged() {
    hotRow_ = -1;
    const int caret = source_->CaretRow();
    if (caret != shownCaret_ && caret >= 0 && caret < model_.rowCount()) {
        const QModelIndex index = model_.index(caret);
        setCurrentIndex(index);
        scrollTo(index);
    }
    shownCaret_ = caret;
    viewport()->update();
}

bool RowsView::event(QEvent* event) {
    const bool done = QListView::event(event);
    if (event->type() == QEvent::Paint) PaintFocus(*this);
    return done;
}

/// An empty list tells what its tool tip does.
void RowsView::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    Peer* peer = model_.rowCount() == 0 ? PeerOf(this) : nullptr;
    if (!peer) return;
    // The rows of a combo box are those of its list.
    const auto* combo = dynamic_cast<const ComboBoxNode*>(&peer->GetNode());
    const std::string& words = combo ? combo->List().ToolTip() : peer->GetNode().ToolTip();
    if (words.empty()) return;
    QPainter painter(viewport());
    style()->drawItemText(&painter, viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap,
                          palette(), true, ToQString(words), QPalette::PlaceholderText);
}

void RowsView::mousePressEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() != Qt::LeftButton) return;
    held_ = true;
    draggedTo_ = RowAt(event->position().toPoint());
    if (onPress) onPress(draggedTo_, event->modifiers());
}

void RowsView::mouseMoveEvent(QMouseEvent* event) {
    const int row = RowAt(event->position().toPoint());
    if (followsMouse_ && row >= 0 && row != hotRow_) {
        hotRow_ = row;
        viewport()->update();
    }
    if (!held_ || row < 0 || row == draggedTo_ || !(event->buttons() & Qt::LeftButton)) return;
    draggedTo_ = row;
    if (onDrag) onDrag(row, event->modifiers());
}

void RowsView::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() != Qt::LeftButton) return;
    held_ = false;
    if (onRelease) onRelease(RowAt(event->position().toPoint()));
}

void RowsView::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() != Qt::LeftButton) return;
    const int row = RowAt(event->position().toPoint());
    if (row >= 0 && onDoubleClick) onDoubleClick(row);
}

void RowsView::contextMenuEvent(QContextMenuEvent* event) {
    if (Peer* peer = PeerOf(this)) ShowCopyMenu(*this, peer->GetNode(), event->globalPos());
}

void ShowCopyMenu(QWidget& view, Node& list, const QPoint& at) {
    auto* menu = new QMenu(&view);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto node = list.weak_from_this();
    menu->addAction(QMenu::tr("&Copy"),
                    [node] { Act(node, [](Node& each) { input::CopyRows(each); }); })
        ->setEnabled(!SelectedRows(list).empty());
    menu->popup(at);
}

}  // namespace kv::qt
