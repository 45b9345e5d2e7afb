#include "window/dialogs/dialog.h"

#include <algorithm>
#include <memory>
#include <optional>

#include "window/desktop.h"
#include "window/dialog_keys.h"
#include "window/frames/frame_wnd.h"
#include "window/modal_scope.h"
#include "window/screens.h"
#include "window/templates/resources.h"
#include "window/window_system.h"

using kv::DialogNode;
using kv::WindowSystem;

namespace {

/// Places a window in the middle of the one that owns it, wholly on the screen where that is, or of
/// the first screen.
void Center(kv::Node& window, const kv::Node* owner) {
    const CSize first = WindowSystem::Get().GetDesktop().ScreenSize();
    const CRect around = owner ? owner->ScreenRect() : CRect{0, 0, first.cx, first.cy};
    const CRect screen = owner ? kv::ScreenAround(around) : around;
    const int width = window.Rect().Width();
    const int height = window.Rect().Height();
    int left = around.left + (around.Width() - width) / 2;
    int top = around.top + (around.Height() - height) / 2;
    left = std::max(screen.left, std::min(left, screen.right - width));
    top = std::max(screen.top, std::min(top, screen.bottom - height));
    window.SetRect({left, top, left + width, top + height});
}

/// The owner cannot be used while a modal dialog is open over it.
class DisabledOwner {
public:
    explicit DisabledOwner(kv::Node* owner) {
        if (owner && owner->SetEnabled(false)) owner_ = owner->weak_from_this();
    }
    ~DisabledOwner() {
        const auto owner = owner_.lock();
        if (owner && !owner->Destroyed()) owner->SetEnabled(true);
    }
    DisabledOwner(const DisabledOwner&) = delete;
    DisabledOwner& operator=(const DisabledOwner&) = delete;

private:
    std::weak_ptr<kv::Node> owner_;
};

/// A modal dialog is on the list of modal windows until it is destroyed, whichever way its run
/// ends.
class ModalRun {
public:
    explicit ModalRun(DialogNode& dialog) : dialog_(dialog), disabled_(dialog.Owner()) {
        WindowSystem::Get().PushModal(dialog);
    }
    ~ModalRun() {
        disabled_.reset();
        WindowSystem::Get().Destroy(dialog_);
        WindowSystem::Get().PopModal(dialog_);
    }
    ModalRun(const ModalRun&) = delete;
    ModalRun& operator=(const ModalRun&) = delete;

private:
    DialogNode& dialog_;
    std::optional<DisabledOwner> disabled_;
};

void ShowFirst(kv::Node& dialog) {
    dialog.SetVisible(true);
    dialog.SetShown(true);
    kv::Send(dialog, WM_SHOWWINDOW, 1);
    if (!dialog.Destroyed()) WindowSystem::Get().GetDesktop().Created(dialog);
}

/// Commands, as opposed to controls, by the framework's numbering.
constexpr UINT kFirstCommand = 0x8000;
constexpr UINT kEndOfCommands = 0xF000;

DialogNode* DialogOf(HWND window) {
    return dynamic_cast<DialogNode*>(window);
}

}  // namespace

namespace kv {

void DialogNode::End(int result) {
    ended_ = true;
    result_ = result;
    SetVisible(false);
    WindowSystem::Get().GetDesktop().Wake();
}

LRESULT DialogNode::Process(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CLOSE: {
            const Node* cancel = FindChild(IDCANCEL);
            if (!cancel || cancel->Enabled()) {
                Send(*this, WM_COMMAND, MAKEWPARAM(IDCANCEL, CN_COMMAND), 0);
            }
            return 0;
        }
        default:
            return Node::Process(message, wParam, lParam);
    }
}

Node* DialogNode::FocusTarget() {
    if (Node* last = LastFocus()) return last;
    Node* first = NextTabStop(*this, nullptr, true);
    return first ? first->FocusTarget() : this;
}

}  // namespace kv

CDialog::CDialog(UINT templateId, CWnd* parent) : m_nTemplate(templateId), m_pParentWnd(parent) {}

CDialog::~CDialog() {
    // Here, while this is still a dialog and not yet a bare window.
    if (m_hWnd) WindowSystem::Get().Destroy(*m_hWnd);
}

bool CDialog::CreateFromTemplate(CWnd* parent, bool modal) {
    const kv::DialogTemplate* found = kv::FindTemplate(static_cast<int>(m_nTemplate));
    if (!found || m_hWnd) return false;
    auto& system = WindowSystem::Get();
    auto node = std::make_shared<DialogNode>();
    node->SetModal(modal);
    kv::Node* owner = parent && parent->m_hWnd ? parent->m_hWnd->Root() : nullptr;
    if (!owner && modal) owner = system.ActiveWindow() ? system.ActiveWindow()->Root() : nullptr;
    node->SetOwner(owner);
    Attach(node.get());
    system.AddTopLevel(node);
    kv::CreateControls(*node, *found);
    Center(*node, owner);
    return true;
}

