#pragma once

#include <QWidget>

#include "workbench/results_model.h"

class QAction;
class QLabel;
class QLineEdit;
class QTableView;

namespace workbench {

/// The table of a report: sorted by a click on a heading, narrowed as one types in the field above
/// it, copied with Ctrl+C.
class ResultsPane : public QWidget {
    Q_OBJECT
public:
    explicit ResultsPane(QWidget* parent = nullptr);

    void SetTable(ResultTable table);
    const ResultsModel& Model() const { return model_; }
    QTableView& View() { return *view_; }
    QLineEdit& FindField() { return *find_; }

    /// The selected rows for the clipboard, with the headings if there are several of them.
    QString SelectedText() const;
    /// Writes what is shown, as it is sorted.
    bool Save(const QString& path, QString& error) const;

public slots:
    void Copy() const;
    void SelectAll();
    void Find();

signals:
    /// A row was double-clicked, or Enter pressed on it: its block is wanted.
    void BlockWanted(const QString& areaCode, const QString& block);

private:
    void ShowCount();
    void FitColumns();
    void RowActivated(const QModelIndex& index);

    ResultsModel model_;
    QLabel* title_;
    QLineEdit* find_;
    QLabel* count_;
    QTableView* view_;
};

}  // namespace workbench
