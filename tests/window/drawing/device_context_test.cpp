#include "window/drawing/device_context.h"

#include <gtest/gtest.h>

#include <string>

#include "window/acting/headless_desktop.h"
#include "window/drawing/image_resource.h"
#include "window/drawing/raster.h"
#include "window/drawing/text_metrics.h"
#include "window/window_system.h"

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

/// A context on a white picture.
class DeviceContext : public ::testing::Test {
protected:
    /// The upper left part of the picture as text: '.' white, '#' black, 'r' red, 'b' blue.
    std::string Drawn(int width, int height) const {
        std::string text;
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                const COLORREF color = picture_.Pixel({x, y});
                text += color == kWhite   ? '.'
                        : color == kBlack ? '#'
                        : color == kRed   ? 'r'
                        : color == kBlue  ? 'b'
                                          : '?';
            }
            text += '\n';
        }
        return text;
    }
    COLORREF At(int x, int y) const { return picture_.Pixel({x, y}); }

    /// Leftmost and rightmost column with a pixel of that colour; -1 for none.
    std::pair<int, int> Columns(COLORREF color) const {
        std::pair<int, int> columns{-1, -1};
        for (int x = 0; x < picture_.Width(); ++x) {
            for (int y = 0; y < picture_.Height(); ++y) {
                if (At(x, y) != color) continue;
                if (columns.first < 0) columns.first = x;
                columns.second = x;
            }
        }
        return columns;
    }
    std::pair<int, int> Rows(COLORREF color) const {
        std::pair<int, int> rows{-1, -1};
        for (int y = 0; y < picture_.Height(); ++y) {
            for (int x = 0; x < picture_.Width(); ++x) {
                if (At(x, y) != color) continue;
                if (rows.first < 0) rows.first = y;
                rows.second = y;
            }
        }
        return rows;
    }

    kv::Raster picture_{200, 60, kv::ToArgb(kWhite)};
    CDC dc_{picture_};
};

TEST_F(DeviceContext, StartsAsThePlatformHasIt) {
    EXPECT_EQ(dc_.GetTextColor(), kBlack);
    EXPECT_EQ(dc_.GetBkColor(), kWhite);
    EXPECT_EQ(dc_.GetBkMode(), OPAQUE);
    EXPECT_EQ(dc_.GetTextAlign(), TA_LEFT | TA_TOP);
    EXPECT_EQ(dc_.GetCurrentPosition(), (CPoint{0, 0}));
    EXPECT_EQ(dc_.GetClipBox(), (CRect{0, 0, 200, 60}));
}

TEST_F(DeviceContext, SettersAnswerWithWhatWasSetBefore) {
    EXPECT_EQ(dc_.SetTextColor(kRed), kBlack);
    EXPECT_EQ(dc_.SetTextColor(kBlue), kRed);
    EXPECT_EQ(dc_.SetBkColor(kRed), kWhite);
    EXPECT_EQ(dc_.SetBkMode(TRANSPARENT), OPAQUE);
    EXPECT_EQ(dc_.SetTextAlign(TA_CENTER), TA_LEFT);
    EXPECT_EQ(dc_.MoveTo(3, 4), (CPoint{0, 0}));
    EXPECT_EQ(dc_.MoveTo(5, 6), (CPoint{3, 4}));
}

TEST_F(DeviceContext, FillRectUsesTheBrushItIsGiven) {
    CBrush red(kRed);
    const CRect rect{1, 1, 4, 3};
    dc_.FillRect(&rect, &red);
    EXPECT_EQ(Drawn(5, 4),
              ".....\n"
              ".rrr.\n"
              ".rrr.\n"
              ".....\n");
}

TEST_F(DeviceContext, FillRectDrawsNothingWithoutABrush) {
    CBrush hollow;
    ASSERT_TRUE(hollow.CreateStockObject(NULL_BRUSH));
    CBrush notMade;
    const CRect rect{0, 0, 9, 9};
    dc_.FillRect(&rect, &hollow);
    dc_.FillRect(&rect, &notMade);
    dc_.FillRect(&rect, nullptr);
    EXPECT_EQ(Columns(kBlack).first, -1);
    EXPECT_EQ(Drawn(2, 1), "..\n");
}

