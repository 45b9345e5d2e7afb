#include "drawing/swatches/clr_dlg.h"
#include "drawing/swatches/color_fill_ctrl_dlg.h"
#include "drawing/swatches/color_fill_ctrl_ids.h"
#include "drawing/swatches/kv_color_button.h"
#include "drawing/swatches/symbol_palettes.h"
#include "frame/kvcom/color.h"
#include "support/exchanging_dialog.h"
#include "support/two_screens.h"
#include "swatch_fixture.h"
#include "window/acting/input.h"

using namespace kv::palettes;
using testing::Contains;
using testing::Not;

namespace {

/// Works by its own window only.
using Act = std::function<void(kv::User&)>;

class Palettes : public test::SwatchTest {
protected:
    /// A person opens the palette of a swatch by a click, and acts in it; then the host is looked
    /// at.
    void Open(
        int swatch, const std::string& name, const Act& act, const Act& behind = [](kv::User&) {}) {
        Run(host, [&](kv::User& user) {
            desktop.ExpectWindow(name, act);
            user.Click(swatch);
            behind(user);
        });
    }
    bool Told(int id) const { return host.WasTold(std::to_string(id) + " clicked"); }
};

struct Kind {
    int swatch;
    const char* palette;
    const char* caption;
    int cell;
    int value;
};
constexpr Kind kKinds[] = {
    {test::kWidth, "CKvLineWidthPaletteDlg", "Line Widths", 2010, 7},
    {test::kType, "CKvLineTypePaletteDlg", "Line Types", 2006, 3},
    {test::kBasic, "CKvColorPaletteDlg", "Color Fill Palette", 12047, 11},
    {test::kFull, "CKvColorPaletteDlg", "Color Fill Palette", 17408 + 200, 200},
    {test::kNumber, "CKvGui3DLineNumSymbolDlg", "Number Symbols", 13086, 13054},
    {test::kPoint, "CKvGui3DPointSymbolDlg", "Point Symbols", 13078, 13041},
};

int ValueOf(test::SwatchHost& host, int swatch) {
    switch (swatch) {
        case test::kWidth:
            return host.width.GetLineWidth();
        case test::kType:
            return host.type.GetLineType();
        case test::kBasic:
            return host.basic.GetCWTValue();
        case test::kTextStyle:
            return host.style.GetCWTValue();
        case test::kFull:
            return host.full.GetCWTValue();
        case test::kNumber:
            return host.number.m_nSymbolId;
        default:
            return host.point.m_nSymbolId;
    }
}

TEST_F(Palettes, AClickOpensThePaletteOfTheKindAndAPickComesBackWithOneCommand) {
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.caption);
        host.told.clear();
        Open(
            kind.swatch, kind.palette,
            [&](kv::User& user) {
                EXPECT_EQ(user.Window().WindowText(), kind.caption);
                user.Click(kind.cell);
            },
            [&](kv::User&) {
                EXPECT_EQ(ValueOf(host, kind.swatch), kind.value);
                EXPECT_EQ(std::ranges::count(host.told, std::to_string(kind.swatch) + " clicked"),
                          1);
                EXPECT_TRUE(host.GetDlgItem(kind.swatch)->IsWindowEnabled());
            });
    }
}

TEST_F(Palettes, EscapeChangesNothingAndSendsNoCommand) {
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.caption);
        int before = 0;
        host.told.clear();
        Open(
            kind.swatch, kind.palette, [](kv::User& user) { user.Key(0, "Escape"); },
            [&](kv::User&) {
                EXPECT_FALSE(Told(kind.swatch));
                before = ValueOf(host, kind.swatch);
            });
        EXPECT_NE(before, kind.value);
    }
}

TEST_F(Palettes, AMouseThatIsStillHeldWhenThePaletteHasGoneOpensNoOther) {
    Run(host, [&](kv::User&) {
        kv::Node& swatch = *host.GetDlgItem(test::kType)->m_hWnd;
        desktop.ExpectWindow("Line Types", [](kv::User& palette) { palette.Click(2005); });
        kv::input::Press(swatch, {2, 2});
        kv::input::HoldOver(swatch, false);
        kv::input::HoldOver(swatch, true);
        kv::input::Release(swatch, {2, 2});
        EXPECT_EQ(std::ranges::count(host.told, std::to_string(test::kType) + " clicked"), 1);
    });
}

