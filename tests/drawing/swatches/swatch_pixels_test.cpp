#include <algorithm>

#include "drawing/swatches/kv_color_button.h"
#include "frame/kvcom/color.h"
#include "swatch_fixture.h"
#include "window/drawing/fine_image.h"
#include "window/drawing/raster.h"
#include "window/owner_draw.h"
#include "window/templates/resources.h"

using kv::SystemColor;

namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);

class SwatchPixels : public test::SwatchTest {
protected:
    SwatchPixels() {
        host.Create(test::kTestTemplate);
        host.GetDlgItem(test::kPoint)->SetFocus();
    }

    /// The picture of a swatch, as large as that.
    kv::Raster Painted(CWnd& swatch) {
        const CRect rect = swatch.m_hWnd->Rect();
        kv::Raster picture(rect.Width(), rect.Height(), 0);
        CDC context(picture);
        EXPECT_TRUE(kv::PaintControl(*swatch.m_hWnd, context));
        return picture;
    }
    COLORREF Face() { return desktop.Color(SystemColor::kButtonFace); }

    /// Whether exactly the pixels of the rectangle within the frame have that colour.
    static void ExpectExactly(const kv::Raster& picture, const CRect& filled, COLORREF color) {
        for (int y = 3; y < picture.Height() - 3; ++y) {
            for (int x = 3; x < picture.Width() - 3; ++x) {
                EXPECT_EQ(picture.Pixel({x, y}) == color, filled.PtInRect({x, y}))
                    << x << ", " << y;
            }
        }
    }
    /// Where a row within the frame is black: the beginnings and ends of its runs.
    static std::vector<int> RunsOf(const kv::Raster& picture, int y) {
        std::vector<int> runs;
        bool ink = false;
        for (int x = 3; x <= picture.Width() - 3; ++x) {
            const bool now = x < picture.Width() - 3 && picture.Pixel({x, y}) == kBlack;
            if (now != ink) runs.push_back(x);
            ink = now;
        }
        return runs;
    }
};

TEST_F(SwatchPixels, AColorFillsAllWithinThreePixels) {
    for (CColorButton* swatch :
         {static_cast<CColorButton*>(&host.basic), static_cast<CColorButton*>(&host.full)}) {
        for (const int index : {0, 6, 9, 15, 100, 254}) {
            swatch->SetChange(index);
            const kv::Raster picture = Painted(*swatch);
            const auto color = static_cast<COLORREF>(swatch->GetColorValue(index));
            ExpectExactly(picture, {3, 3, picture.Width() - 3, picture.Height() - 3}, color);
            for (int x = 2; x < picture.Width() - 2; ++x) {
                EXPECT_NE(picture.Pixel({x, 2}), color) << index;
            }
        }
    }
}

TEST_F(SwatchPixels, AColorsValueHasRedInItsLowByte) {
    EXPECT_EQ(host.basic.GetColorValue(9), 0x0000FFul);
    EXPECT_EQ(host.basic.GetColorValue(10), 0x00FF00ul);
    EXPECT_EQ(host.basic.GetColorValue(12), 0xFF0000ul);
    EXPECT_EQ(host.basic.GetColorValue(-1), 0ul);
}

TEST_F(SwatchPixels, ALineWidthIsABarAroundTheMiddle) {
    // Distances from the middle to the top and to the bottom of the bar.
    constexpr int kBars[][2] = {{1, 0}, {1, 1}, {2, 1}, {2, 2}, {3, 2},
                                {3, 3}, {4, 3}, {4, 4}, {5, 4}, {5, 5}};
    for (int width = 0; width < 10; ++width) {
        SCOPED_TRACE(width);
        host.width.SetLineWidth(width);
        const kv::Raster picture = Painted(host.width);
        const int middle = picture.Height() / 2;
        ExpectExactly(picture,
                      {3, middle - kBars[width][0], picture.Width() - 3, middle + kBars[width][1]},
                      kBlack);
    }
}

TEST_F(SwatchPixels, AWidthBelowZeroDrawsNothing) {
    host.width.SetLineWidth(-1);
    ExpectExactly(Painted(host.width), {}, kBlack);
}

