#include "workbench/results/results_view.h"

#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QProxyStyle>
#include <QScrollBar>
#include <algorithm>
#include <array>

namespace workbench {

namespace {

/// At both sides of the texts of cells and headings, and above and below the latter.
constexpr int kCellMargin = 6;

/// Leaves more room around texts.
class RoomyStyle : public QProxyStyle {
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        if (metric == PM_FocusFrameHMargin) return kCellMargin - 1;
        if (metric == PM_HeaderMargin) return kCellMargin;
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
};

constexpr int kHeadingRoom = 2 * kCellMargin;
constexpr int kRowRoom = 8;
constexpr int kWidestColumn = 320;

void SetUp(QTableView& view) {
    auto* style = new RoomyStyle;
    style->setParent(&view);
    view.setStyle(style);
    view.horizontalHeader()->setStyle(style);
    view.setSortingEnabled(true);
    view.horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    view.horizontalHeader()->setSortIndicatorClearable(true);
    view.horizontalHeader()->setHighlightSections(false);
    view.horizontalHeader()->setFixedHeight(view.fontMetrics().height() + kHeadingRoom);
    view.verticalHeader()->setDefaultSectionSize(view.fontMetrics().height() + kRowRoom);
    view.verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setSelectionMode(QAbstractItemView::ExtendedSelection);
    view.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view.setAlternatingRowColors(true);
    view.setShowGrid(false);
    view.setWordWrap(false);
    view.setTabKeyNavigation(false);
    view.setFrameShape(QFrame::NoFrame);
}

/// How wide texts are, nearly: the letters one by one, each measured once.
class Widths {
public:
    explicit Widths(const QFontMetrics& metrics) : metrics_(metrics) { plain_.fill(-1); }

    int Of(const QString& text) {
        int width = 0;
        for (const QChar letter : text)
            width += Of(letter);
        return width;
    }

private:
    int Of(QChar letter) {
        const char16_t code = letter.unicode();
        if (code >= plain_.size()) return metrics_.horizontalAdvance(letter);
        if (plain_[code] < 0) plain_[code] = metrics_.horizontalAdvance(letter);
        return plain_[code];
    }

    QFontMetrics metrics_;
    std::array<int, 128> plain_;
};

}  // namespace

ResultsView::ResultsView(QWidget* parent) : QTableView(parent), kept_(new QTableView(this)) {
    SetUp(*this);
    SetUp(*kept_);
    kept_->verticalHeader()->hide();
    kept_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    kept_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    kept_->setFocusProxy(this);
    kept_->hide();
    connect(verticalScrollBar(), &QScrollBar::valueChanged, kept_->verticalScrollBar(),
            &QScrollBar::setValue);
    connect(kept_->verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(),
            &QScrollBar::setValue);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, &ResultsView::PlaceKept);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, &ResultsView::PlaceKept);
    connect(horizontalHeader(), &QHeaderView::sortIndicatorChanged, kept_->horizontalHeader(),
            &QHeaderView::setSortIndicator);
    connect(kept_->horizontalHeader(), &QHeaderView::sortIndicatorChanged, horizontalHeader(),
            &QHeaderView::setSortIndicator);
    connect(kept_, &QTableView::activated, this, &QTableView::activated);
}

void ResultsView::setModel(QAbstractItemModel* model) {
    QTableView::setModel(model);
    kept_->setModel(model);
    kept_->setSelectionModel(selectionModel());
    connect(model, &QAbstractItemModel::modelReset, this, &ResultsView::PlaceKept);
}

void ResultsView::FitColumns() {
    for (int column = 0; column < model()->columnCount(); ++column) {
        const int heading = horizontalHeader()->sectionSizeHint(column);
        const int widest = std::max(heading, WidestCell(column));
        setColumnWidth(column, std::min(widest, kWidestColumn));
    }
}

/// Of all rows; only the one that seems to be the widest is measured as it is drawn.
int ResultsView::WidestCell(int column) const {
    Widths widths(fontMetrics());
    QModelIndex widest;
    int width = -1;
    for (int row = 0; row < model()->rowCount(); ++row) {
        const QModelIndex index = model()->index(row, column);
        const int own = widths.Of(index.data().toString());
        if (own > width) width = own, widest = index;
    }
    return widest.isValid() ? sizeHintForIndex(widest).width() + 1 : 0;
}

void ResultsView::Enter() {
    setFocus(Qt::ShortcutFocusReason);
    SelectSomeRow();
}

void ResultsView::SelectSomeRow() {
    if (!selectionModel() || selectionModel()->hasSelection() || model()->rowCount() == 0) return;
    selectRow(currentIndex().isValid() ? currentIndex().row() : 0);
}

/// Keys that the window around would take for its own.
bool ResultsView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        auto& key = static_cast<QKeyEvent&>(*event);
        if (key.matches(QKeySequence::Copy) || key.matches(QKeySequence::SelectAll)) {
            event->accept();
            return true;
        }
    }
    return QTableView::event(event);
}

void ResultsView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        emit CopyWanted();
        event->accept();
        return;
    }
    QTableView::keyPressEvent(event);
}

void ResultsView::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        SelectSomeRow();
}

void ResultsView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    PlaceKept();
}

void ResultsView::updateGeometries() {
    QTableView::updateGeometries();
    PlaceKept();
}

void ResultsView::scrollTo(const QModelIndex& index, ScrollHint hint) {
    QTableView::scrollTo(index, hint);
    const int hidden = columnWidth(0) - columnViewportPosition(index.column());
    if (index.column() > 0 && hidden > 0)
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - hidden);
}

void ResultsView::PlaceKept() {
    if (!kept_ || !model()) return;
    const bool wanted = model()->columnCount() > 1 && horizontalScrollBar()->value() > 0;
    kept_->setVisible(wanted);
    if (!wanted) return;
    for (int column = 1; column < model()->columnCount(); ++column)
        kept_->setColumnHidden(column, true);
    kept_->setColumnWidth(0, columnWidth(0));
    kept_->setGeometry(verticalHeader()->width(), 0, columnWidth(0),
                       horizontalHeader()->height() + viewport()->height());
    kept_->verticalScrollBar()->setValue(verticalScrollBar()->value());
    kept_->raise();
}

}  // namespace workbench
