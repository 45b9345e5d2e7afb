#pragma once

#include "window/controls/edit.h"
#include "window/message_handlers.h"

/// An edit for a coordinate, which keeps back what cannot be part of a number where it is typed.
/// What is pasted or set is not looked at.
class KVGUICTL_API CInputValidationEdit : public CEdit {
public:
    /// Leaves the first character of the text, whatever it is, and behind it the digits only.
    void TestString();

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);

private:
    bool Takes(UINT nChar) const;
};