TEST_F(DeviceContext, FillSolidRectSetsTheBackgroundColour) {
    dc_.FillSolidRect(0, 0, 2, 1, kBlue);
    EXPECT_EQ(Drawn(3, 2), "bb.\n...\n");
    EXPECT_EQ(dc_.GetBkColor(), kBlue);
}

TEST_F(DeviceContext, FrameRectStaysWithinTheRectangle) {
    CBrush black(kBlack);
    const CRect rect{1, 1, 5, 4};
    dc_.FrameRect(&rect, &black);
    EXPECT_EQ(Drawn(6, 5),
              "......\n"
              ".####.\n"
              ".#..#.\n"
              ".####.\n"
              "......\n");
}

TEST_F(DeviceContext, Draw3dRectGivesTheCornersToTheLowerRight) {
    const CRect rect{0, 0, 4, 3};
    dc_.Draw3dRect(&rect, kRed, kBlue);
    EXPECT_EQ(Drawn(5, 4),
              "rrrb.\n"
              "r..b.\n"
              "bbbb.\n"
              ".....\n");
}

TEST_F(DeviceContext, ARectangleIsOutlinedByThePenAndFilledByTheBrush) {
    CPen blue(PS_SOLID, 1, kBlue);
    CBrush red(kRed);
    dc_.SelectObject(&blue);
    dc_.SelectObject(&red);
    dc_.Rectangle(1, 0, 5, 3);
    EXPECT_EQ(Drawn(6, 4),
              ".bbbb.\n"
              ".brrb.\n"
              ".bbbb.\n"
              "......\n");
}

TEST_F(DeviceContext, ARectangleWithoutAPenIsAPixelLess) {
    CBrush red(kRed);
    dc_.SelectObject(&red);
    dc_.SelectStockObject(NULL_PEN);
    dc_.Rectangle(1, 0, 5, 3);
    EXPECT_EQ(Drawn(6, 4),
              ".rrr..\n"
              ".rrr..\n"
              "......\n"
              "......\n");
}

TEST_F(DeviceContext, AHollowRectangleKeepsWhatIsInIt) {
    dc_.FillSolidRect(0, 0, 9, 9, kRed);
    dc_.SelectStockObject(NULL_BRUSH);
    dc_.Rectangle(0, 0, 3, 3);
    EXPECT_EQ(Drawn(3, 3), "###\n#r#\n###\n");
}

TEST_F(DeviceContext, AnEllipseReachesTheSidesOfItsRectangle) {
    CBrush red(kRed);
    dc_.SelectObject(&red);
    dc_.Ellipse(10, 10, 31, 21);
    EXPECT_EQ(Columns(kBlack), std::make_pair(10, 30));
    EXPECT_EQ(Rows(kBlack), std::make_pair(10, 20));
    EXPECT_EQ(At(20, 15), kRed);
    EXPECT_EQ(At(10, 10), kWhite);
}

TEST_F(DeviceContext, AnEllipseWithoutAPenIsAPixelLess) {
    CBrush red(kRed);
    dc_.SelectObject(&red);
    dc_.SelectStockObject(NULL_PEN);
    dc_.Ellipse(10, 10, 31, 21);
    EXPECT_EQ(Columns(kRed), std::make_pair(10, 29));
    EXPECT_EQ(Rows(kRed), std::make_pair(10, 19));
}

TEST_F(DeviceContext, APolygonIsClosed) {
    constexpr CPoint kCorners[] = {{0, 0}, {4, 0}, {4, 4}, {0, 4}};
    CBrush red(kRed);
    dc_.SelectObject(&red);
    EXPECT_TRUE(dc_.Polygon(kCorners, 4));
    EXPECT_EQ(Drawn(6, 6),
              "#####.\n"
              "#rrr#.\n"
              "#rrr#.\n"
              "#rrr#.\n"
              "#####.\n"
              "......\n");
    EXPECT_FALSE(dc_.Polygon(kCorners, 1));
}

