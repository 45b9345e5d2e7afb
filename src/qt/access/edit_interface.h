#pragma once

#include "qt/access/control_interface.h"

namespace kv {
class EditNode;
}

namespace kv::qt {

/// An edit, of one line or of several. Places are those of the characters that are shown; of a
/// password nothing can be read but how long it is.
class EditInterface : public ControlInterface,
                      public QAccessibleTextInterface,
                      public QAccessibleEditableTextInterface {
public:
    using ControlInterface::ControlInterface;

    QString text(QAccessible::Text which) const override;
    void setText(QAccessible::Text which, const QString& text) override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    void selection(int index, int* start, int* end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    /// An edit shows the place where its caret is.
    void scrollToSubstring(int, int) override {}
    QString attributes(int offset, int* start, int* end) const override;

    void deleteText(int start, int end) override { replaceText(start, end, QString()); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString& text) override;

private:
    const EditNode* Edit() const;
    QString Shown() const;
};

}  // namespace kv::qt
