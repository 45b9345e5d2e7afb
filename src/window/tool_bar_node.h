#pragma once

#include <string>
#include <vector>

#include "window/export.h"
#include "window/node.h"

namespace kv {

/// One place of a tool bar.
struct ToolButton {
    int id = 0;  ///< 0 for a separator
    int image = -1;
    std::string text;
    bool enabled = true;
    bool checked = false;
};

/// A tool bar: buttons in a row, each of which sends a command.
class KVGUICTL_API ToolBarNode : public Node {
public:
    ToolBarNode(int id, DWORD style) : Node(NodeClass::kToolBar, id, style) {}

    const std::vector<ToolButton>& Buttons() const { return buttons_; }
    void SetButtons(std::vector<ToolButton> buttons);
    void SetButton(int index, ToolButton button);
    /// Index of the button with that id, -1 for none.
    int IndexOf(int id) const;

    /// Extent of a button and of its image, in logical pixels.
    CSize ButtonSize() const { return buttonSize_; }
    CSize ImageSize() const { return imageSize_; }
    void SetSizes(CSize button, CSize image);

    /// Place of a button in the bar, in as many rows as the bar's width asks for.
    CRect ButtonRect(int index) const;
    /// Rows that the buttons take at that width.
    int RowsAt(int width) const;
    /// Extent that shows all buttons in one row.
    CSize MaxSize() const;

    /// Id of the image strip, 0 for none.
    int Bitmap() const { return bitmap_; }
    void SetBitmap(int id);

    /// What a click on a button does: its command goes to the frame. False when it is disabled.
    bool UserPress(int id);

private:
    std::vector<ToolButton> buttons_;
    CSize buttonSize_{23, 22};
    CSize imageSize_{16, 15};
    int bitmap_ = 0;
};

}  // namespace kv