TEST_F(DeviceContext, LineToGoesOnFromTheLastPlaceAndLeavesOutTheLastPoint) {
    dc_.MoveTo(0, 0);
    dc_.LineTo(3, 0);
    dc_.LineTo(3, 2);
    EXPECT_EQ(Drawn(5, 4),
              "####.\n"
              "...#.\n"
              ".....\n"
              ".....\n");
    EXPECT_EQ(dc_.GetCurrentPosition(), (CPoint{3, 2}));
}

TEST_F(DeviceContext, DottedPensShowTheBackgroundBetween) {
    CPen dots(PS_DOT, 1, kBlack);
    dc_.SelectObject(&dots);
    dc_.SetBkColor(kRed);
    dc_.MoveTo(0, 0);
    dc_.LineTo(9, 0);
    dc_.SetBkMode(TRANSPARENT);
    dc_.MoveTo(0, 1);
    dc_.LineTo(9, 1);
    EXPECT_EQ(Drawn(10, 2),
              "###rrr###.\n"
              "###...###.\n");
}

TEST_F(DeviceContext, EveryPenStyleHasItsDashes) {
    const auto lengths = [this](int style, int y) {
        CPen pen(style, 1, kBlack);
        dc_.SelectObject(&pen);
        dc_.SetBkMode(TRANSPARENT);
        dc_.MoveTo(0, y);
        dc_.LineTo(48, y);
        dc_.SelectStockObject(BLACK_PEN);
        std::string drawn;
        for (int x = 0; x < 48; ++x)
            drawn += At(x, y) == kBlack ? '#' : '.';
        return drawn;
    };
    EXPECT_EQ(lengths(PS_SOLID, 0), std::string(48, '#'));
    EXPECT_EQ(lengths(PS_DASH, 1), "##################......##################......");
    EXPECT_EQ(lengths(PS_DASHDOT, 2), "#########......###......#########......###......");
    EXPECT_EQ(lengths(PS_DASHDOTDOT, 3), "#########...###...###...#########...###...###...");
    EXPECT_EQ(lengths(PS_NULL, 4), std::string(48, '.'));
}

TEST_F(DeviceContext, AWidePenIsSolid) {
    CPen pen(PS_DOT, 3, kBlack);
    dc_.SelectObject(&pen);
    dc_.MoveTo(5, 5);
    dc_.LineTo(15, 5);
    EXPECT_EQ(Rows(kBlack), std::make_pair(4, 6));
    EXPECT_EQ(Columns(kBlack), std::make_pair(4, 16));
    EXPECT_EQ(At(9, 5), kBlack);
}

TEST_F(DeviceContext, SetsAndReadsPixels) {
    EXPECT_EQ(dc_.SetPixel(2, 1, kRed), kRed);
    EXPECT_EQ(dc_.GetPixel(2, 1), kRed);
    EXPECT_EQ(dc_.GetPixel(3, 1), kWhite);
    EXPECT_EQ(dc_.GetPixel(500, 1), CLR_INVALID);
}

TEST_F(DeviceContext, SelectingAnswersWithTheFormerObject) {
    CPen blue(PS_SOLID, 1, kBlue);
    CPen red(PS_SOLID, 1, kRed);
    CPen* first = dc_.SelectObject(&blue);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(dc_.SelectObject(&red), &blue);
    EXPECT_EQ(dc_.SelectObject(first), &red);
    dc_.MoveTo(0, 0);
    dc_.LineTo(1, 0);
    EXPECT_EQ(At(0, 0), kBlack);
}

TEST_F(DeviceContext, SelectingNothingChangesNothing) {
    CPen blue(PS_SOLID, 1, kBlue);
    CPen notMade;
    dc_.SelectObject(&blue);
    EXPECT_EQ(dc_.SelectObject(&notMade), &blue);
    EXPECT_EQ(dc_.SelectObject(static_cast<CPen*>(nullptr)), &blue);
    dc_.MoveTo(0, 0);
    dc_.LineTo(1, 0);
    EXPECT_EQ(At(0, 0), kBlue);
}