void CDialog::Open() {
    const auto node = m_hWnd->shared_from_this();
    auto& system = WindowSystem::Get();
    system.SetActiveWindow(node.get());
    const bool focusFirst = SendMessage(WM_INITDIALOG) != 0;
    if (node->Destroyed() || DialogOf(node.get())->Ended()) return;
    if (!focusFirst) return;
    if (kv::Node* first = kv::NextTabStop(*node, nullptr, true)) kv::FocusByTab(*first);
}

int CDialog::DoModal() {
    if (m_hWnd || !kv::FindTemplate(static_cast<int>(m_nTemplate))) return -1;
    const kv::ModalScope scope;
    if (!CreateFromTemplate(m_pParentWnd, true)) return -1;

    const auto node = std::static_pointer_cast<DialogNode>(m_hWnd->shared_from_this());
    const ModalRun run(*node);
    Open();
    if (!node->Ended()) ShowFirst(*node);
    if (!node->Ended()) WindowSystem::Get().Settle();
    if (!node->Ended()) WindowSystem::Get().GetDesktop().RunModal(*node);
    return node->Result();
}

BOOL CDialog::Create(UINT templateId, CWnd* parent) {
    m_nTemplate = templateId;
    if (!CreateFromTemplate(parent ? parent : m_pParentWnd, false)) return FALSE;
    const auto node = m_hWnd->shared_from_this();
    node->SetVisible(true);
    Open();
    if (!node->Destroyed() && node->Visible()) ShowFirst(*node);
    return !node->Destroyed();
}

void CDialog::EndDialog(int result) {
    if (DialogNode* node = DialogOf(m_hWnd)) node->End(result);
}

BOOL CDialog::OnInitDialog() {
    UpdateData(FALSE);
    return TRUE;
}

void CDialog::OnOK() {
    if (UpdateData(TRUE)) EndDialog(IDOK);
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

LRESULT CDialog::OnInitDialogMessage(WPARAM, LPARAM) {
    return OnInitDialog();
}

void CDialog::SetDefID(UINT id) {
    if (!m_hWnd) return;
    for (const auto& child : m_hWnd->Children()) {
        if (child->Class() != kv::NodeClass::kButton) continue;
        const DWORD kind = child->Style() & BS_TYPEMASK;
        if (kind > BS_DEFPUSHBUTTON) continue;
        const bool isDefault = child->Id() == static_cast<int>(id);
        child->SetStyle((child->Style() & ~BS_TYPEMASK) |
                        (isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON));
    }
}

void CDialog::GotoDlgCtrl(CWnd* control) {
    if (control && control->m_hWnd) kv::FocusByTab(*control->m_hWnd);
}

void CDialog::NextDlgCtrl() const {
    if (!m_hWnd) return;
    kv::Node* next = kv::NextTabStop(*m_hWnd, WindowSystem::Get().Focus(), true);
    if (next) kv::FocusByTab(*next);
}

void CDialog::PrevDlgCtrl() const {
    if (!m_hWnd) return;
    kv::Node* next = kv::NextTabStop(*m_hWnd, WindowSystem::Get().Focus(), false);
    if (next) kv::FocusByTab(*next);
}

BOOL CDialog::OnCmdMsg(UINT id, int code, void* extra, void* info) {
    if (CWnd::OnCmdMsg(id, code, extra, info)) return TRUE;
    // What controls send ends here; commands and their updates go on to the owner and the
    // application.
    const bool command = id >= kFirstCommand && id < kEndOfCommands &&
                         (code == CN_COMMAND || code == CN_UPDATE_COMMAND_UI);
    if (!command) return FALSE;
    CWnd* owner = m_hWnd ? FromHandle(m_hWnd->Owner()) : nullptr;
    if (owner && owner->OnCmdMsg(id, code, extra, info)) return TRUE;
    CWinApp* app = AfxGetApp();
    return app && app->OnCmdMsg(id, code, extra, info);
}

const kv::MessageMap& CDialog::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnMessage<&CDialog::OnInitDialogMessage>(WM_INITDIALOG),
        kv::OnClicked<&CDialog::OnOK>(IDOK),
        kv::OnClicked<&CDialog::OnCancel>(IDCANCEL),
    };
    static const kv::MessageMap kMap{&CWnd::Messages(), kEntries};
    return kMap;
}
