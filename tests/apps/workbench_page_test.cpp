#include <gmock/gmock.h>
#include <malloc.h>

#include <QRegularExpression>
#include <QXmlStreamReader>
#include <cmath>
#include <set>

#include "pdf_pages.h"
#include "sample_block.h"
#include "support/file_faults.h"
#include "support/file_size_limit.h"
#include "workbench/printing/page_painter.h"
#include "workbench/printing/page_sink.h"
#include "workbench/printing/print_job.h"
#include "workbench_fixture.h"

namespace workbench {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

constexpr MapLayers kLinesAlone{false, false, false, false, false, false};
using test::CornersOfTheBlock;
using test::kArea;
using test::kBlock;

Sheet SheetOf(double width, double height) {
    return {width, height, width - 1, height - 1};
}

/// Pages of the sample, without a window.
class PageTest : public test::SampleTest {
protected:
    void SetUp() override {
        MapLoader loader(
            model, [] {}, test::LacksNothing);
        loader.Need({kArea});
        pick = model.FindPick({kArea}, kBlock);
        ASSERT_TRUE(pick.block);
    }

    PrintPlan PlanOf(const Pick& printed, int scale, const Sheet& sheet,
                     const MapLayers& layers = {}) const {
        PrintPlan plan;
        const auto projection = ProjectionOf(*model.FindArea(kArea));
        plan.scale = scale;
        plan.sheet = sheet;
        plan.grid = PageGrid(BoundsOf(printed, *projection), scale, sheet);
        plan.map = MapOnPaper(model, *projection, plan.grid.Covered());
        plan.layers = layers;
        plan.title = "Eugene <Island> & more";
        plan.date = "2024-05-06";
        return plan;
    }
    Pick WholeArea() const { return model.FindPick({kArea}, "ALL"); }

    static PrintEnd Write(PrintPlan plan, std::unique_ptr<PageSink> sink) {
        PrintEnd ended;
        PrintJob job(std::move(plan), std::move(sink), [&](const PrintEnd& end) { ended = end; });
        test::ReadAll(job);
        return ended;
    }
    std::vector<test::PdfPage> Pdf(const PrintPlan& plan) {
        const PrintEnd end = Write(plan, PdfFile(folder.Native("map.pdf"), plan.sheet, plan.title));
        EXPECT_TRUE(end.whole) << end.failure.toStdString();
        return test::PdfReader(QByteArray::fromStdString(folder.Read("map.pdf"))).Pages();
    }
    std::string Svg(const PrintPlan& plan) {
        const PrintEnd end = Write(
            plan, SvgFile(folder.Native("map.svg"), plan.sheet, plan.title, plan.grid.Count()));
        EXPECT_TRUE(end.whole) << end.failure.toStdString();
        return folder.Read("map.svg");
    }

