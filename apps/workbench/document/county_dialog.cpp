#include "workbench/document/county_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "frame/kvdbkvn/table_owner.h"
#include "workbench/dataset.h"

namespace workbench {

namespace {

constexpr QSize kListSize{360, 320};

}  // namespace

std::vector<County> ReadCounties() {
    const Rows rows(std::string("select county_id, state, county_name from ") +
                    CKvTableOwner().GetTableOwner().GetString() +
                    ".nvd2000_county order by state, county_name");
    std::vector<County> counties;
    for (int row = 0; row < rows.Count(); ++row)
        counties.push_back({rows.Cell(row, 0), rows.Cell(row, 1), rows.Cell(row, 2)});
    return counties;
}

CountyDialog::CountyDialog(const std::vector<County>& counties, QWidget* parent)
    : QDialog(parent),
      find_(new QLineEdit(this)),
      list_(new QListWidget(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this)) {
    setWindowTitle(tr("New Map from County"));
    find_->setClearButtonEnabled(true);
    find_->setPlaceholderText(tr("A part of a name"));
    list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list_->setMinimumSize(kListSize);
    list_->setAccessibleName(tr("Counties"));
    for (const County& county : counties) {
        auto* item =
            new QListWidgetItem(QStringLiteral("%1, %2").arg(QString::fromStdString(county.name),
                                                             QString::fromStdString(county.state)),
                                list_);
        item->setData(Qt::UserRole, QString::fromStdString(county.id));
    }
    auto* label = new QLabel(tr("&Find:"), this);
    label->setBuddy(find_);
    auto* all = new QVBoxLayout(this);
    all->addWidget(label);
    all->addWidget(find_);
    all->addWidget(list_);
    all->addWidget(new QLabel(tr("With Shift or Ctrl several counties make one map."), this));
    all->addWidget(buttons_);
    connect(find_, &QLineEdit::textChanged, this, &CountyDialog::Narrow);
    connect(list_, &QListWidget::itemSelectionChanged, this, &CountyDialog::ShowWhetherChosen);
    connect(list_, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    ShowWhetherChosen();
}

/// What is out of sight is not chosen.
void CountyDialog::Narrow(const QString& text) {
    for (int row = 0; row < list_->count(); ++row) {
        QListWidgetItem* item = list_->item(row);
        const bool fits = item->text().contains(text.trimmed(), Qt::CaseInsensitive);
        item->setHidden(!fits);
        if (!fits) item->setSelected(false);
    }
    ShowWhetherChosen();
}

void CountyDialog::ShowWhetherChosen() {
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(!list_->selectedItems().isEmpty());
}

std::vector<std::string> CountyDialog::Chosen() const {
    std::vector<std::string> ids;
    for (int row = 0; row < list_->count(); ++row) {
        const QListWidgetItem* item = list_->item(row);
        if (item->isSelected()) ids.push_back(item->data(Qt::UserRole).toString().toStdString());
    }
    return ids;
}

}  // namespace workbench
