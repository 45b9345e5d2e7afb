#include <QAction>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QMainWindow>
#include <QProgressBar>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>

#include "qt/binding.h"
#include "qt_fixture.h"
#include "window/controls/bitmap_button.h"
#include "window/controls/combo_box.h"
#include "window/controls/edit.h"
#include "window/controls/progress_node.h"
#include "window/controls/spin_node.h"
#include "window/controls/static_text.h"
#include "window/frames/control_bar.h"
#include "window/frames/frame_wnd.h"
#include "window/frames/tool_bar.h"

using enum kv::ControlKind;
using test::kTestTemplate;
using test::TestTemplate;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class SmallViews : public test::QtDialogTest {};

TEST_F(SmallViews, AProgressBarFollows) {
    Show({{46, kProgress, "", {7, 7, 80, 12}}});
    dialog.SendDlgItemMessage(46, PBM_SETRANGE32, 10, 30);
    dialog.SendDlgItemMessage(46, PBM_SETPOS, 25);
    EXPECT_EQ(WidgetOf<QProgressBar>(46)->minimum(), 10);
    EXPECT_EQ(WidgetOf<QProgressBar>(46)->value(), 25);
}

TEST_F(SmallViews, TheArrowsOfASpinButtonStepOnce) {
    Show({{11, kEdit, "5", {7, 7, 40, 12}},
          {42, kSpin, "", {47, 7, 10, 12}, {UDS_AUTOBUDDY | UDS_SETBUDDYINT, 0}}});
    dialog.SendDlgItemMessage(42, UDM_SETRANGE32, 0, 10);
    dialog.SendDlgItemMessage(42, UDM_SETPOS32, 0, 5);
    const auto arrows = WidgetOf(42)->findChildren<QToolButton*>();
    ASSERT_EQ(arrows.size(), 2);
    QTest::mouseClick(arrows.at(0), Qt::LeftButton);
    EXPECT_EQ(dialog.SendDlgItemMessage(42, UDM_GETPOS32), 6);
    EXPECT_EQ(WidgetOf<QLineEdit>(11)->text(), "6");
    QTest::mouseClick(arrows.at(1), Qt::LeftButton);
    QTest::mouseClick(arrows.at(1), Qt::LeftButton);
    EXPECT_EQ(Text(11), "4");
    QWheelEvent wheel(QPointF(3, 3), WidgetOf(42)->mapToGlobal(QPointF(3, 3)), {}, {0, 120},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(WidgetOf(42), &wheel);
    EXPECT_EQ(Text(11), "5");
}

TEST_F(SmallViews, TheWheelOverASpinButtonStepsANotchAtATime) {
    Show({{11, kEdit, "5", {7, 7, 40, 12}},
          {42, kSpin, "", {47, 7, 10, 12}, {UDS_AUTOBUDDY | UDS_SETBUDDYINT, 0}}});
    dialog.SendDlgItemMessage(42, UDM_SETRANGE32, 0, 10);
    dialog.SendDlgItemMessage(42, UDM_SETPOS32, 0, 5);
    const auto turn = [&](int delta) {
        const QPointF at(3, 3);
        QWheelEvent event(at, WidgetOf(42)->mapToGlobal(at), {}, {0, delta}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(WidgetOf(42), &event);
    };
    turn(60);
    EXPECT_EQ(Text(11), "5") << "half a notch";
    turn(60);
    EXPECT_EQ(Text(11), "6");
    turn(-360);
    EXPECT_EQ(Text(11), "3");
    turn(120 * 20);
    EXPECT_EQ(Text(11), "10") << "the range holds";
    dialog.GetDlgItem(42)->EnableWindow(FALSE);
    turn(-120);
    EXPECT_EQ(Text(11), "10");
}

TEST_F(SmallViews, ASpinButtonsArrowsHaveNames) {
    Show({{10, kLabel, "Scale:", {7, 7, 30, 8}},
          {11, kEdit, "5", {40, 7, 40, 12}},
          {42, kSpin, "", {80, 7, 10, 12}, {UDS_AUTOBUDDY, 0}}});
    EXPECT_EQ(test::NameOf(WidgetOf(42)), "Scale");
    for (const QToolButton* arrow : WidgetOf(42)->findChildren<QToolButton*>())
        EXPECT_FALSE(arrow->accessibleName().isEmpty());
}

constexpr std::string_view kImageRows[] = {"####", "####", "####", "####"};
constexpr kv::PaletteEntry kRedPalette[] = {{'#', kv::ToArgb(RGB(200, 0, 0))}};
constexpr kv::PaletteEntry kGreenPalette[] = {{'#', kv::ToArgb(RGB(0, 200, 0))}};
constexpr kv::ImageResource kRed{501, 4, 4, kImageRows, kRedPalette};
constexpr kv::ImageResource kGreen{502, 4, 4, kImageRows, kGreenPalette};

class Pictures : public SmallViews {
protected:
    Pictures() {
        module_.images = {&kRed, &kGreen};
        kv::AddToResourceChain(module_);
    }
    ~Pictures() override { kv::RemoveFromResourceChain(module_); }
    bool Shows(int id, const QColor& color) {
        const QImage picture = WidgetOf(id)->grab().toImage();
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixelColor(x, y) == color) return true;
            }
        }
        return false;
    }

    kv::ResourceModule module_;
    const QColor red_{200, 0, 0};
    const QColor green_{0, 200, 0};
};

