#include "qt/static_peer.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QPainter>
#include <QStyle>

#include "qt/paint.h"
#include "qt/text.h"
#include "window/desktop.h"
#include "window/window_system.h"

namespace kv::qt {

namespace {

bool IsPicture(const Node& node) {
    const DWORD kind = node.Style() & SS_TYPEMASK;
    return kind == SS_ICON || kind == SS_BITMAP;
}

class LabelView : public QLabel {
public:
    LabelView(Node& node, QWidget* host) : QLabel(host), node_(node.weak_from_this()) {}

protected:
    void paintEvent(QPaintEvent* event) override {
        const auto node = node_.lock();
        if (!node || PaintByLayer(*this, *node)) return;
        if (IsPicture(*node)) {
            QLabel::paintEvent(event);
            return;
        }
        QPainter painter(this);
        PaintText(painter, *node);
    }

    void contextMenuEvent(QContextMenuEvent* event) override {
        const auto node = node_.lock();
        if (!node || node->Text().empty() || IsPicture(*node)) return;
        auto* menu = new QMenu(this);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->addAction(tr("&Copy"), [weak = node_] {
            if (const auto label = weak.lock()) {
                WindowSystem::Get().GetDesktop().SetClipboardText(label->Text());
            }
        });
        menu->popup(event->globalPos());
    }

private:
    /// A label as high as several lines breaks its text; in one of a single line it stands in the
    /// middle, as the text of the edit beside it does.
    void PaintText(QPainter& painter, const Node& node) {
        const QFontMetrics metrics = fontMetrics();
        const bool severalLines = height() >= 2 * metrics.lineSpacing() - 2;
        const DWORD kind = node.Style() & SS_TYPEMASK;
        int flags = kind == SS_CENTER  ? Qt::AlignHCenter
                    : kind == SS_RIGHT ? Qt::AlignRight
                                       : Qt::AlignLeft;
        flags |= severalLines ? Qt::AlignTop | Qt::TextWordWrap : Qt::AlignVCenter;
        if (!node.HasStyle(SS_NOPREFIX)) flags |= Qt::TextShowMnemonic;
        QString text = ToQString(node.Text());
        if (!severalLines && metrics.size(flags, text).width() > width()) {
            text = metrics.elidedText(text, Qt::ElideRight, width(), flags);
        }
        style()->drawItemText(&painter, rect(), flags, palette(), isEnabled(), text,
                              foregroundRole());
    }

    std::weak_ptr<Node> node_;
};

}  // namespace

StaticPeer::StaticPeer(StaticNode& node, QWidget* host) : Peer(node, new LabelView(node, host)) {}

void StaticPeer::Changed(Change change) {
    Peer::Changed(change);
    if (change == Change::kImage) ShowStyle();
}

void StaticPeer::ShowText() {
    auto* label = static_cast<QLabel*>(Widget());
    if (!IsPicture(GetNode())) label->setText(PlainText(GetNode().Text()));
}

void StaticPeer::ShowStyle() {
    auto* label = static_cast<QLabel*>(Widget());
    label->setTextFormat(Qt::PlainText);
    if (!IsPicture(GetNode())) return;
    const auto image = static_cast<int>(static_cast<StaticNode&>(GetNode()).Image());
    label->setPixmap(PixmapOf(image));
    label->setAlignment(Qt::AlignCenter);
}

}  // namespace kv::qt