TEST_F(SwatchPixels, ALineTypeIsItsDashesFourPixelsHigh) {
    // On a swatch 60 pixels wide, from 3 to 57.
    const std::vector<std::vector<int>> kRuns = {
        {3, 57},
        {3, 13, 23, 33, 43, 53},
        {3,  5,  7,  9,  11, 13, 15, 17, 19, 21, 23, 25, 27, 29,
         31, 33, 35, 37, 39, 41, 43, 45, 47, 49, 51, 53, 55, 57},
        {3, 13, 15, 17, 19, 29, 31, 33, 35, 45, 47, 49, 51, 57},
        {3, 13, 15, 17, 19, 21, 23, 33, 35, 37, 39, 41, 43, 53, 55, 57},
        {},
    };
    for (int type = 0; type < 6; ++type) {
        SCOPED_TRACE(type);
        host.type.SetLineType(type);
        const kv::Raster picture = Painted(host.type);
        ASSERT_EQ(picture.Width(), 60);
        const int middle = picture.Height() / 2;
        for (int y = 3; y < picture.Height() - 3; ++y) {
            const bool within = y >= middle - 2 && y < middle + 2;
            EXPECT_EQ(RunsOf(picture, y),
                      within ? kRuns[static_cast<std::size_t>(type)] : std::vector<int>{})
                << y;
        }
    }
}

TEST_F(SwatchPixels, ATypeThatThereIsNotDrawsNothing) {
    for (const int type : {-1, 6}) {
        host.type.SetLineType(type);
        ExpectExactly(Painted(host.type), {}, kBlack);
    }
}

TEST_F(SwatchPixels, ATextStyleIsItsWord) {
    host.style.SetChange(3);
    const kv::Raster word = Painted(host.style);
    const COLORREF ink = desktop.Color(SystemColor::kButtonText);
    const auto dots = [&](const kv::Raster& picture) {
        return std::ranges::count(picture.Pixels(), kv::ToArgb(ink));
    };
    EXPECT_GT(dots(word), 50);
    host.style.SetChange(0);
    EXPECT_NE(dots(Painted(host.style)), dots(word));
    host.style.SetChange(4);
    EXPECT_EQ(dots(Painted(host.style)), 0);
}

/// The dark pixels of an image stand on the swatch at that place, and no others.
void ExpectImage(const kv::Raster& picture, int id, CPoint at) {
    const kv::ImageResource* image = kv::FindImage(id);
    ASSERT_NE(image, nullptr) << id;
    const kv::Raster drawn = kv::DecodeImage(*image);
    int ink = 0;
    for (int y = 3; y < picture.Height() - 3; ++y) {
        for (int x = 3; x < picture.Width() - 3; ++x) {
            const bool dark = drawn.Argb(x - at.x, y - at.y) == kv::ToArgb(kBlack);
            ink += dark;
            EXPECT_EQ(picture.Pixel({x, y}) == kBlack, dark) << id << ": " << x << ", " << y;
        }
    }
    EXPECT_GT(ink, 10) << id;
}

TEST_F(SwatchPixels, ASymbolIsItsImageAtItsPlace) {
    for (int id = 13047; id <= 13054; ++id) {
        host.number.SetChange(id);
        ExpectImage(Painted(host.number), id, {2, 2});
    }
    for (int id = 13023; id <= 13041; ++id) {
        host.point.SetChange(id);
        host.basic.SetFocus();
        ExpectImage(Painted(host.point), id, {1, 1});
    }
}

TEST_F(SwatchPixels, ImagesHaveTheirSizes) {
    for (int id = 13047; id <= 13054; ++id)
        EXPECT_EQ(kv::DecodeImage(*kv::FindImage(id)).Extent(), (CSize{34, 22}));
    for (int id = 13023; id <= 13041; ++id)
        EXPECT_EQ(kv::DecodeImage(*kv::FindImage(id)).Extent(), (CSize{21, 16}));
}

/// A raster that shows as if it had two pixels for one each way.
class Doubled : public kv::Raster, public kv::ScaledSurface {
public:
    using Raster::Raster;
    double PixelsAcross() const override { return 2; }
    void Image(const CRect&, const kv::Raster& image, const CRect& source) override {
        drawn = image.Extent();
        part = source;
    }
    CSize drawn;
    CRect part;
};