TEST_F(DeviceContext, StockObjectsAreThere) {
    dc_.SelectStockObject(WHITE_PEN);
    dc_.SelectStockObject(GRAY_BRUSH);
    dc_.Rectangle(0, 0, 4, 4);
    EXPECT_EQ(At(0, 0), kWhite);
    EXPECT_EQ(At(1, 1), RGB(128, 128, 128));
    EXPECT_NE(dc_.SelectStockObject(DEFAULT_GUI_FONT), nullptr);
    EXPECT_EQ(dc_.SelectStockObject(DEFAULT_GUI_FONT + 1), nullptr);
    EXPECT_EQ(dc_.SelectStockObject(99), nullptr);
}

TEST_F(DeviceContext, RestoreBringsBackTheWholeState) {
    CPen red(PS_SOLID, 1, kRed);
    EXPECT_EQ(dc_.SaveDC(), 1);
    dc_.SelectObject(&red);
    dc_.SetTextColor(kBlue);
    dc_.MoveTo(7, 7);
    dc_.SetViewportOrg(50, 50);
    dc_.IntersectClipRect({0, 0, 1, 1});
    EXPECT_EQ(dc_.SaveDC(), 2);
    EXPECT_TRUE(dc_.RestoreDC(1));
    EXPECT_EQ(dc_.GetTextColor(), kBlack);
    EXPECT_EQ(dc_.GetCurrentPosition(), (CPoint{0, 0}));
    EXPECT_EQ(dc_.GetClipBox(), (CRect{0, 0, 200, 60}));
    dc_.LineTo(1, 0);
    EXPECT_EQ(At(0, 0), kBlack);
    EXPECT_FALSE(dc_.RestoreDC(2));
    EXPECT_FALSE(dc_.RestoreDC(-1));
}

TEST_F(DeviceContext, RestoreOfMinusOneGoesBackOneStep) {
    dc_.SaveDC();
    dc_.SetTextColor(kRed);
    dc_.SaveDC();
    dc_.SetTextColor(kBlue);
    EXPECT_TRUE(dc_.RestoreDC(-1));
    EXPECT_EQ(dc_.GetTextColor(), kRed);
    EXPECT_TRUE(dc_.RestoreDC(-1));
    EXPECT_EQ(dc_.GetTextColor(), kBlack);
}

TEST_F(DeviceContext, DrawsFromItsOrigin) {
    dc_.SetViewportOrg(2, 1);
    dc_.SetPixel(0, 0, kRed);
    EXPECT_EQ(At(2, 1), kRed);
    EXPECT_EQ(dc_.GetPixel(0, 0), kRed);
    EXPECT_EQ(dc_.GetClipBox(), (CRect{-2, -1, 198, 59}));
}

TEST_F(DeviceContext, ClipsOnlyGetSmaller) {
    dc_.IntersectClipRect({1, 0, 4, 2});
    dc_.IntersectClipRect({0, 1, 3, 9});
    EXPECT_EQ(dc_.GetClipBox(), (CRect{1, 1, 3, 2}));
    dc_.FillSolidRect(0, 0, 9, 9, kRed);
    EXPECT_EQ(Drawn(5, 3), ".....\n.rr..\n.....\n");
}

TEST_F(DeviceContext, AnEmptyClipLetsNothingThrough) {
    dc_.IntersectClipRect({0, 0, 2, 2});
    dc_.IntersectClipRect({5, 5, 9, 9});
    dc_.FillSolidRect(0, 0, 200, 60, kRed);
    EXPECT_EQ(Columns(kRed).first, -1);
}

TEST_F(DeviceContext, TwoContextsOnOneSurfaceKeepTheirOwnClips) {
    CDC other(picture_);
    dc_.IntersectClipRect({0, 0, 1, 1});
    other.FillSolidRect(0, 1, 3, 1, kBlue);
    dc_.FillSolidRect(0, 0, 3, 1, kRed);
    other.FillSolidRect(0, 2, 3, 1, kBlue);
    EXPECT_EQ(Drawn(4, 3), "r...\nbbb.\nbbb.\n");
}

