// Opening the palette of all 256 colors beside as many plain widgets of Qt's.

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <memory>

#include "drawing/swatches/color_palette_dlg.h"
#include "frame/module.h"
#include "qt/qt_desktop.h"
#include "ratio.h"

namespace {

constexpr RECT kSwatch{100, 100, 160, 120};
constexpr QSize kCell(25, 25);
constexpr QSize kPitch(30, 37);
constexpr int kTop = 40;

class Palette : public CKvColorPaletteDlg {
public:
    Palette() : CKvColorPaletteDlg(kSwatch, nullptr, true) { SetValue(6); }
};

void OpenOurs(benchmark::State& state) {
    InitControlDll();
    kv::qt::QtDesktop desktop;
    for (auto _ : state) {
        Palette palette;
        palette.Create(kv::palettes::kColorFillPalette);
        QApplication::processEvents();
        palette.DestroyWindow();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

/// A cell and its number, or, of the short list, both hidden.
void MakeCell(QDialog& dialog, int number, const QPoint& at, bool visible) {
    auto* cell = new QPushButton(&dialog);
    cell->setGeometry(QRect(at, kCell));
    cell->setAccessibleName(QString::number(number));
    auto* label = new QLabel(QString::number(number), &dialog);
    label->setGeometry(QRect(at + QPoint(0, kCell.height()), QSize(kPitch.width(), 12)));
    for (QWidget* widget : {static_cast<QWidget*>(cell), static_cast<QWidget*>(label)})
        widget->setVisible(visible);
}

void OpenPeer(benchmark::State& state) {
    using namespace kv::palettes;
    const auto place = [](int number, int across) {
        return QPoint(5 + number % across * kPitch.width(),
                      kTop + number / across * kPitch.height());
    };
    for (auto _ : state) {
        const auto dialog = std::make_unique<QDialog>();
        dialog->setFixedSize(10 + kGridAcross * kPitch.width(),
                             kTop + kGridCells / kGridAcross * kPitch.height());
        auto* header = new QLabel(QStringLiteral("CURRENT COLOR"), dialog.get());
        header->setGeometry(5, 5, 300, 20);
        (new QPushButton(QStringLiteral("More..."), dialog.get()))->hide();
        for (int i = 0; i < kShortCells; ++i)
            MakeCell(*dialog, i, place(i, kShortAcross), false);
        for (int i = 0; i < kGridCells; ++i)
            MakeCell(*dialog, i, place(i, kGridAcross), true);
        dialog->show();
        QApplication::processEvents();
    }
}

const bench::Subject kOpen("drawings/open the palette of 256 colors", 1.3, OpenOurs, OpenPeer,
                           bench::Clock::kWall);

}  // namespace
