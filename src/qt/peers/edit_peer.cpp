#include "qt/peers/edit_peer.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QStyleHints>
#include <QStyleOptionFrame>
#include <algorithm>
#include <limits>

#include "qt/drawing/paint.h"
#include "qt/drawing/text.h"
#include "qt/peers/acting.h"
#include "qt/peers/keyboard.h"
#include "qt/peers/wheel.h"
#include "window/acting/input.h"
#include "window/desktop.h"
#include "window/window_system.h"

namespace kv::qt {

namespace {

using WeakNode = std::weak_ptr<Node>;

EditNode* EditOf(const WeakNode& node) {
    const auto edit = node.lock();
    return edit && !edit->Destroyed() ? static_cast<EditNode*>(edit.get()) : nullptr;
}

PlacedText TextOf(const EditNode& edit) {
    return {edit.Text(), edit.MultiLine()};
}

/// A widget tells its text to whoever reads the screen, so a password is not in it.
QString ShownIn(const EditNode& edit) {
    QString text = TextOf(edit).Text();
    if (edit.HasStyle(ES_PASSWORD)) text.fill(u'*');
    return text;
}

bool IsWordPart(QChar character) {
    return character.isLetterOrNumber() || character == u'_';
}

/// What the mouse does in an edit, be it of one line or of several.
class EditMouse {
public:
    explicit EditMouse(EditNode& node) : node_(node.weak_from_this()) {}

    /// `index` is the place in the text as it is shown.
    void Press(const QMouseEvent& event, int index) {
        if (event.button() != Qt::LeftButton) return;
        held_ = false;
        const bool third =
            sinceDouble_.isValid() &&
            sinceDouble_.elapsed() < QApplication::styleHints()->mouseDoubleClickInterval();
        sinceDouble_.invalidate();
        const bool shift = event.modifiers() & Qt::ShiftModifier;
        Act(node_, [&](Node& node) {
            auto& edit = static_cast<EditNode&>(node);
            const CPoint at = CurrentScale().ToLogical(event.position().toPoint());
            const int byte = kv::qt::TextOf(edit).ByteOf(index);
            anchor_ = shift ? edit.Anchor() : byte;
            if (!input::Press(edit, at, ToModifiers(event.modifiers()))) return;
            held_ = true;
            // A handler that selected the text at the press wants it so.
            const bool selectedByHandler = !shift && edit.Anchor() != edit.Caret();
            if (third) {
                anchor_ = 0;
                input::SelectText(edit, 0, static_cast<int>(edit.Text().size()));
            } else if (!selectedByHandler) {
                input::SelectText(edit, anchor_, byte);
            }
        });
    }

    void Move(const QMouseEvent& event, int index) {
        if (!held_ || !(event.buttons() & Qt::LeftButton)) return;
        Act(node_, [&](Node& node) {
            auto& edit = static_cast<EditNode&>(node);
            input::SelectText(edit, anchor_, kv::qt::TextOf(edit).ByteOf(index));
        });
    }

    void Release(const QMouseEvent& event) {
        if (!held_ || event.button() != Qt::LeftButton) return;
        held_ = false;
        Act(node_, [&](Node& edit) {
            input::Release(edit, CurrentScale().ToLogical(event.position().toPoint()));
        });
    }

