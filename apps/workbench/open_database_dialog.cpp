#include "workbench/open_database_dialog.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace workbench {

namespace {

constexpr int kServerWidth = 380;

}  // namespace

OpenDatabaseDialog::OpenDatabaseDialog(const CKvDbInfo& current, QWidget* parent)
    : QDialog(parent),
      server_(new QLineEdit(QString::fromStdString(current.GetServer()), this)),
      user_(new QLineEdit(QString::fromStdString(current.GetUser()), this)),
      password_(new QLineEdit(this)) {
    setWindowTitle(tr("Open Database"));
    server_->setMinimumWidth(kServerWidth);
    server_->setPlaceholderText(tr("The sample database"));
    password_->setEchoMode(QLineEdit::Password);

    auto* browse = new QPushButton(tr("&Browse..."), this);
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, &OpenDatabaseDialog::Browse);
    auto* place = new QHBoxLayout;
    place->addWidget(server_);
    place->addWidget(browse);

    auto* hint = new QLabel(tr("sqlite:PATH, postgresql://HOST/DATABASE, odbc:DSN"), this);

    auto* form = new QFormLayout;
    auto* label = new QLabel(tr("&Server:"), this);
    label->setBuddy(server_);
    form->addRow(label, place);
    form->addRow(QString(), hint);
    form->addRow(tr("&User:"), user_);
    form->addRow(tr("&Password:"), password_);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("&Open"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* all = new QVBoxLayout(this);
    all->addLayout(form);
    all->addSpacing(6);
    all->addWidget(buttons);
}

CKvDbInfo OpenDatabaseDialog::Info() const {
    return {user_->text().toUtf8().constData(), password_->text().toUtf8().constData(),
            server_->text().trimmed().toUtf8().constData()};
}

void OpenDatabaseDialog::Browse() {
    const QString path = QFileDialog::getOpenFileName(
        this, tr("SQLite Database"), {},
        tr("SQLite databases (*.db *.sqlite *.sqlite3);;All files (*)"));
    if (!path.isEmpty()) server_->setText(QStringLiteral("sqlite:") + path);
}

}  // namespace workbench
