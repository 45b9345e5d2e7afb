#include "window/data_exchange.h"

#include "window/modal_scope.h"
#include "window/window_system.h"

namespace {

/// Ends an exchange whose failure the user has been told of.
struct ExchangeFailed {};

class ExchangeScope {
public:
    explicit ExchangeScope(kv::Node& window) : window_(window.shared_from_this()) {
        window_->BeginExchange();
    }
    ~ExchangeScope() { window_->EndExchange(); }
    ExchangeScope(const ExchangeScope&) = delete;
    ExchangeScope& operator=(const ExchangeScope&) = delete;

private:
    std::shared_ptr<kv::Node> window_;
};

}  // namespace

BOOL CDataExchange::Run(CWnd& window, BOOL save) {
    CDataExchange exchange(window, save);
    const ExchangeScope scope(*window.m_hWnd);
    try {
        window.DoDataExchange(&exchange);
        return TRUE;
    } catch (const ExchangeFailed&) {
        return FALSE;
    }
}

BOOL CWnd::UpdateData(BOOL save) {
    return m_hWnd && CDataExchange::Run(*this, save);
}

HWND CDataExchange::PrepareCtrl(int id) {
    const HWND control = m_pDlgWnd->m_hWnd ? m_pDlgWnd->m_hWnd->FindChild(id) : nullptr;
    m_pLast = control ? control->weak_from_this() : std::weak_ptr<kv::Node>();
    m_bLastIsEdit = false;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int id) {
    const HWND control = PrepareCtrl(id);
    m_bLastIsEdit = true;
    return control;
}

bool CDataExchange::LastIsAbsent() const {
    return m_pLast.expired();
}

void CDataExchange::LimitLast(int characters) {
    const auto last = m_pLast.lock();
    if (!last) return;
    const bool combo = last->Class() == kv::NodeClass::kComboBox;
    kv::Send(*last, combo ? CB_LIMITTEXT : EM_LIMITTEXT, static_cast<WPARAM>(characters));
}

void CDataExchange::Fail(const std::string& message) {
    if (!message.empty()) {
        kv::RunMessageBox({message, "", MB_ICONEXCLAMATION, CWnd::GetActiveWindow()});
    }
    const auto last = m_pLast.lock();
    if (last && !last->Destroyed()) {
        kv::WindowSystem::Get().SetFocus(last.get());
        if (m_bLastIsEdit) kv::Send(*last->FocusTarget(), EM_SETSEL, 0, -1);
    }
    throw ExchangeFailed{};
}