TEST_F(DeviceContext, CopiesABitmapFromMemory) {
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&dc_, 2, 2));
    CDC memory;
    ASSERT_TRUE(memory.CreateCompatibleDC(&dc_));
    CBitmap* former = memory.SelectObject(&bitmap);
    memory.SetPixel(0, 0, kRed);
    memory.SetPixel(1, 1, kBlue);

    EXPECT_TRUE(dc_.BitBlt(1, 0, 2, 2, &memory, 0, 0, SRCCOPY));
    EXPECT_EQ(Drawn(4, 3), ".r..\n..b.\n....\n");
    EXPECT_TRUE(dc_.StretchBlt(0, 2, 4, 2, &memory, 0, 0, 2, 1, SRCCOPY));
    EXPECT_EQ(Drawn(5, 4), ".r...\n..b..\nrr...\nrr...\n");

    memory.SetViewportOrg(1, 0);
    EXPECT_TRUE(dc_.BitBlt(0, 3, 1, 2, &memory, 0, 0, SRCCOPY));
    EXPECT_EQ(At(0, 4), kBlue);

    memory.SelectObject(former);
    EXPECT_FALSE(dc_.BitBlt(0, 0, 2, 2, &memory, 0, 0, SRCCOPY));
}

TEST_F(DeviceContext, RefusesOtherWaysOfCopying) {
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&dc_, 1, 1);
    CDC memory;
    memory.CreateCompatibleDC(&dc_);
    memory.SelectObject(&bitmap);
    memory.SetPixel(0, 0, kRed);
    constexpr DWORD kSrcInvert = 0x00660046;
    EXPECT_FALSE(dc_.BitBlt(0, 0, 1, 1, &memory, 0, 0, kSrcInvert));
    EXPECT_FALSE(dc_.BitBlt(0, 0, 1, 1, nullptr, 0, 0, SRCCOPY));
    EXPECT_EQ(At(0, 0), kWhite);
}

TEST_F(DeviceContext, DrawsAnImageOfTheResources) {
    constexpr kv::PaletteEntry kPalette[] = {{'r', 0xFFFF0000}};
    constexpr std::string_view kRows[] = {"r.", ".r"};
    const kv::ImageResource image{1, 2, 2, kRows, kPalette};
    EXPECT_TRUE(dc_.DrawImage(1, 1, &image));
    EXPECT_EQ(Drawn(4, 4), "....\n.r..\n..r.\n....\n");
    EXPECT_FALSE(dc_.DrawImage(0, 0, nullptr));
}

TEST_F(DeviceContext, TextStandsOnItsBackground) {
    dc_.SetBkColor(kBlue);
    dc_.TextOut(3, 2, "L");
    EXPECT_EQ(Columns(kBlue), std::make_pair(3, 8));
    EXPECT_EQ(Rows(kBlue), std::make_pair(2, 14));
    EXPECT_EQ(Columns(kBlack), std::make_pair(3, 7));
    EXPECT_EQ(Rows(kBlack), std::make_pair(4, 11));
}

TEST_F(DeviceContext, TransparentTextLeavesTheBackground) {
    dc_.SetBkMode(TRANSPARENT);
    dc_.SetBkColor(kBlue);
    dc_.SetTextColor(kRed);
    dc_.TextOut(0, 0, "L");
    EXPECT_EQ(Columns(kBlue).first, -1);
    EXPECT_EQ(Columns(kRed), std::make_pair(0, 4));
}

TEST_F(DeviceContext, TextIsAlignedAtItsPlace) {
    const int width = dc_.GetTextExtent("LL").cx;
    ASSERT_EQ(width, 12);
    dc_.SetBkColor(kBlue);
    dc_.SetTextAlign(TA_CENTER);
    dc_.TextOut(100, 0, "LL");
    EXPECT_EQ(Columns(kBlue).first, 94);
    dc_.SetTextAlign(TA_RIGHT | TA_BOTTOM);
    dc_.TextOut(50, 40, "LL");
    EXPECT_EQ(Columns(kBlue).first, 38);
    EXPECT_EQ(Rows(kBlue).second, 39);
    dc_.SetTextAlign(TA_LEFT | TA_BASELINE);
    dc_.SetTextColor(kRed);
    dc_.TextOut(0, 30, "L");
    EXPECT_EQ(Rows(kRed).second, 29);
}

