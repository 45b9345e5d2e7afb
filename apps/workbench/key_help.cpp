#include "workbench/key_help.h"

#include <QAction>
#include <QDialog>
#include <QDialogButtonBox>
#include <QMenuBar>
#include <QScreen>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "workbench/command_palette.h"

namespace workbench {

namespace {

struct Row {
    const char* keys;
    const char* does;
};

constexpr Row kRows[] = {
    {"Type in the area box",
     "pick an area by its name or its code; the first rows of the list change which"},
    {"Tab, then type", "pick a block of it, or ALL"},
    {"Enter in the block box", "run, as the button does"},
    {"F6, Shift+F6", "go round the bar, the map, the results and open tools"},
    {"Drag, middle button, arrow keys", "move the map"},
    {"Wheel, +, -", "zoom in and out"},
    {"Double click", "zoom in; with Shift, out"},
    {"Home", "show all of the map"},
    {"L, click on its heading", "fold the legend"},
    {"Click on a block", "pick it in the bar"},
    {"Click with a converter open", "hand the place to the converter"},
    {"Click while coordinates are read", "hold them; the next one lets them go"},
    {"Drag or two clicks, measuring", "with Shift go on from the last point; Escape ends"},
    {"Space, drawing", "a click in the middle of the map"},
    {"Enter, Backspace, drawing", "accept; take a point back"},
    {"Drag, Ctrl+arrow keys, selecting", "move what was drawn"},
    {"Enter or double click, Delete", "change what is selected, delete it"},
    {"Click on a heading", "sort the results"},
    {"Click, arrow keys on a row", "mark it on the map"},
    {"Enter, double click on a row", "show its block on the map"},
    {"Shift+arrow keys, Ctrl+A", "select rows"},
    {"Ctrl+C", "copy the selected rows with their headings"},
};

QString InTable(const QString& rows) {
    return QStringLiteral("<td><table cellspacing=2>%1</table></td>").arg(rows);
}

QString InRow(const QString& keys, const QString& does) {
    return QStringLiteral("<tr><td><b>%1</b>&nbsp;&nbsp;</td><td>%2</td></tr>")
        .arg(keys.toHtmlEscaped(), does.toHtmlEscaped());
}

}  // namespace

QString KeyHelp(const QMenuBar& menus) {
    QString rows;
    for (const Row& row : kRows)
        rows += InRow(QString::fromLatin1(row.keys), QString::fromLatin1(row.does));
    QString commands;
    ForEachCommand(menus, [&](const QAction& action, const QString& where) {
        if (action.shortcut().isEmpty()) return;
        const QString name = CommandName(action).remove(QStringLiteral("..."));
        commands += InRow(action.shortcut().toString(QKeySequence::NativeText),
                          where + QStringLiteral(" > ") + name);
    });
    return QStringLiteral("<table><tr>%1%2</tr></table>").arg(InTable(rows), InTable(commands));
}

void ShowKeyHelp(const QMenuBar& menus, QWidget* parent) {
    constexpr QSize kSize(900, 520);
    constexpr double kMostOfScreen = 0.9;
    QDialog dialog(parent);
    dialog.setWindowTitle(QStringLiteral("Mouse and Keys"));
    auto* layout = new QVBoxLayout(&dialog);
    auto* text = new QTextBrowser(&dialog);
    text->setHtml(KeyHelp(menus));
    text->setAccessibleName(dialog.windowTitle());
    layout->addWidget(text);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
    dialog.resize(kSize.boundedTo(parent->screen()->availableSize() * kMostOfScreen));
    dialog.exec();
}

}  // namespace workbench
