#include "drawing/new_line_ctrl_dlg.h"

#include <array>
#include <bit>

#include "drawing/new_line_ctrl_ids.h"
#include "drawing/swatches/palette_ids.h"
#include "drawing/vertice_builder_ids.h"
#include "frame/kvcom/util_lldrv.h"
#include "frame/module.h"
#include "support/exchanging_dialog.h"
#include "window/controls/button.h"

using namespace kv::new_line_ctrl;
using kv::palettes::kFirstCell;
using kv::palettes::kFirstShortCell;
using testing::ElementsAre;
using testing::IsEmpty;
namespace builder = kv::vertice_builder;

namespace {

using Words = std::array<std::uint32_t, 2>;

/// The words of the record, as its bytes say.
Words WordsOf(const E_KV_LINE_OPTION& option) {
    return std::bit_cast<Words>(option);
}

E_KV_LINE_OPTION OptionOf(std::uint32_t flags) {
    return std::bit_cast<E_KV_LINE_OPTION>(Words{3, flags});
}

TEST(LineOption, StartsWithMouseRubberBandAndFeet) {
    EXPECT_EQ(WordsOf({}), (Words{3, 1u << 5 | 1u << 8 | 1u << 9}));
}

TEST(LineOption, EachFlagHasItsBit) {
    const auto flags = [](std::uint32_t bits) {
        const E_KV_LINE_OPTION option = OptionOf(bits);
        return std::vector<unsigned>{option.bWait,       option.bSpare1,      option.bModify,
                                     option.bPolygon,    option.bFilled,      option.bByMouse,
                                     option.bByKeyboard, option.bNewVertices, option.bRubberBand,
                                     option.bImperial,   option.bSpare10};
    };
    for (std::size_t bit = 0; bit < 11; ++bit) {
        std::vector<unsigned> expected(11, 0);
        expected[bit] = 1;
        EXPECT_EQ(flags(1u << bit), expected) << bit;
    }
    EXPECT_EQ(OptionOf(0x80000000u).nSpare, 1u << 20);
}

TEST(LineOption, WhatTheDialogDoesNotKnowPassesThrough) {
    CKvNewLineCtrlDlg dialog;
    const std::uint32_t spare = 0xFFFFF800u | 1u << 1 | 1u << 10;
    dialog.SetOptionFlag(OptionOf(spare));
    dialog.SetPolygonFlag(true);
    dialog.SetWaitMode(true);
    EXPECT_EQ(WordsOf(dialog.GetOptionFlag())[1], spare | 1u << 3 | 1u << 0);
}

class NewLineCtrlDlg : public test::DialogTest {
protected:
    NewLineCtrlDlg() {
        InitControlDll();
        dialog.SetWaitMode(true);
    }
    void Modify(bool polygon, bool filled) {
        dialog.SetModifyMode(true);
        dialog.SetPolygonFlag(polygon);
        dialog.SetFilledFlag(filled);
        dialog.SetUserInputPts({{1, 2}, {3, 4}});
    }
    std::vector<CKvDispPoint> Points() {
        std::vector<CKvDispPoint> points;
        dialog.GetUserInputPts(points, true);
        return points;
    }
    /// A person adds points in the builder, and ends it with that button.
    void ExpectBuilder(const std::vector<std::pair<const char*, const char*>>& points, int end,
                       const std::function<void(kv::User&)>& first = {}) {
        desktop.ExpectWindow("Vertices Builder", [=](kv::User& user) {
            if (first) first(user);
            for (const auto& [x, y] : points) {
                user.Type(builder::kX, x);
                user.Type(builder::kY, y);
                user.Click(builder::kAdd);
            }
            user.Click(end);
        });
    }

