#include "frame/module.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/failing_memory.h"
#include "support/temp_folder.h"
#include "window/acting/headless_desktop.h"
#include "window/dialogs/dialog.h"
#include "window/window_system.h"

namespace {

using kv::module::Event;
using kv::module::Main;

constexpr int kTemplate = 31000;
const kv::DialogTemplate kDialog{kTemplate, "Of the library", 100, 50, {}};
const kv::RegisterTemplate kRegistered(kDialog);

// The first test of this file, since the others load the module by themselves.
TEST(LoadingTheLibrary, AttachesTheModule) {
    const CDynLinkLibrary* library = InitControlDll();
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(library->m_hModule, &kv::LibraryResources());
}

TEST(LoadingTheLibrary, LetsTheWindowsWriteIntoTheLogAlone) {
    const test::TempFolder folder;
    testing::internal::CaptureStderr();
    kv::WindowSystem::Get().Log("a handler failed");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_THAT(folder.Read("log.txt"), testing::EndsWith(" 101 a handler failed\n"));
}

/// Each test begins with the module loaded and not started.
class Module : public ::testing::Test {
protected:
    Module() {
        Main(Event::kProcessDetach, &kv::LibraryResources());
        Main(Event::kProcessAttach, &kv::LibraryResources());
        kv::WindowSystem::Get().SetDesktop(&desktop_);
    }
    kv::HeadlessDesktop desktop_;
};

TEST_F(Module, BeforeInitControlDllNoDialogOpens) {
    const int before = kv::WindowSystem::Get().ModalsOpened();
    CDialog dialog(kTemplate);
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_FALSE(dialog.Create(kTemplate));
    EXPECT_TRUE(kv::WindowSystem::Get().TopLevels().empty());
    EXPECT_EQ(kv::WindowSystem::Get().ModalsOpened(), before);
}

TEST_F(Module, AfterInitControlDllDialogsOpen) {
    const CDynLinkLibrary* library = InitControlDll();
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(library->m_hModule, &kv::LibraryResources());
    EXPECT_EQ(AfxFindResourceHandle(kTemplate, ResourceKind::kDialog), &kv::LibraryResources());
    desktop_.ExpectWindow("Of the library", [](kv::User& user) { user.Key(0, "Enter"); });
    EXPECT_EQ(CDialog(kTemplate).DoModal(), IDOK);
}

TEST_F(Module, ASecondInitControlDllDoesNoHarm) {
    EXPECT_NE(InitControlDll(), InitControlDll());
    EXPECT_EQ(kv::FindTemplate(kTemplate), &kDialog);
}

TEST_F(Module, DetachTakesTheResourcesOutOfTheChain) {
    InitControlDll();
    EXPECT_EQ(Main(Event::kProcessDetach, &kv::LibraryResources()), 1);
    EXPECT_EQ(kv::FindTemplate(kTemplate), nullptr);
    EXPECT_EQ(CDialog(kTemplate).DoModal(), -1);
}

TEST_F(Module, AfterDetachInitControlDllFails) {
    Main(Event::kProcessDetach, &kv::LibraryResources());
    EXPECT_EQ(InitControlDll(), nullptr);
    EXPECT_EQ(kv::FindTemplate(kTemplate), nullptr);
}

TEST_F(Module, AfterDetachItIsAttachedAgain) {
    InitControlDll();
    Main(Event::kProcessDetach, &kv::LibraryResources());
    EXPECT_EQ(Main(Event::kProcessAttach, &kv::LibraryResources()), 1);
    EXPECT_EQ(kv::FindTemplate(kTemplate), nullptr);
    EXPECT_NE(InitControlDll(), nullptr);
    EXPECT_EQ(kv::FindTemplate(kTemplate), &kDialog);
    Main(Event::kProcessDetach, &kv::LibraryResources());
    EXPECT_EQ(kv::FindTemplate(kTemplate), nullptr);
}

TEST_F(Module, WithoutMemoryInitControlDllAnswersNullAndLeavesTheChain) {
    // Repeated, so that every room that the chain has at hand is full once.
    for (int repeated = 0; repeated < 20; ++repeated) {
        for (int first = 1;; ++first) {
            test::FailingMemory memory(first);
            const CDynLinkLibrary* library = InitControlDll();
            if (!memory.Failed()) break;
            EXPECT_EQ(library, nullptr);
        }
    }
    Main(Event::kProcessDetach, &kv::LibraryResources());
    EXPECT_EQ(kv::FindTemplate(kTemplate), nullptr);
}

TEST_F(Module, AttachWithoutAnInstanceFails) {
    Main(Event::kProcessDetach, &kv::LibraryResources());
    EXPECT_EQ(Main(Event::kProcessAttach, nullptr), 0);
    EXPECT_EQ(InitControlDll(), nullptr);
    EXPECT_EQ(Main(Event::kProcessAttach, &kv::LibraryResources()), 1);
}

TEST_F(Module, ThreadsComeAndGoWithoutEffect) {
    InitControlDll();
    EXPECT_EQ(Main(Event::kThreadAttach, &kv::LibraryResources()), 1);
    EXPECT_EQ(Main(Event::kThreadDetach, &kv::LibraryResources()), 1);
    EXPECT_EQ(kv::FindTemplate(kTemplate), &kDialog);
}

}  // namespace
