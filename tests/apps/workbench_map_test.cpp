#include <gmock/gmock.h>
#include <malloc.h>

#include <QImage>
#include <QPainter>
#include <cmath>
#include <cstddef>
#include <memory>
#include <random>
#include <set>

#include "frame/kvdbkvn/database_fault.h"
#include "frame/kvdbkvn/statement_trace.h"
#include "support/small_database.h"
#include "workbench/map/angle_text.h"
#include "workbench/map/graticule.h"
#include "workbench/map/label_art.h"
#include "workbench/map/label_board.h"
#include "workbench/map/map_painter.h"
#include "workbench/map_search.h"
#include "workbench_fixture.h"

#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace workbench {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAreArray;

FeatureLayer Layer(const std::vector<std::vector<Point>>& outlines) {
    FeatureLayer layer;
    for (std::size_t number = 0; number < outlines.size(); ++number) {
        layer.Begin(std::to_string(number + 1));
        for (const Point& point : outlines[number])
            layer.Add(point);
    }
    layer.Finish();
    return layer;
}

/// A square of a hundredth of a map unit, clockwise.
std::vector<Point> Square(int column, int row) {
    constexpr double kSide = 0.01;
    const double x = column * kSide;
    const double y = row * kSide;
    return {{x, y + kSide}, {x + kSide, y + kSide}, {x + kSide, y}, {x, y}};
}

double AreaOf(const Outline& outline) {
    double area = 0;
    for (const auto& ring : outline.rings)
        area += SignedArea(ring);
    return std::abs(area);
}

TEST(GridIndex, FindsEachBoxThatMeetsAQueryOnce) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> place(-10, 10);
    std::exponential_distribution<double> size(2);
    std::vector<Box> boxes(2000);
    for (Box& box : boxes) {
        const double x = place(random);
        const double y = place(random);
        box = {x, y, x + size(random), y + size(random)};
    }
    const GridIndex index(boxes);
    int found = 0;
    for (int query = 0; query < 300; ++query) {
        const double x = place(random) * 1.3;
        const double y = place(random) * 1.3;
        const Box asked{x, y, x + size(random), y + size(random)};
        std::vector<std::uint32_t> expected;
        for (std::uint32_t number = 0; number < boxes.size(); ++number) {
            if (boxes[number].Meets(asked)) expected.push_back(number);
        }
        std::vector<std::uint32_t> got;
        index.ForEach(boxes, asked, [&](std::uint32_t number) { got.push_back(number); });
        EXPECT_THAT(got, UnorderedElementsAreArray(expected));
        found += static_cast<int>(got.size());
    }
    EXPECT_GT(found, 300);
}

TEST(GridIndex, OfNothingFindsNothing) {
    const std::vector<Box> none;
    GridIndex(none).ForEach(none, {-1, -1, 1, 1}, [](std::uint32_t) { FAIL(); });
}

TEST(Geometry, MapAndEarthAreInversesOfEachOther) {
    for (const Place& place : {Place{28.5, -91.25}, Place{0, 0}, Place{-60, 179}}) {
        const Place back = ToPlace(ToMap(place));
        EXPECT_NEAR(back.lat, place.lat, 1e-12);
        EXPECT_NEAR(back.lon, place.lon, 1e-12);
    }
}

TEST(Geometry, AMinuteOfLatitudeIsANauticalMile) {
    EXPECT_NEAR(NauticalMiles({28, -91}, {28 + 1.0 / 60, -91}), 1, 0.001);
}

TEST(Outline, OfNeighboursHasNoLineBetweenThem) {
    const Outline outline = Unite(Layer({Square(0, 0), Square(1, 0)}));
    ASSERT_EQ(outline.rings.size(), 1U);
    EXPECT_EQ(outline.rings[0].size(), 4U);
    EXPECT_EQ(outline.inner.size(), 1U);
    EXPECT_NEAR(AreaOf(outline), 2e-4, 1e-9);
}

