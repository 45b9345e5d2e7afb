#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <optional>

#include "qt/drawing/scale.h"
#include "qt/peers/window_peers.h"
#include "qt_fixture.h"
#include "support/temp_folder.h"
#include "window/dialogs/message_box.h"
#include "window/screens.h"

using enum kv::ControlKind;
using test::kTestTemplate;
using test::RecordingDialog;
using test::TestTemplate;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

kv::ControlRow At(int id, kv::ControlKind kind, int y, const char* text = "") {
    return {id, kind, text, {7, y, 80, 14}, {}};
}

constexpr int kInnerTemplate = 101;

class Windows : public test::QtDialogTest {
protected:
    static QWidget* WidgetOf(const CWnd& window) { return kv::qt::WidgetOf(*window.m_hWnd); }
    static QWidget* WidgetOf(const CWnd& window, int id) {
        return kv::qt::WidgetOf(*window.m_hWnd->FindChild(id));
    }

    /// As soon as a message box stands open, presses that button of it.
    void AnswerNextMessage(QMessageBox::StandardButton button) {
        Then([this, button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            messages_.push_back(box->text().toStdString());
            QTest::mouseClick(box->button(button), Qt::LeftButton);
        });
    }

    TestTemplate inner_{{At(41, kEdit, 7), At(IDOK, kDefaultButton, 24, "OK"),
                         At(IDCANCEL, kPushButton, 41, "Cancel")},
                        kInnerTemplate,
                        "Inner"};
    std::vector<std::string> messages_;
};

TEST_F(Windows, AModalDialogRunsUntilItsButtonIsPressed) {
    RecordingDialog modal(kInnerTemplate);
    Then([&] {
        ASSERT_TRUE(WidgetOf(modal)->isVisible());
        EXPECT_EQ(WidgetOf(modal)->windowTitle(), "Inner");
        EXPECT_EQ(test::FocusedId(), 41);
        QTest::keyClick(WidgetOf(modal)->focusWidget(), Qt::Key_A);
        EXPECT_EQ(modal.DlgItemText(41), "a");
        QTest::mouseClick(WidgetOf(modal, IDOK), Qt::LeftButton);
    });
    EXPECT_EQ(modal.DoModal(), IDOK);
    EXPECT_EQ(modal.m_hWnd, nullptr);
}

TEST_F(Windows, EscapeEnterAndTheWindowButtonEndIt) {
    RecordingDialog modal(kInnerTemplate);
    Then([&] { QTest::keyClick(WidgetOf(modal)->focusWidget(), Qt::Key_Escape); });
    EXPECT_EQ(modal.DoModal(), IDCANCEL);
    Then([&] { QTest::keyClick(WidgetOf(modal)->focusWidget(), Qt::Key_Return); });
    EXPECT_EQ(modal.DoModal(), IDOK);
    Then([&] { WidgetOf(modal)->close(); });
    EXPECT_EQ(modal.DoModal(), IDCANCEL);
}

TEST_F(Windows, AModalDialogBlocksItsOwnerAndGivesTheFocusBack) {
    Show({At(11, kEdit, 7), At(20, kPushButton, 24, "Go")});
    RecordingDialog modal(kInnerTemplate, &dialog);
    Told();
    Then([&] {
        EXPECT_FALSE(dialog.IsWindowEnabled());
        EXPECT_TRUE(Window()->isEnabled()) << "an owner is not greyed";
        EXPECT_EQ(WidgetOf(modal)->windowModality(), Qt::WindowModal);
        QTest::mouseClick(test::QtDialogTest::WidgetOf(20), Qt::LeftButton);
        EXPECT_THAT(dialog.told, ElementsAre("11 lost"));
        modal.EndDialog(7);
    });
    EXPECT_EQ(modal.DoModal(), 7);
    EXPECT_TRUE(dialog.IsWindowEnabled());
    EXPECT_EQ(test::FocusedId(), 11);
    EXPECT_THAT(Told(), ElementsAre("11 lost", "11 gained"));
}