TEST_F(Palettes, SpaceEnterAndTheMnemonicOfTheLabelOpenIt) {
    for (const char* key : {"Space", "Enter", "Alt+W"}) {
        SCOPED_TRACE(key);
        host.told.clear();
        Run(host, [&](kv::User& user) {
            const bool byLabel = std::string_view(key) == "Alt+W";
            user.Focus(byLabel ? test::kPoint : test::kType);
            desktop.ExpectWindow(byLabel ? "Line Widths" : "Line Types",
                                 [](kv::User& palette) { palette.Click(2005); });
            user.Key(0, key);
            EXPECT_TRUE(Told(byLabel ? test::kWidth : test::kType));
            EXPECT_EQ(ValueOf(host, byLabel ? test::kWidth : test::kType), 2);
        });
    }
}

TEST_F(Palettes, TheCellOfTheValueHasTheFocusAndArrowsMoveFromThere) {
    Run(host, [&](kv::User& user) {
        host.width.SetLineWidth(4);
        desktop.ExpectWindow("Line Widths", [](kv::User& palette) {
            EXPECT_EQ(test::FocusedId(), 2007);
            palette.Key(0, "Down");
            EXPECT_EQ(test::FocusedId(), 2008);
            palette.Key(0, "Home");
            palette.Key(0, "Up");
            EXPECT_EQ(test::FocusedId(), 2003);
            palette.Key(0, "End");
            palette.Key(0, "Down");
            EXPECT_EQ(test::FocusedId(), 2012);
            palette.Key(0, "Up");
            palette.Key(0, "Enter");
        });
        user.Click(test::kWidth);
        EXPECT_EQ(host.width.GetLineWidth(), 8);
    });
}

TEST_F(Palettes, EndLeadsToTheLastCellAndHomeToTheFirst) {
    struct Ends {
        int swatch;
        int first;
        int last;
    };
    for (const Ends& ends : {Ends{test::kWidth, 2003, 2012},
                             {test::kType, 2003, 2007},
                             {test::kBasic, 12036, 12075},
                             {test::kFull, 17408, 17663},
                             {test::kNumber, 13079, 13086},
                             {test::kPoint, 13060, 13078}}) {
        SCOPED_TRACE(ends.swatch);
        Open(ends.swatch, "", [&](kv::User& palette) {
            for (const char* key : {"End", "Right"}) {
                palette.Key(0, key);
                EXPECT_EQ(test::FocusedId(), ends.last) << key;
            }
            for (const char* key : {"Home", "Left"}) {
                palette.Key(0, key);
                EXPECT_EQ(test::FocusedId(), ends.first) << key;
            }
            palette.Key(0, "Escape");
        });
    }
    RECT place{10, 10, 20, 20};
    CClrDlg colors(&place, nullptr);
    colors.SetValue(3);
    Run(colors, [](kv::User& palette) {
        palette.Key(0, "End");
        EXPECT_EQ(test::FocusedId(), 2018);
    });
}

TEST_F(Palettes, TheLastColorOfTheGridCanBePicked) {
    Run(host, [&](kv::User& user) {
        desktop.ExpectWindow("Color Fill Palette", [](kv::User& palette) {
            palette.Key(0, "End");
            palette.Key(0, "Enter");
        });
        user.Click(test::kFull);
        EXPECT_EQ(host.full.GetCWTValue(), 255);
    });
}

TEST_F(Palettes, HomeAndEndWithAnotherKeyMoveNothing) {
    Open(test::kWidth, "Line Widths", [](kv::User& palette) {
        for (const char* key : {"Shift+End", "Ctrl+End"}) {
            palette.Key(0, key);
            EXPECT_EQ(test::FocusedId(), 2003) << key;
        }
        palette.Key(0, "Escape");
    });
}