    MapModel model;
    Pick pick;
};

TEST_F(PageTest, OneInchIsTwoThousandFeetOnAPdf) {
    constexpr double kScale = 2000;
    const Sheet sheet = SheetOf(34, 22);
    const auto pages = Pdf(PlanOf(pick, kScale, sheet, kLinesAlone));
    ASSERT_THAT(pages, SizeIs(1));
    EXPECT_NEAR(pages[0].size.width(), 34, 0.01);
    EXPECT_NEAR(pages[0].size.height(), 22, 0.01);
    const std::vector<Point> corners = CornersOfTheBlock();
    ASSERT_GE(corners.size(), 4U);
    Box bounds;
    for (const Point& corner : corners)
        bounds.Include(corner);
    const double size = bounds.Width() / kScale;
    ASSERT_GT(size, 5);
    for (const Point& corner : corners) {
        // The block lies in the middle of the sheet.
        const QPointF belongs(17 + (corner.x - bounds.Middle().x) / kScale,
                              11 - (corner.y - bounds.Middle().y) / kScale);
        int near = 0;
        for (const QPointF& drawn : pages[0].Corners()) {
            const double off = std::hypot(drawn.x() - belongs.x(), drawn.y() - belongs.y());
            if (off > 0.05 * size) continue;
            ++near;
            EXPECT_LE(off, 0.002 * size);
        }
        EXPECT_GE(near, 2) << "lines of the block itself and of those beside it";
    }
}

TEST_F(PageTest, PagesOfOneMapShowEachPartOfItOnce) {
    const Sheet sheet = SheetOf(8.5, 11);
    const PrintPlan plan = PlanOf(pick, 1000, sheet, kLinesAlone);
    const auto pages = Pdf(plan);
    ASSERT_EQ(plan.grid.Columns(), 2);
    ASSERT_EQ(plan.grid.Rows(), 2);
    ASSERT_THAT(pages, SizeIs(4));
    for (const Point& corner : CornersOfTheBlock()) {
        int pagesWithIt = 0;
        for (std::int64_t page = 0; page < 4; ++page) {
            const Box box = plan.grid.BoxOf(page);
            if (!box.Contains(corner)) continue;
            ++pagesWithIt;
            const QPointF belongs(0.5 + (corner.x - box.minX) / 1000,
                                  0.5 + (box.maxY - corner.y) / 1000);
            const auto drawn = pages[static_cast<std::size_t>(page)].Corners();
            EXPECT_TRUE(std::any_of(drawn.begin(), drawn.end(), [&](const QPointF& at) {
                return std::hypot(at.x() - belongs.x(), at.y() - belongs.y()) < 0.01;
            }));
        }
        EXPECT_EQ(pagesWithIt, 1);
    }
}

TEST_F(PageTest, LinesStayLinesAndTextStaysText) {
    const auto pages = Pdf(PlanOf(pick, 4000, SheetOf(8.5, 11)));
    ASSERT_THAT(pages, SizeIs(1));
    EXPECT_EQ(pages[0].pictures, 0);
    EXPECT_GT(pages[0].texts, 10);
    EXPECT_GT(pages[0].paths.size(), 50U);
}

TEST_F(PageTest, NothingIsDrawnOutsideOfTheSheetOrOverTheNeatLine) {
    const Sheet sheet = SheetOf(8.5, 11);
    MapLayers layers;
    layers.graticule = false;
    layers.labels = false;
    for (const auto& page : Pdf(PlanOf(pick, 4000, sheet, layers))) {
        for (const QPointF& at : page.Corners()) {
            ASSERT_GE(at.x(), 0.5 - 1e-3);
            ASSERT_GE(at.y(), 0.5 - 1e-3);
            ASSERT_LE(at.x(), 8 + 1e-3);
            ASSERT_LE(at.y(), 10.5 + 1e-3);
        }
    }
}

/// What is told of an SVG file.
struct SvgFileRead {
    bool wellFormed = false;
    QStringList texts;
    std::set<QString> colors;
    std::set<QString> names;
    std::vector<QPointF> corners;  ///< of paths, in points
    QStringList dashes;
};

SvgFileRead ReadSvg(const std::string& file) {
    SvgFileRead read;
    QXmlStreamReader reader(QByteArray::fromStdString(file));
    double down = 0;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) continue;
        read.names.insert(reader.name().toString());
        const auto attributes = reader.attributes();
        for (const auto* name : {"fill", "stroke"})
            read.colors.insert(attributes.value(QLatin1String(name)).toString());
        if (attributes.hasAttribute(QLatin1String("stroke-dasharray")))
            read.dashes << attributes.value(QLatin1String("stroke-dasharray")).toString();
        if (reader.name() == QLatin1String("g")) {
            const QString place = attributes.value(QLatin1String("transform")).toString();
            down = place.section(u' ', 1).chopped(1).toDouble();
        }
        if (reader.name() == QLatin1String("text") || reader.name() == QLatin1String("title"))
            read.texts << reader.readElementText();
        if (reader.name() != QLatin1String("path")) continue;
        QString d = attributes.value(QLatin1String("d")).toString();
        const QStringList words = d.replace(u'M', u' ')
                                      .replace(u'L', u' ')
                                      .replace(u'C', u' ')
                                      .split(u' ', Qt::SkipEmptyParts);
        for (qsizetype i = 0; i + 1 < words.size(); i += 2)
            read.corners.emplace_back(words[i].toDouble(), words[i + 1].toDouble() + down);
    }
    read.wellFormed = !reader.hasError();
    return read;
}

