#include "window/tool_bar.h"

#include <vector>

#include "window/resources.h"

namespace {

/// The state of one button's command.
class ToolCmdUI : public CCmdUI {
public:
    explicit ToolCmdUI(const kv::ToolButton& button) : m_button(button) {
        m_nID = static_cast<UINT>(button.id);
    }
    void Enable(BOOL on) override {
        m_bEnableChanged = true;
        m_button.enabled = on;
    }
    void SetCheck(int check) override { m_button.checked = check != 0; }
    void SetText(const char*) override {}

    kv::ToolButton m_button;
};

}  // namespace

BOOL CToolBar::Create(CWnd* parent, DWORD style, UINT id) {
    return CreateBarWindow(parent, kv::NodeClass::kToolBar, style, id);
}

BOOL CToolBar::CreateEx(CWnd* parent, DWORD toolStyle, DWORD style, UINT id) {
    return CreateBarWindow(parent, kv::NodeClass::kToolBar, style | toolStyle, id);
}

kv::ToolBarNode* CToolBar::Bar() const { return dynamic_cast<kv::ToolBarNode*>(m_hWnd); }

BOOL CToolBar::LoadBitmap(UINT bitmapId) {
    if (!Bar() || !kv::FindImage(static_cast<int>(bitmapId))) return FALSE;
    Bar()->SetBitmap(static_cast<int>(bitmapId));
    return TRUE;
}

BOOL CToolBar::SetButtons(const UINT* ids, int count) {
    if (!Bar()) return FALSE;
    std::vector<kv::ToolButton> buttons(static_cast<std::size_t>(count));
    int image = 0;
    for (int index = 0; ids && index < count; ++index) {
        kv::ToolButton& button = buttons[static_cast<std::size_t>(index)];
        button.id = static_cast<int>(ids[index]);
        if (ids[index] != ID_SEPARATOR) button.image = image++;
    }
    Bar()->SetButtons(std::move(buttons));
    return TRUE;
}

int CToolBar::GetCount() const { return Bar() ? static_cast<int>(Bar()->Buttons().size()) : 0; }

UINT CToolBar::GetItemID(int index) const {
    if (index < 0 || index >= GetCount()) return 0;
    return static_cast<UINT>(Bar()->Buttons()[static_cast<std::size_t>(index)].id);
}

int CToolBar::CommandToIndex(UINT id) const {
    return Bar() ? Bar()->IndexOf(static_cast<int>(id)) : -1;
}

BOOL CToolBar::SetButtonText(int index, const char* text) {
    if (index < 0 || index >= GetCount()) return FALSE;
    kv::ToolButton button = Bar()->Buttons()[static_cast<std::size_t>(index)];
    button.text = text;
    Bar()->SetButton(index, std::move(button));
    return TRUE;
}

std::string CToolBar::GetButtonText(int index) const {
    if (index < 0 || index >= GetCount()) return {};
    return Bar()->Buttons()[static_cast<std::size_t>(index)].text;
}

void CToolBar::GetItemRect(int index, CRect* rect) const {
    *rect = index >= 0 && index < GetCount() ? Bar()->ButtonRect(index) : CRect{};
}

void CToolBar::SetSizes(CSize button, CSize image) {
    if (Bar()) Bar()->SetSizes(button, image);
}

void CToolBar::OnUpdateCmdUI(CCmdTarget* target, BOOL disableIfNoHandler) {
    for (int index = 0; index < GetCount(); ++index) {
        const kv::ToolButton& present = Bar()->Buttons()[static_cast<std::size_t>(index)];
        if (present.id == 0) continue;
        ToolCmdUI state(present);
        const bool handled =
            OnCmdMsg(state.m_nID, CN_UPDATE_COMMAND_UI, &state, nullptr) ||
            (target && target->OnCmdMsg(state.m_nID, CN_UPDATE_COMMAND_UI, &state, nullptr));
        if (!handled && disableIfNoHandler) {
            // A command that somebody carries out is on; one that nobody knows is off.
            auto* window = dynamic_cast<CWnd*>(target);
            const bool known =
                window && window->GetMessageMap().Find(kv::MessageEntry::Kind::kCommand, CN_COMMAND,
                                                       static_cast<int>(state.m_nID));
            state.Enable(known);
        }
        Bar()->SetButton(index, state.m_button);
    }
}

const kv::MessageMap& CToolBar::Messages() {
    static const kv::MessageMap kMap{&CControlBar::Messages(), {}};
    return kMap;
}