TEST_F(Palettes, ACellIsCalledByItsValue) {
    Open(test::kWidth, "Line Widths", [](kv::User& palette) {
        EXPECT_EQ(palette.WindowNode().FindChild(2003)->ToolTip(), "Line width 1");
        EXPECT_EQ(palette.WindowNode().FindChild(2012)->ToolTip(), "Line width 10");
        palette.Key(0, "Escape");
    });
}

TEST_F(Palettes, ADerivedOneExchangesItsDataAtTheStart) {
    RECT place{10, 10, 20, 20};
    test::Exchanging<CClrDlg> colors(&place, nullptr);
    Run(colors, [&](kv::User&) { EXPECT_EQ(colors.shown, 1); });
    test::Exchanging<CKvColorFillCtrlDlg> fill;
    Run(fill, [&](kv::User& user) {
        EXPECT_EQ(fill.shown, 1);
        user.Click(IDOK);
    });
    EXPECT_EQ(fill.taken, 1);
}

TEST_F(Palettes, ArrowsGoInRowsAndColumns) {
    Run(host, [&](kv::User& user) {
        host.point.SetChange(13023 + 6);
        desktop.ExpectWindow("Point Symbols", [](kv::User& palette) {
            EXPECT_EQ(test::FocusedId(), 13066);
            palette.Key(0, "Up");
            EXPECT_EQ(test::FocusedId(), 13061);
            palette.Key(0, "Up");
            EXPECT_EQ(test::FocusedId(), 13061);
            palette.Key(0, "Right");
            EXPECT_EQ(test::FocusedId(), 13062);
            palette.Key(0, "Down");
            palette.Key(0, "Down");
            palette.Key(0, "Down");
            EXPECT_EQ(test::FocusedId(), 13077);
            palette.Key(0, "Left");
            palette.Key(0, "Space");
        });
        user.Click(test::kPoint);
        EXPECT_EQ(host.point.m_nSymbolId, 13039);
        // Of the last row there is no fifth, and above the second row the first begins.
        host.point.SetChange(13023 + 14);
        desktop.ExpectWindow("Point Symbols", [](kv::User& palette) {
            palette.Key(0, "Down");
            EXPECT_EQ(test::FocusedId(), 13074);
            palette.Key(0, "Home");
            palette.Key(0, "Down");
            EXPECT_EQ(test::FocusedId(), 13065);
            palette.Key(0, "Up");
            EXPECT_EQ(test::FocusedId(), 13060);
            palette.Key(0, "Escape");
        });
        user.Click(test::kPoint);
    });
}

TEST_F(Palettes, WithNoCellInFocusEnterPicksNothingAndAnArrowBringsTheFirst) {
    RECT place{10, 10, 20, 20};
    CClrDlg palette(&place, nullptr);
    const int result = Run(palette, [](kv::User& user) {
        EXPECT_EQ(test::FocusedId(), 0);
        user.Key(0, "Enter");
        EXPECT_TRUE(user.Open());
        user.Key(0, "Down");
        EXPECT_EQ(test::FocusedId(), 2003);
        user.Key(0, "Right");
        user.Key(0, "Down");
        user.Key(0, "Enter");
    });
    EXPECT_EQ(result, 2012);
    EXPECT_EQ(palette.GetReturnValue(), 9);
}

TEST_F(Palettes, ACellsOtherNotificationsDoNotEndIt) {
    RECT place{10, 10, 20, 20};
    CClrDlg palette(&place, nullptr);
    palette.SetValue(3);
    const int result = Run(palette, [](kv::User& user) {
        kv::Node& cell = *user.WindowNode().FindChild(2010);
        for (const int code : {BN_DOUBLECLICKED, BN_SETFOCUS, BN_KILLFOCUS}) {
            cell.Notify(code);
            EXPECT_TRUE(user.Open()) << code;
        }
        kv::input::Press(cell, {3, 3});
        EXPECT_TRUE(user.Open());
        kv::input::Release(cell, {3, 3});
        EXPECT_FALSE(user.Open());
    });
    EXPECT_EQ(result, 2010);
    EXPECT_EQ(palette.GetReturnValue(), 7);
}

