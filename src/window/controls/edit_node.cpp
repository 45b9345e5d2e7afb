#include "window/controls/edit_node.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "base/text.h"
#include "window/controls/spin_node.h"
#include "window/desktop.h"
#include "window/dialog_keys.h"
#include "window/window_system.h"

namespace kv {

namespace {

constexpr int kLineHeight = 13;
constexpr int kTextMargin = 3;
constexpr std::size_t kGreatestLimit = 0x7FFFFFFE;
constexpr std::size_t kGreatestLimitOfLines = 0xFFFFFFFF;

constexpr char kCtrlA = 0x01;
constexpr char kCtrlC = 0x03;
constexpr char kCtrlV = 0x16;
constexpr char kCtrlX = 0x18;
constexpr char kCtrlZ = 0x1A;

bool IsContinuation(char ch) {
    return (static_cast<unsigned char>(ch) & 0xC0) == 0x80;
}

/// Bytes of the sequence that begins with `lead`; 1 for a byte that begins none.
int SequenceLength(char lead) {
    const auto byte = static_cast<unsigned char>(lead);
    if (byte >= 0xF0 && byte <= 0xF4) return 4;
    if (byte >= 0xE0 && byte <= 0xEF) return 3;
    if (byte >= 0xC2 && byte <= 0xDF) return 2;
    return 1;
}

/// Length of the character that begins at a place inside the text.
int CharLength(std::string_view text, int place) {
    const auto at = static_cast<std::size_t>(place);
    if (text.substr(at, 2) == "\r\n") return 2;
    const int length = SequenceLength(text[at]);
    for (int i = 1; i < length; ++i) {
        const std::size_t next = at + static_cast<std::size_t>(i);
        if (next >= text.size() || !IsContinuation(text[next])) return 1;
    }
    return length;
}

/// The place at which the character ends that holds the byte ahead of `place`, or begins there: the
/// greatest place up to `place` that cuts no character.
int WholeChars(std::string_view text, int place) {
    const int size = static_cast<int>(text.size());
    place = std::clamp(place, 0, size);
    for (int start = std::max(0, place - 3); start < place; ++start) {
        if (start + CharLength(text, start) > place && CharLength(text, start) > 1) return start;
    }
    return place;
}

}  // namespace

void EditNode::TextChanged() {
    const int size = static_cast<int>(Text().size());
    anchor_ = std::min(anchor_, size);
    caret_ = std::min(caret_, size);
}

void EditNode::Select(int anchor, int caret) {
    const int size = static_cast<int>(Text().size());
    anchor = std::clamp(anchor, 0, size);
    caret = std::clamp(caret, 0, size);
    if (anchor == anchor_ && caret == caret_) return;
    anchor_ = anchor;
    caret_ = caret;
    Tell(Change::kSelection);
}

void EditNode::ShowText(std::string text) {
    SetText(std::move(text));
    Select(0, 0);
    undo_.reset();
    modified_ = false;
}

void EditNode::SetWholeText(std::string text) {
    ShowText(Cased(std::move(text)));
    if (MultiLine()) return;
    Edited();
    NotifyChange();
}

void EditNode::NotifyChange() {
    const auto keep = shared_from_this();
    Notify(EN_UPDATE);
    Notify(EN_CHANGE);
}

std::string EditNode::Cased(std::string text) const {
    if (HasStyle(ES_UPPERCASE)) return ToUpper(text);
    if (HasStyle(ES_LOWERCASE)) return ToLower(text);
    return text;
}

/// A run of typed or of erased characters is undone at once.
void EditNode::RememberForUndo(Step step) {
    const bool goesOn = undo_ && step != Step::kOther && step == lastStep_ && anchor_ == caret_ &&
                        caret_ == lastCaret_;
    if (!goesOn) undo_ = State{Text(), anchor_, caret_};
    lastStep_ = step;
}

void EditNode::Replace(int start, int end, const std::string& with, Step step) {
    RememberForUndo(step);
    std::string text = Text();
    text.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start), with);
    SetText(std::move(text));
    const int caret = start + static_cast<int>(with.size());
    Select(caret, caret);
    lastCaret_ = caret;
    modified_ = true;
    Edited();
    NotifyChange();
}