TEST_F(Pictures, AnIconIsShownAndChanged) {
    Show({{30, kIcon, "", {7, 7, 20, 20}}});
    EXPECT_FALSE(Shows(30, red_));
    dialog.Control<CStatic>(30).SetIcon(501);
    EXPECT_TRUE(Shows(30, red_));
    dialog.Control<CStatic>(30).SetIcon(502);
    EXPECT_TRUE(Shows(30, green_));
    EXPECT_FALSE(Shows(30, red_));
}

TEST_F(Pictures, ABitmapButtonShowsThePictureOfItsState) {
    Show({{11, kEdit, "", {7, 40, 40, 12}}, {50, kOwnerDrawButton, "", {7, 7, 20, 20}}});
    CBitmapButton button;
    ASSERT_TRUE(button.LoadBitmaps(501, 502));
    ASSERT_TRUE(button.AutoLoad(50, &dialog));
    Process();
    EXPECT_TRUE(Shows(50, red_));
    QTest::mousePress(WidgetOf(50), Qt::LeftButton);
    EXPECT_TRUE(Shows(50, green_));
    Told();
    QTest::mouseRelease(WidgetOf(50), Qt::LeftButton);
    EXPECT_TRUE(Shows(50, red_));
    EXPECT_THAT(Told(), ElementsAre("50 clicked"));
    button.Detach();
}

constexpr int kBarTemplate = 150;
constexpr UINT kRun = 20;
constexpr UINT kZoom = 301;
constexpr UINT kPan = 302;

/// A host's frame with a dialog bar and a tool bar in it.
class HostFrame : public CFrameWnd {
public:
    std::vector<UINT> commands;
    bool canZoom = true;

    BOOL OnCmdMsg(UINT id, int code, void* extra, void* info) override {
        if (code == CN_UPDATE_COMMAND_UI) {
            if (id == kZoom) static_cast<CCmdUI*>(extra)->Enable(canZoom);
            if (id == kPan) static_cast<CCmdUI*>(extra)->SetCheck(1);
            return id == kZoom || id == kPan || id == kRun;
        }
        const bool own = id == kZoom || id == kPan || id == kRun;
        if (own && code == CN_COMMAND && !info) commands.push_back(id);
        return own || CFrameWnd::OnCmdMsg(id, code, extra, info);
    }
};