TEST_F(Palettes, ACellThatIsPressedTellsItsParentThatTheFocusLeavesIt) {
    Run(host, [&](kv::User&) {
        host.basic.SetEventType(E_EVENT_CELL);
        kv::input::Click(*host.basic.m_hWnd);
        EXPECT_THAT(host.told, Contains("103 sent 7"));
        EXPECT_TRUE(Told(test::kBasic));
    });
}

TEST_F(Palettes, APointThatIsNoneOfItsSymbolsCountsAsTheSecond) {
    for (const unsigned id : {0u, 13022u, 13042u}) {
        RECT place{};
        CKvGui3DPointSymbolDlg palette(&place, nullptr);
        palette.SetButtonID(id);
        EXPECT_EQ(palette.GetButtonID(), id);
        Run(palette, [](kv::User&) { EXPECT_EQ(test::FocusedId(), 13061); });
    }
    RECT place{};
    for (const unsigned id : {13023u, 13041u}) {
        CKvGui3DPointSymbolDlg palette(&place, nullptr);
        palette.SetButtonID(id);
        Run(palette,
            [&](kv::User&) { EXPECT_EQ(test::FocusedId(), 13060 + static_cast<int>(id) - 13023); });
    }
    CKvGui3DLineNumSymbolDlg numbers(&place, nullptr);
    numbers.SetButtonID(1);
    Run(numbers, [](kv::User&) { EXPECT_EQ(test::FocusedId(), 0); });
}

TEST_F(Palettes, AStyleIsPickedByAClickOrByArrowsAndEnter) {
    Run(host, [&](kv::User& user) {
        desktop.ExpectWindow("CKvTextStylePaletteDlg", [](kv::User& palette) {
            EXPECT_EQ(palette.Window().WindowText(), "Style");
            EXPECT_THAT(palette.Rows(kStyles),
                        testing::ElementsAre("Normal", "Bold", "Italic", "Bold Italic"));
            EXPECT_THAT(palette.Selected(kStyles), testing::ElementsAre(0));
            palette.Select(kStyles, 2);
        });
        user.Click(test::kTextStyle);
        EXPECT_EQ(host.style.GetCWTValue(), 2);
        desktop.ExpectWindow("Style", [](kv::User& palette) {
            EXPECT_EQ(test::FocusedId(), kStyles);
            palette.Key(0, "Down");
            EXPECT_TRUE(palette.Open());
            palette.Key(0, "Up");
            palette.Key(0, "Up");
            EXPECT_TRUE(palette.Open());
            palette.Key(0, "Enter");
        });
        user.Click(test::kTextStyle);
        EXPECT_EQ(host.style.GetCWTValue(), 1);
        desktop.ExpectWindow("Style", [](kv::User& palette) { palette.Select(kStyles, 1); });
        user.Click(test::kTextStyle);
        EXPECT_EQ(host.style.GetCWTValue(), 1);
        desktop.ExpectWindow("Style", [](kv::User& palette) {
            palette.Key(0, "End");
            palette.Key(0, "Escape");
        });
        user.Click(test::kTextStyle);
        EXPECT_EQ(host.style.GetCWTValue(), 1);
        EXPECT_EQ(std::ranges::count(host.told, "104 clicked"), 3);
        desktop.ExpectWindow("Style", [](kv::User& palette) { palette.Select(kStyles, 0); });
        user.Click(test::kTextStyle);
        EXPECT_EQ(host.style.GetCWTValue(), 0);
    });
}

TEST_F(Palettes, ColorsAreNumberedFromOne) {
    Open(test::kBasic, "Color Fill Palette", [](kv::User& palette) {
        EXPECT_EQ(palette.Text(kHeader), "CURRENT COLOR INDEX IS    7 ");
        EXPECT_EQ(test::FocusedId(), kFirstShortCell + 6);
        for (int i = 0; i < 40; ++i) {
            EXPECT_EQ(palette.Text(29196 + i),
                      std::to_string(CKvColor::Get256CrossIndexRGB(i) + 1));
        }
        palette.Key(0, "Escape");
    });
}

