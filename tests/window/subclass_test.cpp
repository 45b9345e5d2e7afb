#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "support/dialog_fixture.h"
#include "window/controls/edit.h"
#include "window/message_handlers.h"

namespace test {
namespace {

using testing::ElementsAre;

/// An edit's handle that notes the characters it sees, and keeps those from the edit that it takes.
class Listener : public CEdit {
public:
    Listener(std::string name, std::string taken, std::vector<std::string>& heard)
        : name_(std::move(name)), taken_(std::move(taken)), heard_(heard) {}

    static const kv::MessageMap& Messages() {
        static const kv::MessageEntry kEntries[] = {
            kv::OnMessage<&Listener::OnChar>(WM_CHAR),
        };
        static const kv::MessageMap kMap{&CEdit::Messages(), kEntries};
        return kMap;
    }
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

private:
    LRESULT OnChar(WPARAM character, LPARAM) {
        const char ch = static_cast<char>(character);
        heard_.push_back(name_ + ch);
        return taken_.find(ch) == std::string::npos ? Default() : 0;
    }

    std::string name_;
    std::string taken_;
    std::vector<std::string>& heard_;
};

class Subclassed : public testing::Test {
protected:
    Subclassed() {
        dialog_.Create(kTestTemplate);
        window_ = dialog_.GetDlgItem(11)->m_hWnd;
        EXPECT_TRUE(first_.SubclassDlgItem(11, &dialog_));
        EXPECT_TRUE(second_.SubclassWindow(window_));
    }
    void Type(const char* text) {
        for (; *text; ++text)
            kv::Send(*window_, WM_CHAR, static_cast<WPARAM>(*text));
    }
    std::string Text() { return dialog_.DlgItemText(11); }

    TestTemplate template_{{Row(11, kv::ControlKind::kEdit)}};
    RecordingDialog dialog_;
    HWND window_ = nullptr;
    std::vector<std::string> heard_;
    Listener first_{"first ", "b", heard_};
    Listener second_{"second ", "c", heard_};
};

TEST_F(Subclassed, WhatTheLastLeavesGoesOnToTheFirstAndThenToTheWindow) {
    Type("abc");
    EXPECT_THAT(heard_, ElementsAre("second a", "first a", "second b", "first b", "second c"));
    EXPECT_EQ(Text(), "a");
    EXPECT_EQ(CWnd::FromHandle(window_), &second_);
}

TEST_F(Subclassed, TheFirstGoesOnWhenTheLastIsTakenAway) {
    EXPECT_EQ(second_.UnsubclassWindow(), window_);
    EXPECT_EQ(second_.m_hWnd, nullptr);
    Type("ac");
    EXPECT_THAT(heard_, ElementsAre("first a", "first c"));
    EXPECT_EQ(CWnd::FromHandle(window_), &first_);
}

TEST_F(Subclassed, TheLastGoesOnWhenTheFirstIsTakenAway) {
    first_.UnsubclassWindow();
    Type("ab");
    EXPECT_THAT(heard_, ElementsAre("second a", "second b"));
    EXPECT_EQ(Text(), "ab");
}

TEST_F(Subclassed, AHandleThatEndsLeavesTheOthers) {
    {
        Listener third("third ", "", heard_);
        EXPECT_TRUE(third.SubclassWindow(window_));
        Type("a");
    }
    Type("a");
    EXPECT_THAT(heard_, ElementsAre("third a", "second a", "first a", "second a", "first a"));
}

TEST_F(Subclassed, AHandleHasOneWindowAndAttachingIsForWindowsWithoutOne) {
    EXPECT_FALSE(second_.SubclassWindow(window_));
    Listener third("third ", "", heard_);
    EXPECT_FALSE(third.Attach(window_));
    EXPECT_FALSE(third.SubclassWindow(nullptr));
    EXPECT_EQ(third.m_hWnd, nullptr);
}

TEST_F(Subclassed, AllLearnThatTheWindowHasEnded) {
    dialog_.DestroyWindow();
    EXPECT_EQ(first_.m_hWnd, nullptr);
    EXPECT_EQ(second_.m_hWnd, nullptr);
}

/// A handle in front of a dialog's.
class Front : public CWnd {
public:
    int clicks = 0;
    int shared = 0;

    static const kv::MessageMap& Messages() {
        static const kv::MessageEntry kEntries[] = {
            kv::OnClicked<&Front::OnClick>(21),
        };
        static const kv::MessageMap kMap{&CWnd::Messages(), kEntries};
        return kMap;
    }
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

private:
    void OnClick() { ++clicks; }
};

class Told : public CEdit {
public:
    int times = 0;

private:
    void PreSubclassWindow() override { ++times; }
};

TEST(SubclassedControl, IsToldWhenItsHandleComes) {
    const TestTemplate dialogTemplate({Row(11, kv::ControlKind::kEdit)});
    RecordingDialog dialog;
    dialog.Create(kTestTemplate);
    Told edit;
    ASSERT_TRUE(edit.SubclassDlgItem(11, &dialog));
    EXPECT_EQ(edit.times, 1);
    const HWND window = edit.Detach();
    Told attached;
    ASSERT_TRUE(attached.Attach(window));
    EXPECT_EQ(attached.times, 1);
    EXPECT_FALSE(edit.Attach(window)) << "it has a handle";
    EXPECT_EQ(edit.times, 1);
}

TEST(SubclassedDialog, ItsCommandsReachTheHandleInFrontAndThenItsOwn) {
    const TestTemplate dialogTemplate(
        {Row(20, kv::ControlKind::kPushButton), Row(21, kv::ControlKind::kPushButton)});
    RecordingDialog dialog;
    dialog.Create(kTestTemplate);
    auto front = std::make_unique<Front>();
    ASSERT_TRUE(front->SubclassWindow(dialog.m_hWnd));
    dialog.told.clear();
    kv::input::Click(*dialog.GetDlgItem(20)->m_hWnd);
    kv::input::Click(*dialog.GetDlgItem(21)->m_hWnd);
    EXPECT_EQ(front->clicks, 1);
    EXPECT_THAT(dialog.told, testing::Contains("20 clicked"));
    EXPECT_THAT(dialog.told, testing::Not(testing::Contains("21 clicked")));
    front.reset();
    ASSERT_NE(dialog.m_hWnd, nullptr);
    kv::input::Click(*dialog.GetDlgItem(21)->m_hWnd);
    EXPECT_THAT(dialog.told, testing::Contains("21 clicked"));
}

}  // namespace
}  // namespace test
