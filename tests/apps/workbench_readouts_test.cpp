// The readouts beside the map, worked with by the mouse on the canvas.

#include <gmock/gmock.h>

#include <QClipboard>
#include <QMouseEvent>
#include <QWheelEvent>
#include <cmath>

#include "base/numbers.h"
#include "coordtools/converter_ids.h"
#include "coordtools/coord_ids.h"
#include "coordtools/distance_ids.h"
#include "frame/kvcom/util_lldrv.h"
#include "frame/kvdbkvn/database_fault.h"
#include "frame/kvdbkvn/db_util.h"
#include "window/acting/input.h"
#include "window/window_system.h"
#include "workbench_window_fixture.h"

namespace workbench {
namespace {

namespace coord = kv::coord_dialog;
namespace dist = kv::distance_dialog;
using testing::ElementsAre;

constexpr const char* kArea = "43113";
constexpr const char* kBlock = "391";

class WorkbenchReadouts : public WorkbenchTest {
protected:
    WorkbenchReadouts() {
        Open();
        canvas = &host->Canvas();
        canvas->ShowPick(host->Model().FindPick({kArea}, kBlock));
        canvas->MarkPick({});
        host->Window().activateWindow();
        canvas->setFocus();
        middle = canvas->rect().center();
    }

    // The mouse.
    void Send(QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons buttons,
              Qt::KeyboardModifiers modifiers) {
        QMouseEvent event(type, at, canvas->mapToGlobal(QPointF(at)), button, buttons, modifiers);
        QApplication::sendEvent(canvas, &event);
        QApplication::processEvents();
    }
    Place Move(QPoint at, Qt::MouseButtons buttons = Qt::NoButton) {
        Send(QEvent::MouseMove, at, Qt::NoButton, buttons, {});
        return PlaceOf(at);
    }
    Place Click(QPoint at, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(canvas, Qt::LeftButton, modifiers, at);
        QApplication::processEvents();
        return PlaceOf(at);
    }
    void Drag(QPoint from, QPoint to, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(canvas, button, {}, from);
        Move((from + to) / 2, button);
        Move(to, button);
        QTest::mouseRelease(canvas, button, {}, to);
        QApplication::processEvents();
    }
    void DoubleClick(QPoint at) {
        QTest::mouseClick(canvas, Qt::LeftButton, {}, at);
        Send(QEvent::MouseButtonDblClick, at, Qt::LeftButton, Qt::LeftButton, {});
        Send(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton, {});
    }
    Place PlaceOf(QPoint at) { return ToPlace(canvas->View().ToMap({1.0 * at.x(), 1.0 * at.y()})); }

    // The tools.
    void Choose(const char* row) {
        QAction* action = MenuAction(row);
        ASSERT_TRUE(action) << row;
        ASSERT_TRUE(action->isEnabled()) << row << ": " << action->statusTip().toStdString();
        action->trigger();
        QApplication::processEvents();
    }
    CDialog& Tool(const char* className) { return *host->Tools().Find(className)->Window(); }
    CDialog& Coordinates() { return Tool("CKvCoordDialog"); }
    CDialog& Distance() { return Tool("CKvDistanceDialog"); }
    kv::User At(CDialog& tool) {
        return {*tool.m_hWnd, [](const std::string& words) { FAIL() << words; }};
    }
    std::string Mode() { return host->Status().Mode().toStdString(); }
    QPixmap CursorPicture() { return canvas->cursor().pixmap(); }

