#include "window/drawing/raster.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/temp_folder.h"
#include "window/drawing/image_resource.h"

namespace {

using kv::Raster;
using kv::Stroke;
using kv::ToArgb;

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

Raster White(int width, int height) {
    return Raster(width, height, ToArgb(kWhite));
}

/// The picture as text: '.' white, '#' black, 'r' red, 'b' blue, '?' anything else.
std::string Drawn(const Raster& picture) {
    std::string text;
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            switch (picture.Pixel({x, y})) {
                case kWhite:
                    text += '.';
                    break;
                case kBlack:
                    text += '#';
                    break;
                case kRed:
                    text += 'r';
                    break;
                case kBlue:
                    text += 'b';
                    break;
                default:
                    text += '?';
            }
        }
        text += '\n';
    }
    return text;
}

TEST(Raster, ColoursKeepTheirPartsOnTheWayThrough) {
    Raster picture(1, 1);
    picture.Fill({0, 0, 1, 1}, RGB(1, 2, 3));
    EXPECT_EQ(picture.Argb(0, 0), 0xFF010203u);
    EXPECT_EQ(picture.Pixel({0, 0}), RGB(1, 2, 3));
}

TEST(Raster, IsTransparentAtFirstAndNothingOutside) {
    const Raster picture(2, 2);
    EXPECT_EQ(picture.Argb(1, 1), 0u);
    EXPECT_EQ(picture.Argb(2, 0), 0u);
    EXPECT_EQ(picture.Argb(0, -1), 0u);
}

TEST(Raster, AFilledRectangleLeavesOutItsRightAndBottomSides) {
    Raster picture = White(5, 4);
    picture.Fill({1, 1, 4, 3}, kBlack);
    EXPECT_EQ(Drawn(picture),
              ".....\n"
              ".###.\n"
              ".###.\n"
              ".....\n");
}

TEST(Raster, NothingIsDrawnOutsideTheClip) {
    Raster picture = White(4, 3);
    picture.SetClip({1, 0, 3, 2});
    picture.Fill({-10, -10, 10, 10}, kBlack);
    EXPECT_EQ(Drawn(picture),
              ".##.\n"
              ".##.\n"
              "....\n");
}

TEST(Raster, AClipBeyondThePictureIsCutToIt) {
    Raster picture = White(2, 2);
    picture.SetClip({-5, -5, 50, 50});
    picture.Fill({-5, -5, 50, 50}, kBlack);
    EXPECT_EQ(Drawn(picture), "##\n##\n");
}

TEST(Raster, ALineLeavesOutItsLastPoint) {
    Raster picture = White(5, 3);
    picture.Line({0, 1}, {4, 1}, {kBlack, 1, {}, {}});
    EXPECT_EQ(Drawn(picture),
              ".....\n"
              "####.\n"
              ".....\n");
}

TEST(Raster, ALineToItsOwnStartDrawsNothing) {
    Raster picture = White(2, 1);
    picture.Line({0, 0}, {0, 0}, {kBlack, 1, {}, {}});
    EXPECT_EQ(Drawn(picture), "..\n");
}

TEST(Raster, ADiagonalTakesOnePixelInEachRow) {
    Raster picture = White(4, 4);
    picture.Line({0, 3}, {4, -1}, {kBlack, 1, {}, {}});
    EXPECT_EQ(Drawn(picture),
              "...#\n"
              "..#.\n"
              ".#..\n"
              "#...\n");
}

TEST(Raster, ALineTakesOnePixelInEachColumnOrRowWhicheverAreMore) {
    Raster flat = White(5, 3);
    flat.Line({0, 0}, {4, 2}, {kBlack, 1, {}, {}});
    EXPECT_EQ(Drawn(flat),
              "##...\n"
              "..##.\n"
              ".....\n");
    Raster steep = White(3, 5);
    steep.Line({0, 0}, {2, 4}, {kBlack, 1, {}, {}});
    EXPECT_EQ(Drawn(steep),
              "#..\n"
              "#..\n"
              ".#.\n"
              ".#.\n"
              "...\n");
}