TEST_F(Windows, ModalDialogsStack) {
    RecordingDialog outer(kInnerTemplate);
    RecordingDialog inner(kInnerTemplate);
    int innerResult = 0;
    outer.when["1 clicked"] = [&] {
        Then([&] {
            EXPECT_FALSE(outer.IsWindowEnabled());
            // The outer one ends first, and goes when the inner one has gone.
            outer.EndDialog(8);
            QTest::mouseClick(WidgetOf(inner, IDCANCEL), Qt::LeftButton);
        });
        innerResult = inner.DoModal();
    };
    Then([&] { QTest::mouseClick(WidgetOf(outer, IDOK), Qt::LeftButton); });
    EXPECT_EQ(outer.DoModal(), IDOK);
    EXPECT_EQ(innerResult, IDCANCEL);
}

TEST_F(Windows, AMessageBoxShowsItsTextAndAnswers) {
    Show({At(11, kEdit, 7)});
    AnswerNextMessage(QMessageBox::Ok);
    EXPECT_EQ(AfxMessageBox("No Matches found!"), IDOK);
    AnswerNextMessage(QMessageBox::Yes);
    EXPECT_EQ(AfxMessageBox("Replace?", MB_YESNO), IDYES);
    AnswerNextMessage(QMessageBox::No);
    EXPECT_EQ(AfxMessageBox("Replace?", MB_YESNO | MB_ICONQUESTION), IDNO);
    AnswerNextMessage(QMessageBox::Cancel);
    EXPECT_EQ(AfxMessageBox("Save?", MB_YESNOCANCEL), IDCANCEL);
    EXPECT_THAT(messages_, ElementsAre("No Matches found!", "Replace?", "Replace?", "Save?"));
}

TEST_F(Windows, TheTextOfAMessageBoxCanBeSelected) {
    Then([] {
        QWidget* box = QApplication::activeModalWidget();
        auto* label = box->findChild<QLabel*>("qt_msgbox_label");
        EXPECT_TRUE(label->textInteractionFlags() & Qt::TextSelectableByMouse);
        box->close();
    });
    AfxMessageBox("Copy me");
}

TEST_F(Windows, ATextLongerThanTheScreenScrollsInItsMessageBox) {
    std::string words = "Not found";
    for (int i = 0; i < 3000; ++i)
        words += (i % 50 ? "," : "\n") + std::to_string(i);
    Then([&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        Process();
        EXPECT_TRUE(box->screen()->availableGeometry().contains(box->frameGeometry()));
        const auto* text = box->findChild<QPlainTextEdit*>();
        EXPECT_TRUE(text && text->isReadOnly());
        EXPECT_TRUE(text && text->verticalScrollBar()->isVisible());
        EXPECT_EQ(text ? text->toPlainText().toStdString() : "", words);
        QAbstractButton* ok = box->button(QMessageBox::Ok);
        EXPECT_EQ(ok->visibleRegion().boundingRect(), ok->rect());
        EXPECT_TRUE(QTest::qWaitFor([&] { return ok->hasFocus(); })) << "Enter ends it at once";
        QTest::keyClick(ok, Qt::Key_Return);
    });
    EXPECT_EQ(AfxMessageBox(words.c_str()), IDOK);
}

TEST_F(Windows, AMessageBoxInAFocusLostHandlerSwallowsTheClickThatCausedIt) {
    Show({At(11, kEdit, 7), At(12, kEdit, 24), At(20, kPushButton, 41, "Go")});
    int shown = 0;
    dialog.when["11 lost"] = [&] {
        if (shown++ > 0) return;
        AnswerNextMessage(QMessageBox::Ok);
        AfxMessageBox("Wrong value");
        dialog.GetDlgItem(11)->SetFocus();
    };
    Told();
    Click(20);
    Process();
    EXPECT_THAT(messages_, ElementsAre("Wrong value"));
    EXPECT_FALSE(dialog.WasTold("20 clicked"));
    EXPECT_EQ(test::FocusedId(), 11);
    EXPECT_EQ(Window()->focusWidget(), test::QtDialogTest::WidgetOf(11));
    Type("5");
    EXPECT_EQ(Text(11), "5");
}

