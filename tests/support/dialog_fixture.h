#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "window/acting/headless_desktop.h"
#include "window/acting/input.h"
#include "window/dialogs/dialog.h"
#include "window/templates/dialog_template.h"
#include "window/templates/resources.h"
#include "window/window_system.h"

namespace test {

/// The template that `RecordingDialog` is made from where it is not told otherwise.
inline constexpr int kTestTemplate = 100;

/// A dialog template in the resource chain for as long as it lives.
class TestTemplate {
public:
    explicit TestTemplate(std::vector<kv::ControlRow> rows, int id = kTestTemplate,
                          const char* caption = "Test", int width = 300, int height = 200)
        : rows_(std::move(rows)), template_{id, caption, width, height, rows_} {
        module_.templates.push_back(&template_);
        kv::AddToResourceChain(module_);
    }
    ~TestTemplate() { kv::RemoveFromResourceChain(module_); }
    TestTemplate(const TestTemplate&) = delete;
    TestTemplate& operator=(const TestTemplate&) = delete;

private:
    std::vector<kv::ControlRow> rows_;
    kv::DialogTemplate template_;
    kv::ResourceModule module_;
};

/// A row where its place does not matter.
inline kv::ControlRow Row(int id, kv::ControlKind kind, const char* text = "",
                          kv::RowStyle style = {}) {
    return {id, kind, text, {0, 0, 50, 12}, style};
}

/// A control's notification in words: "11 gained", "11 lost", "20 clicked", "11 changed".
inline std::string InWords(UINT id, int code) {
    const std::string number = std::to_string(id);
    switch (code) {
        case BN_CLICKED:
            return number + " clicked";
        case EN_SETFOCUS:
        case CBN_SETFOCUS:
            return number + " gained";
        case EN_KILLFOCUS:
        case CBN_KILLFOCUS:
            return number + " lost";
        case EN_CHANGE:
            return number + " changed";
        default:
            return number + " sent " + std::to_string(code);
    }
}

/// A dialog that keeps what its controls told it, in words, and whose handlers are set by the test.
class RecordingDialog : public CDialog {
public:
    explicit RecordingDialog(UINT templateId = kTestTemplate, CWnd* parent = nullptr)
        : CDialog(templateId, parent) {}

    std::vector<std::string> told;
    /// Called with each notification as it comes in, by its words.
    std::map<std::string, std::function<void()>> when;
    std::function<BOOL()> onInit;
    std::function<void(CDataExchange*)> onExchange;
    std::function<BOOL(MSG*)> onPreTranslate;

    /// The focus notifications alone.
    std::vector<std::string> ToldOfFocus() const {
        std::vector<std::string> result;
        for (const std::string& each : told) {
            if (each.ends_with("gained") || each.ends_with("lost")) result.push_back(each);
        }
        return result;
    }
    bool WasTold(const std::string& words) const {
        return std::find(told.begin(), told.end(), words) != told.end();
    }

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        return onInit ? onInit() : TRUE;
    }
    void DoDataExchange(CDataExchange* exchange) override {
        if (onExchange) onExchange(exchange);
    }
    BOOL PreTranslateMessage(MSG* message) override {
        return onPreTranslate ? onPreTranslate(message) : CDialog::PreTranslateMessage(message);
    }
    BOOL OnCmdMsg(UINT id, int code, void* extra, void* info) override {
        if (code >= 0 && !info) {
            const std::string words = InWords(id, code);
            told.push_back(words);
            const auto handler = when.find(words);
            if (handler != when.end()) {
                // A copy, since the handler may end this object.
                const std::function<void()> call = handler->second;
                const HWND window = m_hWnd;
                const auto keep = window ? window->shared_from_this() : nullptr;
                call();
                if (keep && keep->Destroyed()) return TRUE;
            }
        }
        return CDialog::OnCmdMsg(id, code, extra, info);
    }
};

/// Id of the control that has the focus, of a combo box's edit the combo box's; 0 for none.
inline int FocusedId() {
    kv::Node* node = kv::WindowSystem::Get().Focus();
    if (!node) return 0;
    if (node->Parent() && node->Parent()->Class() == kv::NodeClass::kComboBox)
        node = node->Parent();
    return node->Id();
}

/// A desktop on which the next modal dialog is acted on by a function of the test, and the script
/// begins behind that.
class TestDesktop : public kv::HeadlessDesktop {
public:
    void ActInNextDialog(std::function<void(kv::User&)> act) { act_ = std::move(act); }

    void RunModal(kv::Node& dialog) override {
        if (!act_) return HeadlessDesktop::RunModal(dialog);
        const auto act = std::exchange(act_, nullptr);
        kv::User user(dialog, [this](const std::string& words) { Fail(words); });
        act(user);
        kv::WindowSystem::Get().Settle();
    }

private:
    std::function<void(kv::User&)> act_;
};

/// A test on a desktop without a screen, whose script has to be used up.
class DialogTest : public ::testing::Test {
protected:
    DialogTest() { kv::WindowSystem::Get().SetDesktop(&desktop); }
    void TearDown() override { EXPECT_EQ(desktop.ScenesLeft(), 0); }

    /// Runs a dialog modally while a person does `act` in it; ends it behind that if it is still
    /// open.
    int Run(CDialog& dialog, const std::function<void(kv::User&)>& act) {
        desktop.ActInNextDialog([act](kv::User& user) {
            act(user);
            if (user.Open()) static_cast<CDialog&>(user.Window()).EndDialog(kLeftOpen);
        });
        return dialog.DoModal();
    }
    /// What `Run` answers for a dialog that the person did not end.
    static constexpr int kLeftOpen = 4711;

    TestDesktop desktop;
};

}  // namespace test
