#pragma once

#include <string>

#include "base/cstring.h"
#include "window/dialogs/dialog.h"

/// Asks for a layer, a text to find in it, and what is to replace that. The host reads the answers
/// and does the work. Texts are in capitals; a replacement has 50 characters at most.
class KVGUICTL_API CKvGuiSearchReplaceDlg : public CDialog {
public:
    explicit CKvGuiSearchReplaceDlg(CWnd* pParent = nullptr);

    // The outcome; empty ahead of a run.
    /// "LEASES", "PIPELINES" or "WELLS".
    std::string GetLayerSelect() { return m_strLayer.str(); }
    std::string GetSearchContent() { return m_strSearch.str(); }
    std::string GetReplaceContent() { return m_strReplace.str(); }

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;

protected:
    CString m_strLayer;
    CString m_strSearch;
    CString m_strReplace;
};
