#include "controls/static.h"

#include <gtest/gtest.h>

#include "support/dialog_fixture.h"
#include "window/drawing/device_context.h"
#include "window/drawing/raster.h"
#include "window/frames/frame_wnd.h"
#include "window/owner_draw.h"

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kRed = RGB(200, 0, 0);

class Label : public CKvStatic {
public:
    using CKvStatic::m_crColor;
    using CKvStatic::m_font;
};

class Static : public test::DialogTest {
protected:
    Static() {
        host.Create("Host");
        label.Create("128", WS_CHILD | WS_VISIBLE, {40, 10, 80, 30}, &host, 17664);
    }
    /// The label's picture, with its corner at (40, 10).
    kv::Raster Painted() {
        kv::Raster picture(120, 60, kv::ToArgb(kWhite));
        CDC dc(picture);
        dc.SetViewportOrg(40, 10);
        EXPECT_TRUE(kv::PaintControl(*label.m_hWnd, dc));
        return picture;
    }
    /// The columns from the first to the last that show the colour; -1, -1 for none.
    static std::pair<int, int> Extent(const kv::Raster& picture, COLORREF color) {
        std::pair<int, int> extent{-1, -1};
        for (int x = 0; x < 120; ++x) {
            for (int y = 0; y < 60; ++y) {
                if (picture.Pixel({x, y}) != color) continue;
                if (extent.first < 0) extent.first = x;
                extent.second = x;
            }
        }
        return extent;
    }

    CFrameWnd host;
    Label label;
};

TEST_F(Static, BeginsWithItsOwnFontInBlack) {
    LOGFONT font;
    ASSERT_TRUE(label.m_font.GetLogFont(&font));
    EXPECT_EQ(font.lfHeight, 12);
    EXPECT_STREQ(font.lfFaceName, "Times New Roman");
    EXPECT_EQ(label.m_crColor, 0u);
}

TEST_F(Static, IsOwnerDrawnOnceItIsCreated) {
    EXPECT_EQ(label.GetStyle() & SS_TYPEMASK, SS_OWNERDRAW);
}

TEST_F(Static, PaintsItsTextInItsColour) {
    EXPECT_GE(Extent(Painted(), RGB(0, 0, 0)).first, 0);
    label.SetColor(kRed);
    const kv::Raster picture = Painted();
    EXPECT_GE(Extent(picture, kRed).first, 0);
    EXPECT_EQ(Extent(picture, RGB(0, 0, 0)).first, -1);
}

TEST_F(Static, LeavesItsBackgroundAsItIs) {
    EXPECT_EQ(Painted().Pixel({79, 29}), kWhite);
}

TEST_F(Static, CentresTheTextAboutItsLeftEdge) {
    const auto [first, last] = Extent(Painted(), RGB(0, 0, 0));
    EXPECT_LT(first, 40);
    EXPECT_NEAR((first + last) / 2.0, 40, 2);
}

TEST_F(Static, AnEmptyTextPaintsNothing) {
    label.SetWindowText("");
    EXPECT_EQ(Extent(Painted(), RGB(0, 0, 0)).first, -1);
}

TEST_F(Static, DrawnOutsideOfPaintingItDrawsNothing) {
    label.DrawLabel("x");
    EXPECT_EQ(label.WindowText(), "128");
}

TEST_F(Static, ComesAndGoesAsItIsTold) {
    label.ShowWindow(SW_HIDE);
    EXPECT_FALSE(label.IsWindowVisible());
    label.ShowWindow(SW_SHOW);
    EXPECT_TRUE(label.GetStyle() & WS_VISIBLE);
}

}  // namespace