    /// What the driver gives in feet.
    static std::pair<double, double> Feet(const Place& place, int projection) {
        double x = 0;
        double y = 0;
        CKvUtilLLdrv::LLdrv(place.lat, place.lon, &x, &y, projection, 0, 1, 100.0F, 0.0F, 0.0F);
        return {x, y};
    }
    int Usual() { return CKvDbUtil::S_GetProjectionByArea(kArea, ""); }
    void ExpectReads(const Place& place) {
        const auto [x, y] = Feet(place, Usual());
        EXPECT_EQ(Coordinates().DlgItemText(coord::kX), kv::FormatFixed(x, 2));
        EXPECT_EQ(Coordinates().DlgItemText(coord::kY), kv::FormatFixed(y, 2));
    }
    /// The tool's line is the one between these places.
    void ExpectLine(const Place& from, const Place& to) {
        const auto [x1, y1] = Feet(from, Usual());
        const auto [x2, y2] = Feet(to, Usual());
        EXPECT_EQ(Distance().DlgItemText(dist::kStartX), kv::FormatFixed(x1, 2));
        EXPECT_EQ(Distance().DlgItemText(dist::kStartY), kv::FormatFixed(y1, 2));
        EXPECT_EQ(Distance().DlgItemText(dist::kEndX), kv::FormatFixed(x2, 2));
        EXPECT_EQ(Distance().DlgItemText(dist::kEndY), kv::FormatFixed(y2, 2));
        const std::string length = kv::FormatFixed(std::hypot(x2 - x1, y2 - y1), 2);
        EXPECT_EQ(Distance().DlgItemText(dist::kDistance), length);
        const auto line = host->ReadoutTools().Distance()->Line();
        ASSERT_TRUE(line);
        EXPECT_EQ(line->length, length + " feet");
    }
    void ExpectNothingPicked() {
        EXPECT_TRUE(canvas->GetPick().Empty());
        EXPECT_EQ(user->Text(kv::abe_bar::kArea), "");
    }

