// A Qt program hands its own combo box to a dialog, and its own line edit to the library.

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <cstdio>
#include <string>
#include <vector>

#include "frame/module.h"
#include "qt/binding.h"
#include "qt/qt_desktop.h"
#include "qualifiers/pipe_status_dlg.h"
#include "window/controls/combo_box.h"
#include "window/controls/edit.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    kv::qt::QtDesktop desktop;
    InitControlDll();

    QWidget window;
    auto* status = new QComboBox;
    status->setEditable(true);
    auto* note = new QLineEdit;
    auto* pick = new QPushButton(QStringLiteral("Pick..."));
    auto* row = new QHBoxLayout(&window);
    row->addWidget(status);
    row->addWidget(note);
    row->addWidget(pick);

    // From here on each handle stands for its widget: what one shows, the other does.
    CComboBox statusBox;
    CEdit noteEdit;
    kv::qt::BindComboBox(*status, statusBox);
    kv::qt::BindLineEdit(*note, noteEdit);

    std::vector<std::string> values;
    QObject::connect(pick, &QPushButton::clicked, [&] {
        CKvGuiPipeStatusDlg dialog(&statusBox, values, false, nullptr);
        if (dialog.DoModal() == IDOK) noteEdit.SetWindowText("picked");
    });

    window.show();
    QApplication::exec();
    std::printf("%s, %s\n", status->currentText().toUtf8().constData(),
                note->text().toUtf8().constData());
}
