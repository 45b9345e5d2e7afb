#pragma once

#include <string>
#include <vector>

#include "base/export.h"
#include "window/desktop.h"
#include "window/node.h"

namespace kv {

/// One place of a tool bar.
struct ToolButton {
    int id = 0;  ///< 0 for a separator
    int image = -1;
    std::string text;
    bool enabled = true;
    bool checked = false;
    bool operator==(const ToolButton&) const = default;
};

/// A tool bar: buttons of one size, in a row or in several, each of which sends a command.
class KVGUICTL_API ToolBarNode : public Node {
public:
    ToolBarNode(int id, DWORD style) : Node(NodeClass::kToolBar, id, style) {}

    const std::vector<ToolButton>& Buttons() const { return buttons_; }
    bool Has(int index) const { return index >= 0 && index < static_cast<int>(buttons_.size()); }
    void SetButtons(std::vector<ToolButton> buttons);
    /// False where there is no such button.
    bool SetButton(int index, ToolButton button);
    /// Index of the button with that id, -1 for none; no separator has one.
    int IndexOf(int id) const;
    /// Index of the button at a place in the bar, -1 for none.
    int IndexAt(CPoint at) const;

    /// Extent of a button and of its image, in logical pixels.
    CSize ButtonSize() const { return buttonSize_; }
    CSize ImageSize() const { return imageSize_; }
    void SetSizes(CSize button, CSize image);
    /// The extent in which a button shows its image with its text below it.
    CSize NaturalSize(int index) const;
    /// Whether the buttons are high enough to show texts.
    bool ShowsText() const;
    const Font& TextFont() const { return font_; }

    /// Place of a button in the bar, in as many rows as the bar's width asks for; empty where there
    /// is none.
    CRect ButtonRect(int index) const;
    /// Rows that the buttons take at that width.
    int RowsAt(int width) const;
    /// Rows that they take as the bar stands.
    int Rows() const;
    /// Makes the bar as narrow as it can be with no more rows than that.
    void SetRows(int rows);
    /// Extent that shows all buttons in one row.
    CSize MaxSize() const;

    /// Id of the image strip, 0 for none.
    int Bitmap() const { return bitmap_; }
    void SetBitmap(int id);

    /// What a click on a button does: its command goes to the frame. False when it is disabled.
    bool UserPress(int id);

    LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    int WidthOf(const ToolButton& button) const;
    template <typename Visit>
    int LayOut(int width, Visit visit) const;

    std::vector<ToolButton> buttons_;
    CSize buttonSize_{23, 22};
    CSize imageSize_{16, 15};
    Font font_{.face = {}, .height = 0};
    int bitmap_ = 0;
    int pressed_ = -1;
};

}  // namespace kv