    MapCanvas* canvas = nullptr;
    QPoint middle;
};

TEST_F(WorkbenchReadouts, TheCoordinatesFollowTheMouse) {
    Choose("Coordinates");
    EXPECT_TRUE(Coordinates().IsWindowVisible());
    EXPECT_EQ(Coordinates().DlgItemText(coord::kX), "");
    At(Coordinates()).Select(coord::kFormat, "degree.degree");
    for (const QPoint at : {middle, middle + QPoint(30, -20)}) {
        const Place place = Move(at);
        ExpectReads(place);
        EXPECT_EQ(Coordinates().DlgItemText(coord::kLatitude.degrees.edit),
                  kv::FormatFixed(place.lat, 6));
        EXPECT_EQ(Coordinates().DlgItemText(coord::kLongitude.degrees.edit),
                  kv::FormatFixed(place.lon, 6));
    }
    EXPECT_EQ(Coordinates().DlgItemText(coord::kMapProjection), std::to_string(Usual()));
    EXPECT_EQ(Coordinates().DlgItemText(coord::kUserProjection), "3   Louisiana South");
    EXPECT_EQ(Mode(), "Coordinates: click to hold");
}

TEST_F(WorkbenchReadouts, AChoiceMadeAheadOfTheFirstPositionStays) {
    Choose("Coordinates");
    At(Coordinates()).Select(coord::kUnit, "meter");
    At(Coordinates()).Select(coord::kUserProjection, "115 UTM");
    const Place place = Move(middle);
    EXPECT_EQ(Coordinates().DlgItemText(coord::kUnit), "meter");
    // 0.3048 m to the foot, though feet are US survey feet.
    const double x = Feet(place, 115).first * 0.3048;
    EXPECT_NEAR(kv::Atof(Coordinates().DlgItemText(coord::kX)), x, 0.02);
    EXPECT_EQ(Coordinates().DlgItemText(coord::kMapProjection), std::to_string(Usual()));
}

TEST_F(WorkbenchReadouts, AClickHoldsThePositionAndTheNextLetsItGo) {
    Choose("Coordinates");
    const Place place = Click(middle);
    EXPECT_EQ(Mode(), "Coordinates: held");
    Move(middle + QPoint(40, 40));
    ExpectReads(place);
    ExpectNothingPicked();
    const Place next = Click(middle + QPoint(-25, 10));
    EXPECT_EQ(Mode(), "Coordinates: click to hold");
    ExpectReads(next);
    ExpectReads(Move(middle));
    ExpectNothingPicked();
}

TEST_F(WorkbenchReadouts, EscapeLetsThePositionGoAndThenClosesTheReadout) {
    Choose("Coordinates");
    Click(middle);
    PressKey(Qt::Key_Escape);
    EXPECT_EQ(Mode(), "Coordinates: click to hold");
    PressKey(Qt::Key_Escape);
    EXPECT_FALSE(Coordinates().IsWindowVisible());
    EXPECT_EQ(Mode(), "");
    EXPECT_FALSE(MenuAction("Coordinates")->isChecked());
}

TEST_F(WorkbenchReadouts, TheReadoutLeavesTheKeysToTheMap) {
    Choose("Coordinates");
    EXPECT_TRUE(canvas->hasFocus());
    Click(middle);
    Move(middle + QPoint(5, 5));
    EXPECT_TRUE(canvas->hasFocus());
    EXPECT_TRUE(host->Window().isActiveWindow());
    const double before = canvas->View().Scale();
    PressKey(Qt::Key_Plus);
    EXPECT_GT(canvas->View().Scale(), before);
}

TEST_F(WorkbenchReadouts, ThePositionIsCopiedInEachFormAndPastedIntoAnyAngle) {
    Choose("Coordinates");
    const Place place = Click(middle);
    host->OpenDialog(*adaptors::Find("CKvConverterDialog"));
    CDialog& converter = Tool("CKvConverterDialog");
    At(converter).Select(kv::converter::kFormat, "degree");
    for (const char* row :
         {"Copy position in degrees, minutes and seconds", "Copy position in decimal degrees"}) {
        for (const int box :
             {kv::converter::kLatitude.degrees.edit, kv::converter::kLongitude.degrees.edit}) {
            for (const auto& ids : {kv::converter::kLatitude, kv::converter::kLongitude})
                converter.SetDlgItemText(ids.degrees.edit, "");
            Choose(row);
            const std::string text = QApplication::clipboard()->text().toStdString();
            EXPECT_EQ(Said(), "Copied " + text);
            At(converter).Paste(box, text);
            EXPECT_NEAR(kv::Atof(converter.DlgItemText(kv::converter::kLatitude.degrees.edit)),
                        place.lat, 2e-6)
                << text;
            EXPECT_NEAR(kv::Atof(converter.DlgItemText(kv::converter::kLongitude.degrees.edit)),
                        place.lon, 2e-6)
                << text;
        }
    }
    Choose("Copy position as X and Y");
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              Coordinates().DlgItemText(coord::kX) + " " + Coordinates().DlgItemText(coord::kY));
}

TEST_F(WorkbenchReadouts, WithoutAPositionNothingIsCopied) {
    const QAction* copy = MenuAction("Copy position in decimal degrees");
    EXPECT_FALSE(copy->isEnabled());
    EXPECT_THAT(copy->statusTip().toStdString(), testing::HasSubstr("No position was read yet"));
    Choose("Coordinates");
    EXPECT_FALSE(copy->isEnabled());
    Move(middle);
    EXPECT_TRUE(copy->isEnabled());
}

TEST_F(WorkbenchReadouts, XAndYThatAreNotThereAreNotCopied) {
    Choose("Coordinates");
    Move(middle);
    auto& readout = dynamic_cast<CKvCoordDialog&>(Coordinates());
    readout.ResetToDefault(0, "feet");
    Move(middle + QPoint(3, 3));
    QApplication::clipboard()->setText(QStringLiteral("before"));
    Choose("Copy position as X and Y");
    EXPECT_EQ(QApplication::clipboard()->text(), "before");
    EXPECT_EQ(Said(), "There are no X and Y in that projection.");
}

TEST_F(WorkbenchReadouts, TwoClicksMeasureADistance) {
    Choose("Distance");
    EXPECT_EQ(Mode(), "Distance: first point");
    const Place from = Click(middle);
    EXPECT_EQ(Mode(), "Distance: second point");
    EXPECT_EQ(Distance().DlgItemText(dist::kDistance), "");
    EXPECT_NE(Distance().DlgItemText(dist::kStartX), "");
    const QImage before = canvas->grab().toImage();
    ExpectLine(from, Move(middle + QPoint(60, 20)));
    EXPECT_NE(canvas->grab().toImage(), before) << "the line is to be seen";
    const Place to = Click(middle + QPoint(80, 30));
    ExpectLine(from, to);
    EXPECT_EQ(Mode(), "Distance: first point");
    Move(middle + QPoint(-50, -50));
    ExpectLine(from, to);
    ExpectNothingPicked();
}

TEST_F(WorkbenchReadouts, ADragMeasuresADistanceAndLeavesTheMapWhereItIs) {
    Choose("Distance");
    const Point at = canvas->View().Middle();
    Drag(middle, middle + QPoint(70, -40));
    EXPECT_EQ(canvas->View().Middle(), at);
    ExpectLine(PlaceOf(middle), PlaceOf(middle + QPoint(70, -40)));
    EXPECT_EQ(Mode(), "Distance: first point");
    Drag(middle + QPoint(10, 10), middle + QPoint(90, 90));
    ExpectLine(PlaceOf(middle + QPoint(10, 10)), PlaceOf(middle + QPoint(90, 90)));
    ExpectNothingPicked();
}

TEST_F(WorkbenchReadouts, TheLineFollowsADragAsItGoes) {
    Choose("Distance");
    QTest::mousePress(canvas, Qt::LeftButton, {}, middle);
    const Place to = Move(middle + QPoint(30, 0), Qt::LeftButton);
    EXPECT_EQ(Mode(), "Distance: second point");
    ExpectLine(PlaceOf(middle), to);
    ExpectLine(PlaceOf(middle), Move(middle + QPoint(60, 5), Qt::LeftButton));
    QTest::mouseRelease(canvas, Qt::LeftButton, {}, middle + QPoint(60, 5));
    EXPECT_EQ(Mode(), "Distance: first point");
}

TEST_F(WorkbenchReadouts, ALineThatWasBegunByAClickIsEndedByADrag) {
    Choose("Distance");
    const Place from = Click(middle);
    Drag(middle + QPoint(30, 0), middle + QPoint(60, 20));
    ExpectLine(from, PlaceOf(middle + QPoint(60, 20)));
}

TEST_F(WorkbenchReadouts, WithShiftALineGoesOnFromTheLastPoint) {
    Choose("Distance");
    Click(middle, Qt::ShiftModifier);
    EXPECT_EQ(Mode(), "Distance: second point") << "there is no last point yet";
    const Place second = Click(middle + QPoint(50, 0));
    const Place third = Click(middle + QPoint(50, 60), Qt::ShiftModifier);
    ExpectLine(second, third);
    const Place fourth = Click(middle + QPoint(0, 60), Qt::ShiftModifier);
    ExpectLine(third, fourth);
    Click(middle);
    EXPECT_EQ(Mode(), "Distance: second point") << "without it another one begins";
}

TEST_F(WorkbenchReadouts, EscapeEndsTheLineAndThenTheTool) {
    Choose("Distance");
    Click(middle);
    Move(middle + QPoint(40, 0));
    PressKey(Qt::Key_Escape);
    EXPECT_EQ(Mode(), "Distance: first point");
    EXPECT_EQ(Distance().DlgItemText(dist::kDistance), "");
    EXPECT_EQ(Distance().DlgItemText(dist::kEndX), "");
    EXPECT_FALSE(host->ReadoutTools().Distance()->Line());
    Move(middle + QPoint(60, 0));
    EXPECT_EQ(Distance().DlgItemText(dist::kDistance), "");
    PressKey(Qt::Key_Escape);
    EXPECT_FALSE(Distance().IsWindowVisible());
    EXPECT_EQ(Mode(), "");
    EXPECT_FALSE(MenuAction("Distance")->isChecked());
}

TEST_F(WorkbenchReadouts, ADoubleClickIsTwoClicks) {
    Choose("Coordinates");
    const double scale = canvas->View().Scale();
    DoubleClick(middle);
    EXPECT_EQ(canvas->View().Scale(), scale);
    EXPECT_EQ(Mode(), "Coordinates: click to hold") << "held, and let go";
    Choose("Distance");
    DoubleClick(middle);
    EXPECT_EQ(canvas->View().Scale(), scale);
    EXPECT_EQ(Mode(), "Distance: first point");
    EXPECT_EQ(Distance().DlgItemText(dist::kDistance), "0.00");
    PressKey(Qt::Key_Escape);
    PressKey(Qt::Key_Escape);
    DoubleClick(middle);
    EXPECT_GT(canvas->View().Scale(), scale) << "the map's own again";
}

TEST_F(WorkbenchReadouts, WheelMiddleButtonAndArrowsMoveTheMapWhileAToolWaits) {
    for (const char* tool : {"Coordinates", "Distance"}) {
        Choose(tool);
        canvas->setFocus();
        const double scale = canvas->View().Scale();
        QWheelEvent wheel(middle, canvas->mapToGlobal(QPointF(middle)), {}, {0, 120}, Qt::NoButton,
                          {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(canvas, &wheel);
        EXPECT_GT(canvas->View().Scale(), scale) << tool;
        Point at = canvas->View().Middle();
        Drag(middle, middle + QPoint(40, 0), Qt::MiddleButton);
        EXPECT_LT(canvas->View().Middle().x, at.x) << tool;
        at = canvas->View().Middle();
        QTest::keyClick(canvas, Qt::Key_Right);
        EXPECT_GT(canvas->View().Middle().x, at.x) << tool;
    }
    EXPECT_EQ(Mode(), "Distance: first point");
    ExpectNothingPicked();
}

TEST_F(WorkbenchReadouts, ALineMayBeDrawnBeyondTheView) {
    Choose("Distance");
    const Place from = Click(middle);
    Drag(middle, middle + QPoint(-200, 0), Qt::MiddleButton);
    const Place to = Click(middle);
    ExpectLine(from, to);
    EXPECT_LT(from.lon, to.lon);
}

TEST_F(WorkbenchReadouts, TheMiddleButtonMovesTheMapAndNeverClicks) {
    const Point at = canvas->View().Middle();
    Drag(middle, middle + QPoint(40, 0), Qt::MiddleButton);
    EXPECT_LT(canvas->View().Middle().x, at.x);
    QTest::mouseClick(canvas, Qt::MiddleButton, {}, middle);
    ExpectNothingPicked();
    EXPECT_EQ(canvas->cursor().shape(), Qt::CrossCursor);
}

TEST_F(WorkbenchReadouts, BothStandOpenAtOnceAndClicksAreTheLines) {
    Choose("Coordinates");
    Choose("Distance");
    EXPECT_EQ(Mode(), "Distance: first point");
    const Place from = Click(middle);
    const Place to = Move(middle + QPoint(50, 10));
    ExpectReads(to);
    ExpectLine(from, to);
    Click(middle + QPoint(50, 10));
    ExpectReads(Move(middle + QPoint(5, 5)));
    ExpectLine(from, to);
    CRect first;
    CRect second;
    Coordinates().GetWindowRect(&first);
    Distance().GetWindowRect(&second);
    EXPECT_GE(second.top, first.bottom) << "neither covers the other";
    Choose("Distance");
    EXPECT_FALSE(Distance().IsWindowVisible());
    EXPECT_EQ(Mode(), "Coordinates: click to hold");
}

TEST_F(WorkbenchReadouts, TheCursorTellsWhichToolWaits) {
    EXPECT_EQ(canvas->cursor().shape(), Qt::CrossCursor);
    Choose("Coordinates");
    ASSERT_EQ(canvas->cursor().shape(), Qt::BitmapCursor);
    const QImage live = CursorPicture().toImage();
    Click(middle);
    const QImage held = CursorPicture().toImage();
    EXPECT_NE(live, held);
    Choose("Distance");
    const QImage distance = CursorPicture().toImage();
    EXPECT_NE(distance, live);
    EXPECT_NE(distance, held);
    Drag(middle, middle + QPoint(40, 0), Qt::MiddleButton);
    EXPECT_EQ(CursorPicture().toImage(), distance) << "as before the map was moved";
    Choose("Distance");
    Choose("Coordinates");
    EXPECT_EQ(canvas->cursor().shape(), Qt::CrossCursor);
}

TEST_F(WorkbenchReadouts, ClosedAToolGivesTheClicksBack) {
    Choose("Distance");
    EXPECT_TRUE(MenuAction("Distance")->isChecked());
    Click(middle);
    At(Distance()).Click(IDOK);
    EXPECT_EQ(Mode(), "");
    EXPECT_FALSE(MenuAction("Distance")->isChecked());
    EXPECT_FALSE(host->ReadoutTools().Distance()->Line());
    Click(middle);
    EXPECT_TRUE(canvas->GetPick().block);
    EXPECT_EQ(user->Text(kv::abe_bar::kBlock), kBlock);
    Choose("Distance");
    EXPECT_EQ(Mode(), "Distance: first point") << "the line that was not ended is gone";
}

TEST_F(WorkbenchReadouts, AHiddenReadoutKeepsWhatItShowsUntilItIsOpenedAgain) {
    Choose("Coordinates");
    const Place place = Move(middle);
    kv::input::CloseWindow(*Coordinates().m_hWnd);
    kv::WindowSystem::Get().Settle();
    Move(middle + QPoint(40, 40));
    ExpectReads(place);
    host->OpenDialog(*adaptors::Find("CKvCoordDialog"));
    EXPECT_TRUE(MenuAction("Coordinates")->isChecked());
    ExpectReads(place);
    ExpectReads(Move(middle + QPoint(20, 0)));
}

TEST_F(WorkbenchReadouts, AClickThatHoldsIsAlsoTheConverters) {
    host->OpenDialog(*adaptors::Find("CKvConverterDialog"));
    Choose("Coordinates");
    Click(middle);
    EXPECT_NE(Tool("CKvConverterDialog").DlgItemText(kv::converter::kX), "");
    const std::string x = Tool("CKvConverterDialog").DlgItemText(kv::converter::kX);
    Choose("Distance");
    Click(middle + QPoint(50, 0));
    EXPECT_NE(Tool("CKvConverterDialog").DlgItemText(kv::converter::kX), x);
    EXPECT_EQ(Mode(), "Distance: second point");
    ExpectNothingPicked();
}

TEST_F(WorkbenchReadouts, WhereThereIsNoAreaThePositionIsInItsUtmZone) {
    Choose("Coordinates");
    canvas->ShowAll();
    const QPoint corner(3, 3);
    const Place place = PlaceOf(corner);
    ASSERT_FALSE(host->Model().BlockAt(ToMap(place)));
    Move(corner);
    const int zone = 100 + static_cast<int>((place.lon + 180) / 6) + 1;
    EXPECT_EQ(Coordinates().DlgItemText(coord::kMapProjection), std::to_string(zone));
    EXPECT_EQ(Coordinates().DlgItemText(coord::kX), kv::FormatFixed(Feet(place, zone).first, 2));
}

TEST_F(WorkbenchReadouts, StraightMercatorIsAboutTheMiddleOfTheMap) {
    Choose("Coordinates");
    Move(middle);
    auto& readout = dynamic_cast<CKvCoordDialog&>(Coordinates());
    readout.ResetToDefault(199, "feet");
    const Place center = ToPlace(host->Model().Bounds().Middle());
    const auto elsewhere = [] {
        CKvUtilLLdrv::SetRectLat(10);
        CKvUtilLLdrv::SetRectLon(10);
    };
    elsewhere();
    const Place place = Move(middle + QPoint(7, 7));
    CKvUtilLLdrv::SetRectLat(center.lat);
    CKvUtilLLdrv::SetRectLon(center.lon);
    const double x = Feet(place, 199).first;
    EXPECT_NEAR(kv::Atof(readout.DlgItemText(coord::kX)), x, 0.02) << "at a position";
    At(readout).Select(coord::kUserProjection, "115 UTM");
    elsewhere();
    At(readout).Select(coord::kUserProjection, "199 Straight Mercator");
    EXPECT_NEAR(kv::Atof(readout.DlgItemText(coord::kX)), x, 0.02) << "at a choice";
}

TEST_F(WorkbenchReadouts, AnotherMapBeginsAnew) {
    Choose("Coordinates");
    Choose("Distance");
    Drag(middle, middle + QPoint(50, 0));
    At(Coordinates()).Select(coord::kUserProjection, "116 UTM");
    At(Distance()).Select(dist::kUserProjection, "116 UTM");
    host->LoadMap();
    EXPECT_FALSE(host->ReadoutTools().Distance()->Line());
    host->Runner().Finish();
    canvas->ShowPick(host->Model().FindPick({kArea}, kBlock));
    const Place place = Move(middle);
    EXPECT_EQ(Coordinates().DlgItemText(coord::kUserProjection), "3   Louisiana South");
    ExpectReads(place);
    Drag(middle, middle + QPoint(50, 0));
    EXPECT_EQ(Distance().DlgItemText(dist::kUserProjection), "3   Louisiana South");
}

TEST_F(WorkbenchReadouts, TheLengthIsInTheUnitThatTheUserPicks) {
    Choose("Distance");
    Drag(middle, middle + QPoint(80, 0));
    At(Distance()).Select(dist::kUnit, "km");
    EXPECT_EQ(host->ReadoutTools().Distance()->Line()->length,
              Distance().DlgItemText(dist::kDistance) + " km");
}

TEST_F(WorkbenchReadouts, GoWithTheMainWindow) {
    Choose("Coordinates");
    Choose("Distance");
    Drag(middle, middle + QPoint(50, 0));
    host->Frame().DestroyWindow();
    EXPECT_EQ(host->Tools().Find("CKvCoordDialog")->Window(), nullptr);
    EXPECT_EQ(host->Tools().Find("CKvDistanceDialog")->Window(), nullptr);
}

TEST_F(WorkbenchReadouts, AProjectionThatCannotBeReadIsToldOnceAndReadWhenItCan) {
    std::vector<std::string> told;
    MapPositions positions(host->Model(),
                           [&](const QString& words) { told.push_back(words.toStdString()); });
    const int usual = CKvDbUtil::S_GetProjectionByArea(kArea, "");
    const Place place = PlaceOf(middle);
    kv::db::SetDatabaseFault([](std::string_view call) { return call == "step"; });
    const int meanwhile = positions.ProjectionAt(place);
    EXPECT_EQ(positions.ProjectionAt(place), meanwhile);
    kv::db::SetDatabaseFault(nullptr);
    EXPECT_NE(meanwhile, usual);
    EXPECT_THAT(told, ElementsAre(testing::AllOf(
                          testing::StartsWith("The usual projection of an area could not be read."),
                          testing::HasSubstr("Database error"))));
    EXPECT_EQ(positions.ProjectionAt(place), usual);
}

}  // namespace
}  // namespace workbench