    CKvNewLineCtrlDlg dialog;
};

TEST_F(NewLineCtrlDlg, BeginsWithANewLine) {
    Run(dialog, [](kv::User& user) {
        EXPECT_EQ(user.Window().WindowText(), "Polyline Dialog");
        EXPECT_EQ(user.Text(kVertices), "New Vertices...");
        EXPECT_TRUE(user.Enabled(kVertices));
        EXPECT_TRUE(user.Enabled(kClose));
        EXPECT_FALSE(user.Checked(kClose));
        EXPECT_FALSE(user.Enabled(kFill));
        EXPECT_FALSE(user.Enabled(kFillColor));
        EXPECT_TRUE(user.Checked(kRubberBand));
        EXPECT_TRUE(user.Enabled(kRubberBand));
        EXPECT_FALSE(user.Visible(kRubberBand));
        EXPECT_TRUE(user.Enabled(IDOK));
    });
}

TEST_F(NewLineCtrlDlg, OkIsEnabledWhileTheHostWaits) {
    dialog.SetWaitMode(false);
    EXPECT_FALSE(dialog.GetWaitMode());
    Run(dialog, [&](kv::User& user) {
        EXPECT_FALSE(user.Enabled(IDOK));
        dialog.SetWaitMode(true);
        EXPECT_TRUE(user.Enabled(IDOK));
        dialog.SetWaitMode(false);
        EXPECT_FALSE(user.Enabled(IDOK));
    });
}

TEST_F(NewLineCtrlDlg, ShowsTheFlagsOfAnObjectThatIsToBeChangedAndOfNoOther) {
    struct Case {
        bool modify, polygon, filled;
    };
    for (const Case& each :
         {Case{true, true, true}, {true, true, false}, {true, false, false}, {false, true, true}}) {
        SCOPED_TRACE(testing::Message() << each.modify << each.polygon << each.filled);
        CKvNewLineCtrlDlg line;
        line.SetModifyMode(each.modify);
        line.SetPolygonFlag(each.polygon);
        line.SetFilledFlag(each.filled);
        Run(line, [&](kv::User& user) {
            EXPECT_EQ(user.Checked(kClose), each.modify && each.polygon);
            EXPECT_EQ(user.Checked(kFill), each.modify && each.filled);
            EXPECT_TRUE(user.Enabled(kClose));
            EXPECT_EQ(user.Enabled(kFill), each.modify && each.polygon);
            EXPECT_EQ(user.Enabled(kFillColor), each.modify && each.filled);
            EXPECT_EQ(user.Text(kVertices), each.modify ? "Modify Vertices" : "New Vertices...");
            EXPECT_EQ(user.Enabled(kRubberBand), !each.modify);
            EXPECT_EQ(line.GetOptionFlag().bModify, 0u);
        });
    }
}

TEST_F(NewLineCtrlDlg, FillingNeedsClosedVerticesAndItsColorTheFilling) {
    Run(dialog, [](kv::User& user) {
        user.Click(kClose);
        EXPECT_TRUE(user.Enabled(kFill));
        EXPECT_FALSE(user.Enabled(kFillColor));
        user.Click(kFill);
        EXPECT_TRUE(user.Enabled(kFillColor));
        user.Click(kClose);
        EXPECT_FALSE(user.Checked(kFill));
        EXPECT_FALSE(user.Enabled(kFill));
        EXPECT_FALSE(user.Enabled(kFillColor));
    });
}

TEST_F(NewLineCtrlDlg, OkTakesTheLookWhereAnyOfItChanged) {
    const int result = Run(dialog, [&](kv::User& user) {
        desktop.ExpectWindow("Line Widths",
                             [](kv::User& palette) { palette.Click(kFirstCell + 3); });
        user.Click(kWidth);
        desktop.ExpectWindow("Line Types",
                             [](kv::User& palette) { palette.Click(kFirstCell + 1); });
        user.Click(kType);
        desktop.ExpectWindow("Color Fill Palette",
                             [](kv::User& palette) { palette.Click(kFirstShortCell + 9); });
        user.Click(kColor);
        user.Click(kClose);
        user.Click(kFill);
        desktop.ExpectWindow("Color Fill Palette",
                             [](kv::User& palette) { palette.Click(kFirstShortCell + 2); });
        user.Click(kFillColor);
        user.Click(IDOK);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(dialog.GetWidth(), 3);
    EXPECT_EQ(dialog.GetType(), 1);
    EXPECT_EQ(dialog.GetLineColor(), 9);
    EXPECT_EQ(dialog.GetFillColor(), 2);
    EXPECT_EQ(dialog.GetOptionFlag().bPolygon, 1u);
    EXPECT_EQ(dialog.GetOptionFlag().bFilled, 1u);
    EXPECT_EQ(dialog.GetOptionFlag().bModify, 1u);
}

TEST_F(NewLineCtrlDlg, OkTakesEachPartOfTheLookThatChangedAlone) {
    struct Change {
        int button;
        const char* palette;
        int cell;
    };
    for (const Change& change : {Change{kWidth, "Line Widths", kFirstCell + 3},
                                 {kType, "Line Types", kFirstCell + 1},
                                 {kColor, "Color Fill Palette", kFirstShortCell + 9},
                                 {kFillColor, "Color Fill Palette", kFirstShortCell + 2}}) {
        SCOPED_TRACE(change.button);
        CKvNewLineCtrlDlg line;
        line.SetWaitMode(true);
        line.SetModifyMode(true);
        line.SetPolygonFlag(true);
        line.SetFilledFlag(true);
        Run(line, [&](kv::User& user) {
            desktop.ExpectWindow(change.palette,
                                 [&](kv::User& palette) { palette.Click(change.cell); });
            user.Click(change.button);
            user.Click(IDOK);
        });
        EXPECT_EQ(line.GetOptionFlag().bModify, 1u);
        EXPECT_EQ(line.GetWidth(), change.button == kWidth ? 3 : 0);
        EXPECT_EQ(line.GetType(), change.button == kType ? 1 : 0);
        EXPECT_EQ(line.GetLineColor(), change.button == kColor ? 9 : 6);
        EXPECT_EQ(line.GetFillColor(), change.button == kFillColor ? 2 : 6);
        EXPECT_EQ(line.GetOptionFlag().bPolygon, 1u);
        EXPECT_EQ(line.GetOptionFlag().bFilled, 1u);
    }
    for (const int box : {kClose, kFill}) {
        SCOPED_TRACE(box);
        CKvNewLineCtrlDlg line;
        line.SetWaitMode(true);
        line.SetModifyMode(true);
        line.SetPolygonFlag(true);
        Run(line, [&](kv::User& user) {
            user.Click(box);
            user.Click(IDOK);
        });
        EXPECT_EQ(line.GetOptionFlag().bModify, 1u);
        EXPECT_EQ(line.GetOptionFlag().bPolygon, box == kFill ? 1u : 0u);
        EXPECT_EQ(line.GetOptionFlag().bFilled, box == kFill ? 1u : 0u);
    }
}

TEST_F(NewLineCtrlDlg, OkWithNothingChangedSaysSo) {
    Modify(true, false);
    const int result = Run(dialog, [](kv::User& user) { user.Click(IDOK); });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(dialog.GetOptionFlag().bModify, 0u);
    EXPECT_THAT(Points(), ElementsAre(CKvDispPoint{1, 2}, CKvDispPoint{3, 4}));
}

TEST_F(NewLineCtrlDlg, CancelLeavesTheLookAndClearsModify) {
    Modify(true, false);
    const int result = Run(dialog, [](kv::User& user) {
        user.Click(kClose);
        user.Click(IDCANCEL);
    });
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(dialog.GetOptionFlag().bPolygon, 1u);
    EXPECT_EQ(dialog.GetOptionFlag().bModify, 0u);
}

TEST_F(NewLineCtrlDlg, NewVerticesComeFromTheBuilderAndAreTakenByOk) {
    Run(dialog, [&](kv::User& user) {
        ExpectBuilder({{"100.5", "200"}, {"300", "400.25"}}, builder::kAccept);
        user.Click(kVertices);
        EXPECT_EQ(dialog.GetOptionFlag().bByMouse, 0u);
        EXPECT_EQ(dialog.GetOptionFlag().bByKeyboard, 1u);
        EXPECT_EQ(dialog.GetOptionFlag().bNewVertices, 1u);
        EXPECT_THAT(Points(), IsEmpty());
        user.Click(IDOK);
    });
    EXPECT_THAT(Points(), ElementsAre(CKvDispPoint{100.5, 200}, CKvDispPoint{300, 400.25}));
    EXPECT_EQ(dialog.GetOptionFlag().bModify, 1u);
}

TEST_F(NewLineCtrlDlg, CancelLeavesTheVerticesAndTheNewOnesStayForTheNextOk) {
    dialog.SetUserInputPts({{7, 8}});
    Run(dialog, [&](kv::User& user) {
        ExpectBuilder({{"1", "2"}}, builder::kAccept);
        user.Click(kVertices);
        user.Click(IDCANCEL);
    });
    EXPECT_THAT(Points(), ElementsAre(CKvDispPoint{7, 8}));
    Run(dialog, [](kv::User& user) { user.Click(IDOK); });
    EXPECT_THAT(Points(), ElementsAre(CKvDispPoint{1, 2}));
}

TEST_F(NewLineCtrlDlg, ABuilderThatIsLeftChangesNothing) {
    Modify(false, false);
    Run(dialog, [&](kv::User& user) {
        ExpectBuilder({{"9", "9"}}, IDCANCEL);
        user.Click(kVertices);
        user.Click(IDOK);
    });
    EXPECT_THAT(Points(), ElementsAre(CKvDispPoint{1, 2}, CKvDispPoint{3, 4}));
    EXPECT_EQ(dialog.GetOptionFlag().bByMouse, 1u);
}

TEST_F(NewLineCtrlDlg, AnObjectThatIsToBeChangedHandsItsVerticesToTheBuilder) {
    Modify(false, false);
    Run(dialog, [&](kv::User& user) {
        ExpectBuilder({{"5", "6"}}, builder::kAccept, [](kv::User& rows) {
            EXPECT_THAT(rows.Rows(builder::kRows),
                        ElementsAre("1.000000 , 2.000000", "3.000000 , 4.000000"));
        });
        user.Click(kVertices);
        user.Click(IDOK);
    });
    EXPECT_THAT(Points(), ElementsAre(CKvDispPoint{1, 2}, CKvDispPoint{3, 4}, CKvDispPoint{5, 6}));
}

TEST_F(NewLineCtrlDlg, TheBuilderWorksInTheProjectionAndTheUnitOfTheObject) {
    for (const bool imperial : {true, false}) {
        E_KV_LINE_OPTION option;
        option.nProjection = 115;
        option.bImperial = imperial;
        option.bWait = 1;
        dialog.SetOptionFlag(option);
        dialog.SetModifyMode(true);
        double x = 0.0;
        double y = 0.0;
        CKvUtilLLdrv::LLdrv(28.5, -91.25, &x, &y, 115, imperial ? 0 : 1, 1, 100.0F, 0.0F, 0.0F);
        dialog.SetUserInputPts({{x, y}});
        Run(dialog, [&](kv::User& user) {
            ExpectBuilder({}, IDCANCEL, [](kv::User& rows) {
                rows.Click(builder::kLatLonMode);
                EXPECT_THAT(rows.Rows(builder::kRows), ElementsAre("28.500000 , -91.250000"));
            });
            user.Click(kVertices);
        });
    }
}

TEST_F(NewLineCtrlDlg, WhatTheBuilderChangedIsToldAheadOfOk) {
    Modify(false, false);
    Run(dialog, [&](kv::User& user) {
        ExpectBuilder({}, builder::kAccept, [](kv::User& rows) {
            rows.Select(builder::kRows, 0);
            rows.Click(builder::kDelete);
        });
        user.Click(kVertices);
        EXPECT_EQ(dialog.GetOptionFlag().bModify, 1u);
        EXPECT_EQ(dialog.GetOptionFlag().bNewVertices, 1u);
        EXPECT_EQ(Points().size(), 2u);
        // The next look at them begins without a change, and ends so where it is left.
        ExpectBuilder({}, IDCANCEL, [](kv::User& rows) {
            EXPECT_THAT(rows.Rows(builder::kRows), ElementsAre("3.000000 , 4.000000"));
        });
        user.Click(kVertices);
        EXPECT_EQ(dialog.GetOptionFlag().bModify, 0u);
        user.Click(IDOK);
    });
    EXPECT_THAT(Points(), ElementsAre(CKvDispPoint{3, 4}));
}

TEST_F(NewLineCtrlDlg, BehindCancelAModelessOneBeginsWithANewLine) {
    Modify(true, false);
    ASSERT_TRUE(dialog.Create(nullptr));
    dialog.MoveTo({50, 60});
    kv::User user(*dialog.m_hWnd, [this](const std::string& words) { desktop.Fail(words); });
    user.Click(IDCANCEL);
    dialog.MoveTo({50, 60});
    ExpectBuilder({}, IDCANCEL,
                  [](kv::User& rows) { EXPECT_THAT(rows.Rows(builder::kRows), IsEmpty()); });
    user.Click(kVertices);
    dialog.DestroyWindow();
}

TEST_F(NewLineCtrlDlg, TheRubberBandIsTheHostsToSwitch) {
    Run(dialog, [&](kv::User&) {
        for (const bool on : {false, true}) {
            dialog.CheckDlgButton(kRubberBand, on);
            dialog.SendMessage(WM_COMMAND, MAKEWPARAM(kRubberBand, BN_CLICKED));
            EXPECT_EQ(dialog.GetOptionFlag().bRubberBand, on);
        }
    });
    E_KV_LINE_OPTION option;
    option.bRubberBand = 0;
    dialog.SetOptionFlag(option);
    Run(dialog, [](kv::User& user) {
        EXPECT_FALSE(user.Checked(kRubberBand));
        EXPECT_FALSE(user.Enabled(kRubberBand));
    });
}

TEST_F(NewLineCtrlDlg, PointsAreAddedBehindThoseThatAreThereUnlessTheseAreToGo) {
    std::vector<CKvDispPoint> points{{9, 9}};
    EXPECT_EQ(dialog.GetUserInputPts(points, true), 0);
    EXPECT_EQ(points.size(), 1u);
    dialog.SetUserInputPts({{1.5, -2}});
    EXPECT_EQ(dialog.GetUserInputPts(points, false), 1);
    EXPECT_THAT(points, ElementsAre(CKvDispPoint{9, 9}, CKvDispPoint{1.5, -2, 0}));
    EXPECT_EQ(dialog.GetUserInputPts(points, true), 1);
    EXPECT_THAT(points, ElementsAre(CKvDispPoint{1.5, -2, 0}));
}

/// Its rows can be set as they are.
class OpenDialog : public test::Exchanging<CKvNewLineCtrlDlg> {
public:
    using CKvNewLineCtrlDlg::m_pColorBtn;
    using CKvNewLineCtrlDlg::m_pFillColorBtn;
    using CKvNewLineCtrlDlg::m_pParent;
    using CKvNewLineCtrlDlg::m_pTypeBtn;
    using CKvNewLineCtrlDlg::m_pWidthBtn;
    using CKvNewLineCtrlDlg::m_vecVertices;
};

TEST_F(NewLineCtrlDlg, ADerivedOneExchangesItsDataAtTheStartAndAtOk) {
    OpenDialog own;
    own.SetWaitMode(true);
    Run(own, [&](kv::User& user) {
        EXPECT_EQ(own.shown, 1);
        EXPECT_TRUE(own.m_pWidthBtn && own.m_pColorBtn && own.m_pTypeBtn && own.m_pFillColorBtn);
        user.Click(IDOK);
    });
    EXPECT_EQ(own.taken, 1);
    EXPECT_FALSE(own.m_pWidthBtn || own.m_pColorBtn || own.m_pTypeBtn || own.m_pFillColorBtn);
}

TEST_F(NewLineCtrlDlg, AModelessOneKeepsItsParent) {
    test::TestTemplate parentTemplate({});
    test::RecordingDialog parent;
    ASSERT_TRUE(parent.Create(test::kTestTemplate));
    OpenDialog own;
    ASSERT_TRUE(own.Create(&parent));
    EXPECT_EQ(own.m_pParent, &parent);
    own.DestroyWindow();
    parent.DestroyWindow();
}

TEST_F(NewLineCtrlDlg, RowsAreReadWithACommaBehindTheFirstPlaceOrWithout) {
    OpenDialog open;
    open.m_vecVertices = {"1   ,   2", "3 4", "5,6", ",7 8", "9", "x"};
    std::vector<CKvDispPoint> points;
    EXPECT_EQ(open.GetUserInputPts(points, true), 6);
    EXPECT_THAT(points, ElementsAre(CKvDispPoint{1, 2}, CKvDispPoint{3, 4}, CKvDispPoint{5, 6},
                                    CKvDispPoint{0, 0}, CKvDispPoint{9, 0}, CKvDispPoint{0, 0}));
}

TEST_F(NewLineCtrlDlg, ByKeyboardAddsTheBuildersRows) {
    dialog.SetUserInputPts({{1, 2}});
    Run(dialog, [&](kv::User&) {
        ExpectBuilder({{"3", "4"}}, builder::kAccept);
        dialog.OnRadioByKeyboard();
        EXPECT_EQ(dialog.GetOptionFlag().bByKeyboard, 1u);
        EXPECT_EQ(dialog.GetOptionFlag().bByMouse, 0u);
        dialog.OnRadioByMouse();
        EXPECT_EQ(dialog.GetOptionFlag().bByKeyboard, 0u);
        EXPECT_EQ(dialog.GetOptionFlag().bByMouse, 1u);
    });
    EXPECT_THAT(Points(), ElementsAre(CKvDispPoint{1, 2}, CKvDispPoint{3, 4}));
}

TEST_F(NewLineCtrlDlg, ModelessItStartsHiddenAndComesUpWhereItIsMovedTo) {
    ASSERT_TRUE(dialog.Create(nullptr));
    EXPECT_FALSE(dialog.IsWindowVisible());
    const CSize size = dialog.m_hWnd->Rect().Size();
    dialog.MoveTo({50, 60});
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_EQ(dialog.m_hWnd->Rect().TopLeft(), (CPoint{50, 60}));
    EXPECT_EQ(dialog.m_hWnd->Rect().Size(), size);
    dialog.Done();
    EXPECT_FALSE(dialog.IsWindowVisible());
    dialog.MoveTo({70, 60});
    kv::User user(*dialog.m_hWnd, [this](const std::string& words) { desktop.Fail(words); });
    user.Click(kClose);
    user.Click(IDOK);
    EXPECT_FALSE(dialog.IsWindowVisible());
    EXPECT_EQ(dialog.GetOptionFlag().bPolygon, 1u);
    dialog.DestroyWindow();
    EXPECT_EQ(dialog.GetOptionFlag().bPolygon, 1u);
}

}  // namespace