TEST_F(PageTest, AnSvgIsCutAtTheNeatLineAndHoldsPathsAndTextAlone) {
    MapLayers layers;
    layers.graticule = false;
    const SvgFileRead svg = ReadSvg(Svg(PlanOf(pick, 4000, SheetOf(8.5, 11), layers)));
    EXPECT_TRUE(svg.wellFormed);
    EXPECT_THAT(svg.names, testing::UnorderedElementsAre("svg", "title", "g", "path", "text"));
    EXPECT_THAT(svg.texts, testing::Contains(QStringLiteral("Eugene <Island> & more")));
    EXPECT_THAT(svg.texts, testing::Contains(QStringLiteral("2024-05-06")));
    EXPECT_THAT(svg.texts, testing::Contains(QStringLiteral("1 Inch = 4000 Feet")));
    EXPECT_THAT(svg.texts, testing::Contains(QStringLiteral("391")));
    ASSERT_GT(svg.corners.size(), 200U);
    for (const QPointF& at : svg.corners) {
        ASSERT_GE(at.x(), 36 - 0.01);
        ASSERT_GE(at.y(), 36 - 0.01);
        ASSERT_LE(at.x(), 36 + 7.5 * 72 + 0.01);
        ASSERT_LE(at.y(), 36 + 10 * 72 + 0.01);
    }
}

TEST_F(PageTest, PagesOfAnSvgStandBelowEachOther) {
    const PrintPlan plan = PlanOf(pick, 1000, SheetOf(8.5, 11), kLinesAlone);
    const std::string file = Svg(plan);
    EXPECT_THAT(file, HasSubstr("height=\"44.000in\""));
    const SvgFileRead svg = ReadSvg(file);
    std::set<int> pages;
    for (const QPointF& at : svg.corners)
        pages.insert(static_cast<int>(at.y() / (11 * 72)));
    EXPECT_THAT(pages, SizeIs(4));
}

TEST_F(PageTest, SeveralPagesSayHowTheyJoin) {
    const SvgFileRead svg = ReadSvg(Svg(PlanOf(pick, 1000, SheetOf(8.5, 11))));
    // Four seams, each told on both sides.
    EXPECT_EQ(svg.texts.filter(QStringLiteral("joins page ")).size(), 8);
    EXPECT_THAT(svg.texts, testing::Contains(QStringLiteral("Page 4 of 4")));
    const SvgFileRead one = ReadSvg(Svg(PlanOf(pick, 4000, SheetOf(8.5, 11))));
    EXPECT_THAT(one.texts.filter(QStringLiteral("age ")), testing::IsEmpty());
}

TEST_F(PageTest, TicksTellTheirDegrees) {
    const SvgFileRead with = ReadSvg(Svg(PlanOf(pick, 4000, SheetOf(8.5, 11))));
    const QRegularExpression latitude(QStringLiteral("^28\u00b0.*N$"));
    const QRegularExpression longitude(QStringLiteral("^91\u00b0.*W$"));
    EXPECT_GE(with.texts.filter(latitude).size(), 4);
    EXPECT_GE(with.texts.filter(longitude).size(), 4);
    MapLayers layers;
    layers.graticule = false;
    const SvgFileRead without = ReadSvg(Svg(PlanOf(pick, 4000, SheetOf(8.5, 11), layers)));
    EXPECT_THAT(without.texts.filter(latitude), testing::IsEmpty());
}