TEST(Raster, ALineTakesTheSamePixelsOnTheWayBack) {
    for (const CPoint end : {CPoint{6, 3}, CPoint{6, 5}, CPoint{3, 6}, CPoint{1, 6}}) {
        Raster there = White(7, 7);
        there.Line({0, 0}, end, {kBlack, 1, {}, {}});
        there.Fill({end.x, end.y, end.x + 1, end.y + 1}, kBlack);
        Raster back = White(7, 7);
        back.Line(end, {0, 0}, {kBlack, 1, {}, {}});
        back.Fill({0, 0, 1, 1}, kBlack);
        EXPECT_EQ(Drawn(there), Drawn(back)) << end.x << "," << end.y;
    }
}

TEST(Raster, DashesAndTheirGapsFollowTheLine) {
    constexpr int kDashes[] = {2, 1};
    Raster plain = White(7, 1);
    plain.Line({0, 0}, {7, 0}, {kBlack, 1, kDashes, {}});
    EXPECT_EQ(Drawn(plain), "##.##.#\n");

    Raster filled = White(7, 1);
    filled.Line({0, 0}, {7, 0}, {kBlack, 1, kDashes, kRed});
    EXPECT_EQ(Drawn(filled), "##r##r#\n");
}

TEST(Raster, AWideLineStandsAroundItsPlaceWithRoundEnds) {
    Raster picture = White(9, 5);
    picture.Line({2, 2}, {6, 2}, {kBlack, 3, {}, {}});
    EXPECT_EQ(Drawn(picture),
              ".........\n"
              ".#######.\n"
              ".#######.\n"
              ".#######.\n"
              ".........\n");
}

TEST(Raster, ASquarePolygonFillsWhatItsRectangleFills) {
    constexpr CPoint kSquare[] = {{1, 1}, {4, 1}, {4, 3}, {1, 3}};
    Raster picture = White(5, 4);
    picture.Polygon(kSquare, kBlack);
    Raster filled = White(5, 4);
    filled.Fill({1, 1, 4, 3}, kBlack);
    EXPECT_EQ(Drawn(picture), Drawn(filled));
}

TEST(Raster, ATriangleFillsWhatLiesWithin) {
    constexpr CPoint kTriangle[] = {{0, 0}, {4, 4}, {0, 4}};
    Raster picture = White(5, 5);
    picture.Polygon(kTriangle, kBlack);
    EXPECT_EQ(Drawn(picture),
              ".....\n"
              "#....\n"
              "##...\n"
              "###..\n"
              ".....\n");
}

TEST(Raster, WhereAPolygonCoversItselfTwiceItIsNotFilled) {
    // Two squares, one in the other, joined to one outline.
    constexpr CPoint kFrame[] = {{0, 0}, {5, 0}, {5, 5}, {0, 5}, {0, 0},
                                 {1, 1}, {4, 1}, {4, 4}, {1, 4}, {1, 1}};
    Raster picture = White(5, 5);
    picture.Polygon(kFrame, kBlack);
    EXPECT_EQ(Drawn(picture),
              "#####\n"
              "#...#\n"
              "#...#\n"
              "#...#\n"
              "#####\n");
}

TEST(Raster, AnEllipseFillsItsRectangleFromSideToSide) {
    Raster picture = White(7, 5);
    picture.Ellipse({0, 0, 7, 5}, kBlack, std::nullopt);
    EXPECT_EQ(Drawn(picture),
              ".#####.\n"
              "#######\n"
              "#######\n"
              "#######\n"
              ".#####.\n");
}

