#pragma once

#include <string>

#include "base/export.h"
#include "window/controls/combo_box_messages.h"
#include "window/controls/edit_node.h"
#include "window/controls/list_box_node.h"
#include "window/drawing/image_list.h"
#include "window/node.h"

namespace kv {

/// A combo box: itself, its list, and its edit where the text can be typed.
///
/// Rows and current row are the list's, the text is the edit's. A drop list has no edit, and its
/// text is that of the current row. It is this window that notifies the parent of all three.
class KVGUICTL_API ComboBoxNode : public Node {
public:
    /// Ids of the parts.
    static constexpr int kListId = 1000;
    static constexpr int kEditId = 1001;

    ComboBoxNode(int id, DWORD style);
    ~ComboBoxNode() override;

    const RowList& Rows() const { return list_->Rows(); }
    int CurrentRow() const { return list_->CurrentRow(); }
    bool Editable() const { return edit_ != nullptr; }
    /// Whether the list is always in sight.
    bool Simple() const { return (Style() & CBS_TYPEMASK) == CBS_SIMPLE; }
    bool Dropped() const { return dropped_; }
    /// Null in a drop list.
    EditNode* Edit() const { return edit_; }
    ListBoxNode& List() const { return *list_; }
    /// The images beside the rows; null for none.
    const ImageList* Images() const { return images_.get(); }
    /// Null for a row without one, and for no row.
    const Raster* RowImage(int row) const;

    // What a person does.

    /// Drops the list and clicks that row. False, with the list closed again, when there is no such
    /// row.
    bool UserPick(int row);
    /// Drops the list, or closes it.
    void UserDrop();
    /// A key that is pressed in the box or in its edit; true when it means something to the list.
    bool UserKey(int key);

    LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam) override;
    int DialogCode() const override { return DLGC_WANTARROWS | DLGC_WANTCHARS; }
    Node* FocusTarget() override { return edit_ ? edit_->FocusTarget() : this; }
    /// The answer to WM_GETDLGCODE of a part: dropped, Enter and Escape are the list's.
    int CodeForKey(int code, WPARAM key) const;

protected:
    void TextChanged() override;

private:
    class EditPart;
    class ListPart;

    LRESULT ProcessRows(UINT message, WPARAM wParam, LPARAM lParam, bool& handled);
    LRESULT ProcessBox(UINT message, WPARAM wParam, LPARAM lParam, bool& handled);
    LRESULT ProcessImages(UINT message, WPARAM wParam, LPARAM lParam, bool& handled);
    LRESULT InsertItem(const COMBOBOXEXITEM* item);
    bool SetItem(const COMBOBOXEXITEM* item);
    bool GetItem(COMBOBOXEXITEM* item) const;
    LRESULT FromEdit(int code);
    LRESULT SetWindowText(const char* text);
    LRESULT SetCurrentRow(int row);
    LRESULT SelectString(const char* text, int start);
    LRESULT RemoveRow(int row);
    void Clear();

    void ShowRowText();
    void TakeFocus();
    void LostFocus();
    void Drop();
    void Close(int code);
    void Cancel();
    void MoveTo(int row);
    void ChangeRow(int row);
    int RowToMoveFrom() const;
    bool MoveKey(int key);
    void ButtonDown(LPARAM place);
    void HandleChar(char ch);

    ListBoxNode* list_ = nullptr;
    EditNode* edit_ = nullptr;
    bool dropped_ = false;
    /// What Escape goes back to, unless the rows have changed since.
    int rowAtDrop_ = -1;
    std::string textAtDrop_;
    bool rowsChangedSinceDrop_ = false;
    TypeSearch search_;
    std::shared_ptr<ImageList> images_;
};

}  // namespace kv
