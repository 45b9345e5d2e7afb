#include "qt/peers/list_view_peer.h"

#include <QAbstractTableModel>
#include <QContextMenuEvent>
#include <QHash>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionHeader>
#include <QStyledItemDelegate>
#include <QTreeView>

#include "qt/drawing/colors.h"
#include "qt/drawing/paint.h"
#include "qt/drawing/text.h"
#include "qt/peers/acting.h"
#include "qt/peers/keyboard.h"
#include "qt/peers/rows_view.h"
#include "window/acting/input.h"

namespace kv::qt {

namespace {

constexpr UINT kCheckedImage = 0x2000;
constexpr int kRowMargin = 4;

Qt::Alignment AlignmentOf(int format) {
    if (format == LVCFMT_RIGHT) return Qt::AlignRight | Qt::AlignVCenter;
    if (format == LVCFMT_CENTER) return Qt::AlignCenter;
    return Qt::AlignLeft | Qt::AlignVCenter;
}

class CellModel : public QAbstractTableModel {
public:
    explicit CellModel(ListViewNode& list)
        : list_(list.weak_from_this()),
          rows_(list.Count()),
          columns_(static_cast<int>(list.Columns().size())) {}

    const ListViewNode* List() const {
        const auto node = list_.lock();
        return node && !node->Destroyed() ? static_cast<const ListViewNode*>(node.get()) : nullptr;
    }

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : rows_; }
    int columnCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : columns_;
    }

    QVariant data(const QModelIndex& index, int role) const override {
        const ListViewNode* list = List();
        if (!list || index.row() >= list->Count()) return {};
        const bool checks = list->ExtendedStyle() & LVS_EX_CHECKBOXES;
        switch (role) {
            case Qt::DisplayRole:
                return ToQString(list->CellText(index.row(), index.column()));
            case Qt::TextAlignmentRole:
                return static_cast<int>(AlignmentOf(Column(*list, index.column()).format));
            case Qt::CheckStateRole:
                if (!checks || index.column() != 0) return {};
                return static_cast<int>(CheckOf(list->Row(index.row()).state));
            default:
                return {};
        }
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        const ListViewNode* list = List();
        const bool inside =
            list && section >= 0 && section < static_cast<int>(list->Columns().size());
        if (!inside || orientation != Qt::Horizontal) return {};
        const ListColumn& column = Column(*list, section);
        if (role == Qt::DisplayRole) return ToQString(column.text);
        if (role == Qt::TextAlignmentRole) return static_cast<int>(AlignmentOf(column.format));
        return {};
    }

    void Inserted(int first, int count) {
        beginInsertRows({}, first, first + count - 1);
        rows_ += count;
        endInsertRows();
    }
    void Removed(int first, int count) {
        beginRemoveRows({}, first, first + count - 1);
        rows_ -= count;
        endRemoveRows();
    }
    void Reset() {
        beginResetModel();
        const ListViewNode* list = List();
        rows_ = list ? list->Count() : 0;
        columns_ = list ? static_cast<int>(list->Columns().size()) : 0;
        endResetModel();
    }
    bool HasColumnsOf(const ListViewNode& list) const {
        return columns_ == static_cast<int>(list.Columns().size());
    }

private:
    static const ListColumn& Column(const ListViewNode& list, int column) {
        return list.Columns()[static_cast<std::size_t>(column)];
    }
    static Qt::CheckState CheckOf(UINT state) {
        return (state & LVIS_STATEIMAGEMASK) == kCheckedImage ? Qt::Checked : Qt::Unchecked;
    }

    std::weak_ptr<Node> list_;
    /// What the views know of.
    int rows_;
    int columns_;
};

/// Headings that reach as far as the list does, beyond its last column.
class Headings : public QHeaderView {
public:
    explicit Headings(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {}

protected:
    /// Their texts begin where those of the cells do.
    void paintSection(QPainter* painter, const QRect& rect, int section) const override {
        QStyleOptionHeaderV2 option;
        initStyleOption(&option);
        initStyleOptionForIndex(&option, section);
        option.rect = rect;
        style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);
        const int ofCell = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
        const int own = style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
        const int more = std::max(ofCell - own, 0);
        option.rect = style()
                          ->subElementRect(QStyle::SE_HeaderLabel, &option, this)
                          .adjusted(more, 0, -more, 0);
        style()->drawControl(QStyle::CE_HeaderLabel, &option, painter, this);
    }
    void paintEvent(QPaintEvent* event) override {
        QHeaderView::paintEvent(event);
        const int end = length() - offset();
        const int rest = viewport()->width() - end;
        if (rest <= 0) return;
        QPainter painter(viewport());
        QStyleOptionHeader option;
        initStyleOption(&option);
        option.rect = QRect(end, 0, rest, viewport()->height());
        option.position = QStyleOptionHeader::End;
        style()->drawControl(QStyle::CE_HeaderSection, &option, &painter, this);
    }
};

}  // namespace