TEST(Raster, AnEllipseHasItsStrokeAroundItsFill) {
    Raster picture = White(9, 9);
    picture.Ellipse({0, 0, 9, 9}, kRed, Stroke{kBlack, 1, {}, {}});
    EXPECT_EQ(picture.Pixel({4, 0}), kBlack);
    EXPECT_EQ(picture.Pixel({0, 4}), kBlack);
    EXPECT_EQ(picture.Pixel({8, 4}), kBlack);
    EXPECT_EQ(picture.Pixel({4, 8}), kBlack);
    EXPECT_EQ(picture.Pixel({4, 1}), kRed);
    EXPECT_EQ(picture.Pixel({4, 4}), kRed);
    EXPECT_EQ(picture.Pixel({0, 0}), kWhite);
}

TEST(Raster, AnImageIsStretchedByWholePixels) {
    Raster image(2, 1);
    image.SetArgb(0, 0, ToArgb(kRed));
    image.SetArgb(1, 0, ToArgb(kBlue));
    Raster picture = White(6, 3);
    picture.Image({1, 0, 5, 2}, image, {0, 0, 2, 1});
    EXPECT_EQ(Drawn(picture),
              ".rrbb.\n"
              ".rrbb.\n"
              "......\n");
}

TEST(Raster, AnImageCoversByItsOpacity) {
    Raster image(3, 1);
    image.SetArgb(0, 0, ToArgb(kBlack));
    image.SetArgb(1, 0, 0x80000000u);
    image.SetArgb(2, 0, 0x00FF0000u);
    Raster picture = White(3, 1);
    picture.Image({0, 0, 3, 1}, image, {0, 0, 3, 1});
    EXPECT_EQ(picture.Argb(0, 0), 0xFF000000u);
    EXPECT_EQ(picture.Argb(1, 0), 0xFF7F7F7Fu);
    EXPECT_EQ(picture.Argb(2, 0), 0xFFFFFFFFu);
}

TEST(Raster, TakesAnImageOfItself) {
    Raster picture = White(4, 1);
    picture.Fill({0, 0, 1, 1}, kRed);
    picture.Image({1, 0, 4, 1}, picture, {0, 0, 3, 1});
    EXPECT_EQ(Drawn(picture), "rr..\n");
}

TEST(Raster, WritesTextFromItsTopLeftCorner) {
    Raster picture = White(6, 13);
    picture.Text({0, 0}, "L", {}, kBlack);
    EXPECT_EQ(Drawn(picture),
              "......\n"
              "......\n"
              "#.....\n"
              "#.....\n"
              "#.....\n"
              "#.....\n"
              "#.....\n"
              "#.....\n"
              "#.....\n"
              "#####.\n"
              "......\n"
              "......\n"
              "......\n");
}

TEST(Raster, BoldTextHasWiderStrokes) {
    Raster picture = White(8, 13);
    picture.Text({0, 0}, "L", {"", 13, true, false}, kBlack);
    EXPECT_EQ(Drawn(picture).substr(2 * 9, 9), "##......\n");
    EXPECT_EQ(Drawn(picture).substr(9 * 9, 9), "######..\n");
}

TEST(Raster, ItalicTextLeansToTheRight) {
    Raster picture = White(8, 13);
    picture.Text({0, 0}, "L", {"", 13, false, true}, kBlack);
    EXPECT_EQ(Drawn(picture).substr(2 * 9, 9), ".#......\n");
    EXPECT_EQ(Drawn(picture).substr(9 * 9, 9), "#####...\n");
}

TEST(Raster, TextOfTwiceTheHeightHasEachPixelTwice) {
    Raster small = White(12, 13);
    small.Text({0, 0}, "Ag", {}, kBlack);
    Raster stretched = White(24, 26);
    stretched.Image({0, 0, 24, 26}, small, {0, 0, 12, 13});
    Raster large = White(24, 26);
    large.Text({0, 0}, "Ag", {"", 26, false, false}, kBlack);
    EXPECT_EQ(Drawn(large), Drawn(stretched));
}

