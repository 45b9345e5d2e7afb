// The map document in the workbench: built in the dialogs, shown, printed, saved and opened again.

#include <gmock/gmock.h>

#include <QListWidget>
#include <cmath>
#include <filesystem>
#include <nlohmann/json.hpp>

#include "base/numbers.h"
#include "base/text.h"
#include "coordtools/coord_ids.h"
#include "frame/kvcom/util_lldrv.h"
#include "frame/kvdbkvn/database_fault.h"
#include "frame/kvdbkvn/statement_trace.h"
#include "mapbuild/builders/custom_ids.h"
#include "mapbuild/builders/map_rpt_proj_chooser_ids.h"
#include "mapbuild/builders/quick_off_bld_ids.h"
#include "pdf_pages.h"
#include "print/print_control.h"
#include "print/print_control_ids.h"
#include "sample_block.h"
#include "support/file_faults.h"
#include "workbench/document/county_dialog.h"
#include "workbench/document/map_file.h"
#include "workbench/document/map_shape.h"
#include "workbench_person.h"

namespace workbench {
namespace {

using namespace kv::quick_bld;
using test::kArea;
using test::kBlock;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

class WorkbenchDocument : public WorkbenchPerson {
protected:
    WorkbenchDocument() {
        kv::ResetPrinter();
        CKvGuiPrintControl::m_nMapScale = 0;
        CKvGuiPrintControl::m_bPrintLandscape = false;
        Open();
        host->SetNoteShown([this](const QString& note) { notes.push_back(note.toStdString()); });
    }
    ~WorkbenchDocument() override { kv::db::SetStatementTrace(nullptr); }

    static std::function<bool()> PressOk() {
        return InDialog([](kv::User& at) { at.Click(IDOK); });
    }
    void PickBlock() {
        host->ShowOnMap({kArea}, kBlock);
        ASSERT_TRUE(host->Canvas().GetPick().block);
    }
    /// A map of the block, in the projection and unit that the person chooses.
    void Build(std::function<void(kv::User&)> choose = {}) {
        PickBlock();
        Trigger("New from picked blocks...", {InDialog([choose = std::move(choose)](kv::User& at) {
                    if (choose) choose(at);
                    at.Click(IDOK);
                })});
        ASSERT_TRUE(Document().map);
    }
    void SaveAs(const std::string& path) { Trigger("Save As...", {NameFile(path)}); }
    void ExportBoundary(const char* name) {
        Trigger("Export pick boundary...", {InDialog([](kv::User& at) {
                                                at.Select(kWidth, "1");
                                                at.Select(kHeight, "1");
                                                at.Click(IDOK);
                                            }),
                                            NameFile(folder.Native(name))});
    }
    const MapDocument& Document() { return host->Documents().Document(); }
    const CKvMapBounds& Bounds() { return Document().map->bounds; }
    MapCanvas& Canvas() { return host->Canvas(); }
    std::string Title() { return host->Window().windowTitle().toStdString(); }
    QAction* Row(const char* beginning) {
        for (const QMenu* menu : host->Window().findChildren<QMenu*>()) {
            for (QAction* action : menu->actions()) {
                if (action->text().remove(u'&').startsWith(QLatin1String(beginning))) return action;
            }
        }
        return nullptr;
    }
    /// X and Y of what the canvas shows there, by the driver alone.
    Point DriverXY(const QPointF& at) {
        const auto place = Canvas().PlaceAt(at);
        EXPECT_TRUE(place);
        return PlaneOf(*Document().map).ToXY(*place).value_or(Point{});
    }

