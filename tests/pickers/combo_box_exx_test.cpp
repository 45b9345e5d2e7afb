#include "pickers/combo_box_exx.h"

#include <gtest/gtest.h>

#include "window/acting/headless_desktop.h"
#include "window/acting/input.h"
#include "window/desktop.h"
#include "window/dialogs/dialog.h"
#include "window/drawing/device_context.h"
#include "window/drawing/raster.h"
#include "window/owner_draw.h"
#include "window/templates/resources.h"
#include "window/window_system.h"

namespace {

constexpr int kTemplate = 700;
constexpr int kBox = 701;
constexpr int kOther = 702;

constexpr kv::ControlRow kRows[] = {
    {kBox, kv::ControlKind::kDropDown, "", {7, 7, 80, 12}},
    {kOther, kv::ControlKind::kEdit, "", {7, 23, 80, 12}},
};
constexpr kv::DialogTemplate kDialog{kTemplate, "Completion", 100, 50, kRows};

class ComboBoxExx : public ::testing::Test {
protected:
    ComboBoxExx() {
        kv::WindowSystem::Get().SetDesktop(&desktop);
        module.templates.push_back(&kDialog);
        kv::AddToResourceChain(module);
        dialog.Create(kTemplate);
        box.SubclassDlgItem(kBox, &dialog);
        for (const char* row : {"ALPHA", "GULF", "GRAND", "GULL"})
            box.AddString(row);
    }

    void Type(const char* text) { kv::input::TypeText(*box.m_hWnd, text); }
    void Press(int key) { kv::input::PressKey(key); }
    std::pair<int, int> Selection() {
        const DWORD selection = box.GetEditSel();
        return {LOWORD(selection), HIWORD(selection)};
    }

    kv::HeadlessDesktop desktop;
    kv::ResourceModule module;
    CDialog dialog;
    CComboBoxExx box;
};

TEST_F(ComboBoxExx, CompletesWhatIsTypedAndSelectsTheCompletedPart) {
    Type("G");
    EXPECT_EQ(box.WindowText(), "GULF");
    EXPECT_EQ(Selection(), std::make_pair(1, 4));
    EXPECT_EQ(box.GetCurSel(), 1);
}

TEST_F(ComboBoxExx, TheNextKeyOverwritesTheCompletedPart) {
    Type("GR");
    EXPECT_EQ(box.WindowText(), "GRAND");
    EXPECT_EQ(Selection(), std::make_pair(2, 5));
}

TEST_F(ComboBoxExx, LeavesATextThatNoRowBeginsWithAsItWasTyped) {
    Type("GX");
    EXPECT_EQ(box.WindowText(), "GX");
    EXPECT_EQ(Selection(), std::make_pair(2, 2));
    EXPECT_EQ(box.GetCurSel(), CB_ERR);
}

TEST_F(ComboBoxExx, BackspaceDoesNotCompleteAgain) {
    Type("GU");
    Press(VK_BACK);
    EXPECT_EQ(box.WindowText(), "GU");
    Press(VK_BACK);
    EXPECT_EQ(box.WindowText(), "G");
}

TEST_F(ComboBoxExx, DeleteDoesNotCompleteAgain) {
    Type("G");
    Press(VK_DELETE);
    EXPECT_EQ(box.WindowText(), "G");
}

TEST_F(ComboBoxExx, TypingInTheMiddleKeepsTheCaretThere) {
    Type("GLF");
    box.SetEditSel(1, 1);
    kv::input::TypeHere("U");
    EXPECT_EQ(box.WindowText(), "GULF");
    EXPECT_EQ(Selection(), std::make_pair(2, 2));
}

TEST_F(ComboBoxExx, PaintsInItsOwnColours) {
    box.SetBkColor(RGB(10, 20, 30), TRUE);
    box.SetTextColor(RGB(200, 210, 220), FALSE);
    kv::Raster raster(10, 10);
    CDC context(raster);
    const auto colors = kv::AskColors(*box.m_hWnd, context);
    EXPECT_EQ(colors.background, RGB(10, 20, 30));
    EXPECT_EQ(colors.text, RGB(200, 210, 220));
}

TEST_F(ComboBoxExx, ColoursThatNobodySetFollowTheSystems) {
    kv::Raster raster(10, 10);
    CDC context(raster);
    desktop.SetColor(kv::SystemColor::kWindow, RGB(35, 35, 35));
    desktop.SetColor(kv::SystemColor::kWindowText, RGB(250, 250, 250));
    EXPECT_EQ(kv::AskColors(*box.m_hWnd, context).background, RGB(35, 35, 35));
    EXPECT_EQ(kv::AskColors(*box.m_hWnd, context).text, RGB(250, 250, 250));
    box.SetTextColor(RGB(200, 210, 220), FALSE);
    EXPECT_EQ(kv::AskColors(*box.m_hWnd, context).background, RGB(35, 35, 35));
    EXPECT_EQ(kv::AskColors(*box.m_hWnd, context).text, RGB(200, 210, 220));
}

TEST_F(ComboBoxExx, AnotherColourRepaintsOnRequestOnly) {
    struct Counter : kv::View {
        explicit Counter(int& count) : paints(count) {}
        void Changed(kv::Change change) override { paints += change == kv::Change::kPaint; }
        void RowsInserted(int, int) override {}
        void RowsRemoved(int, int) override {}
        int& paints;
    };
    int paints = 0;
    box.m_hWnd->SetView(std::make_unique<Counter>(paints));
    box.SetBkColor(RGB(10, 20, 30), FALSE);
    EXPECT_EQ(paints, 0);
    box.SetBkColor(RGB(30, 20, 10), TRUE);
    EXPECT_EQ(paints, 1);
    box.SetBkColor(RGB(30, 20, 10), TRUE);
    EXPECT_EQ(paints, 1);
    box.SetTextColor(RGB(30, 20, 10), TRUE);
    EXPECT_EQ(paints, 2);
    box.m_hWnd->SetView(nullptr);
}

TEST_F(ComboBoxExx, ADisabledBoxPaintsInTheSystemsColoursWhateverWasSet) {
    box.SetBkColor(RGB(10, 20, 30), TRUE);
    box.SetTextColor(RGB(200, 210, 220), TRUE);
    box.EnableWindow(FALSE);
    kv::Raster raster(10, 10);
    CDC context(raster);
    const auto colors = kv::AskColors(*box.m_hWnd, context);
    EXPECT_EQ(colors.background, desktop.Color(kv::SystemColor::kButtonFace));
    EXPECT_EQ(colors.text, desktop.Color(kv::SystemColor::kGrayText));
}

}  // namespace