/// Puts text in place of the selection, as much as the limit leaves room for.
void EditNode::Insert(std::string text, Step step) {
    const auto keep = shared_from_this();
    const int start = SelectionStart();
    const int end = SelectionEnd();
    const std::size_t kept = Text().size() - static_cast<std::size_t>(end - start);
    const std::size_t room = kept < limit_ ? limit_ - kept : 0;
    if (text.size() > room) {
        Notify(EN_MAXTEXT);
        text.resize(static_cast<std::size_t>(WholeChars(text, static_cast<int>(room))));
        if (text.empty() || Destroyed()) return;
    }
    Replace(start, end, Cased(std::move(text)), step);
}

void EditNode::Erase(int start, int end, Step step) {
    if (start < end) Replace(start, end, "", step);
}

bool EditNode::Undo() {
    if (!undo_) return false;
    State former{Text(), anchor_, caret_};
    std::swap(former, *undo_);
    SetText(std::move(former.text));
    Select(former.anchor, former.caret);
    lastStep_ = Step::kOther;
    modified_ = true;
    Edited();
    NotifyChange();
    return true;
}

void EditNode::HandleChar(char ch) {
    if (HandleControlChar(ch) || ReadOnly()) return;
    const bool lineBreak = ch == '\n' || (ch == '\r' && HasStyle(ES_WANTRETURN));
    if (MultiLine() && lineBreak) {
        Insert("\r\n", Step::kTyping);
        return;
    }
    const bool printable = static_cast<unsigned char>(ch) >= ' ' && ch != 0x7F;
    if (!printable && !(ch == '\t' && MultiLine())) return;
    if (HasStyle(ES_NUMBER) && !IsDigit(ch)) return;
    TypeChar(ch);
}

/// The bytes of a sequence come one by one; without room for all of them none is taken.
void EditNode::TypeChar(char ch) {
    if (IsContinuation(ch) && bytesToDrop_ > 0) {
        --bytesToDrop_;
        return;
    }
    bytesToDrop_ = 0;
    const std::size_t kept =
        Text().size() - static_cast<std::size_t>(SelectionEnd() - SelectionStart());
    const int length = SequenceLength(ch);
    if (length > 1 && kept + static_cast<std::size_t>(length) > limit_) {
        bytesToDrop_ = length - 1;
        Notify(EN_MAXTEXT);
        return;
    }
    Insert(std::string(1, ch), Step::kTyping);
}

bool EditNode::HandleControlChar(char ch) {
    switch (ch) {
        case '\b':
            if (!ReadOnly()) Backspace();
            return true;
        case kCtrlA:
            Select(0, static_cast<int>(Text().size()));
            return true;
        case kCtrlC:
            Send(*this, WM_COPY);
            return true;
        case kCtrlV:
            Send(*this, WM_PASTE);
            return true;
        case kCtrlX:
            Send(*this, WM_CUT);
            return true;
        case kCtrlZ:
            if (!ReadOnly()) Send(*this, WM_UNDO);
            return true;
        default:
            return false;
    }
}

void EditNode::Backspace() {
    if (anchor_ != caret_) {
        Erase(SelectionStart(), SelectionEnd(), Step::kOther);
    } else {
        Erase(PlaceAhead(caret_), caret_, Step::kErasing);
    }
}

void EditNode::DeleteForward() {
    if (anchor_ != caret_) {
        Erase(SelectionStart(), SelectionEnd(), Step::kOther);
    } else {
        Erase(caret_, PlaceBehind(caret_), Step::kErasing);
    }
}