TEST(Outline, CountsCornersThatDifferByRoundingAsOne) {
    auto right = Square(1, 0);
    for (Point& corner : right)
        corner.x += 1.5e-7, corner.y -= 1.5e-7;
    const Outline outline = Unite(Layer({Square(0, 0), right}));
    ASSERT_EQ(outline.rings.size(), 1U);
    EXPECT_EQ(outline.rings[0].size(), 4U);
}

TEST(Outline, TakesShorterSidesIntoALongOne) {
    const std::vector<Point> tall = {{0, 0.02}, {0.01, 0.02}, {0.01, 0}, {0, 0}};
    const Outline outline = Unite(Layer({tall, Square(1, 0), Square(1, 1)}));
    ASSERT_EQ(outline.rings.size(), 1U);
    EXPECT_EQ(outline.rings[0].size(), 4U);
    EXPECT_EQ(outline.inner.size(), 3U);
}

TEST(Outline, KeepsAHole) {
    std::vector<std::vector<Point>> around;
    for (int column = 0; column < 3; ++column) {
        for (int row = 0; row < 3; ++row) {
            if (column != 1 || row != 1) around.push_back(Square(column, row));
        }
    }
    const Outline outline = Unite(Layer(around));
    EXPECT_EQ(outline.rings.size(), 2U);
    EXPECT_NEAR(AreaOf(outline), 8e-4, 1e-9);
}

TEST(MapView, ZoomKeepsThePlaceUnderTheMouse) {
    MapView view;
    view.Resize(800, 600);
    view.SetBounds({-98, 26, -83, 32});
    view.ShowAll();
    const ScreenPoint mouse{250, 380};
    const Point before = view.ToMap(mouse);
    const double scale = view.Scale();
    view.Zoom(mouse, 3);
    EXPECT_NEAR(view.ToMap(mouse).x, before.x, 1e-9);
    EXPECT_NEAR(view.ToMap(mouse).y, before.y, 1e-9);
    EXPECT_NEAR(view.Scale(), 3 * scale, 1e-9);
}

TEST(MapView, ShowsAllOfABox) {
    MapView view;
    view.Resize(800, 300);
    const Box box{-92, 28, -91, 29};
    view.SetBounds(box);
    view.Show(box);
    EXPECT_LT(view.Visible().minX, box.minX);
    EXPECT_GT(view.Visible().maxX, box.maxX);
    EXPECT_NEAR(view.Visible().Middle().x, -91.5, 1e-9);
    EXPECT_NEAR(view.Visible().Height() * 0.9, box.Height(), 1e-9);
}

TEST(MapView, NeitherLosesTheMapNorZoomsWithoutEnd) {
    MapView view;
    view.Resize(800, 600);
    const Box bounds{-98, 26, -83, 32};
    view.SetBounds(bounds);
    view.Pan(-1e9, 1e9);
    EXPECT_TRUE(bounds.Contains(view.Middle()));
    view.Zoom({0, 0}, 1e-9);
    EXPECT_LT(view.Visible().Width(), 5 * bounds.Width());
    view.Zoom({0, 0}, 1e30);
    EXPECT_GT(view.Visible().Width(), 1e-4);
}

TEST(LabelBoard, GivesAPlaceOnce) {
    LabelBoard board;
    board.Reset(200, 100);
    EXPECT_TRUE(board.Take(10, 10, 50, 12));
    EXPECT_FALSE(board.Take(55, 15, 50, 12));
    EXPECT_TRUE(board.Take(80, 40, 50, 12));
    EXPECT_FALSE(board.Take(-3, 60, 20, 10));
    EXPECT_FALSE(board.Take(190, 60, 20, 10));
    board.Reset(200, 100);
    EXPECT_TRUE(board.Take(55, 15, 50, 12));
}