class ListTree : public QTreeView {
public:
    ListTree(ListViewNode& list, QWidget* parent);

    CellModel& Model() { return model_; }
    const ListViewNode* List() const { return model_.List(); }
    int RowHeight() const {
        const int check = style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this);
        return std::max({fontMetrics().height(), check, ImageSize().height()}) + kRowMargin;
    }
    /// Of the images beside the rows, on the screen; empty without them.
    QSize ImageSize() const {
        const ListViewNode* list = List();
        const bool shows = list && list->SmallImages();
        return shows ? CurrentScale().ToScreen(list->SmallImages()->Size()) : QSize(0, 0);
    }
    /// What a cell shows; null for none.
    QIcon IconOfCell(int row, int column);
    void ImagesChanged();

    /// Columns as the node has them: widths, order, headings.
    void ShowColumns();
    void SelectionChanged();
    void ScrollTo(int row) {
        if (row >= 0 && row < model_.rowCount({})) QTreeView::scrollTo(model_.index(row, 0));
    }

protected:
    bool event(QEvent* event) override {
        const bool done = QTreeView::event(event);
        if (event->type() == QEvent::Paint) PaintFocus(*this);
        return done;
    }
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent*) override {}
    void mouseReleaseEvent(QMouseEvent* event) override { event->accept(); }
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override { event->ignore(); }

private:
    void PressRight(const QMouseEvent& event);
    /// The row at a place, -1 for none: a row as such is what its first column shows, unless the
    /// whole of it can be picked.
    int RowAt(const QModelIndex& index) const;
    bool IsOnCheckBox(const QModelIndex& index, const QPoint& at) const;

    std::weak_ptr<Node> node_;
    CellModel model_;
    /// By the index in the list of images.
    QHash<int, QIcon> icons_;
    int shownFocus_ = -1;
    bool mirroring_ = false;
    /// Whether the parent lets the menu come up that the right button asks for.
    bool menuAllowed_ = true;
};

namespace {

class CellDelegate : public QStyledItemDelegate {
public:
    explicit CellDelegate(ListTree& tree) : QStyledItemDelegate(&tree), tree_(tree) {}

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
        return {tree_.fontMetrics().averageCharWidth(), tree_.RowHeight()};
    }

    /// The option that a cell is drawn with.
    void Prepare(QStyleOptionViewItem& option, const QModelIndex& index) const {
        initStyleOption(&option, index);
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const ListViewNode* list = tree_.List();
        if (!list || index.row() >= list->Count()) return;
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        if (cell.rect != option.rect) PaintIndent(*painter, cell, option.rect);
        PaintCell(*painter, cell, tree_);
        if (cell.features & QStyleOptionViewItem::HasCheckIndicator) {
            const QStyle::SubElement box = QStyle::SE_ItemViewItemCheckIndicator;
            OutlineOnDark(*painter, tree_.style()->subElementRect(box, &cell, &tree_), false,
                          tree_);
        }
        if (list->ExtendedStyle() & LVS_EX_GRIDLINES) PaintGrid(*painter, option);
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const ListViewNode* list = tree_.List();
        if (!list || index.row() >= list->Count()) return;
        const UINT state = list->Row(index.row()).state;
        const bool wholeRow = list->ExtendedStyle() & LVS_EX_FULLROWSELECT;
        const bool marked = state & (LVIS_SELECTED | LVIS_DROPHILITED);
        const bool selected = marked && (wholeRow || index.column() == 0);
        const bool focused =
            (state & LVIS_FOCUSED) && index.column() == 0 && tree_.hasFocus() && !wholeRow;
        option->state.setFlag(QStyle::State_Selected, selected);
        option->state.setFlag(QStyle::State_HasFocus, focused);
        option->state.setFlag(QStyle::State_MouseOver, false);
        TakeImage(*list, *option, index);
    }

private:
    /// The row's first cell begins behind its indent, with its image or the room for one.
    void TakeImage(const ListViewNode& list, QStyleOptionViewItem& option,
                   const QModelIndex& index) const {
        const bool first = index.column() == 0;
        if (first) {
            const CSize indent{list.IndentWidth(index.row()), 0};
            const int left = option.rect.left() + CurrentScale().ToScreen(indent).width();
            option.rect.setLeft(std::min(left, option.rect.right() + 1));
        }
        option.icon = tree_.IconOfCell(index.row(), index.column());
        if (option.icon.isNull() && !(first && list.SmallImages())) return;
        option.features |= QStyleOptionViewItem::HasDecoration;
        option.decorationSize = tree_.ImageSize();
        // A row that was cut is pale until it is pasted elsewhere.
        if (list.Row(index.row()).state & LVIS_CUT) {
            option.icon = QIcon(option.icon.pixmap(option.decorationSize, QIcon::Disabled));
        }
    }

