#pragma once

#include <optional>
#include <string>

#include "base/export.h"
#include "window/node.h"

namespace kv {

/// An edit: a text of one line or of several, a selection whose active end is the caret, and one
/// undo.
///
/// Places are bytes. Whatever moves the caret takes a UTF-8 sequence, and the CR LF that ends a
/// line, as one character; bytes that are no sequence count one each.
class KVGUICTL_API EditNode : public Node {
public:
    EditNode(int id, DWORD style) : Node(NodeClass::kEdit, id, style) {}

    int Anchor() const { return anchor_; }
    int Caret() const { return caret_; }
    int SelectionStart() const { return anchor_ < caret_ ? anchor_ : caret_; }
    int SelectionEnd() const { return anchor_ < caret_ ? caret_ : anchor_; }
    bool MultiLine() const { return HasStyle(ES_MULTILINE); }
    bool ReadOnly() const { return HasStyle(ES_READONLY); }
    bool CanUndo() const { return undo_.has_value(); }
    bool Modified() const { return modified_; }
    /// Most bytes that a person can make the text.
    std::size_t Limit() const { return limit_; }

    /// Places outside the text are brought into it.
    void Select(int anchor, int caret);
    /// Puts in a text, with the caret ahead of it and nothing to undo, and notifies nobody.
    void ShowText(std::string text);

    LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam) override;
    int DialogCode() const override { return DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS; }

protected:
    void TextChanged() override;
    /// Called when the text was changed by a person or by a message that notifies, ahead of the
    /// notifications.
    virtual void Edited() {}
    /// A key that is pressed; true when it was something else than the edit's own.
    virtual bool TakeKey(int key) { return (void)key, false; }

private:
    enum class Step { kTyping, kErasing, kOther };
    struct State {
        std::string text;
        int anchor;
        int caret;
    };

    LRESULT ProcessMessages(UINT message, WPARAM wParam, LPARAM lParam, bool& handled);
    LRESULT GetSelection(WPARAM start, LPARAM end) const;
    void SetSelection(int start, int end);
    void SetWholeText(std::string text);
    void SetLimit(WPARAM limit);
    bool Undo();

    void Replace(int start, int end, const std::string& with, Step step);
    void Insert(std::string text, Step step);
    void Erase(int start, int end, Step step);
    void RememberForUndo(Step step);
    void NotifyChange();
    std::string Cased(std::string text) const;

    void HandleChar(char ch);
    bool HandleControlChar(char ch);
    void TypeChar(char ch);
    bool HandleKey(int key);
    bool HandleEditingKey(int key, bool shift, bool ctrl);
    void MoveSideways(bool forward, bool shift, bool ctrl);
    void DeleteForward();
    void Backspace();
    bool Copy();
    void Cut();
    void Paste();

    void MoveTo(int place, bool extend);
    int PlaceAhead(int place) const;
    int PlaceBehind(int place) const;
    int WordAhead(int place) const;
    int WordBehind(int place) const;
    int LineStart(int place) const;
    int LineEnd(int place) const;
    int LinesAway(int place, int lines) const;
    int LineCount() const;
    int LineLength(int place) const;
    int PlaceAtPoint(CPoint at) const;

    int anchor_ = 0;
    int caret_ = 0;
    std::size_t limit_ = 32767;
    bool modified_ = false;
    std::optional<State> undo_;
    Step lastStep_ = Step::kOther;
    int lastCaret_ = -1;
    /// Bytes still to come of a typed sequence that found no room.
    int bytesToDrop_ = 0;
};

}  // namespace kv
