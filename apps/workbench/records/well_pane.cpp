#include "workbench/records/well_pane.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTableWidget>
#include <QVBoxLayout>
#include <QValidator>

#include "frame/kvcom/misc.h"
#include "workbench/failure_words.h"

namespace workbench {

namespace {

QString Text(const std::string& text) {
    return QString::fromStdString(text);
}

/// Takes no more bytes than a comment may have.
class CommentValidator : public QValidator {
public:
    using QValidator::QValidator;
    State validate(QString& text, int&) const override {
        const auto most = static_cast<qsizetype>(well_comments::kMostText);
        return text.toUtf8().size() <= most ? Acceptable : Invalid;
    }
};

/// Who comments: the login, or where the database has none, the user of this machine.
std::string UserName() {
    std::string user;
    std::string password;
    std::string server;
    CKvMisc::GetParsedConnectString(user, password, server, false);
    return user.empty() ? qEnvironmentVariable("USER").toStdString() : user;
}

QTableWidget* MakeTable(const QStringList& headings, const QString& name, QWidget* parent) {
    auto* table = new QTableWidget(0, static_cast<int>(headings.size()), parent);
    table->setHorizontalHeaderLabels(headings);
    table->verticalHeader()->hide();
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setTabKeyNavigation(false);
    table->setAccessibleName(name);
    return table;
}

void SetRow(QTableWidget& table, int row, const std::vector<std::string>& cells) {
    for (std::size_t column = 0; column < cells.size(); ++column)
        table.setItem(row, static_cast<int>(column), new QTableWidgetItem(Text(cells[column])));
}

}  // namespace

WellPane::WellPane(QWidget* parent)
    : QWidget(parent),
      heading_(new QLabel(this)),
      record_(MakeTable({tr("Column"), tr("Value")}, tr("Record of the well"), this)),
      note_(new QLabel(this)),
      list_(MakeTable({tr("Comment"), tr("User"), tr("Date")}, tr("Comments on the well"), this)),
      field_(new QLineEdit(this)),
      room_(new QLabel(this)),
      add_(new QPushButton(tr("Add"), this)),
      change_(new QPushButton(tr("Change"), this)),
      remove_(new QPushButton(tr("Remove"), this)),
      refresh_(new QPushButton(tr("Refresh"), this)) {
    record_->horizontalHeader()->setStretchLastSection(true);
    list_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    note_->setWordWrap(true);
    field_->setPlaceholderText(tr("Comment"));
    field_->setAccessibleName(tr("Comment"));
    field_->setValidator(new CommentValidator(field_));

    auto* line = new QHBoxLayout;
    line->addWidget(field_, 1);
    line->addWidget(room_);
    for (QPushButton* button : {add_, change_, remove_, refresh_})
        line->addWidget(button);
    auto* comments = new QWidget(this);
    auto* right = new QVBoxLayout(comments);
    right->setContentsMargins(0, 0, 0, 0);
    right->addWidget(note_);
    right->addWidget(list_, 1);
    right->addLayout(line);
    auto* both = new QSplitter(this);
    both->addWidget(record_);
    both->addWidget(comments);
    both->setStretchFactor(1, 2);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(8, 6, 8, 6);
    all->addWidget(heading_);
    all->addWidget(both, 1);

    connect(list_, &QTableWidget::itemSelectionChanged, this, &WellPane::ShowField);
    connect(field_, &QLineEdit::textChanged, this, &WellPane::Enable);
    connect(field_, &QLineEdit::returnPressed, add_, &QPushButton::click);
    connect(add_, &QPushButton::clicked, this, &WellPane::Add);
    connect(change_, &QPushButton::clicked, this, &WellPane::Change);
    connect(remove_, &QPushButton::clicked, this, &WellPane::Remove);
    connect(refresh_, &QPushButton::clicked, this, &WellPane::Refresh);
    setFocusProxy(field_);
    ShowComments();
}

void WellPane::ShowWell(const ResultTable& table, int row) {
    TakeWell(table.Cell(row, 0));
    record_->setRowCount(table.ColumnCount());
    for (int column = 0; column < table.ColumnCount(); ++column) {
        SetRow(*record_, column,
               {table.columns[static_cast<std::size_t>(column)].heading, table.Cell(row, column)});
    }
    record_->resizeColumnToContents(0);
    Refresh();
}

void WellPane::Clear() {
    TakeWell({});
    record_->setRowCount(0);
    Refresh();
}

void WellPane::TakeWell(const std::string& well) {
    if (well == well_) return;
    if (field_->isModified()) drafts_[well_] = field_->text();
    well_ = well;
    // As typed by the user, so that it is kept the next time, too.
    const auto draft = drafts_.extract(well);
    field_->setText(draft.empty() ? QString() : draft.mapped());
    field_->setModified(!draft.empty());
    list_->clearSelection();
    comments_.clear();
}

/// What stood there was written.
void WellPane::EmptyField() {
    field_->setText({});
}

void WellPane::Refresh() {
    QString failure;
    unread_ = false;
    try {
        if (!well_.empty()) ReadComments();
    } catch (const CKvException& e) {
        failure = FailureWords(e);
        unread_ = true;
    }
    ShowComments();
    if (!failure.isEmpty()) emit Failed(failure);
}

void WellPane::ReadComments() {
    const bool exist = well_comments::Exist();
    comments_ = exist ? well_comments::Of(well_) : std::vector<WellComment>();
    hasTable_ = exist;
}

void WellPane::ShowComments() {
    heading_->setText(well_.empty() ? tr("Find a well, or choose one among the results.")
                                    : tr("<b>Well %1</b>").arg(Text(well_)));
    note_->setVisible(!well_.empty() && (unread_ || !hasTable_));
    note_->setText(
        unread_ ? tr("The comments could not be read. Refresh tries it again.")
                : tr("Comments cannot be shown: there is no table for them that this login may "
                     "read. Database > Create comment table... makes one."));
    const QSignalBlocker quiet(list_);
    list_->clearSelection();
    list_->setCurrentItem(nullptr);
    list_->setRowCount(static_cast<int>(comments_.size()));
    for (std::size_t i = 0; i < comments_.size(); ++i)
        SetRow(*list_, static_cast<int>(i),
               {comments_[i].text, comments_[i].user, comments_[i].date});
    list_->resizeColumnToContents(1);
    list_->resizeColumnToContents(2);
    Enable();
}

const WellComment* WellPane::Chosen() const {
    const QList<QTableWidgetItem*> items = list_->selectedItems();
    if (items.isEmpty()) return nullptr;
    return &comments_[static_cast<std::size_t>(items.constFirst()->row())];
}

void WellPane::ShowField() {
    const WellComment* chosen = Chosen();
    const bool typed = field_->isModified() && !field_->text().isEmpty();
    if (chosen && !typed) field_->setText(Text(chosen->text));
    Enable();
}

void WellPane::Enable() {
    const auto bytes = field_->text().toUtf8().size();
    room_->setText(tr("%1 of %2").arg(bytes).arg(well_comments::kMostText));
    const bool writes = hasTable_ && !well_.empty();
    const bool typed = writes && !field_->text().trimmed().isEmpty();
    const bool chosen = writes && Chosen();
    field_->setEnabled(writes);
    add_->setEnabled(typed);
    change_->setEnabled(typed && chosen);
    remove_->setEnabled(chosen);
    refresh_->setEnabled(!well_.empty());
}

/// `write` is false when the comment that it is about is another one by now.
template <typename Write>
void WellPane::Do(const Write& write) {
    QString failure;
    try {
        if (!write()) {
            failure =
                tr("Somebody else has changed or removed this comment meanwhile. It stays as "
                   "it is now; what you typed still stands in the field.");
        }
    } catch (const CKvException& e) {
        failure = FailureWords(e);
    }
    Refresh();
    if (!failure.isEmpty()) emit Failed(failure);
}

void WellPane::Add() {
    Do([this] {
        well_comments::Add(well_, field_->text().toStdString(), UserName());
        EmptyField();
        return true;
    });
}

void WellPane::Change() {
    Do([this] {
        const bool changed =
            well_comments::Change(well_, *Chosen(), field_->text().toStdString(), UserName());
        if (changed) EmptyField();
        return changed;
    });
}

/// What was removed stands in the field, from where it can be added again.
void WellPane::Remove() {
    Do([this] { return well_comments::Remove(well_, *Chosen()); });
}

}  // namespace workbench