    /// What is selected is so from the left edge on.
    void PaintIndent(QPainter& painter, QStyleOptionViewItem cell, const QRect& whole) const {
        const ListViewNode* list = tree_.List();
        if (!(list->ExtendedStyle() & LVS_EX_FULLROWSELECT)) return;
        cell.rect = whole;
        MakeSelectionReadable(cell.palette);
        tree_.style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, &painter, &tree_);
    }

    static void PaintGrid(QPainter& painter, const QStyleOptionViewItem& option) {
        painter.setPen(option.palette.color(QPalette::Midlight));
        const QRect& cell = option.rect;
        painter.drawLine(cell.bottomLeft(), cell.bottomRight());
        painter.drawLine(cell.topRight(), cell.bottomRight());
    }

    ListTree& tree_;
};

}  // namespace

QIcon ListTree::IconOfCell(int row, int column) {
    const ListViewNode* list = List();
    const Raster* image = list ? list->ShownImage(row, column) : nullptr;
    if (!image) return {};
    QIcon& icon = icons_[list->CellImage(row, column)];
    if (icon.isNull()) icon = IconOf(*image);
    return icon;
}

/// Where the whole row can be picked, the whole of it shows the focus.
void ListTree::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const {
    QTreeView::drawRow(painter, option, index);
    const ListViewNode* list = List();
    if (!list || index.row() >= list->Count() || !hasFocus()) return;
    const UINT state = list->Row(index.row()).state;
    if (!(state & LVIS_FOCUSED) || !(list->ExtendedStyle() & LVS_EX_FULLROWSELECT)) return;
    const QRect row(-header()->offset(), option.rect.top(), header()->length(),
                    option.rect.height());
    const bool marked = state & (LVIS_SELECTED | LVIS_DROPHILITED);
    OutlineRow(*painter, row,
               palette().color(marked ? QPalette::HighlightedText : QPalette::Highlight));
}

void ListTree::ImagesChanged() {
    icons_.clear();
    scheduleDelayedItemsLayout();
    viewport()->update();
}

ListTree::ListTree(ListViewNode& list, QWidget* parent)
    : QTreeView(parent), node_(list.weak_from_this()), model_(list) {
    setHeader(new Headings(this));
    setModel(&model_);
    setItemDelegate(new CellDelegate(*this));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setIndentation(0);
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTabKeyNavigation(false);
    header()->setFocusPolicy(Qt::NoFocus);
    header()->setSectionsClickable(true);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);
    header()->setHighlightSections(false);
    connect(header(), &QHeaderView::sectionClicked, this, [this](int column) {
        Act(node_, [column](Node& each) { input::ClickColumn(each, column); });
    });
    connect(header(), &QHeaderView::sectionHandleDoubleClicked, this, [this](int column) {
        Act(node_, [column](Node& each) { input::ResizeColumn(each, column, LVSCW_AUTOSIZE); });
    });
    connect(header(), &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        if (mirroring_) return;
        const int logical = CurrentScale().ToLogical(QSize(width, 0)).cx;
        Act(node_, [&](Node& each) { input::ResizeColumn(each, column, logical); });
    });
}

void ListTree::ShowColumns() {
    const ListViewNode* list = List();
    if (!list) return;
    mirroring_ = true;
    if (!model_.HasColumnsOf(*list)) model_.Reset();
    setHeaderHidden(list->HasStyle(LVS_NOCOLUMNHEADER));
    for (int column = 0; column < static_cast<int>(list->Columns().size()); ++column) {
        const int width = list->Columns()[static_cast<std::size_t>(column)].width;
        const int shown = CurrentScale().ToScreen(CSize{width, 0}).width();
        // A width that is only rounded otherwise is the same one.
        const int present = CurrentScale().ToLogical(QSize(header()->sectionSize(column), 0)).cx;
        header()->setSectionHidden(column, width <= 0);
        if (width > 0 && present != width) header()->resizeSection(column, shown);
    }
    for (int place = 0; place < static_cast<int>(list->ColumnOrder().size()); ++place) {
        const int column = list->ColumnOrder()[static_cast<std::size_t>(place)];
        header()->moveSection(header()->visualIndex(column), place);
    }
    mirroring_ = false;
    header()->viewport()->update();
    viewport()->update();
}