TEST_F(DeviceContext, TextIsMeasuredInTheSelectedFont) {
    LOGFONT description;
    description.lfHeight = 26;
    CFont large;
    ASSERT_TRUE(large.CreateFontIndirect(&description));
    const CSize small = dc_.GetTextExtent("Area");
    CFont* former = dc_.SelectObject(&large);
    EXPECT_EQ(dc_.GetTextExtent("Area"), (CSize{2 * small.cx, 26}));
    dc_.SelectObject(former);
    EXPECT_EQ(dc_.GetTextExtent("Area"), small);
}

TEST_F(DeviceContext, DrawTextCentersALine) {
    dc_.SetBkColor(kBlue);
    CRect rect{20, 10, 80, 43};
    EXPECT_EQ(dc_.DrawText("LL", &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE), 13);
    EXPECT_EQ(Columns(kBlue), std::make_pair(44, 55));
    EXPECT_EQ(Rows(kBlue), std::make_pair(20, 32));
}

TEST_F(DeviceContext, DrawTextPutsALineToTheRightAndTheBottom) {
    dc_.SetBkColor(kBlue);
    CRect rect{20, 10, 80, 43};
    dc_.DrawText("LL", &rect, DT_RIGHT | DT_BOTTOM | DT_SINGLELINE);
    EXPECT_EQ(Columns(kBlue), std::make_pair(68, 79));
    EXPECT_EQ(Rows(kBlue), std::make_pair(30, 42));
}

TEST_F(DeviceContext, DrawTextKeepsToItsRectangle) {
    CRect rect{0, 0, 8, 5};
    dc_.DrawText("LLLL", &rect, DT_SINGLELINE);
    EXPECT_EQ(Columns(kBlack).second, 6);
    EXPECT_EQ(Rows(kBlack).second, 4);
    dc_.DrawText("LLLL", &rect, DT_SINGLELINE | DT_NOCLIP);
    EXPECT_EQ(Columns(kBlack).second, 22);
    EXPECT_EQ(dc_.GetClipBox(), (CRect{0, 0, 200, 60}));
}

TEST_F(DeviceContext, DrawTextUnderlinesTheMnemonic) {
    dc_.SetBkMode(TRANSPARENT);
    CRect rect{0, 0, 100, 13};
    dc_.DrawText("L&L", &rect, DT_SINGLELINE);
    EXPECT_EQ(Drawn(13, 13).substr(11 * 14), "......#####..\n.............\n");
    EXPECT_EQ(Columns(kBlack).second, 10);
}

TEST_F(DeviceContext, DrawTextShowsAmpersandsWhereTheyMeanNothing) {
    CRect prefixed{0, 0, 0, 0};
    dc_.DrawText("A&&B", &prefixed, DT_CALCRECT);
    EXPECT_EQ(prefixed.Width(), dc_.GetTextExtent("A&B").cx);
    CRect literal{0, 0, 0, 0};
    dc_.DrawText("A&B", &literal, DT_CALCRECT | DT_NOPREFIX);
    EXPECT_EQ(literal.Width(), dc_.GetTextExtent("A&B").cx);
}

TEST_F(DeviceContext, CalcRectFitsTheRectangleAndDrawsNothing) {
    CRect rect{10, 20, 11, 21};
    EXPECT_EQ(dc_.DrawText("LL\r\nLLL\n", &rect, DT_CALCRECT), 39);
    EXPECT_EQ(rect, (CRect{10, 20, 28, 59}));
    EXPECT_EQ(Columns(kBlack).first, -1);
}

TEST_F(DeviceContext, WordsThatDoNotFitGoToTheNextLine) {
    CRect rect{0, 0, 26, 0};
    EXPECT_EQ(dc_.DrawText("LL LL LLLLLLL", &rect, DT_CALCRECT | DT_WORDBREAK), 39);
    rect = {0, 0, 27, 60};
    EXPECT_EQ(dc_.DrawText("LL LL LLLLLLL", &rect, DT_WORDBREAK), 26);
    EXPECT_EQ(Rows(kBlack), std::make_pair(2, 22));
}