int ColorOffTheList() {
    for (int color = 0;; ++color) {
        bool on = false;
        for (int i = 0; i < 40; ++i)
            on = on || CKvColor::Get256CrossIndexRGB(i) == color;
        if (!on) return color;
    }
}

TEST_F(Palettes, AColorThatIsNotOnTheListIsNamedAndHasNoCell) {
    const int off = ColorOffTheList();
    Run(host, [&](kv::User& user) {
        host.basic.SetChange(off);
        desktop.ExpectWindow("Color Fill Palette", [&](kv::User& palette) {
            EXPECT_EQ(palette.Text(kHeader),
                      "CURRENT COLOR   " + std::to_string(off + 1) + "   IS NOT ON THIS LIST");
            EXPECT_EQ(test::FocusedId(), 0);
            palette.Click(kMore);
            EXPECT_EQ(palette.Text(kHeader),
                      "CURRENT COLOR INDEX IS    " + std::to_string(off + 1) + " ");
            EXPECT_EQ(test::FocusedId(), kGridCell + off);
            palette.Key(0, "Enter");
        });
        user.Click(test::kBasic);
        EXPECT_EQ(host.basic.GetCWTValue(), off);
        EXPECT_TRUE(Told(test::kBasic));
    });
}

TEST_F(Palettes, OfAllColorsTheOneThatThereIsHasTheFocus) {
    for (const auto& [color, cell] :
         {std::pair{0, kGridCell}, {255, kGridCell + 255}, {-1, 0}, {256, 0}}) {
        Run(host, [&](kv::User& user) {
            host.full.SetChange(color);
            desktop.ExpectWindow("Color Fill Palette", [cell = cell](kv::User& palette) {
                EXPECT_TRUE(palette.Visible(kHeader));
                EXPECT_EQ(test::FocusedId(), cell);
                palette.Key(0, "Escape");
            });
            user.Click(test::kFull);
        });
    }
}

TEST_F(Palettes, LabelsStandCenteredUnderTheirCells) {
    Open(test::kBasic, "", [](kv::User& palette) {
        EXPECT_GE(palette.WindowNode().FindChild(kHeader)->Rect().left, 0);
        for (int i = 0; i < 40; ++i) {
            const CRect cell = palette.WindowNode().FindChild(12036 + i)->Rect();
            const CRect label = palette.WindowNode().FindChild(29196 + i)->Rect();
            EXPECT_NEAR(cell.left + cell.right, label.left + label.right, 1) << i;
            EXPECT_EQ(label.top, cell.bottom) << i;
        }
        palette.Key(0, "Escape");
    });
}

TEST_F(Palettes, MoreShowsAllColorsInAGridOfSixteenAcross) {
    Open(test::kBasic, "", [](kv::User& palette) {
        kv::Node& window = palette.WindowNode();
        for (const int i : {0, 255}) {
            EXPECT_FALSE(palette.Visible(17408 + i));
            EXPECT_FALSE(palette.Visible(17664 + i));
        }
        palette.Click(29194);
        EXPECT_FALSE(palette.Visible(29194));
        const CPoint origin = window.FindChild(29237)->Rect().TopLeft();
        for (int i = 0; i < 256; ++i) {
            const int x = origin.x + i % 16 * 30;
            const int y = origin.y + i / 16 * 37;
            EXPECT_EQ(window.FindChild(17408 + i)->Rect(), (CRect{x, y, x + 25, y + 25})) << i;
            EXPECT_EQ(window.FindChild(17664 + i)->Rect(), (CRect{x + 12, y + 25, x + 37, y + 50}))
                << i;
            EXPECT_EQ(palette.Text(17664 + i), std::to_string(i + 1));
            EXPECT_TRUE(palette.Visible(17408 + i));
        }
        for (int i = 0; i < 40; ++i) {
            EXPECT_FALSE(palette.Visible(12036 + i));
            EXPECT_FALSE(palette.Visible(29196 + i));
        }
        EXPECT_EQ(window.Rect().Width(), origin.x + 16 * 30 + 5);
        palette.Key(0, "Down");
        EXPECT_EQ(test::FocusedId(), 17408 + 6 + 16);
        palette.Key(0, "Left");
        EXPECT_EQ(test::FocusedId(), 17408 + 6 + 15);
        palette.Key(0, "Escape");
    });
}

