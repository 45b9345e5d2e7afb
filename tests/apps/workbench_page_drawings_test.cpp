// Drawings on paper, at true size.

#include <gmock/gmock.h>

#include <QRegularExpression>
#include <cmath>

#include "sample_block.h"
#include "workbench/drawings/text_shape.h"
#include "workbench/printing/page_painter.h"
#include "workbench/printing/svg_paper.h"
#include "workbench_fixture.h"

namespace workbench {
namespace {

using test::kArea;
using test::kBlock;
using testing::IsEmpty;
using testing::SizeIs;

constexpr int kScale = 4000;

/// What is drawn on a page, as it is told.
class ToldPaper : public Paper {
public:
    struct Shape {
        QPainterPath path;
        Ink ink;
    };
    void Draw(const QPainterPath& path, const Ink& ink) override { shapes.push_back({path, ink}); }
    void Write(const Writing& writing) override { writings.push_back(writing); }

    std::vector<Shape> shapes;
    std::vector<Writing> writings;
};

class PageDrawingsTest : public test::SampleTest {
protected:
    void SetUp() override {
        MapLoader loader(
            model, [] {}, test::LacksNothing);
        loader.Need({kArea});
        projection = *ProjectionOf(*model.FindArea(kArea));
        bounds = BoundsOf(model.FindPick({kArea}, kBlock), projection);
    }

    /// So many inches to the right and up from the middle of the page.
    Place At(double right, double up) const {
        return projection.PlaceOf(
            {bounds.Middle().x + right * kScale, bounds.Middle().y + up * kScale});
    }
    PrintPlan PlanOf(const Drawings& drawings, double feetPerInch = kScale) const {
        PrintPlan plan;
        plan.scale = kScale;
        plan.sheet = {8.5, 11, 7.5, 10};
        plan.grid = PageGrid(bounds, kScale, plan.sheet);
        plan.map.projection = projection;
        plan.drawings =
            DrawingsOnPaper({std::make_shared<const Drawings>(drawings), feetPerInch}, projection);
        plan.layers = {false, false, false, true, false, false};
        return plan;
    }
    static ToldPaper Page(const PrintPlan& plan) {
        ToldPaper paper;
        DrawPage(plan, 0, paper);
        return paper;
    }
    /// The shapes and the writings of the drawings alone.
    static std::vector<ToldPaper::Shape> InColor(const ToldPaper& paper, const QColor& color) {
        std::vector<ToldPaper::Shape> shapes;
        for (const auto& shape : paper.shapes) {
            if (shape.ink.line == color || shape.ink.fill == color) shapes.push_back(shape);
        }
        return shapes;
    }
    static QPointF OnSheet(double right, double up) {
        return QPointF(4.25 + right, 5.5 - up) * kPointsPerInch;
    }

