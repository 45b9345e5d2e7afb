#pragma once

#include <QWidget>

#include "workbench/results/results_model.h"
#include "workbench/results/results_view.h"

class QLabel;
class QLineEdit;

namespace workbench {

/// The table of a report, with a heading that says what it is: sorted by a click on a heading,
/// narrowed as one types in the field above it, its selected rows copied with Ctrl+C.
class ResultsPane : public QWidget {
    Q_OBJECT
public:
    explicit ResultsPane(QWidget* parent = nullptr);

    void SetTable(ResultTable table);
    const ResultsModel& Model() const { return model_; }
    ResultsView& View() { return *view_; }
    QLineEdit& FindField() { return *find_; }
    QLabel& Heading() { return *heading_; }

    /// Whether the rows are those of what is picked now; else their heading is grey.
    void SetCurrent(bool current);
    bool HasSelection() const;
    /// The row of the table that the user came to, -1 for none.
    int ChosenRow() const;
    /// The selected rows for the clipboard, below the headings of the columns.
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
    /// The user came to that row of the table, -1 for none.
    void RowChosen(int row);
    /// Rows came or went, or were selected.
    void Changed();

private:
    void ShowHeading();
    void RowActivated(const QModelIndex& index);

    ResultsModel model_;
    QLabel* heading_;
    QLineEdit* find_;
    ResultsView* view_;
};

}  // namespace workbench
