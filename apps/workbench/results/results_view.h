#pragma once

#include <QTableView>

namespace workbench {

/// The table of the results: whole rows are selected, and the first column stays in sight when the
/// others are scrolled away.
class ResultsView : public QTableView {
    Q_OBJECT
public:
    explicit ResultsView(QWidget* parent = nullptr);

    void setModel(QAbstractItemModel* model) override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    /// Each column as wide as the widest of its cells, however many there are, and no wider than
    /// can be read at a glance.
    void FitColumns();
    /// Puts the keyboard there, and the selection on a row if there is none.
    void Enter();

    /// The column that stays, which lies over the others; seen only when they are scrolled.
    QTableView& Kept() { return *kept_; }

signals:
    /// Ctrl+C was pressed.
    void CopyWanted();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void updateGeometries() override;

private:
    void SelectSomeRow();
    void PlaceKept();
    int WidestCell(int column) const;

    QTableView* kept_;
};

}  // namespace workbench
