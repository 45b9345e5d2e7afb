#include "print/sizing_dlg.h"

#include <cmath>

#include "frame/module.h"
#include "print/sizing_ids.h"
#include "support/dialog_fixture.h"

using namespace kv::sizing;
using testing::ElementsAre;

namespace {

class SizingDlg : public test::DialogTest {
protected:
    SizingDlg() {
        InitControlDll();
        Forget();
        dialog.SetBounds({0, 72000, 0, 36000});
        dialog.IsCGM(true);
    }
    /// As a program that has run none before.
    static void Forget() {
        CKvGuiSizingDlg none;
        for (const int unit : {1, 0}) {
            none.SetUnit(unit);
            none.SetScale(0);
        }
    }
    static std::string Size(kv::User& user) {
        return user.Text(kWidth) + " by " + user.Text(kHeight);
    }

    CKvGuiSizingDlg dialog;
};

TEST_F(SizingDlg, ProposesTheScaleAtWhichTheSmallerSideFitsThePaper) {
    const int result = Run(dialog, [&](kv::User& user) {
        CString caption;
        user.Window().GetWindowText(caption);
        EXPECT_STREQ(caption, "Map Sizing Dialog");
        EXPECT_EQ(user.Text(kScale), "1000");
        EXPECT_THAT(user.Rows(kScale),
                    ElementsAre("1000", "2000", "4000", "8000", "16000", "32000", "64000"));
        EXPECT_EQ(Size(user), "72 by 36");
        EXPECT_EQ(user.Text(kPaperWidth), "36");
        EXPECT_TRUE(user.Checked(kLandscape));
        EXPECT_FALSE(user.Checked(kPortrait));
        EXPECT_TRUE(user.Checked(kScaleMode));
        user.Click(IDOK);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(dialog.GetScale(), 1000);
    EXPECT_EQ(dialog.GetPageWidthSize(), 72.0F);
    EXPECT_EQ(dialog.GetPageHeightSize(), 36.0F);
    EXPECT_TRUE(dialog.GetLandScapeMode());
    EXPECT_TRUE(dialog.GetTrueTypeFont());
    EXPECT_TRUE(dialog.GetColorMode());
    EXPECT_TRUE(dialog.GetGrayMode());
}

TEST_F(SizingDlg, ASquareIsLandscapeAndAHigherMapPortraitButTheBoxesStay) {
    dialog.SetBounds({0, 36000, 0, 36000});
    Run(dialog, [&](kv::User& user) { EXPECT_TRUE(user.Checked(kLandscape)); });
    dialog.SetBounds({0, 36000, 0, 72000});
    Run(dialog, [&](kv::User& user) {
        EXPECT_FALSE(user.Checked(kLandscape));
        EXPECT_TRUE(user.Checked(kPortrait));
        EXPECT_EQ(Size(user), "36 by 72");
    });
}

TEST_F(SizingDlg, MetersAreARatioUntilTheMapIsTurned) {
    dialog.SetBounds({0, 10000, 0, 5000});
    dialog.SetUnit(1);
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kScale), "12500");
        EXPECT_EQ(user.Text(kScaleHead), "1");
        EXPECT_EQ(user.Text(kScaleUnit), "Meters");
        EXPECT_EQ(Size(user), "31.496 by 15.748");
        user.Click(kPortrait);
        EXPECT_EQ(Size(user), "0.4 by 0.8");
        user.Click(kLandscape);
        EXPECT_EQ(Size(user), "0.8 by 0.4");
        user.Select(kScale, "25000");
        EXPECT_EQ(Size(user), "15.748 by 7.874");
        user.Click(IDOK);
    });
    EXPECT_NEAR(dialog.GetPageWidthSize(), 15.748, 1e-5);
}

TEST_F(SizingDlg, TurningShowsTheLargerSideAcrossOrUp) {
    Run(dialog, [&](kv::User& user) {
        user.Click(kPortrait);
        EXPECT_EQ(Size(user), "36 by 72");
        EXPECT_FALSE(user.Checked(kLandscape));
        user.Click(IDOK);
    });
    EXPECT_FALSE(dialog.GetLandScapeMode());
    // The size is not turned.
    EXPECT_EQ(dialog.GetPageWidthSize(), 72.0F);
}

TEST_F(SizingDlg, APickedOrTypedScaleSizesTheMap) {
    Run(dialog, [&](kv::User& user) {
        user.Select(kScale, "4000");
        EXPECT_EQ(Size(user), "18 by 9");
        user.Type(kScale, "3000");
        EXPECT_EQ(Size(user), "24 by 12");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetScale(), 3000);
}

TEST_F(SizingDlg, AScaleThatIsNoNumberMakesTheMapEndless) {
    Run(dialog, [&](kv::User& user) {
        for (const char* text : {"abc", "0", ""}) {
            user.Type(kScale, "1000");
            user.Type(kScale, text);
            EXPECT_EQ(Size(user), "inf by inf") << text;
            EXPECT_EQ(dialog.GetScale(), 0) << text;
        }
        user.Type(kScale, "-9");
        EXPECT_EQ(Size(user), "-8000 by -4000");
        user.Paste(kScale, std::string(1'000'000, '5'));
        EXPECT_EQ(dialog.GetScale(), 2147483647);
        EXPECT_EQ(Size(user), "3.35276e-005 by 1.67638e-005");
        user.Type(kScale, "abc");
        user.Click(IDOK);
    });
    EXPECT_TRUE(std::isinf(dialog.GetPageWidthSize()));
}

TEST_F(SizingDlg, BoundsWithoutExtentHaveNoSize) {
    dialog.SetBounds({5, 5, 5, 5});
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kScale), "0");
        EXPECT_EQ(Size(user), "nan by nan");
    });
}