TEST(LabelBoard, TellsWhatALabelWouldCover) {
    LabelBoard board;
    board.Reset(200, 100);
    EXPECT_EQ(board.CostOf(10, 10, 30, 10), 0);
    board.Spare(20, 12, 0, 0, LabelBoard::kSpot);
    EXPECT_EQ(board.CostOf(10, 10, 30, 10), 1);
    board.SpareLine(-1e7, 14, 1e7, 14, LabelBoard::kBorder);
    EXPECT_EQ(board.CostOf(40, 10, 15, 10), 4 * LabelBoard::kBorder);
    EXPECT_EQ(board.CostOf(40, 30, 15, 10), 0);
    // It may be covered all the same, once.
    EXPECT_TRUE(board.Take(10, 10, 30, 10));
    EXPECT_EQ(board.CostOf(20, 10, 5, 5), std::nullopt);
    EXPECT_EQ(board.CostOf(190, 10, 30, 10), std::nullopt);
}

TEST(MapView, ShowsNothingThatIsOffTheEarth) {
    MapView view;
    view.Resize(900, 560);
    view.ShowAll();
    for (int i = 0; i < 20; ++i) {
        view.Zoom({10, 10}, 0.5);
        view.Pan(300, -300);
    }
    const Box seen = view.Visible();
    EXPECT_GE(seen.minX, -180.001);
    EXPECT_LE(seen.maxX, 180.001);
    EXPECT_LT(ToPlace({0, seen.maxY}).lat, 85.06);
    EXPECT_GT(ToPlace({0, seen.minY}).lat, -85.06);
    const ScaleBar bar = ScaleBarOf(view, {450, 550}, 140);
    EXPECT_GT(bar.pixels, 10);
    EXPECT_THAT(bar.label, testing::EndsWith(" km"));
}

TEST(AngleText, CarriesSecondsThatRoundUp) {
    EXPECT_EQ(DegreesMinutesSeconds({28.5042361, -89.125}), "28°30'15.25\"N 89°07'30.00\"W");
    EXPECT_EQ(DegreesMinutesSeconds({28.99999999, -89.99999999}), "29°00'00.00\"N 90°00'00.00\"W");
    EXPECT_EQ(DegreesMinutesSeconds({-0.5, 0}), "0°30'00.00\"S 0°00'00.00\"E");
    EXPECT_EQ(DecimalDegrees({28.5042361, -89.125}), "28.504236 -89.125000");
    EXPECT_EQ(ShortAngle(-91.5, 'E', 'W'), "91°30'W");
    EXPECT_EQ(ShortAngle(28, 'N', 'S'), "28°N");
}

TEST(Graticule, LiesAtRoundDegreesThroughTheView) {
    MapView view;
    view.Resize(1000, 500);
    view.SetBounds({-98, 26, -83, 32});
    view.SetMiddle(ToMap({28.2, -91}), 120);
    EXPECT_THAT(GraticuleOf(view).longitudes,
                ElementsAre(-95, -94, -93, -92, -91, -90, -89, -88, -87));
    EXPECT_THAT(GraticuleOf(view).latitudes, ElementsAre(27, 28, 29, 30));
}

TEST(ScaleBar, IsAsLongAsItSays) {
    MapView view;
    view.Resize(1000, 500);
    view.SetBounds({-98, 26, -83, 32});
    view.SetMiddle(ToMap({28, -91}), 120);
    const ScaleBar bar = ScaleBarOf(view, {500, 250}, 140);
    EXPECT_EQ(bar.label, "100 km");
    // A degree of longitude has 98.2 km at 28 degrees of latitude on the sphere of 6,371 km.
    EXPECT_NEAR(bar.pixels, 120 * 100 / 98.18, 0.1);
}

class SampleMapTest : public test::SampleTest {
protected:
    SampleMapTest() {
        MapLoader loader(
            model, [this] { ++added; }, test::LacksNothing);
        test::ReadAll(loader);
    }
    std::size_t Things(FeatureLayer AreaMap::*layer) const {
        std::size_t count = 0;
        for (const auto& area : model.Areas())
            count += (*area.*layer).Size();
        return count;
    }

    MapModel model;
    int added = 0;
};

