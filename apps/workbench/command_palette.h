#pragma once

#include <QDialog>
#include <functional>
#include <vector>

class QAction;
class QLabel;
class QLineEdit;
class QMenuBar;
class QTreeWidget;

namespace workbench {

/// Visits each row of the menus that does something, with the menus that lead to it.
using CommandVisit = std::function<void(QAction& action, const QString& where)>;
void ForEachCommand(const QMenuBar& menus, const CommandVisit& visit);
/// Its text without marks.
QString CommandName(const QAction& action);

/// Finds any command of the menus by some words of its name.
class CommandPalette : public QDialog {
    Q_OBJECT
public:
    explicit CommandPalette(const QMenuBar& menus, QWidget* parent = nullptr);

    QLineEdit& Words() { return *words_; }
    QTreeWidget& List() { return *list_; }
    /// The command that was chosen, which may be a disabled one; null where the user gave up.
    QAction* Chosen() const { return chosen_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Narrow(const QString& words);
    void Choose();

    QLineEdit* words_;
    QTreeWidget* list_;
    QLabel* noneFits_;               ///< in the list's place where it has no row to show
    std::vector<QAction*> actions_;  ///< one for each row of the list
    QAction* chosen_ = nullptr;
};

}  // namespace workbench