class Frame : public testing::Test {
protected:
    Frame() {
        frame_.Create("Host");
        frame_.EnableDocking(CBRS_ALIGN_ANY);
        bar_.Create(&frame_, kBarTemplate, CBRS_TOP, kBarTemplate);
        bar_.EnableDocking(CBRS_ALIGN_ANY);
        frame_.DockControlBar(&bar_);
        frame_.ShowWindow(SW_SHOW);
        Process();
        // Without a window manager a window becomes the active one some time after it came up, and
        // until then the toolkit moves no focus in it.
        EXPECT_TRUE(QTest::qWaitForWindowActive(Main()));
    }
    ~Frame() override {
        if (frame_.m_hWnd) frame_.DestroyWindow();
        Process();
    }
    static void Process() { QApplication::processEvents(); }

    QMainWindow* Main() { return kv::qt::MainWindowOf(*frame_.m_hWnd); }
    QToolBar* BarOf(const CWnd& bar) {
        return dynamic_cast<QToolBar*>(kv::qt::WidgetOf(*bar.m_hWnd));
    }
    QWidget* WidgetOf(int id) { return kv::qt::WidgetOf(*bar_.m_hWnd->FindChild(id)); }

    kv::qt::QtDesktop desktop_;
    TestTemplate template_{{{11, kEdit, "", {4, 3, 60, 12}},
                            {static_cast<int>(kRun), kPushButton, "&Run", {68, 2, 40, 14}}},
                           kBarTemplate,
                           "Pick",
                           150,
                           18};
    HostFrame frame_;
    CDialogBar bar_;
};

TEST_F(Frame, HoldsTheHostsCentralWidgetBesideItsBars) {
    ASSERT_NE(Main(), nullptr);
    auto* canvas = new QWidget;
    Main()->setCentralWidget(canvas);
    Process();
    EXPECT_TRUE(canvas->isVisible());
    EXPECT_EQ(Main()->windowTitle(), "Host");
    EXPECT_EQ(Main()->toolBarArea(BarOf(bar_)), Qt::TopToolBarArea);
    EXPECT_GT(WidgetOf(11)->width(), 0);
}

TEST_F(Frame, ItsBarsControlsReachIt) {
    QTest::mouseClick(WidgetOf(11), Qt::LeftButton);
    QTest::keyClick(WidgetOf(11), Qt::Key_V);
    EXPECT_EQ(bar_.DlgItemText(11), "v");
    QTest::mouseClick(WidgetOf(kRun), Qt::LeftButton);
    EXPECT_THAT(frame_.commands, ElementsAre(kRun));
    QTest::mouseClick(WidgetOf(11), Qt::LeftButton);
    QTest::keyClick(WidgetOf(11), Qt::Key_R, Qt::AltModifier);
    EXPECT_THAT(frame_.commands, ElementsAre(kRun, kRun));
}

TEST_F(Frame, TheHostsOwnWidgetTakesTheFocusFromTheBar) {
    auto* canvas = new QLineEdit;
    Main()->setCentralWidget(canvas);
    Process();
    QTest::mouseClick(WidgetOf(11), Qt::LeftButton);
    EXPECT_EQ(test::FocusedId(), 11);
    canvas->setFocus(Qt::MouseFocusReason);
    Process();
    EXPECT_EQ(test::FocusedId(), 0);
    QTest::keyClick(canvas, Qt::Key_X);
    EXPECT_EQ(canvas->text(), "x");
    EXPECT_EQ(bar_.DlgItemText(11), "");
}

/// A widget of the host's that leaves every key to the window around it.
class Heedless : public QWidget {
public:
    Heedless() { setFocusPolicy(Qt::StrongFocus); }

protected:
    void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
};

TEST_F(Frame, KeysOfTheHostsOwnWidgetsStayThere) {
    QTest::mouseClick(WidgetOf(11), Qt::LeftButton);
    QTest::keyClick(WidgetOf(11), Qt::Key_V);
    auto* canvas = new Heedless;
    Main()->setCentralWidget(canvas);
    canvas->setFocus(Qt::MouseFocusReason);
    Process();
    ASSERT_TRUE(canvas->hasFocus());
    for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_X, Qt::Key_Minus, Qt::Key_Down, Qt::Key_Tab,
                              Qt::Key_Return, Qt::Key_Delete, Qt::Key_Escape, Qt::Key_F4}) {
        QTest::keyClick(canvas, key);
        EXPECT_TRUE(canvas->hasFocus()) << key;
        EXPECT_EQ(test::FocusedId(), 0) << key;
        canvas->setFocus();
    }
    QTest::keyClick(canvas, Qt::Key_R, Qt::AltModifier);
    QInputMethodEvent commit;
    commit.setCommitString("y");
    QApplication::sendEvent(Main(), &commit);
    EXPECT_EQ(bar_.DlgItemText(11), "v");
    EXPECT_THAT(frame_.commands, IsEmpty());
}