bool EditNode::Copy() {
    if (anchor_ == caret_ || HasStyle(ES_PASSWORD)) return false;
    const auto start = static_cast<std::size_t>(SelectionStart());
    const auto length = static_cast<std::size_t>(SelectionEnd()) - start;
    WindowSystem::Get().GetDesktop().SetClipboardText(Text().substr(start, length));
    return true;
}

void EditNode::Cut() {
    if (!ReadOnly() && Copy()) Erase(SelectionStart(), SelectionEnd(), Step::kOther);
}

/// A single line takes the first line of what is pasted. Digits-only is for typing: what is pasted
/// need not be a number.
void EditNode::Paste() {
    if (ReadOnly()) return;
    std::string text = WindowSystem::Get().GetDesktop().ClipboardText();
    if (!MultiLine()) text.resize(std::min(text.size(), text.find_first_of("\r\n")));
    if (!text.empty()) Insert(std::move(text), Step::kOther);
}

bool EditNode::HandleKey(int key) {
    const Modifiers keys = CurrentModifiers();
    if (keys.alt) return false;
    const int size = static_cast<int>(Text().size());
    const int page = std::max(1, Rect().Height() / kLineHeight);
    switch (key) {
        case VK_LEFT:
            MoveSideways(false, keys.shift, keys.ctrl);
            return true;
        case VK_RIGHT:
            MoveSideways(true, keys.shift, keys.ctrl);
            return true;
        case VK_UP:
        case VK_DOWN:
            // On a single line they go sideways, where they do not step a number.
            if (SpinNode* spin = SpinOfKeys(*this)) {
                spin->UserStep(key == VK_UP);
            } else if (MultiLine()) {
                MoveTo(LinesAway(caret_, key == VK_UP ? -1 : 1), keys.shift);
            } else {
                MoveSideways(key == VK_DOWN, keys.shift, false);
            }
            return true;
        case VK_PRIOR:
        case VK_NEXT:
            if (MultiLine()) MoveTo(LinesAway(caret_, key == VK_PRIOR ? -page : page), keys.shift);
            return true;
        case VK_HOME:
            MoveTo(keys.ctrl ? 0 : LineStart(caret_), keys.shift);
            return true;
        case VK_END:
            MoveTo(keys.ctrl ? size : LineEnd(caret_), keys.shift);
            return true;
        default:
            return HandleEditingKey(key, keys.shift, keys.ctrl);
    }
}

bool EditNode::HandleEditingKey(int key, bool shift, bool ctrl) {
    if (key == VK_INSERT) {
        if (ctrl) Send(*this, WM_COPY);
        if (shift) Send(*this, WM_PASTE);
        return true;
    }
    if (key != VK_DELETE) return false;
    if (shift) {
        Send(*this, WM_CUT);
    } else if (!ReadOnly()) {
        DeleteForward();
    }
    return true;
}

/// A selection that is not extended goes, and leaves the caret at that side of it.
void EditNode::MoveSideways(bool forward, bool shift, bool ctrl) {
    if (anchor_ != caret_ && !shift && !ctrl) {
        MoveTo(forward ? SelectionEnd() : SelectionStart(), false);
    } else if (forward) {
        MoveTo(ctrl ? WordBehind(caret_) : PlaceBehind(caret_), shift);
    } else {
        MoveTo(ctrl ? WordAhead(caret_) : PlaceAhead(caret_), shift);
    }
}

void EditNode::MoveTo(int place, bool extend) {
    Select(extend ? anchor_ : place, place);
}

int EditNode::PlaceAhead(int place) const {
    return place > 0 ? WholeChars(Text(), place - 1) : 0;
}

int EditNode::PlaceBehind(int place) const {
    const int size = static_cast<int>(Text().size());
    return place < size ? place + CharLength(Text(), place) : size;
}

int EditNode::WordAhead(int place) const {
    const std::string& text = Text();
    const auto blankAhead = [&] { return IsSpace(text[static_cast<std::size_t>(place - 1)]); };
    while (place > 0 && blankAhead())
        --place;
    while (place > 0 && !blankAhead())
        --place;
    return place;
}

