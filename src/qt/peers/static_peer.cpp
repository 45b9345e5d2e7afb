#include "qt/peers/static_peer.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>

#include "qt/drawing/paint.h"
#include "qt/drawing/text.h"
#include "qt/peers/keyboard.h"
#include "window/desktop.h"
#include "window/mnemonics.h"
#include "window/window_system.h"

namespace kv::qt {

namespace {

constexpr int kGap = 3;

/// How wide a label could be without touching what lies beside it, on the screen.
int FreeWidth(const Node& label) {
    const CRect own = label.Rect();
    int right = label.Parent()->Rect().Width();
    for (const auto& sibling : label.Parent()->Children()) {
        const CRect& other = sibling->Rect();
        const bool beside = other.top < own.bottom && other.bottom > own.top;
        const bool around = other.left <= own.left && other.right >= own.right;
        if (sibling.get() == &label || !beside) continue;
        if (around) {
            right = std::min(right, other.right);
        } else if (other.left >= own.right) {
            right = std::min(right, other.left);
        }
    }
    return CurrentScale().ToScreen(CSize{right - own.left, 0}).width() - kGap;
}

/// It may draw beyond its edges, as about the left one: its widget is wider by its own width on
/// either side.
bool IsOwnerDrawn(const Node& node) {
    return (node.Style() & SS_TYPEMASK) == SS_OWNERDRAW;
}

bool IsPicture(const Node& node) {
    const DWORD kind = node.Style() & SS_TYPEMASK;
    return kind == SS_ICON || kind == SS_BITMAP;
}

/// How much narrower a text that finds no room may be drawn before it is cut.
constexpr double kLeastStretch = 0.8;

class LabelView : public QWidget {
public:
    LabelView(Node& node, QWidget* host) : QWidget(host), node_(node.weak_from_this()) {}

    void SetPicture(const QPixmap& picture) {
        picture_ = picture;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        const auto node = node_.lock();
        if (!node) return;
        if (PaintByLayer(*this, *node, IsOwnerDrawn(*node) ? node->Rect().Width() : 0)) return;
        QPainter painter(this);
        if (IsPicture(*node)) {
            PaintPicture(painter);
        } else {
            PaintText(painter, *node);
        }
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
    void PaintPicture(QPainter& painter) {
        QStyleOption option;
        option.initFrom(this);
        const QPixmap shown =
            isEnabled() ? picture_
                        : style()->generatedIconPixmap(QIcon::Disabled, picture_, &option);
        style()->drawItemPixmap(&painter, rect(), Qt::AlignCenter, shown);
    }

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
        QString text = ShownText(node);
        QRect place = rect();
        const int wanted = severalLines ? 0 : metrics.size(flags, text).width();
        if (wanted > width()) {
            const double narrower = std::max(kLeastStretch, 1.0 * width() / wanted);
            painter.scale(narrower, 1);
            place.setWidth(static_cast<int>(width() / narrower) + 1);
            text = metrics.elidedText(text, Qt::ElideRight, place.width(), flags);
        }
        const Node* field = FieldOf(node);
        const bool enabled = isEnabled() && (!field || field->Enabled());
        QPalette colors = palette();
        if (!enabled) colors.setCurrentColorGroup(QPalette::Disabled);
        style()->drawItemText(&painter, place, flags, colors, enabled, text, foregroundRole());
    }

    std::weak_ptr<Node> node_;
    QPixmap picture_;
};

}  // namespace

StaticPeer::StaticPeer(StaticNode& node, QWidget* host) : Peer(node, new LabelView(node, host)) {}

void StaticPeer::Changed(Change change) {
    Peer::Changed(change);
    if (!Widget()) return;
    if (change == Change::kImage) ShowStyle();
    if (change == Change::kText || change == Change::kStyle) ShowRect();
}

/// A text that is wider in the platform's font than in the layer's takes the free space behind it.
void StaticPeer::ShowRect() {
    const Node& node = GetNode();
    QRect place = CurrentScale().ToScreen(node.Rect());
    if (IsOwnerDrawn(node)) {
        place.adjust(-place.width(), 0, place.width(), 0);
    } else if (!IsPicture(node) && (node.Style() & SS_TYPEMASK) == SS_LEFT) {
        const QFontMetrics metrics = Widget()->fontMetrics();
        const QSize wanted = metrics.size(Qt::TextShowMnemonic, ToQString(node.Text()));
        const bool singleLine = place.height() < 2 * metrics.lineSpacing() - 2;
        if (singleLine && wanted.width() >= place.width() && node.Parent()) {
            place.setWidth(std::max(place.width(), std::min(wanted.width() + 1, FreeWidth(node))));
        }
    }
    Widget()->setGeometry(place);
}

void StaticPeer::ShowText() {
    Widget()->update();
}

void StaticPeer::ShowStyle() {
    // What it reaches over is another control's, and so are the clicks there.
    Widget()->setAttribute(Qt::WA_TransparentForMouseEvents, IsOwnerDrawn(GetNode()));
    if (!IsPicture(GetNode())) return;
    const auto image = static_cast<int>(static_cast<StaticNode&>(GetNode()).Image());
    static_cast<LabelView*>(Widget())->SetPicture(PixmapOf(image));
}

}  // namespace kv::qt
