#include "qt/access/edit_interface.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStyle>
#include <QTextBlock>

#include "qt/drawing/text.h"
#include "window/acting/input.h"
#include "window/controls/edit_node.h"

namespace kv::qt {

namespace {

PlacedText TextOf(const EditNode& edit) {
    return {edit.Text(), edit.MultiLine()};
}

/// In the coordinates of the edit.
QRect RectIn(const QLineEdit& line, int offset) {
    const QString text = line.displayText();
    const auto advance = [&](int count) {
        return line.fontMetrics().horizontalAdvance(text.left(count));
    };
    const QRect caret = line.inputMethodQuery(Qt::ImCursorRectangle).toRect();
    const int left = caret.center().x() + advance(offset) - advance(line.cursorPosition());
    return {left, caret.top(), advance(offset + 1) - advance(offset), caret.height()};
}

/// In the coordinates of the viewport.
QRect RectIn(const QPlainTextEdit& lines, int offset) {
    QTextCursor cursor(lines.document());
    cursor.setPosition(offset);
    QRect place = lines.cursorRect(cursor);
    const QString text = cursor.block().text().mid(cursor.positionInBlock(), 1);
    place.setWidth(lines.fontMetrics().horizontalAdvance(text));
    return place;
}

}  // namespace

const EditNode* EditInterface::Edit() const {
    return static_cast<const EditNode*>(GetNode());
}

QString EditInterface::Shown() const {
    const EditNode* edit = Edit();
    if (!edit || !Widget()) return {};
    QString text = TextOf(*edit).Text();
    if (edit->HasStyle(ES_PASSWORD)) {
        text.fill(QChar(Widget()->style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter)));
    }
    return text;
}

QString EditInterface::text(QAccessible::Text which) const {
    return which == QAccessible::Value ? Shown() : ControlInterface::text(which);
}

void EditInterface::setText(QAccessible::Text which, const QString& text) {
    if (which == QAccessible::Value) replaceText(0, characterCount(), text);
}

QAccessible::State EditInterface::state() const {
    QAccessible::State state = ControlInterface::state();
    const EditNode* edit = Edit();
    if (!edit) return state;
    state.readOnly = edit->ReadOnly();
    state.editable = !edit->ReadOnly();
    state.passwordEdit = edit->HasStyle(ES_PASSWORD);
    state.multiLine = edit->MultiLine();
    state.selectableText = true;
    return state;
}

void* EditInterface::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    if (type == QAccessible::EditableTextInterface) {
        return static_cast<QAccessibleEditableTextInterface*>(this);
    }
    return ControlInterface::interface_cast(type);
}

void EditInterface::selection(int index, int* start, int* end) const {
    *start = *end = 0;
    const EditNode* edit = Edit();
    if (!edit || index != 0 || selectionCount() == 0) return;
    const PlacedText placed = TextOf(*edit);
    *start = placed.IndexOf(edit->SelectionStart());
    *end = placed.IndexOf(edit->SelectionEnd());
}

int EditInterface::selectionCount() const {
    const EditNode* edit = Edit();
    return edit && edit->Anchor() != edit->Caret() ? 1 : 0;
}

void EditInterface::removeSelection(int index) {
    if (index == 0) setCursorPosition(cursorPosition());
}

void EditInterface::setSelection(int index, int start, int end) {
    if (index != 0 || !Edit()) return;
    ActLater(*GetNode(), [start, end](Node& node) {
        const PlacedText placed = TextOf(static_cast<const EditNode&>(node));
        input::SelectText(node, placed.ByteOf(start), placed.ByteOf(end));
    });
}

int EditInterface::cursorPosition() const {
    const EditNode* edit = Edit();
    return edit ? TextOf(*edit).IndexOf(edit->Caret()) : 0;
}

void EditInterface::setCursorPosition(int position) {
    setSelection(0, position, position);
}

QString EditInterface::text(int start, int end) const {
    return Shown().mid(start, end < 0 ? -1 : end - start);
}

int EditInterface::characterCount() const {
    return static_cast<int>(Shown().size());
}

QRect EditInterface::characterRect(int offset) const {
    if (offset < 0 || offset > characterCount()) return {};
    if (const auto* line = qobject_cast<QLineEdit*>(Widget())) {
        const QRect place = RectIn(*line, offset);
        return {line->mapToGlobal(place.topLeft()), place.size()};
    }
    const auto* lines = qobject_cast<QPlainTextEdit*>(Widget());
    if (!lines) return {};
    const QRect place = RectIn(*lines, offset);
    return {lines->viewport()->mapToGlobal(place.topLeft()), place.size()};
}

int EditInterface::offsetAtPoint(const QPoint& point) const {
    if (!rect().contains(point)) return -1;
    if (auto* line = qobject_cast<QLineEdit*>(Widget())) {
        return line->cursorPositionAt(line->mapFromGlobal(point));
    }
    const auto* lines = qobject_cast<QPlainTextEdit*>(Widget());
    if (!lines) return -1;
    return lines->cursorForPosition(lines->viewport()->mapFromGlobal(point)).position();
}

QString EditInterface::attributes(int, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
    return {};
}

void EditInterface::replaceText(int start, int end, const QString& text) {
    if (!Edit()) return;
    ActLater(*GetNode(), [start, end, bytes = ToBytes(text)](Node& node) {
        const auto& edit = static_cast<const EditNode&>(node);
        if (!input::CanAct(node) || edit.ReadOnly()) return;
        const PlacedText placed = TextOf(edit);
        Send(node, EM_SETSEL, static_cast<WPARAM>(placed.ByteOf(start)), placed.ByteOf(end));
        Send(node, EM_REPLACESEL, TRUE, AsParam(bytes.c_str()));
    });
}

}  // namespace kv::qt
