#include "print/print_control.h"

#include "print/print_control_ids.h"
#include "print_fixture.h"
#include "window/controls/combo_box.h"
#include "window/controls/edit.h"

using namespace kv::print_control;
using testing::ElementsAre;
using testing::Not;

namespace {

/// The room for a map is 35 by 35 inches where there is no printer.
const CMinMax2Dd_t kMap{100000, 130000, 500000, 520000};

CMinMax2Dd_t BoundsOf(double width, double height) {
    return {0, width, 0, height};
}

/// Handed out by hosts that derive.
class Derived : public CKvGuiPrintControl {
public:
    using CKvGuiPrintControl::AddNewPrintScale;
    using CKvGuiPrintControl::CKvGuiPrintControl;
    using CKvGuiPrintControl::m_nFeetScale;
    using CKvGuiPrintControl::m_nMeterScale;
    using CKvGuiPrintControl::m_pDevMode;
    using CKvGuiPrintControl::SetPrintScale;
};

class PrintControl : public test::PrintTest {
protected:
    PrintControl() {
        dialog.SetBounds(kMap);
        dialog.IsCGM(true);
    }
    /// Without a printer, of which the person is told first.
    int RunWithoutPrinter(CDialog& which, const std::function<void(kv::User&)>& act) {
        desktop.SetNoPrinter();
        desktop.ExpectMessage(kNoPrinter);
        return Run(which, act);
    }
    int RunWithoutPrinter(const std::function<void(kv::User&)>& act) {
        return RunWithoutPrinter(dialog, act);
    }
    static std::string SizeOf(kv::User& user, int width, int height) {
        return user.Text(width) + " by " + user.Text(height);
    }
    static std::string MapSize(kv::User& user) { return SizeOf(user, kMapWidth, kMapHeight); }
    static std::string PageSize(kv::User& user) { return SizeOf(user, kPageWidth, kPageHeight); }
    static std::string CheckedOf(kv::User& user, int landscape, int portrait) {
        const bool both = user.Checked(landscape) && user.Checked(portrait);
        if (both) return "both";
        return user.Checked(landscape) ? "landscape"
                                       : (user.Checked(portrait) ? "portrait" : "none");
    }

