#include "window/controls/edit.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "support/recording_window.h"
#include "window/controls/edit_node.h"
#include "window/desktop.h"
#include "window/dialog_keys.h"
#include "window/window_system.h"

using kv::EditNode;
using kv::Modifiers;
using kv::ModifierScope;
using kv::test::Notice;
using kv::test::Notices;
using kv::test::RecordingWindow;

namespace {

constexpr int kId = 1191;

struct Edit : testing::Test {
    void Make(DWORD style = ES_AUTOHSCROLL) {
        ASSERT_TRUE(edit.Create(kv::test::kControlStyle | style, {0, 0, 100, 26}, &window, kId));
        window.Take();
    }
    void Type(std::string_view text) {
        for (const char ch : text) {
            edit.SendMessage(WM_CHAR, static_cast<WPARAM>(static_cast<unsigned char>(ch)), 1);
        }
    }
    void Key(int key, Modifiers keys = {}) {
        const ModifierScope scope(keys);
        edit.SendMessage(WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    }
    void SetText(const char* text) {
        edit.SetWindowText(text);
        window.Take();
    }
    /// Start and end of the selection.
    std::pair<int, int> Selection() const {
        std::pair<int, int> selection;
        edit.GetSel(selection.first, selection.second);
        return selection;
    }
    int Caret() const { return static_cast<EditNode*>(edit.m_hWnd)->Caret(); }
    static void SetClipboard(const std::string& text) {
        kv::WindowSystem::Get().GetDesktop().SetClipboardText(text);
    }
    static std::string Clipboard() { return kv::WindowSystem::Get().GetDesktop().ClipboardText(); }

    RecordingWindow window;
    CEdit edit;
};

constexpr Modifiers kShift{true, false, false};
constexpr Modifiers kCtrl{false, true, false};
constexpr Modifiers kShiftCtrl{true, true, false};
using Place = std::pair<int, int>;
const Notices kTyped{{kId, EN_UPDATE}, {kId, EN_CHANGE}};

}  // namespace

TEST_F(Edit, TypingInsertsAtTheCaretAndReplacesTheSelection) {
    Make();
    Type("ad");
    edit.SetSel(1, 1);
    Type("bc");
    EXPECT_EQ(edit.WindowText(), "abcd");
    EXPECT_EQ(Selection(), Place(3, 3));
    edit.SetSel(1, 3);
    Type("X");
    EXPECT_EQ(edit.WindowText(), "aXd");
    EXPECT_EQ(Selection(), Place(2, 2));
}

TEST_F(Edit, AKeySendsUpdateAndThenChange) {
    Make();
    Type("a");
    EXPECT_EQ(window.Take(), kTyped);
}

TEST_F(Edit, TheTextIsTheNewOneInBothNotifications) {
    Make();
    std::vector<std::string> texts;
    window.onNotice = [&](const Notice&) { texts.push_back(edit.WindowText()); };
    Type("a");
    EXPECT_EQ(texts, (std::vector<std::string>{"a", "a"}));
}

TEST_F(Edit, SetWindowTextOfASingleLineSendsUpdateAndChangeAsTypingDoes) {
    Make();
    edit.SetWindowText("new");
    EXPECT_EQ(window.Take(), kTyped);
    EXPECT_EQ(edit.WindowText(), "new");
    EXPECT_EQ(Selection(), Place(0, 0));
}

TEST_F(Edit, SetWindowTextOfSeveralLinesNotifiesNobody) {
    Make(ES_MULTILINE);
    edit.SetWindowText("new");
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(Edit, BackspaceAndDeleteTakeTheCharacterAheadAndBehind) {
    Make();
    SetText("abcd");
    edit.SetSel(2, 2);
    Type("\b");
    EXPECT_EQ(edit.WindowText(), "acd");
    Key(VK_DELETE);
    EXPECT_EQ(edit.WindowText(), "ad");
    EXPECT_EQ(Selection(), Place(1, 1));
    EXPECT_EQ(window.Take().size(), 4u);
}

TEST_F(Edit, BackspaceAndDeleteTakeTheSelection) {
    Make();
    SetText("abcd");
    edit.SetSel(1, 3);
    Type("\b");
    EXPECT_EQ(edit.WindowText(), "ad");
    edit.SetSel(0, -1);
    Key(VK_DELETE);
    EXPECT_EQ(edit.WindowText(), "");
}

TEST_F(Edit, NothingToTakeNotifiesNobody) {
    Make();
    SetText("a");
    edit.SetSel(0, 0);
    Type("\b");
    edit.SetSel(1, 1);
    Key(VK_DELETE);
    EXPECT_TRUE(window.Take().empty());
    EXPECT_EQ(edit.WindowText(), "a");
}

TEST_F(Edit, ReadOnlyTakesNoTypingPastingOrDeleting) {
    Make(ES_READONLY);
    SetText("abc");
    SetClipboard("X");
    edit.SetSel(0, 1);
    Type("x\b\x16\x18\x1A");
    Key(VK_DELETE);
    edit.Paste();
    edit.Cut();
    edit.Clear();
    EXPECT_EQ(edit.WindowText(), "abc");
    EXPECT_TRUE(window.Take().empty());
    edit.Copy();
    EXPECT_EQ(Clipboard(), "a");
    edit.SetReadOnly(FALSE);
    Type("x");
    EXPECT_EQ(edit.WindowText(), "xbc");
}

TEST_F(Edit, ReadOnlyStillTakesTheProgramsText) {
    Make(ES_READONLY);
    edit.SetWindowText("abc");
    edit.SetSel(0, 1);
    edit.ReplaceSel("X");
    EXPECT_EQ(edit.WindowText(), "Xbc");
}

TEST_F(Edit, UpperCaseTouchesAsciiLettersOnly) {
    Make(ES_UPPERCASE);
    Type("a1\xC3\xA4z");
    EXPECT_EQ(edit.WindowText(), "A1\xC3\xA4Z");
    SetClipboard("shell");
    edit.SetSel(0, -1);
    edit.Paste();
    EXPECT_EQ(edit.WindowText(), "SHELL");
}

TEST_F(Edit, LowerCaseLowersWhatIsTyped) {
    Make(ES_LOWERCASE);
    Type("AbC");
    EXPECT_EQ(edit.WindowText(), "abc");
}

TEST_F(Edit, DigitsOnlyDropsEveryOtherKey) {
    Make(ES_NUMBER);
    Type("1a-2.3 ");
    EXPECT_EQ(edit.WindowText(), "123");
    EXPECT_EQ(window.Take().size(), 6u);
}

TEST_F(Edit, DigitsOnlyIsForTypingAndLetsAnyPasteIn) {
    Make(ES_NUMBER);
    SetClipboard("-12.5 ft\r\n");
    edit.Paste();
    EXPECT_EQ(edit.WindowText(), "-12.5 ft");
    EXPECT_EQ(window.Take(), kTyped);
}

TEST_F(Edit, APasswordCannotBeCopied) {
    Make(ES_PASSWORD);
    SetText("secret");
    SetClipboard("before");
    edit.SetSel(0, -1);
    edit.Copy();
    edit.Cut();
    EXPECT_EQ(Clipboard(), "before");
    EXPECT_EQ(edit.WindowText(), "secret");
}

TEST_F(Edit, TheLimitStopsTypingAndSaysSo) {
    Make();
    edit.LimitText(2);
    Type("abc");
    EXPECT_EQ(edit.WindowText(), "ab");
    EXPECT_EQ(window.TakeCodes(),
              (std::vector<int>{EN_UPDATE, EN_CHANGE, EN_UPDATE, EN_CHANGE, EN_MAXTEXT}));
    edit.SetSel(0, 1);
    Type("X");
    EXPECT_EQ(edit.WindowText(), "Xb");
}

TEST_F(Edit, TheLimitCutsAPasteAndNoCharacterInTwo) {
    Make();
    edit.LimitText(4);
    SetClipboard("abc\xC3\xA4z");
    edit.Paste();
    EXPECT_EQ(edit.WindowText(), "abc");
    EXPECT_EQ(window.TakeCodes(), (std::vector<int>{EN_MAXTEXT, EN_UPDATE, EN_CHANGE}));
    Type("\xC3\xA4z");
    EXPECT_EQ(edit.WindowText(), "abcz");
}

TEST_F(Edit, TheLimitDoesNotBindTheProgram) {
    Make();
    edit.LimitText(2);
    SetText("abcdef");
    EXPECT_EQ(edit.WindowText(), "abcdef");
    edit.SetSel(6, 6);
    Type("g");
    EXPECT_EQ(edit.WindowText(), "abcdef");
}

TEST_F(Edit, NoLimitIsTheGreatestOne) {
    Make();
    EXPECT_EQ(edit.GetLimitText(), 32767u);
    edit.LimitText(5);
    EXPECT_EQ(edit.GetLimitText(), 5u);
    edit.LimitText(0);
    EXPECT_EQ(edit.GetLimitText(), 0x7FFFFFFEu);
    edit.SetLimitText(0x7FFFFFFF);
    EXPECT_EQ(edit.GetLimitText(), 0x7FFFFFFEu);
}

TEST_F(Edit, NoLimitOfSeveralLinesIsGreaterStill) {
    Make(ES_MULTILINE);
    EXPECT_EQ(edit.GetLimitText(), 32767u);
    edit.LimitText(0);
    EXPECT_EQ(edit.GetLimitText(), 0xFFFFFFFFu);
    edit.SetLimitText(0x7FFFFFFF);
    EXPECT_EQ(edit.GetLimitText(), 0x7FFFFFFFu);
}

TEST_F(Edit, CountsItsLines) {
    Make(ES_MULTILINE);
    EXPECT_EQ(edit.GetLineCount(), 1);
    SetText("one");
    EXPECT_EQ(edit.GetLineCount(), 1);
    SetText("one\r\n\r\nthree\r\n");
    EXPECT_EQ(edit.GetLineCount(), 4);
}

TEST_F(Edit, ASingleLineIsOneLineWhateverItHolds) {
    Make();
    EXPECT_EQ(edit.GetLineCount(), 1);
    EXPECT_EQ(edit.LineLength(0), 0);
    SetText("one\r\ntwo");
    EXPECT_EQ(edit.GetLineCount(), 1);
    EXPECT_EQ(edit.LineLength(0), 8);
    EXPECT_EQ(edit.LineLength(99), 8);
    edit.SetSel(1, 3);
    EXPECT_EQ(edit.LineLength(), 8);
}

TEST_F(Edit, TellsTheLengthOfTheLineThatAPlaceIsIn) {
    Make(ES_MULTILINE);
    SetText("one\r\n\r\nthree");
    for (const int place : {0, 2, 3, 4})
        EXPECT_EQ(edit.LineLength(place), 3) << place;
    EXPECT_EQ(edit.LineLength(5), 0);
    for (const int place : {7, 9, 12})
        EXPECT_EQ(edit.LineLength(place), 5) << place;
    EXPECT_EQ(edit.LineLength(13), 0);
    EXPECT_EQ(edit.LineLength(-2), 0);
}

TEST_F(Edit, TellsHowMuchOfTheSelectedLinesIsNotSelected) {
    Make(ES_MULTILINE);
    SetText("one\r\nmiddle\r\nthree");
    edit.SetSel(1, 15);
    EXPECT_EQ(edit.LineLength(), 1 + 3);
    edit.SetSel(7, 7);
    EXPECT_EQ(edit.LineLength(), 6);
    // An end within the break of a line has nothing of the line behind it.
    edit.SetSel(1, 4);
    EXPECT_EQ(edit.LineLength(), 1);
}

TEST_F(Edit, SelectionTakesMinusOneForTheEndAndForNone) {
    Make();
    SetText("abcdef");
    edit.SetSel(0, -1);
    EXPECT_EQ(Selection(), Place(0, 6));
    edit.SetSel(2, 4);
    edit.SetSel(-1, 0);
    EXPECT_EQ(Selection(), Place(4, 4));
    edit.SetSel(2, 100);
    EXPECT_EQ(Selection(), Place(2, 6));
    EXPECT_EQ(edit.GetSel(), static_cast<DWORD>(MAKEWPARAM(2, 6)));
}

TEST_F(Edit, TheCaretIsAtTheSecondPlaceOfASelection) {
    Make();
    SetText("abcdef");
    edit.SetSel(4, 1);
    EXPECT_EQ(Selection(), Place(1, 4));
    EXPECT_EQ(Caret(), 1);
    Key(VK_LEFT, kShift);
    EXPECT_EQ(Selection(), Place(0, 4));
}

TEST_F(Edit, ArrowsMoveTheCaretAndShiftExtends) {
    Make();
    SetText("abc");
    Key(VK_RIGHT);
    EXPECT_EQ(Selection(), Place(1, 1));
    Key(VK_RIGHT, kShift);
    Key(VK_RIGHT, kShift);
    EXPECT_EQ(Selection(), Place(1, 3));
    Key(VK_LEFT);
    EXPECT_EQ(Selection(), Place(1, 1));
    Key(VK_END, kShift);
    Key(VK_RIGHT);
    EXPECT_EQ(Selection(), Place(3, 3));
    Key(VK_HOME, kShift);
    EXPECT_EQ(Selection(), Place(0, 3));
    EXPECT_EQ(Caret(), 0);
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(Edit, CtrlArrowsGoWordByWord) {
    Make();
    SetText("green  canyon 12");
    Key(VK_RIGHT, kCtrl);
    EXPECT_EQ(Caret(), 7);
    Key(VK_RIGHT, kShiftCtrl);
    EXPECT_EQ(Selection(), Place(7, 14));
    Key(VK_END);
    Key(VK_LEFT, kCtrl);
    EXPECT_EQ(Caret(), 14);
    Key(VK_LEFT, kCtrl);
    EXPECT_EQ(Caret(), 7);
}

TEST_F(Edit, TheCaretNeverStopsInsideACharacter) {
    Make();
    SetText("a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80z");
    std::vector<int> places;
    for (int i = 0; i < 6; ++i) {
        places.push_back(Caret());
        Key(VK_RIGHT);
    }
    EXPECT_EQ(places, (std::vector<int>{0, 1, 3, 6, 10, 11}));
    Key(VK_LEFT);
    Key(VK_LEFT);
    EXPECT_EQ(Caret(), 6);
    Type("\b");
    EXPECT_EQ(edit.WindowText(), "a\xC3\xA4\xF0\x9F\x98\x80z");
    Key(VK_DELETE);
    EXPECT_EQ(edit.WindowText(), "a\xC3\xA4z");
}

TEST_F(Edit, BytesThatAreNoSequenceCountOneEach) {
    Make();
    Type("28\xB0\xB0\xC3");
    EXPECT_EQ(edit.WindowText(), "28\xB0\xB0\xC3");
    Type("\b\b");
    EXPECT_EQ(edit.WindowText(), "28\xB0");
    Key(VK_LEFT);
    EXPECT_EQ(Caret(), 2);
}

TEST_F(Edit, UndoTakesBackARunOfTypingAndThenBringsItAgain) {
    Make();
    SetText("ab");
    edit.SetSel(2, 2);
    Type("cde");
    EXPECT_TRUE(edit.CanUndo());
    EXPECT_TRUE(edit.Undo());
    EXPECT_EQ(edit.WindowText(), "ab");
    EXPECT_TRUE(edit.Undo());
    EXPECT_EQ(edit.WindowText(), "abcde");
}

TEST_F(Edit, UndoBringsBackWhatWasReplaced) {
    Make();
    SetText("abcd");
    edit.SetSel(1, 3);
    Type("X");
    Type("\x1A");
    EXPECT_EQ(edit.WindowText(), "abcd");
    EXPECT_EQ(Selection(), Place(1, 3));
    window.Take();
    Type("\x1A");
    EXPECT_EQ(window.Take(), kTyped);
}

TEST_F(Edit, ANewTextLeavesNothingToUndo) {
    Make();
    Type("a");
    SetText("b");
    EXPECT_FALSE(edit.CanUndo());
    Type("c");
    edit.EmptyUndoBuffer();
    EXPECT_FALSE(edit.CanUndo());
}

TEST_F(Edit, WithNothingToUndoASingleLineAnswersAllTheSame) {
    Make();
    SetText("a");
    EXPECT_TRUE(edit.Undo());
    EXPECT_TRUE(edit.SendMessage(WM_UNDO));
    EXPECT_EQ(edit.WindowText(), "a");
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(Edit, WithNothingToUndoSeveralLinesAnswerSo) {
    Make(ES_MULTILINE);
    SetText("a");
    EXPECT_FALSE(edit.Undo());
    Type("b");
    EXPECT_TRUE(edit.Undo());
    EXPECT_EQ(edit.WindowText(), "a");
}

TEST_F(Edit, ErasingAndTypingAreUndoneApart) {
    Make();
    Type("abc");
    Type("\b\b");
    edit.Undo();
    EXPECT_EQ(edit.WindowText(), "abc");
}

TEST_F(Edit, CutCopyAndPasteGoThroughTheClipboard) {
    Make();
    SetText("abcd");
    edit.SetSel(1, 3);
    Type("\x03");
    EXPECT_EQ(Clipboard(), "bc");
    Type("\x18");
    EXPECT_EQ(edit.WindowText(), "ad");
    edit.SetSel(0, 0);
    Type("\x16");
    EXPECT_EQ(edit.WindowText(), "bcad");
    Type("\x01");
    EXPECT_EQ(Selection(), Place(0, 4));
}

TEST_F(Edit, InsertAndDeleteKeysUseTheClipboardToo) {
    Make();
    SetText("ab");
    edit.SetSel(0, 1);
    Key(VK_INSERT, kCtrl);
    EXPECT_EQ(Clipboard(), "a");
    Key(VK_DELETE, kShift);
    EXPECT_EQ(edit.WindowText(), "b");
    Key(VK_INSERT, kShift);
    EXPECT_EQ(edit.WindowText(), "ab");
}

TEST_F(Edit, ASingleLinePastesTheFirstLine) {
    Make();
    SetClipboard("one\r\ntwo");
    edit.Paste();
    EXPECT_EQ(edit.WindowText(), "one");
    EXPECT_EQ(window.Take(), kTyped);
}

TEST_F(Edit, PastingAnEmptyClipboardDoesNothing) {
    Make();
    SetText("ab");
    SetClipboard("");
    edit.SetSel(0, -1);
    edit.Paste();
    EXPECT_EQ(edit.WindowText(), "ab");
    EXPECT_TRUE(window.Take().empty());
}

namespace {

/// Lets no character through.
struct KeyFilter : CEdit {
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return message == WM_CHAR ? 0 : CEdit::WindowProc(message, wParam, lParam);
    }
};

}  // namespace

TEST(EditPaste, IsNoTypingThatAKeyFilterSees) {
    RecordingWindow window;
    KeyFilter edit;
    ASSERT_TRUE(edit.Create(kv::test::kControlStyle, kv::test::kControlRect, &window, kId));
    edit.SendMessage(WM_CHAR, 'x');
    EXPECT_EQ(edit.WindowText(), "");
    kv::WindowSystem::Get().GetDesktop().SetClipboardText("abc");
    edit.Paste();
    EXPECT_EQ(edit.WindowText(), "abc");
}

TEST_F(Edit, EnteringByTabSelectsAll) {
    Make();
    SetText("abc");
    kv::FocusByTab(*edit.m_hWnd);
    EXPECT_EQ(Selection(), Place(0, 3));
    EXPECT_EQ(window.Take(), (Notices{{kId, EN_SETFOCUS}}));
    kv::WindowSystem::Get().SetFocus(nullptr);
    EXPECT_EQ(window.Take(), (Notices{{kId, EN_KILLFOCUS}}));
}

TEST_F(Edit, AClickPutsTheCaretWhereItIs) {
    Make();
    SetText("abcdef");
    edit.SetSel(0, -1);
    edit.SendMessage(WM_LBUTTONDOWN, 1, MAKELPARAM(90, 5));
    EXPECT_EQ(Selection(), Place(6, 6));
    edit.SendMessage(WM_LBUTTONDOWN, 1, MAKELPARAM(0, 5));
    EXPECT_EQ(Selection(), Place(0, 0));
}

TEST_F(Edit, EnterBreaksALineOnlyWhereTheStyleWantsIt) {
    Make(ES_MULTILINE | ES_WANTRETURN);
    Type("a\rb");
    EXPECT_EQ(edit.WindowText(), "a\r\nb");
    EXPECT_TRUE(edit.SendMessage(WM_GETDLGCODE, VK_RETURN) & DLGC_WANTALLKEYS);
    EXPECT_FALSE(edit.SendMessage(WM_GETDLGCODE, VK_ESCAPE) & DLGC_WANTALLKEYS);
    CEdit other;
    ASSERT_TRUE(other.Create(kv::test::kControlStyle | ES_MULTILINE, {}, &window, 2));
    other.SendMessage(WM_CHAR, '\r');
    EXPECT_EQ(other.WindowText(), "");
    EXPECT_FALSE(other.SendMessage(WM_GETDLGCODE, VK_RETURN) & DLGC_WANTALLKEYS);
}

TEST_F(Edit, ASingleLineTakesNoLineBreak) {
    Make(ES_WANTRETURN);
    Type("a\r\n\tb");
    EXPECT_EQ(edit.WindowText(), "ab");
}

TEST_F(Edit, ArrowsGoFromLineToLine) {
    Make(ES_MULTILINE);
    SetText("first\r\nno\r\nlast one");
    edit.SetSel(4, 4);
    Key(VK_DOWN);
    EXPECT_EQ(Caret(), 9);
    Key(VK_DOWN);
    EXPECT_EQ(Caret(), 13);
    Key(VK_END);
    EXPECT_EQ(Caret(), 19);
    Key(VK_UP);
    Key(VK_UP, kShift);
    EXPECT_EQ(Selection(), Place(2, 9));
    Key(VK_HOME);
    EXPECT_EQ(Caret(), 0);
    Key(VK_END);
    Key(VK_RIGHT);
    EXPECT_EQ(Caret(), 7);
    Type("\b");
    EXPECT_EQ(edit.WindowText(), "firstno\r\nlast one");
    Key(VK_END, kCtrl);
    EXPECT_EQ(Caret(), 17);
}

TEST_F(Edit, ReplaceSelCanBeUndoneOnRequest) {
    Make();
    SetText("abc");
    edit.SetSel(0, 1);
    edit.ReplaceSel("XY", TRUE);
    EXPECT_EQ(edit.WindowText(), "XYbc");
    EXPECT_EQ(window.Take(), kTyped);
    EXPECT_TRUE(edit.CanUndo());
    edit.ReplaceSel("Z");
    EXPECT_FALSE(edit.CanUndo());
}

TEST_F(Edit, KnowsWhetherThePersonChangedIt) {
    Make();
    SetText("abc");
    EXPECT_FALSE(edit.GetModify());
    Type("d");
    EXPECT_TRUE(edit.GetModify());
    edit.SetModify(FALSE);
    EXPECT_FALSE(edit.GetModify());
}

TEST(AbsentEdit, AnswersAsAnEmptyOne) {
    CEdit edit;
    edit.SetWindowText("abc");
    edit.SetSel(0, -1);
    edit.ReplaceSel("x");
    edit.LimitText(3);
    edit.SetReadOnly();
    edit.Paste();
    int start = 7;
    int end = 7;
    edit.GetSel(start, end);
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 0);
    EXPECT_EQ(edit.GetSel(), 0u);
    EXPECT_EQ(edit.WindowText(), "");
    EXPECT_EQ(edit.GetLineCount(), 1);
    EXPECT_EQ(edit.LineLength(), 0);
    EXPECT_FALSE(edit.Undo());
    EXPECT_FALSE(edit.CanUndo());
}
