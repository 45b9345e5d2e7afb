#include "window/controls/combo_box_node.h"

#include <algorithm>
#include <utility>

#include "window/dialog_keys.h"
#include "window/window_system.h"

namespace kv {

namespace {

/// Width of the arrow that drops the list, in logical pixels.
constexpr int kArrowWidth = 17;
/// Rows that the dropped list shows at once.
constexpr int kRowsOnPage = 8;

DWORD EditStyle(DWORD style) {
    return WS_CHILD | WS_VISIBLE | ((style & CBS_AUTOHSCROLL) ? ES_AUTOHSCROLL : 0);
}

DWORD ListStyle(DWORD style) {
    const bool simple = (style & CBS_TYPEMASK) == CBS_SIMPLE;
    return WS_CHILD | (simple ? WS_VISIBLE : 0) | ((style & CBS_SORT) ? LBS_SORT : 0);
}

}  // namespace

/// The edit passes on the keys that are the list's, and keeps the box's text the same as its own.
class ComboBoxNode::EditPart : public EditNode {
public:
    explicit EditPart(DWORD style) : EditNode(kEditId, EditStyle(style)) {}

    LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam) override {
        const LRESULT result = EditNode::Process(message, wParam, lParam);
        if (message != WM_GETDLGCODE || !Box()) return result;
        return Box()->CodeForKey(static_cast<int>(result), wParam);
    }

protected:
    void TextChanged() override {
        EditNode::TextChanged();
        if (Box()) Box()->SetText(Text());
    }
    void Edited() override {
        if (Box()) Box()->list_->SetCurrentRow(-1);
    }
    bool TakeKey(int key) override { return Box() && Box()->UserKey(key); }

private:
    ComboBoxNode* Box() const { return static_cast<ComboBoxNode*>(Parent()); }
};

/// What the list tells its view, the box's view is told, too.
class ComboBoxNode::ListPart : public ListBoxNode {
public:
    explicit ListPart(DWORD style) : ListBoxNode(kListId, ListStyle(style)) {}

protected:
    void TellInserted(int first, int count) override {
        ListBoxNode::TellInserted(first, count);
        if (View* view = BoxView(true)) view->RowsInserted(first, count);
    }
    void TellRemoved(int first, int count) override {
        ListBoxNode::TellRemoved(first, count);
        if (View* view = BoxView(true)) view->RowsRemoved(first, count);
    }
    void TellList(Change change) override {
        ListBoxNode::TellList(change);
        if (View* view = BoxView(change == Change::kRows)) view->Changed(change);
    }

private:
    View* BoxView(bool rowsChanged) const {
        auto* box = static_cast<ComboBoxNode*>(Parent());
        if (!box) return nullptr;
        if (rowsChanged) box->rowsChangedSinceDrop_ = true;
        return box->GetView();
    }
};

ComboBoxNode::ComboBoxNode(int id, DWORD style) : Node(NodeClass::kComboBox, id, style) {
    if ((style & CBS_TYPEMASK) != CBS_DROPDOWNLIST) {
        auto edit = std::make_shared<EditPart>(style);
        edit_ = edit.get();
        AddChild(std::move(edit));
    }
    auto list = std::make_shared<ListPart>(style);
    list_ = list.get();
    AddChild(std::move(list));
}

ComboBoxNode::~ComboBoxNode() = default;

void ComboBoxNode::TextChanged() {
    if (edit_ && edit_->Text() != Text()) edit_->ShowText(Text());
}

int ComboBoxNode::CodeForKey(int code, WPARAM key) const {
    const bool ends =
        key == static_cast<WPARAM>(VK_RETURN) || key == static_cast<WPARAM>(VK_ESCAPE);
    return dropped_ && ends ? code | DLGC_WANTALLKEYS : code;
}

/// Shows the current row's text, selected, or with no current row none.
void ComboBoxNode::ShowRowText() {
    const int row = CurrentRow();
    std::string text(row < 0 ? std::string_view() : Rows().Text(row));
    if (!edit_) {
        SetText(std::move(text));
        return;
    }
    edit_->ShowText(std::move(text));
    edit_->Select(0, static_cast<int>(edit_->Text().size()));
}

LRESULT ComboBoxNode::SetWindowText(const char* text) {
    if (!edit_) return CB_ERR;
    edit_->ShowText(text ? text : "");
    const int row = CurrentRow();
    if (row >= 0 && Rows().Text(row) != Text()) list_->SetCurrentRow(-1);
    return TRUE;
}

LRESULT ComboBoxNode::SetCurrentRow(int row) {
    const bool inside = Rows().Has(row);
    list_->SetCurrentRow(inside ? row : -1);
    ShowRowText();
    return inside ? row : CB_ERR;
}

