#pragma once

#include <string>
#include <string_view>

#include "base/export.h"
#include "window/controls/edit.h"

class CDirDialog;

namespace kv::dir_dialog {

/// What is put behind the typed beginning of a folder's name to make it whole. A name in capitals
/// without blanks is written with its first letter alone in capitals; where the last typed
/// character has another case than the name there, the rest takes the typed one.
KVGUICTL_API std::string RestOfName(std::string_view typed, const std::string& name);

}  // namespace kv::dir_dialog

/// The box in which a folder is typed. It takes every key: Enter goes to the folder, any other
/// character too, once what is typed is one, and else completes its name.
class CDirDialogEdit : public CEdit {
public:
    explicit CDirDialogEdit(CDirDialog& dialog) : m_dialog(dialog) {}

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

private:
    UINT OnGetDlgCode();
    LRESULT OnKeyDown(WPARAM key, LPARAM lParam);
    LRESULT OnChar(WPARAM character, LPARAM lParam);
    bool GoAlong();
    void Complete();

    CDirDialog& m_dialog;
};
