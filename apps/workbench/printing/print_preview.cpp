#include "workbench/printing/print_preview.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <algorithm>
#include <utility>

#include "workbench/printing/page_painter.h"
#include "workbench/printing/painter_paper.h"

namespace workbench {

namespace {

constexpr QSize kFirstSize(760, 640);
constexpr int kAround = 12;  ///< pixels around the sheet

}  // namespace

PageSheet::PageSheet(const PrintPlan& plan, QWidget* parent) : QWidget(parent), plan_(plan) {
    setAccessibleName(tr("Page"));
}

void PageSheet::SetPage(std::int64_t page) {
    page_ = page;
    update();
}

void PageSheet::SetZoom(double pixels) {
    pixels_ = pixels;
    setFixedSize(static_cast<int>(plan_.sheet.width * pixels),
                 static_cast<int>(plan_.sheet.height * pixels));
    update();
}

void PageSheet::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::white);
    PainterPaper paper(painter, pixels_ / kPointsPerInch);
    emit LeftOut(DrawPage(plan_, page_, paper));
}

PrintPreview::PrintPreview(PrintPlan plan, QWidget* parent)
    : QDialog(parent),
      plan_(std::move(plan)),
      area_(new QScrollArea),
      sheet_(new PageSheet(plan_)),
      note_(new QLabel),
      where_(new QLabel) {
    setWindowTitle(tr("Print Preview"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    area_->setWidget(sheet_);
    area_->setAlignment(Qt::AlignCenter);
    area_->setBackgroundRole(QPalette::Mid);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(area_, 1);
    layout->addWidget(note_);
    layout->addLayout(MakeButtons());
    note_->setWordWrap(true);
    note_->hide();
    // Behind the painting, which the note gives another size.
    connect(sheet_, &PageSheet::LeftOut, this, &PrintPreview::ShowLeftOut, Qt::QueuedConnection);
    GoTo(0);
    resize(kFirstSize);
}

QLayout* PrintPreview::MakeButtons() {
    auto* row = new QHBoxLayout;
    const auto add = [&](const QString& text) {
        auto* button = new QPushButton(text);
        button->setAutoDefault(false);
        row->addWidget(button);
        return button;
    };
    previous_ = add(tr("&Previous"));
    row->addWidget(where_);
    next_ = add(tr("&Next"));
    row->addStretch();
    actual_ = add(tr("&Actual size"));
    auto* print = add(tr("P&rint..."));
    auto* close = add(tr("Close"));
    actual_->setCheckable(true);
    new QShortcut(Qt::Key_PageUp, previous_, previous_, &QPushButton::click);
    new QShortcut(Qt::Key_PageDown, next_, next_, &QPushButton::click);
    next_->setDefault(true);
    connect(previous_, &QPushButton::clicked, this, [this] { GoTo(page_ - 1); });
    connect(next_, &QPushButton::clicked, this, [this] { GoTo(page_ + 1); });
    connect(actual_, &QPushButton::toggled, this, &PrintPreview::Zoom);
    connect(print, &QPushButton::clicked, this, &QDialog::accept);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    return row;
}

void PrintPreview::GoTo(std::int64_t page) {
    page_ = page;
    sheet_->SetPage(page);
    where_->setText(tr("Page %1 of %2").arg(page + 1).arg(plan_.grid.Count()));
    previous_->setEnabled(page > 0);
    next_->setEnabled(page + 1 < plan_.grid.Count());
}

void PrintPreview::ShowLeftOut(const QStringList& names) {
    const QString note = NoRoomFor(names);
    if (note == note_->text()) return;
    note_->setText(note);
    note_->setVisible(!note.isEmpty());
    layout()->activate();
    Zoom();
}

void PrintPreview::Zoom() {
    const QSize room = area_->maximumViewportSize() - QSize(kAround, kAround);
    const double fitting =
        std::min(room.width() / plan_.sheet.width, room.height() / plan_.sheet.height);
    sheet_->SetZoom(actual_->isChecked() ? logicalDpiX() : std::max(fitting, 1.0));
}

void PrintPreview::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    layout()->activate();
    Zoom();
}

}  // namespace workbench
