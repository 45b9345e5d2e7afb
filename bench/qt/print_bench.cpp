// Opening the dialogs for scale and paper beside the same controls in plain Qt.

#include <QDialog>
#include <memory>
#include <vector>

#include "frame/module.h"
#include "plain_widgets.h"
#include "print/print_control.h"
#include "print/print_control_ids.h"
#include "print/sizing_dlg.h"
#include "print/sizing_ids.h"
#include "qt/qt_desktop.h"
#include "ratio.h"
#include "window/acting/row_texts.h"
#include "window/dialogs/print_dialog.h"
#include "window/templates/resources.h"

namespace {

constexpr CMinMax2Dd_t kMap{100000, 130000, 500000, 520000};

/// On a paper of its own: asking the machine for its printers is no opening of a dialog.
class PrintControl : public CKvGuiPrintControl {
public:
    static constexpr int kId = kv::print_control::kTemplate;
    PrintControl() : CKvGuiPrintControl(&paper_) {
        SetBounds(kMap);
        IsCGM(true);
    }

private:
    DEVMODE paper_ = kv::ToDevMode({"PDF", 8, true, 2970, 4200, "A3"});
};

class Sizing : public CKvGuiSizingDlg {
public:
    static constexpr int kId = kv::sizing::kTemplate;
    Sizing() {
        SetBounds(kMap);
        IsCGM(true);
    }
};

template <typename Dialog>
void OpenOurs(benchmark::State& state) {
    InitControlDll();
    kv::qt::QtDesktop desktop;
    for (auto _ : state) {
        Dialog dialog;
        dialog.Create(Dialog::kId);
        QApplication::processEvents();
        dialog.DestroyWindow();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

/// A control as the open dialog shows it.
struct Shown {
    kv::ControlRow row;
    QString text;
    QStringList rows;
    bool visible;
    bool enabled;
    bool checked;
};

template <typename Dialog>
std::vector<Shown> ShownBy() {
    kv::qt::QtDesktop desktop;
    Dialog dialog;
    dialog.Create(Dialog::kId);
    std::vector<Shown> shown;
    const auto& rows = kv::FindTemplate(Dialog::kId)->rows;
    for (std::size_t at = 0; at < rows.size(); ++at) {
        kv::Node& node = *dialog.m_hWnd->Children()[at];
        Shown each{rows[at],       QString::fromStdString(node.Text()),       {}, node.Visible(),
                   node.Enabled(), kv::Send(node, BM_GETCHECK) == BST_CHECKED};
        if (kv::HasRows(node)) {
            for (const std::string& text : kv::RowTexts(node))
                each.rows.append(QString::fromStdString(text));
        }
        shown.push_back(std::move(each));
    }
    return shown;
}

void MakeShown(const Shown& shown, QDialog& dialog, const QSizeF& unit) {
    QWidget* widget = bench::MakePlain(shown.row.kind, shown.text, shown.rows, &dialog);
    widget->setGeometry(bench::InPixels(shown.row.place, unit));
    widget->setAccessibleName(shown.text);
    widget->setVisible(shown.visible);
    widget->setEnabled(shown.enabled);
    if (auto* box = qobject_cast<QComboBox*>(widget)) box->setCurrentText(shown.text);
    if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
        edit->setReadOnly((kv::StyleOf(shown.row) & ES_READONLY) != 0);
    }
    if (auto* button = qobject_cast<QAbstractButton*>(widget); button && button->isCheckable()) {
        button->setAutoExclusive(false);
        button->setChecked(shown.checked);
    }
}

template <typename Dialog>
void OpenPeer(benchmark::State& state) {
    InitControlDll();
    const std::vector<Shown> controls = ShownBy<Dialog>();
    const kv::DialogTemplate& data = *kv::FindTemplate(Dialog::kId);
    const QSizeF unit = bench::DialogUnit();
    for (auto _ : state) {
        const auto dialog = std::make_unique<QDialog>();
        dialog->setWindowTitle(QString::fromUtf8(data.caption));
        dialog->setFixedSize(bench::InPixels({0, 0, data.width, data.height}, unit).size());
        for (const Shown& each : controls)
            MakeShown(each, *dialog, unit);
        dialog->show();
        QApplication::processEvents();
    }
}

const bench::Subject kPrint("print/open the dialog ahead of printing", 1.3, OpenOurs<PrintControl>,
                            OpenPeer<PrintControl>, bench::Clock::kWall);
const bench::Subject kSizing("print/open the sizing dialog", 1.3, OpenOurs<Sizing>,
                             OpenPeer<Sizing>, bench::Clock::kWall);

}  // namespace