TEST_F(PageTest, ATickInTheMiddleOfAnEdgeHasItsDegrees) {
    const PrintPlan plan = PlanOf(WholeArea(), 30'000, SheetOf(8.5, 11));
    ASSERT_EQ(plan.grid.Count(), 1);
    const SvgFileRead svg = ReadSvg(Svg(plan));
    EXPECT_EQ(svg.texts.count(QStringLiteral("28\u00b020'N")), 2);
    EXPECT_EQ(svg.texts.count(QStringLiteral("91\u00b020'W")), 2);
}

TEST_F(PageTest, TheLegendTellsWhatIsDrawnAndNothingElse) {
    const auto tells = [&](int scale, const char* text) {
        const SvgFileRead svg = ReadSvg(Svg(PlanOf(WholeArea(), scale, SheetOf(8.5, 11))));
        return svg.texts.contains(QString::fromLatin1(text));
    };
    EXPECT_TRUE(tells(30'000, "Oil pipeline"));
    EXPECT_TRUE(tells(30'000, "Completed well"));
    EXPECT_FALSE(tells(200'000, "Oil pipeline"));
    EXPECT_TRUE(tells(200'000, "Completed well"));
    EXPECT_FALSE(tells(1'000'000, "Completed well"));
    EXPECT_TRUE(tells(1'000'000, "Federal shelf"));
}

TEST_F(PageTest, WhatHasNoRoomOnThePaperIsNamedOnce) {
    const auto leftOut = [&](const Sheet& sheet) {
        const PrintPlan plan = PlanOf(pick, 4000, sheet);
        const PrintEnd end = Write(plan, PdfFile(folder.Native("map.pdf"), sheet, plan.title));
        EXPECT_TRUE(end.whole);
        return NoRoomFor(end.leftOut).toStdString();
    };
    EXPECT_EQ(leftOut(SheetOf(8.5, 11)), "");
    // Several pages of two inches by one inch.
    EXPECT_EQ(leftOut(SheetOf(3, 2)),
              "The paper has no room for: title and scale, key of the pages, legend.");
}

bool IsGray(const QString& color) {
    const QColor each(color);
    return !each.isValid() || (each.red() == each.green() && each.green() == each.blue());
}

TEST_F(PageTest, ColorsAreAsChosen) {
    PrintPlan plan = PlanOf(pick, 4000, SheetOf(8.5, 11));
    const SvgFileRead colored = ReadSvg(Svg(plan));
    EXPECT_FALSE(std::all_of(colored.colors.begin(), colored.colors.end(), IsGray));
    EXPECT_THAT(colored.dashes, testing::IsEmpty());
    plan.ink = InkMode::kGray;
    const SvgFileRead gray = ReadSvg(Svg(plan));
    EXPECT_TRUE(std::all_of(gray.colors.begin(), gray.colors.end(), IsGray));
    EXPECT_GT(gray.colors.size(), 4U);
    EXPECT_THAT(gray.dashes, Not(testing::IsEmpty())) << "pipelines are told apart";
    plan.ink = InkMode::kBlackAndWhite;
    EXPECT_THAT(ReadSvg(Svg(plan)).colors,
                testing::UnorderedElementsAre("", "none", "#000000", "#ffffff"));
}

TEST_F(PageTest, NoTextIsSmallerThanWasChosen) {
    PrintPlan plan = PlanOf(pick, 4000, SheetOf(8.5, 11));
    const auto sizes = [&] {
        std::set<double> all;
        const QString file = QString::fromStdString(Svg(plan));
        const QRegularExpression size(QStringLiteral("font-size=\"([0-9.]+)\""));
        for (auto match = size.globalMatch(file); match.hasNext();)
            all.insert(match.next().captured(1).toDouble());
        return all;
    };
    EXPECT_LT(*sizes().begin(), 8);
    plan.leastFontSize = 10;
    EXPECT_EQ(*sizes().begin(), 10);
}

// Failures.

TEST_F(PageTest, AFullDiskIsToldAndLeavesTheFileAsItWas) {
    const PrintPlan plan = PlanOf(pick, 4000, SheetOf(8.5, 11));
    for (const char* name : {"map.pdf", "map.svg"}) {
        folder.Write(name, "the one before");
        const std::string path = folder.Native(name);
        const std::size_t files = folder.Count();
        PrintEnd end;
        {
            const test::FileSizeLimit full(4096);
            end = Write(plan, path.ends_with("pdf") ? PdfFile(path, plan.sheet, plan.title)
                                                    : SvgFile(path, plan.sheet, plan.title, 1));
        }
        EXPECT_FALSE(end.whole);
        EXPECT_THAT(end.failure.toStdString(), HasSubstr("File too large"));
        EXPECT_EQ(folder.Read(name), "the one before");
        EXPECT_EQ(folder.Count(), files);
    }
}

TEST_F(PageTest, AnyFailureOfAFileIsToldAndLeavesTheFileAsItWas) {
    const PrintPlan plan = PlanOf(pick, 4000, SheetOf(8.5, 11), kLinesAlone);
    folder.Write("map.pdf", "the one before");
    const std::string path = folder.Native("map.pdf");
    for (int failing = 1; failing < 500; ++failing) {
        const test::FileFaults faults(failing);
        const PrintEnd end = Write(plan, PdfFile(path, plan.sheet, plan.title));
        if (faults.Calls() < failing) {
            EXPECT_TRUE(end.whole);
            EXPECT_GT(failing, 3);
            return;
        }
        EXPECT_FALSE(end.whole);
        EXPECT_FALSE(end.failure.isEmpty());
        ASSERT_EQ(folder.Read("map.pdf"), "the one before");
    }
    ADD_FAILURE() << "it never ended";
}

TEST_F(PageTest, AnUnwritableFileIsTold) {
    const PrintPlan plan = PlanOf(pick, 4000, SheetOf(8.5, 11), kLinesAlone);
    folder.Write("plain", "");
    for (const bool pdf : {true, false}) {
        const std::string path = folder.Native("plain/map");
        const PrintEnd end = Write(plan, pdf ? PdfFile(path, plan.sheet, plan.title)
                                             : SvgFile(path, plan.sheet, plan.title, 1));
        EXPECT_FALSE(end.whole);
        EXPECT_THAT(end.failure.toStdString(), HasSubstr("Not a directory"));
    }
}

TEST_F(PageTest, ACancelledExportLeavesNoFile) {
    PrintPlan plan = PlanOf(pick, 1000, SheetOf(8.5, 11), kLinesAlone);
    PrintEnd ended;
    const std::size_t files = folder.Count();
    auto sink = PdfFile(folder.Native("map.pdf"), plan.sheet, plan.title);
    PrintJob job(std::move(plan), std::move(sink), [&](const PrintEnd& end) { ended = end; });
    EXPECT_TRUE(job.Step());
    EXPECT_TRUE(job.Step());
    EXPECT_EQ(job.Done(), 2);
    EXPECT_EQ(job.Total(), 4);
    job.Finished(false);
    EXPECT_FALSE(ended.whole);
    EXPECT_TRUE(ended.failure.isEmpty());
    EXPECT_EQ(folder.Count(), files);
}

TEST_F(PageTest, MemoryDoesNotGrowWithTheNumberOfPages) {
    PrintPlan plan = PlanOf(WholeArea(), 4000, SheetOf(8.5, 11));
    ASSERT_GT(plan.grid.Count(), 20);
    auto sink = PdfFile(folder.Native("map.pdf"), plan.sheet, plan.title);
    PrintJob job(std::move(plan), std::move(sink), [](const PrintEnd&) {});
    const auto held = [] { return static_cast<double>(mallinfo2().uordblks); };
    while (job.Done() < job.Total() / 2)
        ASSERT_TRUE(job.Step());
    const double inTheMiddle = held();
    while (job.Done() + 1 < job.Total())
        ASSERT_TRUE(job.Step());
    EXPECT_LT(held() - inTheMiddle, 200'000);
}

// Printers.

TEST_F(PageTest, PagesComeOutOfAPrinterAtTheirScale) {
    const PrintPlan plan = PlanOf(pick, 4000, SheetOf(8.5, 11), kLinesAlone);
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(QString::fromStdString(folder.Native("printed.pdf")));
    printer->setFullPage(true);
    printer->setPageSize(QPageSize(QPageSize::Letter));
    EXPECT_TRUE(Write(plan, PrinterPages(std::move(printer))).whole);
    const auto pages =
        test::PdfReader(QByteArray::fromStdString(folder.Read("printed.pdf"))).Pages();
    ASSERT_THAT(pages, SizeIs(1));
    const auto written = Pdf(plan);
    const auto printed = pages[0].Corners();
    ASSERT_EQ(printed.size(), written[0].Corners().size());
    for (std::size_t i = 0; i < printed.size(); ++i) {
        ASSERT_NEAR(printed[i].x(), written[0].Corners()[i].x(), 0.002);
        ASSERT_NEAR(printed[i].y(), written[0].Corners()[i].y(), 0.002);
    }
}

TEST_F(PageTest, APrinterThatDoesNotAnswerIsTold) {
    auto printer = std::make_unique<QPrinter>();
    printer->setOutputFormat(QPrinter::PdfFormat);
    folder.Write("plain", "");
    printer->setOutputFileName(QString::fromStdString(folder.Native("plain/out.pdf")));
    const PrintEnd end =
        Write(PlanOf(pick, 4000, SheetOf(8.5, 11), kLinesAlone), PrinterPages(std::move(printer)));
    EXPECT_FALSE(end.whole);
    EXPECT_EQ(end.failure.toStdString(), "The printer does not answer.");
    kv::PrinterSettings gone;
    gone.device = "no such printer";
    EXPECT_FALSE(PrinterFor(gone, false, "map", true));
}

}  // namespace
}  // namespace workbench