LRESULT ComboBoxNode::SelectString(const char* text, int start) {
    const int row = Rows().FindPrefix(text, start);
    return row < 0 ? CB_ERR : SetCurrentRow(row);
}

LRESULT ComboBoxNode::RemoveRow(int row) {
    const bool current = row >= 0 && row == CurrentRow();
    if (!list_->RemoveRow(row)) return CB_ERR;
    // What stands in an edit stays.
    if (current && !edit_) ShowRowText();
    return Rows().Count();
}

void ComboBoxNode::Clear() {
    list_->Clear();
    ShowRowText();
}

void ComboBoxNode::TakeFocus() {
    const Node* focus = WindowSystem::Get().Focus();
    if (!focus || !focus->IsSelfOrDescendantOf(*this)) WindowSystem::Get().SetFocus(this);
}

void ComboBoxNode::LostFocus() {
    search_.Stop();
    const Node* focus = WindowSystem::Get().Focus();
    if (focus && focus->IsSelfOrDescendantOf(*this)) return;
    if (dropped_) Close(CBN_SELENDCANCEL);
    if (edit_) edit_->Select(edit_->SelectionEnd(), edit_->SelectionEnd());
    Notify(CBN_KILLFOCUS);
}

void ComboBoxNode::Drop() {
    if (dropped_ || Simple()) return;
    dropped_ = true;
    Notify(CBN_DROPDOWN);
    if (!dropped_ || Destroyed()) return;
    rowAtDrop_ = CurrentRow();
    textAtDrop_ = Text();
    rowsChangedSinceDrop_ = false;
    Tell(Change::kDropped);
}

void ComboBoxNode::Close(int code) {
    if (!dropped_) return;
    dropped_ = false;
    Notify(code);
    Tell(Change::kDropped);
    Notify(CBN_CLOSEUP);
}

/// The list closes and all is as it was when it dropped.
void ComboBoxNode::Cancel() {
    const bool moved = !rowsChangedSinceDrop_ && CurrentRow() != rowAtDrop_;
    if (moved) {
        list_->SetCurrentRow(rowAtDrop_);
        if (edit_) {
            edit_->ShowText(textAtDrop_);
            edit_->Select(0, static_cast<int>(textAtDrop_.size()));
        } else {
            ShowRowText();
        }
    }
    Close(CBN_SELENDCANCEL);
    // The parent heard of the rows in between.
    if (moved) Notify(CBN_SELCHANGE);
}

void ComboBoxNode::UserDrop() {
    const auto keep = shared_from_this();
    TakeFocus();
    if (dropped_) {
        Close(CBN_SELENDOK);
    } else {
        Drop();
    }
}

bool ComboBoxNode::UserPick(int row) {
    const auto keep = shared_from_this();
    TakeFocus();
    Drop();
    if (Destroyed()) return true;
    if (!Rows().Has(row)) {
        Close(CBN_SELENDCANCEL);
        return false;
    }
    ChangeRow(row);
    return true;
}

/// The person made that row the current one. The text of an edit follows when the parent has been
/// told, and then shows the row that the parent left current.
void ComboBoxNode::ChangeRow(int row) {
    list_->SetCurrentRow(row);
    if (!edit_) ShowRowText();
    if (dropped_) {
        Close(CBN_SELENDOK);
    } else {
        Notify(CBN_SELENDOK);
    }
    Notify(CBN_SELCHANGE);
    if (!Destroyed() && edit_ && CurrentRow() >= 0) ShowRowText();
}

void ComboBoxNode::MoveTo(int row) {
    if (Rows().Count() == 0) return;
    row = std::clamp(row, 0, Rows().Count() - 1);
    if (row == CurrentRow()) return;
    if (!dropped_) {
        ChangeRow(row);
        return;
    }
    list_->SetCurrentRow(row);
    if (!edit_) ShowRowText();
    Notify(CBN_SELCHANGE);
    if (!Destroyed() && edit_ && CurrentRow() >= 0) ShowRowText();
}

/// With a typed text, the row that it is.
int ComboBoxNode::RowToMoveFrom() const {
    if (CurrentRow() >= 0 || !edit_) return CurrentRow();
    return Rows().FindExact(Text(), -1);
}