TEST_F(SampleMapTest, HoldsWhatTheTablesHold) {
    const auto rows = [](const char* table) {
        return static_cast<std::size_t>(Count(TableName(table)));
    };
    EXPECT_EQ(model.Areas().size(), rows("_connam2"));
    EXPECT_EQ(static_cast<std::size_t>(added), rows("_connam2"));
    EXPECT_EQ(model.BlockCount(), rows("_lbi"));
    EXPECT_EQ(Things(&AreaMap::wells), rows("_well_hdr"));
    EXPECT_EQ(Things(&AreaMap::platforms), rows("_platform"));
    EXPECT_EQ(Things(&AreaMap::pipelines), rows("_pipeline"));
}

TEST_F(SampleMapTest, OutlinesCoverWhatTheirBlocksCover) {
    for (const auto& area : model.Areas()) {
        double blocks = 0;
        for (std::size_t block = 0; block < area->blocks.Size(); ++block) {
            blocks += std::abs(SignedArea(area->blocks.Points(block)));
        }
        EXPECT_NEAR(AreaOf(area->outline) / blocks, 1, 0.002) << area->name;
        EXPECT_EQ(area->outline.rings.size(), 1U) << area->name;
    }
}

TEST_F(SampleMapTest, BlockUnderAPointIsTheOneThatHoldsIt) {
    std::mt19937 random(11);
    std::uniform_real_distribution<double> x(model.Bounds().minX, model.Bounds().maxX);
    std::uniform_real_distribution<double> y(model.Bounds().minY, model.Bounds().maxY);
    int hits = 0;
    for (int i = 0; i < 400; ++i) {
        const Point point{x(random), y(random)};
        bool inside = false;
        for (const auto& area : model.Areas()) {
            for (std::size_t block = 0; block < area->blocks.Size(); ++block) {
                inside = inside || (area->blocks.BoxOf(block).Contains(point) &&
                                    Inside(area->blocks.Points(block), point));
            }
        }
        const auto found = model.BlockAt(point);
        ASSERT_EQ(found.has_value(), inside);
        if (!found) continue;
        ++hits;
        EXPECT_TRUE(Inside(found->area->blocks.Points(found->block), point));
    }
    EXPECT_GT(hits, 100);
}

TEST_F(SampleMapTest, SpotsUnderTheMouseAreTheNearest) {
    const AreaMap& area = *model.FindArea("43113");
    const Point well = area.wells.Points(5).front();
    const auto found = model.SpotAt({well.x + 1e-6, well.y}, 1e-5);
    ASSERT_TRUE(found);
    EXPECT_FALSE(model.SpotAt({-70, 10}, 0.01));
    if (!found->platform) {
        const Point at = found->Layer().Points(found->number).front();
        EXPECT_NEAR(at.x, well.x, 2e-6);
    }
}

TEST_F(SampleMapTest, PicksABlockOrAllBlocksOfAreas) {
    const Pick block = model.FindPick({"43112", "43113"}, "391");
    ASSERT_TRUE(block.block);
    EXPECT_EQ(block.block->area->code, "43113");
    EXPECT_EQ(block.block->Label(), "391");

    const Pick areas = model.FindPick({"43112", "43113"}, "ALL");
    EXPECT_EQ(areas.areas.size(), 2U);
    EXPECT_FALSE(areas.block);
    EXPECT_TRUE(model.FindPick({"43113"}, "NONE").Empty());
    EXPECT_TRUE(model.FindPick({"99999"}, "ALL").Empty());
}

TEST_F(SampleMapTest, SearchUnderstandsAreasBlocksAndPlaces) {
    EXPECT_EQ(Search(model, "green canyon")->pick.areas.front()->code, "43608");
    EXPECT_EQ(Search(model, " gc 200 ")->pick.block->area->code, "43608");
    EXPECT_EQ(Search(model, "GC#200")->pick.block->Label(), "200");
    EXPECT_GT(Search(model, "EI")->pick.areas.size(), 1U);
    EXPECT_DOUBLE_EQ(Search(model, "28.5, -89.125")->place->lon, -89.125);
    EXPECT_FALSE(Search(model, "ATLANTIS 1"));
    EXPECT_FALSE(Search(model, "GC 99999"));
    EXPECT_FALSE(Search(model, ""));
    EXPECT_FALSE(Search(model, "91 181 0"));
}