    Derived dialog{nullptr, nullptr};
};

const kv::PrinterSettings kPlotter{"Plotter North", 0, false, 9144, 12192, "ARCH E"};

// The first test of this file, since the others set them.
TEST(PrintControlOfAFreshProgram, BeginsInColorAndUpright) {
    using Control = CKvGuiPrintControl;
    EXPECT_TRUE(Control::m_bTTFont);
    EXPECT_TRUE(Control::m_bColor);
    EXPECT_TRUE(Control::m_bFresh);
    EXPECT_FALSE(Control::m_bLandscape);
    EXPECT_FALSE(Control::m_bGray);
    EXPECT_FALSE(Control::m_bIsCGM);
    EXPECT_FALSE(Control::m_bPrintLandscape);
    EXPECT_EQ(Control::m_fMargin, 1.0F);
    EXPECT_EQ(Control::m_fPrintBoundWidth, 36.0F);
    EXPECT_EQ(Control::m_fPrintBoundHeight, 36.0F);
}

// The map scale.

TEST_F(PrintControl, ProposesTheScaleAtWhichTheSmallerSideFits) {
    const int result = RunWithoutPrinter([&](kv::User& user) {
        CString caption;
        user.Window().GetWindowText(caption);
        EXPECT_STREQ(caption, "Print / Preview Dialog");
        EXPECT_EQ(user.Text(kMapScale), "1000");
        EXPECT_THAT(user.Selected(kMapScale), ElementsAre(0));
        EXPECT_EQ(MapSize(user), "30 by 20");
        EXPECT_EQ(CheckedOf(user, kMapLandscape, kMapPortrait), "landscape");
        EXPECT_EQ(user.Text(kMapScaleHead), "1 Inch =");
        EXPECT_EQ(user.Text(kMapScaleUnit), "Feet");
        user.Click(IDOK);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(CKvGuiPrintControl::m_nMapScale, 1000);
    EXPECT_EQ(CKvGuiPrintControl::m_nOrigScale, 1000);
    EXPECT_TRUE(CKvGuiPrintControl::m_bLandscape);
    EXPECT_EQ(dialog.GetPaperWidth(true, false), 30.0F);
    EXPECT_EQ(dialog.GetPaperHeight(false, false), 20.0F);
}

TEST_F(PrintControl, OkKeepsTheMapsLieAsItIsCheckedByWhomever) {
    RunWithoutPrinter([&](kv::User& user) {
        user.Window().CheckDlgButton(kMapLandscape, BST_UNCHECKED);
        user.Window().CheckDlgButton(kMapPortrait, BST_CHECKED);
        user.Click(IDOK);
    });
    EXPECT_FALSE(CKvGuiPrintControl::m_bLandscape);
}

TEST_F(PrintControl, ListsTheScalesOfFeet) {
    RunWithoutPrinter([&](kv::User& user) {
        EXPECT_THAT(user.Rows(kMapScale),
                    ElementsAre("1000", "2000", "4000", "8000", "16000", "32000", "64000"));
    });
}

TEST_F(PrintControl, ASquareIsLandscapeAndAHigherMapPortrait) {
    dialog.SetBounds(BoundsOf(10000, 10000));
    RunWithoutPrinter([&](kv::User& user) {
        EXPECT_EQ(CheckedOf(user, kMapLandscape, kMapPortrait), "landscape");
    });
    dialog.SetBounds(BoundsOf(20000, 30000));
    RunWithoutPrinter([&](kv::User& user) {
        EXPECT_EQ(CheckedOf(user, kMapLandscape, kMapPortrait), "portrait");
        EXPECT_EQ(MapSize(user), "20 by 30");
        EXPECT_FALSE(CKvGuiPrintControl::m_bLandscape);
    });
}

TEST_F(PrintControl, MetersHaveTheirOwnScalesAndLabels) {
    dialog.SetBounds(BoundsOf(10000, 10000));
    dialog.SetUnit(1);
    RunWithoutPrinter([&](kv::User& user) {
        EXPECT_EQ(user.Text(kMapScale), "12500");
        EXPECT_THAT(user.Rows(kMapScale),
                    ElementsAre("12500", "25000", "50000", "100000", "200000", "400000", "800000"));
        EXPECT_EQ(user.Text(kMapScaleHead), "1");
        EXPECT_EQ(user.Text(kMapScaleUnit), "Meters");
        // Those of the print scale stay.
        EXPECT_EQ(user.Text(kPrintScaleHead), "1 Inch =");
        EXPECT_EQ(user.Text(kPrintScaleUnit), "Feet");
        EXPECT_EQ(MapSize(user), "31.496 by 31.496");
    });
    EXPECT_EQ(dialog.m_nMeterScale, 12500);
    EXPECT_EQ(dialog.m_nFeetScale, 0);
}

TEST_F(PrintControl, APickedMapScaleSizesTheMap) {
    RunWithoutPrinter([&](kv::User& user) {
        user.Select(kMapScale, "2000");
        EXPECT_EQ(MapSize(user), "15 by 10");
        EXPECT_EQ(CKvGuiPrintControl::m_nMapScale, 2000);
        user.Key(kMapScale, "Down");
        EXPECT_EQ(MapSize(user), "7.5 by 5");
    });
}

TEST_F(PrintControl, ATypedMapScaleSizesTheMapAtEachKey) {
    RunWithoutPrinter([&](kv::User& user) {
        user.Type(kMapScale, "15");
        EXPECT_EQ(MapSize(user), "2000 by 1333.33");
        user.Key(kMapScale, "End");
        user.Key(kMapScale, "0");
        user.Key(kMapScale, "0");
        EXPECT_EQ(MapSize(user), "20 by 13.3333");
        user.Click(IDOK);
    });
    EXPECT_EQ(CKvGuiPrintControl::m_nMapScale, 1500);
}

TEST_F(PrintControl, AScaleOfTheHostsThatIsNotListedIsWrittenWhole) {
    // "1000" begins with it.
    dialog.SetScale(100);
    RunWithoutPrinter([&](kv::User& user) {
        EXPECT_EQ(user.Text(kMapScale), "100");
        EXPECT_TRUE(user.Selected(kMapScale).empty());
        EXPECT_EQ(MapSize(user), "300 by 200");
    });
}

TEST_F(PrintControl, ATextForAMapScaleIsToldOfAndLeavesTheSize) {
    RunWithoutPrinter([&](kv::User& user) {
        for (int letter = 0; letter < 3; ++letter)
            desktop.ExpectMessage(kNoScale);
        user.Type(kMapScale, "abc");
        EXPECT_EQ(MapSize(user), "30 by 20");
        EXPECT_EQ(dialog.GetPaperWidth(true, false), 30.0F);
        EXPECT_EQ(CKvGuiPrintControl::m_nMapScale, 0);
        desktop.ExpectMessage(kNoScale);
        user.Type(kMapScale, "0");
        EXPECT_EQ(MapSize(user), "30 by 20");
    });
}

TEST_F(PrintControl, AnEmptiedMapScaleIsNotToldOf) {
    RunWithoutPrinter([&](kv::User& user) {
        user.Type(kMapScale, "");
        EXPECT_EQ(CKvGuiPrintControl::m_nMapScale, 0);
        EXPECT_EQ(MapSize(user), "30 by 20");
        user.Type(kMapScale, "4000");
        EXPECT_EQ(MapSize(user), "7.5 by 5");
    });
}

TEST_F(PrintControl, TakesNegativeAndEndlessMapScalesAsTheyAre) {
    RunWithoutPrinter([&](kv::User& user) {
        desktop.ExpectMessage(kNoScale);
        user.Type(kMapScale, "-5");
        EXPECT_EQ(CKvGuiPrintControl::m_nMapScale, -5);
        EXPECT_EQ(MapSize(user), "-4000 by -6000");
        user.Paste(kMapScale, std::string(1'000'000, '9'));
        EXPECT_EQ(CKvGuiPrintControl::m_nMapScale, 2147483647);
        EXPECT_EQ(MapSize(user), "1.39698e-005 by 9.31323e-006");
    });
}

TEST_F(PrintControl, BoundsWithoutExtentHaveNoMapScale) {
    dialog.SetBounds(BoundsOf(0, 0));
    desktop.ExpectMessage(kNoScale);
    RunWithoutPrinter([&](kv::User& user) {
        EXPECT_EQ(user.Text(kMapScale), "0");
        EXPECT_EQ(MapSize(user), " by ");
        EXPECT_EQ(user.Text(kPrintScale), "1");
        EXPECT_EQ(PageSize(user), "0 by 0");
        user.Type(kPrintScale, "0");
        EXPECT_EQ(PageSize(user), "nan by nan");
    });
}

TEST_F(PrintControl, TheOrientationTurnsTheShownSize) {
    RunWithoutPrinter([&](kv::User& user) {
        // Hosts may show them.
        for (const int id : {kMapLandscape, kMapPortrait})
            dialog.GetDlgItem(id)->ShowWindow(SW_SHOW);
        user.Click(kMapPortrait);
        EXPECT_EQ(MapSize(user), "20 by 30");
        EXPECT_FALSE(CKvGuiPrintControl::m_bLandscape);
        user.Click(kMapLandscape);
        EXPECT_EQ(MapSize(user), "30 by 20");
        user.Click(kMapPortrait);
        user.Click(IDOK);
    });
    EXPECT_FALSE(CKvGuiPrintControl::m_bLandscape);
}

TEST_F(PrintControl, AHostThatShowsTheMapScaleTakesTheOrientationAsItIsChecked) {
    RunWithoutPrinter([&](kv::User& user) {
        // Hosts may show them.
        for (const int id : {kMapLandscape, kMapPortrait})
            dialog.GetDlgItem(id)->ShowWindow(SW_SHOW);
        for (const bool landscape : {false, true}) {
            user.Click(landscape ? kMapLandscape : kMapPortrait);
            CKvGuiPrintControl::m_bLandscape = !landscape;
            dialog.SelectMapScale(0, 0);
            EXPECT_EQ(CKvGuiPrintControl::m_bLandscape, landscape);
            EXPECT_EQ(user.Text(kMapScale), "1000");
        }
    });
}

TEST_F(PrintControl, CancelGivesTheMapScaleBackButNotThePrintScaleNorThatOfTheUnit) {
    const int result = RunWithoutPrinter([&](kv::User& user) {
        user.Select(kMapScale, "2000");
        user.Select(kPrintScale, "4000");
        user.Click(IDCANCEL);
    });
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(CKvGuiPrintControl::m_nMapScale, 1000);
    EXPECT_EQ(dialog.GetScale(), 4000);
    // The next run shows the one beside the size of the other.
    RunWithoutPrinter([&](kv::User& user) {
        EXPECT_EQ(user.Text(kMapScale), "2000");
        EXPECT_EQ(MapSize(user), "30 by 20");
    });
}

TEST_F(PrintControl, TheScaleOfARunIsKeptInTheNextOneOfItsUnit) {
    RunWithoutPrinter([&](kv::User& user) {
        user.Select(kMapScale, "2000");
        user.Click(IDOK);
    });
    RunWithoutPrinter([&](kv::User& user) { EXPECT_EQ(user.Text(kMapScale), "2000"); });
    dialog.SetUnit(1);
    RunWithoutPrinter([&](kv::User& user) { EXPECT_EQ(user.Text(kMapScale), "25000"); });
}

TEST_F(PrintControl, AnotherDialogComputesItsScaleByThePageOfTheLastPrinter) {
    desktop.SetPrinter({"Office", 1, false, 2159, 2794});
    Run(dialog, [](kv::User& user) { user.Click(IDOK); });
    CKvGuiPrintControl next(nullptr, nullptr);
    next.SetBounds(kMap);
    Run(next, [&](kv::User& user) {
        // 20000 feet on 11 inches, and not on 36.
        EXPECT_EQ(user.Text(kMapScale), "2000");
    });
}

// The print scale.

TEST_F(PrintControl, ProposesThePrintScaleAtWhichTheMapFits) {
    RunWithoutPrinter([&](kv::User& user) {
        EXPECT_EQ(user.Text(kPrintScale), "858");
        EXPECT_THAT(user.Rows(kPrintScale),
                    ElementsAre("857", "858", "1000", "2000", "4000", "8000", "16000", "32000",
                                "64000", "128000", "256000", "512000"));
        EXPECT_THAT(user.Selected(kPrintScale), ElementsAre(1));
        EXPECT_EQ(PageSize(user), "34.965 by 23.31");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetScale(), 858);
    EXPECT_NEAR(dialog.GetPaperWidth(true, true), 34.965, 1e-3);
    EXPECT_NEAR(dialog.GetPaperHeight(true, true), 23.31, 1e-3);
}

TEST_F(PrintControl, LeavesEveryScaleOnTheWayDownInTheList) {
    dialog.SetBounds(BoundsOf(35000, 10000));
    RunWithoutPrinter([&](kv::User& user) {
        EXPECT_EQ(user.Text(kPrintScale), "1020");
        EXPECT_THAT(user.Rows(kPrintScale),
                    ElementsAre("990", "1000", "1020", "2000", "4000", "8000", "16000", "32000",
                                "64000", "128000", "256000", "512000"));
    });
}

TEST_F(PrintControl, ScalesOfAMillionAndMoreAreShownInSixDigitsAndPickedWhole) {
    dialog.SetBounds(BoundsOf(43'210'000, 1000));
    RunWithoutPrinter([&](kv::User& user) {
        EXPECT_EQ(dialog.GetScale(), 1'234'572);
        EXPECT_EQ(user.Text(kPrintScale), "1.23457e+006");
        user.Select(kPrintScale, "2000");
        user.Select(kPrintScale, "1.23457e+006");
        EXPECT_EQ(user.Text(kPrintScale), "1.23457e+006");
        EXPECT_EQ(dialog.GetScale(), 1'234'572);
        EXPECT_EQ(PageSize(user), "35 by 0.000809997");
    });
}

TEST_F(PrintControl, TheListedScalesOfMetersAreReadWholeAfterTheRefill) {
    dialog.SetBounds(BoundsOf(10000, 10000));
    dialog.SetUnit(1);
    RunWithoutPrinter([&](kv::User& user) {
        EXPECT_THAT(user.Rows(kPrintScale),
                    ElementsAre("937", "938", "12500", "25000", "50000", "100000", "200000",
                                "400000", "800000", "1.6e+006", "3.2e+006", "6.4e+006"));
        user.Select(kPrintScale, "1.6e+006");
        EXPECT_EQ(dialog.GetScale(), 1'600'000);
        // Typed again as it stands, it is the same.
        user.Key(kPrintScale, "End");
        user.Key(kPrintScale, "Backspace");
        EXPECT_EQ(dialog.GetScale(), 1);
        user.Key(kPrintScale, "6");
        EXPECT_EQ(dialog.GetScale(), 1'600'000);
    });
}

TEST_F(PrintControl, AScaleIsInTheListOnce) {
    dialog.SetBounds(BoundsOf(10000, 10000));
    dialog.SetUnit(1);
    RunWithoutPrinter([&](kv::User& user) {
        const auto before = user.Rows(kPrintScale);
        EXPECT_TRUE(dialog.AddNewPrintScale(1'600'000));
        EXPECT_TRUE(dialog.AddNewPrintScale(12'500));
        EXPECT_EQ(user.Rows(kPrintScale), before);
        EXPECT_FALSE(dialog.AddNewPrintScale(-1));
        EXPECT_EQ(user.Rows(kPrintScale), before);
        EXPECT_TRUE(dialog.AddNewPrintScale(0));
        EXPECT_EQ(user.Rows(kPrintScale).front(), "0");
    });
}

TEST_F(PrintControl, APickedPrintScaleSizesThePage) {
    RunWithoutPrinter([&](kv::User& user) {
        user.Select(kPrintScale, "1000");
        EXPECT_EQ(PageSize(user), "30 by 20");
        EXPECT_EQ(user.Text(kPrintScale), "1000");
        user.Key(kPrintScale, "Down");
        EXPECT_EQ(user.Text(kPrintScale), "2000");
        EXPECT_EQ(PageSize(user), "15 by 10");
        user.Select(kPrintScale, 0);
        EXPECT_EQ(user.Text(kPrintScale), "857");
        EXPECT_EQ(PageSize(user), "35.0058 by 23.3372");
        user.Select(kPrintScale, "2000");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetScale(), 2000);
    EXPECT_EQ(dialog.GetPaperWidth(true, true), 15.0F);
}

TEST_F(PrintControl, OfMetersThePageShowsTheMapsSizeWhateverThePrintScale) {
    dialog.SetBounds(BoundsOf(10000, 5000));
    dialog.SetUnit(1);
    RunWithoutPrinter([&](kv::User& user) {
        // Twice 12 inches and 3.28083333 feet.
        user.Select(kPrintScale, "50000");
        EXPECT_EQ(PageSize(user), "1240 by 619.999");
        user.Select(kPrintScale, "100000");
        EXPECT_EQ(PageSize(user), "1240 by 619.999");
    });
}

TEST_F(PrintControl, ATypedPrintScaleIsReadAsItIs) {
    RunWithoutPrinter([&](kv::User& user) {
        user.Type(kPrintScale, "500");
        EXPECT_EQ(PageSize(user), "60 by 40");
        EXPECT_EQ(user.Text(kPrintScale), "500");
        user.Type(kPrintScale, "abc");
        EXPECT_EQ(dialog.GetScale(), 0);
        EXPECT_EQ(PageSize(user), "inf by inf");
        user.Type(kPrintScale, "0");
        EXPECT_EQ(PageSize(user), "inf by inf");
        user.Type(kPrintScale, "-10");
        EXPECT_EQ(PageSize(user), "-3000 by -2000");
        user.Paste(kPrintScale, std::string(1'000'000, '7'));
        EXPECT_EQ(dialog.GetScale(), 2147483647);
        EXPECT_EQ(PageSize(user), "1.39698e-005 by 9.31323e-006");
        user.Type(kPrintScale, "");
        EXPECT_EQ(dialog.GetScale(), 0);
    });
}

TEST_F(PrintControl, SelectPrintScaleTakesTheLargestListedOne) {
    dialog.SetUnit(1);
    RunWithoutPrinter([&](kv::User& user) {
        EXPECT_TRUE(dialog.SelectPrintScale(400'000, 1));
        EXPECT_EQ(user.Text(kPrintScale), "200000");
        EXPECT_TRUE(dialog.SelectPrintScale(800'000, 1));
        EXPECT_EQ(user.Text(kPrintScale), "800000");
        EXPECT_FALSE(dialog.SelectPrintScale(500'000, 1));
        EXPECT_EQ(user.Text(kPrintScale), "500000");
        EXPECT_TRUE(user.Selected(kPrintScale).empty());
    });
    dialog.SetUnit(0);
    RunWithoutPrinter([&](kv::User& user) {
        EXPECT_FALSE(dialog.SelectPrintScale(999, 0));
        EXPECT_EQ(user.Text(kPrintScale), "999");
        EXPECT_TRUE(dialog.SelectPrintScale(1999, 0));
        EXPECT_EQ(user.Text(kPrintScale), "1000");
    });
}

// The page boxes.

TEST_F(PrintControl, ThePageBoxesTakeNoTyping) {
    RunWithoutPrinter([&](kv::User& user) {
        const std::string before = PageSize(user);
        user.Type(kPageWidth, "7");
        user.Type(kPageHeight, "7");
        EXPECT_EQ(PageSize(user), before);
    });
}

TEST_F(PrintControl, ABoxThatHadTheFocusMakesThePageNoSquare) {
    RunWithoutPrinter([&](kv::User& user) {
        user.Focus(kPageWidth);
        user.Select(kPrintScale, "1000");
        EXPECT_EQ(PageSize(user), "30 by 20");
        user.Focus(kPageHeight);
        user.Select(kPrintScale, "2000");
        EXPECT_EQ(PageSize(user), "15 by 10");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetPaperWidth(true, true), 15.0F);
    EXPECT_EQ(dialog.GetPaperHeight(true, true), 10.0F);
}

TEST_F(PrintControl, WhereAHostLetsThemBeTypedTheOtherSideFollows) {
    RunWithoutPrinter([&](kv::User& user) {
        for (const int id : {kPageWidth, kPageHeight})
            dialog.Control<CEdit>(id).SetReadOnly(FALSE);
        user.Type(kPageWidth, "20");
        EXPECT_EQ(PageSize(user), "20 by 20");
        user.Type(kPageHeight, "12.5");
        EXPECT_EQ(PageSize(user), "12.5 by 12.5");
        // Below an inch the other box stays, and an emptied box changes nothing.
        user.Type(kPageHeight, ".5");
        EXPECT_EQ(PageSize(user), "12.5 by .5");
        EXPECT_EQ(dialog.GetPaperWidth(true, true), 0.5F);
        user.Type(kPageHeight, "");
        EXPECT_EQ(dialog.GetPaperHeight(true, true), 0.5F);
    });
}

// The printer.

TEST_F(PrintControl, ShowsThePrinterAndFitsItsPage) {
    desktop.SetPrinter(kPlotter);
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kPrinterName), "Plotter North");
        EXPECT_EQ(user.Text(kForm), "ARCH E");
        EXPECT_EQ(CheckedOf(user, kPrinterLandscape, kPrinterPortrait), "portrait");
        // 30000 feet across on 36.0274 inches less one.
        EXPECT_EQ(user.Text(kPrintScale), "857");
        EXPECT_EQ(PageSize(user), "35.0058 by 23.3372");
    });
    EXPECT_NEAR(CKvGuiPrintControl::m_fPrintBoundWidth, 36.0274, 1e-4);
    EXPECT_NEAR(CKvGuiPrintControl::m_fPrintBoundHeight, 48.0365, 1e-4);
    EXPECT_FALSE(dialog.GetLandScapeMode());
}

TEST_F(PrintControl, OfAPrinterInLandscapeThePageLiesAcross) {
    desktop.SetPrinter({"Office", 1, true, 2159, 2794});
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kForm), "Letter");
        EXPECT_EQ(CheckedOf(user, kPrinterLandscape, kPrinterPortrait), "landscape");
        // 20000 feet up on 7.50646 inches is 2664, and 30000 across on 10.0084 the more.
        EXPECT_EQ(user.Text(kPrintScale), "3020");
        EXPECT_EQ(PageSize(user), "9.93377 by 6.62252");
    });
    EXPECT_NEAR(CKvGuiPrintControl::m_fPrintBoundWidth, 11.0084, 1e-4);
    EXPECT_NEAR(CKvGuiPrintControl::m_fPrintBoundHeight, 8.50646, 1e-5);
    EXPECT_TRUE(dialog.GetLandScapeMode());
}

TEST_F(PrintControl, APageThatIsTurnedIsFittedAnew) {
    desktop.SetPrinter({"Office", 1, false, 2159, 2794});
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kPrintScale), "4000");
        user.Click(kPrinterLandscape);
        EXPECT_EQ(user.Text(kPrintScale), "3020");
        EXPECT_EQ(PageSize(user), "9.93377 by 6.62252");
        // What the first search came by is gone.
        EXPECT_THAT(user.Rows(kPrintScale), Not(testing::Contains("3990")));
        user.Click(kPrinterPortrait);
        EXPECT_EQ(user.Text(kPrintScale), "4000");
        user.Click(kPrinterLandscape);
        user.Click(IDOK);
    });
    EXPECT_TRUE(dialog.GetLandScapeMode());
}

TEST_F(PrintControl, APrinterInLandscapeKeepsItsPageWhereItIsTurnedBack) {
    desktop.SetPrinter({"Office", 1, true, 2159, 2794});
    Run(dialog, [&](kv::User& user) {
        user.Click(kPrinterPortrait);
        EXPECT_EQ(PageSize(user), "10 by 6.66667");
    });
}

TEST_F(PrintControl, WithoutAPrinterTheDefaultsHold) {
    dialog.SetPrintMode(true);
    dialog.SetDefaultPaperWidth(21.0F);
    dialog.SetDefaultPaperHeight(31.0F);
    RunWithoutPrinter([&](kv::User& user) {
        EXPECT_EQ(user.Text(kPrinterName), "");
        EXPECT_EQ(user.Text(kForm), "");
        EXPECT_EQ(user.Text(kMinimalFontSize), "");
        EXPECT_TRUE(user.Enabled(kMinimalFontSize));
        EXPECT_EQ(CheckedOf(user, kPrinterLandscape, kPrinterPortrait), "none");
        // On 20 inches.
        EXPECT_EQ(user.Text(kPrintScale), "1520");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetMinimalFontSize(), 0);
}

TEST_F(PrintControl, AnotherPrinterIsFittedAnew) {
    desktop.SetPrinter({"Office", 1, true, 2159, 2794});
    Run(dialog, [&](kv::User& user) {
        const std::string scaleOfOffice = user.Text(kPrintScale);
        EXPECT_NE(scaleOfOffice, "857");
        desktop.ExpectPrintSetupCancel();
        user.Click(kChangePrinter);
        EXPECT_FALSE(dialog.IsPrinterSetup());
        EXPECT_EQ(user.Text(kPrinterName), "Office");
        desktop.ExpectPrintSetup(kPlotter);
        user.Click(kChangePrinter);
        EXPECT_TRUE(dialog.IsPrinterSetup());
        EXPECT_EQ(user.Text(kPrinterName), "Plotter North");
        EXPECT_EQ(user.Text(kForm), "ARCH E");
        EXPECT_EQ(CheckedOf(user, kPrinterLandscape, kPrinterPortrait), "portrait");
        EXPECT_EQ(user.Text(kPrintScale), "857");
        desktop.ExpectPrintSetup({"Office", 1, true, 2159, 2794});
        user.Click(kChangePrinter);
        EXPECT_EQ(CheckedOf(user, kPrinterLandscape, kPrinterPortrait), "landscape");
        EXPECT_EQ(user.Text(kPrintScale), scaleOfOffice);
        desktop.ExpectPrintSetup(kPlotter);
        user.Click(kChangePrinter);
        user.Click(IDOK);
    });
    EXPECT_FALSE(dialog.GetLandScapeMode());
}

TEST_F(PrintControl, AScaleThatIsNoneIsShownButNotListed) {
    desktop.SetPrinter(kPlotter);
    Run(dialog, [&](kv::User& user) {
        const auto scales = user.Rows(kPrintScale);
        dialog.SetPrintScale(-5, true);
        EXPECT_EQ(user.Text(kPrintScale), "-5");
        EXPECT_EQ(user.Rows(kPrintScale), scales);
    });
}

TEST_F(PrintControl, APrinterThatGoesAwayBetweenTwoOpeningsGivesWay) {
    desktop.SetPrinter({"Office", 1, false, 2159, 2794});
    Run(dialog, [&](kv::User& user) {
        desktop.ExpectPrintSetup(kPlotter);
        user.Click(kChangePrinter);
        user.Click(IDOK);
    });
    Run(dialog, [&](kv::User& user) { EXPECT_EQ(user.Text(kPrinterName), "Plotter North"); });
    desktop.RemovePrinter("Plotter North");
    Run(dialog, [&](kv::User& user) { EXPECT_EQ(user.Text(kPrinterName), "Office"); });
    // The page is still that of the last one.
    RunWithoutPrinter([&](kv::User& user) {
        EXPECT_EQ(user.Text(kPrinterName), "");
        EXPECT_EQ(user.Text(kPrintScale), "4000");
    });
}

TEST_F(PrintControl, APaperOfTheHostsAsksForNoPrinter) {
    desktop.SetNoPrinter();
    DEVMODE paper = kv::ToDevMode({"PDF", 8, true, 2970, 4200, "A3"});
    CKvGuiPrintControl ofPaper(&paper, nullptr);
    ofPaper.SetBounds(kMap);
    Run(ofPaper, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kPrinterName), "PDF");
        EXPECT_EQ(user.Text(kForm), "A3");
        EXPECT_EQ(CheckedOf(user, kPrinterLandscape, kPrinterPortrait), "landscape");
        desktop.ExpectPrintSetup({"PDF", 9, false, 2100, 2970, "A4"});
        user.Click(kChangePrinter);
        EXPECT_EQ(user.Text(kForm), "A4");
    });
    EXPECT_STREQ(paper.dmFormName, "A4");
    EXPECT_EQ(paper.dmPaperLength, 2970);
}

