#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "frame/module.h"
#include "qualifiers/list_sel.h"
#include "qualifiers/list_sel_ids.h"
#include "window/acting/headless_desktop.h"
#include "window/acting/input.h"
#include "window/controls/list_box.h"
#include "window/window_system.h"

namespace bench {

inline constexpr int kValues = 100'000;

/// A value, spread so that neighbours in the table are none in the order of texts.
inline std::string Value(int number) {
    constexpr long long kStep = 61'681;
    return "VALUE " + std::to_string(100'000 + number * kStep % kValues) + " OF THE COLUMN";
}

/// All values, as a search gives them.
inline std::vector<std::string> SortedValues() {
    std::vector<std::string> texts;
    for (int i = 0; i < kValues; ++i)
        texts.push_back(Value(i));
    std::sort(texts.begin(), texts.end());
    return texts;
}

/// The multiple-selection dialog for a column "name", on a screen that is none, and a person at it.
class ListDialog {
public:
    explicit ListDialog(const std::string& table, int templateId = kv::list_sel::kTemplate)
        : dialog_("name", table, nullptr, values_, static_cast<UINT>(templateId), nullptr) {
        InitControlDll();
        kv::WindowSystem::Get().SetDesktop(&desktop_);
        dialog_.Create(static_cast<UINT>(templateId));
    }
    ~ListDialog() {
        dialog_.DestroyWindow();
        kv::WindowSystem::Get().SetDesktop(nullptr);
    }
    ListDialog(const ListDialog&) = delete;
    ListDialog& operator=(const ListDialog&) = delete;

    CListBox& List(int id) { return dialog_.Control<CListBox>(id); }
    /// With so many of the values, each so many behind the one before.
    void Fill(int id, int count, int step = 1) {
        List(id).ResetContent();
        for (int i = 0; i < count; ++i)
            List(id).AddString(texts_[static_cast<std::size_t>(i * step)].c_str());
    }
    void Enable(int id) { dialog_.GetDlgItem(id)->EnableWindow(TRUE); }
    bool Click(int id) { return kv::input::Click(*dialog_.GetDlgItem(id)->m_hWnd); }

private:
    const std::vector<std::string> texts_ = SortedValues();
    kv::HeadlessDesktop desktop_;
    std::vector<std::string> values_;
    CKvGuiListSel dialog_;
};

}  // namespace bench