bool ComboBoxNode::MoveKey(int key) {
    const int row = RowToMoveFrom();
    switch (key) {
        case VK_UP:
            MoveTo(row - 1);
            return true;
        case VK_DOWN:
            MoveTo(row + 1);
            return true;
        case VK_PRIOR:
            MoveTo(row - kRowsOnPage);
            return true;
        case VK_NEXT:
            MoveTo(row + kRowsOnPage);
            return true;
        default:
            break;
    }
    if (edit_) return false;
    switch (key) {
        case VK_LEFT:
            MoveTo(row - 1);
            return true;
        case VK_RIGHT:
            MoveTo(row + 1);
            return true;
        case VK_HOME:
            MoveTo(0);
            return true;
        case VK_END:
            MoveTo(Rows().Count() - 1);
            return true;
        default:
            return false;
    }
}

bool ComboBoxNode::UserKey(int key) {
    const auto keep = shared_from_this();
    const bool arrow = key == VK_UP || key == VK_DOWN;
    if ((key == VK_F4 && !CurrentModifiers().alt) || (arrow && CurrentModifiers().alt)) {
        UserDrop();
        return true;
    }
    if (key == VK_RETURN && dropped_) {
        Close(CBN_SELENDOK);
        return true;
    }
    if (key == VK_ESCAPE && dropped_) {
        Cancel();
        return true;
    }
    // A key that types goes on with the text that is searched for.
    if (!MoveKey(key)) return false;
    search_.Stop();
    return true;
}

void ComboBoxNode::HandleChar(char ch) {
    if (edit_) return;
    if (static_cast<unsigned char>(ch) <= ' ' && !(ch == ' ' && search_.Running(Now()))) return;
    const int row = search_.Type(ch, Now(), Rows(), CurrentRow());
    if (row >= 0) MoveTo(row);
}

/// A drop list drops wherever it is clicked, a box with an edit at its arrow.
void ComboBoxNode::ButtonDown(LPARAM place) {
    const int x = static_cast<std::int16_t>(LOWORD(static_cast<std::uintptr_t>(place)));
    if (!edit_ || (!Simple() && x >= Rect().Width() - kArrowWidth)) {
        UserDrop();
    } else {
        Send(*edit_, WM_LBUTTONDOWN, 1, place);
    }
}

LRESULT ComboBoxNode::FromEdit(int code) {
    switch (code) {
        case EN_SETFOCUS:
            return Notify(CBN_SETFOCUS);
        case EN_KILLFOCUS:
            LostFocus();
            return 0;
        case EN_UPDATE:
            return Notify(CBN_EDITUPDATE);
        case EN_CHANGE:
            return Notify(CBN_EDITCHANGE);
        default:
            return 0;
    }
}

LRESULT ComboBoxNode::ProcessRows(UINT message, WPARAM wParam, LPARAM lParam, bool& handled) {
    const int row = static_cast<int>(wParam);
    const char* text = TextOf(lParam);
    switch (message) {
        case CB_ADDSTRING:
            return text ? list_->AddRow(text) : CB_ERR;
        case CB_INSERTSTRING:
            return text ? list_->InsertRow(row, text) : CB_ERR;
        case CB_DELETESTRING:
            return RemoveRow(row);
        case CB_RESETCONTENT:
            Clear();
            return 0;
        case CB_GETCOUNT:
            return Rows().Count();
        case CB_GETLBTEXT:
            return Rows().Has(row) ? CopyRowText(Rows().Text(row), lParam) : CB_ERR;
        case CB_GETLBTEXTLEN:
            return Rows().Has(row) ? static_cast<LRESULT>(Rows().Text(row).size()) : CB_ERR;
        case CB_FINDSTRING:
            return text ? Rows().FindPrefix(text, row) : CB_ERR;
        case CB_FINDSTRINGEXACT:
            return text ? Rows().FindExact(text, row) : CB_ERR;
        case CB_GETITEMDATA:
            return Rows().Has(row) ? Rows().Data(row) : CB_ERR;
        case CB_SETITEMDATA:
            return Rows().Has(row) && list_->SetData(row, lParam) ? 0 : CB_ERR;
        default:
            handled = false;
            return 0;
    }
}

LRESULT ComboBoxNode::ProcessBox(UINT message, WPARAM wParam, LPARAM lParam, bool& handled) {
    const int row = static_cast<int>(wParam);
    switch (message) {
        case CB_GETCURSEL:
            return CurrentRow();
        case CB_SETCURSEL:
            return SetCurrentRow(row);
        case CB_SELECTSTRING:
            return lParam ? SelectString(TextOf(lParam), row) : CB_ERR;
        case CB_SHOWDROPDOWN:
            if (wParam) {
                Drop();
            } else {
                Close(CBN_SELENDCANCEL);
            }
            return TRUE;
        case CB_GETDROPPEDSTATE:
            return dropped_ || Simple();
        case CB_LIMITTEXT:
            if (edit_) Send(*edit_, EM_LIMITTEXT, wParam);
            return TRUE;
        case CB_GETEDITSEL:
            return edit_ ? Send(*edit_, EM_GETSEL, wParam, lParam) : CB_ERR;
        case CB_SETEDITSEL: {
            if (!edit_) return CB_ERR;
            // The two halves are signed: -1 means what it means to an edit.
            const auto places = static_cast<std::uintptr_t>(lParam);
            Send(*edit_, EM_SETSEL, static_cast<WPARAM>(static_cast<std::int16_t>(LOWORD(places))),
                 static_cast<std::int16_t>(HIWORD(places)));
            return TRUE;
        }
        default:
            handled = false;
            return 0;
    }
}