    void SelectWord(const QMouseEvent& event, int index) {
        if (event.button() != Qt::LeftButton) return;
        sinceDouble_.start();
        Act(node_, [&](Node& node) {
            auto& edit = static_cast<EditNode&>(node);
            const PlacedText placed = kv::qt::TextOf(edit);
            const QString& text = placed.Text();
            int first = std::min(index, static_cast<int>(text.size()));
            int last = first;
            while (first > 0 && IsWordPart(text.at(first - 1)))
                --first;
            while (last < text.size() && IsWordPart(text.at(last)))
                ++last;
            input::SelectText(edit, placed.ByteOf(first), placed.ByteOf(last));
        });
    }

private:
    WeakNode node_;
    bool held_ = false;
    int anchor_ = 0;
    QElapsedTimer sinceDouble_;
};

void AddCommand(QMenu& menu, const QString& words, const WeakNode& node, UINT message,
                bool enabled) {
    menu.addAction(words,
                   [node, message] {
                       Act(node, [message](Node& edit) { input::EditCommand(edit, message); });
                   })
        ->setEnabled(enabled);
}

void ShowMenu(QWidget& view, const WeakNode& node, const QPoint& at) {
    const EditNode* edit = EditOf(node);
    if (!edit || !edit->ReallyEnabled()) return;
    const bool writable = !edit->ReadOnly();
    const bool selected = edit->Anchor() != edit->Caret();
    const bool copies = selected && !edit->HasStyle(ES_PASSWORD);
    const bool canPaste = !QGuiApplication::clipboard()->text().isEmpty();
    auto* menu = new QMenu(&view);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    AddCommand(*menu, QLineEdit::tr("&Undo"), node, WM_UNDO, writable && edit->CanUndo());
    menu->addSeparator();
    AddCommand(*menu, QLineEdit::tr("Cu&t"), node, WM_CUT, writable && copies);
    AddCommand(*menu, QLineEdit::tr("&Copy"), node, WM_COPY, copies);
    AddCommand(*menu, QLineEdit::tr("&Paste"), node, WM_PASTE, writable && canPaste);
    AddCommand(*menu, QLineEdit::tr("Delete"), node, WM_CLEAR, writable && selected);
    menu->addSeparator();
    menu->addAction(QLineEdit::tr("Select All"), [node] {
        Act(node,
            [](Node& each) { input::SelectText(each, 0, static_cast<int>(each.Text().size())); });
    });
    menu->popup(at);
}

bool HoldsFocus(const EditNode& edit) {
    return WindowSystem::Get().Focus() == &edit;
}

/// The frame and the ground of a line edit as its style drew them last. With most styles they cost
/// more than the text, which changes alone.
class Panel {
public:
    /// Draws them; from the second time that they look so on, as they were.
    void Paint(QWidget& edit, const QStyleOptionFrame& option) {
        const Look look{option.rect.size(), option.state, option.palette.cacheKey(),
                        edit.devicePixelRatio(), edit.style()};
        QPainter painter(&edit);
        const auto draw = [&](QPainter& on) {
            edit.style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &on, &edit);
        };
        if (look != look_) {
            look_ = look;
            picture_ = QPixmap();
            draw(painter);
            return;
        }
        if (picture_.isNull()) {
            picture_ = QPixmap(look.size * look.ratio);
            picture_.setDevicePixelRatio(look.ratio);
            picture_.fill(Qt::transparent);
            QPainter on(&picture_);
            draw(on);
        }
        painter.drawPixmap(0, 0, picture_);
    }

private:
    struct Look {
        QSize size;
        QStyle::State state;
        qint64 palette = 0;
        double ratio = 0;
        const QStyle* style = nullptr;
        bool operator==(const Look&) const = default;
    };

    Look look_;
    QPixmap picture_;
};

class LineView : public QLineEdit {
public:
    LineView(EditNode& node, QWidget* host)
        : QLineEdit(host), node_(node.weak_from_this()), mouse_(node) {
        setMaxLength(std::numeric_limits<int>::max());
        setDragEnabled(false);
        setAcceptDrops(false);
        // What changes the text from outside are tools that act on the widget itself.
        connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
            if (mirroring_) return;
            Act(node_, [&](Node& edit) {
                if (input::CanAct(edit)) Send(edit, WM_SETTEXT, 0, AsParam(ToBytes(text).c_str()));
            });
        });
    }

    void Mirror() {
        const EditNode* edit = EditOf(node_);
        if (!edit) return;
        mirroring_ = true;
        const PlacedText placed = kv::qt::TextOf(*edit);
        if (const QString shown = ShownIn(*edit); text() != shown) setText(shown);
        const int anchor = placed.IndexOf(edit->Anchor());
        const int caret = placed.IndexOf(edit->Caret());
        if (anchor == caret || !HoldsFocus(*edit)) {
            setCursorPosition(caret);
            deselect();
        } else {
            setSelection(anchor, caret - anchor);
        }
        mirroring_ = false;
    }

protected:
    void mousePressEvent(QMouseEvent* event) override { mouse_.Press(*event, IndexAt(*event)); }
    void mouseMoveEvent(QMouseEvent* event) override { mouse_.Move(*event, IndexAt(*event)); }
    void mouseReleaseEvent(QMouseEvent* event) override { mouse_.Release(*event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        mouse_.SelectWord(*event, IndexAt(*event));
    }
    void contextMenuEvent(QContextMenuEvent* event) override {
        ShowMenu(*this, node_, event->globalPos());
    }
    void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
    void wheelEvent(QWheelEvent* event) override {
        const int notches = wheel_.Take(*event);
        bool taken = false;
        Act(node_, [&](Node& edit) { taken = input::TurnWheel(edit, notches); });
        event->setAccepted(taken);
    }
    void focusInEvent(QFocusEvent* event) override {
        QLineEdit::focusInEvent(event);
        Mirror();
    }
    void paintEvent(QPaintEvent* event) override {
        textAlone_ = PaintPanel();
        QLineEdit::paintEvent(event);
        textAlone_ = false;
    }
    void initStyleOption(QStyleOptionFrame* option) const override {
        QLineEdit::initStyleOption(option);
        if (textAlone_) TakePanelOut(*option);
    }

private:
    int IndexAt(const QMouseEvent& event) { return cursorPositionAt(event.position().toPoint()); }

    /// False where the text would stand elsewhere without it.
    bool PaintPanel() {
        QStyleOptionFrame option;
        QLineEdit::initStyleOption(&option);
        QStyleOptionFrame bare = option;
        TakePanelOut(bare);
        const auto placeOfText = [this](const QStyleOptionFrame& each) {
            return style()->subElementRect(QStyle::SE_LineEditContents, &each, this);
        };
        if (placeOfText(bare) != placeOfText(option)) return false;
        panel_.Paint(*this, option);
        return true;
    }
    static void TakePanelOut(QStyleOptionFrame& option) {
        const int width = option.lineWidth;
        option.rect.adjust(width, width, -width, -width);
        option.lineWidth = 0;
        option.palette.setBrush(QPalette::Base, Qt::NoBrush);
    }

    WeakNode node_;
    EditMouse mouse_;
    WheelNotches wheel_;
    bool mirroring_ = false;
    Panel panel_;
    /// While it is painted on its panel.
    bool textAlone_ = false;
};