TEST_F(Frame, ShortcutsOfTheHostsOwnWidgetsAreNotTakenFromThem) {
    auto* canvas = new Heedless;
    int acted = 0;
    QAction action;
    action.setShortcuts({QKeySequence::Copy, QKeySequence(Qt::Key_Delete)});
    QObject::connect(&action, &QAction::triggered, [&] { ++acted; });
    canvas->addAction(&action);
    Main()->setCentralWidget(canvas);
    canvas->setFocus();
    Process();
    QTest::keyClick(canvas, Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(canvas, Qt::Key_Delete);
    EXPECT_EQ(acted, 2);
}

TEST_F(Frame, AHostsShortcutMovesTheFocusIntoTheBar) {
    auto* canvas = new Heedless;
    Main()->setCentralWidget(canvas);
    canvas->setFocus();
    Process();
    QAction action;
    action.setShortcut(Qt::CTRL | Qt::Key_L);
    QObject::connect(&action, &QAction::triggered,
                     [&] { kv::FocusByTab(*bar_.m_hWnd->FindChild(11)); });
    Main()->addAction(&action);
    QTest::keyClick(canvas, Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(test::FocusedId(), 11);
    ASSERT_EQ(Main()->focusWidget(), WidgetOf(11));
    QTest::keyClick(WidgetOf(11), Qt::Key_W);
    EXPECT_EQ(bar_.DlgItemText(11), "w");
}

TEST_F(Frame, AMenusShortcutsWorkWithTheFocusInTheBar) {
    int saved = 0;
    QAction save;
    save.setShortcut(Qt::CTRL | Qt::Key_S);
    QObject::connect(&save, &QAction::triggered, [&] { ++saved; });
    Main()->addAction(&save);
    Main()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Main()));
    QTest::mouseClick(WidgetOf(11), Qt::LeftButton);
    QTest::keyClick(WidgetOf(11), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(saved, 1);
    EXPECT_EQ(bar_.DlgItemText(11), "");
}

TEST_F(Frame, ABarDocksFloatsAndRemembers) {
    QToolBar* bar = BarOf(bar_);
    EXPECT_TRUE(bar->isMovable());
    EXPECT_TRUE(bar->isFloatable());
    Main()->addToolBar(Qt::BottomToolBarArea, bar);
    const QByteArray state = Main()->saveState();
    Main()->addToolBar(Qt::TopToolBarArea, bar);
    EXPECT_TRUE(Main()->restoreState(state));
    EXPECT_EQ(Main()->toolBarArea(bar), Qt::BottomToolBarArea);
    frame_.ShowControlBar(&bar_, FALSE, FALSE);
    EXPECT_FALSE(bar->isVisible());
    frame_.ShowControlBar(&bar_, TRUE, FALSE);
    EXPECT_TRUE(bar->isVisible());
    bar->toggleViewAction()->trigger();
    Process();
    EXPECT_FALSE(bar_.IsWindowVisible());
}

TEST_F(Frame, ABarDocksOnlyAtTheSidesItNames) {
    EXPECT_EQ(BarOf(bar_)->allowedAreas(), Qt::AllToolBarAreas);
    CDialogBar other;
    other.EnableDocking(CBRS_ALIGN_TOP | CBRS_ALIGN_RIGHT);
    other.Create(&frame_, kBarTemplate, CBRS_TOP, kBarTemplate + 1);
    Process();
    EXPECT_EQ(BarOf(other)->allowedAreas(), Qt::TopToolBarArea | Qt::RightToolBarArea);
}

TEST_F(Frame, ABarGrowsWithItsControls) {
    const int before = BarOf(bar_)->sizeHint().width();
    CButton more;
    more.Create("More", WS_CHILD | WS_VISIBLE, {400, 2, 480, 20}, &bar_, 77);
    Process();
    EXPECT_GT(BarOf(bar_)->sizeHint().width(), before);
    EXPECT_GT(BarOf(bar_)->width(), WidgetOf(77)->geometry().right());
}

TEST_F(Frame, ABarScrollsInANarrowWindowToWhatGetsTheFocus) {
    const auto inSight = [this](int id) {
        return WidgetOf(id)->visibleRegion().boundingRect() == WidgetOf(id)->rect();
    };
    Main()->resize(800, 300);
    Process();
    EXPECT_TRUE(inSight(11) && inSight(kRun));
    const int roomy = BarOf(bar_)->height();
    const int scrollBar = BarOf(bar_)->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    EXPECT_LT(roomy, WidgetOf(11)->parentWidget()->height() + scrollBar);
    QTest::mouseClick(WidgetOf(11), Qt::LeftButton);
    Main()->resize(BarOf(bar_)->sizeHint().width() * 3 / 4, 300);
    Process();
    ASSERT_LT(Main()->width(), BarOf(bar_)->sizeHint().width());
    const auto height = [this] { return BarOf(bar_)->height(); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return height() > roomy; })) << "there is a scroll bar";
    EXPECT_TRUE(inSight(11));
    EXPECT_FALSE(inSight(kRun));
    QTest::keyClick(WidgetOf(11), Qt::Key_Tab);
    EXPECT_TRUE(inSight(kRun));
    QTest::mouseClick(WidgetOf(kRun), Qt::LeftButton);
    EXPECT_THAT(frame_.commands, ElementsAre(kRun));
    Main()->resize(800, 300);
    Process();
    EXPECT_TRUE(QTest::qWaitFor([&] { return height() == roomy; }));
}