TEST_F(SampleMapTest, SearchUnderstandsEveryNotationOfAPlace) {
    for (const char* text :
         {"28.5 -89.125", "28.5N 89.125W", "28 30 0 N, 89 07 30 W", "28:30:00 -89:07:30",
          "89\u00b007'30\"W 28\u00b030'N", "lat 28.5 lon -89.125", "(28.5; -89.125)"}) {
        const auto hit = Search(model, text);
        ASSERT_TRUE(hit && hit->place) << text;
        EXPECT_NEAR(hit->place->lat, 28.5, 1e-9) << text;
        EXPECT_NEAR(hit->place->lon, -89.125, 1e-9) << text;
    }
    EXPECT_FALSE(Search(model, "28.5"));
}

TEST_F(SampleMapTest, SearchUnderstandsWhatTheStatusLineSays) {
    const Place place{28.504236, -89.125};
    for (const std::string& text : {DegreesMinutesSeconds(place), DecimalDegrees(place)}) {
        const auto hit = Search(model, text);
        ASSERT_TRUE(hit && hit->place) << text;
        EXPECT_NEAR(hit->place->lat, place.lat, 0.005 / 3600) << text;
        EXPECT_NEAR(hit->place->lon, place.lon, 0.005 / 3600) << text;
    }
    EXPECT_EQ(Search(model, "GREEN CANYON, block 200")->pick.block->Label(), "200");
    EXPECT_EQ(Search(model, "GREEN CANYON, all blocks")->pick.areas.front()->code, "43608");
    EXPECT_EQ(Search(model, "GREEN CANYON 200")->pick.block->Label(), "200");
}

TEST_F(SampleMapTest, SearchUnderstandsABlockWithItsWater) {
    const auto hit = Search(model, "PS 9-S");
    ASSERT_TRUE(hit && hit->pick.block);
    EXPECT_EQ(hit->pick.block->area->code, "42601");
    EXPECT_EQ(hit->pick.block->Label(), "9");
    EXPECT_FALSE(Search(model, "GC 200-S"));
}

TEST_F(SampleMapTest, ThePickStandsOutInTheMiddleOfTheMap) {
    const Pick pick = model.FindPick({"43113"}, "391");
    MapView view;
    view.Resize(400, 300);
    view.SetBounds(model.Bounds());
    view.Show(pick.Bounds(), 0.4);
    const auto middle = [&](const Pick& marked) {
        QImage image(400, 300, QImage::Format_RGB32);
        QPainter painter(&image);
        MapLayers none{false, false, false, false, false, false};
        MapPainter().Draw(painter, model, view, none, {marked, {}});
        return image.pixelColor(200, 150);
    };
    EXPECT_EQ(middle({}), LightLook().shelf);
    EXPECT_NE(middle(pick), LightLook().shelf);
}

QImage Drawn(const MapModel& model, const MapView& view, const MapLayers& layers) {
    QImage image(view.Width(), view.Height(), QImage::Format_RGB32);
    QPainter painter(&image);
    MapPainter().Draw(painter, model, view, layers, {});
    return image;
}

/// Where two pictures of one size differ.
QRect Difference(const QImage& a, const QImage& b) {
    QRect where;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y)) where |= QRect(x, y, 1, 1);
        }
    }
    return where;
}