class LinesView : public QPlainTextEdit {
public:
    LinesView(EditNode& node, QWidget* host)
        : QPlainTextEdit(host), node_(node.weak_from_this()), mouse_(node) {
        setUndoRedoEnabled(false);
        setAcceptDrops(false);
        setTabChangesFocus(false);
        if (node.HasStyle(ES_AUTOHSCROLL)) setLineWrapMode(QPlainTextEdit::NoWrap);
    }

    void Mirror() {
        const EditNode* edit = EditOf(node_);
        if (!edit) return;
        const PlacedText placed = kv::qt::TextOf(*edit);
        const int scrolled = verticalScrollBar()->value();
        if (toPlainText() != placed.Text()) setPlainText(placed.Text());
        const bool selects = HoldsFocus(*edit);
        QTextCursor cursor = textCursor();
        cursor.setPosition(placed.IndexOf(selects ? edit->Anchor() : edit->Caret()));
        cursor.setPosition(placed.IndexOf(edit->Caret()), QTextCursor::KeepAnchor);
        verticalScrollBar()->setValue(scrolled);
        setTextCursor(cursor);
    }

protected:
    bool event(QEvent* event) override {
        const bool done = QPlainTextEdit::event(event);
        if (event->type() == QEvent::Paint) PaintFocus(*this);
        return done;
    }
    void mousePressEvent(QMouseEvent* event) override { mouse_.Press(*event, IndexAt(*event)); }
    void mouseMoveEvent(QMouseEvent* event) override { mouse_.Move(*event, IndexAt(*event)); }
    void mouseReleaseEvent(QMouseEvent* event) override { mouse_.Release(*event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        mouse_.SelectWord(*event, IndexAt(*event));
    }
    void contextMenuEvent(QContextMenuEvent* event) override {
        ShowMenu(*this, node_, event->globalPos());
    }
    void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
    void focusInEvent(QFocusEvent* event) override {
        QPlainTextEdit::focusInEvent(event);
        Mirror();
    }

private:
    int IndexAt(const QMouseEvent& event) {
        return cursorForPosition(event.position().toPoint()).position();
    }

    WeakNode node_;
    EditMouse mouse_;
};

QWidget* MakeView(EditNode& node, QWidget* host, bool framed) {
    if (node.MultiLine()) return new LinesView(node, host);
    auto* line = new LineView(node, host);
    line->setFrame(framed);
    return line;
}

}  // namespace

EditPeer::EditPeer(EditNode& node, QWidget* host, bool framed)
    : Peer(node, MakeView(node, host, framed)) {}

void EditPeer::ShowAll() {
    Peer::ShowAll();
    ShowText();
}

void EditPeer::Changed(Change change) {
    if (!Widget()) return;
    if (change == Change::kSelection) {
        ShowText();
    } else {
        Peer::Changed(change);
    }
}

/// Within a combo box it lies where that has it.
void EditPeer::ShowRect() {
    if (!InComboBox()) Peer::ShowRect();
}

bool EditPeer::InComboBox() const {
    const Node* parent = GetNode().Parent();
    return parent && parent->Class() == NodeClass::kComboBox;
}

void EditPeer::ShowText() {
    if (auto* line = dynamic_cast<LineView*>(Widget())) {
        line->Mirror();
    } else {
        static_cast<LinesView*>(Widget())->Mirror();
    }
}

/// Within a combo box it is the box that shows the focus, too.
void EditPeer::ShowFocus() {
    Peer::ShowFocus();
    ShowText();
    Widget()->update();
    if (InComboBox()) Widget()->parentWidget()->update();
}

void EditPeer::ShowStyle() {
    const auto& edit = static_cast<const EditNode&>(GetNode());
    if (auto* lines = dynamic_cast<LinesView*>(Widget())) {
        lines->setReadOnly(edit.ReadOnly());
        return;
    }
    auto* line = static_cast<LineView*>(Widget());
    line->setReadOnly(edit.ReadOnly());
    line->setEchoMode(edit.HasStyle(ES_PASSWORD) ? QLineEdit::Password : QLineEdit::Normal);
    line->Mirror();
}

/// What cannot be typed into has the dialog's colour.
QPalette EditPeer::OwnPalette() const {
    QPalette palette;
    if (static_cast<const EditNode&>(GetNode()).ReadOnly()) {
        palette.setBrush(QPalette::Base, QApplication::palette().window());
    }
    return palette;
}

}  // namespace kv::qt
