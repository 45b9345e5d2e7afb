#include "window/blocked_windows.h"

#include "support/dialog_fixture.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int kEdit = 11;
constexpr int kButton = 12;

class BlockedWindows : public test::DialogTest {
protected:
    BlockedWindows() {
        template_ = std::make_unique<test::TestTemplate>(
            std::vector<kv::ControlRow>{test::Row(kEdit, kv::ControlKind::kEdit),
                                        test::Row(kButton, kv::ControlKind::kPushButton, "Go")});
        dialog_.Create(test::kTestTemplate);
        other_.Create(test::kTestTemplate);
        dialog_.GetDlgItem(kEdit)->SetFocus();
        kv::WindowSystem::Get().Settle();
        dialog_.told.clear();
    }
    ~BlockedWindows() override {
        other_.DestroyWindow();
        dialog_.DestroyWindow();
    }
    kv::Node& Control(CDialog& dialog, int id) { return *dialog.m_hWnd->FindChild(id); }

    std::unique_ptr<test::TestTemplate> template_;
    test::RecordingDialog dialog_;
    test::RecordingDialog other_;
};

TEST_F(BlockedWindows, TheOthersReactToNobodyAndOneDoes) {
    {
        kv::BlockedWindows blocked;
        test::RecordingDialog alive;
        ASSERT_TRUE(alive.Create(test::kTestTemplate));
        blocked.Except(*alive.m_hWnd);
        EXPECT_FALSE(kv::input::Click(Control(dialog_, kButton)));
        EXPECT_FALSE(kv::input::Click(Control(other_, kButton)));
        EXPECT_TRUE(kv::input::Click(Control(alive, kButton)));
        EXPECT_TRUE(alive.WasTold("12 clicked"));
        kv::WindowSystem::Get().SetFocusQuietly(nullptr);
    }
    EXPECT_THAT(dialog_.told, IsEmpty());
    EXPECT_TRUE(kv::input::Click(Control(dialog_, kButton)));
    EXPECT_TRUE(dialog_.WasTold("12 clicked"));
}

TEST_F(BlockedWindows, TheFocusComesBackAndNobodyIsToldOfIt) {
    {
        const kv::BlockedWindows blocked;
        EXPECT_EQ(kv::WindowSystem::Get().Focus(), nullptr);
    }
    EXPECT_EQ(kv::WindowSystem::Get().Focus(), &Control(dialog_, kEdit));
    EXPECT_THAT(dialog_.told, IsEmpty());
}

TEST_F(BlockedWindows, AWindowThatWasDisabledStaysSo) {
    other_.EnableWindow(FALSE);
    { const kv::BlockedWindows blocked; }
    EXPECT_FALSE(other_.IsWindowEnabled());
    EXPECT_TRUE(dialog_.IsWindowEnabled());
}

TEST_F(BlockedWindows, WhatIsPostedToTheOthersWaitsForTheEnd) {
    dialog_.onPreTranslate = [this](MSG* message) {
        dialog_.told.push_back("message " + std::to_string(message->message));
        return TRUE;
    };
    {
        kv::BlockedWindows blocked;
        dialog_.PostMessage(1024);
        blocked.Pump();
        kv::WindowSystem::Get().Settle();
        EXPECT_THAT(dialog_.told, IsEmpty());
    }
    kv::WindowSystem::Get().Settle();
    EXPECT_THAT(dialog_.told, ElementsAre("message 1024"));
}

TEST_F(BlockedWindows, NoIdleUpdateRunsMeanwhile) {
    int updates = 0;
    kv::WindowSystem::Get().AddIdleUpdate(*dialog_.m_hWnd, [&] { ++updates; });
    {
        kv::BlockedWindows blocked;
        blocked.Pump();
        kv::WindowSystem::Get().Settle();
        EXPECT_EQ(updates, 0);
    }
    kv::WindowSystem::Get().Settle();
    EXPECT_EQ(updates, 1);
}

TEST(Patience, IsNoneWhereNobodyWaits) {
    EXPECT_FALSE(kv::Patience().has_value());
    {
        const kv::HeadlessDesktop desktop;
        kv::SetPatience(kv::kUsualPatience);
        EXPECT_EQ(kv::Patience(), kv::kUsualPatience);
    }
    EXPECT_FALSE(kv::Patience().has_value()) << "it ends with the desktop";
}

}  // namespace
