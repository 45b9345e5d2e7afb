// Drawings on the screen: what is painted, and what is found at a point.

#include "workbench/drawings/drawn_layer.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QImage>
#include <cmath>
#include <random>

#include "workbench/drawings/drawing_colors.h"
#include "workbench/drawings/line_dashes.h"
#include "workbench/drawings/screen_line.h"

namespace workbench {
namespace {

using testing::SizeIs;

constexpr int kSize = 400;
constexpr double kScale = 1000;  ///< pixels for a degree

class DrawnLayerTest : public testing::Test {
protected:
    DrawnLayerTest() {
        view.Resize(kSize, kSize);
        view.SetMiddle({0, 0}, kScale);
    }
    /// So many pixels to the right and down from the middle; the equator is the middle.
    static Place At(double right, double down) { return ToPlace({right / kScale, -down / kScale}); }
    static DrawnLine Line(std::initializer_list<QPointF> points) {
        DrawnLine line;
        for (const QPointF& point : points)
            line.points.push_back(At(point.x(), point.y()));
        return line;
    }
    void Show(Drawings drawings, double feetPerInch = 4000) {
        layer.Show(std::make_shared<const Drawings>(std::move(drawings)), {}, feetPerInch);
    }
    /// More lines than are painted anew at each movement.
    static Drawings VeryMany() {
        std::mt19937 random(5);
        std::uniform_real_distribution<double> place(-250, 250);
        Drawings drawings;
        for (int i = 0; i < 700; ++i) {
            const QPointF from(place(random), place(random));
            drawings.lines.push_back(Line({from, from + QPointF(30, place(random) / 10)}));
            drawings.lines.back().width = i % kLineWidths;
            drawings.lines.back().type = i % kLineTypes;
            drawings.lines.back().color = i % kColors;
        }
        return drawings;
    }
    QImage Painted() { return PaintedBy(layer); }
    QImage PaintedBy(const DrawnLayer& painted) {
        QImage image(kSize, kSize, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painted.DrawFills(painter, model, view);
        painted.DrawOnTop(painter, view);
        return image;
    }
    static QColor Pixel(const QImage& image, double right, double down) {
        return image.pixelColor(kSize / 2 + static_cast<int>(right),
                                kSize / 2 + static_cast<int>(down));
    }
    std::optional<DrawingRef> Hit(double right, double down) {
        return layer.At(view, {kSize / 2.0 + right, kSize / 2.0 + down});
    }
    /// Around all that is not white.
    static QRect Inked(const QImage& image) {
        QRect box;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y).lightness() < 128) box |= QRect(x, y, 1, 1);
            }
        }
        return box;
    }

    MapModel model;
    MapView view;
    DrawnLayer layer{model};
};

TEST_F(DrawnLayerTest, ALineHasItsColorAndItsWidth) {
    for (int width = 0; width < kLineWidths; ++width) {
        Drawings drawings;
        drawings.lines = {Line({{-100, 0.5}, {100, 0.5}})};
        drawings.lines[0].color = 9;
        drawings.lines[0].width = width;
        Show(drawings);
        const QImage image = Painted();
        EXPECT_EQ(Pixel(image, 0, 0), QColor(255, 0, 0)) << width;
        double ink = 0;
        for (int down = -20; down <= 20; ++down)
            ink += 1 - Pixel(image, 0, down).greenF();
        EXPECT_NEAR(ink, width + 1, 0.1);
        EXPECT_EQ(Pixel(image, 103, 0), QColor(Qt::white));
    }
}

TEST_F(DrawnLayerTest, DashesAreThoseOfTheLineType) {
    // Lengths of dashes and gaps, by turns, in pixels.
    const std::vector<std::vector<int>> kDashes = {
        {}, {10, 10}, {2, 2}, {10, 2, 2, 2}, {10, 2, 2, 2, 2, 2}};
    for (std::size_t type = 1; type < kDashes.size(); ++type) {
        Drawings drawings;
        drawings.lines = {Line({{-100, 0.5}, {100, 0.5}})};
        drawings.lines[0].color = 0;
        drawings.lines[0].type = static_cast<int>(type);
        Show(drawings);
        const QImage image = Painted();
        int x = -100;
        for (std::size_t part = 0; x < 90; ++part) {
            const int length = kDashes[type][part % kDashes[type].size()];
            const QColor middle = Pixel(image, x + length / 2.0 - 0.5, 0);
            EXPECT_EQ(middle.lightness() < 128, part % 2 == 0) << type << " at " << x;
            x += length;
        }
    }
}

