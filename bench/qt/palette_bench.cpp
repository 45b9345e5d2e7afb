// Opening the palette of all 256 colors beside as many plain widgets of Qt's.

#include <QAccessible>
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

struct Piece {
    QRect place;
    QString text;
    QString name;
    bool label = false;
    bool visible = true;
};

struct Picture {
    QSize size;
    std::vector<Piece> pieces;
};

/// What stands where in the palette.
Picture Look() {
    InitControlDll();
    const kv::qt::QtDesktop desktop;
    Palette palette;
    palette.Create(kv::palettes::kColorFillPalette);
    Picture picture{kv::qt::WidgetOf(*palette.m_hWnd)->size(), {}};
    for (const auto& child : palette.m_hWnd->Children()) {
        QWidget* widget = kv::qt::WidgetOf(*child);
        const auto* reader = QAccessible::queryAccessibleInterface(widget);
        picture.pieces.push_back({widget->geometry(), QString::fromStdString(child->Text()),
                                  reader->text(QAccessible::Name),
                                  child->Class() == kv::NodeClass::kStatic, child->Visible()});
    }
    palette.DestroyWindow();
    return picture;
}

void OpenPeer(benchmark::State& state) {
    static const Picture picture = Look();
    for (auto _ : state) {
        const auto dialog = std::make_unique<QDialog>();
        dialog->setFixedSize(picture.size);
        for (const Piece& piece : picture.pieces) {
            QWidget* widget = nullptr;
            if (piece.label) {
                widget = new QLabel(piece.text, dialog.get());
            } else {
                widget = new QPushButton(piece.text, dialog.get());
                widget->setAccessibleName(piece.name);
            }
            widget->setGeometry(piece.place);
            widget->setVisible(piece.visible);
        }
        dialog->show();
        QApplication::processEvents();
    }
}

const bench::Subject kOpen("drawings/open the palette of 256 colors", 1.3, OpenOurs, OpenPeer,
                           bench::Clock::kWall);

}  // namespace
