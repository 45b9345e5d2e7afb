#include <gmock/gmock.h>

#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <cmath>
#include <filesystem>

#include "frame/kvdbkvn/database_fault.h"
#include "pdf_pages.h"
#include "print/print_control.h"
#include "print/print_control_ids.h"
#include "sample_block.h"
#include "workbench/printing/print_preview.h"
#include "workbench_person.h"

namespace workbench {
namespace {

using namespace kv::print_control;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

/// A person who prints from the File menu. The sample machine has no printer, or has one.
class WorkbenchPrinting : public WorkbenchPerson {
protected:
    WorkbenchPrinting() {
        kv::ResetPrinter();
        CKvGuiPrintControl::m_nMapScale = 0;
        CKvGuiPrintControl::m_bPrintLandscape = false;
        CKvGuiPrintControl::m_fPrintBoundWidth = CKvGuiPrintControl::m_fPrintBoundHeight = 36.0F;
    }

    static std::function<bool()> AtScale(const char* scale) {
        return InDialog([scale](kv::User& at) {
            at.Type(kPrintScale, scale);
            at.Click(IDOK);
        });
    }
    std::vector<test::PdfPage> Pages(const char* name) const {
        return test::PdfReader(QByteArray::fromStdString(folder.Read(name))).Pages();
    }
    void PickBlock() {
        host->ShowOnMap({"43113"}, "391");
        ASSERT_TRUE(host->Canvas().GetPick().block);
    }

