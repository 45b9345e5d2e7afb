#include "qt/qt_desktop.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QEvent>
#include <QEventLoop>
#include <QFontMetricsF>
#include <QMainWindow>
#include <QPrinterInfo>
#include <QScreen>
#include <cmath>
#include <vector>

#include "base/paths.h"
#include "qt/access/screen_reader.h"
#include "qt/drawing/colors.h"
#include "qt/drawing/text.h"
#include "qt/peers/acting.h"
#include "qt/peers/keyboard.h"
#include "qt/peers/peer.h"
#include "qt/peers/window_peers.h"
#include "qt/platform_dialogs.h"
#include "window/blocked_windows.h"
#include "window/dialogs/dialog.h"
#include "window/screens.h"
#include "window/window_system.h"

namespace kv::qt {

namespace {

const QEvent::Type kWakeEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

void ForEachPeer(Node& node, const std::function<void(Peer&)>& visit) {
    if (Peer* peer = PeerOf(node); peer && peer->Widget()) visit(*peer);
    const auto children = node.Children();
    for (const auto& child : children)
        ForEachPeer(*child, visit);
}

void ForEachPeer(const std::function<void(Peer&)>& visit) {
    const auto windows = WindowSystem::Get().TopLevels();
    for (const auto& window : windows)
        ForEachPeer(*window, visit);
}

void ShowMnemonic(Peer& peer) {
    if (peer.GetNode().GivenMnemonic()) peer.Widget()->update();
}

bool HasEnded(Node& window) {
    if (window.Destroyed()) return true;
    auto* dialog = dynamic_cast<DialogNode*>(&window);
    return dialog && dialog->Modal() ? dialog->Ended() : !window.Visible();
}

}  // namespace

/// What Qt tells the desktop, the loops that run, and the screens.
class QtDesktop::Events : public QObject, public Loops, public Screens {
public:
    Events() {
        QApplication::instance()->installEventFilter(this);
        connect(qApp, &QApplication::focusChanged, this, &Events::FocusChanged);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (NoteAlt(*event)) ForEachPeer(&ShowMnemonic);
        if (watched != qApp) return false;
        if (event->type() == QEvent::ApplicationFontChange) {
            ForgetScale();
            ForEachPeer([](Peer& peer) { peer.ShowRect(); });
        } else if (event->type() == QEvent::ApplicationPaletteChange) {
            ForEachPeer([](Peer& peer) { peer.ShowColors(); });
        }
        return false;
    }

    bool event(QEvent* event) override {
        if (event->type() != kWakeEvent) return QObject::event(event);
        wakes_ = false;
        Settle();
        return true;
    }

    void Wake() override {
        if (wakes_) return;
        wakes_ = true;
        QCoreApplication::postEvent(this, new QEvent(kWakeEvent));
    }

    CRect ScreenAround(CPoint at) const override {
        const QScreen* screen = qt::ScreenAround(CurrentScale().ToScreen(at));
        return screen ? CurrentScale().ToLogical(RoomOn(*screen)) : CRect{};
    }

    void RunUntilEnded(Node& window) {
        const auto keep = window.shared_from_this();
        QEventLoop loop;
        loops_.push_back({keep, &loop});
        if (!HasEnded(window)) loop.exec();
        std::erase_if(loops_, [&](const Running& each) { return each.loop == &loop; });
        // The program is quitting.
        auto* dialog = dynamic_cast<DialogNode*>(&window);
        if (dialog && dialog->Modal() && !dialog->Ended()) dialog->End(IDCANCEL);
    }

    void LeaveEnded() override {
        for (const Running& each : loops_) {
            if (HasEnded(*each.window)) each.loop->quit();
        }
    }

private:
    struct Running {
        std::shared_ptr<Node> window;
        QEventLoop* loop;
    };

    /// A widget of the host's own has the focus: no control has it any more. Where Qt moved it
    /// between controls of its own will, the layer's holder gets it back.
    void FocusChanged(QWidget*, QWidget* now) {
        Node* holder = WindowSystem::Get().Focus();
        if (!now || !holder) return;
        const Peer* peer = PeerOf(now);
        const bool isHosts = peer && peer->Widget() == now->window() && now != now->window();
        if (isHosts) {
            Act(holder->weak_from_this(), [](Node&) { WindowSystem::Get().SetFocus(nullptr); });
        }
    }