TEST_F(Frame, AToolBarSendsCommandsAndShowsTheirState) {
    CToolBar tools;
    tools.Create(&frame_);
    const UINT ids[] = {kZoom, ID_SEPARATOR, kPan};
    tools.SetButtons(ids, 3);
    tools.SetButtonText(0, "Zoom");
    tools.SetButtonText(2, "Pan");
    kv::WindowSystem::Get().Settle();
    QToolBar* bar = BarOf(tools);
    ASSERT_NE(bar, nullptr);
    ASSERT_EQ(bar->actions().size(), 3);
    EXPECT_EQ(bar->actions().at(0)->text(), "Zoom");
    EXPECT_TRUE(bar->actions().at(2)->isChecked());
    Process();
    QTest::mouseClick(bar->widgetForAction(bar->actions().at(0)), Qt::LeftButton);
    EXPECT_THAT(frame_.commands, ElementsAre(kZoom));
    QTest::mouseClick(bar->widgetForAction(bar->actions().at(2)), Qt::LeftButton);
    EXPECT_TRUE(bar->actions().at(2)->isChecked()) << "the command's update says so";
    frame_.canZoom = false;
    kv::WindowSystem::Get().Settle();
    EXPECT_FALSE(bar->actions().at(0)->isEnabled());
}

TEST_F(Frame, IdleUpdatesRunOfThemselvesBehindWhatAPersonDoes) {
    CToolBar tools;
    tools.Create(&frame_);
    const UINT ids[] = {kZoom};
    tools.SetButtons(ids, 1);
    Process();
    QAction* zoom = BarOf(tools)->actions().constFirst();
    EXPECT_TRUE(zoom->isEnabled());
    frame_.canZoom = false;
    QTest::mouseClick(WidgetOf(kRun), Qt::LeftButton);
    EXPECT_FALSE(zoom->isEnabled());
    frame_.canZoom = true;
    frame_.PostMessage(WM_COMMAND, kPan);
    Process();
    EXPECT_TRUE(zoom->isEnabled());
}

