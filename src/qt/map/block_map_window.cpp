#include "qt/map/block_map_window.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "qt/drawing/text.h"
#include "qt/map/block_map_canvas.h"

namespace kv::qt {

namespace {

constexpr double kZoomPerClick = 1.5;
constexpr int kPickListWidth = 220;

QString NameOf(const MapBlock& block) {
    return ToQString(block.area + " " + block.Label());
}

}  // namespace

BlockMapWindow::BlockMapWindow(std::vector<MapBlock> blocks, QWidget* parent)
    : QDialog(parent), canvas_(new BlockMapCanvas(std::move(blocks))) {
    setWindowTitle(tr("Select Blocks from Map"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    canvas_->onPicksChanged = [this] { ShowPicks(); };
    canvas_->onHovered = [this] { ShowHovered(); };

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    ok_ = buttons->button(QDialogButtonBox::Ok);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    hovered_ = new QLabel;
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(hovered_, 1);
    bottom->addWidget(buttons);

    auto* middle = new QHBoxLayout;
    middle->addWidget(canvas_, 1);
    middle->addWidget(MakePickList());
    auto* all = new QVBoxLayout(this);
    all->addWidget(MakeTools());
    all->addLayout(middle, 1);
    all->addLayout(bottom);
    ShowPicks();
    ShowHovered();
    canvas_->setFocus();
}

BlockMapWindow::~BlockMapWindow() = default;

QWidget* BlockMapWindow::MakeTools() {
    auto* tools = new QWidget;
    auto* row = new QHBoxLayout(tools);
    row->setContentsMargins(0, 0, 0, 0);
    auto* areas = new QComboBox;
    areas->setObjectName(QStringLiteral("areas"));
    areas->addItem(tr("All areas"));
    for (const std::string& area : canvas_->Areas())
        areas->addItem(ToQString(area));
    areas->setMaxVisibleItems(20);
    connect(areas, &QComboBox::activated, this, [this, areas](int index) {
        if (index == 0) {
            canvas_->ShowAll();
        } else {
            canvas_->ShowArea(ToBytes(areas->itemText(index)));
        }
        canvas_->setFocus();
    });
    auto* label = new QLabel(tr("S&how:"));
    label->setBuddy(areas);
    row->addWidget(label);
    row->addWidget(areas);
    const auto addZoom = [&](const QString& sign, const QString& tip, double factor) {
        auto* button = new QToolButton;
        button->setText(sign);
        button->setToolTip(tip);
        button->setAccessibleName(tip);
        connect(button, &QToolButton::clicked, this, [this, factor] { canvas_->ZoomBy(factor); });
        row->addWidget(button);
    };
    addZoom(QStringLiteral("+"), tr("Zoom in"), kZoomPerClick);
    addZoom(QStringLiteral("\u2212"), tr("Zoom out"), 1 / kZoomPerClick);
    auto* help =
        new QLabel(tr("Click or drag to pick, Ctrl and drag to take out; move the map "
                      "with the right button, zoom with the wheel"));
    help->setWordWrap(true);
    help->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    row->addWidget(help, 1);
    return tools;
}

QWidget* BlockMapWindow::MakePickList() {
    auto* side = new QWidget;
    side->setFixedWidth(kPickListWidth);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    count_ = new QLabel;
    list_ = new QListWidget;
    list_->setUniformItemSizes(true);
    list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    count_->setBuddy(list_);
    takeOut_ = new QPushButton(tr("&Remove"));
    clear_ = new QPushButton(tr("C&lear"));
    for (QPushButton* button : {takeOut_, clear_})
        button->setAutoDefault(false);
    connect(takeOut_, &QPushButton::clicked, this, &BlockMapWindow::TakeOutMarked);
    connect(clear_, &QPushButton::clicked, this, [this] { canvas_->ClearPicks(); });
    connect(list_, &QListWidget::itemSelectionChanged, this,
            [this] { takeOut_->setEnabled(!list_->selectedItems().isEmpty()); });
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(takeOut_);
    buttons->addWidget(clear_);
    column->addWidget(count_);
    column->addWidget(list_, 1);
    column->addLayout(buttons);
    return side;
}

const std::vector<MapBlock>& BlockMapWindow::Blocks() const {
    return canvas_->Blocks();
}

const std::vector<std::size_t>& BlockMapWindow::Picks() const {
    return canvas_->Picks();
}

std::string BlockMapWindow::PicksText() const {
    std::string text = "BLOCKS," + std::to_string(Picks().size()) + ",";
    for (const std::size_t pick : Picks()) {
        const MapBlock& block = Blocks()[pick];
        text += block.area + "," + block.number + "," + block.extension + ",";
    }
    return text;
}

void BlockMapWindow::ShowPicks() {
    const std::vector<std::size_t>& picks = Picks();
    list_->clear();
    for (const std::size_t pick : picks)
        list_->addItem(NameOf(Blocks()[pick]));
    list_->scrollToBottom();
    count_->setText(picks.size() == 1 ? tr("1 &block picked")
                                      : tr("%1 &blocks picked").arg(picks.size()));
    takeOut_->setEnabled(false);
    clear_->setEnabled(!picks.empty());
    ok_->setEnabled(!picks.empty());
}

void BlockMapWindow::ShowHovered() {
    const auto block = canvas_->Hovered();
    hovered_->setText(block ? NameOf(Blocks()[*block]) : QString());
}

void BlockMapWindow::TakeOutMarked() {
    std::vector<std::size_t> marked;
    for (const QModelIndex& index : list_->selectionModel()->selectedRows())
        marked.push_back(Picks()[static_cast<std::size_t>(index.row())]);
    for (const std::size_t block : marked)
        canvas_->SetPicked(block, false);
}

std::string PickBlocksOnMap(std::vector<MapBlock> blocks) {
    BlockMapWindow window(std::move(blocks), QApplication::activeWindow());
    return window.exec() == QDialog::Accepted ? window.PicksText() : std::string();
}

}  // namespace kv::qt