int EditNode::WordBehind(int place) const {
    const std::string& text = Text();
    const int size = static_cast<int>(text.size());
    const auto blankHere = [&] { return IsSpace(text[static_cast<std::size_t>(place)]); };
    while (place < size && !blankHere())
        ++place;
    while (place < size && blankHere())
        ++place;
    return place;
}

int EditNode::LineStart(int place) const {
    if (!MultiLine() || place == 0) return 0;
    const std::size_t at = Text().rfind('\n', static_cast<std::size_t>(place) - 1);
    return at == std::string::npos ? 0 : static_cast<int>(at) + 1;
}

int EditNode::LineEnd(int place) const {
    const int size = static_cast<int>(Text().size());
    if (!MultiLine()) return size;
    const std::size_t at = Text().find('\n', static_cast<std::size_t>(place));
    if (at == std::string::npos) return size;
    const bool pair = at > 0 && Text()[at - 1] == '\r';
    return static_cast<int>(at) - (pair ? 1 : 0);
}

/// As far into its line as `place` is into its own.
int EditNode::LinesAway(int place, int lines) const {
    int start = LineStart(place);
    const int column = place - start;
    for (; lines < 0 && start > 0; ++lines)
        start = LineStart(start - 1);
    for (; lines > 0; --lines) {
        const std::size_t at = Text().find('\n', static_cast<std::size_t>(start));
        if (at == std::string::npos) break;
        start = static_cast<int>(at) + 1;
    }
    return WholeChars(Text(), std::min(start + column, LineEnd(start)));
}

int EditNode::LineCount() const {
    return MultiLine() ? static_cast<int>(std::count(Text().begin(), Text().end(), '\n')) + 1 : 1;
}

/// -1 stands for what is not selected on the lines of the selection.
int EditNode::LineLength(int place) const {
    const int size = static_cast<int>(Text().size());
    if (!MultiLine()) return size;
    if (place == -1) {
        const int ahead = SelectionStart() - LineStart(SelectionStart());
        return ahead + std::max(0, LineEnd(SelectionEnd()) - SelectionEnd());
    }
    if (place < 0 || place > size) return 0;
    const int start = LineStart(place);
    return LineEnd(start) - start;
}

int EditNode::PlaceAtPoint(CPoint at) const {
    Desktop& desktop = WindowSystem::Get().GetDesktop();
    const int start = MultiLine() ? LinesAway(0, std::max(0, at.y) / kLineHeight) : 0;
    const std::string line = Text().substr(static_cast<std::size_t>(start),
                                           static_cast<std::size_t>(LineEnd(start) - start));
    const auto widthTo = [&](int bytes) {
        std::string shown = line.substr(0, static_cast<std::size_t>(bytes));
        if (HasStyle(ES_PASSWORD)) shown.assign(shown.size(), '*');
        return desktop.TextExtent(shown, desktop.DefaultFont()).cx;
    };
    const int x = at.x - kTextMargin;
    int low = 0;
    int high = static_cast<int>(line.size());
    while (low < high) {
        const int middle = (low + high + 1) / 2;
        if (widthTo(middle) <= x) {
            low = middle;
        } else {
            high = middle - 1;
        }
    }
    low = WholeChars(line, low);
    if (low == static_cast<int>(line.size())) return start + low;
    const int next = low + CharLength(line, low);
    return start + (x - widthTo(low) > widthTo(next) - x ? next : low);
}

LRESULT EditNode::GetSelection(WPARAM start, LPARAM end) const {
    if (start) *reinterpret_cast<DWORD*>(start) = static_cast<DWORD>(SelectionStart());
    if (end) *reinterpret_cast<DWORD*>(end) = static_cast<DWORD>(SelectionEnd());
    if (SelectionEnd() > 0xFFFF) return -1;
    return static_cast<LRESULT>(MAKEWPARAM(SelectionStart(), SelectionEnd()));
}

