#include <memory>
#include <string>

#include "support/dialog_fixture.h"
#include "support/failing_memory.h"
#include "window/controls/edit.h"
#include "window/frames/frame_wnd.h"

using enum kv::ControlKind;
using test::Row;

namespace {

/// A desktop that needs no memory to show a message.
class ThriftyDesktop : public test::TestDesktop {
public:
    int RunMessageBox(const kv::MessageBoxRequest& request) override {
        ++messages;
        outOfMemory = request.text == "Out of memory.";
        return IDOK;
    }
    int messages = 0;
    bool outOfMemory = false;
};

class WithoutMemory : public testing::Test {
protected:
    WithoutMemory() { kv::WindowSystem::Get().SetDesktop(&desktop_); }

    ThriftyDesktop desktop_;
    test::TestTemplate template_{{Row(11, kEdit), Row(12, kListView), Row(13, kDropDown),
                                  Row(21, kRadio, "One", {WS_GROUP, 0}), Row(22, kRadio, "Two"),
                                  Row(IDOK, kDefaultButton, "OK")}};
};

TEST_F(WithoutMemory, AWindowEndsWithItsObject) {
    CFrameWnd frame;
    frame.Create("Host");
    frame.ShowWindow(SW_SHOW);
    auto dialog = std::make_unique<test::RecordingDialog>(test::kTestTemplate, &frame);
    ASSERT_TRUE(dialog->Create(test::kTestTemplate));
    auto owned = std::make_unique<test::RecordingDialog>(test::kTestTemplate, dialog.get());
    ASSERT_TRUE(owned->Create(test::kTestTemplate));
    CEdit edit;
    edit.SubclassDlgItem(11, dialog.get());
    const std::weak_ptr<kv::Node> node = dialog->m_hWnd->weak_from_this();
    {
        const test::FailingMemory memory;
        dialog.reset();
    }
    EXPECT_TRUE(node.expired());
    EXPECT_EQ(edit.m_hWnd, nullptr);
    EXPECT_EQ(owned->m_hWnd, nullptr);
    EXPECT_EQ(kv::WindowSystem::Get().TopLevels().size(), 1u);
    EXPECT_EQ(desktop_.messages, 0);
}

TEST_F(WithoutMemory, AControlEndsAlsoWhereTheSearchForTheNextTabStopNeedsSome) {
    test::RecordingDialog dialog;
    ASSERT_TRUE(dialog.Create(test::kTestTemplate));
    CWnd* combo = dialog.GetDlgItem(13);
    combo->SetFocus();
    test::FailingMemory memory;
    combo->DestroyWindow();
    ASSERT_TRUE(memory.Failed());
    EXPECT_FALSE(dialog.HasDlgItem(13));
    EXPECT_EQ(kv::WindowSystem::Get().Focus(), nullptr);
    EXPECT_EQ(desktop_.messages, 1);
    EXPECT_TRUE(desktop_.outOfMemory);
}

TEST_F(WithoutMemory, TheFailureOfAHandlerIsTold) {
    test::RecordingDialog dialog;
    ASSERT_TRUE(dialog.Create(test::kTestTemplate));
    const CWnd& edit = *dialog.GetDlgItem(11);
    const std::string text(100, 'x');
    const LPARAM param = kv::AsParam(text.c_str());
    test::FailingMemory memory;
    EXPECT_EQ(edit.SendMessage(WM_SETTEXT, 0, param), 0);
    ASSERT_TRUE(memory.Failed());
    EXPECT_EQ(desktop_.messages, 1);
}

}  // namespace
