#include "window/wnd.h"

#include <algorithm>
#include <charconv>
#include <string>

#include "base/text.h"
#include "window/desktop.h"
#include "window/draw_item.h"
#include "window/message_map.h"
#include "window/modal_scope.h"
#include "window/node_factory.h"
#include "window/window_system.h"

using kv::MessageEntry;
using kv::WindowSystem;

void CCmdUI::Enable(BOOL on) {
    m_bEnableChanged = true;
    if (m_pOther) m_pOther->EnableWindow(on);
}

void CCmdUI::SetCheck(int check) {
    if (m_pOther) m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(check));
}

void CCmdUI::SetText(const char* text) {
    if (m_pOther && m_pOther->WindowText() != text) m_pOther->SetWindowText(text);
}

BOOL CCmdTarget::OnCmdMsg(UINT, int, void*, void*) {
    return FALSE;
}

namespace {

/// Asks whether a command that no control stands for is enabled.
class CommandState : public CCmdUI {
public:
    explicit CommandState(UINT id) { m_nID = id; }
    bool Enabled() const { return enabled_; }
    void Enable(BOOL on) override {
        m_bEnableChanged = true;
        enabled_ = on != FALSE;
    }

private:
    bool enabled_ = true;
};

}  // namespace

const CRuntimeClass CWnd::classCWnd{"CWnd", [] { return std::make_unique<CWnd>(); }};

std::unique_ptr<CWnd> CRuntimeClass::CreateObject() const {
    return m_pfnCreateObject ? m_pfnCreateObject() : nullptr;
}

CWnd::~CWnd() {
    if (!m_hWnd || !m_hWnd->HasHandle(this)) return;
    const auto window = m_hWnd->shared_from_this();
    // A control outlives its handle; a window that holds controls outlives those alone that were
    // put in front of another.
    const bool last = !window->HandleBehind(this);
    if (last && window->Host() == window.get()) WindowSystem::Get().Destroy(*window);
    if (m_hWnd) Detach();
}

CWnd* CWnd::FromHandle(HWND window) {
    return window ? window->AnyHandle() : nullptr;
}

CWnd* CWnd::LookupHandle(HWND window) {
    if (!window) return nullptr;
    if (!window->lookupHandle_) {
        const kv::Factory* factory = kv::FindFactory(window->Class());
        window->lookupHandle_ = factory ? factory->makeHandle() : std::make_unique<CWnd>();
        window->lookupHandle_->m_hWnd = window->Destroyed() ? nullptr : window;
    }
    return window->lookupHandle_.get();
}

BOOL CWnd::Attach(HWND window) {
    if (!window || window->Destroyed() || window->handle_ || m_hWnd) return FALSE;
    window->handle_ = this;
    m_hWnd = window;
    PreSubclassWindow();
    return TRUE;
}

HWND CWnd::Detach() {
    HWND window = m_hWnd;
    m_hWnd = nullptr;
    if (!window) return nullptr;
    auto& behind = window->handlesBehind_;
    if (window->handle_ != this) {
        std::erase(behind, this);
    } else {
        window->handle_ = behind.empty() ? nullptr : behind.back();
        if (!behind.empty()) behind.pop_back();
    }
    return window;
}

BOOL CWnd::SubclassWindow(HWND window) {
    if (!window || window->Destroyed() || m_hWnd) return FALSE;
    if (window->handle_) window->handlesBehind_.push_back(window->handle_);
    window->handle_ = this;
    m_hWnd = window;
    PreSubclassWindow();
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent) {
    if (!parent || !parent->m_hWnd) return FALSE;
    return Attach(parent->m_hWnd->FindChild(static_cast<int>(id)));
}

CWnd* CWnd::GetDlgItem(int id) const {
    return FromHandle(m_hWnd ? m_hWnd->FindChild(id) : nullptr);
}

bool CWnd::HasDlgItem(int id) const {
    return m_hWnd && m_hWnd->FindChild(id);
}

CWnd* CWnd::GetParent() const {
    if (!m_hWnd) return nullptr;
    return FromHandle(m_hWnd->Parent() ? m_hWnd->Parent() : m_hWnd->Owner());
}

CWnd* CWnd::GetTopLevelParent() const {
    return FromHandle(m_hWnd ? m_hWnd->Root() : nullptr);
}