/// -1 as the start takes the selection away, as the end means the end of the text.
void EditNode::SetSelection(int start, int end) {
    if (start == -1) {
        Select(SelectionEnd(), SelectionEnd());
    } else {
        Select(start, end == -1 ? static_cast<int>(Text().size()) : end);
    }
}

void EditNode::SetLimit(WPARAM limit) {
    const std::size_t most = MultiLine() ? kGreatestLimitOfLines : kGreatestLimit;
    limit_ = limit == 0 ? most : std::min<std::size_t>(limit, most);
}

LRESULT EditNode::ProcessMessages(UINT message, WPARAM wParam, LPARAM lParam, bool& handled) {
    switch (message) {
        case EM_GETSEL:
            return GetSelection(wParam, lParam);
        case EM_SETSEL:
            SetSelection(static_cast<int>(wParam), static_cast<int>(lParam));
            return 0;
        case EM_SCROLLCARET:
            return TRUE;
        case EM_GETLINECOUNT:
            return LineCount();
        case EM_LINELENGTH:
            return LineLength(static_cast<int>(wParam));
        case EM_GETMODIFY:
            return modified_;
        case EM_SETMODIFY:
            modified_ = wParam != 0;
            return 0;
        case EM_REPLACESEL:
            Insert(lParam ? TextOf(lParam) : "", Step::kOther);
            if (!wParam) undo_.reset();
            return 0;
        case EM_LIMITTEXT:
            SetLimit(wParam);
            return 0;
        case EM_GETLIMITTEXT:
            return static_cast<LRESULT>(limit_);
        case EM_CANUNDO:
            return CanUndo();
        case EM_UNDO:
        case WM_UNDO:
            return Undo() || !MultiLine();
        case EM_EMPTYUNDOBUFFER:
            undo_.reset();
            return 0;
        case EM_SETREADONLY:
            SetStyle(wParam ? Style() | ES_READONLY : Style() & ~ES_READONLY);
            return TRUE;
        default:
            handled = false;
            return 0;
    }
}

LRESULT EditNode::Process(UINT message, WPARAM wParam, LPARAM lParam) {
    bool handled = true;
    const LRESULT result = ProcessMessages(message, wParam, lParam, handled);
    if (handled) return result;
    switch (message) {
        case WM_SETTEXT:
            SetWholeText(lParam ? TextOf(lParam) : "");
            return TRUE;
        case WM_GETDLGCODE: {
            const bool breaksLine = MultiLine() && HasStyle(ES_WANTRETURN) && wParam == VK_RETURN;
            return DialogCode() | (breaksLine ? DLGC_WANTALLKEYS : 0);
        }
        case WM_KEYDOWN:
            if (!TakeKey(static_cast<int>(wParam))) HandleKey(static_cast<int>(wParam));
            return 0;
        case WM_CHAR:
            HandleChar(static_cast<char>(wParam));
            return 0;
        case WM_LBUTTONDOWN: {
            const int place = PlaceAtPoint(
                {static_cast<std::int16_t>(LOWORD(static_cast<std::uintptr_t>(lParam))),
                 static_cast<std::int16_t>(HIWORD(static_cast<std::uintptr_t>(lParam)))});
            MoveTo(place, CurrentModifiers().shift);
            return 0;
        }
        case WM_COPY:
            return Copy();
        case WM_CUT:
            Cut();
            return 0;
        case WM_PASTE:
            Paste();
            return 0;
        case WM_CLEAR:
            if (!ReadOnly()) Erase(SelectionStart(), SelectionEnd(), Step::kOther);
            return 0;
        case WM_SETFOCUS:
            Notify(EN_SETFOCUS);
            return 0;
        case WM_KILLFOCUS:
            Notify(EN_KILLFOCUS);
            return 0;
        default:
            return Node::Process(message, wParam, lParam);
    }
}

}  // namespace kv