/// Notes the message 0 of a cell, and whether its command had come before.
class NotesMessages : public test::RecordingDialog {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == 0) told.push_back("message 0 with " + std::to_string(wParam));
        return RecordingDialog::WindowProc(message, wParam, lParam);
    }
};

TEST_F(Palettes, AGridCellSendsItsIndexAheadOfItsCommand) {
    NotesMessages parent;
    CKvColorButton cell;
    Run(parent, [&](kv::User& user) {
        cell.Create("", WS_CHILD | WS_VISIBLE | WS_TABSTOP, {200, 0, 225, 25}, &parent, 17408 + 77);
        user.Click(17408 + 77);
    });
    EXPECT_THAT(parent.told, testing::ElementsAre("message 0 with 77", "17485 clicked"));
}

TEST_F(Palettes, ASwatchTellsWhatItHolds) {
    Run(host, [&](kv::User&) {
        host.basic.SetChange(9);
        EXPECT_EQ(host.basic.m_hWnd->ToolTip(), "Color 10, red");
        EXPECT_EQ(host.basic.SpokenName(), "");
        host.basic.SetEventType(E_EVENT_CELL);
        EXPECT_EQ(host.basic.SpokenName(), "Color 10, red");
        host.width.SetLineWidth(2);
        EXPECT_EQ(host.width.m_hWnd->ToolTip(), "Line width 3");
        host.type.SetLineType(1);
        EXPECT_EQ(host.type.m_hWnd->ToolTip(), "Line type 2, dashed");
        EXPECT_EQ(host.style.m_hWnd->ToolTip(), "Normal");
        EXPECT_EQ(host.point.m_hWnd->ToolTip(), "Location");
        EXPECT_EQ(host.number.m_hWnd->ToolTip(), "Number in a circle");
        host.full.SetChange(-1);
        EXPECT_EQ(host.full.m_hWnd->ToolTip(), "No color");
    });
}

TEST_F(Palettes, AHostOpensABasicColorsPaletteByItself) {
    Run(host, [&](kv::User&) {
        desktop.ExpectWindow("Color Fill Palette", [](kv::User& palette) { palette.Click(12036); });
        CPoint at{};
        host.basic.SetLButtonDown(0, at);
        EXPECT_EQ(host.basic.GetCWTValue(), 0);
        EXPECT_TRUE(Told(test::kBasic));
    });
}

/// Notes when it is enabled and disabled.
class NotesEnabling : public CKvGuiBasicColorButton {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_ENABLE) told.push_back(wParam != 0);
        return CKvGuiBasicColorButton::WindowProc(message, wParam, lParam);
    }
    std::vector<bool> told;
};

TEST_F(Palettes, ASwatchThatChangesIsDisabledAndEnabledOnce) {
    test::RecordingDialog parent;
    NotesEnabling swatch;
    Run(parent, [&](kv::User&) {
        swatch.AutoLoad(test::kBasic, &parent);
        swatch.SetChange(3);
    });
    EXPECT_THAT(swatch.told, testing::ElementsAre(false, true));
}

TEST_F(Palettes, ADisabledSwatchStaysDisabledWhenItChanges) {
    Run(host, [&](kv::User&) {
        host.basic.EnableWindow(FALSE);
        host.basic.SetChange(3);
        EXPECT_FALSE(host.basic.IsWindowEnabled());
        EXPECT_EQ(host.basic.GetCWTValue(), 3);
    });
}