    std::vector<std::string> notes;
};

TEST_F(WorkbenchDocument, ThereIsNoneAtTheStart) {
    EXPECT_FALSE(Document().map);
    EXPECT_TRUE(Canvas().Projection().IsMercator());
    for (const char* row : {"New from picked blocks...", "Properties...", "Save", "Save As...",
                            "Report projection...", "Export pick boundary..."}) {
        EXPECT_FALSE(MenuAction(row)->isEnabled()) << row;
        EXPECT_FALSE(MenuAction(row)->statusTip().isEmpty()) << row;
    }
    for (const char* row : {"New from county...", "New custom map...", "Open..."})
        EXPECT_TRUE(MenuAction(row)->isEnabled()) << row;
    EXPECT_THAT(Title(), Not(HasSubstr("*")));
}

TEST_F(WorkbenchDocument, AMapOfThePickedBlockIsShownInItsProjection) {
    Build();
    EXPECT_THAT(failures, IsEmpty());
    EXPECT_TRUE(Bounds().GetPickOneFlag());
    EXPECT_EQ(Document().map->Projection(), CKvDbUtil::S_GetProjectionByArea(kArea, ""));
    EXPECT_GT(Bounds().GetScale(), 0);
    EXPECT_FALSE(Canvas().Projection().IsMercator());
    // The same pixels to the right and down are the same feet.
    const Point at = DriverXY({300, 200});
    const Point right = DriverXY({400, 200});
    const Point down = DriverXY({300, 300});
    EXPECT_NEAR(right.y, at.y, 0.01);
    EXPECT_NEAR(down.x, at.x, 0.01);
    EXPECT_NEAR(right.x - at.x, at.y - down.y, 0.01);
    // The edge of the map is in sight.
    for (const Place& corner : EdgeOf(*Document().map)) {
        const auto screen = Canvas().ScreenAt(corner);
        ASSERT_TRUE(screen);
        EXPECT_TRUE(QRectF(Canvas().rect()).contains(*screen));
    }
    EXPECT_THAT(Title(), StartsWith(Document().map->name + "*"));
}

TEST_F(WorkbenchDocument, WhatIsOutsideOfTheMapIsDimmedAndItsEdgeIsDrawn) {
    Build();
    Canvas().MarkPick({});
    MapLayers layers = Canvas().Layers();
    layers.labels = layers.legend = layers.graticule = false;
    Canvas().SetLayers(layers);
    const QPoint inside = Canvas().ScreenAt(*MiddleOf(*Document().map))->toPoint();
    const QPoint outside(inside.x(), 3);
    const QImage with = Canvas().grab().toImage();
    Canvas().SetFrame({});
    const QImage without = Canvas().grab().toImage();
    EXPECT_EQ(with.pixelColor(inside), without.pixelColor(inside));
    EXPECT_NE(with.pixelColor(outside), without.pixelColor(outside));
    const QPoint corner = Canvas().ScreenAt(EdgeOf(*Document().map)[0])->toPoint();
    EXPECT_NE(with.pixelColor(corner), without.pixelColor(corner));
}

TEST_F(WorkbenchDocument, ClicksAndPicksAreTheSameInItsProjection) {
    Build();
    const workbench::Pick other = host->Model().FindPick({kArea}, "390");
    ASSERT_TRUE(other.block);
    const auto at = Canvas().ScreenAt(ToPlace(other.Bounds().Middle()));
    ASSERT_TRUE(at);
    QTest::mouseClick(&Canvas(), Qt::LeftButton, {}, at->toPoint());
    EXPECT_EQ(Canvas().GetPick().block, other.block);
    EXPECT_EQ(user->Text(kv::abe_bar::kBlock), "390");
    Canvas().ShowPick(other);
    EXPECT_NEAR(Canvas().ScreenAt(ToPlace(other.Bounds().Middle()))->x(),
                Canvas().rect().center().x(), 3);
}

TEST_F(WorkbenchDocument, ASavedMapIsOpenedAgainAndItsPropertiesAreChanged) {
    Build();
    const std::string path = folder.Native("block.kvmap");
    SaveAs(path);
    EXPECT_EQ(Said(), "Saved " + path);
    EXPECT_THAT(Title(), Not(HasSubstr("*")));
    const MapDocument saved = Document();
    const std::string name = saved.map->name;
    host->Documents().Reset();
    EXPECT_FALSE(Document().map);
    EXPECT_TRUE(Canvas().Projection().IsMercator());
    Trigger("Open...", {NameFile(path)});
    EXPECT_EQ(Document(), saved);
    EXPECT_THAT(Title(), StartsWith(name + " - "));
    EXPECT_FALSE(Canvas().Projection().IsMercator());
    const double before = Bounds().GetXMax() - Bounds().GetXMin();
    Trigger("Properties...", {InDialog([&](kv::User& at) {
                EXPECT_EQ(at.Text(kMapName), name);
                at.Select(kPercent, "50");
                at.Type(kMapName, "WIDE");
                at.Click(IDOK);
            })});
    EXPECT_GT(Bounds().GetXMax() - Bounds().GetXMin(), 1.5 * before);
    EXPECT_EQ(Document().map->name, "WIDE");
    EXPECT_EQ(Document().map->picks, saved.map->picks);
    EXPECT_THAT(Title(), StartsWith("WIDE*"));
    Trigger("Save", {});
    EXPECT_EQ(DocumentOf(ReadWhole(path), Document().dataset).map->name, "WIDE");
    EXPECT_THAT(boxes, IsEmpty());
}

TEST_F(WorkbenchDocument, ChangesAreUndoneAndDoneAgain) {
    Build();
    const BuiltMap built = *Document().map;
    Trigger("Properties...", {InDialog([](kv::User& at) {
                at.Select(kPercent, "100");
                at.Click(IDOK);
            })});
    const BuiltMap changed = *Document().map;
    ASSERT_NE(changed, built);
    EXPECT_EQ(Row("Undo")->text().remove(u'&'), "Undo change of properties");
    Row("Undo")->trigger();
    EXPECT_EQ(*Document().map, built);
    EXPECT_EQ(Row("Redo")->text().remove(u'&'), "Redo change of properties");
    Row("Undo")->trigger();
    EXPECT_FALSE(Document().map);
    EXPECT_TRUE(Canvas().Projection().IsMercator());
    EXPECT_FALSE(Row("Undo")->isEnabled());
    EXPECT_THAT(Title(), Not(HasSubstr("*"))) << "as it was at the start";
    Row("Redo")->trigger();
    Row("Redo")->trigger();
    EXPECT_EQ(*Document().map, changed);
    EXPECT_FALSE(Row("Redo")->isEnabled());
}

TEST_F(WorkbenchDocument, ACancelledBuilderChangesNothing) {
    PickBlock();
    Trigger("New from picked blocks...", {InDialog([](kv::User& at) { at.Click(IDCANCEL); })});
    EXPECT_FALSE(Document().map);
    Build();
    const MapDocument built = Document();
    Trigger("Properties...", {InDialog([](kv::User& at) {
                at.Select(kPercent, "100");
                at.Click(IDCANCEL);
            })});
    EXPECT_EQ(Document(), built);
    EXPECT_EQ(Row("Undo")->text().remove(u'&'), "Undo new map");
}

TEST_F(WorkbenchDocument, BlocksThatTheDatabaseDoesNotKnowAreNamedAheadAndLeftOut) {
    host->Documents().TakePicks(
        {{kArea, kBlock, " "}, {kArea, "99999", " "}, {"nowhere", "1", "A"}});
    Trigger("New from picked blocks...", {PressOk()});
    EXPECT_THAT(notes, ElementsAre("The database does not know these blocks, and the map goes "
                                   "without them: 43113 99999, nowhere 1A."));
    ASSERT_TRUE(Document().map);
    EXPECT_THAT(Document().map->picks, SizeIs(1));
    EXPECT_THAT(failures, IsEmpty());
    host->Documents().Reset();
    host->Documents().TakePicks({{kArea, "99999", " "}});
    Trigger("New from picked blocks...", {});
    EXPECT_THAT(failures, ElementsAre("The database knows none of the blocks that are picked: "
                                      "43113 99999."));
    EXPECT_FALSE(Document().map);
}

TEST_F(WorkbenchDocument, AllBlocksOfAnAreaMakeAMapThatRemembersThem) {
    host->ShowOnMap({kArea}, "ALL");
    Trigger("New from picked blocks...", {PressOk()});
    ASSERT_TRUE(Document().map);
    EXPECT_TRUE(Bounds().GetPickWinFlag());
    EXPECT_THAT(Bounds().GetPickBlock(), IsEmpty());
    const Picks all = {{kArea, "ALL", ""}};
    EXPECT_EQ(Document().map->picks, all);
    const double before = Bounds().GetXMax() - Bounds().GetXMin();
    Trigger("Properties...", {InDialog([](kv::User& at) {
                at.Select(kPercent, "100");
                at.Click(IDOK);
            })});
    EXPECT_NEAR(Bounds().GetXMax() - Bounds().GetXMin(), 3 * before, 0.01 * before)
        << "around the blocks again";
}

TEST_F(WorkbenchDocument, AMapOfCountiesIsBuiltOnshore) {
    Trigger("New from county...",
            {[] {
                 auto* counties = dynamic_cast<CountyDialog*>(QApplication::activeModalWidget());
                 if (!counties) return false;
                 auto* buttons = counties->findChild<QDialogButtonBox*>();
                 EXPECT_FALSE(buttons->button(QDialogButtonBox::Ok)->isEnabled());
                 auto* list = counties->findChild<QListWidget*>();
                 EXPECT_GT(list->count(), 10);
                 counties->findChild<QLineEdit*>()->setText(list->item(4)->text());
                 EXPECT_TRUE(list->item(0)->isHidden());
                 EXPECT_FALSE(list->item(4)->isHidden());
                 list->setCurrentItem(list->item(4));
                 buttons->button(QDialogButtonBox::Ok)->click();
                 return true;
             },
             PressOk()});
    EXPECT_THAT(failures, IsEmpty());
    ASSERT_TRUE(Document().map);
    EXPECT_TRUE(Document().map->Onshore());
    ASSERT_THAT(Document().map->picks, SizeIs(1));
    EXPECT_EQ(Document().map->picks[0].block, ReadCounties()[4].id);
    EXPECT_FALSE(Canvas().Projection().IsMercator());
    Trigger("Properties...", {InDialog([](kv::User& at) {
                at.Select(kPercent, "10");
                at.Click(IDOK);
            })});
    EXPECT_TRUE(Document().map->Onshore());
    EXPECT_THAT(failures, IsEmpty());
}

TEST_F(WorkbenchDocument, ACustomMapIsBuiltOfBoundsThatAreTyped) {
    const auto build = [this] {
        Trigger("New custom map...", {InDialog([](kv::User& at) {
                    namespace custom = kv::custom_bld;
                    at.Type(custom::kX, "2100000");
                    at.Type(custom::kY, "100000");
                    at.Type(custom::kFarX, "2200000");
                    at.Type(custom::kFarY, "180000");
                    at.Type(custom::kMapName, "MINE");
                    at.Click(IDOK);
                })});
    };
    build();
    EXPECT_THAT(failures, IsEmpty());
    ASSERT_TRUE(Document().map);
    EXPECT_EQ(Document().map->name, "MINE");
    EXPECT_TRUE(Bounds().GetCustomMapFlag());
    EXPECT_EQ(Bounds().GetXMax(), 2200000);
    EXPECT_FALSE(Canvas().Projection().IsMercator());
    Trigger("Properties...", {PressOk()});
    EXPECT_EQ(Bounds().GetXMax(), 2200000);
}

TEST_F(WorkbenchDocument, UnsavedChangesAreAskedAboutAtClosing) {
    Build();
    answer = QMessageBox::Cancel;
    person.start(0);
    host->Window().close();
    EXPECT_TRUE(host->Window().isVisible());
    EXPECT_THAT(boxes, ElementsAre("The map " + Document().map->name +
                                   " has changes that are not saved. Save them?"));
    answer = QMessageBox::Yes;
    const std::string path = folder.Native("kept.kvmap");
    deeds = {NameFile(path)};
    const MapDocument built = Document();
    const QPointer<QMainWindow> window = &host->Window();
    window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    person.stop();
    EXPECT_FALSE(window && window->isVisible());
    EXPECT_EQ(DocumentOf(ReadWhole(path), built.dataset), built);
}

TEST_F(WorkbenchDocument, ASaveThatFailsKeepsTheWindowAndTheFile) {
    Build();
    const std::string path = folder.Native("kept.kvmap");
    SaveAs(path);
    const std::string before = ReadWhole(path);
    Trigger("Properties...", {InDialog([](kv::User& at) {
                at.Type(kMapName, "OTHER");
                at.Click(IDOK);
            })});
    answer = QMessageBox::Yes;
    person.start(0);
    {
        const test::FileFaults fault(1);
        host->Window().close();
    }
    person.stop();
    EXPECT_TRUE(host->Window().isVisible());
    EXPECT_THAT(failures, ElementsAre(path + " could not be saved.\nIt cannot be written."));
    EXPECT_EQ(ReadWhole(path), before);
    EXPECT_THAT(Title(), StartsWith("OTHER*"));
}

TEST_F(WorkbenchDocument, UnsavedChangesAreAskedAboutAheadOfAnotherMap) {
    Build();
    answer = QMessageBox::Cancel;
    const MapDocument built = Document();
    for (const char* row : {"New from picked blocks...", "New from county...", "New custom map...",
                            "Open...", "Open database..."}) {
        boxes.clear();
        Trigger(row, {});
        EXPECT_THAT(boxes, SizeIs(1)) << row;
        EXPECT_EQ(Document(), built) << row;
    }
    answer = QMessageBox::No;
    Trigger("New from picked blocks...", {InDialog([](kv::User& at) {
                at.Type(kMapName, "ANOTHER");
                at.Click(IDOK);
            })});
    EXPECT_EQ(Document().map->name, "ANOTHER");
    Row("Undo")->trigger();
    EXPECT_FALSE(Row("Undo")->isEnabled()) << "the map before is another document's";
}

TEST_F(WorkbenchDocument, AnotherDatabaseClosesTheDocument) {
    Build();
    QString failure;
    ASSERT_TRUE(host->UseDatabase(CKvDbInfo("", "", test::SampleServer().c_str()), failure));
    host->Runner().Finish();
    EXPECT_FALSE(Document().map);
    EXPECT_TRUE(Canvas().Projection().IsMercator());
    EXPECT_FALSE(MenuAction("New from picked blocks...")->isEnabled());
}

TEST_F(WorkbenchDocument, AFileThatCannotBeOpenedLeavesAllAsItIs) {
    Build();
    const std::string path = folder.Native("map.kvmap");
    SaveAs(path);
    const MapDocument built = Document();
    const std::string text = ReadWhole(path);
    nlohmann::json changed = nlohmann::json::parse(text);
    changed["dataset"] = "NORVADON.ALASKA";
    const std::pair<std::string, const char*> files[] = {
        {text.substr(0, text.size() / 2), "It is broken: "},
        {changed.dump(), "It belongs to the dataset NORVADON.ALASKA"},
        {R"({"format": "KVGuiCtl map", "version": 7})", "A newer workbench has written it"},
        {"", "It is broken: "},
    };
    for (const auto& [content, words] : files) {
        failures.clear();
        const std::string other = folder.Native("other.kvmap");
        WriteWhole(other, content);
        Trigger("Open...", {NameFile(other)});
        ASSERT_THAT(failures, SizeIs(1));
        EXPECT_THAT(failures[0], StartsWith(other + " could not be opened.\n" + words));
        EXPECT_EQ(Document(), built);
        EXPECT_EQ(ReadWhole(other), content);
    }
}

TEST_F(WorkbenchDocument, AFileThatIsNamedAtTheStartIsOpened) {
    Build();
    const std::string path = folder.Native("map.kvmap");
    SaveAs(path);
    const MapDocument built = Document();
    Open(test::SampleServer(), path);
    EXPECT_THAT(failures, IsEmpty());
    EXPECT_EQ(Document(), built);
    EXPECT_THAT(Title(), StartsWith(built.map->name + " - "));
    EXPECT_FALSE(host->Model().Areas().empty());
    for (const Place& corner : EdgeOf(built.map.value())) {
        const auto screen = Canvas().ScreenAt(corner);
        ASSERT_TRUE(screen);
        EXPECT_TRUE(QRectF(Canvas().rect()).contains(*screen));
    }
}

TEST_F(WorkbenchDocument, AFileThatIsNamedAtTheStartAndCannotBeOpenedIsTold) {
    const std::string path = folder.Native("missing.kvmap");
    Open(test::SampleServer(), path);
    EXPECT_THAT(failures, ElementsAre(path + " could not be opened.\nIt cannot be read."));
    EXPECT_FALSE(Document().map);
    EXPECT_FALSE(host->Model().Areas().empty());
}

TEST_F(WorkbenchDocument, RecentMapsAreInTheMenu) {
    Build();
    SaveAs(folder.Native("first.kvmap"));
    SaveAs(folder.Native("second.kvmap"));
    QMenu* recent = MenuAction("Recent")->menu();
    emit recent->aboutToShow();
    ASSERT_GE(recent->actions().size(), 2);
    EXPECT_THAT(recent->actions()[0]->text().toStdString(), HasSubstr("second.kvmap"));
    EXPECT_THAT(recent->actions()[1]->text().toStdString(), HasSubstr("first.kvmap"));
    host->Documents().Reset();
    recent->actions()[1]->trigger();
    EXPECT_TRUE(Document().map);
    std::filesystem::remove(folder.Native("second.kvmap"));
    emit recent->aboutToShow();
    EXPECT_THAT(recent->actions()[0]->text().toStdString(), HasSubstr("first.kvmap"));
    recent->actions()[1]->trigger();
    EXPECT_THAT(failures, ElementsAre(folder.Native("second.kvmap") +
                                      " could not be opened.\nIt cannot be read."));
    EXPECT_TRUE(Document().map);
}

TEST_F(WorkbenchDocument, TheBoundaryOfPicksIsExportedAsText) {
    PickBlock();
    CMinMax2Dd_t bounds;
    ASSERT_TRUE(CKvDbUtil::S_GetLLBounds(kArea, kBlock, "", bounds, ""));
    ExportBoundary("block.txt");
    EXPECT_EQ(Said(), "Saved " + folder.Native("block.txt"));
    const std::vector<std::string> lines = kv::Split(folder.Read("block.txt"), '\n');
    ASSERT_THAT(lines, SizeIs(6));
    EXPECT_EQ(lines[0], lines[4]);
    EXPECT_NEAR(kv::Atof(lines[0]), bounds.minX, 1e-6);
    EXPECT_NEAR(kv::Atof(lines[0].substr(lines[0].find(' '))), bounds.minY, 1e-6);
    EXPECT_FALSE(Document().map) << "an export is no map";
    Trigger("Export pick boundary...",
            {PressOk(), [this] {
                 const bool named = NameFile(folder.Native("late.txt"))();
                 if (named) std::filesystem::create_directory(folder.Native("late.txt"));
                 return named;
             }});
    ASSERT_THAT(failures, SizeIs(1));
    EXPECT_THAT(failures[0], HasSubstr("late.txt could not be saved.\nIt cannot be written."));
}

TEST_F(WorkbenchDocument, BoundsThatCouldNotBeReadAreNeitherBoundaryNorMap) {
    PickBlock();
    kv::db::SetDatabaseFault([](std::string_view call) {
        return call == "step" && !kv::WindowSystem::Get().Modals().empty();
    });
    for (const char* row : {"Export pick boundary...", "New from picked blocks..."}) {
        failures.clear();
        Trigger(row, {PressOk()});
        EXPECT_THAT(boxes, testing::Contains(HasSubstr("Database error"))) << row;
        EXPECT_THAT(failures, ElementsAre("The bounds of what was picked could not be read: "
                                          "nothing is made of them."))
            << row;
    }
    kv::db::SetDatabaseFault(nullptr);
    EXPECT_FALSE(Document().map);
}

TEST_F(WorkbenchDocument, TheBoundaryAsGeoJsonIsOnTheDatumOfGeoJson) {
    PickBlock();
    CMinMax2Dd_t bounds;
    ASSERT_TRUE(CKvDbUtil::S_GetLLBounds(kArea, kBlock, "", bounds, ""));
    double lon = 0;
    double lat = 0;
    const bool hasGrid = CKvUtilLLdrv::Nad2783(bounds.maxY, bounds.maxX, lon, lat) == 0;
    ExportBoundary("block.geojson");
    EXPECT_EQ(folder.Has("block.geojson"), hasGrid);
    if (!hasGrid) {
        EXPECT_THAT(failures, ElementsAre(HasSubstr("projsync --file us_noaa_conus")));
        return;
    }
    EXPECT_GT(std::hypot(lon - bounds.maxY, lat - bounds.maxX), 1e-4);
    const auto feature = nlohmann::json::parse(folder.Read("block.geojson"));
    const auto corner = feature["geometry"]["coordinates"].at(0).at(2);
    EXPECT_NEAR(corner[0].get<double>(), lon, 1e-9);
    EXPECT_NEAR(corner[1].get<double>(), lat, 1e-9);
}

TEST_F(WorkbenchDocument, ReportsTellXAndYInTheProjectionThatIsChosen) {
    Build([](kv::User& at) { at.Click(kMeters); });
    host->PickInBar(*Canvas().GetPick().block);
    Report("Wells");
    const ResultTable& table = host->Results().Model().Table();
    ASSERT_GT(table.RowCount(), 0);
    ASSERT_TRUE(table.keys[0].place);
    const int x = table.ColumnCount() - 2;
    EXPECT_EQ(table.columns[static_cast<std::size_t>(x)].heading, "X (meters, map projection)");
    const Point xy = *PlaneOf(*Document().map).ToXY(*table.keys[0].place);
    EXPECT_EQ(table.Cell(0, x), kv::FormatFixed(xy.x, 2));
    EXPECT_EQ(table.Cell(0, x + 1), kv::FormatFixed(xy.y, 2));
    Trigger("Report projection...", {InDialog([](kv::User& at) {
                EXPECT_TRUE(at.Checked(kv::rpt_proj::kMapProjection));
                at.Click(kv::rpt_proj::kBaseProjection);
                at.Click(IDOK);
            })});
    EXPECT_FALSE(Document().map->reportsInMapProjection);
    EXPECT_EQ(Row("Undo")->text().remove(u'&'), "Undo choice of the reports' projection");
    Report("Wells");
    EXPECT_EQ(table.columns[static_cast<std::size_t>(x)].heading, "X (meters, base projection)");
    EXPECT_EQ(table.ColumnCount(), x + 2);
    host->Documents().Reset();
    Report("Wells");
    EXPECT_EQ(table.ColumnCount(), x);
}

TEST_F(WorkbenchDocument, TheReadoutsReadTheMapsOwnXAndY) {
    Build([](kv::User& at) { at.Click(kMeters); });
    ASSERT_FALSE(Document().map->Feet());
    MenuAction("Coordinates")->trigger();
    // Another tool has its own point meanwhile.
    CKvUtilLLdrv::SetRectLat(1);
    CKvUtilLLdrv::SetRectLon(1);
    const QPoint at = Canvas().rect().center();
    QTest::mouseMove(&Canvas(), at + QPoint(1, 1));
    QMouseEvent move(QEvent::MouseMove, at, Canvas().mapToGlobal(QPointF(at)), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&Canvas(), &move);
    const Point xy = DriverXY(at);
    CDialog& readout = *host->Tools().Find("CKvCoordDialog")->Window();
    // It shows feet until somebody chooses otherwise.
    kv::User(*readout.m_hWnd, [](const std::string& words) {
        FAIL() << words;
    }).Select(kv::coord_dialog::kUnit, "meter");
    EXPECT_EQ(readout.DlgItemText(kv::coord_dialog::kX), kv::FormatFixed(xy.x, 2));
    EXPECT_EQ(readout.DlgItemText(kv::coord_dialog::kY), kv::FormatFixed(xy.y, 2));
    EXPECT_EQ(readout.DlgItemText(kv::coord_dialog::kMapProjection),
              std::to_string(Document().map->Projection()));
}

TEST_F(WorkbenchDocument, TheBuiltMapIsPrintedAtItsScaleAndPlace) {
    Build();
    const auto print = [this](const char* name, int scale) {
        const std::string path = folder.Native(name);
        Trigger("Export PDF...", {InDialog([scale](kv::User& at) {
                                      at.Type(kv::print_control::kPrintScale,
                                              std::to_string(scale));
                                      at.Click(IDOK);
                                  }),
                                  NameFile(path)});
        return test::PdfReader(QByteArray::fromStdString(folder.Read(name))).Pages();
    };
    constexpr int kScale = 10000;
    const auto pages = print("map.pdf", kScale);
    EXPECT_THAT(failures, IsEmpty());
    ASSERT_THAT(pages, SizeIs(1));
    const Point middle{(Bounds().GetXMin() + Bounds().GetXMax()) / 2,
                       (Bounds().GetYMin() + Bounds().GetYMax()) / 2};
    const auto drawn = pages[0].Corners();
    for (const Point& corner : test::CornersOfTheBlock()) {
        const QPointF belongs(4.25 + (corner.x - middle.x) / kScale,
                              5.5 - (corner.y - middle.y) / kScale);
        EXPECT_TRUE(std::any_of(drawn.begin(), drawn.end(), [&](const QPointF& at) {
            return std::hypot(at.x() - belongs.x(), at.y() - belongs.y()) < 0.01;
        }));
    }
    MenuAction("The pick, or else what is seen")->trigger();
    const auto pick = print("pick.pdf", kScale);
    EXPECT_NE(pick[0].Corners(), drawn);
}

TEST_F(WorkbenchDocument, AMapInAProjectionWithoutAnAnswerIsToldAndShownAllTheSame) {
    Build();
    const std::string path = folder.Native("map.kvmap");
    MapDocument lost = Document();
    lost.map->bounds.SetPrimeProj(0);
    WriteWhole(path, TextOf(lost));
    host->Documents().Reset();
    Trigger("Open...", {NameFile(path)});
    ASSERT_THAT(failures, SizeIs(1));
    EXPECT_THAT(failures[0], HasSubstr("has no answer for this map"));
    EXPECT_TRUE(Canvas().Projection().IsMercator());
    EXPECT_EQ(Document(), lost);
    Trigger("Export PDF...", {});
    EXPECT_THAT(failures, SizeIs(2));
}

TEST_F(WorkbenchDocument, ToShowAMapAsksTheDatabaseNothing) {
    Build();
    const std::string path = folder.Native("map.kvmap");
    SaveAs(path);
    std::vector<std::string> statements;
    kv::db::SetStatementTrace([&](const std::string& sql) { statements.push_back(sql); });
    Row("Undo")->trigger();
    Row("Redo")->trigger();
    Canvas().grab();
    QTest::mouseMove(&Canvas(), QPoint(50, 60));
    Trigger("Save", {});
    Trigger("Open...", {NameFile(path)});
    Canvas().grab();
    EXPECT_THAT(statements, IsEmpty());
}

TEST_F(WorkbenchDocument, AWiderMapOfManyBlocksAsksTheDatabaseNothingMore) {
    host->ShowOnMap({kArea}, "ALL");
    const auto statementsOf = [this](std::function<void(kv::User&)> change) {
        int count = 0;
        Trigger("New from picked blocks...", {InDialog([&](kv::User& at) {
                    kv::db::SetStatementTrace([&](const std::string&) { ++count; });
                    change(at);
                    kv::db::SetStatementTrace(nullptr);
                    at.Click(IDCANCEL);
                })});
        return count;
    };
    EXPECT_EQ(statementsOf([](kv::User& at) {
                  for (const char* percent : {"10", "50", "100", "0"})
                      at.Select(kPercent, percent);
                  at.Click(kMeters);
              }),
              0);
}

TEST_F(WorkbenchDocument, TheMapIsReadAnewInTheProjectionOfTheDocument) {
    Build();
    host->LoadMap();
    host->Runner().Finish();
    EXPECT_FALSE(Canvas().Projection().IsMercator());
    const auto at = Canvas().ScreenAt(*MiddleOf(*Document().map));
    ASSERT_TRUE(at);
    QTest::mouseClick(&Canvas(), Qt::LeftButton, {}, at->toPoint());
    ASSERT_TRUE(Canvas().GetPick().block);
    EXPECT_EQ(Canvas().GetPick().block->Label(), kBlock);
}

}  // namespace
}  // namespace workbench
