#include "window/frames/tool_bar.h"

#include <memory>
#include <vector>

#include "window/frames/tool_bar_node.h"
#include "window/node_factory.h"
#include "window/templates/resources.h"

namespace {

const kv::RegisterControl<kv::ToolBarNode, CToolBar> kRegistered{kv::NodeClass::kToolBar};

}  // namespace

namespace {

/// The state of one button's command.
class ToolCmdUI : public CCmdUI {
public:
    ToolCmdUI(kv::ToolBarNode& bar, int index) : bar_(bar), index_(index) {
        m_nID = static_cast<UINT>(Button().id);
    }
    void Enable(BOOL on) override {
        m_bEnableChanged = true;
        kv::ToolButton button = Button();
        button.enabled = on != FALSE;
        bar_.SetButton(index_, std::move(button));
    }
    void SetCheck(int check) override {
        kv::ToolButton button = Button();
        button.checked = check != 0;
        bar_.SetButton(index_, std::move(button));
    }
    void SetText(const char*) override {
        // A button's text is its label and not its command's.
    }

private:
    /// A handler may have taken the buttons away.
    kv::ToolButton Button() const {
        return bar_.Has(index_) ? bar_.Buttons()[static_cast<std::size_t>(index_)]
                                : kv::ToolButton();
    }

    kv::ToolBarNode& bar_;
    int index_;
};

}  // namespace

BOOL CToolBar::Create(CWnd* parent, DWORD style, UINT id) {
    return CreateBarWindow(parent, kv::NodeClass::kToolBar, style, id);
}

BOOL CToolBar::CreateEx(CWnd* parent, DWORD toolStyle, DWORD style, UINT id) {
    if (!CreateBarWindow(parent, kv::NodeClass::kToolBar, style, id)) return FALSE;
    ModifyStyle(0, toolStyle);
    return TRUE;
}

kv::ToolBarNode* CToolBar::Bar() const {
    return dynamic_cast<kv::ToolBarNode*>(m_hWnd);
}

BOOL CToolBar::LoadBitmap(UINT bitmapId) {
    if (!Bar() || !kv::FindImage(static_cast<int>(bitmapId))) return FALSE;
    Bar()->SetBitmap(static_cast<int>(bitmapId));
    return TRUE;
}

BOOL CToolBar::LoadToolBar(UINT resourceId) {
    if (!LoadBitmap(resourceId)) return FALSE;
    const int height = kv::FindImage(static_cast<int>(resourceId))->height;
    Bar()->SetSizes(Bar()->ButtonSize(), {Bar()->ImageSize().cx, height});
    return TRUE;
}

BOOL CToolBar::SetButtons(const UINT* ids, int count) {
    if (!Bar() || count < 0) return FALSE;
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

int CToolBar::GetCount() const {
    return Bar() ? static_cast<int>(Bar()->Buttons().size()) : 0;
}

UINT CToolBar::GetItemID(int index) const {
    if (!Bar() || !Bar()->Has(index)) return 0;
    return static_cast<UINT>(Bar()->Buttons()[static_cast<std::size_t>(index)].id);
}

int CToolBar::CommandToIndex(UINT id) const {
    return Bar() ? Bar()->IndexOf(static_cast<int>(id)) : -1;
}

BOOL CToolBar::SetButtonText(int index, const char* text) {
    if (!Bar() || !Bar()->Has(index)) return FALSE;
    kv::ToolButton button = Bar()->Buttons()[static_cast<std::size_t>(index)];
    button.text = text ? text : "";
    return Bar()->SetButton(index, std::move(button));
}

std::string CToolBar::GetButtonText(int index) const {
    if (!Bar() || !Bar()->Has(index)) return {};
    return Bar()->Buttons()[static_cast<std::size_t>(index)].text;
}

void CToolBar::GetItemRect(int index, CRect* rect) const {
    *rect = Bar() ? Bar()->ButtonRect(index) : CRect{};
}

void CToolBar::SetSizes(CSize button, CSize image) {
    if (Bar()) Bar()->SetSizes(button, image);
}

CSize CToolBar::GetNaturalSize(int index) const {
    return Bar() ? Bar()->NaturalSize(index) : CSize{};
}

CSize CToolBar::GetMaxSize() const {
    return Bar() ? Bar()->MaxSize() : CSize{};
}

int CToolBar::GetRows() const {
    return Bar() ? Bar()->Rows() : 0;
}

void CToolBar::SetRows(int rows) {
    if (Bar()) Bar()->SetRows(rows);
}

int CToolBar::GetHeightAt(int width) const {
    return Bar() ? Bar()->RowsAt(width) * Bar()->ButtonSize().cy : 0;
}

void CToolBar::OnUpdateCmdUI(CCmdTarget* target, BOOL disableIfNoHandler) {
    if (!Bar()) return;
    const auto bar = std::static_pointer_cast<kv::ToolBarNode>(Bar()->shared_from_this());
    for (int index = 0; bar->Handle() == this && bar->Has(index); ++index) {
        if (bar->Buttons()[static_cast<std::size_t>(index)].id == 0) continue;
        ToolCmdUI state(*bar, index);
        const auto updates = [&state](CCmdTarget* each) {
            return each && each->OnCmdMsg(state.m_nID, CN_UPDATE_COMMAND_UI, &state, nullptr);
        };
        if (updates(this) || updates(target) || !disableIfNoHandler) continue;
        // A command that somebody carries out is on; one that nobody knows is off.
        state.Enable(target && target->OnCmdMsg(state.m_nID, CN_COMMAND, nullptr, &state));
    }
}

const kv::MessageMap& CToolBar::Messages() {
    static const kv::MessageMap kMap{&CControlBar::Messages(), {}};
    return kMap;
}
