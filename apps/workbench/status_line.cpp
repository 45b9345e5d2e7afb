#include "workbench/status_line.h"

#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>
#include <QToolButton>

#include "workbench/elided_label.h"
#include "workbench/map/angle_text.h"

namespace workbench {

namespace {

constexpr int kProgressWidth = 160;
constexpr int kMessageTime = 15'000;  ///< milliseconds

}  // namespace

StatusLine::StatusLine(QStatusBar& bar)
    : QObject(&bar),
      bar_(bar),
      mode_(AddField(QString(), tr("What the mouse does"))),
      work_(new QLabel(&bar)),
      progress_(new QProgressBar(&bar)),
      cancel_(new QToolButton(&bar)) {
    progress_->setFixedWidth(kProgressWidth);
    progress_->setMaximumHeight(work_->sizeHint().height());
    progress_->setTextVisible(false);
    progress_->setAccessibleName(tr("Progress"));
    cancel_->setText(tr("Cancel"));
    cancel_->setAutoRaise(true);
    connect(cancel_, &QToolButton::clicked, this, &StatusLine::CancelPressed);
    bar.addPermanentWidget(work_);
    bar.addPermanentWidget(progress_);
    bar.addPermanentWidget(cancel_);
    mode_->hide();
    HideProgress();

    block_ = AddField(QString(), tr("Block under the mouse"));
    projected_ = AddField(QStringLiteral("0000000.00 ft  00000000.00 ft"), tr("Projected place"));
    projected_->hide();
    degrees_ = AddField(QStringLiteral("00\u00b000'00.00\"N 000\u00b000'00.00\"W"), tr("Place"));
    decimal_ = AddField(QStringLiteral("00.000000 -000.000000"), tr("Place in decimal degrees"));
}

QLabel* StatusLine::AddField(const QString& widest, const QString& name) {
    auto* field = new ElidedLabel(&bar_);
    field->setAccessibleName(name);
    field->SetWidest(widest);
    field->setAlignment(Qt::AlignCenter);
    field->setTextInteractionFlags(Qt::TextSelectableByMouse);
    bar_.addPermanentWidget(field);
    return field;
}

void StatusLine::SetProjected(ProjectedText projected) {
    project_ = std::move(projected);
    projected_->setVisible(static_cast<bool>(project_));
}

void StatusLine::ShowMode(const QString& mode) {
    mode_->setText(mode);
    mode_->setVisible(!mode.isEmpty());
}

QString StatusLine::Mode() const {
    return mode_->text();
}

void StatusLine::ShowPlace(const Place& place, const std::optional<BlockRef>& block) {
    QString name;
    if (block) {
        const std::string_view label = block->Label();
        name =
            tr("%1 %2").arg(QString::fromStdString(block->area->name),
                            QString::fromUtf8(label.data(), static_cast<qsizetype>(label.size())));
    }
    block_->setText(name);
    if (project_) projected_->setText(project_(place, block ? block->area : nullptr));
    degrees_->setText(QString::fromStdString(DegreesMinutesSeconds(place)));
    decimal_->setText(QString::fromStdString(DecimalDegrees(place)));
}

void StatusLine::ShowNoPlace() {
    for (QLabel* field : {block_, projected_, degrees_, decimal_})
        field->clear();
}

void StatusLine::ShowProgress(const QString& title, int done, int total) {
    work_->setText(title);
    progress_->setRange(0, total);
    progress_->setValue(done);
    work_->show();
    progress_->show();
    cancel_->show();
}

void StatusLine::HideProgress() {
    work_->hide();
    progress_->hide();
    cancel_->hide();
}

void StatusLine::Say(const QString& text) {
    bar_.showMessage(text, kMessageTime);
}

void StatusLine::Clear() {
    bar_.clearMessage();
}

QString StatusLine::Said() const {
    return bar_.currentMessage();
}

}  // namespace workbench