    bool wakes_ = false;
    std::vector<Running> loops_;
};

QtDesktop::QtDesktop() : events_(std::make_unique<Events>()) {
    SetLoops(events_.get());
    AnswerScreenReaders();
    SetScreens(*this, events_.get());
    if (!Patience()) SetPatience(kUsualPatience);
    WindowSystem::Get().SetDesktop(this);
}

QtDesktop::~QtDesktop() {
    const auto windows = WindowSystem::Get().TopLevels();
    for (const auto& window : windows)
        window->SetView(nullptr);
    WindowSystem::Get().ForgetDesktop(*this);
    SetScreens(*this, nullptr);
    SetPatience({});
    SetLoops(nullptr);
    ForgetScreenReaders();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void QtDesktop::RunModal(Node& dialog) {
    MakePeer(dialog, nullptr);
    events_->RunUntilEnded(dialog);
}

void QtDesktop::RunModeless(Node& window, Node&) {
    MakePeer(*window.Root(), nullptr);
    Settle();
    events_->RunUntilEnded(window);
}

int QtDesktop::RunMessageBox(const MessageBoxRequest& request) {
    return ShowMessageBox(request);
}

int QtDesktop::RunFileDialog(const FileDialogRequest& request, std::string& path) {
    return ShowFileDialog(request, path);
}

int QtDesktop::RunPrintSetup(PrinterSettings& settings) {
    return ShowPrintSetup(settings, QPrinterInfo::availablePrinterNames());
}

bool QtDesktop::DefaultPrinter(PrinterSettings& settings) {
    return FindDefaultPrinter(settings);
}

bool QtDesktop::HasPrinter(const std::string& device) {
    return QPrinterInfo::availablePrinterNames().contains(ToQString(device));
}

CSize QtDesktop::ScreenSize() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? CurrentScale().ToLogical(RoomOn(*screen).size()) : CSize{};
}

CSize QtDesktop::TextExtent(const std::string& text, const Font& font) {
    const QFontMetricsF metrics(ToQFont(font));
    const Scale scale = CurrentScale();
    const double width = metrics.horizontalAdvance(ToQString(text)) / scale.x;
    return {static_cast<int>(std::ceil(width)),
            static_cast<int>(std::lround(metrics.height() / scale.y))};
}

COLORREF QtDesktop::Color(SystemColor which) {
    return PaletteColor(which);
}

Font QtDesktop::DefaultFont() {
    return {};
}

std::chrono::system_clock::time_point QtDesktop::Now() {
    return std::chrono::system_clock::now();
}

std::string QtDesktop::ClipboardText() {
    return ToBytes(QGuiApplication::clipboard()->text());
}

void QtDesktop::SetClipboardText(const std::string& text) {
    QGuiApplication::clipboard()->setText(ToQString(text));
}

void QtDesktop::Pump() {
    QCoreApplication::processEvents();
}

void QtDesktop::Wake() {
    events_->Wake();
}

void QtDesktop::Created(Node& node) {
    if (!node.Parent()) {
        MakePeer(node, nullptr);
    } else if (Peer* parent = PeerOf(*node.Parent())) {
        parent->Changed(Change::kChildren);
    }
}

QWidget* WidgetOf(const Node& node) {
    const Peer* peer = PeerOf(node);
    return peer ? peer->Widget() : nullptr;
}

QMainWindow* MainWindowOf(const Node& frame) {
    return qobject_cast<QMainWindow*>(WidgetOf(frame));
}

bool SavePicture(const Node& window, const std::string& machinePath) {
    Peer* peer = PeerOf(window);
    QWidget* widget = peer && peer->Widget() ? peer->Picture() : nullptr;
    QBuffer png;
    if (!widget || !png.open(QIODevice::WriteOnly) || !widget->grab().save(&png, "PNG"))
        return false;
    const QByteArray& bytes = png.data();
    return WriteFileWhole(machinePath, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

}  // namespace kv::qt