TEST_F(DrawnLayerTest, ABlankLineIsNotSeenButItsFillingIs) {
    Drawings drawings;
    drawings.lines = {Line({{-50, -50}, {50, -50}, {50, 50}, {-50, 50}})};
    drawings.lines[0].type = 5;
    Show(drawings);
    EXPECT_TRUE(Inked(Painted()).isEmpty());
    drawings.lines[0].closed = drawings.lines[0].filled = true;
    drawings.lines[0].fillColor = 12;
    Show(drawings);
    EXPECT_EQ(Pixel(Painted(), 0, 0), QColor(0, 0, 255));
    EXPECT_EQ(Pixel(Painted(), 60, 0), QColor(Qt::white));
}

TEST_F(DrawnLayerTest, DashesGoOnRoundACornerAndWhereTheViewBegins) {
    const std::vector<QPointF> line = {{0, 0}, {15, 0}, {15, 100}};
    const QPainterPath dashes = DashesOf(line, 1, 0, 1, QRectF(-10, -10, 200, 200));
    const auto parts = dashes.toSubpathPolygons();
    ASSERT_GE(parts.size(), 3);
    EXPECT_EQ(parts[0], (QPolygonF{{0, 0}, {10, 0}}));
    EXPECT_EQ(parts[1], (QPolygonF{{15, 5}, {15, 15}}));
    // The same dashes where only a part is seen.
    const QPainterPath seen = DashesOf(line, 1, 0, 1, QRectF(-10, 42, 200, 200));
    for (const QPolygonF& part : seen.toSubpathPolygons()) {
        EXPECT_GE(part.front().y(), 42 - 1e-9);
        const double along = std::fmod(15 + part.back().y(), 20);
        EXPECT_LE(along, 10 + 1e-9);
    }
    EXPECT_TRUE(DashesOf(line, 5, 0, 1, QRectF(-10, -10, 200, 200)).isEmpty());
}

TEST_F(DrawnLayerTest, DashesOfALineThatGoesAcrossTheEarthAreSoonMade) {
    const std::vector<QPointF> line = {{-4e7, 50}, {4e7, 50}};
    const QPainterPath dashes = DashesOf(line, 2, 0, 1, QRectF(0, 0, 1000, 1000));
    EXPECT_LT(dashes.elementCount(), 1200);
    EXPECT_GT(dashes.elementCount(), 400);
}

TEST_F(DrawnLayerTest, PointsThatNobodySeesAreLeftOutAndTheLineStays) {
    std::mt19937 random(7);
    std::normal_distribution<double> step(0, 1.5);
    for (int round = 0; round < 50; ++round) {
        std::vector<Point> points{{0, 0}};
        for (int i = 0; i < 300; ++i)
            points.push_back({points.back().x + (step(random) + 0.5) / kScale,
                              points.back().y + step(random) / kScale});
        const QPolygonF line = ScreenLine(view, points);
        EXPECT_LE(line.size(), static_cast<qsizetype>(points.size()));
        const auto onScreen = [&](const Point& point) {
            const ScreenPoint at = view.ToScreen(point);
            return Point{at.x, at.y};
        };
        EXPECT_EQ(line.front(), QPointF(onScreen(points[0]).x, onScreen(points[0]).y));
        for (const Point& point : points) {
            double nearest = 1e9;
            for (qsizetype i = 1; i < line.size(); ++i) {
                nearest = std::min(
                    nearest, SquaredDistance(onScreen(point), {{line[i - 1].x(), line[i - 1].y()},
                                                               {line[i].x(), line[i].y()}}));
            }
            EXPECT_LT(std::sqrt(nearest), 1);
        }
    }
    std::vector<Point> straight;
    for (int i = 0; i <= 1000; ++i)
        straight.push_back({i / 1000.0 / 5, 0});
    EXPECT_THAT(ScreenLine(view, straight), SizeIs(2));
}

