#include "workbench/command_palette.h"

#include <QAction>
#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace workbench {

namespace {

enum Column { kName, kWhere, kKey };

constexpr QSize kSize{620, 420};
constexpr int kColumnRoom = 24;
constexpr int kRowRoom = 6;

/// As it is read: "&&" stands for one "&", another "&" for none.
QString Plain(QString text) {
    text.replace(QStringLiteral("&&"), QStringLiteral("\n"));
    text.remove(u'&');
    return text.replace(u'\n', u'&');
}

void ForEachIn(const QList<QAction*>& actions, const QString& where, const CommandVisit& visit) {
    for (QAction* action : actions) {
        if (action->isSeparator()) continue;
        if (const QMenu* menu = action->menu()) {
            const QString name = Plain(menu->title());
            ForEachIn(menu->actions(),
                      where.isEmpty() ? name : where + QStringLiteral(" > ") + name, visit);
        } else {
            visit(*action, where);
        }
    }
}

bool HoldsAll(const QTreeWidgetItem& row, const QStringList& words) {
    const QString text =
        row.text(kName) + u' ' + row.text(kWhere) + u' ' + row.data(kName, Qt::UserRole).toString();
    return std::all_of(words.begin(), words.end(), [&](const QString& word) {
        return text.contains(word, Qt::CaseInsensitive);
    });
}

}  // namespace

void ForEachCommand(const QMenuBar& menus, const CommandVisit& visit) {
    ForEachIn(menus.actions(), {}, visit);
}

QString CommandName(const QAction& action) {
    return Plain(action.text());
}

CommandPalette::CommandPalette(const QMenuBar& menus, QWidget* parent)
    : QDialog(parent),
      words_(new QLineEdit(this)),
      list_(new QTreeWidget(this)),
      noneFits_(new QLabel(tr("No command has all of these words."), list_)) {
    setWindowTitle(tr("Find a Command"));
    words_->setPlaceholderText(tr("Some words of its name"));
    words_->setAccessibleName(tr("Words of the command's name"));
    words_->installEventFilter(this);
    list_->setAccessibleName(tr("Commands"));
    list_->setColumnCount(3);
    list_->setHeaderLabels({tr("Command"), tr("Menu"), tr("Key")});
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setFocusPolicy(Qt::NoFocus);
    ForEachCommand(menus, [this](QAction& action, const QString& where) {
        auto* row = new QTreeWidgetItem(list_);
        row->setText(kName, CommandName(action));
        row->setSizeHint(kName, {0, fontMetrics().height() + kRowRoom});
        row->setText(kWhere, where);
        row->setText(kKey, action.shortcut().toString(QKeySequence::NativeText));
        row->setData(kName, Qt::UserRole, action.objectName());
        row->setToolTip(kName, action.toolTip());
        if (!action.isEnabled()) {
            for (const int column : {kName, kWhere, kKey})
                row->setForeground(column, palette().brush(QPalette::Disabled, QPalette::Text));
        }
        actions_.push_back(&action);
    });
    // All of them are in sight: the names have what the others leave.
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionResizeMode(kName, QHeaderView::Stretch);
    for (const int column : {kWhere, kKey}) {
        list_->resizeColumnToContents(column);
        list_->setColumnWidth(column, list_->columnWidth(column) + kColumnRoom);
    }
    connect(words_, &QLineEdit::textChanged, this, &CommandPalette::Narrow);
    connect(words_, &QLineEdit::returnPressed, this, &CommandPalette::Choose);
    connect(list_, &QTreeWidget::itemActivated, this, &CommandPalette::Choose);
    connect(list_, &QTreeWidget::itemClicked, this, &CommandPalette::Choose);
    auto* inList = new QVBoxLayout(list_->viewport());
    inList->addWidget(noneFits_, 0, Qt::AlignCenter);
    auto* all = new QVBoxLayout(this);
    all->addWidget(words_);
    all->addWidget(list_);
    resize(kSize);
    Narrow({});
}

void CommandPalette::Narrow(const QString& words) {
    const QStringList wanted = words.split(u' ', Qt::SkipEmptyParts);
    QTreeWidgetItem* first = nullptr;
    for (int row = 0; row < list_->topLevelItemCount(); ++row) {
        QTreeWidgetItem* item = list_->topLevelItem(row);
        item->setHidden(!HoldsAll(*item, wanted));
        if (!first && !item->isHidden()) first = item;
    }
    list_->setCurrentItem(first);
    noneFits_->setVisible(!first);
}

void CommandPalette::Choose() {
    const int row = list_->indexOfTopLevelItem(list_->currentItem());
    if (row < 0) return;
    chosen_ = actions_[static_cast<std::size_t>(row)];
    accept();
}

/// The list is moved through while the words are typed.
bool CommandPalette::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool moves = key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
                       key == Qt::Key_PageDown;
    if (moves) QCoreApplication::sendEvent(list_, event);
    return moves;
}

}  // namespace workbench