TEST_F(Windows, AModelessToolIsClosedByItsWindowButton) {
    Show({At(11, kEdit, 7)});
    dialog.when["2 clicked"] = [&] { dialog.ShowWindow(SW_HIDE); };
    QWidget* window = Window();
    EXPECT_FALSE(window->close());
    EXPECT_THAT(dialog.told, testing::Contains("2 clicked"));
    EXPECT_FALSE(window->isVisible());
    dialog.ShowWindow(SW_SHOW);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(Windows, AToolThatIsShownTakesTheKeyboard) {
    Show({At(11, kEdit, 7)});
    RecordingDialog tool(kInnerTemplate);
    ASSERT_TRUE(tool.Create(kInnerTemplate));
    ASSERT_TRUE(QTest::qWaitForWindowActive(WidgetOf(tool)));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_T);
    EXPECT_EQ(tool.DlgItemText(41), "t");
    tool.ShowWindow(SW_HIDE);
    dialog.GetDlgItem(11)->SetFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Window()));
    tool.ShowWindow(SW_SHOW);
    EXPECT_TRUE(QTest::qWaitForWindowActive(WidgetOf(tool)));
    tool.DestroyWindow();
}

/// A tool that goes when it is closed, as hosts write them.
class SelfDeleting : public RecordingDialog {
public:
    using RecordingDialog::RecordingDialog;
    bool* gone = nullptr;
    void OnOK() override { DestroyWindow(); }

protected:
    void PostNcDestroy() override {
        *gone = true;
        delete this;
    }
};

TEST_F(Windows, ADialogMayBeDestroyedWhileItsHandlerRuns) {
    bool gone = false;
    auto* tool = new SelfDeleting(kInnerTemplate);
    tool->gone = &gone;
    ASSERT_TRUE(tool->Create(kInnerTemplate));
    Process();
    const QPointer<QWidget> widget = WidgetOf(*tool);
    QTest::mouseClick(WidgetOf(*tool, IDOK), Qt::LeftButton);
    EXPECT_TRUE(gone);
    Process();
    EXPECT_TRUE(widget.isNull());
}

TEST_F(Windows, ADialogMayBeDestroyedFromAModalOneOverIt) {
    bool gone = false;
    auto* tool = new SelfDeleting(kInnerTemplate);
    tool->gone = &gone;
    ASSERT_TRUE(tool->Create(kInnerTemplate));
    RecordingDialog modal(kInnerTemplate);
    tool->when["2 clicked"] = [&] {
        Then([&] {
            tool->DestroyWindow();
            Process();
            modal.EndDialog(IDOK);
        });
        modal.DoModal();
    };
    QTest::mouseClick(WidgetOf(*tool, IDCANCEL), Qt::LeftButton);
    EXPECT_TRUE(gone);
}

TEST_F(Windows, ControlsThatAreMadeLaterShow) {
    Show({At(11, kEdit, 7)});
    auto late = kv::MakeNode(kv::NodeClass::kButton, 99, WS_CHILD | WS_VISIBLE | WS_TABSTOP);
    late->SetText("Late");
    late->SetRect({60, 60, 120, 80});
    dialog.m_hWnd->AddChild(late);
    auto* button = dynamic_cast<QPushButton*>(test::QtDialogTest::WidgetOf(99));
    ASSERT_NE(button, nullptr);
    EXPECT_TRUE(button->isVisible());
    kv::WindowSystem::Get().Destroy(*late);
    EXPECT_FALSE(button->isVisible());
}

