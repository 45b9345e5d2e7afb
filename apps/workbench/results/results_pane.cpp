#include "workbench/results/results_pane.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <algorithm>

#include "workbench/elided_label.h"
#include "workbench/results/csv.h"
#include "workbench/results/xlsx.h"

namespace workbench {

namespace {

constexpr int kFindWidth = 260;

}  // namespace

ResultsPane::ResultsPane(QWidget* parent)
    : QWidget(parent),
      heading_(new ElidedLabel(this)),
      find_(new QLineEdit(this)),
      view_(new ResultsView(this)) {
    find_->setPlaceholderText(tr("Find"));
    find_->setAccessibleName(tr("Find in the results"));
    find_->setClearButtonEnabled(true);
    find_->setMaximumWidth(kFindWidth);
    view_->setModel(&model_);
    view_->setAccessibleName(tr("Results"));

    auto* copy = new QAction(tr("&Copy rows"), view_);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &ResultsPane::Copy);
    view_->addAction(copy);
    view_->setContextMenuPolicy(Qt::ActionsContextMenu);

    connect(view_, &ResultsView::CopyWanted, this, &ResultsPane::Copy);
    connect(find_, &QLineEdit::textChanged, this, [this](const QString& text) {
        model_.SetFilter(text.trimmed());
        ShowHeading();
        emit Changed();
    });
    connect(view_, &QTableView::activated, this, &ResultsPane::RowActivated);
    connect(view_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ResultsPane::Changed);
    connect(view_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& now) {
                emit RowChosen(now.isValid() ? model_.RowAt(now.row()) : -1);
            });

    auto* top = new QHBoxLayout;
    top->setContentsMargins(8, 6, 8, 6);
    top->setSpacing(10);
    top->addWidget(heading_, 1);
    top->addWidget(find_);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addLayout(top);
    all->addWidget(view_);
    ShowHeading();
}

void ResultsPane::SetTable(ResultTable table) {
    find_->clear();
    view_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    model_.SetTable(std::move(table));
    view_->FitColumns();
    view_->scrollToTop();
    SetCurrent(true);
    ShowHeading();
    emit RowChosen(-1);
    emit Changed();
}

void ResultsPane::ShowHeading() {
    const bool none = model_.columnCount() == 0;
    view_->horizontalHeader()->setVisible(!none);
    QFont font = this->font();
    font.setBold(!none);
    heading_->setFont(font);
    heading_->setText(none ? tr("Pick an area and a block above, choose Report, and press Run.")
                           : QString::fromStdString(model_.Table().Heading(model_.rowCount())));
}

void ResultsPane::SetCurrent(bool current) {
    const bool none = model_.columnCount() == 0;
    const auto role = current || none ? QPalette::WindowText : QPalette::PlaceholderText;
    if (heading_->foregroundRole() != role) heading_->setForegroundRole(role);
}

int ResultsPane::ChosenRow() const {
    const QModelIndex at = view_->currentIndex();
    return at.isValid() ? model_.RowAt(at.row()) : -1;
}

bool ResultsPane::HasSelection() const {
    return view_->selectionModel()->hasSelection();
}

QString ResultsPane::SelectedText() const {
    if (!HasSelection()) return {};
    std::vector<int> rows;
    for (const QModelIndex& index : view_->selectionModel()->selectedRows()) {
        rows.push_back(index.row());
    }
    std::sort(rows.begin(), rows.end());
    for (int& row : rows)
        row = model_.RowAt(row);
    return QString::fromStdString(TabSeparated(model_.Table(), rows));
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
    const auto save =
        path.endsWith(QStringLiteral(".xlsx"), Qt::CaseInsensitive) ? SaveXlsx : SaveCsv;
    const bool saved = save(model_.Table(), model_.Shown(), path.toStdString(), words);
    error = QString::fromStdString(words);
    return saved;
}

void ResultsPane::RowActivated(const QModelIndex& index) {
    const auto row = static_cast<std::size_t>(model_.RowAt(index.row()));
    const ResultTable::Key& key = model_.Table().keys[row];
    emit BlockWanted(QString::fromStdString(key.areaCode), QString::fromStdString(key.block));
}

}  // namespace workbench
