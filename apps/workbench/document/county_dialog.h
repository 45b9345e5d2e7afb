#pragma once

#include <QDialog>
#include <string>
#include <vector>

class QDialogButtonBox;
class QLineEdit;
class QListWidget;

namespace workbench {

struct County {
    std::string id;
    std::string state;
    std::string name;
};
/// All counties that the database knows, by their states and names. Throws CKvException.
std::vector<County> ReadCounties();

/// Asks which counties to map: several of a list, which what is typed narrows.
class CountyDialog : public QDialog {
    Q_OBJECT
public:
    explicit CountyDialog(const std::vector<County>& counties, QWidget* parent = nullptr);

    /// Identifiers of those that are chosen, in the order of the list.
    std::vector<std::string> Chosen() const;

private:
    void Narrow(const QString& text);
    void ShowWhetherChosen();

    QLineEdit* find_;
    QListWidget* list_;
    QDialogButtonBox* buttons_;
};

}  // namespace workbench