TEST_F(SwatchPixels, WithPixelsToSpareASymbolIsDrawnFromItsFineImage) {
    for (const auto& [id, extent] : {std::pair{13047, CSize{68, 44}},
                                     {13054, {68, 44}},
                                     {13023, {42, 32}},
                                     {13041, {42, 32}}}) {
        Doubled picture(60, 40);
        CDC context(picture);
        EXPECT_TRUE(kv::DrawFineImage(context, {0, 0}, id));
        EXPECT_EQ(picture.drawn, extent) << id;
        EXPECT_EQ(picture.part, (CRect{0, 0, extent.cx, extent.cy})) << id;
    }
    kv::Raster plain(60, 40);
    CDC context(plain);
    EXPECT_FALSE(kv::DrawFineImage(context, {0, 0}, 4711));
}

TEST_F(SwatchPixels, DisabledItIsAPlainButton) {
    for (CWnd* swatch : std::initializer_list<CWnd*>{&host.width, &host.type, &host.basic,
                                                     &host.style, &host.number}) {
        swatch->EnableWindow(FALSE);
        ExpectExactly(Painted(*swatch), {3, 3, 100, 100}, Face());
    }
}

TEST_F(SwatchPixels, UnderAModalWindowItGoesOnShowingItsValue) {
    host.EnableWindow(FALSE);
    const kv::Raster picture = Painted(host.basic);
    ExpectExactly(picture, {3, 3, 100, 100}, static_cast<COLORREF>(host.basic.GetColorValue(6)));
}

TEST_F(SwatchPixels, TheFocusIsARingBetweenFrameAndValue) {
    const COLORREF ring = desktop.Color(SystemColor::kButtonText);
    const auto onRing = [&](const kv::Raster& picture) {
        int count = 0;
        for (int x = 1; x < picture.Width() - 1; ++x) {
            for (const int y : {1, 2, picture.Height() - 3, picture.Height() - 2})
                count += picture.Pixel({x, y}) == ring;
        }
        return count;
    };
    host.basic.SetChange(9);
    EXPECT_EQ(onRing(Painted(host.basic)), 0);
    host.basic.SetFocus();
    const kv::Raster focused = Painted(host.basic);
    EXPECT_EQ(onRing(focused), 4 * (focused.Width() - 2));
    ExpectExactly(focused, {3, 3, 100, 100}, RGB(255, 0, 0));
}

TEST_F(SwatchPixels, WhereButtonsAreDarkTheRingStandsOffThePaper) {
    constexpr COLORREF kDarkFace = RGB(40, 40, 40);
    constexpr COLORREF kLightText = RGB(250, 250, 250);
    desktop.SetColor(SystemColor::kButtonFace, kDarkFace);
    desktop.SetColor(SystemColor::kButtonText, kLightText);
    host.width.SetFocus();
    const kv::Raster focused = Painted(host.width);
    const int middle = focused.Width() / 2;
    EXPECT_EQ(focused.Pixel({middle, 1}), kLightText);
    EXPECT_EQ(focused.Pixel({middle, 2}), kDarkFace);
    EXPECT_GT(GetRValue(focused.Pixel({middle, 3})), 200);
}

TEST_F(SwatchPixels, PressedACellShowsItsValueInASunkenFrame) {
    host.basic.SetEventType(E_EVENT_CELL);
    const kv::Raster up = Painted(host.basic);
    kv::input::Press(*host.basic.m_hWnd, {5, 5});
    host.width.SetFocus();
    host.basic.SetState(TRUE);
    const kv::Raster down = Painted(host.basic);
    EXPECT_NE(up.Pixel({0, 0}), down.Pixel({0, 0}));
    EXPECT_EQ(down.Pixel({0, 0}), desktop.Color(SystemColor::kButtonShadow));
    ExpectExactly(down, {3, 3, 100, 100}, static_cast<COLORREF>(host.basic.GetColorValue(6)));
}

TEST_F(SwatchPixels, WhereButtonsAreDarkLinesLieOnPaper) {
    desktop.SetColor(SystemColor::kButtonFace, RGB(40, 40, 40));
    host.width.SetLineWidth(0);
    host.type.SetLineType(1);
    for (CWnd* swatch : std::initializer_list<CWnd*>{&host.width, &host.type, &host.number}) {
        const kv::Raster picture = Painted(*swatch);
        const COLORREF ground = picture.Pixel({4, 4});
        EXPECT_GT(GetRValue(ground), 200);
        EXPECT_GT(std::ranges::count(picture.Pixels(), kv::ToArgb(kBlack)), 0);
    }
}