TEST_F(Palettes, TheFillDialogGivesTheColorThatWasPicked) {
    using namespace kv::color_fill_ctrl;
    CKvColorFillCtrlDlg dialog;
    EXPECT_EQ(dialog.GetFillColor(), 6);
    dialog.SetFillColor(static_cast<KVColor>(3));
    for (const int button : {IDCANCEL, IDOK}) {
        const int result = Run(dialog, [&](kv::User& user) {
            EXPECT_EQ(user.Window().WindowText(), "Color Fill Options");
            desktop.ExpectWindow("Color Fill Palette", [](kv::User& palette) {
                EXPECT_EQ(test::FocusedId(), kFirstShortCell + 3);
                palette.Click(kFirstShortCell + 9);
            });
            user.Click(kColor);
            user.Click(button);
        });
        EXPECT_EQ(result, button);
        EXPECT_EQ(dialog.GetFillColor(), button == IDOK ? 9 : 3);
    }
}

// Placement.

class PalettePlaces : public Palettes {
protected:
    /// Opens the palette of a swatch whose host stands at that place on a screen of that size.
    CRect Opened(int swatch, CPoint at, CSize screen, bool complains = false) {
        desktop.SetScreenSize(screen);
        CRect place;
        Run(host, [&](kv::User& user) {
            host.SetWindowPos(nullptr, at.x, at.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
            host.GetDlgItem(swatch)->GetWindowRect(&swatchRect);
            host.GetWindowRect(&hostRect);
            if (complains) {
                desktop.ExpectMessage("LineWidth Dialog: Invalid Coordinates to move window!");
            }
            desktop.ExpectWindow("", [&](kv::User& palette) {
                place = palette.WindowNode().Rect();
                palette.Key(0, "Escape");
            });
            user.Click(swatch);
        });
        return place;
    }

    CRect swatchRect;
    CRect hostRect;
};

constexpr CSize kScreen{1280, 800};

TEST_F(PalettePlaces, StandsBelowItsSwatch) {
    for (const int swatch : {test::kWidth, test::kType, test::kTextStyle}) {
        const CRect place = Opened(swatch, {100, 50}, kScreen);
        EXPECT_EQ(place.TopLeft(), (CPoint{swatchRect.left, swatchRect.bottom})) << swatch;
    }
}

TEST_F(PalettePlaces, SymbolsStandOnTheirSwatch) {
    for (const int swatch : {test::kNumber, test::kPoint}) {
        const CRect place = Opened(swatch, {1270, 790}, kScreen);
        EXPECT_EQ(place.TopLeft(), swatchRect.TopLeft()) << swatch;
    }
}

TEST_F(PalettePlaces, IsMovedLeftByAsMuchAsItPassesTheScreen) {
    for (const int swatch : {test::kWidth, test::kType, test::kTextStyle, test::kBasic}) {
        const CRect place = Opened(swatch, {1150, 50}, kScreen);
        EXPECT_EQ(place.right, 1280) << swatch;
        EXPECT_GT(swatchRect.left, place.left) << swatch;
    }
}

TEST_F(PalettePlaces, KeepToTheScreenThatTheSwatchIsOn) {
    CRect place;
    Run(host, [&](kv::User& user) {
        host.SetWindowPos(nullptr, 2430, 150, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        host.GetDlgItem(test::kWidth)->GetWindowRect(&swatchRect);
        test::TwoScreens two;
        two.ExpectWindow("", [&](kv::User& palette) {
            place = palette.WindowNode().Rect();
            palette.Key(0, "Escape");
        });
        user.Click(test::kWidth);
    });
    EXPECT_EQ(place.right, test::kSecondScreen.right);
    EXPECT_EQ(place.top, swatchRect.bottom);
}

TEST_F(PalettePlaces, AtTheBottomWidthsStandBesideTheSwatch) {
    const CRect place = Opened(test::kWidth, {100, 700}, kScreen);
    const int beyond = swatchRect.bottom + place.Height() - kScreen.cy;
    ASSERT_GT(beyond, 0);
    EXPECT_EQ(place.TopLeft(), (CPoint{swatchRect.right, swatchRect.top - beyond}));
}

TEST_F(PalettePlaces, WhereWidthsFindNoRoomTheySayItAndStayOnTheSwatch) {
    const CRect place = Opened(test::kWidth, {100, 60}, {1280, 120}, true);
    EXPECT_EQ(place.TopLeft(), swatchRect.TopLeft());
}

TEST_F(PalettePlaces, AtTheBottomTypesAndStylesBecomeAsWideAsTheScreen) {
    for (const int swatch : {test::kType, test::kTextStyle}) {
        const CRect place = Opened(swatch, {100, 700}, kScreen);
        EXPECT_EQ(place.Width(), kScreen.cx) << swatch;
        EXPECT_EQ(place.TopLeft(), (CPoint{swatchRect.left, swatchRect.bottom})) << swatch;
    }
}

TEST_F(PalettePlaces, WhatJustFitsStaysBelowItsSwatch) {
    for (const int swatch : {test::kWidth, test::kType, test::kTextStyle, test::kFull}) {
        SCOPED_TRACE(swatch);
        const CRect place = Opened(swatch, {100, 50}, {1600, 1000});
        const int below = swatch == test::kFull ? 35 : 0;
        EXPECT_EQ(Opened(swatch, {100, 50}, {place.right, place.bottom + below}), place);
    }
    // Where there would be room on the left of the swatch, too.
    const CRect grid = Opened(test::kFull, {900, 50}, {2000, 1000});
    EXPECT_EQ(Opened(test::kFull, {900, 50}, {grid.right, 1000}), grid);
    const CRect colors = Opened(test::kBasic, {100, 400}, {1600, 1000});
    const int height = colors.Height();
    host.onInit = [&] {
        CRect swatch;
        host.GetDlgItem(test::kBasic)->GetWindowRect(&swatch);
        CRect frame;
        host.GetWindowRect(&frame);
        host.SetWindowPos(nullptr, 0, 0, 600, swatch.bottom + height - frame.top,
                          SWP_NOMOVE | SWP_NOZORDER);
        return TRUE;
    };
    const CRect place = Opened(test::kBasic, {100, 20}, {1600, 1000});
    EXPECT_EQ(place.TopLeft(), (CPoint{swatchRect.left, swatchRect.bottom}));
    EXPECT_EQ(place.bottom, hostRect.bottom);
}

TEST_F(PalettePlaces, AllColorsStandToTheLeftOfTheSwatchAlsoWhereTheyJustFit) {
    const CRect first = Opened(test::kFull, {100, 50}, {1600, 1000});
    const int ahead = swatchRect.left - hostRect.left;
    const CRect place =
        Opened(test::kFull, {first.Width() - ahead, 50}, {first.Width() + 100, 1000});
    EXPECT_EQ(place.left, 0);
    EXPECT_EQ(place.right, swatchRect.left);
}

TEST_F(PalettePlaces, ColorsStandAboveTheSwatchWhereTheyWouldPassTheParent) {
    const CRect above = Opened(test::kBasic, {100, 400}, kScreen);
    EXPECT_EQ(above.bottom, swatchRect.top);
    EXPECT_EQ(above.left, swatchRect.left);
    host.onInit = [&] {
        host.SetWindowPos(nullptr, 0, 0, 600, 700, SWP_NOMOVE | SWP_NOZORDER);
        return TRUE;
    };
    const CRect below = Opened(test::kBasic, {100, 20}, kScreen);
    EXPECT_EQ(below.TopLeft(), (CPoint{swatchRect.left, swatchRect.bottom}));
    EXPECT_LE(below.bottom, hostRect.bottom);
}

TEST_F(PalettePlaces, AllColorsKeepFreeOfTheBottomAndOfTheRightEdge) {
    const CRect low = Opened(test::kFull, {100, 600}, kScreen);
    EXPECT_EQ(low.bottom, kScreen.cy - 35);
    EXPECT_EQ(low.left, swatchRect.left);
    const CRect right = Opened(test::kFull, {900, 50}, kScreen);
    EXPECT_EQ(right.right, swatchRect.left);
    const CRect narrow = Opened(test::kFull, {300, 50}, {700, 800});
    EXPECT_EQ(narrow.right, 700);
}

}  // namespace
