#include "controls/super_combo_box.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "support/dialog_fixture.h"
#include "window/controls/combo_box_node.h"
#include "window/drawing/raster.h"
#include "window/owner_draw.h"

namespace {

constexpr int kCombo = 10;
constexpr int kOther = 11;

/// A dialog that keeps which messages its combo box sent it.
class ComboDialog : public test::RecordingDialog {
public:
    std::vector<UINT> messages;
    std::function<void()> whenReported;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_USER || message == WM_USER + 1) {
            EXPECT_EQ(wParam, 0u);
            EXPECT_EQ(lParam, 0);
            messages.push_back(message);
            if (whenReported) whenReported();
        }
        return RecordingDialog::WindowProc(message, wParam, lParam);
    }
};

class SuperComboBox : public test::DialogTest {
protected:
    SuperComboBox()
        : template_({test::Row(kCombo, kv::ControlKind::kDropDown),
                     test::Row(kOther, kv::ControlKind::kEdit)}) {}

    void RunCombo(const std::function<void(kv::User&)>& act) {
        dialog.onInit = [this] {
            combo->SubclassDlgItem(kCombo, &dialog);
            combo->AddString("Brazos");
            combo->AddString("Vermilion");
            dialog.messages.clear();
            return TRUE;
        };
        Run(dialog, act);
    }
    kv::ComboBoxNode& Node() { return static_cast<kv::ComboBoxNode&>(*combo->m_hWnd); }
    void AskColors(kv::Node& node) {
        kv::Raster picture(4, 4);
        CDC dc(picture);
        kv::AskColors(node, dc);
    }

    test::TestTemplate template_;
    ComboDialog dialog;
    std::unique_ptr<CSuperComboBox> combo = std::make_unique<CSuperComboBox>();
};

TEST_F(SuperComboBox, AttachesItsPartsWhenTheirColoursAreAskedFor) {
    RunCombo([&](kv::User&) {
        EXPECT_EQ(combo->m_edit.m_hWnd, nullptr);
        AskColors(*Node().Edit());
        EXPECT_EQ(combo->m_edit.m_hWnd, Node().Edit());
        EXPECT_EQ(combo->m_listbox.m_hWnd, nullptr);
        AskColors(Node().List());
        EXPECT_EQ(combo->m_listbox.m_hWnd, &Node().List());
        EXPECT_EQ(combo->m_listbox.GetCount(), 2);
        AskColors(*Node().Edit());
        EXPECT_EQ(combo->m_edit.m_hWnd, Node().Edit());
    });
}

TEST_F(SuperComboBox, ItsOwnColoursAttachNothing) {
    RunCombo([&](kv::User&) {
        AskColors(Node());
        EXPECT_EQ(combo->m_edit.m_hWnd, nullptr);
    });
}

TEST_F(SuperComboBox, TypingGoesOnThroughTheAttachedEdit) {
    RunCombo([&](kv::User& user) {
        AskColors(*Node().Edit());
        user.Type(kCombo, "Ship");
        EXPECT_EQ(user.Text(kCombo), "Ship");
    });
}

TEST_F(SuperComboBox, LetsItsPartsGoWhenItIsDestroyed) {
    RunCombo([&](kv::User&) {
        AskColors(*Node().Edit());
        AskColors(Node().List());
        combo->DestroyWindow();
        EXPECT_EQ(combo->m_edit.m_hWnd, nullptr);
        EXPECT_EQ(combo->m_listbox.m_hWnd, nullptr);
    });
}

TEST_F(SuperComboBox, ReportsScrollingToItsParent) {
    RunCombo([&](kv::User&) {
        combo->SendMessage(WM_VSCROLL);
        EXPECT_EQ(dialog.messages, (std::vector<UINT>{1024}));
    });
}

TEST_F(SuperComboBox, ReportsEachNotificationOfItsPartsBehindIt) {
    RunCombo([&](kv::User& user) {
        user.Focus(kCombo);
        dialog.messages.clear();
        bool changed = false;
        dialog.when["10 sent 5"] = [&] {
            changed = true;
            EXPECT_EQ(dialog.messages, std::vector<UINT>(dialog.messages.size(), 1025));
        };
        kv::input::TypeHere("x");
        EXPECT_TRUE(changed);
        // One for the update of the edit, one for its change.
        EXPECT_EQ(dialog.messages, (std::vector<UINT>{1025, 1025}));
    });
}

TEST_F(SuperComboBox, SetByTheProgramItReportsNothing) {
    RunCombo([&](kv::User&) {
        combo->SetCurSel(1);
        EXPECT_EQ(dialog.messages, std::vector<UINT>{});
    });
}

TEST_F(SuperComboBox, AParentMayDestroyItWhenItHears) {
    RunCombo([&](kv::User& user) {
        user.Focus(kCombo);
        dialog.whenReported = [&] {
            dialog.whenReported = nullptr;
            combo.reset();
            dialog.GetDlgItem(kCombo)->DestroyWindow();
        };
        kv::input::TypeHere("x");
        EXPECT_FALSE(user.HasControl(kCombo));
    });
}

TEST_F(SuperComboBox, AParentMayDestroyItWhenItHearsOfScrolling) {
    RunCombo([&](kv::User& user) {
        dialog.whenReported = [&] { combo.reset(); };
        dialog.GetDlgItem(kCombo)->SendMessage(WM_VSCROLL);
        EXPECT_TRUE(user.HasControl(kCombo));
        EXPECT_EQ(dialog.messages.size(), 1u);
    });
}

}  // namespace