TEST_F(Frame, ABarThatFloatsKeepsItsControlsAndDocksAgain) {
    QToolBar* bar = BarOf(bar_);
    const QByteArray docked = Main()->saveState();
    // As its grip is dragged off the edge.
    const QPoint grip(4, bar->height() / 2);
    QTest::mousePress(bar, Qt::LeftButton, {}, grip);
    const auto dragTo = [&](const QPoint& at) {
        QMouseEvent move(QEvent::MouseMove, at, bar->mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(bar, &move);
        Process();
    };
    dragTo(grip + QPoint(60, 150));
    dragTo(grip + QPoint(120, 400));
    QTest::mouseRelease(bar, Qt::LeftButton, {}, grip + QPoint(120, 400));
    Process();
    ASSERT_TRUE(bar->isFloating());
    EXPECT_TRUE(bar_.IsWindowVisible());
    QTest::mouseClick(WidgetOf(11), Qt::LeftButton);
    QTest::keyClick(WidgetOf(11), Qt::Key_W);
    EXPECT_EQ(bar_.DlgItemText(11), "w");
    QTest::mouseClick(WidgetOf(kRun), Qt::LeftButton);
    EXPECT_THAT(frame_.commands, ElementsAre(kRun));
    EXPECT_TRUE(Main()->restoreState(docked));
    Process();
    EXPECT_FALSE(bar->isFloating());
    EXPECT_EQ(Main()->toolBarArea(bar), Qt::TopToolBarArea);
}

TEST_F(Frame, ClosesThroughTheLayer) {
    QPointer<QWidget> window = Main();
    window->close();
    EXPECT_EQ(frame_.m_hWnd, nullptr);
    EXPECT_TRUE(window.isNull() || !window->isVisible());
}

class Binding : public testing::Test {
protected:
    kv::qt::QtDesktop desktop_;
};

TEST_F(Binding, AComboBoxOfTheHostsIsTheControlsBothWays) {
    QComboBox box;
    box.addItems({"one", "two"});
    box.setEditable(true);
    CComboBox control;
    ASSERT_TRUE(kv::qt::BindComboBox(box, control));
    EXPECT_FALSE(kv::qt::BindComboBox(box, control)) << "it is bound";
    EXPECT_EQ(control.GetCount(), 2);
    EXPECT_EQ(control.GetCurSel(), 0);
    control.AddString("three");
    EXPECT_EQ(box.count(), 3);
    EXPECT_EQ(box.itemText(2), "three");
    control.SetCurSel(2);
    EXPECT_EQ(box.currentText(), "three");
    box.setEditText("typed");
    EXPECT_EQ(control.WindowText(), "typed");
    control.SetWindowText("<LIST>");
    EXPECT_EQ(box.currentText(), "<LIST>");
    control.ResetContent();
    EXPECT_EQ(box.count(), 0);
    EXPECT_EQ(box.currentText(), "");
}

TEST_F(Binding, APickInTheHostsComboBoxIsTheControls) {
    QComboBox box;
    box.addItems({"one", "two", "three"});
    CComboBox control;
    ASSERT_TRUE(kv::qt::BindComboBox(box, control));
    box.show();
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(control.GetCurSel(), 1);
    EXPECT_EQ(control.WindowText(), "two");
    control.SetCurSel(-1);
    EXPECT_EQ(box.currentIndex(), -1);
}

TEST_F(Binding, ALineEditOfTheHostsIsTheControlsBothWays) {
    CEdit control;
    {
        QLineEdit line;
        line.setText("before");
        ASSERT_TRUE(kv::qt::BindLineEdit(line, control));
        EXPECT_EQ(control.WindowText(), "before");
        control.SetWindowText("after");
        EXPECT_EQ(line.text(), "after");
        QTest::keyClicks(&line, "!");
        EXPECT_EQ(control.WindowText(), "after!");
        control.EnableWindow(FALSE);
        EXPECT_FALSE(line.isEnabled());
    }
    EXPECT_EQ(control.m_hWnd, nullptr) << "the widget has gone";
}

}  // namespace
