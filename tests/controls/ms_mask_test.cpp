#include "controls/ms_mask.h"

#include <gtest/gtest.h>

#include <string>

#include "support/dialog_fixture.h"
#include "window/drawing/device_context.h"
#include "window/drawing/raster.h"
#include "window/owner_draw.h"

namespace {

constexpr int kAhead = 9;
constexpr int kMask = 10;
constexpr int kBehind = 11;

class MsMask : public test::DialogTest {
protected:
    MsMask()
        : template_({test::Row(kAhead, kv::ControlKind::kEdit),
                     test::Row(kMask, kv::ControlKind::kEdit),
                     test::Row(kBehind, kv::ControlKind::kEdit)}) {
        dialog.onInit = [this] {
            mask.SubclassDlgItem(kMask, &dialog);
            mask.SetMask(pattern.c_str());
            dialog.told.clear();
            return TRUE;
        };
    }
    void RunWith(std::string wanted, const std::function<void(kv::User&)>& act) {
        pattern = std::move(wanted);
        Run(dialog, act);
    }
    void Select(int first, int last) {
        mask.SetSelStart(first);
        mask.SetSelLength(last - first);
    }

    test::TestTemplate template_;
    test::RecordingDialog dialog;
    CMSMask mask;
    std::string pattern;
};

TEST_F(MsMask, BeginsWithThePublishedValues) {
    EXPECT_EQ(mask.GetMask(), "");
    EXPECT_EQ(mask.GetPromptChar(), "_");
    EXPECT_TRUE(mask.GetPromptInclude());
    EXPECT_FALSE(mask.GetAllowPrompt());
    EXPECT_FALSE(mask.GetAutoTab());
    EXPECT_TRUE(mask.GetHideSelection());
    EXPECT_EQ(mask.GetMaxLength(), 64);
    EXPECT_EQ(mask.GetClipMode(), mskIncludeLiterals);
    EXPECT_EQ(mask.GetAppearance(), 1);
    EXPECT_EQ(mask.GetMousePointer(), 0);
    EXPECT_EQ(mask.GetMouseIcon(), nullptr);
    EXPECT_EQ(mask.GetFont(), nullptr);
    EXPECT_EQ(mask.GetHWnd(), 0);
}

TEST_F(MsMask, IsMadeByNameAndKnowsItsClass) {
    EXPECT_STREQ(mask.GetRuntimeClass()->m_lpszClassName, "CMSMask");
    const auto made = CMSMask::classCMSMask.CreateObject();
    EXPECT_NE(dynamic_cast<CMSMask*>(made.get()), nullptr);
    EXPECT_EQ(CMSMask::GetClsid().Data1, 0xC932BA85u);
    EXPECT_EQ(CMSMask::GetClsid().Data4[7], 0xDC);
}

TEST_F(MsMask, ShowsItsMask) {
    RunWith("(###) ###-####", [&](kv::User& user) {
        EXPECT_EQ(user.Text(kMask), "(___) ___-____");
        EXPECT_EQ(mask.GetMask(), "(###) ###-####");
        EXPECT_EQ(mask.GetText(), "(___) ___-____");
        EXPECT_EQ(mask.GetClipText(), "");
    });
}

TEST_F(MsMask, TypingFillsTheSlots) {
    RunWith("(###) ###-####", [&](kv::User& user) {
        user.Type(kMask, "555x1234567");
        EXPECT_EQ(mask.GetText(), "(555) 123-4567");
        EXPECT_EQ(mask.GetClipText(), "5551234567");
        EXPECT_EQ(mask.GetSelStart(), 14);
        EXPECT_TRUE(dialog.WasTold("10 changed"));
    });
}

TEST_F(MsMask, ARefusedKeyTellsNobody) {
    RunWith("##", [&](kv::User& user) {
        user.Type(kMask, "1");
        dialog.told.clear();
        kv::input::TypeHere("x-");
        EXPECT_EQ(user.Text(kMask), "1_");
        EXPECT_FALSE(dialog.WasTold("10 changed"));
    });
}

TEST_F(MsMask, TypingOverASelectionEmptiesItFirst) {
    RunWith("##-##", [&](kv::User& user) {
        user.Type(kMask, "1234");
        Select(1, 5);
        kv::input::TypeHere("9");
        EXPECT_EQ(user.Text(kMask), "19-__");
        EXPECT_EQ(mask.GetSelStart(), 2);
        Select(0, 5);
        kv::input::TypeHere("x");
        EXPECT_EQ(user.Text(kMask), "19-__");
        EXPECT_EQ(mask.GetSelLength(), 5);
    });
}

TEST_F(MsMask, TypingReplacesWhatStandsAtTheCaret) {
    RunWith("###", [&](kv::User& user) {
        user.Type(kMask, "123");
        mask.SetSelStart(1);
        kv::input::TypeHere("9");
        EXPECT_EQ(user.Text(kMask), "193");
    });
}

TEST_F(MsMask, BackspaceAndDeleteEmptyAPlace) {
    RunWith("##-##", [&](kv::User& user) {
        user.Type(kMask, "1234");
        user.Key(kMask, "Backspace");
        EXPECT_EQ(user.Text(kMask), "12-3_");
        user.Key(kMask, "Backspace");
        user.Key(kMask, "Backspace");
        EXPECT_EQ(user.Text(kMask), "1_-__");
        EXPECT_EQ(mask.GetSelStart(), 1);
        user.Key(kMask, "Home");
        user.Key(kMask, "Delete");
        EXPECT_EQ(user.Text(kMask), "__-__");
        EXPECT_EQ(mask.GetSelStart(), 1);
        user.Key(kMask, "Home");
        user.Key(kMask, "Backspace");
        EXPECT_EQ(mask.GetSelStart(), 0);
    });
}

TEST_F(MsMask, BackspaceAndDeleteEmptyASelection) {
    RunWith("##-##", [&](kv::User& user) {
        user.Type(kMask, "1234");
        Select(1, 4);
        user.Key(kMask, "Delete");
        EXPECT_EQ(user.Text(kMask), "1_-_4");
        Select(0, 5);
        user.Key(kMask, "Backspace");
        EXPECT_EQ(user.Text(kMask), "__-__");
        EXPECT_EQ(mask.GetSelStart(), 0);
    });
}

TEST_F(MsMask, EnteredByTabAndNothingTypedItIsEmptied) {
    RunWith("##-##", [&](kv::User& user) {
        mask.SetText("12-34");
        user.Type(kMask, "");
        EXPECT_EQ(user.Text(kMask), "__-__");
    });
}

TEST_F(MsMask, PasteTakesWhatFits) {
    RunWith("(###) ###-####", [&](kv::User& user) {
        user.Paste(kMask, "206.555.0000");
        EXPECT_EQ(mask.GetText(), "(206) 555-0000");
        user.Paste(kMask, "xyz");
        EXPECT_EQ(mask.GetText(), "(206) 555-0000");
    });
}

TEST_F(MsMask, ClipModeSaysWhatCopyingTakes) {
    RunWith("##-##", [&](kv::User& user) {
        user.Type(kMask, "123");
        Select(0, 5);
        user.Key(0, "Ctrl+C");
        EXPECT_EQ(desktop.ClipboardText(), "12-3_");
        mask.SetPromptInclude(FALSE);
        user.Key(0, "Ctrl+C");
        EXPECT_EQ(desktop.ClipboardText(), "12-3");
        mask.SetClipMode(mskExcludeLiterals);
        user.Key(0, "Ctrl+X");
        EXPECT_EQ(desktop.ClipboardText(), "123");
        EXPECT_EQ(user.Text(kMask), "__-__");
        user.Key(0, "Ctrl+V");
        EXPECT_EQ(user.Text(kMask), "12-3_");
        mask.SetClipMode(7);
        EXPECT_EQ(mask.GetClipMode(), mskExcludeLiterals);
    });
}

TEST_F(MsMask, NothingSelectedCopiesNothing) {
    RunWith("##", [&](kv::User& user) {
        desktop.SetClipboardText("before");
        user.Type(kMask, "12");
        user.Key(0, "Ctrl+C");
        user.Key(0, "Ctrl+X");
        EXPECT_EQ(desktop.ClipboardText(), "before");
        EXPECT_EQ(user.Text(kMask), "12");
    });
}

TEST_F(MsMask, UndoGoesBackOneStepAndForthAgain) {
    RunWith("##-##", [&](kv::User& user) {
        EXPECT_FALSE(mask.SendMessage(EM_CANUNDO));
        EXPECT_FALSE(mask.SendMessage(EM_UNDO));
        user.Type(kMask, "12");
        user.Key(0, "Ctrl+Z");
        EXPECT_EQ(user.Text(kMask), "1_-__");
        EXPECT_TRUE(mask.SendMessage(EM_CANUNDO));
        user.Key(0, "Ctrl+Z");
        EXPECT_EQ(user.Text(kMask), "12-__");
    });
}

TEST_F(MsMask, AReadOnlyOneTakesNothing) {
    RunWith("##", [&](kv::User& user) {
        mask.SetText("12");
        mask.SendMessage(EM_SETREADONLY, TRUE);
        user.Type(kMask, "34");
        user.Key(0, "Backspace");
        user.Key(0, "Delete");
        user.Paste(kMask, "56");
        Select(0, 2);
        mask.SendMessage(WM_CUT);
        mask.SendMessage(WM_CLEAR);
        EXPECT_EQ(user.Text(kMask), "12");
    });
}

TEST_F(MsMask, PromptIncludeSaysWhatTextHolds) {
    RunWith("##-##", [&](kv::User& user) {
        mask.SetPromptInclude(FALSE);
        EXPECT_EQ(mask.GetText(), "");
        user.Type(kMask, "1");
        EXPECT_EQ(mask.GetText(), "1-");
        EXPECT_EQ(user.Text(kMask), "1_-__");
        mask.SetPromptInclude(TRUE);
        EXPECT_EQ(mask.GetText(), "1_-__");
    });
}

TEST_F(MsMask, SetTextHasToFit) {
    RunWith("##-##", [&](kv::User& user) {
        mask.SetText("12-34");
        EXPECT_EQ(user.Text(kMask), "12-34");
        EXPECT_TRUE(dialog.WasTold("10 changed"));
        mask.SetText("abc");
        EXPECT_EQ(user.Text(kMask), "12-34");
        user.Window().SetDlgItemText(kMask, "5678");
        EXPECT_EQ(user.Text(kMask), "56-78");
        mask.SetText("");
        EXPECT_EQ(user.Text(kMask), "__-__");
        mask.SetText(nullptr);
        EXPECT_EQ(user.Text(kMask), "__-__");
    });
}

TEST_F(MsMask, SetClipTextFillsTheSlots) {
    RunWith("##-##", [&](kv::User& user) {
        mask.SetText("98-76");
        mask.SetClipText("123");
        EXPECT_EQ(user.Text(kMask), "12-3_");
        mask.SetClipText("");
        EXPECT_EQ(user.Text(kMask), "__-__");
    });
}

TEST_F(MsMask, WithoutAMaskItsClipTextIsItsText) {
    RunWith("", [&](kv::User& user) {
        mask.SetClipText("ab-cd");
        EXPECT_EQ(user.Text(kMask), "ab-cd");
        EXPECT_EQ(mask.GetClipText(), "ab-cd");
        user.Close();
    });
}

TEST_F(MsMask, SelTextIsReplacedAsByPasting) {
    RunWith("##-##", [&](kv::User& user) {
        mask.SetText("12-34");
        Select(1, 4);
        EXPECT_EQ(mask.GetSelText(), "2-3");
        mask.SetSelText("78");
        EXPECT_EQ(user.Text(kMask), "17-84");
        Select(0, 5);
        mask.SetSelText("");
        EXPECT_EQ(user.Text(kMask), "__-__");
        mask.SetSelStart(-3);
        mask.SetSelLength(-3);
        EXPECT_EQ(mask.GetSelStart(), 0);
        EXPECT_EQ(mask.GetSelLength(), 0);
    });
}

TEST_F(MsMask, AutoTabGoesOnWhenAllIsEntered) {
    RunWith("##", [&](kv::User& user) {
        mask.SetAutoTab(TRUE);
        user.Type(kMask, "123");
        EXPECT_EQ(user.Text(kMask), "12");
        EXPECT_EQ(test::FocusedId(), kBehind);
        EXPECT_EQ(user.Text(kBehind), "3");
    });
}

TEST_F(MsMask, AutoTabStaysWhileTypingIsNotAtTheEnd) {
    RunWith("##", [&](kv::User& user) {
        mask.SetText("12");
        mask.SetAutoTab(TRUE);
        user.Focus(kMask);
        mask.SetSelStart(0);
        kv::input::TypeHere("9");
        EXPECT_EQ(test::FocusedId(), kMask);
        kv::input::TypeHere("8");
        EXPECT_EQ(test::FocusedId(), kBehind);
        EXPECT_EQ(user.Text(kMask), "98");
    });
}

TEST_F(MsMask, AMaxLengthThatWasSetAheadHoldsFromTheStart) {
    mask.SetMaxLength(3);
    RunWith("", [&](kv::User& user) {
        user.Type(kMask, "12345");
        EXPECT_EQ(user.Text(kMask), "123");
        user.Close();
    });
}

TEST_F(MsMask, WithoutAMaskItIsAPlainEditOfItsMaxLength) {
    RunWith("", [&](kv::User& user) {
        mask.SetMaxLength(3);
        user.Type(kMask, "ab-cd");
        EXPECT_EQ(user.Text(kMask), "ab-");
        EXPECT_EQ(mask.GetClipText(), "ab-");
        user.Key(kMask, "Ctrl+Z");
        EXPECT_EQ(user.Text(kMask), "");
        mask.SetMaxLength(0);
        mask.SetMaxLength(65);
        EXPECT_EQ(mask.GetMaxLength(), 3);
        mask.SetAutoTab(TRUE);
        user.Type(kMask, "xyz");
        EXPECT_EQ(test::FocusedId(), kBehind);
    });
}

TEST_F(MsMask, AMaskThatComesTakesTheTextInIfItFits) {
    RunWith("", [&](kv::User& user) {
        mask.SetText("1234");
        mask.SetMask("##-##");
        EXPECT_EQ(user.Text(kMask), "12-34");
        mask.SetMask("");
        EXPECT_EQ(user.Text(kMask), "12-34");
        mask.SetMask("??");
        EXPECT_EQ(user.Text(kMask), "__");
        mask.SetMask(std::string(65, '#').c_str());
        EXPECT_EQ(mask.GetMask(), "??");
        mask.SetMask(nullptr);
        EXPECT_EQ(mask.GetMask(), "");
    });
}

TEST_F(MsMask, AMaskInThePlaceOfAnotherTakesWhatWasEntered) {
    RunWith("##-##", [&](kv::User& user) {
        mask.SetText("12-34");
        mask.SetMask("&&&&&");
        EXPECT_EQ(user.Text(kMask), "1234_");
    });
}

TEST_F(MsMask, WhatAMaskHeldIsFormattedWithoutIt) {
    RunWith("##", [&](kv::User& user) {
        mask.SetText("12");
        mask.SetFormat("0.0");
        user.Focus(kAhead);
        mask.SetMask("");
        EXPECT_EQ(user.Text(kMask), "12.0");
        EXPECT_EQ(mask.GetText(), "12");
    });
}

TEST_F(MsMask, TypingMarksItAsModified) {
    RunWith("##", [&](kv::User& user) {
        EXPECT_FALSE(mask.SendMessage(EM_GETMODIFY));
        user.Type(kMask, "1");
        EXPECT_TRUE(mask.SendMessage(EM_GETMODIFY));
    });
}

TEST_F(MsMask, ThePromptCharacterIsShownInEmptyPlaces) {
    RunWith("##", [&](kv::User& user) {
        mask.SetPromptChar("*x");
        EXPECT_EQ(user.Text(kMask), "**");
        EXPECT_EQ(mask.GetPromptChar(), "*");
        mask.SetPromptChar("");
        mask.SetPromptChar(nullptr);
        EXPECT_EQ(mask.GetPromptChar(), "*");
    });
}

TEST_F(MsMask, AllowPromptLetsAPlaceBeEmptiedByTyping) {
    RunWith("##", [&](kv::User& user) {
        mask.SetText("12");
        user.Focus(kMask);
        mask.SetSelStart(0);
        kv::input::TypeHere("_");
        EXPECT_EQ(user.Text(kMask), "12");
        mask.SetAllowPrompt(TRUE);
        kv::input::TypeHere("_");
        EXPECT_EQ(user.Text(kMask), "_2");
        EXPECT_EQ(mask.GetSelStart(), 1);
    });
}

TEST_F(MsMask, AFormatIsShownWhileTheFocusIsElsewhere) {
    RunWith("#####.##", [&](kv::User& user) {
        mask.SetFormat("$#,##0.00");
        user.Type(kMask, "1234.5");
        EXPECT_EQ(user.Text(kMask), "1234_.5_");
        EXPECT_EQ(mask.GetFormattedText(), "$1,234.50");
        user.Focus(kAhead);
        EXPECT_EQ(user.Text(kMask), "$1,234.50");
        EXPECT_EQ(mask.GetText(), "1234_.5_");
        EXPECT_EQ(mask.GetClipText(), "12345");
        user.Focus(kMask);
        EXPECT_EQ(user.Text(kMask), "1234_.5_");
    });
}

TEST_F(MsMask, AFormatNeedsNoMask) {
    RunWith("", [&](kv::User& user) {
        mask.SetFormat("#,##0");
        user.Type(kMask, "12345");
        user.Focus(kAhead);
        EXPECT_EQ(user.Text(kMask), "12,345");
        EXPECT_EQ(mask.GetText(), "12345");
        mask.SetText("6789");
        EXPECT_EQ(user.Text(kMask), "6,789");
        mask.SetFormat("");
        EXPECT_EQ(user.Text(kMask), "6789");
    });
}

TEST_F(MsMask, WithTheSelectionShownEverywhereTheFormatIsNot) {
    RunWith("##", [&](kv::User& user) {
        mask.SetText("12");
        mask.SetFormat("0.0");
        user.Focus(kAhead);
        EXPECT_EQ(user.Text(kMask), "12.0");
        mask.SetHideSelection(FALSE);
        EXPECT_FALSE(mask.GetHideSelection());
        EXPECT_EQ(user.Text(kMask), "12");
        EXPECT_EQ(mask.GetFormattedText(), "12.0");
        mask.SetHideSelection(TRUE);
        EXPECT_TRUE(mask.GetHideSelection());
        EXPECT_EQ(user.Text(kMask), "12.0");
    });
}

TEST_F(MsMask, AnEmptyMaskedTextIsNotFormatted) {
    RunWith("##", [&](kv::User& user) {
        mask.SetFormat("0.0");
        user.Focus(kAhead);
        EXPECT_EQ(user.Text(kMask), "__");
        EXPECT_EQ(mask.GetFormattedText(), "__");
    });
}

TEST_F(MsMask, SetFormattedTextReadsTheFormatBack) {
    RunWith("#####.##", [&](kv::User& user) {
        mask.SetFormat("$#,##0.00");
        user.Focus(kMask);
        mask.SetFormattedText("$1,234.50");
        EXPECT_EQ(user.Text(kMask), "1234_.50");
    });
}

TEST_F(MsMask, ACharacterOfSeveralBytesIsTypedAsOne) {
    RunWith("&&", [&](kv::User& user) {
        user.Type(kMask, "éx");
        EXPECT_EQ(user.Text(kMask), "éx");
        EXPECT_EQ(mask.GetSelStart(), 3);
        user.Key(0, "Backspace");
        user.Key(0, "Backspace");
        EXPECT_EQ(user.Text(kMask), "__");
    });
}

TEST_F(MsMask, AHandlerMayEndTheDialog) {
    RunWith("##", [&](kv::User& user) {
        mask.SetAutoTab(TRUE);
        dialog.when["10 changed"] = [&] { dialog.EndDialog(IDOK); };
        user.Focus(kMask);
        mask.SetSelStart(1);
        kv::input::TypeHere("1");
        EXPECT_FALSE(user.Open());
    });
}

TEST_F(MsMask, CanBeCreatedWhereThereIsNoTemplate) {
    RunWith("##", [&](kv::User& user) {
        CMSMask created;
        created.SetMask("#/#");
        EXPECT_TRUE(
            created.Create("12", WS_CHILD | WS_VISIBLE | WS_TABSTOP, {0, 0, 50, 12}, &dialog, 77));
        EXPECT_EQ(user.Text(77), "1/2");
        EXPECT_NE(created.GetHWnd(), 0);
        created.SetHWnd(5);
        EXPECT_EQ(created.GetDlgCtrlID(), 77);
        CMSMask other;
        EXPECT_TRUE(other.Create("any class", "", WS_CHILD, {0, 0, 5, 5}, &dialog, 78));
        EXPECT_FALSE(other.Create("", WS_CHILD, {0, 0, 5, 5}, &dialog, 79));
    });
}

TEST_F(MsMask, PaintsInItsColours) {
    RunWith("##", [&](kv::User&) {
        kv::Raster picture(10, 10);
        CDC dc(picture);
        EXPECT_EQ(mask.GetBackColor(), desktop.Color(kv::SystemColor::kWindow));
        mask.SetBackColor(RGB(1, 2, 3));
        mask.SetForeColor(RGB(4, 5, 6));
        const kv::ControlColors colors = kv::AskColors(*mask.m_hWnd, dc);
        EXPECT_EQ(colors.text, RGB(4, 5, 6));
        EXPECT_EQ(colors.background, RGB(1, 2, 3));
    });
}

TEST_F(MsMask, KeepsTheRestOfItsProperties) {
    RunWith("##", [&](kv::User& user) {
        mask.SetBorderStyle(1);
        EXPECT_EQ(mask.GetBorderStyle(), 1);
        mask.SetBorderStyle(0);
        EXPECT_EQ(mask.GetBorderStyle(), 0);
        mask.SetEnabled(FALSE);
        EXPECT_FALSE(user.Enabled(kMask));
        EXPECT_FALSE(mask.GetEnabled());
        mask.SetMousePointer(3);
        EXPECT_EQ(mask.GetMousePointer(), 3);
        mask.SetAppearance(0);
        EXPECT_EQ(mask.GetAppearance(), 0);
        mask.SetOLEDragMode(1);
        mask.SetOLEDropMode(2);
        EXPECT_EQ(mask.GetOLEDragMode(), 1);
        EXPECT_EQ(mask.GetOLEDropMode(), 2);
        const kv::ImageResource icon{1, 1, 1, {}, {}};
        mask.SetRefMouseIcon(&icon);
        EXPECT_EQ(mask.GetMouseIcon(), &icon);
        CFont font;
        font.CreatePointFont(120, "Courier");
        mask.SetRefFont(&font);
        EXPECT_EQ(mask.GetFont(), &font);
        ASSERT_TRUE(mask.m_hWnd->OwnFont());
        EXPECT_EQ(mask.m_hWnd->OwnFont()->face, "Courier");
        EXPECT_EQ(*reinterpret_cast<const kv::Font*>(mask.SendMessage(WM_GETFONT)),
                  *mask.m_hWnd->OwnFont());
        mask.SetRefFont(nullptr);
        EXPECT_EQ(mask.GetFont(), nullptr);
        EXPECT_FALSE(mask.m_hWnd->OwnFont());
        EXPECT_EQ(mask.SendMessage(WM_GETFONT), 0);
    });
}

}  // namespace