TEST_F(DeviceContext, ATextTooLongEndsInPeriods) {
    const CSize fits = dc_.GetTextExtent("LL...");
    dc_.SetBkColor(kBlue);
    CRect rect{0, 0, fits.cx + 3, 13};
    dc_.DrawText("LLLLLL", &rect, DT_SINGLELINE | DT_END_ELLIPSIS);
    EXPECT_EQ(Columns(kBlue), std::make_pair(0, fits.cx - 1));
}

TEST(EmptyDeviceContext, DrawsNothingAndMeasuresByTheDesktop) {
    kv::HeadlessDesktop desktop;
    kv::WindowSystem::Get().SetDesktop(&desktop);
    CDC dc;
    CRect rect{0, 0, 100, 100};
    EXPECT_TRUE(dc.Rectangle(&rect));
    EXPECT_TRUE(dc.TextOut(0, 0, "A"));
    EXPECT_EQ(dc.GetPixel(0, 0), CLR_INVALID);
    EXPECT_EQ(dc.GetTextExtent("Area"), kv::MeasureText("Area", desktop.DefaultFont()));
    kv::WindowSystem::Get().SetDesktop(nullptr);
}

TEST(GdiObjects, OwnWhatTheyMadeUntilItIsDeleted) {
    CBrush brush;
    EXPECT_EQ(brush.GetSafeHandle(), nullptr);
    EXPECT_FALSE(brush.DeleteObject());
    EXPECT_TRUE(brush.CreateSolidBrush(kRed));
    const HBRUSH handle = brush;
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(handle->color, kRed);
    EXPECT_TRUE(brush.DeleteObject());
    EXPECT_EQ(brush.GetSafeHandle(), nullptr);
}

TEST(GdiObjects, MadeAgainTheyAreNew) {
    CBrush brush(kRed);
    EXPECT_TRUE(brush.CreateSolidBrush(kBlue));
    EXPECT_EQ(brush.GetSafeHandle()->color, kBlue);
}

TEST(GdiObjects, AFontComesFromItsDescription) {
    LOGFONT description;
    description.lfHeight = 12;
    description.lfWeight = FW_BOLD;
    std::string("Times New Roman").copy(description.lfFaceName, 31);
    CFont font;
    ASSERT_TRUE(font.CreateFontIndirect(&description));
    EXPECT_EQ(*font.GetSafeHandle(), (kv::Font{"Times New Roman", 12, true, false}));
    LOGFONT read;
    ASSERT_TRUE(font.GetLogFont(&read));
    EXPECT_EQ(read.lfHeight, 12);
    EXPECT_EQ(read.lfWeight, FW_BOLD);
    EXPECT_EQ(read.lfItalic, 0);
    EXPECT_STREQ(read.lfFaceName, "Times New Roman");
}

TEST(GdiObjects, AHeightBelowZeroIsThatOfTheCharacters) {
    LOGFONT description;
    description.lfHeight = -11;
    CFont font;
    font.CreateFontIndirect(&description);
    EXPECT_EQ(font.GetSafeHandle()->height, 13);
}

TEST(GdiObjects, EightPointsAreTheDialogFontsHeight) {
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(80, "Any"));
    EXPECT_EQ(*font.GetSafeHandle(), (kv::Font{"Any", 13, false, false}));
}

TEST(GdiObjects, ABitmapTellsItsExtent) {
    CBitmap bitmap;
    BITMAP extent;
    EXPECT_EQ(bitmap.GetBitmap(&extent), 0);
    EXPECT_FALSE(bitmap.CreateCompatibleBitmap(nullptr, 0, 5));
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(nullptr, 4, 5));
    EXPECT_NE(bitmap.GetBitmap(&extent), 0);
    EXPECT_EQ(extent.bmWidth, 4);
    EXPECT_EQ(extent.bmHeight, 5);
}

TEST(GdiObjects, ABitmapThatIsNotInTheResourcesIsNotLoaded) {
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(nullptr, 4, 5);
    EXPECT_FALSE(bitmap.LoadBitmap(64999));
    EXPECT_EQ(bitmap.GetSafeHandle(), nullptr);
}

}  // namespace