TEST_F(DrawnLayerTest, WhatIsFarLargerThanTheViewIsDrawnAllTheSame) {
    Drawings drawings;
    for (const int type : {0, 1}) {
        drawings.lines.push_back(Line({{-150'000, type * 50 + 0.5}, {150'000, type * 50 + 0.5}}));
        drawings.lines.back().type = type;
        drawings.lines.back().color = 0;
    }
    Show(drawings);
    const QImage image = Painted();
    EXPECT_EQ(Pixel(image, 150, 0), QColor(Qt::black));
    EXPECT_EQ(Inked(image).bottom(), kSize / 2 + 50);
    DrawnLine filled = Line({{-1e5, -1e5}, {1e5, -1e5}, {1e5, 20}, {-1e5, 20}});
    filled.closed = filled.filled = true;
    filled.fillColor = 12;
    drawings.lines = {filled};
    Show(drawings);
    EXPECT_EQ(Pixel(Painted(), 0, 0), QColor(0, 0, 255));
    EXPECT_EQ(Pixel(Painted(), 0, 60), QColor(Qt::white));
}

TEST_F(DrawnLayerTest, VeryManyAreAsSharpBehindADragAsWhereTheyArePaintedAnew) {
    Drawings drawings = VeryMany();
    drawings.texts = {{At(10, 10), "HEXAGON", 0.5, 30, 0}};
    Show(drawings, 20'000);
    Painted();
    for (const QPoint by : {QPoint(7, 0), QPoint(-12, 5), QPoint(0, -40), QPoint(0, 0)}) {
        view.Pan(by.x(), by.y());
        const QImage dragged = Painted();
        layer.SetDark(false);
        const QImage anew = Painted();
        int different = 0;
        for (int y = 0; y < kSize; ++y) {
            for (int x = 0; x < kSize; ++x) {
                const QRgb a = dragged.pixel(x, y);
                const QRgb b = anew.pixel(x, y);
                const int off = std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) +
                                std::abs(qBlue(a) - qBlue(b));
                if (off > 48) ++different;
            }
        }
        // A dash or an end of a stroke may be rounded to the other side.
        EXPECT_LT(different, kSize * kSize / 200);
    }
    const QImage before = Painted();
    drawings.lines.clear();
    Show(drawings, 20'000);
    EXPECT_NE(Painted(), before) << "other drawings are painted anew";
}

TEST_F(DrawnLayerTest, VeryManyAreStretchedWhileTheMapIsZoomedAndSharpBehindIt) {
    Drawings drawings = VeryMany();
    drawings.lines.push_back(Line({{40, -90}, {40, 90}}));
    drawings.lines.back().width = kLineWidths - 1;
    drawings.lines.back().color = 9;
    Show(drawings);
    int repaints = 0;
    layer.SetRepaint([&] { ++repaints; });
    const auto zoom = [&] { view.Zoom({kSize / 2.0, kSize / 2.0}, 1.25); };
    const auto sharp = [&] {
        DrawnLayer another(model);
        another.Show(std::make_shared<const Drawings>(drawings), {}, 4000);
        return PaintedBy(another);
    };
    const auto wait = [](auto&& until) {
        QElapsedTimer time;
        time.start();
        while (time.elapsed() < 5'000 && !until())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    };
    Painted();
    zoom();
    EXPECT_EQ(Painted(), sharp()) << "a single step";
    zoom();
    const QImage stretched = Painted();
    EXPECT_NE(stretched, sharp());
    EXPECT_EQ(Pixel(stretched, 62.5, 0), QColor(255, 0, 0));
    EXPECT_EQ(Pixel(sharp(), 62.5, 0), QColor(255, 0, 0));
    wait([&] { return repaints > 0; });
    EXPECT_EQ(Painted(), sharp()) << "the movement is over";
    QElapsedTimer rest;
    rest.start();
    wait([&] { return rest.elapsed() > 400; });
    EXPECT_EQ(repaints, 1);
    for (int step = 0; step < 9; ++step) {
        zoom();
        const QImage image = Painted();
        EXPECT_EQ(Pixel(image, 40 * view.Scale() / kScale, 0), QColor(255, 0, 0)) << step;
        if (40 * view.Scale() / kScale > kSize / 3.0) break;
    }
    Show(Drawings());
    EXPECT_TRUE(Inked(Painted()).isEmpty());
}

// Texts.

/// Pixels of a foot at the equator.
double PixelsPerFoot() {
    return kScale / (111'194.9266 / (1200.0 / 3937.0));
}

TEST_F(DrawnLayerTest, CapitalLettersAreAsHighAsTheMapsScaleSays) {
    Drawings drawings;
    drawings.texts = {{At(0, 0), "HEX", 0.5, 0, 0}};
    for (const double feetPerInch : {40'000.0, 20'000.0}) {
        Show(drawings, feetPerInch);
        const QRect ink = Inked(Painted());
        const double high = 0.5 * feetPerInch * PixelsPerFoot();
        EXPECT_NEAR(ink.height(), high, 1.5) << feetPerInch;
        EXPECT_NEAR(ink.center().x(), kSize / 2, 3);
        EXPECT_NEAR(ink.center().y(), kSize / 2, 2);
    }
}

TEST_F(DrawnLayerTest, ATextStandsAboutItsPlaceAsItIsJustified) {
    Drawings drawings;
    drawings.texts = {{At(0, 0), "HEX", 0.5, 0, 0}};
    const auto inked = [&](TextRow row, TextPart part) {
        drawings.texts[0].row = row;
        drawings.texts[0].part = part;
        Show(drawings, 40'000);
        return Inked(Painted()).translated(-kSize / 2, -kSize / 2);
    };
    EXPECT_LT(inked(TextRow::kAbove, TextPart::kCenter).bottom(), 0);
    EXPECT_GT(inked(TextRow::kBelow, TextPart::kCenter).top(), 0);
    EXPECT_GE(inked(TextRow::kOn, TextPart::kLeft).left(), 0);
    EXPECT_LE(inked(TextRow::kOn, TextPart::kRight).right(), 1);
}

TEST_F(DrawnLayerTest, AnAngleTurnsCounterclockwise) {
    Drawings drawings;
    drawings.texts = {{At(0, 0), "EEEEEE", 0.5, 90, 0, 0, TextRow::kOn, TextPart::kLeft}};
    Show(drawings, 40'000);
    const QRect ink = Inked(Painted());
    EXPECT_GT(ink.height(), 2 * ink.width());
    EXPECT_LE(ink.bottom(), kSize / 2 + 1) << "it goes up";
}

TEST_F(DrawnLayerTest, WeightMakesStrokesThicker) {
    Drawings drawings;
    drawings.texts = {{At(0, 0), "HEX", 0.5, 0, 0}};
    const auto ink = [&](int weight) {
        drawings.texts[0].weight = weight;
        Show(drawings, 40'000);
        const QImage image = Painted();
        double sum = 0;
        for (int y = 0; y < kSize; ++y)
            for (int x = 0; x < kSize; ++x)
                sum += 1 - image.pixelColor(x, y).lightnessF();
        return sum;
    };
    EXPECT_GT(ink(3), ink(0) * 1.1);
    EXPECT_GT(ink(9), ink(3) * 1.1);
}

TEST_F(DrawnLayerTest, OnADarkMapWhatIsDarkIsLight) {
    Drawings drawings;
    drawings.lines = {Line({{-100, 0.5}, {100, 0.5}})};
    drawings.lines[0].color = 0;
    drawings.lines[0].width = 9;
    Show(drawings);
    EXPECT_EQ(Pixel(Painted(), 0, 0), QColor(Qt::black));
    layer.SetDark(true);
    EXPECT_EQ(Pixel(Painted(), 0, 0), QColor(Qt::white));
    EXPECT_EQ(OnDarkMap(DrawnColor(9)), DrawnColor(9));
}

// What is where.

TEST_F(DrawnLayerTest, ALineIsFoundNearItAndTheLaterOneFirst) {
    Drawings drawings;
    drawings.lines = {Line({{-100, 0}, {100, 0}}), Line({{0, -100}, {0, 100}})};
    Show(drawings);
    EXPECT_EQ(Hit(50, 4), (DrawingRef{DrawingRef::kLine, 0}));
    EXPECT_EQ(Hit(50, 9), std::nullopt);
    EXPECT_EQ(Hit(0, 1), (DrawingRef{DrawingRef::kLine, 1}));
    drawings.lines[0].width = 9;
    Show(drawings);
    EXPECT_EQ(Hit(50, 9), (DrawingRef{DrawingRef::kLine, 0})) << "a thick line reaches further";
}

TEST_F(DrawnLayerTest, AFilledPolygonIsFoundInsideAndAnOpenOneOnItsEdge) {
    Drawings drawings;
    drawings.lines = {Line({{-80, -80}, {80, -80}, {80, 80}, {-80, 80}})};
    drawings.lines[0].closed = true;
    Show(drawings);
    EXPECT_EQ(Hit(0, 0), std::nullopt);
    EXPECT_TRUE(Hit(-80, 0)) << "the side that closes it";
    drawings.lines[0].filled = true;
    Show(drawings);
    EXPECT_TRUE(Hit(0, 0));
}

TEST_F(DrawnLayerTest, ATurnedTextIsFoundWhereItsLettersAre) {
    Drawings drawings;
    drawings.lines = {Line({{-100, 0}, {100, 0}})};
    drawings.texts = {{At(0, 0), "EEEEEEEE", 0.5, 90, 0, 0, TextRow::kOn, TextPart::kLeft}};
    Show(drawings, 40'000);
    EXPECT_EQ(Hit(0, -40), (DrawingRef{DrawingRef::kText, 0}));
    EXPECT_EQ(Hit(0, -1), (DrawingRef{DrawingRef::kText, 0})) << "texts lie over lines";
    EXPECT_EQ(Hit(60, -40), std::nullopt);
    EXPECT_FALSE(layer.OutlineOf(view, {DrawingRef::kText, 0}).isEmpty());
}

TEST_F(DrawnLayerTest, AmongThousandsTheNearestIsFoundAsByAScan) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> place(-180, 180);
    Drawings drawings;
    for (int i = 0; i < 2000; ++i) {
        const QPointF from(place(random), place(random));
        drawings.lines.push_back(Line({from, from + QPointF(8, 3)}));
    }
    Show(drawings);
    for (int i = 0; i < 500; ++i) {
        const QPointF at(place(random), place(random));
        std::optional<std::size_t> expected;
        for (std::size_t line = 0; line < drawings.lines.size(); ++line) {
            const auto points = layer.PointsOf(line);
            const Point here{at.x() / kScale, -at.y() / kScale};
            if (std::sqrt(SquaredDistance(here, {points[0], points[1]})) * kScale <= 5.5)
                expected = line;
        }
        const auto hit = Hit(at.x(), at.y());
        ASSERT_EQ(hit.has_value(), expected.has_value());
        EXPECT_EQ(hit ? hit->number : 0, expected.value_or(0));
    }
}

TEST_F(DrawnLayerTest, WhatTheProjectionCannotShowIsNotThere) {
    const auto projection = MapProjection::Of({3, true, {}}, {28, -91});
    ASSERT_TRUE(projection);
    Drawings drawings;
    drawings.lines = {{{{28, -91}, {-90, 0}}}, {{{28, -91}, {28.1, -91}}}};
    drawings.texts = {{{-90, 0}, "far"}};
    layer.Show(std::make_shared<const Drawings>(drawings), *projection, 4000);
    EXPECT_TRUE(layer.PointsOf(0).empty());
    EXPECT_EQ(layer.PointsOf(1).size(), 2U);
    Painted();
}

TEST_F(DrawnLayerTest, FilledBlocksHaveTheirColorAndAreFound) {
    auto area = std::make_unique<AreaMap>();
    area->code = "1";
    area->blocks.Begin("A");
    for (const Point& corner : {Point{-0.05, -0.05}, {0.05, -0.05}, {0.05, 0.05}, {-0.05, 0.05}})
        area->blocks.Add(corner);
    area->Finish();
    model.Add(std::move(area));
    Drawings drawings;
    drawings.fills = {{{"1", "A"}, 12}, {{"1", "gone"}, 9}, {{"2", "A"}, 9}};
    Show(drawings);
    EXPECT_EQ(Pixel(Painted(), 0, 0), QColor(0, 0, 255));
    EXPECT_EQ(Pixel(Painted(), 60, 0), QColor(Qt::white));
    EXPECT_EQ(Hit(10, 10), (DrawingRef{DrawingRef::kFill, 0, {"1", "A"}}));
    EXPECT_EQ(Hit(60, 10), std::nullopt);
    const QRectF outline = layer.OutlineOf(view, *Hit(10, 10)).boundingRect();
    EXPECT_NEAR(outline.width(), 100, 1e-6);
}

}  // namespace
}  // namespace workbench
