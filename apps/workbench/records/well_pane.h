#pragma once

#include <QPointer>
#include <QWidget>
#include <map>
#include <string>
#include <vector>

#include "workbench/records/well_comments.h"
#include "workbench/results/result_table.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace workbench {

/// The record of one well, with the comments of all users on it. One that is chosen in their list
/// can be changed and removed. What is typed stays in the field until it was written, and is there
/// again when its well is.
class WellPane : public QWidget {
    Q_OBJECT
public:
    explicit WellPane(QWidget* parent = nullptr);

    /// A row of a report of wells, whose first column is the API number.
    void ShowWell(const ResultTable& table, int row);
    void Clear();
    /// The API number; "" for none.
    const std::string& Well() const { return well_; }

    QTableWidget& Record() { return *record_; }
    QTableWidget& CommentList() { return *list_; }
    QLineEdit& CommentField() { return *field_; }
    QLabel& Note() { return *note_; }
    QPushButton& AddButton() { return *add_; }
    QPushButton& ChangeButton() { return *change_; }
    QPushButton& RemoveButton() { return *remove_; }
    QPushButton& RefreshButton() { return *refresh_; }

public slots:
    /// Reads the comments anew.
    void Refresh();

signals:
    void Failed(const QString& words);

private:
    void TakeWell(const std::string& well);
    void EmptyField();
    void ReadComments();
    void ShowComments();
    void ShowField();
    void Enable();
    /// Null where no comment is chosen.
    const WellComment* Chosen() const;
    void Add();
    void Change();
    void Remove();
    template <typename Write>
    void Do(const Write& write);

    std::string well_;
    /// What was typed on other wells and not written, by their API numbers.
    std::map<std::string, QString> drafts_;
    bool hasTable_ = false;
    bool unread_ = false;  ///< the database has failed; all else is as it was before
    std::vector<WellComment> comments_;

    QLabel* heading_;
    QTableWidget* record_;
    QLabel* note_;
    QTableWidget* list_;
    QLineEdit* field_;
    QLabel* room_;
    QPushButton* add_;
    QPushButton* change_;
    QPushButton* remove_;
    QPushButton* refresh_;
};

}  // namespace workbench
