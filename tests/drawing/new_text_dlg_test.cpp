#include "drawing/new_text_dlg.h"

#include "drawing/new_text_ids.h"
#include "drawing/swatches/palette_ids.h"
#include "frame/module.h"
#include "support/dialog_fixture.h"
#include "window/desktop.h"

using namespace kv::new_text;
using testing::ElementsAre;

namespace {

class NewTextDlg : public test::DialogTest {
protected:
    NewTextDlg() { InitControlDll(); }
    ~NewTextDlg() override {
        if (modeless) modeless->DestroyWindow();
    }
    /// A modeless one, shown.
    kv::User Open() {
        modeless = new CKvNewTextDlg;
        modeless->SetHostPointer(&modeless);
        modeless->SetModeLessState(true);
        EXPECT_TRUE(modeless->Create(nullptr));
        modeless->SetMoveTo({30, 40});
        return {*modeless->m_hWnd, [this](const std::string& words) { desktop.Fail(words); }};
    }

    CKvNewTextDlg dialog;
    CKvNewTextDlg* modeless = nullptr;
};

TEST_F(NewTextDlg, BeginsWithABlankInTheMiddle) {
    EXPECT_STREQ(dialog.GetContent(), " ");
    EXPECT_EQ(dialog.GetColor(), 6);
    EXPECT_EQ(dialog.GetHeight(), 0.05F);
    EXPECT_EQ(dialog.GetWeight(), 0);
    EXPECT_EQ(dialog.GetAngle(), 0.0);
    EXPECT_STREQ(dialog.GetVertJust(), "ON");
    EXPECT_STREQ(dialog.GetHorzJust(), "CENTER");
    EXPECT_FALSE(dialog.GetWaitMode());
    EXPECT_FALSE(dialog.GetOkFlag());
    Run(dialog, [](kv::User& user) {
        EXPECT_EQ(user.Window().WindowText(), "Text Property");
        EXPECT_EQ(user.Text(kContent), " ");
        EXPECT_EQ(user.Text(kHeight), "0.0500");
        EXPECT_EQ(user.Text(kAngle), "0");
        EXPECT_THAT(user.Rows(kVertical), ElementsAre("ABOVE", "ON", "BELOW"));
        EXPECT_THAT(user.Rows(kHorizontal), ElementsAre("LEFT", "CENTER", "RIGHT"));
        EXPECT_EQ(user.Text(kVertical), "ON");
        EXPECT_EQ(user.Text(kHorizontal), "CENTER");
    });
}

TEST_F(NewTextDlg, OkTakesAll) {
    const int result = Run(dialog, [&](kv::User& user) {
        user.Type(kContent, "Platform A");
        user.Type(kHeight, "0.1234");
        user.Type(kAngle, "-45");
        desktop.ExpectWindow("Line Widths", [](kv::User& palette) { palette.Click(2006); });
        user.Click(kWeight);
        desktop.ExpectWindow("Color Fill Palette", [](kv::User& palette) {
            palette.Click(kv::palettes::kFirstShortCell + 9);
        });
        user.Click(kColor);
        user.Select(kVertical, "BELOW");
        user.Select(kHorizontal, "LEFT");
        user.Click(IDOK);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_TRUE(dialog.GetOkFlag());
    EXPECT_STREQ(dialog.GetContent(), "Platform A");
    EXPECT_FLOAT_EQ(dialog.GetHeight(), 0.1234F);
    EXPECT_EQ(dialog.GetAngle(), -45.0);
    EXPECT_EQ(dialog.GetWeight(), 3);
    EXPECT_EQ(dialog.GetColor(), 9);
    EXPECT_STREQ(dialog.GetVertJust(), "BELOW");
    EXPECT_STREQ(dialog.GetHorzJust(), "LEFT");
}

TEST_F(NewTextDlg, CancelTakesNothing) {
    dialog.SetContent("old");
    const int result = Run(dialog, [](kv::User& user) {
        user.Type(kContent, "new");
        user.Type(kHeight, "0.5");
        user.Click(IDCANCEL);
    });
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_FALSE(dialog.GetOkFlag());
    EXPECT_STREQ(dialog.GetContent(), "old");
    EXPECT_EQ(dialog.GetHeight(), 0.05F);
}

TEST_F(NewTextDlg, CancelBehindAnOkTakesItsFlagBack) {
    Run(dialog, [](kv::User& user) { user.Click(IDOK); });
    EXPECT_TRUE(dialog.GetOkFlag());
    Run(dialog, [](kv::User& user) { user.Click(IDCANCEL); });
    EXPECT_FALSE(dialog.GetOkFlag());
}

/// Shows what a host that derives sees.
class OpenText : public CKvNewTextDlg {
public:
    bool HoldsControls() const {
        return m_pColorBtn || m_pWidthBtn || m_pHeightEdit || m_pHeightSpin || m_pAngleEdit ||
               m_pAngleSpin;
    }
};

TEST_F(NewTextDlg, ItsControlsGoWithTheWindow) {
    OpenText open;
    Run(open, [&](kv::User& user) {
        EXPECT_TRUE(open.HoldsControls());
        user.Click(IDCANCEL);
    });
    EXPECT_FALSE(open.HoldsControls());
}

TEST_F(NewTextDlg, SpinsStepHeightAndAngleWithinTheirRanges) {
    dialog.SetHeight(0.95F);
    dialog.SetAngle(359.0);
    Run(dialog, [](kv::User& user) {
        kv::Node& window = user.WindowNode();
        for (int step = 0; step < 3; ++step) {
            kv::input::StepSpin(*window.FindChild(kHeightSpin), true);
            kv::input::StepSpin(*window.FindChild(kAngleSpin), true);
        }
        EXPECT_EQ(user.Text(kHeight), "1");
        EXPECT_EQ(user.Text(kAngle), "360");
        kv::input::StepSpin(*window.FindChild(kHeightSpin), false);
        EXPECT_EQ(user.Text(kHeight), "0.9500");
        user.Click(IDOK);
    });
    EXPECT_FLOAT_EQ(dialog.GetHeight(), 0.95F);
    EXPECT_EQ(dialog.GetAngle(), 360.0);
    dialog.SetHeight(0.05F);
    dialog.SetAngle(-359.0);
    Run(dialog, [](kv::User& user) {
        kv::Node& window = user.WindowNode();
        for (int step = 0; step < 3; ++step) {
            kv::input::StepSpin(*window.FindChild(kHeightSpin), false);
            kv::input::StepSpin(*window.FindChild(kAngleSpin), false);
        }
        EXPECT_EQ(user.Text(kHeight), "0");
        EXPECT_EQ(user.Text(kAngle), "-360");
    });
}

TEST_F(NewTextDlg, AHeightOutOfRangeIsJudgedAtEnterAsAtLeaving) {
    for (const char* key : {"Enter", "Tab"}) {
        Run(dialog, [&](kv::User& user) {
            user.Focus(kHeight);
            user.Type(kHeight, "1.5");
            desktop.ExpectMessage("Value out of range");
            user.Key(0, key);
            EXPECT_TRUE(user.Open()) << key;
            EXPECT_EQ(user.Text(kHeight), "") << key;
            EXPECT_EQ(test::FocusedId(), kHeight) << key;
        });
    }
}

TEST_F(NewTextDlg, AJustificationThatThereIsNotLeavesNoneSelectedAndStays) {
    dialog.SetVertJust("UNDER");
    Run(dialog, [](kv::User& user) {
        EXPECT_THAT(user.Selected(kVertical), testing::IsEmpty());
        user.Click(IDOK);
    });
    EXPECT_STREQ(dialog.GetVertJust(), "UNDER");
    dialog.SetVertJust("BEL");
    Run(dialog, [](kv::User& user) { EXPECT_EQ(user.Text(kVertical), "BELOW"); });
}

TEST_F(NewTextDlg, SettersAheadOfTheWindowStoreAlsoModeless) {
    modeless = new CKvNewTextDlg;
    modeless->SetHostPointer(&modeless);
    modeless->SetModeLessState(true);
    modeless->SetHeight(0.25F);
    modeless->SetAngle(90);
    modeless->SetColor(static_cast<KVColor>(9));
    modeless->SetWeight(4);
    EXPECT_EQ(modeless->GetHeight(), 0.25F);
    EXPECT_EQ(modeless->GetAngle(), 90.0);
    EXPECT_EQ(modeless->GetColor(), 9);
    EXPECT_EQ(modeless->GetWeight(), 4);
    ASSERT_TRUE(modeless->Create(nullptr));
    EXPECT_EQ(modeless->DlgItemText(kHeight), "0.2500");
}

TEST_F(NewTextDlg, SettersOfAModelessOneChangeWhatItShowsAndTheOutcomeByOk) {
    kv::User user = Open();
    modeless->SetHeight(0.5F);
    modeless->SetAngle(12.5);
    modeless->SetColor(static_cast<KVColor>(9));
    modeless->SetWeight(4);
    EXPECT_EQ(user.Text(kHeight), "0.5000");
    EXPECT_EQ(user.Text(kAngle), "12.500");
    EXPECT_EQ(modeless->GetHeight(), 0.05F);
    EXPECT_EQ(modeless->GetAngle(), 0.0);
    EXPECT_EQ(modeless->GetColor(), 6);
    EXPECT_EQ(modeless->GetWeight(), 0);
    modeless->SetContent("moved");
    EXPECT_EQ(user.Text(kContent), " ");
    modeless->SetUpdate();
    EXPECT_EQ(user.Text(kContent), "moved");
    user.Click(IDOK);
    EXPECT_EQ(modeless->GetHeight(), 0.5F);
    EXPECT_EQ(modeless->GetAngle(), 12.5);
    EXPECT_EQ(modeless->GetColor(), 9);
    EXPECT_EQ(modeless->GetWeight(), 4);
}

TEST_F(NewTextDlg, ModelessItIsShownByMovingAndHiddenWhenDone) {
    modeless = new CKvNewTextDlg;
    modeless->SetHostPointer(&modeless);
    modeless->SetModeLessState(true);
    ASSERT_TRUE(modeless->Create(nullptr));
    EXPECT_FALSE(modeless->IsWindowVisible());
    modeless->SetMoveTo({30, 40});
    EXPECT_TRUE(modeless->IsWindowVisible());
    EXPECT_EQ(modeless->m_hWnd->Rect().TopLeft(), (CPoint{30, 40}));
    modeless->SetDone();
    EXPECT_FALSE(modeless->IsWindowVisible());
}

TEST_F(NewTextDlg, AModalOneIsNotMovedByItsHost) {
    Run(dialog, [&](kv::User& user) {
        const CRect place = user.WindowNode().Rect();
        dialog.SetMoveTo({1, 1});
        EXPECT_EQ(user.WindowNode().Rect(), place);
        dialog.SetDone();
        EXPECT_TRUE(user.Open());
        dialog.SetContent("other");
        dialog.SetUpdate();
        EXPECT_EQ(user.Text(kContent), " ");
    });
}

TEST_F(NewTextDlg, OkEndsTheWaitAndCancelLeavesItOn) {
    kv::User user = Open();
    modeless->SetWaitMode(true);
    user.Click(IDCANCEL);
    EXPECT_TRUE(modeless->GetWaitMode());
    EXPECT_FALSE(modeless->GetOkFlag());
    EXPECT_FALSE(modeless->IsWindowVisible());
    modeless->SetMoveTo({30, 40});
    user.Click(IDOK);
    EXPECT_FALSE(modeless->GetWaitMode());
    EXPECT_TRUE(modeless->GetOkFlag());
    EXPECT_FALSE(modeless->IsWindowVisible());
}

TEST_F(NewTextDlg, TheHostsLoopForItEndsWithItAndNoOther) {
    Open();
    modeless->SetWaitMode(true);
    desktop.ExpectWindow("CKvNewTextDlg", [](kv::User& user) { user.Click(IDOK); });
    kv::WindowSystem::Get().GetDesktop().RunModeless(*modeless->m_hWnd, *modeless->m_hWnd);
    EXPECT_TRUE(modeless->GetOkFlag());
    // No quit is left for the next loop.
    EXPECT_EQ(Run(dialog, [](kv::User& user) { EXPECT_TRUE(user.Open()); }), kLeftOpen);
}

TEST_F(NewTextDlg, AModelessOneDeletesItselfWithItsWindowAndTheHostsPointerKnows) {
    Open();
    ASSERT_NE(modeless, nullptr);
    modeless->DestroyWindow();
    EXPECT_EQ(modeless, nullptr);
    EXPECT_TRUE(kv::WindowSystem::Get().TopLevels().empty());
}

TEST_F(NewTextDlg, AModelessOneThatTheHostDeletesIsGoneOnce) {
    Open();
    delete modeless;
    EXPECT_EQ(modeless, nullptr);
    EXPECT_TRUE(kv::WindowSystem::Get().TopLevels().empty());
}

}  // namespace