TEST(Raster, ADegreeSignLooksTheSameAsAByteAndAsACharacter) {
    Raster byte = White(6, 13);
    byte.Text({0, 0}, "\xB0", {}, kBlack);
    Raster character = White(6, 13);
    character.Text({0, 0}, "\xC2\xB0", {}, kBlack);
    EXPECT_EQ(Drawn(byte), Drawn(character));
    EXPECT_EQ(Drawn(byte).substr(2 * 7, 7), ".##...\n");
}

TEST(Raster, EveryVisibleCharacterHasAGlyphOfItsOwn) {
    std::vector<std::string> seen;
    Raster box = White(10, 13);
    box.Text({0, 0}, "\x7F", {}, kBlack);
    seen.push_back(Drawn(box));
    for (char ch = '!'; ch <= '~'; ++ch) {
        Raster picture = White(10, 13);
        picture.Text({0, 0}, std::string(1, ch), {}, kBlack);
        const std::string drawn = Drawn(picture);
        EXPECT_NE(drawn.find('#'), std::string::npos) << ch;
        EXPECT_EQ(std::count(seen.begin(), seen.end(), drawn), 0) << ch;
        seen.push_back(drawn);
    }
}

TEST(ImageResource, DecodesItsRowsByItsPalette) {
    constexpr kv::PaletteEntry kPalette[] = {{'R', 0xFFFF0000}, {'h', 0x80000000}};
    constexpr std::string_view kRows[] = {"R.h", "R"};
    const Raster picture = kv::DecodeImage({7, 3, 2, kRows, kPalette});
    EXPECT_EQ(picture.Extent(), (CSize{3, 2}));
    EXPECT_EQ(picture.Argb(0, 0), 0xFFFF0000u);
    EXPECT_EQ(picture.Argb(1, 0), 0u);
    EXPECT_EQ(picture.Argb(2, 0), 0x80000000u);
    EXPECT_EQ(picture.Argb(0, 1), 0xFFFF0000u);
    EXPECT_EQ(picture.Argb(1, 1), 0u);
}

TEST(SavePng, WritesTheFileThatTheFormatSays) {
    const test::TempFolder folder;
    const std::string path = folder.Native("dot.png");
    ASSERT_TRUE(kv::SavePng(Raster(1, 1, 0x80FF0000u), path));
    // One pixel of red at half opacity; the check sums come from zlib.
    const std::string expected(
        "\x89PNG\r\n\x1A\n"
        "\0\0\0\x0DIHDR\0\0\0\x01\0\0\0\x01\x08\x06\0\0\0\x1F\x15\xC4\x89"
        "\0\0\0\x10IDAT\x78\x01\x01\x05\0\xFA\xFF\0\xFF\0\0\x80\x04\x81\x01\x80\x19\x2F\x85\xB0"
        "\0\0\0\0IEND\xAE\x42\x60\x82",
        8 + 25 + 28 + 12);
    EXPECT_EQ(folder.Read("dot.png"), expected);
}

TEST(SavePng, CutsALargePictureIntoBlocks) {
    const test::TempFolder folder;
    ASSERT_TRUE(kv::SavePng(Raster(200, 100), folder.Native("large.png")));
    // Rows of a filter byte and 800 bytes; two blocks of five bytes more each.
    const std::size_t stream = 2 + 2 * 5 + 100 * 801 + 4;
    EXPECT_EQ(folder.Read("large.png").size(), 8 + 25 + (12 + stream) + 12);
}

TEST(SavePng, RefusesAnEmptyPictureAndAFolderThatIsNotThere) {
    const test::TempFolder folder;
    EXPECT_FALSE(kv::SavePng(Raster(), folder.Native("empty.png")));
    EXPECT_FALSE(folder.Has("empty.png"));
    EXPECT_FALSE(kv::SavePng(Raster(1, 1), folder.Native("none/dot.png")));
}

}  // namespace