TEST_F(PrintControl, ARecordWithoutAPaperIsNotLookedAt) {
    DEVMODE empty;
    Derived ofNothing(&empty, nullptr);
    ofNothing.SetBounds(kMap);
    desktop.SetPrinter(kPlotter);
    Run(ofNothing, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kPrinterName), "Plotter North");
        desktop.ExpectPrintSetup({"Office", 1, false, 2159, 2794});
        user.Click(kChangePrinter);
        EXPECT_EQ(user.Text(kPrinterName), "Office");
    });
    EXPECT_EQ(empty.dmPaperLength, 0);
    EXPECT_EQ(ofNothing.m_pDevMode, &empty);
}

TEST_F(PrintControl, ShowsTheNameOfAPrinterWhole) {
    const std::string name = "R&D plotter of the drafting room, third floor";
    desktop.SetPrinter({name, 1, false, 2159, 2794});
    Run(dialog, [&](kv::User& user) { EXPECT_EQ(user.Text(kPrinterName), name); });
}

// Text and color.

TEST_F(PrintControl, OutsidePrintModeThereIsNoFontSize) {
    desktop.SetPrinter(kPlotter);
    const int result = Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kMinimalFontSize), "NA");
        EXPECT_FALSE(user.Enabled(kMinimalFontSize));
        user.Click(kStrokeFont);
        user.Click(kTrueTypeFont);
        EXPECT_TRUE(user.Enabled(kMinimalFontSize));
        user.Click(IDOK);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(dialog.GetMinimalFontSize(), 0);
}

