#include "qt/drawing/painter_surface.h"

#include <QPushButton>

#include "qt_fixture.h"
#include "window/controls/button.h"
#include "window/drawing/raster.h"
#include "window/owner_draw.h"

using enum kv::ControlKind;

namespace {

/// A swatch: a frame, a fill, a diagonal half, dashes, and a picture.
class Swatch : public CButton, public kv::OwnerDrawn {
public:
    void DrawItem(DRAWITEMSTRUCT* item) override {
        CDC& dc = *item->hDC;
        CRect rect = item->rcItem;
        dc.FillSolidRect(&rect, RGB(240, 240, 240));
        const COLORREF frame = item->itemState & ODS_SELECTED ? RGB(255, 0, 0) : RGB(0, 0, 0);
        dc.Draw3dRect(&rect, frame, frame);
        rect.DeflateRect(4, 4);
        dc.FillSolidRect(&rect, RGB(0, 128, 255));
        CPen pen(PS_SOLID, 1, RGB(255, 255, 0));
        CPen* former = dc.SelectObject(&pen);
        dc.MoveTo(rect.left, rect.top + 2);
        dc.LineTo(rect.right, rect.top + 2);
        dc.MoveTo(rect.left + 3, rect.top);
        dc.LineTo(rect.left + 3, rect.bottom);
        dc.SelectObject(former);
        kv::Raster picture(2, 2, kv::ToArgb(RGB(10, 200, 30)));
        dc.DrawPicture(rect.left + 10, rect.top + 6, picture);
    }
};

class PainterSurface : public test::QtDialogTest {
protected:
    void SetUp() override {
        Show({{50, kOwnerDrawButton, "", {7, 7, 40, 20}}, {11, kEdit, "", {7, 40, 40, 12}}});
        swatch_.SubclassDlgItem(50, &dialog);
        dialog.GetDlgItem(11)->SetFocus();
    }
    Swatch swatch_;
};

TEST_F(PainterSurface, PaintsAnOwnerDrawnControlPixelByPixelAsARasterDoes) {
    const CSize size = NodeOf(50).Rect().Size();
    kv::Raster raster(size.cx, size.cy);
    CDC onRaster(raster);
    ASSERT_TRUE(kv::PaintControl(NodeOf(50), onRaster));

    QImage image(size.cx, size.cy, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        kv::qt::PainterSurface surface(painter, size, {1, 1});
        CDC onImage(surface);
        ASSERT_TRUE(kv::PaintControl(NodeOf(50), onImage));
    }
    for (int y = 0; y < size.cy; ++y) {
        for (int x = 0; x < size.cx; ++x) {
            ASSERT_EQ(image.pixel(x, y), raster.Argb(x, y)) << "at " << x << ", " << y;
        }
    }
    EXPECT_EQ(raster.Pixel({14, 10}), RGB(10, 200, 30)) << "the picture is in both";
}

TEST_F(PainterSurface, AnOwnerDrawnControlShowsAndIsPressed) {
    auto* widget = WidgetOf<QPushButton>(50);
    const auto picture = [&] { return widget->grab().toImage().scaled(widget->size()); };
    const auto middle = [&] {
        return picture().pixelColor(widget->width() / 2, widget->height() - 10);
    };
    const auto corner = [&] { return picture().pixelColor(0, 0); };
    EXPECT_EQ(middle(), QColor(0, 128, 255));
    EXPECT_EQ(corner(), QColor(0, 0, 0));
    Told();
    QTest::mousePress(widget, Qt::LeftButton);
    EXPECT_EQ(corner(), QColor(255, 0, 0));
    QTest::mouseRelease(widget, Qt::LeftButton);
    EXPECT_EQ(corner(), QColor(0, 0, 0));
    EXPECT_THAT(Told(), testing::ElementsAre("11 lost", "50 clicked"));
}

}  // namespace
