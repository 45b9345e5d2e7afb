#pragma once

#include <QAbstractListModel>
#include <QKeyEvent>
#include <QListView>
#include <QStyledItemDelegate>
#include <functional>
#include <memory>

#include "qt/peers/peer.h"
#include "window/drawing/raster.h"
#include "window/rows/row_list.h"

namespace kv::qt {

/// Where a view of rows reads them; it asks on demand and keeps none.
class RowSource {
public:
    virtual ~RowSource() = default;
    /// Null when the control is gone.
    virtual const RowList* Rows() const = 0;
    virtual bool Selected(int row) const = 0;
    /// The row that has the focus mark, -1 for none.
    virtual int CaretRow() const = 0;
    /// Null for a row without an image.
    virtual const Raster* Image(int row) const = 0;
    /// What room its images take, in logical pixels; nothing without them.
    virtual CSize ImageSize() const = 0;
};

class RowModel : public QAbstractListModel {
public:
    explicit RowModel(std::shared_ptr<RowSource> source);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    // What the node told; it has happened already.
    void Inserted(int first, int count);
    void Removed(int first, int count);
    void Reset();

private:
    std::shared_ptr<RowSource> source_;
    /// Rows that the views know of.
    int count_ = 0;
};

/// A list of texts over rows of the layer. What is selected is drawn as the source says.
class RowsView : public QListView {
public:
    RowsView(std::shared_ptr<RowSource> source, QWidget* parent);

    RowModel& Model() { return model_; }
    /// Selection or caret are other ones: the caret row comes into view when it moved.
    void SelectionChanged();
    void RowsChanged();
    /// In a dropped list the row under the mouse is drawn as the one that a click would take.
    void FollowMouse();
    int HotRow() const { return hotRow_; }

    /// A click on a row, -1 for the space behind the rows; a drag; a double-click.
    std::function<void(int row, Qt::KeyboardModifiers keys)> onPress;
    std::function<void(int row, Qt::KeyboardModifiers keys)> onDrag;
    std::function<void(int row)> onRelease;
    std::function<void(int row)> onDoubleClick;

    int RowAt(const QPoint& at) const;
    int RowHeight() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
    void keyboardSearch(const QString&) override {}

private:
    std::shared_ptr<RowSource> source_;
    RowModel model_;
    int shownCaret_ = -1;
    int hotRow_ = -1;
    bool followsMouse_ = false;
    bool held_ = false;
    int draggedTo_ = -1;
};

/// A menu at a list with the one command that it has: copying what is selected.
void ShowCopyMenu(QWidget& view, Node& list, const QPoint& at);

}  // namespace kv::qt