TEST(MapPainter, PutsANameWhereItCoversNoWell) {
    auto area = std::make_unique<AreaMap>();
    area->name = "SAMPLE FIELD";
    area->blocks.Begin("");
    for (const Point& corner : {Point{0, 0.3}, {0.3, 0.3}, {0.3, 0}, {0, 0}})
        area->blocks.Add(corner);
    for (int i = 0; i < 400; ++i) {
        area->wells.Begin("");
        area->wells.Add({0.1 + 0.005 * (i % 20), 0.14 + 0.001 * (i / 20.0)});
    }
    area->Finish();
    const FeatureLayer& wells = area->wells;
    MapModel model;
    MapView view;
    view.Resize(500, 500);
    view.SetBounds({0, 0, 0.3, 0.3});
    view.SetMiddle({0.15, 0.15}, 1500);
    const Point middle = area->labelAt;
    model.Add(std::move(area));
    MapLayers layers{true, false, false, false, false, false};
    const QImage without = Drawn(model, view, layers);
    layers.labels = true;
    const QRect name = Difference(Drawn(model, view, layers), without);
    ASSERT_GT(name.width(), 60);
    for (std::size_t well = 0; well < wells.Size(); ++well) {
        const ScreenPoint at = view.ToScreen(wells.Points(well).front());
        EXPECT_FALSE(name.contains(static_cast<int>(at.x), static_cast<int>(at.y)));
    }
    // Without wells there it stands in the middle.
    layers = {false, false, false, false, false, false};
    const QImage bare = Drawn(model, view, layers);
    layers.labels = true;
    const ScreenPoint at = view.ToScreen(middle);
    EXPECT_TRUE(Difference(Drawn(model, view, layers), bare)
                    .contains(static_cast<int>(at.x), static_cast<int>(at.y)));
}

/// Memory that is in use, in bytes.
double Held() {
#ifdef __SANITIZE_ADDRESS__
    return static_cast<double>(__sanitizer_get_current_allocated_bytes());
#else
    const auto memory = mallinfo2();
    return static_cast<double>(memory.uordblks + memory.hblkhd);
#endif
}

TEST(LabelArt, KeepsOfALabelLittleMoreThanItsPixels) {
    LabelArt art;
    art.SetStyle(QApplication::font(), Qt::black, Qt::white, 1);
    art.Of("the first one, for which fonts are read");
    const double before = Held();
    double pixels = 0;
    for (int label = 0; label < 200; ++label) {
        const QSize size = art.Of("EUGENE ISLAND " + std::to_string(label)).size();
        pixels += 4 * size.width() * size.height();
    }
    EXPECT_LT(Held() - before, 1.5 * pixels);
}

TEST(LabelArt, DrawsNoLabelThatIsOnlyMeasured) {
    LabelArt art;
    art.SetStyle(QApplication::font(), Qt::black, Qt::white, 1);
    art.SizeOf("the first one, for which fonts are read");
    const double before = Held();
    double pixels = 0;
    for (int label = 0; label < 200; ++label) {
        const QSizeF size = art.SizeOf("EUGENE ISLAND " + std::to_string(label));
        pixels += 4 * size.width() * size.height();
    }
    EXPECT_LT(Held() - before, pixels / 10);
}

TEST(LabelArt, MeasuresALabelAsItIsDrawn) {
    for (const double pixelRatio : {1.0, 1.25, 2.0}) {
        LabelArt art;
        art.SetStyle(QApplication::font(), Qt::black, Qt::white, pixelRatio);
        for (const char* label : {"GC", "HIGH ISLAND EAST\nADDITION", ""}) {
            const QSizeF measured = art.SizeOf(label);
            EXPECT_EQ(art.Of(label).deviceIndependentSize(), measured) << label << pixelRatio;
            EXPECT_GT(measured.height(), 0);
        }
    }
}

TEST_F(SampleMapTest, FromAfarTheLegendTellsTheColorsOfTheWaters) {
    MapView view;
    view.Resize(900, 600);
    view.SetBounds(model.Bounds());
    view.ShowAll();
    MapLayers layers{false, false, false, false, false, true};
    const QImage image = Drawn(model, view, layers);
    layers.legend = false;
    const QRect legend = Difference(Drawn(model, view, layers), image);
    ASSERT_FALSE(legend.isEmpty());
    const MapLook& look = LightLook();
    std::set<QRgb> colors;
    for (int y = legend.top(); y <= legend.bottom(); ++y) {
        for (int x = legend.left(); x < legend.left() + 30; ++x)
            colors.insert(image.pixel(x, y));
    }
    for (const QColor& color : {look.state, look.bay, look.shelf, look.deep})
        EXPECT_TRUE(colors.count(color.rgb())) << color.name().toStdString();
}