void ListTree::SelectionChanged() {
    const ListViewNode* list = List();
    if (!list) return;
    const int focused = list->FocusedRow();
    if (focused != shownFocus_ && focused >= 0 && focused < model_.rowCount({})) {
        setCurrentIndex(model_.index(focused, 0));
    }
    shownFocus_ = focused;
    viewport()->update();
}

bool ListTree::IsOnCheckBox(const QModelIndex& index, const QPoint& at) const {
    const ListViewNode* list = List();
    if (!list || !index.isValid() || index.column() != 0) return false;
    if (!(list->ExtendedStyle() & LVS_EX_CHECKBOXES)) return false;
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(index);
    static_cast<const CellDelegate*>(itemDelegate())->Prepare(option, index);
    return style()
        ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, this)
        .contains(at);
}

int ListTree::RowAt(const QModelIndex& index) const {
    const ListViewNode* list = List();
    if (!list || !index.isValid()) return -1;
    const bool whole = list->ExtendedStyle() & LVS_EX_FULLROWSELECT;
    return whole || index.column() == 0 ? index.row() : -1;
}

void ListTree::PressRight(const QMouseEvent& event) {
    const int row = RowAt(indexAt(event.position().toPoint()));
    menuAllowed_ = false;
    Act(node_, [&](Node& list) {
        menuAllowed_ = input::RightClickRow(list, row, ToModifiers(event.modifiers()));
    });
}

void ListTree::mousePressEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() == Qt::RightButton) PressRight(*event);
    if (event->button() != Qt::LeftButton) return;
    const QPoint at = event->position().toPoint();
    const QModelIndex index = indexAt(at);
    const bool checks = IsOnCheckBox(index, at);
    const int row = RowAt(index);
    Act(node_, [&](Node& list) {
        if (checks) {
            input::ToggleCheck(list, row);
        } else {
            input::ClickRow(list, row, ToModifiers(event->modifiers()));
        }
    });
}

void ListTree::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() != Qt::LeftButton) return;
    const QPoint at = event->position().toPoint();
    const QModelIndex index = indexAt(at);
    if (IsOnCheckBox(index, at)) {
        mousePressEvent(event);
    } else if (const int row = RowAt(index); row >= 0) {
        Act(node_, [row](Node& list) { input::DoubleClick(list, row); });
    }
}

void ListTree::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Mouse && !menuAllowed_) return;
    if (Peer* peer = PeerOf(this)) ShowCopyMenu(*this, peer->GetNode(), event->globalPos());
}

ListViewPeer::ListViewPeer(ListViewNode& node, QWidget* host)
    : Peer(node, new ListTree(node, host)) {}

ListTree* ListViewPeer::View() const {
    return static_cast<ListTree*>(Widget());
}

void ListViewPeer::ShowAll() {
    Peer::ShowAll();
    View()->ShowColumns();
    View()->SelectionChanged();
    View()->ScrollTo(List().VisibleRowWanted());
}

void ListViewPeer::Changed(Change change) {
    if (!Widget()) return;
    switch (change) {
        case Change::kRows:
            View()->Model().Reset();
            View()->ShowColumns();
            break;
        case Change::kColumns:
            View()->ShowColumns();
            break;
        case Change::kSelection:
            View()->SelectionChanged();
            Announce(change);
            break;
        case Change::kPosition:
            View()->ScrollTo(List().VisibleRowWanted());
            break;
        case Change::kImage:
            View()->ImagesChanged();
            break;
        case Change::kPaint:
            View()->viewport()->update();
            break;
        default:
            Peer::Changed(change);
            break;
    }
}

void ListViewPeer::RowsInserted(int first, int count) {
    if (Widget()) View()->Model().Inserted(first, count);
}

void ListViewPeer::RowsRemoved(int first, int count) {
    if (Widget()) View()->Model().Removed(first, count);
}

void ListViewPeer::ShowRect() {
    Peer::ShowRect();
    View()->ShowColumns();
}

void ListViewPeer::ShowFocus() {
    Peer::ShowFocus();
    View()->update();
    View()->viewport()->update();
}

}  // namespace kv::qt
