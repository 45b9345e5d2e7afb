#pragma once

#include <string>
#include <string_view>

#include "base/export.h"
#include "window/controls/edit.h"

namespace kv::dir_dialog {

/// What the box in which a folder is typed needs of the dialog around it.
class KVGUICTL_API Chooser {
public:
    virtual ~Chooser() = default;
    /// The path that a text means in the folder that is shown.
    virtual std::string Meant(const std::string& text) const = 0;
    /// Shows that folder; what is typed stays as it is.
    virtual void GoTo(const std::string& path) = 0;
    /// Enter was pressed in the box.
    virtual void TakeEnter() = 0;
};

/// What is put behind the typed beginning of a folder's name to make it whole. A name in capitals
/// without blanks is written with its first letter alone in capitals; where the last typed
/// character has another case than the name there, the rest takes the typed one.
KVGUICTL_API std::string RestOfName(std::string_view typed, const std::string& name);

}  // namespace kv::dir_dialog

/// The box in which a folder is typed. It takes every key: Enter goes to the folder, any other
/// character too, once what is typed is one, and else completes its name.
class KVGUICTL_API CDirDialogEdit : public CEdit {
public:
    /// The chooser, which is not owned, has to outlive it.
    explicit CDirDialogEdit(kv::dir_dialog::Chooser& chooser) : m_chooser(chooser) {}

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

private:
    UINT OnGetDlgCode();
    LRESULT OnKeyDown(WPARAM key, LPARAM lParam);
    LRESULT OnChar(WPARAM character, LPARAM lParam);
    void Leave(bool back);
    bool GoAlong();
    void Complete();

    kv::dir_dialog::Chooser& m_chooser;
};