int CWnd::GetDlgCtrlID() const {
    return m_hWnd ? m_hWnd->Id() : 0;
}

int CWnd::SetDlgCtrlID(int id) {
    const int former = GetDlgCtrlID();
    if (m_hWnd) m_hWnd->SetId(id);
    return former;
}

void CWnd::SetWindowText(const char* text) {
    SendMessage(WM_SETTEXT, 0, kv::AsParam(text));
}

void CWnd::GetWindowText(CString& text) const {
    text = WindowText().c_str();
}

std::string CWnd::WindowText() const {
    std::string text(static_cast<std::size_t>(GetWindowTextLength()) + 1, '\0');
    const LRESULT length =
        SendMessage(WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

int CWnd::GetWindowTextLength() const {
    return static_cast<int>(SendMessage(WM_GETTEXTLENGTH));
}

BOOL CWnd::EnableWindow(BOOL enable) {
    if (!m_hWnd) return FALSE;
    const BOOL wasDisabled = !m_hWnd->Enabled();
    if (m_hWnd->SetEnabled(enable)) SendMessage(WM_ENABLE, static_cast<WPARAM>(enable ? 1 : 0));
    return wasDisabled;
}

BOOL CWnd::IsWindowEnabled() const {
    return m_hWnd && m_hWnd->Enabled();
}

BOOL CWnd::ShowWindow(int show) {
    if (!m_hWnd) return FALSE;
    const BOOL wasVisible = m_hWnd->Visible();
    const bool visible = show != SW_HIDE;
    const auto window = m_hWnd->shared_from_this();
    const bool changed = window->SetVisible(visible);
    if (visible && window->Host() == window.get()) window->SetShown(true);
    if (changed) kv::Send(*window, WM_SHOWWINDOW, visible ? 1 : 0);
    if (changed && visible && !window->Parent() && !window->Destroyed()) {
        // One that was made hidden is seen for the first time.
        if (!window->GetView()) WindowSystem::Get().GetDesktop().Created(*window);
        WindowSystem::Get().Activate(*window);
    }
    return wasVisible;
}

BOOL CWnd::IsWindowVisible() const {
    return m_hWnd && m_hWnd->ReallyVisible();
}

DWORD CWnd::GetStyle() const {
    return m_hWnd ? m_hWnd->Style() : 0;
}

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add, UINT) {
    if (!m_hWnd) return FALSE;
    const DWORD style = (m_hWnd->Style() & ~remove) | add;
    const bool changes = style != m_hWnd->Style();
    m_hWnd->SetStyle(style);
    return changes;
}

void CWnd::MoveWindow(int x, int y, int width, int height, BOOL) {
    MoveWindow(CRect{x, y, x + width, y + height});
}

void CWnd::MoveWindow(const CRect& rect, BOOL) {
    if (!m_hWnd) return;
    const CRect former = m_hWnd->Rect();
    m_hWnd->SetRect(rect);
    if (m_hWnd && former.TopLeft() != rect.TopLeft()) {
        SendMessage(WM_MOVE, 0, MAKELPARAM(rect.left, rect.top));
    }
    if (m_hWnd && former.Size() != rect.Size()) {
        SendMessage(WM_SIZE, 0, MAKELPARAM(rect.Width(), rect.Height()));
    }
}

BOOL CWnd::SetWindowPos(const CWnd* after, int x, int y, int width, int height, UINT flags) {
    if (!m_hWnd) return FALSE;
    CRect rect = m_hWnd->Rect();
    if (!(flags & SWP_NOMOVE)) rect.OffsetRect(x - rect.left, y - rect.top);
    if (!(flags & SWP_NOSIZE)) {
        rect.right = rect.left + width;
        rect.bottom = rect.top + height;
    }
    MoveWindow(rect);
    if (m_hWnd && !(flags & SWP_NOZORDER) && m_hWnd->Parent()) {
        m_hWnd->Parent()->MoveChild(*m_hWnd, after ? after->m_hWnd : nullptr);
    }
    if (flags & SWP_SHOWWINDOW) ShowWindow(SW_SHOW);
    if (flags & SWP_HIDEWINDOW) ShowWindow(SW_HIDE);
    return TRUE;
}

void CWnd::GetWindowRect(CRect* rect) const {
    *rect = m_hWnd ? m_hWnd->ScreenRect() : CRect{};
}

void CWnd::GetClientRect(CRect* rect) const {
    *rect = m_hWnd ? CRect{0, 0, m_hWnd->Rect().Width(), m_hWnd->Rect().Height()} : CRect{};
}

void CWnd::ScreenToClient(CRect* rect) const {
    if (!m_hWnd) return;
    const CRect origin = m_hWnd->ScreenRect();
    rect->OffsetRect(-origin.left, -origin.top);
}

void CWnd::ScreenToClient(CPoint* point) const {
    if (!m_hWnd) return;
    const CRect origin = m_hWnd->ScreenRect();
    point->x -= origin.left;
    point->y -= origin.top;
}

void CWnd::ClientToScreen(CRect* rect) const {
    if (!m_hWnd) return;
    const CRect origin = m_hWnd->ScreenRect();
    rect->OffsetRect(origin.left, origin.top);
}

void CWnd::ClientToScreen(CPoint* point) const {
    if (!m_hWnd) return;
    const CRect origin = m_hWnd->ScreenRect();
    point->x += origin.left;
    point->y += origin.top;
}

void CWnd::Invalidate(BOOL) {
    if (m_hWnd) m_hWnd->Tell(kv::Change::kPaint);
}

CWnd* CWnd::SetFocus() {
    CWnd* former = GetFocus();
    if (m_hWnd) WindowSystem::Get().SetFocus(m_hWnd);
    return former;
}

CWnd* CWnd::GetFocus() {
    return FromHandle(WindowSystem::Get().Focus());
}

CWnd* CWnd::GetActiveWindow() {
    return FromHandle(WindowSystem::Get().ActiveWindow());
}

void CWnd::SetDlgItemText(int id, const char* text) {
    SendDlgItemMessage(id, WM_SETTEXT, 0, kv::AsParam(text));
}

int CWnd::GetDlgItemText(int id, CString& text) const {
    text = DlgItemText(id).c_str();
    return text.GetLength();
}

std::string CWnd::DlgItemText(int id) const {
    const CWnd* control = GetDlgItem(id);
    return control ? control->WindowText() : std::string();
}

void CWnd::SetDlgItemInt(int id, UINT value, BOOL isSigned) {
    const std::string text =
        isSigned ? std::to_string(static_cast<int>(value)) : std::to_string(value);
    SetDlgItemText(id, text.c_str());
}

UINT CWnd::GetDlgItemInt(int id, BOOL* translated, BOOL isSigned) const {
    const std::string text = DlgItemText(id);
    const auto start = std::find_if_not(text.begin(), text.end(), kv::IsSpace);
    const char* first = text.data() + (start - text.begin());
    const char* last = text.data() + text.size();
    int value = 0;
    UINT plain = 0;
    const std::errc error =
        isSigned ? std::from_chars(first, last, value).ec : std::from_chars(first, last, plain).ec;
    const bool read = error == std::errc();
    if (translated) *translated = read;
    if (!read) return 0;
    return isSigned ? static_cast<UINT>(value) : plain;
}

void CWnd::CheckDlgButton(int id, UINT check) {
    SendDlgItemMessage(id, BM_SETCHECK, check);
}

UINT CWnd::IsDlgButtonChecked(int id) const {
    return static_cast<UINT>(SendDlgItemMessage(id, BM_GETCHECK));
}

void CWnd::CheckRadioButton(int first, int last, int checked) {
    for (int id = first; id <= last; ++id)
        CheckDlgButton(id, id == checked);
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
    return m_hWnd ? kv::Send(*m_hWnd, message, wParam, lParam) : 0;
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
    if (!m_hWnd) return FALSE;
    WindowSystem::Get().Post(*m_hWnd, message, wParam, lParam);
    return TRUE;
}

BOOL CWnd::IsDialogMessage(MSG* message) {
    const HWND window = message->hwnd;
    if (!m_hWnd || !window || window->Destroyed() || !window->IsSelfOrDescendantOf(*m_hWnd)) {
        return FALSE;
    }
    WindowSystem::Get().Deliver(*message);
    return TRUE;
}

LRESULT CWnd::SendDlgItemMessage(int id, UINT message, WPARAM wParam, LPARAM lParam) const {
    const HWND control = m_hWnd ? m_hWnd->FindChild(id) : nullptr;
    return control ? kv::Send(*control, message, wParam, lParam) : 0;
}

int CWnd::MessageBox(const char* text, const char* caption, UINT type) {
    return kv::RunMessageBox(
        {text ? text : "", caption ? caption : "", type, m_hWnd ? this : nullptr});
}

void CWnd::DoDataExchange(CDataExchange*) {}

BOOL CWnd::DestroyWindow() {
    if (!m_hWnd) return FALSE;
    WindowSystem::Get().Destroy(*m_hWnd);
    return TRUE;
}

BOOL CWnd::PreTranslateMessage(MSG*) {
    return FALSE;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND window = m_hWnd;
    if (!window) return 0;
    const MSG outer = m_current;
    m_current = {window, message, wParam, lParam};
    LRESULT result = 0;
    const bool taken = HandleByTable(message, wParam, lParam, &result);
    // A handler may have ended the window, or deleted this object: then the window has another
    // handle, or none.
    if (!taken && !window->Destroyed()) result = PassOn(window, message, wParam, lParam);
    if (window->HasHandle(this)) m_current = outer;
    return result;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return m_hWnd ? PassOn(m_hWnd, message, wParam, lParam) : 0;
}

/// To the handle behind this one, or else to the window itself. This object may be gone.
LRESULT CWnd::PassOn(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    CWnd* next = window->HandleBehind(this);
    return next ? next->WindowProc(message, wParam, lParam)
                : window->Process(message, wParam, lParam);
}

LRESULT CWnd::Default() {
    return DefWindowProc(m_current.message, m_current.wParam, m_current.lParam);
}

bool CWnd::HandleByTable(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    switch (message) {
        case WM_COMMAND:
            *result = OnCommand(wParam, lParam) ? 1 : 0;
            return *result != 0;
        case WM_NOTIFY:
            return OnNotify(wParam, lParam, result);
        case WM_DRAWITEM:
            *result = ReflectDrawItem(lParam) ? TRUE : FALSE;
            if (*result) return true;
            break;
        default:
            break;
    }
    const MessageEntry* entry =
        GetMessageMap().Find(MessageEntry::Kind::kMessage, static_cast<int>(message), 0);
    if (!entry) return false;
    const kv::Handled handled = entry->call(*this, {message, wParam, lParam, 0, nullptr});
    *result = handled.result;
    return handled.taken;
}

bool CWnd::ReflectDrawItem(LPARAM lParam) {
    auto* item = reinterpret_cast<DRAWITEMSTRUCT*>(lParam);
    if (!item || !item->hwndItem) return false;
    auto* drawn = dynamic_cast<kv::OwnerDrawn*>(item->hwndItem->Handle());
    if (!drawn) return false;
    WindowSystem::Get().Guarded([&] { drawn->DrawItem(item); });
    return true;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const auto id = static_cast<UINT>(LOWORD(wParam));
    auto* control = reinterpret_cast<HWND>(lParam);
    if (!control) {
        CommandState state(id);
        OnCmdMsg(id, CN_UPDATE_COMMAND_UI, &state, nullptr);
        return !state.Enabled() || OnCmdMsg(id, CN_COMMAND, nullptr, nullptr);
    }
    if (m_hWnd->Exchanging()) return TRUE;

    const int code = HIWORD(wParam);
    const auto keepControl = control->shared_from_this();
    const auto self = m_hWnd->shared_from_this();
    // What a bar hands on to its frame has been offered to the control already.
    // The first of several handles offers it once for all.
    const bool own = control->Parent() == self.get() && self->handle_ == this;
    if (own && control->handle_ && control->handle_->OnCmdMsg(id, code, nullptr, nullptr)) {
        return TRUE;
    }
    const bool endedByControl = !self->HasHandle(this);
    return endedByControl || OnCmdMsg(id, code, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* result) {
    if (m_hWnd->Exchanging()) return TRUE;
    const auto* header = reinterpret_cast<const NMHDR*>(lParam);
    const auto offer = [&](CWnd& window, MessageEntry::Kind kind) {
        const MessageEntry* entry = window.GetMessageMap().Find(kind, header->code, header->idFrom);
        if (!entry) return false;
        const kv::Event event{WM_NOTIFY, reinterpret_cast<WPARAM>(result), lParam, header->idFrom,
                              nullptr};
        return entry->call(window, event).taken;
    };
    const auto self = m_hWnd->shared_from_this();
    const HWND from = header->hwndFrom;
    const bool own = from && from->Parent() == self.get() && self->handle_ == this;
    CWnd* control = own ? from->handle_ : nullptr;
    if (control && offer(*control, MessageEntry::Kind::kReflectedNotify)) return TRUE;
    const bool endedByControl = !self->HasHandle(this);
    return endedByControl || offer(*this, MessageEntry::Kind::kNotify);
}

BOOL CWnd::OnCmdMsg(UINT id, int code, void* extra, void* info) {
    const auto intId = static_cast<int>(id);
    const kv::MessageMap& map = GetMessageMap();
    const MessageEntry* entry = nullptr;
    kv::Event event{WM_COMMAND, MAKEWPARAM(intId, code), 0, intId, nullptr};
    if (code == CN_UPDATE_COMMAND_UI) {
        entry = map.Find(MessageEntry::Kind::kUpdate, code, intId);
        event.update = static_cast<CCmdUI*>(extra);
    } else {
        // Its own notifications reach a control under its own id, its children's under theirs.
        if (m_hWnd && intId == m_hWnd->Id()) {
            entry = map.Find(MessageEntry::Kind::kReflected, code, intId);
        }
        if (!entry) entry = map.Find(MessageEntry::Kind::kCommand, code, intId);
    }
    if (info || !entry) return entry != nullptr;
    return entry->call(*this, event).taken;
}

void CWnd::UpdateDialogControls(CCmdTarget* target, BOOL disableIfNoHandler) {
    if (!m_hWnd) return;
    const auto self = m_hWnd->shared_from_this();
    const auto children = self->Children();
    for (const auto& child : children) {
        if (!self->HasHandle(this)) return;
        if (child->Destroyed() || child->Id() == IDC_STATIC) continue;
        UpdateControl(*child, target, disableIfNoHandler);
    }
}

void CWnd::UpdateControl(kv::Node& control, CCmdTarget* target, BOOL disableIfNoHandler) {
    CCmdUI state;
    state.m_nID = static_cast<UINT>(control.Id());
    state.m_pOther = FromHandle(&control);
    const auto updates = [&state](CCmdTarget* each) {
        return each && each->OnCmdMsg(state.m_nID, CN_UPDATE_COMMAND_UI, &state, nullptr);
    };
    if (updates(control.Handle()) || updates(this) || updates(target)) return;

    const bool isButton = control.Class() == kv::NodeClass::kButton &&
                          (control.Style() & BS_TYPEMASK) <= BS_DEFPUSHBUTTON;
    if (!disableIfNoHandler || !isButton) return;
    const auto handlesCommand = [&state](CCmdTarget* each) {
        return each && each->OnCmdMsg(state.m_nID, CN_COMMAND, nullptr, &state);
    };
    state.Enable(handlesCommand(this) || handlesCommand(target));
}

const kv::MessageMap& CWnd::Messages() {
    static const kv::MessageMap kMap{nullptr, {}};
    return kMap;
}

BOOL CWnd::CreateNode(kv::NodeClass nodeClass, const char* text, DWORD style, const CRect& rect,
                      CWnd* parent, int id) {
    if (m_hWnd) return FALSE;
    const auto node = kv::MakeNode(nodeClass, id, style);
    node->SetText(text ? text : "");
    node->SetRect(rect);
    Attach(node.get());
    HWND parentNode = parent ? parent->m_hWnd : nullptr;
    if (parentNode) {
        parentNode->AddChild(node);
    } else {
        WindowSystem::Get().AddTopLevel(node);
    }
    constexpr LRESULT kRefused = -1;
    if (kv::Send(*node, WM_CREATE) == kRefused) WindowSystem::Get().Destroy(*node);
    if (node->Destroyed()) return FALSE;
    if (!parentNode || parentNode->Shown()) WindowSystem::Get().GetDesktop().Created(*node);
    return TRUE;
}
