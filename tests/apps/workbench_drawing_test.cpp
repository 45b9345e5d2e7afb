// Drawing on the map of the workbench: the mouse on the canvas, the keys, and the dialogs beside
// it.

#include <gmock/gmock.h>

#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <cmath>

#include "drawing/clear_custom_obj_ids.h"
#include "drawing/new_line_ctrl_ids.h"
#include "drawing/new_text_ids.h"
#include "drawing/search_replace_ids.h"
#include "drawing/swatches/color_fill_ctrl_ids.h"
#include "drawing/vertice_builder_ids.h"
#include "window/acting/input.h"
#include "window/window_system.h"
#include "workbench_window_fixture.h"

namespace workbench {
namespace {

namespace builder = kv::vertice_builder;
namespace line = kv::new_line_ctrl;
namespace text = kv::new_text;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* kArea = "43113";
constexpr const char* kBlock = "391";

class WorkbenchDrawing : public WorkbenchTest {
protected:
    WorkbenchDrawing() {
        Open();
        canvas = &host->Canvas();
        canvas->ShowPick(host->Model().FindPick({kArea}, kBlock));
        canvas->MarkPick({});
        host->Window().activateWindow();
        canvas->setFocus();
        middle = canvas->rect().center();
        QObject::connect(&person, &QTimer::timeout, [this] { ActInModal(); });
    }
    ~WorkbenchDrawing() override { person.stop(); }

    // The mouse and the keys.
    void Send(QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons buttons) {
        QMouseEvent event(type, at, canvas->mapToGlobal(QPointF(at)), button, buttons, {});
        QApplication::sendEvent(canvas, &event);
        QApplication::processEvents();
    }
    void MouseTo(QPoint at, Qt::MouseButtons buttons = {}) {
        Send(QEvent::MouseMove, at, Qt::NoButton, buttons);
    }
    Place Click(QPoint at) {
        MouseTo(at);
        QTest::mouseClick(canvas, Qt::LeftButton, {}, at);
        QApplication::processEvents();
        return PlaceOf(at);
    }
    void DoubleClick(QPoint at) {
        Click(at);
        Send(QEvent::MouseButtonDblClick, at, Qt::LeftButton, Qt::LeftButton);
        Send(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
    }
    void Drag(QPoint from, QPoint to) {
        QTest::mousePress(canvas, Qt::LeftButton, {}, from);
        MouseTo((from + to) / 2, Qt::LeftButton);
        MouseTo(to, Qt::LeftButton);
        QTest::mouseRelease(canvas, Qt::LeftButton, {}, to);
        QApplication::processEvents();
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        canvas->setFocus();
        QTest::keyClick(canvas, key, modifiers);
        QApplication::processEvents();
    }
    Place PlaceOf(QPoint at) { return *canvas->PlaceAt(QPointF(at)); }

    // The host.
    void Choose(const char* row) {
        QAction* action = MenuAction(row);
        ASSERT_TRUE(action) << row;
        ASSERT_TRUE(action->isEnabled()) << row << ": " << action->statusTip().toStdString();
        action->trigger();
        QApplication::processEvents();
    }
    const Drawings& Drawn() {
        static const Drawings kNone;
        const auto& drawings = host->History().Current().drawings;
        return drawings ? *drawings : kNone;
    }
    std::string Mode() { return host->Status().Mode().toStdString(); }
    CDialog& Dialog() { return *host->Drawing().Dialog(); }
    kv::User InDialog() {
        return {*Dialog().m_hWnd, [](const std::string& words) { FAIL() << words; }};
    }
    void Undo() {
        host->History().Undo();
        QApplication::processEvents();
    }
    void Redo() {
        host->History().Redo();
        QApplication::processEvents();
    }

    /// Modal dialogs that open are worked with by these, one by one.
    void Expect(std::function<void(kv::User&)> act) {
        deeds.push_back(std::move(act));
        person.start(0);
    }
    void ActInModal() {
        auto& modals = kv::WindowSystem::Get().Modals();
        if (modals.empty() || modals.back() == acting) return;
        acting = modals.back();
        ASSERT_FALSE(deeds.empty()) << "a dialog opened that nobody expects";
        const auto act = deeds.front();
        deeds.erase(deeds.begin());
        kv::User at(*acting, [](const std::string& words) { FAIL() << words; });
        act(at);
        acting = nullptr;
    }

    /// To the next question.
    void Answer(QMessageBox::StandardButton button) {
        QTimer::singleShot(0, &person, [this, button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box) << "nobody asks";
            questions.push_back(box->text().toStdString());
            box->button(button)->click();
        });
    }