const Raster* ComboBoxNode::RowImage(int row) const {
    return images_ && Rows().Has(row) ? images_->At(Rows().Image(row)) : nullptr;
}

LRESULT ComboBoxNode::InsertItem(const COMBOBOXEXITEM* item) {
    if (!item || !(item->mask & CBEIF_TEXT) || !item->pszText) return CB_ERR;
    const int row = list_->InsertRow(static_cast<int>(item->iItem), item->pszText);
    if (row < 0) return CB_ERR;
    if (item->mask & CBEIF_IMAGE) list_->SetImage(row, item->iImage);
    if (item->mask & CBEIF_LPARAM) list_->SetData(row, item->lParam);
    return row;
}

bool ComboBoxNode::SetItem(const COMBOBOXEXITEM* item) {
    if (!item || !Rows().Has(static_cast<int>(item->iItem))) return false;
    const int row = static_cast<int>(item->iItem);
    if (item->mask & CBEIF_IMAGE) list_->SetImage(row, item->iImage);
    if (item->mask & CBEIF_LPARAM) list_->SetData(row, item->lParam);
    Tell(Change::kImage);
    return true;
}

bool ComboBoxNode::GetItem(COMBOBOXEXITEM* item) const {
    if (!item || !Rows().Has(static_cast<int>(item->iItem))) return false;
    const int row = static_cast<int>(item->iItem);
    if (item->mask & CBEIF_IMAGE) item->iImage = Rows().Image(row);
    if (item->mask & CBEIF_LPARAM) item->lParam = Rows().Data(row);
    return true;
}

LRESULT ComboBoxNode::ProcessImages(UINT message, WPARAM, LPARAM lParam, bool& handled) {
    switch (message) {
        case CBEM_INSERTITEM:
            return InsertItem(reinterpret_cast<const COMBOBOXEXITEM*>(lParam));
        case CBEM_SETITEM:
            return SetItem(reinterpret_cast<const COMBOBOXEXITEM*>(lParam));
        case CBEM_GETITEM:
            return GetItem(reinterpret_cast<COMBOBOXEXITEM*>(lParam));
        case CBEM_SETIMAGELIST: {
            auto* images = reinterpret_cast<ImageList*>(lParam);
            const auto former =
                std::exchange(images_, images ? images->shared_from_this() : nullptr);
            Tell(Change::kImage);
            // One that nobody else has goes with this call.
            return former.use_count() > 1 ? reinterpret_cast<LRESULT>(former.get()) : 0;
        }
        case CBEM_GETIMAGELIST:
            return reinterpret_cast<LRESULT>(images_.get());
        default:
            handled = false;
            return 0;
    }
}

LRESULT ComboBoxNode::Process(UINT message, WPARAM wParam, LPARAM lParam) {
    for (const auto part :
         {&ComboBoxNode::ProcessRows, &ComboBoxNode::ProcessBox, &ComboBoxNode::ProcessImages}) {
        bool handled = true;
        const LRESULT result = (this->*part)(message, wParam, lParam, handled);
        if (handled) return result;
    }
    switch (message) {
        case WM_SETTEXT:
            return SetWindowText(TextOf(lParam));
        case WM_GETDLGCODE:
            return CodeForKey(DialogCode(), wParam);
        case WM_COMMAND:
            return LOWORD(wParam) == kEditId ? FromEdit(HIWORD(wParam)) : 0;
        case WM_KEYDOWN:
            UserKey(static_cast<int>(wParam));
            return 0;
        case WM_CHAR:
            HandleChar(static_cast<char>(wParam));
            return 0;
        case WM_LBUTTONDOWN:
            ButtonDown(lParam);
            return 0;
        case WM_SETFOCUS:
            return Notify(CBN_SETFOCUS);
        case WM_KILLFOCUS:
            LostFocus();
            return 0;
        case WM_CUT:
        case WM_COPY:
        case WM_PASTE:
        case WM_CLEAR:
        case WM_UNDO:
            return edit_ ? Send(*edit_, message) : 0;
        default:
            return Node::Process(message, wParam, lParam);
    }
}

}  // namespace kv
