#include "workbench/results_pane.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProxyStyle>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

#include "workbench/csv.h"

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
constexpr int kRowsToMeasure = 200;
constexpr int kWidestColumn = 320;

}  // namespace

ResultsPane::ResultsPane(QWidget* parent)
    : QWidget(parent),
      title_(new QLabel(this)),
      find_(new QLineEdit(this)),
      count_(new QLabel(this)),
      view_(new QTableView(this)) {
    find_->setPlaceholderText(tr("Find"));
    find_->setAccessibleName(tr("Find in the results"));
    find_->setClearButtonEnabled(true);
    find_->setMaximumWidth(260);
    QFont bold = title_->font();
    bold.setBold(true);
    title_->setFont(bold);

    auto* style = new RoomyStyle;
    style->setParent(view_);
    view_->setStyle(style);
    view_->horizontalHeader()->setStyle(style);

    view_->setModel(&model_);
    view_->setAccessibleName(tr("Results"));
    view_->setSortingEnabled(true);
    view_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    view_->horizontalHeader()->setSortIndicatorClearable(true);
    view_->horizontalHeader()->setHighlightSections(false);
    view_->horizontalHeader()->setResizeContentsPrecision(kRowsToMeasure);
    view_->horizontalHeader()->setFixedHeight(view_->fontMetrics().height() + kHeadingRoom);
    view_->verticalHeader()->setDefaultSectionSize(view_->fontMetrics().height() + kRowRoom);
    view_->verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    view_->setSelectionBehavior(QAbstractItemView::SelectRows);
    view_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view_->setAlternatingRowColors(true);
    view_->setShowGrid(false);
    view_->setWordWrap(false);
    view_->setTabKeyNavigation(false);
    view_->setFrameShape(QFrame::NoFrame);

    auto* copy = new QAction(tr("&Copy rows"), view_);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &ResultsPane::Copy);
    view_->addAction(copy);
    view_->setContextMenuPolicy(Qt::ActionsContextMenu);

    connect(find_, &QLineEdit::textChanged, this, [this](const QString& text) {
        model_.SetFilter(text.trimmed());
        ShowCount();
    });
    connect(view_, &QTableView::activated, this, &ResultsPane::RowActivated);

    auto* top = new QHBoxLayout;
    top->setContentsMargins(8, 6, 8, 6);
    top->setSpacing(10);
    top->addWidget(title_);
    top->addWidget(count_);
    top->addStretch();
    top->addWidget(find_, 1);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addLayout(top);
    all->addWidget(view_);
    ShowCount();
}

void ResultsPane::SetTable(ResultTable table) {
    find_->clear();
    view_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    model_.SetTable(std::move(table));
    FitColumns();
    view_->scrollToTop();
    ShowCount();
}

void ResultsPane::FitColumns() {
    view_->resizeColumnsToContents();
    for (int column = 0; column < model_.columnCount(); ++column) {
        view_->setColumnWidth(column, std::min(view_->columnWidth(column), kWidestColumn));
    }
}

void ResultsPane::ShowCount() {
    const int all = model_.Table().RowCount();
    const int shown = model_.rowCount();
    title_->setText(QString::fromStdString(model_.Table().title));
    if (model_.columnCount() == 0) {
        count_->setText(tr("Pick an area and a block above, choose Report, and press Run."));
    } else if (shown == all) {
        count_->setText(all == 1 ? tr("1 row") : tr("%L1 rows").arg(all));
    } else {
        count_->setText(tr("%L1 of %L2 rows").arg(shown).arg(all));
    }
}

QString ResultsPane::SelectedText() const {
    std::vector<int> rows;
    for (const QModelIndex& index : view_->selectionModel()->selectedRows()) {
        rows.push_back(index.row());
    }
    std::sort(rows.begin(), rows.end());
    for (int& row : rows)
        row = model_.RowAt(row);
    return QString::fromStdString(TabSeparated(model_.Table(), rows, rows.size() > 1));
}

void ResultsPane::Copy() const {
    const QString text = SelectedText();
    if (!text.isEmpty()) QApplication::clipboard()->setText(text);
}

void ResultsPane::SelectAll() {
    view_->selectAll();
}

void ResultsPane::Find() {
    find_->setFocus(Qt::ShortcutFocusReason);
    find_->selectAll();
}

bool ResultsPane::Save(const QString& path, QString& error) const {
    std::string words;
    const bool saved = SaveCsv(model_.Table(), model_.Shown(), path.toStdString(), words);
    error = QString::fromStdString(words);
    return saved;
}

void ResultsPane::RowActivated(const QModelIndex& index) {
    const auto row = static_cast<std::size_t>(model_.RowAt(index.row()));
    const ResultTable::Key& key = model_.Table().keys[row];
    emit BlockWanted(QString::fromStdString(key.areaCode), QString::fromStdString(key.block));
}

}  // namespace workbench