    static void ExpectNear(const Place& place, const Place& expected) {
        EXPECT_NEAR(place.lat, expected.lat, 1e-7);
        EXPECT_NEAR(place.lon, expected.lon, 1e-7);
    }
    std::vector<Place> DrawLine(std::initializer_list<QPoint> points) {
        Choose("Polyline");
        std::vector<Place> places;
        for (const QPoint& at : points)
            places.push_back(Click(at));
        InDialog().Click(IDOK);
        QApplication::processEvents();
        return places;
    }
    /// Puts points ahead of those of the line that was drawn, and behind them.
    void Add(const std::vector<Place>& ahead, const std::vector<Place>& behind) {
        MapDocument next = host->History().Current();
        auto drawings = std::make_shared<Drawings>(*next.drawings);
        std::vector<Place>& points = drawings->lines[0].points;
        points.insert(points.begin(), ahead.begin(), ahead.end());
        points.insert(points.end(), behind.begin(), behind.end());
        next.drawings = drawings;
        host->History().Do(next, "add points");
    }
    Place WriteText(const char* words, QPoint at) {
        Choose("Text");
        InDialog().Type(text::kContent, words);
        InDialog().Type(text::kHeight, "0.5");
        const Place place = Click(at);
        InDialog().Click(IDOK);
        QApplication::processEvents();
        return place;
    }