TEST_F(PrintControl, InPrintModeAFontSizeIsAskedFor) {
    desktop.SetPrinter(kPlotter);
    dialog.SetPrintMode(true);
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kMinimalFontSize), "10");
        user.Type(kMinimalFontSize, "1x2");
        EXPECT_EQ(user.Text(kMinimalFontSize), "12");
        user.Click(kStrokeFont);
        EXPECT_FALSE(user.Enabled(kMinimalFontSize));
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetMinimalFontSize(), 12);
    EXPECT_FALSE(dialog.GetTrueTypeFont());
}

TEST_F(PrintControl, AnEmptiedFontSizeStaysAsItWas) {
    desktop.SetPrinter(kPlotter);
    dialog.SetPrintMode(true);
    const int result = Run(dialog, [&](kv::User& user) {
        user.Type(kMinimalFontSize, "");
        user.Click(IDOK);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(dialog.GetMinimalFontSize(), 10);
}

TEST_F(PrintControl, AFontSizeThatIsNoNumberKeepsTheDialogOpenAndAllAsItWas) {
    desktop.SetPrinter(kPlotter);
    dialog.SetPrintMode(true);
    Run(dialog, [&](kv::User& user) {
        desktop.ExpectMessage("Please enter an integer.");
        user.Paste(kMinimalFontSize, "large");
        EXPECT_EQ(dialog.GetMinimalFontSize(), 10);
        user.Click(kGrayscale);
        desktop.ExpectMessage("Please enter an integer.");
        user.Click(IDOK);
        EXPECT_TRUE(user.Open());
        EXPECT_FALSE(dialog.GetGrayMode());
        user.Type(kMinimalFontSize, "8");
        user.Click(IDOK);
        EXPECT_FALSE(user.Open());
    });
    EXPECT_EQ(dialog.GetMinimalFontSize(), 8);
    EXPECT_TRUE(dialog.GetGrayMode());
}

TEST_F(PrintControl, TextAndColorOutliveTheRunButTheDialogBeginsAnew) {
    desktop.SetPrinter(kPlotter);
    Run(dialog, [&](kv::User& user) {
        EXPECT_TRUE(user.Checked(kTrueTypeFont));
        EXPECT_TRUE(user.Checked(kColor));
        EXPECT_FALSE(user.Checked(kGrayscale));
        user.Click(kStrokeFont);
        user.Click(kBlackAndWhite);
        EXPECT_TRUE(dialog.GetBWMode());
        user.Click(kGrayscale);
        user.Click(IDOK);
    });
    CKvGuiPrintControl next(nullptr, nullptr);
    EXPECT_FALSE(next.GetTrueTypeFont());
    EXPECT_FALSE(next.GetColorMode());
    EXPECT_TRUE(next.GetGrayMode());
    EXPECT_FALSE(next.GetBWMode());
    next.SetBounds(kMap);
    Run(next, [&](kv::User& user) {
        EXPECT_TRUE(user.Checked(kTrueTypeFont));
        EXPECT_TRUE(user.Checked(kColor));
        EXPECT_FALSE(user.Checked(kGrayscale));
        user.Click(kBlackAndWhite);
        user.Click(kColor);
        EXPECT_FALSE(next.GetBWMode());
        user.Click(IDCANCEL);
    });
    EXPECT_FALSE(next.GetTrueTypeFont());
}

// The dialog for the screen.

TEST_F(PrintControl, UnlessItGoesToAFileOnlyTheMapShows) {
    dialog.IsCGM(false);
    desktop.SetPrinter(kPlotter);
    Run(dialog, [&](kv::User& user) {
        CRect all;
        dialog.GetClientRect(&all);
        const auto placeOf = [&](int id) { return dialog.GetDlgItem(id)->m_hWnd->Rect(); };
        EXPECT_EQ(all.Height(), (placeOf(kMapLandscape).bottom + placeOf(kPageWidth).top) / 2);
        EXPECT_FALSE(user.Visible(kMapLandscape));
        EXPECT_FALSE(user.Visible(kMapPortrait));
        for (const int id : {IDOK, IDCANCEL}) {
            EXPECT_LE(placeOf(id).bottom, all.bottom);
            EXPECT_GT(placeOf(id).left, placeOf(kMapHeight).right);
        }
        EXPECT_EQ(placeOf(IDCANCEL).top, placeOf(kMapLandscape).top);
        EXPECT_LT(placeOf(IDOK).bottom, placeOf(IDCANCEL).top);
        EXPECT_GE(placeOf(kPageWidth).top, all.bottom);
        // Nothing below is reached.
        std::vector<int> visited{test::FocusedId()};
        for (int stop = 0; stop < 5; ++stop) {
            user.Key(0, "Tab");
            visited.push_back(test::FocusedId());
        }
        EXPECT_THAT(visited,
                    ElementsAre(kMapScale, kMapWidth, kMapHeight, IDOK, IDCANCEL, kMapScale));
        // What is out of sight is computed all the same.
        EXPECT_EQ(user.Text(kPrintScale), "857");
    });
}

TEST_F(PrintControl, ForAFileAllOfItShows) {
    desktop.SetPrinter(kPlotter);
    Run(dialog, [&](kv::User& user) {
        CRect all;
        dialog.GetClientRect(&all);
        for (const int id : std::initializer_list<int>{kPageWidth, kPrintScale, kColor, kGrayscale,
                                                       IDOK, IDCANCEL}) {
            EXPECT_TRUE(user.Visible(id)) << id;
            EXPECT_LE(dialog.GetDlgItem(id)->m_hWnd->Rect().bottom, all.bottom) << id;
        }
    });
}

}  // namespace
