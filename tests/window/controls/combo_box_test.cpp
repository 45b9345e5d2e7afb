#include "window/controls/combo_box.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "support/recording_window.h"
#include "window/controls/combo_box_node.h"
#include "window/controls/edit.h"
#include "window/desktop.h"
#include "window/dialog_keys.h"
#include "window/message_handlers.h"
#include "window/window_system.h"

using kv::ComboBoxNode;
using kv::Modifiers;
using kv::ModifierScope;
using kv::WindowSystem;
using kv::test::Notice;
using kv::test::RecordingWindow;

namespace {

constexpr int kId = 1092;
constexpr Modifiers kAlt{false, false, true};
using Codes = std::vector<int>;
using Lines = std::vector<std::string>;
using Place = std::pair<int, int>;

/// A combo box that writes down what reaches its own OnCmdMsg.
struct WatchedCombo : CComboBox {
    BOOL OnCmdMsg(UINT id, int code, void* extra, void* info) override {
        if (onOwn) onOwn(static_cast<int>(id), code);
        return CComboBox::OnCmdMsg(id, code, extra, info);
    }
    std::function<void(int, int)> onOwn;
};

struct ComboTest : testing::Test {
    explicit ComboTest(DWORD comboStyle) : style(comboStyle) {}

    void SetUp() override { Make(0); }
    void Make(DWORD add) {
        if (combo.m_hWnd) combo.DestroyWindow();
        ASSERT_TRUE(combo.Create(kv::test::kControlStyle | WS_VSCROLL | style | add,
                                 kv::test::kControlRect, &window, kId));
        if (!other.m_hWnd) {
            ASSERT_TRUE(other.Create(kv::test::kControlStyle, kv::test::kControlRect, &window, 7));
        }
        window.Take();
    }
    void Add(std::initializer_list<const char*> texts) {
        for (const char* text : texts)
            combo.AddString(text);
    }
    ComboBoxNode& Node() const { return *static_cast<ComboBoxNode*>(combo.m_hWnd); }
    void Focus() {
        combo.SetFocus();
        window.Take();
    }
    /// Presses a key in what has the focus.
    void Key(int key, Modifiers keys = {}) {
        const ModifierScope scope(keys);
        kv::Send(*WindowSystem::Get().Focus(), WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    }
    void Type(std::string_view text) {
        for (const char ch : text) {
            const auto byte = static_cast<WPARAM>(static_cast<unsigned char>(ch));
            kv::Send(*WindowSystem::Get().Focus(), WM_CHAR, byte, 1);
        }
    }
    Place EditSelection() const {
        const DWORD selection = combo.GetEditSel();
        return {LOWORD(selection), HIWORD(selection)};
    }
    std::string RowText(int row) const {
        CString text;
        combo.GetLBText(row, text);
        return text.str();
    }
    /// Writes down each notification with the row and the text at that moment.
    void Watch() {
        window.onNotice = [this](const Notice& notice) {
            if (notice.id == kId) Write(notice.code);
        };
        combo.onOwn = [this](int id, int code) {
            if (id == ComboBoxNode::kEditId && code == EN_CHANGE) Write(code);
        };
    }
    void Write(int code) {
        log.push_back(std::to_string(code) + ' ' + std::to_string(combo.GetCurSel()) + ' ' +
                      combo.WindowText());
    }
    Lines TakeLog() { return std::exchange(log, {}); }

    DWORD style;
    RecordingWindow window;
    WatchedCombo combo;
    CEdit other;
    Lines log;
};

struct Combo : ComboTest {
    Combo() : ComboTest(CBS_DROPDOWN | CBS_AUTOHSCROLL) {}
};
struct DropList : ComboTest {
    DropList() : ComboTest(CBS_DROPDOWNLIST) {}
};
struct SimpleCombo : ComboTest {
    SimpleCombo() : ComboTest(CBS_SIMPLE) {}
};

struct RowView : kv::View {
    explicit RowView(Lines& lines) : log_(lines) {}
    void Changed(kv::Change change) override {
        if (change == kv::Change::kRows) log_.push_back("all");
        if (change == kv::Change::kSelection) log_.push_back("selection");
        if (change == kv::Change::kText) log_.push_back("text");
        if (change == kv::Change::kDropped) log_.push_back("dropped");
    }
    void RowsInserted(int first, int) override { log_.push_back("+" + std::to_string(first)); }
    void RowsRemoved(int first, int) override { log_.push_back("-" + std::to_string(first)); }
    Lines& log_;
};

}  // namespace

TEST_F(Combo, IsThreeWindows) {
    ASSERT_EQ(Node().Children().size(), 2u);
    EXPECT_EQ(Node().FindChild(1001)->Class(), kv::NodeClass::kEdit);
    EXPECT_EQ(Node().FindChild(1000)->Class(), kv::NodeClass::kListBox);
    combo.SetFocus();
    EXPECT_EQ(WindowSystem::Get().Focus(), Node().Edit());
}

TEST_F(DropList, HasNoEditAndKeepsTheFocusItself) {
    EXPECT_EQ(Node().Edit(), nullptr);
    combo.SetFocus();
    EXPECT_EQ(WindowSystem::Get().Focus(), combo.m_hWnd);
    EXPECT_EQ(window.Take(), (kv::test::Notices{{kId, CBN_SETFOCUS}}));
}

TEST_F(Combo, KeepsRowsAndTheirData) {
    EXPECT_EQ(combo.AddString("b"), 0);
    EXPECT_EQ(combo.AddString("a"), 1);
    EXPECT_EQ(combo.InsertString(0, "c"), 0);
    EXPECT_EQ(combo.InsertString(7, "d"), CB_ERR);
    combo.SetItemData(1, 55);
    EXPECT_EQ(combo.GetItemData(1), 55);
    EXPECT_EQ(combo.GetCount(), 3);
    EXPECT_EQ(RowText(0), "c");
    EXPECT_EQ(combo.GetLBTextLen(2), 1);
    EXPECT_EQ(combo.GetLBTextLen(3), CB_ERR);
    EXPECT_EQ(RowText(3), "");
    EXPECT_EQ(combo.DeleteString(0), 2);
    EXPECT_EQ(combo.DeleteString(2), CB_ERR);
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(Combo, SortedKeepsCaseInsensitiveOrder) {
    Make(CBS_SORT);
    EXPECT_EQ(combo.AddString("b"), 0);
    EXPECT_EQ(combo.AddString("A"), 0);
    EXPECT_EQ(combo.AddString("B"), 2);
}

TEST_F(Combo, FindsPrefixesBehindTheStartAndRound) {
    Add({"GULF", "GRAND", "gulfport"});
    EXPECT_EQ(combo.FindString(0, "gu"), 2);
    EXPECT_EQ(combo.FindString(2, "GU"), 0);
    EXPECT_EQ(combo.FindString(0, "GULF"), 2);
    EXPECT_EQ(combo.FindString(-1, ""), CB_ERR);
    EXPECT_EQ(combo.FindStringExact(0, "gulf"), 0);
    EXPECT_EQ(combo.FindStringExact(-1, "gul"), CB_ERR);
}

TEST_F(Combo, SetCurSelShowsTheRowAndNotifiesNobody) {
    Add({"a", "b"});
    Watch();
    EXPECT_EQ(combo.SetCurSel(1), 1);
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_EQ(combo.WindowText(), "b");
    EXPECT_EQ(Node().Edit()->Text(), "b");
    EXPECT_TRUE(TakeLog().empty());
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(Combo, SetCurSelOfMinusOneClearsTheEdit) {
    Add({"a"});
    combo.SetCurSel(0);
    EXPECT_EQ(combo.SetCurSel(-1), CB_ERR);
    EXPECT_EQ(combo.WindowText(), "");
    combo.SetWindowText("typed");
    combo.SetCurSel(-1);
    EXPECT_EQ(combo.WindowText(), "");
    combo.SetCurSel(0);
    EXPECT_EQ(combo.SetCurSel(5), CB_ERR);
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
}

TEST_F(Combo, EmptyingItClearsTheEdit) {
    Add({"a"});
    combo.SetWindowText("typed");
    Watch();
    combo.ResetContent();
    EXPECT_EQ(combo.GetCount(), 0);
    EXPECT_EQ(combo.WindowText(), "");
    EXPECT_TRUE(TakeLog().empty());
}

TEST_F(DropList, EmptyingItOrDeletingTheCurrentRowClearsTheText) {
    Add({"a", "b"});
    combo.SetCurSel(1);
    EXPECT_EQ(combo.WindowText(), "b");
    combo.DeleteString(1);
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
    EXPECT_EQ(combo.WindowText(), "");
    combo.SetCurSel(0);
    combo.ResetContent();
    EXPECT_EQ(combo.WindowText(), "");
}

TEST_F(Combo, DeletingTheCurrentRowLeavesNoneAndOneAheadMovesItAlong) {
    Add({"a", "b", "c"});
    combo.SetCurSel(1);
    combo.DeleteString(0);
    EXPECT_EQ(combo.GetCurSel(), 0);
    combo.InsertString(0, "z");
    EXPECT_EQ(combo.GetCurSel(), 1);
    combo.DeleteString(1);
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
    EXPECT_EQ(combo.WindowText(), "b");
}

TEST_F(Combo, SelectStringSelectsWhatFindStringFinds) {
    Add({"GULF", "GRAND", "gulfport"});
    Watch();
    EXPECT_EQ(combo.SelectString(0, "gu"), 2);
    EXPECT_EQ(combo.GetCurSel(), 2);
    EXPECT_EQ(combo.WindowText(), "gulfport");
    EXPECT_EQ(combo.SelectString(-1, "x"), CB_ERR);
    EXPECT_EQ(combo.SelectString(-1, ""), CB_ERR);
    EXPECT_EQ(combo.GetCurSel(), 2);
    EXPECT_TRUE(TakeLog().empty());
}

TEST_F(Combo, SetWindowTextLeavesNoCurrentRowUnlessTheTextIsThatRows) {
    Add({"a", "b"});
    combo.SetCurSel(1);
    Watch();
    combo.SetWindowText("b");
    EXPECT_EQ(combo.GetCurSel(), 1);
    combo.SetWindowText("a");
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
    EXPECT_EQ(combo.WindowText(), "a");
    EXPECT_TRUE(TakeLog().empty());
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(DropList, SetWindowTextDoesNothing) {
    Add({"a", "b"});
    combo.SetCurSel(1);
    combo.SetWindowText("a");
    EXPECT_EQ(combo.WindowText(), "b");
    EXPECT_EQ(combo.GetCurSel(), 1);
}

TEST_F(Combo, APickComesInItsOrderAndTheTextLast) {
    Add({"a", "b"});
    combo.SetWindowText("old");
    Watch();
    EXPECT_TRUE(Node().UserPick(1));
    EXPECT_EQ(TakeLog(), (Lines{"3 -1 old", "7 -1 old", "9 1 old", "8 1 old", "1 1 old"}));
    EXPECT_EQ(combo.WindowText(), "b");
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_EQ(EditSelection(), Place(0, 1));
    EXPECT_FALSE(combo.GetDroppedState());
}

TEST_F(Combo, APickWithTheFocusThereSendsNoFocusGained) {
    Add({"a", "b"});
    Focus();
    Node().UserPick(0);
    EXPECT_EQ(window.TakeCodes(), (Codes{CBN_DROPDOWN, CBN_SELENDOK, CBN_CLOSEUP, CBN_SELCHANGE}));
}

TEST_F(Combo, APickFromADroppedListDropsItNoSecondTime) {
    Add({"a", "b"});
    Node().UserDrop();
    EXPECT_EQ(window.TakeCodes(), (Codes{CBN_SETFOCUS, CBN_DROPDOWN}));
    Node().UserPick(0);
    EXPECT_EQ(window.TakeCodes(), (Codes{CBN_SELENDOK, CBN_CLOSEUP, CBN_SELCHANGE}));
}

TEST_F(DropList, APickHasTheTextAtOnce) {
    Add({"a", "b"});
    combo.SetCurSel(0);
    Watch();
    Node().UserPick(1);
    EXPECT_EQ(TakeLog(), (Lines{"3 0 a", "7 0 a", "9 1 b", "8 1 b", "1 1 b"}));
}

TEST_F(Combo, APickOfARowThatThereIsNotClosesTheListAgain) {
    Add({"a"});
    Focus();
    EXPECT_FALSE(Node().UserPick(1));
    EXPECT_EQ(window.TakeCodes(), (Codes{CBN_DROPDOWN, CBN_SELENDCANCEL, CBN_CLOSEUP}));
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
}

TEST_F(Combo, RowsThatComeWhenTheListDropsCanBePicked) {
    window.onNotice = [&](const Notice& notice) {
        if (notice.code == CBN_DROPDOWN) Add({"a", "b"});
    };
    EXPECT_TRUE(Node().UserPick(1));
    EXPECT_EQ(combo.WindowText(), "b");
}

TEST_F(Combo, TheTextFollowsTheRowThatTheHandlerLeft) {
    Add({"label", "b"});
    window.onNotice = [&](const Notice& notice) {
        if (notice.code == CBN_SELCHANGE) combo.ResetContent();
    };
    Node().UserPick(0);
    EXPECT_EQ(combo.WindowText(), "");
    Add({"a", "b", "c"});
    window.onNotice = [&](const Notice& notice) {
        if (notice.code == CBN_SELCHANGE) combo.SetCurSel(2);
    };
    Node().UserPick(0);
    EXPECT_EQ(combo.WindowText(), "c");
    window.onNotice = [&](const Notice& notice) {
        if (notice.code == CBN_SELCHANGE) combo.SetWindowText("own");
    };
    Node().UserPick(0);
    EXPECT_EQ(combo.WindowText(), "own");
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
}

TEST_F(Combo, OneKeyIsUpdateThenChangedToItselfThenChange) {
    Add({"a"});
    Focus();
    combo.SetCurSel(0);
    Watch();
    Type("b");
    EXPECT_EQ(TakeLog(), (Lines{"6 -1 b", "768 -1 b", "5 -1 b"}));
}

TEST_F(Combo, TypingTheRowsOwnTextLeavesNoCurrentRow) {
    Add({"a"});
    combo.SetCurSel(0);
    Focus();
    combo.SetEditSel(0, -1);
    Type("a");
    EXPECT_EQ(combo.WindowText(), "a");
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
}

namespace {

/// Fills up what is typed from its rows.
struct Completing : WatchedCombo {
    void OnEditUpdate() {
        const std::string typed = WindowText();
        if (SelectString(-1, typed.c_str()) != CB_ERR) {
            SetEditSel(static_cast<int>(typed.size()), -1);
        }
    }
    static const kv::MessageMap& Messages() {
        static const kv::MessageEntry kEntries[] = {
            kv::OnReflected<&Completing::OnEditUpdate>(CBN_EDITUPDATE)};
        static const kv::MessageMap kMap{&CComboBox::Messages(), kEntries};
        return kMap;
    }
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }
};

}  // namespace

TEST(ComboCompletion, HappensInTheUpdateAndTheNextKeyOverwritesIt) {
    RecordingWindow window;
    Completing combo;
    ASSERT_TRUE(
        combo.Create(kv::test::kControlStyle | CBS_DROPDOWN, kv::test::kControlRect, &window, kId));
    combo.AddString("GULF");
    combo.AddString("GRAND");
    combo.SetFocus();
    Lines own;
    combo.onOwn = [&](int id, int code) {
        own.push_back(std::to_string(id) + ' ' + std::to_string(code) + ' ' +
                      std::to_string(combo.GetCurSel()) + ' ' + combo.WindowText());
    };
    window.Take();
    const auto type = [](char ch) {
        kv::Send(*WindowSystem::Get().Focus(), WM_CHAR, static_cast<WPARAM>(ch), 1);
    };
    type('G');
    EXPECT_EQ(combo.WindowText(), "GULF");
    EXPECT_EQ(combo.GetEditSel(), static_cast<DWORD>(MAKEWPARAM(1, 4)));
    // The update is the box's own to handle; its parent sees only the change behind it.
    EXPECT_EQ(window.TakeCodes(), (Codes{CBN_EDITCHANGE}));
    EXPECT_EQ(own, (Lines{"1001 1024 -1 G", "1092 6 -1 G", "1001 768 0 GULF", "1092 5 0 GULF"}));
    type('R');
    EXPECT_EQ(combo.WindowText(), "GRAND");
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_EQ(combo.GetEditSel(), static_cast<DWORD>(MAKEWPARAM(2, 5)));
}

TEST_F(Combo, ItsOwnNotificationsReachItAheadOfItsParent) {
    Add({"a", "b"});
    Lines order;
    window.onNotice = [&](const Notice& notice) {
        order.push_back("parent " + std::to_string(notice.code));
    };
    combo.onOwn = [&](int id, int code) {
        if (id == kId) order.push_back("box " + std::to_string(code));
    };
    Focus();
    order.clear();
    Node().UserPick(1);
    other.SetFocus();
    EXPECT_EQ(order, (Lines{"box 7", "parent 7", "box 9", "parent 9", "box 8", "parent 8", "box 1",
                            "parent 1", "box 4", "parent 4", "parent 256"}));
}

TEST_F(Combo, LosingTheFocusCollapsesTheEditsSelectionBeforeItIsTold) {
    Focus();
    combo.SetWindowText("abcd");
    combo.SetEditSel(1, 3);
    Place seen;
    window.onNotice = [&](const Notice& notice) {
        if (notice.code == CBN_KILLFOCUS) seen = EditSelection();
    };
    other.SetFocus();
    EXPECT_EQ(seen, Place(3, 3));
}

TEST_F(Combo, AFocusThatStaysInTheBoxIsNotLost) {
    Focus();
    kv::Send(*Node().Edit(), WM_KILLFOCUS);
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(Combo, EnteringByTabSelectsTheWholeText) {
    combo.SetWindowText("abc");
    kv::FocusByTab(*combo.m_hWnd);
    EXPECT_EQ(EditSelection(), Place(0, 3));
}

TEST_F(Combo, LosingTheFocusClosesTheList) {
    Add({"a"});
    Node().UserDrop();
    window.Take();
    other.SetFocus();
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_EQ(window.TakeCodes(),
              (Codes{CBN_SELENDCANCEL, CBN_CLOSEUP, CBN_KILLFOCUS, EN_SETFOCUS}));
}

TEST_F(Combo, F4AndAltArrowsDropAndCloseTheList) {
    Add({"a"});
    Focus();
    Key(VK_F4);
    EXPECT_TRUE(combo.GetDroppedState());
    Key(VK_F4);
    EXPECT_FALSE(combo.GetDroppedState());
    Key(VK_DOWN, kAlt);
    EXPECT_TRUE(combo.GetDroppedState());
    Key(VK_UP, kAlt);
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_EQ(window.TakeCodes(), (Codes{CBN_DROPDOWN, CBN_SELENDOK, CBN_CLOSEUP, CBN_DROPDOWN,
                                         CBN_SELENDOK, CBN_CLOSEUP}));
}

TEST_F(Combo, ArrowsOfAClosedBoxPickTheNextRow) {
    Add({"a", "b", "c"});
    Focus();
    Watch();
    Key(VK_DOWN);
    EXPECT_EQ(TakeLog(), (Lines{"9 0 ", "1 0 "}));
    EXPECT_EQ(combo.WindowText(), "a");
    Key(VK_DOWN);
    EXPECT_EQ(TakeLog(), (Lines{"9 1 a", "1 1 a"}));
    EXPECT_EQ(combo.WindowText(), "b");
    Key(VK_UP);
    Key(VK_UP);
    EXPECT_EQ(combo.WindowText(), "a");
    EXPECT_EQ(TakeLog().size(), 2u);
    Key(VK_NEXT);
    EXPECT_EQ(combo.WindowText(), "c");
}

TEST_F(Combo, ArrowsGoOnFromATypedRow) {
    Add({"a", "b", "c"});
    Focus();
    Type("b");
    Key(VK_DOWN);
    EXPECT_EQ(combo.WindowText(), "c");
}

TEST_F(Combo, HomeEndAndSidewaysArrowsAreTheEdits) {
    Add({"a", "b"});
    Focus();
    combo.SetWindowText("xyz");
    Key(VK_END);
    EXPECT_EQ(EditSelection(), Place(3, 3));
    Key(VK_LEFT);
    EXPECT_EQ(EditSelection(), Place(2, 2));
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
}

TEST_F(Combo, EnterClosesADroppedListAndKeepsTheRow) {
    Add({"a", "b"});
    Focus();
    Key(VK_F4);
    Key(VK_DOWN);
    EXPECT_EQ(window.TakeCodes(), (Codes{CBN_DROPDOWN, CBN_SELCHANGE}));
    EXPECT_TRUE(kv::Send(*Node().Edit(), WM_GETDLGCODE, VK_RETURN) & DLGC_WANTALLKEYS);
    Key(VK_RETURN);
    EXPECT_EQ(window.TakeCodes(), (Codes{CBN_SELENDOK, CBN_CLOSEUP}));
    EXPECT_EQ(combo.WindowText(), "a");
    EXPECT_FALSE(kv::Send(*Node().Edit(), WM_GETDLGCODE, VK_RETURN) & DLGC_WANTALLKEYS);
}

TEST_F(Combo, EscapeClosesADroppedListAndGoesBack) {
    Add({"a", "b", "c"});
    Focus();
    combo.SetWindowText("typed");
    Key(VK_F4);
    Key(VK_DOWN);
    Key(VK_DOWN);
    EXPECT_EQ(combo.WindowText(), "b");
    window.Take();
    EXPECT_TRUE(kv::Send(*Node().Edit(), WM_GETDLGCODE, VK_ESCAPE) & DLGC_WANTALLKEYS);
    Key(VK_ESCAPE);
    EXPECT_EQ(window.TakeCodes(), (Codes{CBN_SELENDCANCEL, CBN_CLOSEUP, CBN_SELCHANGE}));
    EXPECT_EQ(combo.WindowText(), "typed");
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
}

TEST_F(Combo, EscapeWithNothingMovedTellsNoChange) {
    Add({"a"});
    Focus();
    Key(VK_F4);
    Key(VK_ESCAPE);
    EXPECT_EQ(window.TakeCodes(), (Codes{CBN_DROPDOWN, CBN_SELENDCANCEL, CBN_CLOSEUP}));
}

TEST_F(Combo, EscapeGoesNotBackToRowsThatAreGone) {
    Add({"a", "b"});
    Focus();
    Key(VK_F4);
    Key(VK_DOWN);
    combo.ResetContent();
    Add({"x"});
    Key(VK_ESCAPE);
    EXPECT_EQ(combo.WindowText(), "");
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
}

TEST_F(DropList, KeysPickRows) {
    Add({"Gulf", "Apache", "grand", "garden"});
    Focus();
    Watch();
    Key(VK_END);
    EXPECT_EQ(TakeLog(), (Lines{"9 3 garden", "1 3 garden"}));
    Key(VK_HOME);
    Key(VK_RIGHT);
    EXPECT_EQ(combo.WindowText(), "Apache");
    TakeLog();
    Type("g");
    EXPECT_EQ(TakeLog(), (Lines{"9 2 grand", "1 2 grand"}));
    Type("a");
    EXPECT_EQ(combo.WindowText(), "garden");
    EXPECT_TRUE(combo.SendMessage(WM_GETDLGCODE) & DLGC_WANTARROWS);
}

TEST_F(DropList, EnterAndEscapeAreItsOwnOnlyWhenDropped) {
    Add({"a", "b"});
    combo.SetCurSel(0);
    Focus();
    EXPECT_FALSE(combo.SendMessage(WM_GETDLGCODE, VK_ESCAPE) & DLGC_WANTALLKEYS);
    Key(VK_F4);
    EXPECT_TRUE(combo.SendMessage(WM_GETDLGCODE, VK_ESCAPE) & DLGC_WANTALLKEYS);
    EXPECT_FALSE(combo.SendMessage(WM_GETDLGCODE, VK_TAB) & DLGC_WANTALLKEYS);
    Key(VK_DOWN);
    EXPECT_EQ(combo.WindowText(), "b");
    Key(VK_ESCAPE);
    EXPECT_EQ(combo.WindowText(), "a");
}

TEST_F(DropList, AClickDropsItAndAnotherClosesIt) {
    Add({"a"});
    combo.SendMessage(WM_LBUTTONDOWN, 1, MAKELPARAM(5, 5));
    EXPECT_TRUE(combo.GetDroppedState());
    combo.SendMessage(WM_LBUTTONDOWN, 1, MAKELPARAM(5, 5));
    EXPECT_FALSE(combo.GetDroppedState());
}

TEST_F(Combo, AClickDropsItAtItsArrowOnly) {
    Add({"a"});
    combo.SetWindowText("abc");
    combo.SendMessage(WM_LBUTTONDOWN, 1, MAKELPARAM(60, 5));
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_EQ(EditSelection(), Place(3, 3));
    combo.SendMessage(WM_LBUTTONDOWN, 1, MAKELPARAM(95, 5));
    EXPECT_TRUE(combo.GetDroppedState());
}

TEST_F(Combo, ShowDropDownDropsAndCloses) {
    combo.ShowDropDown();
    EXPECT_TRUE(combo.GetDroppedState());
    combo.ShowDropDown();
    combo.ShowDropDown(FALSE);
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_EQ(window.TakeCodes(), (Codes{CBN_DROPDOWN, CBN_SELENDCANCEL, CBN_CLOSEUP}));
}

TEST_F(Combo, AHandlerMayCloseTheListAsItDrops) {
    window.onNotice = [&](const Notice& notice) {
        if (notice.code == CBN_DROPDOWN) combo.ShowDropDown(FALSE);
    };
    combo.ShowDropDown();
    EXPECT_FALSE(combo.GetDroppedState());
}

TEST_F(SimpleCombo, NeverDropsAndPicksWithTheListInSight) {
    Add({"a", "b"});
    Focus();
    Node().UserPick(1);
    EXPECT_EQ(window.TakeCodes(), (Codes{CBN_SELENDOK, CBN_SELCHANGE}));
    EXPECT_EQ(combo.WindowText(), "b");
    Key(VK_F4);
    EXPECT_TRUE(window.Take().empty());
    EXPECT_TRUE(Node().List().Visible());
}

TEST_F(Combo, EditSelectionTakesMinusOne) {
    combo.SetWindowText("abcdef");
    EXPECT_TRUE(combo.SetEditSel(2, -1));
    EXPECT_EQ(EditSelection(), Place(2, 6));
    combo.SetEditSel(-1, 0);
    EXPECT_EQ(EditSelection(), Place(6, 6));
}

TEST_F(Combo, PutsTheEditSelectionWhereItIsTold) {
    combo.SetWindowText("abcdef");
    combo.SetEditSel(2, 5);
    DWORD start = 77;
    DWORD end = 77;
    const auto startAt = reinterpret_cast<WPARAM>(&start);
    const auto endAt = reinterpret_cast<LPARAM>(&end);
    EXPECT_EQ(combo.SendMessage(CB_GETEDITSEL, startAt, endAt), MAKELPARAM(2, 5));
    EXPECT_EQ(start, 2u);
    EXPECT_EQ(end, 5u);
    combo.SetEditSel(3, 4);
    combo.SendMessage(CB_GETEDITSEL, 0, endAt);
    EXPECT_EQ(start, 2u);
    EXPECT_EQ(end, 4u);
}

TEST_F(DropList, HasNoEditSelection) {
    EXPECT_FALSE(combo.SetEditSel(0, -1));
    EXPECT_EQ(combo.GetEditSel(), static_cast<DWORD>(CB_ERR));
    DWORD start = 77;
    combo.SendMessage(CB_GETEDITSEL, reinterpret_cast<WPARAM>(&start));
    EXPECT_EQ(start, 77u);
}

TEST_F(DropList, DataIsSetRowByRow) {
    combo.AddString("a");
    combo.AddString("b");
    EXPECT_EQ(combo.SetItemData(1, 7), 0);
    EXPECT_EQ(combo.SetItemData(-1, 9), CB_ERR);
    EXPECT_EQ(combo.GetItemData(0), 0);
    EXPECT_EQ(combo.GetItemData(1), 7);
}

TEST_F(Combo, TheLimitIsTheEdits) {
    combo.LimitText(2);
    Focus();
    Type("abc");
    EXPECT_EQ(combo.WindowText(), "ab");
    EXPECT_EQ(combo.GetWindowTextLength(), 2);
}

TEST_F(Combo, PastingGoesToTheEditAndTellsAsTypingDoes) {
    Add({"a"});
    combo.SetCurSel(0);
    combo.SetEditSel(0, -1);
    Watch();
    WindowSystem::Get().GetDesktop().SetClipboardText("pasted");
    combo.Paste();
    EXPECT_EQ(TakeLog(), (Lines{"6 -1 pasted", "768 -1 pasted", "5 -1 pasted"}));
}

TEST_F(Combo, ItsEditCanBeSubclassed) {
    Add({"a"});
    combo.SetCurSel(0);
    CEdit edit;
    ASSERT_TRUE(edit.SubclassDlgItem(ComboBoxNode::kEditId, &combo));
    Watch();
    edit.SetWindowText("through the edit");
    EXPECT_EQ(TakeLog(),
              (Lines{"6 -1 through the edit", "768 -1 through the edit", "5 -1 through the edit"}));
    EXPECT_EQ(combo.WindowText(), "through the edit");
}

TEST_F(Combo, ADisabledBoxGetsNoFocus) {
    combo.EnableWindow(FALSE);
    combo.SetFocus();
    EXPECT_NE(WindowSystem::Get().Focus(), Node().Edit());
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(Combo, TheViewIsToldOfRowsSelectionTextAndList) {
    combo.m_hWnd->SetView(std::make_unique<RowView>(log));
    Add({"a", "b"});
    combo.SetCurSel(1);
    combo.SetWindowText("b");
    combo.DeleteString(0);
    combo.ShowDropDown();
    combo.ResetContent();
    EXPECT_EQ(log, (Lines{"+0", "+1", "selection", "text", "-0", "dropped", "all", "text"}));
}

TEST_F(Combo, AHandlerMayDestroyTheBoxAmidAPick) {
    Add({"a"});
    for (const int code : {CBN_SETFOCUS, CBN_DROPDOWN, CBN_CLOSEUP, CBN_SELCHANGE}) {
        Make(0);
        Add({"a"});
        other.SetFocus();
        window.onNotice = [&](const Notice& notice) {
            if (notice.id == kId && notice.code == code) combo.DestroyWindow();
        };
        const auto keep = combo.m_hWnd->shared_from_this();
        Node().UserPick(0);
        EXPECT_EQ(combo.m_hWnd, nullptr) << code;
        window.onNotice = nullptr;
    }
}

TEST_F(Combo, AHandlerMayDestroyTheBoxAmidAKey) {
    for (const int code : {CBN_EDITUPDATE, CBN_EDITCHANGE}) {
        Make(0);
        Focus();
        window.onNotice = [&](const Notice& notice) {
            if (notice.code == code) combo.DestroyWindow();
        };
        Type("x");
        EXPECT_EQ(combo.m_hWnd, nullptr) << code;
        window.onNotice = nullptr;
    }
}

TEST_F(Combo, ManyRowsAreFoundAndLost) {
    constexpr int kManyRows = 100'000;
    for (int i = 0; i < kManyRows; ++i)
        combo.AddString(("row " + std::to_string(i)).c_str());
    combo.SetCurSel(kManyRows - 1);
    for (int i = 0; i < kManyRows; ++i) {
        const std::string text = "row " + std::to_string(i);
        ASSERT_EQ(combo.FindStringExact(-1, text.c_str()), i);
    }
    while (combo.GetCount() > 1)
        combo.DeleteString(0);
    EXPECT_EQ(combo.GetCurSel(), 0);
    EXPECT_EQ(RowText(0), "row 99999");
}

TEST(AbsentCombo, AnswersAsAnEmptyOne) {
    CComboBox combo;
    CString text("before");
    EXPECT_EQ(combo.AddString("a"), CB_ERR);
    EXPECT_EQ(combo.GetCount(), 0);
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
    EXPECT_EQ(combo.SetCurSel(0), CB_ERR);
    EXPECT_EQ(combo.SelectString(-1, "a"), CB_ERR);
    EXPECT_EQ(combo.FindString(-1, "a"), CB_ERR);
    EXPECT_EQ(combo.GetEditSel(), 0u);
    combo.SetEditSel(0, -1);
    combo.ResetContent();
    combo.SetWindowText("x");
    combo.GetLBText(0, text);
    EXPECT_EQ(text, "");
    EXPECT_EQ(combo.WindowText(), "");
    EXPECT_FALSE(combo.GetDroppedState());
}