class GridButton : public CKvColorButton {
public:
    explicit GridButton(CWnd& parent, int id) {
        Create("x", WS_CHILD | WS_VISIBLE, {0, 0, 25, 25}, &parent, static_cast<UINT>(id));
    }
};

TEST_F(SwatchPixels, AGridCellTakesItsColorWhenItIsShown) {
    GridButton cell(host, kv::palettes::kGridCell + 9);
    EXPECT_EQ(Painted(cell).Pixel({4, 4}), Face());
    EXPECT_EQ(cell.GetButtonStyle(), BS_OWNERDRAW);
    cell.SetButtonStyle(BS_PUSHBUTTON);
    cell.ShowWindow(SW_HIDE);
    cell.ShowWindow(SW_SHOW);
    EXPECT_EQ(cell.GetButtonStyle(), BS_OWNERDRAW);
    const kv::Raster picture = Painted(cell);
    EXPECT_EQ(picture.Pixel({4, 4}), RGB(255, 0, 0));
    EXPECT_GT(std::ranges::count(picture.Pixels(), kv::ToArgb(RGB(255, 255, 255))), 2);
    cell.EnableWindow(FALSE);
    EXPECT_GT(std::ranges::count(Painted(cell).Pixels(), kv::ToArgb(0x010101)), 2);
}

TEST_F(SwatchPixels, AGridCellHasSevenColorsOfItsOwn) {
    GridButton cell(host, 1);
    cell.SetColor(RGB(1, 0, 0), RGB(2, 0, 0), RGB(3, 0, 0), RGB(4, 0, 0), RGB(5, 0, 0),
                  RGB(6, 0, 0), RGB(7, 0, 0));
    const kv::Raster up = Painted(cell);
    EXPECT_EQ(up.Pixel({0, 0}), RGB(5, 0, 0));
    EXPECT_EQ(up.Pixel({24, 24}), RGB(7, 0, 0));
    EXPECT_EQ(up.Pixel({1, 1}), RGB(4, 0, 0));
    EXPECT_EQ(up.Pixel({23, 23}), RGB(6, 0, 0));
    EXPECT_EQ(up.Pixel({3, 3}), RGB(2, 0, 0));
    cell.SetState(TRUE);
    const kv::Raster down = Painted(cell);
    EXPECT_EQ(down.Pixel({0, 0}), RGB(7, 0, 0));
    EXPECT_EQ(down.Pixel({24, 24}), RGB(5, 0, 0));
    EXPECT_EQ(down.Pixel({1, 1}), RGB(6, 0, 0));
    // On the ground of the button there is its text, and nothing else.
    for (int y = 3; y < 22; ++y) {
        for (int x = 3; x < 22; ++x) {
            EXPECT_TRUE(up.Pixel({x, y}) == RGB(1, 0, 0) || up.Pixel({x, y}) == RGB(2, 0, 0));
        }
    }
    // The text moves with the button.
    for (int y = 4; y < 21; ++y) {
        for (int x = 4; x < 21; ++x) {
            EXPECT_EQ(up.Pixel({x, y}) == RGB(1, 0, 0), down.Pixel({x + 1, y + 1}) == RGB(1, 0, 0));
        }
    }
    cell.SetState(FALSE);
    cell.SetColor(RGB(8, 0, 0), RGB(9, 0, 0));
    const kv::Raster two = Painted(cell);
    EXPECT_EQ(two.Pixel({3, 3}), RGB(9, 0, 0));
    EXPECT_GT(std::ranges::count(two.Pixels(), kv::ToArgb(RGB(8, 0, 0))), 2);
    EXPECT_EQ(two.Pixel({0, 0}), RGB(5, 0, 0));
    cell.EnableWindow(FALSE);
    EXPECT_GT(std::ranges::count(Painted(cell).Pixels(), kv::ToArgb(RGB(3, 0, 0))), 2);
    cell.EnableWindow(TRUE);
    cell.SetColorToWindowsDefault();
    EXPECT_EQ(Painted(cell).Pixel({3, 3}), Face());
}

}  // namespace