TEST_F(Windows, MovingTheWindowIsKnownToTheNode) {
    Show({At(11, kEdit, 7)});
    const CRect before = dialog.m_hWnd->Rect();
    Window()->move(Window()->pos() + QPoint(100, 50));
    Process();
    EXPECT_GT(dialog.m_hWnd->Rect().left, before.left);
    EXPECT_EQ(dialog.m_hWnd->Rect().Width(), before.Width());
    const QPoint at = Window()->pos();
    dialog.SetWindowPos(nullptr, 10, 10, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_NE(Window()->pos(), at);
    EXPECT_EQ(dialog.m_hWnd->Rect().left, 10);
}

// Windows at the edges of the screen.

class AtTheEdge : public test::QtDialogTest {
protected:
    bool IsOnScreen() {
        const QRect screen = Window()->screen()->availableGeometry();
        return screen.contains(Window()->frameGeometry());
    }
    void MoveTo(CPoint at) {
        dialog.SetWindowPos(nullptr, at.x, at.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        Process();
    }
};

TEST_F(AtTheEdge, AWindowThatTheProgramMovesBeyondItStaysOnTheScreen) {
    Show({At(11, kEdit, 7)});
    for (const CPoint far : {CPoint{-5000, 100}, CPoint{100, -5000}, CPoint{5000, 100},
                             CPoint{100, 5000}, CPoint{0, 0}}) {
        SCOPED_TRACE(testing::Message() << far.x << ", " << far.y);
        MoveTo(far);
        EXPECT_TRUE(IsOnScreen());
        EXPECT_EQ(dialog.m_hWnd->Rect().TopLeft(), far) << "to the layer it is as it was told";
    }
}

TEST_F(AtTheEdge, AWindowThatGrowsThereStaysOnTheScreen) {
    Show({At(11, kEdit, 7)});
    MoveTo({5000, 5000});
    const QSize before = Window()->size();
    CRect place = dialog.m_hWnd->Rect();
    place.right += 100;
    place.bottom += 100;
    dialog.MoveWindow(place);
    Process();
    const int room = kv::qt::RoomOn(*Window()->screen()).width();
    EXPECT_TRUE(Window()->width() > before.width() || Window()->width() == room);
    EXPECT_TRUE(IsOnScreen());
}

TEST_F(AtTheEdge, AWindowThatAPersonDraggedBeyondItIsLeftThereUntilItIsShownAgain) {
    Show({At(11, kEdit, 7)});
    const QPoint far = Window()->screen()->availableGeometry().bottomRight() - QPoint(20, 10);
    Window()->move(far);
    Process();
    EXPECT_EQ(Window()->pos(), far);
    EXPECT_EQ(dialog.m_hWnd->Rect().TopLeft(),
              kv::qt::CurrentScale().ToLogical(Window()->geometry().topLeft()));
    dialog.ShowWindow(SW_HIDE);
    dialog.ShowWindow(SW_SHOW);
    Process();
    EXPECT_TRUE(IsOnScreen());
}

TEST_F(Windows, AnyPlaceHasAScreenAroundIt) {
    const CRect screen = kv::ScreenAround(CPoint{10, 10});
    EXPECT_EQ(screen.Size(), desktop.ScreenSize());
    EXPECT_TRUE(screen.PtInRect({10, 10}));
    for (const CPoint far : {CPoint{-100'000, 10}, CPoint{10, 100'000}})
        EXPECT_EQ(kv::ScreenAround(far), screen);
}

TEST_F(Windows, FocusIsTheLayers) {
    Show({At(11, kEdit, 7), At(12, kEdit, 24)});
    dialog.GetDlgItem(12)->SetFocus();
    EXPECT_EQ(Window()->focusWidget(), test::QtDialogTest::WidgetOf(12));
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(test::FocusedId(), 11);
    EXPECT_EQ(Window()->focusWidget(), test::QtDialogTest::WidgetOf(11));
    Told();
    dialog.GetDlgItem(11)->EnableWindow(FALSE);
    Process();
    Type("x");
    EXPECT_EQ(Text(12), "x");
    EXPECT_EQ(test::FocusedId(), 12);
}

TEST_F(Windows, WhatIsPostedComesWithoutFurtherInput) {
    Show({At(11, kEdit, 7), At(20, kPushButton, 24, "Go")});
    Told();
    dialog.PostMessage(WM_COMMAND, MAKEWPARAM(20, BN_CLICKED),
                       reinterpret_cast<LPARAM>(&NodeOf(20)));
    EXPECT_THAT(dialog.told, IsEmpty());
    Process();
    EXPECT_THAT(Told(), ElementsAre("20 clicked"));
}

TEST_F(Windows, APumpInsideLongWorkTakesClicks) {
    Show({At(11, kEdit, 7), At(IDCANCEL, kPushButton, 24, "Cancel")});
    bool cancelled = false;
    dialog.when["2 clicked"] = [&] {
        cancelled = true;
        dialog.told.clear();
    };
    Then([&] { Click(IDCANCEL); });
    for (int step = 0; step < 10 && !cancelled; ++step)
        kv::WindowSystem::Get().Pump();
    EXPECT_TRUE(cancelled);
}

TEST_F(Windows, TheStackingOrderIsTheLayers) {
    Show({{20, kPushButton, "One", {7, 7, 60, 30}}, {21, kPushButton, "Two", {40, 20, 60, 30}}});
    QWidget* one = test::QtDialogTest::WidgetOf(20);
    QWidget* two = test::QtDialogTest::WidgetOf(21);
    const QPoint shared = one->geometry().intersected(two->geometry()).center();
    const UINT place = SWP_NOMOVE | SWP_NOSIZE;
    dialog.GetDlgItem(21)->SetWindowPos(nullptr, 0, 0, 0, 0, place);
    EXPECT_EQ(Window()->childAt(shared), two);
    dialog.GetDlgItem(20)->SetWindowPos(nullptr, 0, 0, 0, 0, place);
    EXPECT_EQ(Window()->childAt(shared), one);
    dialog.GetDlgItem(20)->SetWindowPos(dialog.GetDlgItem(21), 0, 0, 0, 0, place);
    EXPECT_EQ(Window()->childAt(shared), two);
}

TEST_F(Windows, AGroupBoxLiesBehindItsMembers) {
    Show({{20, kPushButton, "Go", {20, 20, 60, 14}}, {30, kGroupBox, "Around", {7, 7, 120, 60}}});
    const QWidget* member = test::QtDialogTest::WidgetOf(20);
    EXPECT_EQ(Window()->childAt(member->geometry().center()), member);
}

TEST_F(Windows, TheButtonThatEnterPressesIsMarked) {
    Show({At(11, kEdit, 7), At(IDOK, kDefaultButton, 24, "OK"), At(20, kPushButton, 41, "Other")});
    const auto picture = [&](int id) { return test::QtDialogTest::WidgetOf(id)->grab().toImage(); };
    const QImage marked = picture(IDOK);
    const QImage plain = picture(20);
    dialog.GetDlgItem(20)->SetFocus();
    EXPECT_NE(picture(IDOK), marked);
    EXPECT_NE(picture(20), plain);
    dialog.GetDlgItem(11)->SetFocus();
    EXPECT_EQ(picture(IDOK), marked);
    EXPECT_EQ(picture(20), plain);
}

TEST_F(Windows, ALabelsMnemonicReachesTheControlBehindIt) {
    Show({At(11, kEdit, 7), At(10, kLabel, 24, "&Company:"), At(12, kEdit, 41, "old")});
    Key(Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(test::FocusedId(), 12);
    EXPECT_EQ(Window()->focusWidget(), test::QtDialogTest::WidgetOf(12));
    Type("n");
    EXPECT_EQ(Text(12), "n");
}

TEST_F(Windows, ALabelShowsWhatItIsToldAnew) {
    Show({At(11, kEdit, 7), At(10, kLabel, 24, "short")});
    QWidget* label = test::QtDialogTest::WidgetOf(10);
    const int before = label->width();
    const QImage drawn = label->grab().toImage();
    dialog.SetDlgItemText(10, "a much longer text than there was room for here & there");
    EXPECT_EQ(test::NameOf(label), "a much longer text than there was room for here  there");
    EXPECT_NE(label->grab(QRect(QPoint(0, 0), drawn.size())).toImage(), drawn);
    EXPECT_GT(label->width(), before) << "it takes the free place behind it";
    dialog.GetDlgItem(10)->ShowWindow(SW_HIDE);
    EXPECT_FALSE(label->isVisible());
}

// Dialogs that are larger than the screen.

class LargeDialogs : public test::QtDialogTest {
protected:
    void ShowLarge(int width, int height) {
        large_.emplace(
            std::vector<kv::ControlRow>{
                {11, kEdit, "", {7, 7, 50, 12}},
                {12, kEdit, "", {width - 57, height - 40, 50, 12}},
                {IDOK, kDefaultButton, "OK", {width - 57, height - 21, 50, 14}}},
            kTestTemplate, "Large", width, height);
        ASSERT_TRUE(dialog.Create(kTestTemplate));
        Process();
        ASSERT_TRUE(QTest::qWaitForWindowActive(Window()));
    }
    QScrollBar* Bar(Qt::Orientation orientation) {
        auto* area = Window()->findChild<QScrollArea*>();
        if (!area) return nullptr;
        QScrollBar* bar =
            orientation == Qt::Vertical ? area->verticalScrollBar() : area->horizontalScrollBar();
        return bar->isVisible() ? bar : nullptr;
    }
    bool IsInSight(int id) {
        const QWidget* widget = WidgetOf(id);
        return widget->visibleRegion().boundingRect() == widget->rect();
    }
    QSize Screen() { return Window()->screen()->availableSize(); }

    std::optional<TestTemplate> large_;
};

TEST_F(LargeDialogs, ThatFitsDoesNotScroll) {
    ShowLarge(200, 100);
    EXPECT_EQ(Window()->findChild<QScrollArea*>(), nullptr);
}

TEST_F(LargeDialogs, IsAsLargeAsTheScreenAndScrolls) {
    ShowLarge(2000, 2000);
    EXPECT_LE(Window()->width(), Screen().width());
    EXPECT_LE(Window()->height(), Screen().height());
    EXPECT_GE(Window()->width(), Screen().width() - 50);
    EXPECT_NE(Bar(Qt::Vertical), nullptr);
    EXPECT_NE(Bar(Qt::Horizontal), nullptr);
    EXPECT_EQ(dialog.m_hWnd->Rect().Width(), 3000) << "to the layer it is as large as ever";
}

TEST_F(LargeDialogs, StandsOnTheScreenWhereverItIsMoved) {
    ShowLarge(2000, 2000);
    for (const CPoint at : {CPoint{100, 100}, CPoint{-1000, -1000}, CPoint{1000, 1000}}) {
        dialog.SetWindowPos(nullptr, at.x, at.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        Process();
        const QRect screen = Window()->screen()->availableGeometry();
        EXPECT_TRUE(screen.contains(Window()->frameGeometry())) << at.x;
    }
}

TEST_F(LargeDialogs, OneThatIsOnlyTooHighGrowsByTheScrollBar) {
    ShowLarge(200, 2000);
    EXPECT_NE(Bar(Qt::Vertical), nullptr);
    EXPECT_EQ(Bar(Qt::Horizontal), nullptr);
}

TEST_F(LargeDialogs, ScrollsToWhatGetsTheFocus) {
    ShowLarge(1000, 1000);
    EXPECT_TRUE(IsInSight(11));
    EXPECT_FALSE(IsInSight(12));
    Key(Qt::Key_Tab);
    EXPECT_TRUE(IsInSight(12));
    EXPECT_FALSE(IsInSight(11));
    Type("abc");
    EXPECT_EQ(Text(12), "abc");
    Key(Qt::Key_Tab);
    EXPECT_TRUE(IsInSight(IDOK));
    Key(Qt::Key_Tab);
    EXPECT_TRUE(IsInSight(11));
}

TEST_F(LargeDialogs, AClickKnowsItsPlaceInTheWhole) {
    ShowLarge(200, 2000);
    Bar(Qt::Vertical)->setValue(300);
    const QPoint at(5, 5);
    CPoint pressed;
    dialog.onPreTranslate = [&](MSG* message) {
        if (message->message == WM_LBUTTONDOWN) {
            pressed = {static_cast<short>(LOWORD(message->lParam)),
                       static_cast<short>(HIWORD(message->lParam))};
        }
        return FALSE;
    };
    QWidget* under = Window()->childAt(at);
    QTest::mouseClick(under, Qt::LeftButton, {}, under->mapFrom(Window(), at));
    EXPECT_EQ(pressed.y, kv::qt::CurrentScale().ToLogical(QPoint(5, 305)).y);
}

TEST_F(LargeDialogs, OneThatALargerFontMakesSoKeepsItsTextsAndItsFocus) {
    Show({At(11, kEdit, 7, "text"), At(12, kEdit, 180, "other")});
    Key(Qt::Key_Tab);
    const QFont former = QApplication::font();
    QFont larger = former;
    larger.setPointSizeF(former.pointSizeF() * 4);
    QApplication::setFont(larger);
    Process();
    EXPECT_LE(Window()->height(), Screen().height());
    EXPECT_NE(Bar(Qt::Vertical), nullptr);
    EXPECT_EQ(Window()->focusWidget(), WidgetOf(12));
    Type("x");
    EXPECT_EQ(Text(12), "x");
    EXPECT_EQ(WidgetOf<QLineEdit>(11)->text(), "text");
    QApplication::setFont(former);
    Process();
    EXPECT_EQ(Bar(Qt::Vertical), nullptr);
}

TEST_F(LargeDialogs, ItsPictureIsThatOfTheWhole) {
    ShowLarge(2000, 200);
    const test::TempFolder folder;
    const std::string path = folder.Native("large.png");
    ASSERT_TRUE(kv::qt::SavePicture(*dialog.m_hWnd, path));
    const QImage picture(QString::fromStdString(path));
    EXPECT_EQ(picture.width(), kv::qt::CurrentScale().ToScreen(CSize{3000, 0}).width() *
                                   Window()->devicePixelRatio());
}

/// With a smaller screen to the right, as `two_screens.json` has it.
class OnTwoScreens : public LargeDialogs {
protected:
    void SetUp() override {
        if (QGuiApplication::screens().size() < 2) GTEST_SKIP() << "there is one screen";
    }
    /// Moves the dialog to the left top of that screen.
    void MoveTo(const QScreen& screen) {
        const CPoint at = kv::qt::CurrentScale().ToLogical(screen.geometry().topLeft());
        dialog.SetWindowPos(nullptr, at.x + 50, at.y + 50, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        Process();
    }
};

TEST_F(OnTwoScreens, ADialogScrollsWhereItsScreenIsTooSmall) {
    const QScreen& large = *QGuiApplication::screens().at(0);
    const QScreen& small = *QGuiApplication::screens().at(1);
    ShowLarge(200, 250);
    MoveTo(large);
    EXPECT_EQ(Bar(Qt::Vertical), nullptr);
    MoveTo(small);
    EXPECT_NE(Bar(Qt::Vertical), nullptr);
    EXPECT_TRUE(small.availableGeometry().contains(Window()->frameGeometry()));
    MoveTo(large);
    EXPECT_EQ(Bar(Qt::Vertical), nullptr);
    EXPECT_TRUE(large.availableGeometry().contains(Window()->frameGeometry()));
}

// Texts of labels and frames.

class LabelTexts : public test::QtDialogTest {
protected:
    /// The contrast of a control's text with its ground.
    int Contrast(int id) {
        const QImage picture = WidgetOf(id)->grab().toImage();
        int darkest = 255;
        int lightest = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                darkest = std::min(darkest, qGray(picture.pixel(x, y)));
                lightest = std::max(lightest, qGray(picture.pixel(x, y)));
            }
        }
        return lightest - darkest;
    }
    /// The first column of the picture in which the text of a frame is drawn.
    int LeftOfTitle(int id) {
        const QImage picture = WidgetOf(id)->grab().toImage();
        for (int x = 0; x < picture.width(); ++x) {
            for (int y = 2; y < 8; ++y) {
                if (qGray(picture.pixel(x, y)) < 100) return x;
            }
        }
        return -1;
    }
};

TEST_F(LabelTexts, AreGreyAsLongAsTheirFieldIsDisabled) {
    Show({{10, kLabel, "Minimum", {7, 9, 40, 8}},
          {11, kEdit, "", {50, 7, 40, 12}, kv::kDisabled},
          {12, kSpin, "", {90, 7, 10, 12}},
          {13, kLabel, "percent", {104, 9, 40, 8}},
          {14, kLabel, "Area", {7, 29, 40, 8}},
          {15, kEdit, "", {50, 27, 40, 12}}});
    const int black = Contrast(14);
    EXPECT_LT(Contrast(10), black - 60);
    EXPECT_LT(Contrast(13), black - 60) << "the unit, too";
    dialog.GetDlgItem(11)->EnableWindow(TRUE);
    Process();
    EXPECT_GT(Contrast(10), black - 20);
    EXPECT_GT(Contrast(13), black - 20);
}

TEST_F(LabelTexts, TitlesOfFramesBeginInOneLine) {
    Show({{30, kGroupBox, "Home", {7, 7, 120, 30}}, {31, kGroupBox, "  Home ", {7, 47, 120, 30}}});
    EXPECT_EQ(LeftOfTitle(30), LeftOfTitle(31));
    EXPECT_EQ(Text(31), "  Home ");
}

/// Labels that find no room to grow.
class NarrowLabels : public test::QtDialogTest {
protected:
    /// A label of that share of its text's width, with an edit close behind it.
    void ShowLabel(double share) {
        const QFontMetrics metrics(QApplication::font());
        const int text = metrics.horizontalAdvance(kText);
        Show({{10, kLabel, kText, {7, 7, 40, 8}}, {11, kEdit, "", {60, 5, 40, 12}}});
        const kv::qt::Scale scale = kv::qt::CurrentScale();
        CRect place = NodeOf(10).Rect();
        place.right = place.left + static_cast<int>(text * share / scale.x);
        dialog.GetDlgItem(11)->MoveWindow(
            CRect{place.right, place.top, place.right + 60, place.bottom});
        dialog.GetDlgItem(10)->MoveWindow(place);
        Process();
    }
    /// Whether the upright strokes of the last letter are there.
    bool EndIsShown() {
        const QImage picture = WidgetOf(10)->grab().toImage();
        const QRgb ground = picture.pixel(picture.width() - 1, 0);
        int inked = 0;
        const int top = picture.height() / 4;
        for (int y = top; y < picture.height() / 2; ++y) {
            for (int x = picture.width() - 5; x < picture.width(); ++x)
                inked += std::abs(qGray(picture.pixel(x, y)) - qGray(ground)) > 60;
        }
        return inked > 0;
    }
    static constexpr const char* kText = "Rectifying lonH";
};

TEST_F(NarrowLabels, AreDrawnALittleNarrowerBeforeTheyAreCut) {
    ShowLabel(0.9);
    EXPECT_TRUE(EndIsShown());
}

TEST_F(NarrowLabels, AreCutWithDotsWhereThatIsNotEnough) {
    ShowLabel(0.6);
    EXPECT_FALSE(EndIsShown());
}

}  // namespace