TEST_F(SizingDlg, CancelGivesItsScaleBackButNotTheOneRemembered) {
    const int result = Run(dialog, [&](kv::User& user) {
        user.Type(kScale, "3000");
        user.Click(IDCANCEL);
    });
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(dialog.GetScale(), 1000);
    // The next run shows the one beside the size of the other.
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kScale), "3000");
        EXPECT_EQ(Size(user), "72 by 36");
    });
}

TEST_F(SizingDlg, RemembersTheScaleOfEachUnitOverAllDialogs) {
    Run(dialog, [](kv::User& user) {
        user.Type(kScale, "3000");
        user.Click(IDOK);
    });
    CKvGuiSizingDlg next;
    next.SetBounds({0, 72000, 0, 36000});
    // It has no scale of its own: it proposes one.
    Run(next, [](kv::User& user) { EXPECT_EQ(user.Text(kScale), "1000"); });
    next.SetScale(250);
    Run(next, [](kv::User& user) { EXPECT_EQ(user.Text(kScale), "250"); });
    // Its unit has none remembered.
    next.SetUnit(1);
    Run(next, [](kv::User& user) { EXPECT_EQ(user.Text(kScale), "50000"); });
    next.SetUnit(0);
    Run(next, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kScale), "250");
        EXPECT_EQ(Size(user), "1.44 by 0.72");
    });
}

TEST_F(SizingDlg, NeedsNoWindowToComputeAScale) {
    dialog.SetBounds({0, 3'600'000, 0, 2'000'000});
    EXPECT_EQ(dialog.CalculateScaleClosed(), 64000);
    dialog.SetBounds({0, 35, 0, 36});
    EXPECT_EQ(dialog.CalculateScaleClosed(), 64000);
    dialog.SetBounds({0, 36, 0, 36});
    EXPECT_EQ(dialog.CalculateScaleClosed(), 1000);
}

TEST_F(SizingDlg, EitherTheScaleOrTheSizeIsTyped) {
    Run(dialog, [&](kv::User& user) {
        // Hosts may show them.
        for (const int id : {kScaleMode, kSettingsMode})
            dialog.GetDlgItem(id)->ShowWindow(SW_SHOW);
        user.Type(kWidth, "5");
        EXPECT_EQ(user.Text(kWidth), "72");
        user.Click(kSettingsMode);
        EXPECT_FALSE(user.Checked(kScaleMode));
        EXPECT_FALSE(user.Enabled(kScale));
        user.Type(kWidth, "5");
        user.Type(kHeight, "6");
        EXPECT_EQ(Size(user), "5 by 6");
        user.Click(kScaleMode);
        EXPECT_FALSE(user.Checked(kSettingsMode));
        EXPECT_TRUE(user.Enabled(kScale));
        user.Type(kHeight, "7");
        EXPECT_EQ(Size(user), "5 by 6");
        user.Type(kPaperWidth, "40");
        EXPECT_EQ(user.Text(kPaperWidth), "36");
    });
}

TEST_F(SizingDlg, TextAndColorAreTakenByOK) {
    Run(dialog, [&](kv::User& user) {
        user.Click(kStrokeFont);
        user.Click(kBlackAndWhite);
        user.Click(kGray);
        user.Click(IDOK);
    });
    EXPECT_FALSE(dialog.GetTrueTypeFont());
    EXPECT_FALSE(dialog.GetColorMode());
    EXPECT_FALSE(dialog.GetGrayMode());
}

TEST_F(SizingDlg, UnlessItGoesToAFileOnlyScaleAndSizeShow) {
    dialog.IsCGM(false);
    Run(dialog, [&](kv::User& user) {
        CRect all;
        dialog.GetClientRect(&all);
        const auto placeOf = [&](int id) { return dialog.GetDlgItem(id)->m_hWnd->Rect(); };
        EXPECT_EQ(all.Height(), (placeOf(kLandscape).bottom + placeOf(kPaperWidth).top) / 2);
        for (const int id : {kLandscape, kPortrait, kOrientation})
            EXPECT_FALSE(user.Visible(id)) << id;
        EXPECT_EQ(placeOf(IDCANCEL).top, placeOf(kLandscape).top);
        EXPECT_LE(placeOf(IDCANCEL).bottom, all.bottom);
        EXPECT_LT(placeOf(IDOK).bottom, placeOf(IDCANCEL).top);
        std::vector<int> visited{test::FocusedId()};
        for (int stop = 0; stop < 5; ++stop) {
            user.Key(0, "Tab");
            visited.push_back(test::FocusedId());
        }
        EXPECT_THAT(visited, ElementsAre(kScale, kWidth, kHeight, IDOK, IDCANCEL, kScale));
        user.Click(IDOK);
    });
    // What could not be chosen is as the dialog begins.
    EXPECT_TRUE(dialog.GetLandScapeMode());
    EXPECT_TRUE(dialog.GetColorMode());
}

}  // namespace
