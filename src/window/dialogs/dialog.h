#pragma once

#include "base/export.h"
#include "window/dialogs/ddx.h"
#include "window/dialogs/message_box.h"
#include "window/message_handlers.h"
#include "window/templates/dialog_template.h"
#include "window/wnd.h"

namespace kv {

/// The window of a dialog.
class KVGUICTL_API DialogNode : public Node {
public:
    DialogNode() : Node(NodeClass::kDialog, 0, 0) {}

    bool Modal() const { return modal_; }
    void SetModal(bool modal) { modal_ = modal; }
    /// A modal dialog that has ended is hidden, and goes as soon as its loop sees it.
    bool Ended() const { return ended_ || Destroyed(); }
    int Result() const { return result_; }
    void End(int result);

    LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam) override;
    /// A dialog hands the focus to the control that had it last, else to its first tab stop.
    Node* FocusTarget() override;

private:
    bool modal_ = false;
    bool ended_ = false;
    int result_ = -1;
};

}  // namespace kv

/// A dialog: made from a template, run modally by `DoModal` or put up modelessly by `Create`.
class KVGUICTL_API CDialog : public CWnd {
public:
    static constexpr CRuntimeClass classCDialog{"CDialog"};
    const CRuntimeClass* GetRuntimeClass() const override { return &classCDialog; }

    CDialog() = default;
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    ~CDialog() override;

    /// Runs until `EndDialog`. Returns its result; -1 when there is no such template, before
    /// `InitControlDll` above all, and then nothing opens.
    virtual int DoModal();
    /// Puts the dialog up modelessly, shown if it was not hidden meanwhile. False when there is no
    /// such template.
    virtual BOOL Create(UINT templateId, CWnd* parent = nullptr);
    void EndDialog(int result);

    /// Fills the controls from the members. True lets the first tab stop have the focus.
    virtual BOOL OnInitDialog();
    /// Takes the members from the controls and ends with IDOK; a failed validation keeps it open.
    virtual void OnOK();
    virtual void OnCancel();

    /// Makes that push button the one that Enter presses.
    void SetDefID(UINT id);
    void GotoDlgCtrl(CWnd* control);
    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;

    BOOL OnCmdMsg(UINT id, int code, void* extra, void* info) override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

    UINT GetTemplateId() const { return m_nTemplate; }

protected:
    UINT m_nTemplate = 0;
    CWnd* m_pParentWnd = nullptr;

private:
    bool CreateFromTemplate(CWnd* parent, bool modal);
    void Open();
    LRESULT OnInitDialogMessage(WPARAM wParam, LPARAM lParam);
};