    MapCanvas* canvas = nullptr;
    QPoint middle;
    QTimer person;
    std::vector<std::function<void(kv::User&)>> deeds;
    kv::Node* acting = nullptr;
    std::vector<std::string> questions;
};

// Lines by the mouse.

TEST_F(WorkbenchDrawing, ALineIsDrawnByClicksAndOk) {
    Choose("Polyline");
    EXPECT_EQ(Mode(), "Draw: first point");
    EXPECT_TRUE(MenuAction("Polyline")->isChecked());
    EXPECT_FALSE(InDialog().Checked(line::kClose));
    EXPECT_FALSE(InDialog().Enabled(IDOK));
    const Place first = Click(middle);
    EXPECT_EQ(Mode(), "Draw: next point");
    EXPECT_FALSE(InDialog().Enabled(IDOK)) << "a line has two points";
    const Place second = Click(middle + QPoint(60, 20));
    EXPECT_TRUE(InDialog().Enabled(IDOK));
    const Place third = Click(middle + QPoint(60, 90));
    EXPECT_TRUE(Drawn().Empty()) << "not accepted yet";
    InDialog().Click(IDOK);
    QApplication::processEvents();
    ASSERT_THAT(Drawn().lines, SizeIs(1));
    EXPECT_THAT(Drawn().lines[0].points, ElementsAre(first, second, third));
    EXPECT_FALSE(Drawn().lines[0].closed);
    EXPECT_EQ(Drawn().lines[0].color, kUsualColor);
    EXPECT_EQ(host->Drawing().Dialog(), nullptr);
    EXPECT_EQ(Mode(), "");
    EXPECT_FALSE(MenuAction("Polyline")->isChecked());
    EXPECT_TRUE(canvas->GetPick().Empty()) << "the clicks were the line's";
}

TEST_F(WorkbenchDrawing, ADragMovesTheMapWhileALineIsDrawn) {
    Choose("Polyline");
    Click(middle);
    const Point before = canvas->View().Middle();
    Drag(middle, middle + QPoint(50, 0));
    EXPECT_LT(canvas->View().Middle().x, before.x);
    EXPECT_FALSE(InDialog().Enabled(IDOK));
}

TEST_F(WorkbenchDrawing, TheLineThatIsDrawnIsSeenAndFollowsTheMouse) {
    Choose("Polyline");
    Click(middle);
    MouseTo(middle + QPoint(50, 0));
    const QImage first = canvas->grab().toImage();
    MouseTo(middle + QPoint(50, 40));
    EXPECT_NE(canvas->grab().toImage(), first);
}

TEST_F(WorkbenchDrawing, APolygonIsClosedAndNeedsThreePoints) {
    Choose("Polygon");
    EXPECT_TRUE(InDialog().Checked(line::kClose));
    EXPECT_TRUE(InDialog().Enabled(line::kFill));
    Click(middle);
    Click(middle + QPoint(60, 0));
    EXPECT_FALSE(InDialog().Enabled(IDOK));
    InDialog().Click(line::kClose);
    QApplication::processEvents();
    EXPECT_TRUE(InDialog().Enabled(IDOK)) << "as an open line it has enough";
    InDialog().Click(line::kClose);
    QApplication::processEvents();
    EXPECT_FALSE(InDialog().Enabled(IDOK));
    Click(middle + QPoint(30, 50));
    InDialog().Click(line::kFill);
    InDialog().Click(IDOK);
    ASSERT_THAT(Drawn().lines, SizeIs(1));
    EXPECT_TRUE(Drawn().lines[0].closed);
    EXPECT_TRUE(Drawn().lines[0].filled);
    EXPECT_THAT(Drawn().lines[0].points, SizeIs(3));
}

TEST_F(WorkbenchDrawing, ADoubleClickEndsALine) {
    Choose("Polyline");
    const Place first = Click(middle);
    DoubleClick(middle + QPoint(60, 0));
    ASSERT_THAT(Drawn().lines, SizeIs(1));
    EXPECT_THAT(Drawn().lines[0].points, ElementsAre(first, PlaceOf(middle + QPoint(60, 0))));
}

TEST_F(WorkbenchDrawing, CancelAndEscapeLeaveTheMapAsItWas) {
    Choose("Polyline");
    Click(middle);
    Click(middle + QPoint(60, 0));
    InDialog().Click(IDCANCEL);
    QApplication::processEvents();
    EXPECT_EQ(Mode(), "");
    Choose("Polyline");
    Click(middle);
    Press(Qt::Key_Escape);
    EXPECT_EQ(Mode(), "Draw: first point") << "the points are gone";
    Press(Qt::Key_Escape);
    EXPECT_EQ(Mode(), "");
    EXPECT_EQ(host->Drawing().Dialog(), nullptr);
    EXPECT_TRUE(Drawn().Empty());
    EXPECT_FALSE(host->History().CanUndo());
}

TEST_F(WorkbenchDrawing, ALineIsDrawnByKeysAlone) {
    Press(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_TRUE(host->Drawing().Dialog());
    const Place first = PlaceOf(middle);
    Press(Qt::Key_Space);
    Press(Qt::Key_Right);
    Press(Qt::Key_Space);
    Press(Qt::Key_Down);
    Press(Qt::Key_Space);
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Return);
    ASSERT_THAT(Drawn().lines, SizeIs(1));
    ASSERT_THAT(Drawn().lines[0].points, SizeIs(2));
    const double pixel = 1 / canvas->View().Scale();
    EXPECT_NEAR(Drawn().lines[0].points[0].lon, first.lon, pixel);
    EXPECT_NEAR(Drawn().lines[0].points[1].lon, first.lon + 80 * pixel, 2 * pixel);
    EXPECT_NEAR(Drawn().lines[0].points[1].lat, first.lat, 2 * pixel);
}

TEST_F(WorkbenchDrawing, TheNextLineBeginsWithTheLastOnesLook) {
    Choose("Polyline");
    dynamic_cast<CKvGuiLineWidthButton&>(*Dialog().GetDlgItem(line::kWidth)).SetLineWidth(4);
    Click(middle);
    Click(middle + QPoint(50, 0));
    InDialog().Click(IDOK);
    DrawLine({middle, middle + QPoint(0, 50)});
    ASSERT_THAT(Drawn().lines, SizeIs(2));
    EXPECT_EQ(Drawn().lines[0].width, 4);
    EXPECT_EQ(Drawn().lines[1].width, 4);
}

TEST_F(WorkbenchDrawing, AReadoutThatIsOpenedTakesTheClicksAndGivesThemBack) {
    Choose("Polyline");
    Click(middle);
    Choose("Distance");
    EXPECT_EQ(Mode(), "Distance: first point");
    Click(middle + QPoint(50, 0));
    EXPECT_EQ(Mode(), "Distance: second point");
    Click(middle + QPoint(60, 0));
    Choose("Distance");
    EXPECT_EQ(Mode(), "Draw: next point");
    Click(middle + QPoint(0, 40));
    InDialog().Click(IDOK);
    ASSERT_THAT(Drawn().lines, SizeIs(1));
    EXPECT_THAT(Drawn().lines[0].points, SizeIs(2));
}

TEST_F(WorkbenchDrawing, ALineTakesTheClicksOfAReadoutThatIsOpen) {
    Choose("Coordinates");
    Choose("Polyline");
    EXPECT_EQ(Mode(), "Draw: first point");
    Click(middle);
    Click(middle + QPoint(30, 0));
    InDialog().Click(IDOK);
    QApplication::processEvents();
    EXPECT_THAT(Drawn().lines, SizeIs(1));
    EXPECT_EQ(Mode(), "Coordinates: click to hold") << "no click held it meanwhile";
}

// By the builder.

TEST_F(WorkbenchDrawing, VerticesMayBeTyped) {
    Choose("Polyline");
    Expect([](kv::User& at) {
        at.Click(builder::kLatLonMode);
        for (const auto& [lat, lon] : {std::pair("28.5", "-91.25"), {"28.6", "-91.2"}}) {
            at.Type(builder::kLatDegree, lat);
            at.Type(builder::kLonDegree, lon);
            at.Key(0, "Enter");
        }
        EXPECT_THAT(at.Rows(builder::kRows), SizeIs(2));
        at.Click(builder::kAccept);
    });
    InDialog().Click(line::kVertices);
    QApplication::processEvents();
    EXPECT_THAT(deeds, IsEmpty());
    EXPECT_EQ(Mode(), "Draw: vertices from the builder");
    EXPECT_TRUE(InDialog().Enabled(IDOK));
    Click(middle);
    InDialog().Click(IDOK);
    QApplication::processEvents();
    ASSERT_THAT(Drawn().lines, SizeIs(1));
    ASSERT_THAT(Drawn().lines[0].points, SizeIs(2)) << "the click was none of its points";
    ExpectNear(Drawn().lines[0].points[0], {28.5, -91.25});
    ExpectNear(Drawn().lines[0].points[1], {28.6, -91.2});
}

TEST_F(WorkbenchDrawing, AVertexThatIsNowhereIsToldAndTheDialogStays) {
    Choose("Polyline");
    Expect([](kv::User& at) {
        for (const auto& [x, y] : {std::pair("1e15", "1e15"), {"2e15", "1e15"}}) {
            at.Type(builder::kX, x);
            at.Type(builder::kY, y);
            at.Click(builder::kAdd);
        }
        at.Click(builder::kAccept);
    });
    InDialog().Click(line::kVertices);
    QApplication::processEvents();
    InDialog().Click(IDOK);
    EXPECT_THAT(failures, ElementsAre("One of the vertices is no place on the earth."));
    EXPECT_TRUE(host->Drawing().Dialog());
    EXPECT_TRUE(Drawn().Empty());
}

// Texts.

TEST_F(WorkbenchDrawing, ATextIsWrittenWhereTheMapIsClicked) {
    Choose("Text");
    EXPECT_EQ(Mode(), "Text: its place");
    InDialog().Type(text::kContent, "Platform A");
    InDialog().Type(text::kHeight, "0.25");
    InDialog().Type(text::kAngle, "30");
    InDialog().Select(text::kVertical, "ABOVE");
    InDialog().Select(text::kHorizontal, "LEFT");
    Click(middle);
    const Place place = Click(middle + QPoint(20, 10));
    InDialog().Click(IDOK);
    QApplication::processEvents();
    ASSERT_THAT(Drawn().texts, SizeIs(1));
    const DrawnText expected{place, "Platform A",    0.25,           30, kUsualColor,
                             0,     TextRow::kAbove, TextPart::kLeft};
    EXPECT_EQ(Drawn().texts[0], expected);
    EXPECT_EQ(host->Drawing().Dialog(), nullptr);
    EXPECT_EQ(Mode(), "");
}

TEST_F(WorkbenchDrawing, OkAheadOfThePlaceLetsTheNextClickBeIt) {
    Choose("Text");
    InDialog().Type(text::kContent, "B");
    InDialog().Click(IDOK);
    QApplication::processEvents();
    EXPECT_EQ(host->Drawing().Dialog(), nullptr);
    EXPECT_EQ(Mode(), "Text: its place");
    EXPECT_TRUE(Drawn().Empty());
    MouseTo(middle);
    const QImage before = canvas->grab().toImage();
    MouseTo(middle + QPoint(40, 0));
    EXPECT_NE(canvas->grab().toImage(), before) << "it is seen where it would be";
    const Place place = Click(middle);
    ASSERT_THAT(Drawn().texts, SizeIs(1));
    EXPECT_EQ(Drawn().texts[0].at, place);
    EXPECT_EQ(Mode(), "");
}

TEST_F(WorkbenchDrawing, ATextThatWouldNotBeSeenIsRefused) {
    Choose("Text");
    Click(middle);
    InDialog().Click(IDOK);
    EXPECT_THAT(failures, ElementsAre("A text of blanks would not be seen."));
    InDialog().Type(text::kContent, "C");
    InDialog().Type(text::kHeight, "0");
    InDialog().Click(IDOK);
    ASSERT_THAT(failures, SizeIs(2));
    EXPECT_EQ(failures[1], "A text with a height of 0 would not be seen.");
    EXPECT_TRUE(Drawn().Empty());
    EXPECT_TRUE(host->Drawing().Dialog());
}

// Filled blocks.

TEST_F(WorkbenchDrawing, ABlockIsFilledByAClickAndEmptiedByTheNext) {
    Choose("Fill block");
    MouseTo(middle);
    const QImage before = canvas->grab().toImage();
    Click(middle);
    EXPECT_THAT(Drawn().fills, ElementsAre(testing::Pair(BlockKey{kArea, kBlock}, kUsualColor)));
    EXPECT_NE(canvas->grab().toImage(), before);
    Click(middle);
    EXPECT_THAT(Drawn().fills, IsEmpty());
    Press(Qt::Key_Space);
    EXPECT_THAT(Drawn().fills, SizeIs(1)) << "and by keys";
    InDialog().Click(IDOK);
    QApplication::processEvents();
    EXPECT_EQ(Mode(), "");
    EXPECT_THAT(Drawn().fills, SizeIs(1));
    EXPECT_TRUE(canvas->GetPick().Empty());
}

// What is drawn already.

TEST_F(WorkbenchDrawing, ALineIsSelectedAndMovedByADrag) {
    const auto places = DrawLine({middle, middle + QPoint(80, 0)});
    Choose("Select");
    EXPECT_EQ(Mode(), "Select: a drawing");
    Click(middle + QPoint(40, 1));
    EXPECT_EQ(host->Drawing().Selected(), (DrawingRef{DrawingRef::kLine, 0}));
    EXPECT_EQ(Mode(), "Select: drag moves");
    const Point before = canvas->View().Middle();
    Drag(middle + QPoint(40, 0), middle + QPoint(60, 30));
    EXPECT_EQ(canvas->View().Middle(), before);
    const Place from = PlaceOf(middle + QPoint(40, 0));
    const Place to = PlaceOf(middle + QPoint(60, 30));
    ASSERT_THAT(Drawn().lines[0].points, SizeIs(2));
    ExpectNear(Drawn().lines[0].points[1],
               {places[1].lat + to.lat - from.lat, places[1].lon + to.lon - from.lon});
    EXPECT_TRUE(host->Drawing().Selected()) << "it stays selected";
    Click(middle - QPoint(0, 60));
    EXPECT_FALSE(host->Drawing().Selected());
}

TEST_F(WorkbenchDrawing, ATextIsMovedByKeys) {
    const Place place = WriteText("HERE", middle);
    Choose("Select");
    Press(Qt::Key_Space);
    ASSERT_EQ(host->Drawing().Selected(), (DrawingRef{DrawingRef::kText, 0}));
    const Point before = canvas->View().Middle();
    Press(Qt::Key_Right, Qt::ControlModifier);
    Press(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(canvas->View().Middle(), before);
    const double pixel = 1 / canvas->View().Scale();
    EXPECT_NEAR(Drawn().texts[0].at.lon, place.lon + 4 * pixel, pixel / 10);
    EXPECT_GT(Drawn().texts[0].at.lat, place.lat);
    EXPECT_EQ(host->History().UndoLabel(), "move text");
}

TEST_F(WorkbenchDrawing, ALineIsChangedInItsDialog) {
    const auto places = DrawLine({middle, middle + QPoint(80, 0)});
    Choose("Select");
    DoubleClick(middle + QPoint(40, 0));
    ASSERT_TRUE(host->Drawing().Dialog());
    EXPECT_EQ(InDialog().Text(line::kVertices), "Modify Vertices");
    EXPECT_TRUE(InDialog().Enabled(IDOK));
    Expect([](kv::User& at) {
        ASSERT_THAT(at.Rows(builder::kRows), SizeIs(2));
        at.Select(builder::kRows, 0);
        at.Click(builder::kMoveDown);
        at.Click(builder::kAccept);
    });
    InDialog().Click(line::kVertices);
    InDialog().Click(line::kClose);
    InDialog().Click(IDOK);
    QApplication::processEvents();
    ASSERT_THAT(Drawn().lines, SizeIs(1));
    EXPECT_TRUE(Drawn().lines[0].closed);
    ASSERT_THAT(Drawn().lines[0].points, SizeIs(2));
    ExpectNear(Drawn().lines[0].points[0], places[1]);
    ExpectNear(Drawn().lines[0].points[1], places[0]);
    EXPECT_EQ(Mode(), "Select: drag moves");
}

TEST_F(WorkbenchDrawing, AChangeOfTheLookLeavesThePointsExactlyWhereTheyWere) {
    const auto places = DrawLine({middle, middle + QPoint(80, 0), middle + QPoint(80, 50)});
    Choose("Select");
    Click(middle + QPoint(40, 0));
    Press(Qt::Key_Return);
    ASSERT_TRUE(host->Drawing().Dialog());
    InDialog().Click(line::kClose);
    InDialog().Click(IDOK);
    QApplication::processEvents();
    EXPECT_TRUE(Drawn().lines[0].closed);
    EXPECT_EQ(Drawn().lines[0].points, places);
}

TEST_F(WorkbenchDrawing, AnOpenPolygonShowsItsFlagsAndCancelChangesNothing) {
    Choose("Polygon");
    for (const QPoint at : {middle, middle + QPoint(60, 0), middle + QPoint(30, 50)})
        Click(at);
    InDialog().Click(line::kFill);
    InDialog().Click(IDOK);
    QApplication::processEvents();
    const Drawings before = Drawn();
    Choose("Select");
    Click(middle + QPoint(30, 20));
    Choose("Change...");
    EXPECT_TRUE(InDialog().Checked(line::kClose));
    EXPECT_TRUE(InDialog().Checked(line::kFill));
    InDialog().Click(line::kClose);
    InDialog().Click(IDCANCEL);
    QApplication::processEvents();
    EXPECT_EQ(Drawn(), before);
    EXPECT_EQ(Mode(), "Select: drag moves") << "the tool goes on";
}

TEST_F(WorkbenchDrawing, ATextIsChangedInItsDialog) {
    const Place place = WriteText("OLD", middle);
    Choose("Select");
    DoubleClick(middle);
    ASSERT_TRUE(host->Drawing().Dialog());
    EXPECT_EQ(InDialog().Text(text::kContent), "OLD");
    EXPECT_EQ(InDialog().Text(text::kHeight), "0.5000");
    InDialog().Type(text::kContent, "NEW");
    InDialog().Click(IDOK);
    QApplication::processEvents();
    ASSERT_THAT(Drawn().texts, SizeIs(1));
    EXPECT_EQ(Drawn().texts[0].text, "NEW");
    EXPECT_EQ(Drawn().texts[0].height, 0.5);
    EXPECT_EQ(Drawn().texts[0].at, place);
}

TEST_F(WorkbenchDrawing, WhatIsSelectedIsDeleted) {
    EXPECT_FALSE(MenuAction("Delete")->isEnabled());
    DrawLine({middle, middle + QPoint(80, 0)});
    WriteText("GONE", middle + QPoint(0, 60));
    Choose("Select");
    Click(middle + QPoint(40, 0));
    EXPECT_TRUE(MenuAction("Delete")->isEnabled());
    Choose("Delete");
    EXPECT_THAT(Drawn().lines, IsEmpty());
    EXPECT_FALSE(MenuAction("Delete")->isEnabled());
    Click(middle + QPoint(0, 60));
    Press(Qt::Key_Delete);
    EXPECT_TRUE(Drawn().Empty());
    EXPECT_EQ(Mode(), "Select: a drawing");
}

TEST_F(WorkbenchDrawing, EachDeedIsUndoneAndDoneAgain) {
    DrawLine({middle, middle + QPoint(80, 0)});
    const Drawings drawn = Drawn();
    Choose("Select");
    Drag(middle + QPoint(40, 0), middle + QPoint(40, 40));
    const Drawings moved = Drawn();
    EXPECT_NE(moved, drawn);
    EXPECT_EQ(host->History().UndoLabel(), "move line");
    Undo();
    EXPECT_EQ(Drawn(), drawn);
    EXPECT_FALSE(host->Drawing().Selected()) << "what was selected may be another thing now";
    Click(middle + QPoint(40, 0));
    EXPECT_TRUE(host->Drawing().Selected()) << "it is found where it was";
    Undo();
    EXPECT_TRUE(Drawn().Empty());
    Redo();
    Redo();
    EXPECT_EQ(Drawn(), moved);
}

TEST_F(WorkbenchDrawing, ADialogForWhatIsUndoneMeanwhileCloses) {
    DrawLine({middle, middle + QPoint(80, 0)});
    Choose("Select");
    DoubleClick(middle + QPoint(40, 0));
    ASSERT_TRUE(host->Drawing().Dialog());
    Undo();
    EXPECT_EQ(host->Drawing().Dialog(), nullptr);
    EXPECT_TRUE(Drawn().Empty());
}

// Clear, search and replace.

TEST_F(WorkbenchDrawing, ClearTakesTheKindsThatAreChecked) {
    DrawLine({middle, middle + QPoint(80, 0)});
    WriteText("STAYS", middle);
    Choose("Fill block");
    Click(middle + QPoint(0, 30));
    Choose("Fill block");
    Expect([](kv::User& at) {
        at.Click(kv::clear_custom_obj::kPolygons);
        at.Click(kv::clear_custom_obj::kColorFills);
        at.Click(IDOK);
    });
    Choose("Clear...");
    EXPECT_THAT(deeds, IsEmpty());
    EXPECT_THAT(Drawn().lines, IsEmpty());
    EXPECT_THAT(Drawn().fills, IsEmpty());
    EXPECT_THAT(Drawn().texts, SizeIs(1));
    Undo();
    EXPECT_THAT(Drawn().lines, SizeIs(1));
}

TEST_F(WorkbenchDrawing, SearchAndReplaceActsOnTextsAndOnTheLabelsOfTheLayer) {
    WriteText("Block 391", middle);
    const QImage before = canvas->grab().toImage();
    Expect([](kv::User& at) {
        at.Select(kv::search_replace::kLayer, "LEASES");
        at.Type(kv::search_replace::kSearch, kBlock);
        at.Type(kv::search_replace::kReplace, "ours");
        at.Click(IDOK);
    });
    Choose("Search and Replace...");
    EXPECT_EQ(Drawn().texts[0].text, "Block OURS");
    EXPECT_EQ(TextOf(Drawn().labels, LabelLayer::kLeases, kArea, kBlock), "OURS");
    EXPECT_NE(canvas->grab().toImage(), before);
    EXPECT_THAT(Said(), testing::StartsWith("Replaced in 1 text and "));
    Undo();
    EXPECT_THAT(Drawn().labels, IsEmpty());
    EXPECT_EQ(Drawn().texts[0].text, "Block 391");
}

TEST_F(WorkbenchDrawing, ItIsToldInHowManyTextsAndLabelsAWordWasReplaced) {
    const auto replace = [&](const char* word) {
        Expect([word](kv::User& at) {
            at.Select(kv::search_replace::kLayer, "LEASES");
            at.Type(kv::search_replace::kSearch, word);
            at.Click(IDOK);
        });
        Choose("Search and Replace...");
        return Said();
    };
    WriteText("ONE OLD WORD", middle);
    WriteText("ANOTHER OLD WORD", middle + QPoint(0, 40));
    EXPECT_EQ(replace("ANOTHER"), "Replaced in 1 text and 0 labels");
    EXPECT_EQ(replace("OLD WORD"), "Replaced in 2 texts and 0 labels");
}

TEST_F(WorkbenchDrawing, AnEmptySearchTextIsRefusedAndAskedForAgain) {
    Expect([](kv::User& at) {
        at.Type(kv::search_replace::kReplace, "x");
        at.Click(IDOK);
    });
    Expect([](kv::User& at) {
        EXPECT_EQ(at.Text(kv::search_replace::kReplace), "X") << "what was typed stands there";
        at.Click(IDCANCEL);
    });
    Choose("Search and Replace...");
    EXPECT_THAT(failures, ElementsAre("Type the text that is to be searched for."));
    EXPECT_THAT(deeds, IsEmpty());
    EXPECT_TRUE(Drawn().Empty());
}

TEST_F(WorkbenchDrawing, DrawingsCanBeHidden) {
    WriteText("HIDDEN", middle);
    MouseTo(middle + QPoint(100, 100));
    const QImage seen = canvas->grab().toImage();
    MenuAction("Drawings")->setChecked(false);
    EXPECT_NE(canvas->grab().toImage(), seen);
    MenuAction("Drawings")->setChecked(true);
    EXPECT_EQ(canvas->grab().toImage(), seen);
}

TEST_F(WorkbenchDrawing, AnotherDatabaseEndsTheTool) {
    Choose("Polyline");
    Click(middle);
    host->LoadMap();
    EXPECT_EQ(host->Drawing().Dialog(), nullptr);
    EXPECT_EQ(Mode(), "");
    host->Runner().Finish();
}

TEST_F(WorkbenchDrawing, AnotherToolIsNotTakenUpOverAHalfDrawnLineUnasked) {
    Choose("Polyline");
    Click(middle);
    Answer(QMessageBox::No);
    Choose("Polygon");
    EXPECT_EQ(Mode(), "Draw: next point");
    EXPECT_TRUE(MenuAction("Polyline")->isChecked());
    EXPECT_FALSE(MenuAction("Polygon")->isChecked());
    Answer(QMessageBox::No);
    Choose("Polyline");
    EXPECT_EQ(Mode(), "Draw: next point") << "the tool that is in use ends when it is chosen";
    EXPECT_TRUE(MenuAction("Polyline")->isChecked());
    Answer(QMessageBox::Yes);
    Choose("Polygon");
    EXPECT_EQ(Mode(), "Draw: first point");
    EXPECT_TRUE(MenuAction("Polygon")->isChecked());
    EXPECT_THAT(questions, SizeIs(3));
    Choose("Polygon");
    EXPECT_EQ(Mode(), "") << "nothing was drawn: nobody asks";
    EXPECT_THAT(questions, SizeIs(3));
}

TEST_F(WorkbenchDrawing, WhatIsHalfDrawnIsAskedAboutAheadOfItsEnd) {
    Choose("Polyline");
    Choose("Read map again");
    EXPECT_EQ(Mode(), "") << "no point was there yet: nobody asks";
    host->Runner().Finish();
    Choose("Polyline");
    Click(middle);
    Answer(QMessageBox::No);
    Choose("Read map again");
    EXPECT_EQ(Mode(), "Draw: next point");
    Answer(QMessageBox::No);
    Choose("Open database...");
    Answer(QMessageBox::No);
    host->Window().close();
    EXPECT_TRUE(host->Window().isVisible());
    Answer(QMessageBox::Yes);
    Choose("Read map again");
    EXPECT_EQ(Mode(), "");
    EXPECT_THAT(questions,
                testing::AllOf(SizeIs(4), testing::Each("What is being drawn was not accepted yet, "
                                                        "and goes. Go on?")));
    host->Runner().Finish();
}

TEST_F(WorkbenchDrawing, ATextThatWasTypedOrWaitsForItsPlaceIsAskedAbout) {
    Choose("Text");
    InDialog().Type(text::kContent, "typed");
    Answer(QMessageBox::No);
    Choose("Read map again");
    InDialog().Click(IDOK);
    QApplication::processEvents();
    Answer(QMessageBox::No);
    Choose("Read map again");
    EXPECT_THAT(questions, SizeIs(2));
    Click(middle);
    EXPECT_THAT(Drawn().texts, SizeIs(1));
}

TEST_F(WorkbenchDrawing, StepsOfTheKeysAreUndoneAsOneMove) {
    const auto places = DrawLine({middle, middle + QPoint(80, 0)});
    DrawLine({middle + QPoint(0, 60), middle + QPoint(80, 60)});
    const Drawings before = Drawn();
    Choose("Select");
    Click(middle + QPoint(40, 0));
    for (int step = 0; step < 3; ++step)
        Press(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_GT(Drawn().lines[0].points[0].lat, places[0].lat);
    Click(middle + QPoint(40, 60));
    Press(Qt::Key_Down, Qt::ControlModifier);
    Undo();
    EXPECT_EQ(Drawn().lines[1], before.lines[1]);
    EXPECT_NE(Drawn(), before) << "another drawing's move is another deed";
    Undo();
    EXPECT_EQ(Drawn(), before);
}

TEST_F(WorkbenchDrawing, ALineThatNoProjectionOfItsPointsHoldsIsNotOpenedWithoutThem) {
    canvas->ShowPlace({31, -91});
    const auto places = DrawLine({middle, middle + QPoint(80, 0)});
    ASSERT_FALSE(host->Model().BlockAt(ToMap(places[0])));
    // A quarter of the equator apart, neither zone has an answer for the other.
    Add({}, {{0, -3}, {0, -93}});
    const Drawings before = Drawn();
    Choose("Select");
    Click(middle + QPoint(40, 0));
    ASSERT_TRUE(host->Drawing().Selected());
    Choose("Change...");
    EXPECT_THAT(failures, ElementsAre("No projection of this line's points has X and Y for all of "
                                      "them, so that its vertices cannot be shown."));
    EXPECT_EQ(host->Drawing().Dialog(), nullptr);
    EXPECT_EQ(Drawn(), before);
    EXPECT_EQ(Mode(), "Select: drag moves");
}

TEST_F(WorkbenchDrawing, ALineIsOpenedInTheProjectionOfAnyOfItsPointsThatHoldsAll) {
    DrawLine({middle, middle + QPoint(80, 0)});
    // The zone of the first has no answer for the last; that of the block has for both.
    Add({{0, -93}}, {{0, -3}});
    Choose("Select");
    Click(middle + QPoint(40, 0));
    Choose("Change...");
    EXPECT_THAT(failures, IsEmpty());
    ASSERT_TRUE(host->Drawing().Dialog());
    Expect([](kv::User& at) {
        EXPECT_THAT(at.Rows(builder::kRows), SizeIs(4));
        at.Click(IDCANCEL);
    });
    InDialog().Click(line::kVertices);
    EXPECT_THAT(deeds, IsEmpty());
}

TEST_F(WorkbenchDrawing, GoesWithTheMainWindow) {
    Choose("Text");
    Click(middle);
    host->Frame().DestroyWindow();
    EXPECT_EQ(host->Drawing().Dialog(), nullptr);
}

}  // namespace
}  // namespace workbench