    std::vector<std::string> notes;
};

TEST_F(WorkbenchPrinting, ExportsThePickAsAPdfAtTheScaleThatWasChosen) {
    Open();
    PickBlock();
    Trigger("Export PDF...", {AtScale("2000"), NameFile(folder.Native("block.pdf"))});
    EXPECT_THAT(failures, SizeIs(0));
    EXPECT_THAT(boxes, SizeIs(0)) << "an export asks for no printer";
    EXPECT_EQ(Said(), "Saved " + folder.Native("block.pdf"));
    const auto pages = Pages("block.pdf");
    ASSERT_THAT(pages, SizeIs(1));
    const std::vector<Point> block = test::CornersOfTheBlock();
    Box bounds;
    for (const Point& corner : block)
        bounds.Include(corner);
    const auto drawn = pages[0].Corners();
    for (const Point& corner : block) {
        // It lies in the middle of Letter paper.
        const QPointF belongs(4.25 + (corner.x - bounds.Middle().x) / 2000,
                              5.5 - (corner.y - bounds.Middle().y) / 2000);
        EXPECT_TRUE(std::any_of(drawn.begin(), drawn.end(), [&](const QPointF& at) {
            return std::hypot(at.x() - belongs.x(), at.y() - belongs.y()) <
                   0.002 * bounds.Width() / 2000;
        }));
    }
}

TEST_F(WorkbenchPrinting, AMapLargerThanThePaperTakesSeveralPages) {
    Open();
    PickBlock();
    Trigger("Export PDF...", {AtScale("1000"), NameFile(folder.Native("block.pdf"))});
    const auto pages = Pages("block.pdf");
    EXPECT_GT(pages.size(), 1U);
    EXPECT_EQ(Said(), "Saved " + folder.Native("block.pdf") + ", " + std::to_string(pages.size()) +
                          " pages");
}

TEST_F(WorkbenchPrinting, ExportsWhatIsSeenWhereNothingIsPickedOrThatIsAskedFor) {
    Open();
    host->Canvas().ShowPlace({28.5, -91});
    Trigger("Export SVG...", {AtScale("100000"), NameFile(folder.Native("seen.svg"))});
    EXPECT_THAT(folder.Read("seen.svg"), HasSubstr("1 Inch = 100000 Feet"));
    PickBlock();
    MenuAction("What is seen")->trigger();
    Trigger("Export SVG...", {AtScale("100000"), NameFile(folder.Native("again.svg"))});
    EXPECT_THAT(folder.Read("again.svg"), testing::Not(HasSubstr(", block 391")));
    MenuAction("The pick, or else what is seen")->trigger();
    Trigger("Export SVG...", {AtScale("4000"), NameFile(folder.Native("pick.svg"))});
    EXPECT_THAT(folder.Read("pick.svg"), HasSubstr(", block 391"));
}

TEST_F(WorkbenchPrinting, ACancelEndsItAtEachStep) {
    Open();
    PickBlock();
    // Where Qt keeps which folder was open.
    folder.Write("config/QtProject.conf", "");
    const std::size_t files = folder.Count();
    Trigger("Export PDF...", {InDialog([](kv::User& at) { at.Click(IDCANCEL); })});
    Trigger("Export PDF...", {AtScale("4000"), [] {
                                  auto* dialog =
                                      qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                                  if (dialog) dialog->reject();
                                  return dialog != nullptr;
                              }});
    EXPECT_EQ(folder.Count(), files);
    EXPECT_THAT(failures, SizeIs(0));
}

TEST_F(WorkbenchPrinting, AScaleThatIsNoNumberIsTold) {
    Open();
    PickBlock();
    Trigger("Export PDF...", {AtScale("large")});
    EXPECT_THAT(failures, ElementsAre("A map is printed at a scale above 0."));
}

TEST_F(WorkbenchPrinting, AProjectionThatCannotBeReadIsAFailureOfTheDatabase) {
    Open();
    PickBlock();
    kv::db::SetDatabaseFault([](std::string_view call) { return call == "step"; });
    Trigger("Export PDF...", {});
    kv::db::SetDatabaseFault(nullptr);
    EXPECT_THAT(failures, ElementsAre(HasSubstr("Database error")));
}

TEST_F(WorkbenchPrinting, ManyPagesAreAskedForFirst) {
    Open();
    PickBlock();
    Trigger("Export PDF...", {AtScale("100")});
    EXPECT_THAT(boxes, ElementsAre(testing::MatchesRegex(
                           "At 1 inch = 100 feet the map takes [0-9]+ pages. Go on\\?")));
}

TEST_F(WorkbenchPrinting, AStrokeFontIsToldToBeMissing) {
    Open();
    PickBlock();
    Trigger("Export PDF...", {InDialog([](kv::User& at) {
                                  at.Click(kStrokeFont);
                                  at.Type(kPrintScale, "4000");
                                  at.Click(IDOK);
                              }),
                              NameFile(folder.Native("block.pdf"))});
    EXPECT_THAT(failures, ElementsAre("There is no stroke font here. Texts are written in the "
                                      "True Type font."));
    EXPECT_THAT(Pages("block.pdf"), SizeIs(1));
}

TEST_F(WorkbenchPrinting, WhatHasNoRoomOnThePaperIsTold) {
    Open();
    PickBlock();
    const auto inHugeLetters = InDialog([](kv::User& at) {
        at.Type(kPrintScale, "4000");
        at.Type(kMinimalFontSize, "72");
        at.Click(IDOK);
    });
    Trigger("Export PDF...", {inHugeLetters, NameFile(folder.Native("block.pdf"))});
    EXPECT_THAT(failures, ElementsAre("The paper has no room for: title and scale, legend."));
    EXPECT_EQ(Said(), "Saved " + folder.Native("block.pdf"));
    const auto note = [this] {
        auto* preview = qobject_cast<PrintPreview*>(QApplication::activeModalWidget());
        if (!preview || !preview->isActiveWindow()) return false;
        for (const auto* label : preview->findChildren<QLabel*>()) {
            if (label->isVisible()) notes.push_back(label->text().toStdString());
        }
        // The page is painted first.
        if (notes.size() < 2) {
            notes.clear();
            return false;
        }
        preview->reject();
        return true;
    };
    Trigger("Print Preview...", {inHugeLetters, note});
    EXPECT_THAT(notes, testing::Contains("The paper has no room for: title and scale, legend."));
}

TEST_F(WorkbenchPrinting, AFileThatCannotBeWrittenIsTold) {
    Open();
    PickBlock();
    const std::string path = folder.Native("block.pdf");
    Trigger("Export PDF...", {AtScale("4000"), [&] {
                                  // It can be named, and is a folder by then.
                                  const bool named = NameFile(path)();
                                  if (named) std::filesystem::create_directory(path);
                                  return named;
                              }});
    ASSERT_THAT(failures, SizeIs(1));
    EXPECT_THAT(failures[0], HasSubstr(path + " could not be saved.\n"));
}

TEST_F(WorkbenchPrinting, WithoutAPrinterItSaysSoAndNamesTheWayOut) {
    kv::PrinterSettings any;
    if (desktop.DefaultPrinter(any)) GTEST_SKIP() << "this machine has a printer";
    Open();
    PickBlock();
    Trigger("Print...", {AtScale("4000")});
    EXPECT_THAT(boxes, ElementsAre("Unable to communicate with the printer"));
    EXPECT_THAT(failures, ElementsAre("There is no printer. Export PDF writes the same pages to a "
                                      "file."));
}

TEST_F(WorkbenchPrinting, ThePreviewLeafsThroughThePages) {
    Open();
    PickBlock();
    Trigger("Print Preview...",
            {AtScale("300"), [this] {
                 auto* preview = qobject_cast<PrintPreview*>(QApplication::activeModalWidget());
                 if (!preview || !preview->isActiveWindow()) return false;
                 const auto button = [&](const char* text) {
                     for (auto* each : preview->findChildren<QPushButton*>()) {
                         if (each->text().remove(u'&') == QLatin1String(text)) return each;
                     }
                     return static_cast<QPushButton*>(nullptr);
                 };
                 for (const char* each : {"Previous", "Next", "Actual size", "Print...", "Close"})
                     EXPECT_TRUE(button(each)->isVisible()) << each;
                 const std::int64_t count = preview->Plan().grid.Count();
                 EXPECT_GT(count, 1);
                 EXPECT_FALSE(button("Previous")->isEnabled());
                 QTest::keyClick(preview, Qt::Key_PageDown);
                 EXPECT_EQ(preview->Page(), 1);
                 button("Previous")->click();
                 EXPECT_EQ(preview->Page(), 0);
                 for (std::int64_t page = 1; page < count; ++page)
                     button("Next")->click();
                 EXPECT_EQ(preview->Page(), count - 1);
                 EXPECT_FALSE(button("Next")->isEnabled());
                 QTest::keyClick(preview, Qt::Key_PageDown);
                 EXPECT_EQ(preview->Page(), count - 1);
                 auto* sheet = preview->findChild<PageSheet*>();
                 const int fitting = sheet->width();
                 button("Actual size")->click();
                 EXPECT_GT(sheet->width(), fitting);
                 EXPECT_EQ(sheet->width(),
                           static_cast<int>(preview->Plan().sheet.width * preview->logicalDpiX()));
                 const QImage page = sheet->grab().toImage();
                 EXPECT_EQ(page.pixelColor(2, 2), QColor(Qt::white));
                 preview->reject();
                 return true;
             }});
}

}  // namespace
}  // namespace workbench
