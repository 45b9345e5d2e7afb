#include "qt/platform_dialogs.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QCoreApplication>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>
#include <array>
#include <utility>

#include "base/paths.h"
#include "qt/drawing/text.h"
#include "qt/peers/acting.h"
#include "qt/peers/peer.h"
#include "qt/peers/window_peers.h"
#include "qt/replace_question.h"
#include "window/dialogs/file_dialog.h"
#include "window/dialogs/print_dialog.h"
#include "window/window_system.h"
#include "window/wnd.h"

namespace kv::qt {

namespace {

constexpr double kTenthMmPerMm = 10;
constexpr int kLongTextWidth = 500;

/// The window that a dialog opens over.
QWidget* ParentFor(const CWnd* parent) {
    Node* node = parent ? parent->GetSafeHwnd() : nullptr;
    if (!node) node = WindowSystem::Get().ActiveWindow();
    const Peer* peer = node && !node->Destroyed() ? PeerOf(*node->Root()) : nullptr;
    QWidget* widget = peer ? peer->Widget() : nullptr;
    return widget && widget->isVisible() ? widget : nullptr;
}

constexpr std::array<std::pair<QMessageBox::StandardButton, int>, 7> kButtons{{
    {QMessageBox::Ok, IDOK},
    {QMessageBox::Cancel, IDCANCEL},
    {QMessageBox::Abort, IDABORT},
    {QMessageBox::Retry, IDRETRY},
    {QMessageBox::Ignore, IDIGNORE},
    {QMessageBox::Yes, IDYES},
    {QMessageBox::No, IDNO},
}};

QMessageBox::StandardButtons ButtonsOf(UINT type) {
    switch (type & MB_TYPEMASK) {
        case MB_OKCANCEL:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case MB_YESNOCANCEL:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case MB_YESNO:
            return QMessageBox::Yes | QMessageBox::No;
        default:
            return QMessageBox::Ok;
    }
}

QMessageBox::Icon IconOfType(UINT type) {
    switch (type & 0xF0) {
        case MB_ICONSTOP:
            return QMessageBox::Critical;
        case MB_ICONQUESTION:
            return QMessageBox::Question;
        case MB_ICONEXCLAMATION:
            return QMessageBox::Warning;
        case MB_ICONINFORMATION:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

/// A text that may leave no room for the buttons, such as a statement that failed, scrolls.
void LetLongTextScroll(QMessageBox& box) {
    auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    if (!label || !box.layout()) return;
    const QSize room = RoomOn(*box.screen()).size();
    const QSize most(std::min(kLongTextWidth, room.width() / 2), room.height() / 2);
    const QRect wanted =
        label->fontMetrics().boundingRect(QRect(0, 0, most.width(), QWIDGETSIZE_MAX),
                                          Qt::TextWordWrap | Qt::TextWrapAnywhere, box.text());
    if (wanted.height() <= most.height()) return;
    auto* text = new QPlainTextEdit(box.text(), &box);
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setAccessibleName(box.windowTitle());
    text->setMinimumSize(most);
    delete box.layout()->replaceWidget(label, text);
    label->hide();
}

/// A line of the list of types in Qt's form: the words, and the patterns in brackets.
QString NameFilter(const FileFilter& filter) {
    QString words = ToQString(filter.description);
    const auto bracket = words.lastIndexOf(u'(');
    if (bracket > 0 && words.endsWith(u')')) words.truncate(bracket);
    QString patterns = ToQString(filter.pattern);
    patterns.replace(u';', u' ');
    patterns.replace(QStringLiteral("*.*"), QStringLiteral("*"));
    if (patterns.isEmpty()) patterns = QStringLiteral("*");
    return QStringLiteral("%1 (%2)").arg(words.trimmed(), patterns);
}

void SetUp(QFileDialog& dialog, const FileDialogRequest& request) {
    dialog.setAcceptMode(request.open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setFileMode(request.open ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !(request.flags & OFN_OVERWRITEPROMPT));
    QStringList filters;
    for (const FileFilter& filter : ParseFilter(request.filter))
        filters.append(NameFilter(filter));
    if (!filters.isEmpty()) dialog.setNameFilters(filters);
    dialog.setDefaultSuffix(ToQString(request.defaultExtension));
    std::string folder = request.initialFolder;
    if (folder.empty()) folder = FolderOf(request.fileName);
    dialog.setDirectory(ToQString(ToNative(folder.empty() ? CurrentFolder() : folder)));
    const std::string name = NameOf(request.fileName);
    if (!name.empty()) dialog.selectFile(ToQString(name));
}

void Take(const QPageLayout& layout, PrinterSettings& settings) {
    const QPageSize page = layout.pageSize();
    const QSizeF size = page.size(QPageSize::Millimeter);
    settings.paper = page.windowsId();
    settings.landscape = layout.orientation() == QPageLayout::Landscape;
    settings.widthTenthMm = qRound(size.width() * kTenthMmPerMm);
    settings.heightTenthMm = qRound(size.height() * kTenthMmPerMm);
    settings.form = ToBytes(page.name());
}

QPageSize PageOf(const PrinterSettings& settings) {
    const QPageSize::PageSizeId id = QPageSize::id(settings.paper);
    if (id != QPageSize::Custom) return QPageSize(id);
    return QPageSize(QSizeF(settings.widthTenthMm, settings.heightTenthMm) / kTenthMmPerMm,
                     QPageSize::Millimeter);
}

/// How the dialog ends when it is to be shown for another printer, which has other papers.
constexpr int kOtherPrinter = QDialog::Accepted + 1;

/// Lets the printer be chosen, too; null where there is none, or the platform's dialog does it.
QComboBox* AddPrinters(QPageSetupDialog& dialog, const QStringList& printers,
                       const QString& present) {
    auto* layout = qobject_cast<QBoxLayout*>(dialog.layout());
    if (!layout || printers.isEmpty()) return nullptr;
    auto* choice = new QComboBox(&dialog);
    choice->setObjectName(QStringLiteral("printers"));
    choice->addItems(printers);
    choice->setCurrentText(present);
    auto* label = new QLabel(QPageSetupDialog::tr("P&rinter:"), &dialog);
    label->setBuddy(choice);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(choice, 1);
    layout->insertLayout(0, row);
    QObject::connect(choice, &QComboBox::activated, &dialog, [&dialog, choice, present] {
        if (choice->currentText() != present) dialog.done(kOtherPrinter);
    });
    return choice;
}

/// A paper that the dialog does not know, such as a cut off a roll, stands ahead of those that it
/// does; it would put another one in its place. Null where it knows the paper.
QComboBox* AddPaper(QPageSetupDialog& dialog, const PrinterSettings& settings) {
    const QPageSize page = PageOf(settings);
    auto* papers = dialog.findChild<QComboBox*>(QStringLiteral("pageSizeCombo"));
    if (!papers || page.id() != QPageSize::Custom) return nullptr;
    papers->insertItem(0, ToQString(FormName(settings)), QVariant::fromValue(page));
    papers->setCurrentIndex(0);
    return papers;
}

}  // namespace

int ShowMessageBox(const MessageBoxRequest& request) {
    QMessageBox box(ParentFor(request.parent));
    const QString caption = ToQString(request.caption);
    box.setWindowTitle(caption.isEmpty() ? QCoreApplication::applicationName() : caption);
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQString(request.text));
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.setIcon(IconOfType(request.type));
    box.setStandardButtons(ButtonsOf(request.type));
    LetLongTextScroll(box);
    const int pressed = box.exec();
    for (const auto& [button, id] : kButtons) {
        if (button == pressed) return id;
    }
    return IDCANCEL;
}

int ShowFileDialog(const FileDialogRequest& request, std::string& path) {
    QFileDialog dialog(ParentFor(request.parent));
    if (!request.title.empty()) dialog.setWindowTitle(ToQString(request.title));
    SetUp(dialog, request);
    const bool asks = !request.open && (request.flags & OFN_OVERWRITEPROMPT);
    QString chosen;
    do {
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return IDCANCEL;
        chosen = dialog.selectedFiles().constFirst();
    } while (asks && !MayReplace(dialog, chosen));
    path = FromNative(ToBytes(chosen));
    return IDOK;
}

int ShowPrintSetup(PrinterSettings& settings, const QStringList& printers) {
    PrinterSettings shown = settings;
    for (int answer = kOtherPrinter; answer == kOtherPrinter;) {
        const QPrinterInfo info = QPrinterInfo::printerInfo(ToQString(shown.device));
        QPrinter printer(info.isNull() ? QPrinterInfo::printerInfo(PrinterToUse(
                                             QPrinterInfo::defaultPrinterName(), printers))
                                       : info);
        if (shown.device.empty()) shown.device = ToBytes(printer.printerName());
        printer.setPageSize(PageOf(shown));
        printer.setPageOrientation(shown.landscape ? QPageLayout::Landscape
                                                   : QPageLayout::Portrait);
        QPageSetupDialog dialog(&printer, ParentFor(nullptr));
        const QComboBox* choice = AddPrinters(dialog, printers, ToQString(shown.device));
        const QComboBox* papers = AddPaper(dialog, shown);
        const PrinterSettings before = shown;
        answer = dialog.exec();
        if (answer == QDialog::Rejected) return IDCANCEL;
        Take(printer.pageLayout(), shown);
        if (papers && papers->currentIndex() == 0) {
            const bool landscape = shown.landscape;
            shown = before;
            shown.landscape = landscape;
        }
        if (choice) shown.device = ToBytes(choice->currentText());
    }
    settings = shown;
    return IDOK;
}

QString PrinterToUse(const QString& byDefault, const QStringList& printers) {
    return byDefault.isEmpty() ? printers.value(0) : byDefault;
}

bool FindDefaultPrinter(PrinterSettings& settings) {
    const QPrinterInfo info = QPrinterInfo::printerInfo(
        PrinterToUse(QPrinterInfo::defaultPrinterName(), QPrinterInfo::availablePrinterNames()));
    if (info.isNull()) return false;
    const QPrinter printer(info);
    settings.device = ToBytes(info.printerName());
    Take(printer.pageLayout(), settings);
    return true;
}

}  // namespace kv::qt