TEST_F(SampleMapTest, AFoldedLegendIsButItsHeading) {
    MapView view;
    view.Resize(900, 600);
    view.SetBounds(model.Bounds());
    view.SetMiddle(ToMap({28.5, -91}), 1000);
    MapLayers layers{true, true, true, false, false, true};
    const QImage open = Drawn(model, view, layers);
    layers.legendFolded = true;
    const QImage folded = Drawn(model, view, layers);
    layers.legend = false;
    const QImage none = Drawn(model, view, layers);
    EXPECT_GT(Difference(open, none).height(), 150);
    EXPECT_LT(Difference(folded, none).height(), 50);
    EXPECT_GT(Difference(folded, none).height(), 10);
}

TEST(MapLoader, GoesWithoutLayersThatTheDatabaseLacks) {
    const test::TempFolder folder;
    test::ConnectTo({"", "", ("sqlite:" + test::MakeSmallDatabase(folder.Native("s.db"))).c_str()});
    MapModel model;
    std::vector<std::string> told;
    MapLoader loader(
        model, [] {}, [&](const QString& words) { told.push_back(words.toStdString()); });
    test::ReadAll(loader);
    EXPECT_EQ(model.Areas().size(), 8U);
    EXPECT_THAT(told, ElementsAre(testing::AllOf(
                          testing::StartsWith("The map goes without wells, platforms, pipelines, "
                                              "which could not be read.\n"),
                          testing::HasSubstr("no such table: GULF_MEXICO_well_hdr"))));
    test::ConnectTo({});
}

TEST_F(SampleMapTest, ALayerThatFailsWithAnAreaThatIsNeededIsToldThen) {
    MapModel other;
    std::vector<std::string> told;
    MapLoader loader(
        other, [] {}, [&](const QString& words) { told.push_back(words.toStdString()); });
    ASSERT_TRUE(loader.Step());
    bool ofWells = false;
    kv::db::SetStatementTrace(
        [&](const std::string& sql) { ofWells = sql.find("_well_hdr") != std::string::npos; });
    kv::db::SetDatabaseFault([&](std::string_view) { return ofWells; });
    loader.Need({"43113"});
    kv::db::SetDatabaseFault(nullptr);
    kv::db::SetStatementTrace(nullptr);
    ASSERT_EQ(other.Areas().size(), 1U);
    EXPECT_EQ(other.Areas()[0]->wells.Size(), 0U);
    EXPECT_GT(other.Areas()[0]->platforms.Size(), 0U);
    EXPECT_THAT(told, ElementsAre(testing::StartsWith("The map goes without wells, ")));
    test::ReadAll(loader);
    EXPECT_EQ(told.size(), 1U) << "once is enough";
}

TEST_F(SampleMapTest, AnAreaWhoseReadingFailsIsReadTheNextTime) {
    MapModel other;
    MapLoader loader(
        other, [] {}, test::LacksNothing);
    ASSERT_TRUE(loader.Step());
    kv::db::SetDatabaseFault([](std::string_view call) { return call == "step"; });
    EXPECT_THROW(loader.Need({"43113"}), CKvException);
    EXPECT_THROW(loader.Step(), CKvException);
    kv::db::SetDatabaseFault(nullptr);
    EXPECT_TRUE(other.Areas().empty());
    EXPECT_EQ(loader.Done(), 0);
    loader.Need({"43113"});
    EXPECT_FALSE(other.FindPick({"43113"}, "391").Empty());
    test::ReadAll(loader);
    EXPECT_EQ(other.Areas().size(), model.Areas().size());
}

TEST_F(SampleMapTest, AreasThatAreNeededAreReadAtOnce) {
    MapModel other;
    MapLoader loader(
        other, [] {}, test::LacksNothing);
    loader.Need({"43113"});
    ASSERT_EQ(other.Areas().size(), 1U);
    EXPECT_EQ(other.Areas()[0]->name, "EUGENE ISLAND SOUTH ADDITION");
    loader.Need({"43113"});
    EXPECT_EQ(other.Areas().size(), 1U);
    test::ReadAll(loader);
    EXPECT_EQ(other.Areas().size(), model.Areas().size());
}

}  // namespace
}  // namespace workbench