    MapModel model;
    PaperProjection projection;
    Box bounds;
};

TEST_F(PageDrawingsTest, ALineLiesWhereItBelongsAndHasItsWidth) {
    Drawings drawings;
    drawings.lines = {{{At(-1, 0.5), At(1, 0.5), At(1, 2)}, false, false, 9, 0, 3, 0}};
    const auto lines = InColor(Page(PlanOf(drawings)), QColor(255, 0, 0));
    ASSERT_THAT(lines, SizeIs(1));
    EXPECT_DOUBLE_EQ(lines[0].ink.width, 4 * 0.75) << "four pixels of 1/96 inch";
    const QPointF corners[] = {OnSheet(-1, 0.5), OnSheet(1, 0.5), OnSheet(1, 2)};
    ASSERT_EQ(lines[0].path.elementCount(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(lines[0].path.elementAt(i).x, corners[i].x(), 0.01);
        EXPECT_NEAR(lines[0].path.elementAt(i).y, corners[i].y(), 0.01);
    }
}

TEST_F(PageDrawingsTest, DashesHaveTrueSize) {
    Drawings drawings;
    drawings.lines = {{{At(-1, 0), At(1, 0)}, false, false, 9, 0, 0, 1}};
    const auto lines = InColor(Page(PlanOf(drawings)), QColor(255, 0, 0));
    ASSERT_THAT(lines, SizeIs(1));
    const auto dashes = lines[0].path.toSubpathPolygons();
    EXPECT_EQ(dashes.size(), 10) << "two inches are 192 pixels, a dash and its gap 20";
    EXPECT_NEAR(dashes[0].back().x() - dashes[0].front().x(), 7.5, 0.01);
    EXPECT_NEAR(dashes[1].front().x() - dashes[0].front().x(), 15, 0.01);
}

TEST_F(PageDrawingsTest, LinesAndFillingsAreCutAtTheNeatLine) {
    Drawings drawings;
    drawings.lines = {
        {{At(-20, -20), At(20, -20), At(20, 20), At(-20, 20)}, true, true, 9, 12, 9, 0},
        {{At(-20, 1), At(20, 1)}, false, false, 9, 0, 0, 2},
        {{At(0, 8), At(1, 8)}, false, false, 9, 0, 0, 0}};
    const ToldPaper paper = Page(PlanOf(drawings));
    const auto fillings = InColor(paper, QColor(0, 0, 255));
    ASSERT_THAT(fillings, SizeIs(1));
    EXPECT_NEAR(fillings[0].path.boundingRect().width(), 7.5 * 72, 0.01);
    const auto lines = InColor(paper, QColor(255, 0, 0));
    EXPECT_THAT(lines, SizeIs(1)) << "the outline lies outside, and so does the last line";
    for (const auto& shape : {fillings[0], lines[0]}) {
        const QRectF box = shape.path.boundingRect();
        EXPECT_GE(box.left(), 36 - 1e-3);
        EXPECT_GE(box.top(), 36 - 1e-3);
        EXPECT_LE(box.right(), 36 + 7.5 * 72 + 1e-3);
        EXPECT_LE(box.bottom(), 36 + 10 * 72 + 1e-3);
    }
}

TEST_F(PageDrawingsTest, ATextHasItsHeightInInchesAtTheMapsScale) {
    Drawings drawings;
    drawings.texts = {{At(0.5, 1), "HEX", 0.25, 30, 12, 4, TextRow::kOn, TextPart::kRight}};
    const auto written = [&](double feetPerInch) {
        const ToldPaper paper = Page(PlanOf(drawings, feetPerInch));
        const auto at = std::ranges::find(paper.writings, QStringLiteral("HEX"), &Writing::text);
        EXPECT_NE(at, paper.writings.end());
        return *at;
    };
    const Writing text = written(kScale);
    const double capital = text.size / ShapeOf(drawings.texts[0]).fontSize;
    EXPECT_NEAR(capital, 0.25 * kPointsPerInch, 1e-6);
    EXPECT_EQ(text.turned, -30);
    EXPECT_EQ(text.anchor, Anchor::kRight);
    EXPECT_EQ(text.color, QColor(0, 0, 255));
    EXPECT_NEAR(text.stroke, 0.16 * capital, 1e-6);
    // Its middle is at its place: half a capital below, turned.
    const double half = capital / 2;
    const QPointF base =
        OnSheet(0.5, 1) + QPointF(half * std::sin(M_PI / 6), half * std::cos(M_PI / 6));
    EXPECT_NEAR(text.at.x(), base.x(), 0.01);
    EXPECT_NEAR(text.at.y(), base.y(), 0.01);
    EXPECT_NEAR(written(2 * kScale).size, 2 * text.size, 1e-6)
        << "on a map of half the scale it covers twice as much";
}

TEST_F(PageDrawingsTest, ATextThatReachesOverTheNeatLineIsCut) {
    Drawings drawings;
    drawings.texts = {{At(3.7, 0), "WWWWWW", 0.5, 0, 12}, {At(9, 0), "FAR", 0.5, 0, 12}};
    const ToldPaper paper = Page(PlanOf(drawings));
    for (const Writing& writing : paper.writings)
        EXPECT_NE(writing.color, QColor(0, 0, 255));
    const auto shapes = InColor(paper, QColor(0, 0, 255));
    ASSERT_THAT(shapes, SizeIs(1));
    EXPECT_LE(shapes[0].path.boundingRect().right(), 36 + 7.5 * 72 + 1e-3);
    EXPECT_LT(shapes[0].path.boundingRect().left(), 36 + 7 * 72);
}

TEST_F(PageDrawingsTest, FilledBlocksAndReplacedLabelsAreOnPaper) {
    Drawings drawings;
    drawings.fills = {{{kArea, kBlock}, 12}};
    drawings.labels = {{{LabelLayer::kLeases, kArea, kBlock}, "OURS"}};
    PrintPlan plan = PlanOf(drawings);
    plan.map = MapOnPaper(model, projection, plan.grid.Covered());
    const ToldPaper paper = Page(plan);
    const auto fillings = InColor(paper, QColor(0, 0, 255));
    ASSERT_THAT(fillings, SizeIs(1));
    EXPECT_NEAR(fillings[0].path.boundingRect().width(), bounds.Width() / kScale * 72, 0.5);
    std::vector<std::string> texts;
    for (const Writing& writing : paper.writings)
        texts.push_back(writing.text.toStdString());
    EXPECT_THAT(texts, testing::Contains("OURS"));
    EXPECT_THAT(texts, testing::Not(testing::Contains(kBlock)));
}

TEST_F(PageDrawingsTest, InkIsAsChosenAndHiddenDrawingsAreNotPrinted) {
    Drawings drawings;
    drawings.lines = {{{At(-1, 0), At(1, 0), At(0, 1)}, true, true, 9, 12, 0, 0}};
    PrintPlan plan = PlanOf(drawings);
    plan.ink = InkMode::kBlackAndWhite;
    const ToldPaper black = Page(plan);
    EXPECT_THAT(InColor(black, QColor(255, 0, 0)), IsEmpty());
    EXPECT_THAT(InColor(black, QColor(0, 0, 255)), IsEmpty());
    plan.ink = InkMode::kGray;
    EXPECT_THAT(InColor(Page(plan), QColor(qGray(255, 0, 0), qGray(255, 0, 0), qGray(255, 0, 0))),
                SizeIs(1));
    plan.ink = InkMode::kColor;
    plan.layers.drawings = false;
    EXPECT_THAT(InColor(Page(plan), QColor(255, 0, 0)), IsEmpty());
}

TEST_F(PageDrawingsTest, AnSvgHasThickLettersAsText) {
    SvgPaper paper;
    Writing writing;
    writing.text = "HEX";
    writing.size = 10;
    writing.color = Qt::red;
    writing.stroke = 1.5;
    paper.Write(writing);
    EXPECT_THAT(paper.Elements(), testing::HasSubstr("stroke=\"#ff0000\" stroke-width=\"1.500\""));
    EXPECT_THAT(paper.Elements(), testing::HasSubstr(">HEX</text>"));
}

TEST_F(PageDrawingsTest, WhatTheProjectionCannotShowIsCounted) {
    Drawings drawings;
    drawings.lines = {{{At(0, 0), Place{-90, 0}}}};
    drawings.texts = {{Place{-90, 0}, "FAR", 0.5, 0, 12}};
    EXPECT_EQ(PlanOf(drawings).drawings.leftOut, 2);
    Page(PlanOf(drawings));
}

}  // namespace
}  // namespace workbench
