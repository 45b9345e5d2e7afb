#pragma once

#include "base/export.h"
#include "window/node.h"

namespace kv {

/// A button: push, check, radio or owner-drawn button, or group box, as its style says.
class KVGUICTL_API ButtonNode : public Node {
public:
    ButtonNode(int id, DWORD style) : Node(NodeClass::kButton, id, style) {}

    DWORD Kind() const { return Style() & BS_TYPEMASK; }
    /// BST_CHECKED or BST_UNCHECKED.
    int CheckState() const { return check_; }
    /// Held down just now.
    bool Pushed() const { return pushed_; }
    /// The mouse went down on it and is still to go up, over it or beside it.
    bool HeldByMouse() const { return held_; }
    /// Id of the image that it shows beside its text, or in its place where the style has BS_ICON
    /// or BS_BITMAP; 0 for none.
    LPARAM Image() const { return image_; }

    /// What a click does: a check box changes, a radio button becomes the checked one of its group,
    /// and then the parent is told. A group box does nothing.
    void Press() override;

    LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam) override;
    int DialogCode() const override;

private:
    LRESULT ProcessMessages(UINT message, WPARAM wParam, LPARAM lParam, bool& handled);
    LRESULT GetState() const;
    void SetCheckState(int check);
    void SetPushed(bool pushed);
    LRESULT SetImage(LPARAM image);
    void CheckInGroup();
    void Hold();
    void ReleaseAndPress();
    void DoubleClick();

    int check_ = BST_UNCHECKED;
    bool pushed_ = false;
    bool held_ = false;
    LPARAM image_ = 0;
};

}  // namespace kv
