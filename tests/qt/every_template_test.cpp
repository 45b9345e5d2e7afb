#include <QAccessible>
#include <QImage>
#include <QScreen>
#include <algorithm>
#include <set>

#include "dark_palette.h"
#include "larger_font.h"
#include "qt_fixture.h"
#include "window/controls/button_node.h"
#include "window/dialog_keys.h"

namespace {

std::vector<int> TemplateIds() {
    std::vector<int> ids;
    for (const kv::DialogTemplate* each : kv::LibraryResources().templates)
        ids.push_back(each->id);
    return ids;
}

bool IsForPeople(const kv::Node& node) {
    switch (node.Class()) {
        case kv::NodeClass::kEdit:
        case kv::NodeClass::kComboBox:
        case kv::NodeClass::kListBox:
        case kv::NodeClass::kListView:
            return true;
        case kv::NodeClass::kButton:
            return (node.Style() & BS_TYPEMASK) != BS_GROUPBOX;
        default:
            return false;
    }
}

bool IsRadio(const kv::Node& node) {
    return node.Class() == kv::NodeClass::kButton &&
           (node.Style() & BS_TYPEMASK) == BS_AUTORADIOBUTTON;
}

/// Share of the pixels that are nearly white.
double LightShare(const QImage& image) {
    constexpr int kLight = 225;
    int light = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            light += qGray(image.pixel(x, y)) >= kLight;
    }
    return static_cast<double>(light) / (image.width() * image.height());
}

/// Pixels that are clearly of another colour.
int ChangedPixels(const QImage& before, const QImage& after) {
    constexpr int kClearly = 32;
    int changed = 0;
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x) {
            const QColor a = before.pixelColor(x, y);
            const QColor b = after.pixelColor(x, y);
            const int most = std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                                       std::abs(a.blue() - b.blue())});
            changed += most >= kClearly;
        }
    }
    return changed;
}

/// The application's palette as long as it lives.
class OtherPalette {
public:
    explicit OtherPalette(const QPalette& palette) { QApplication::setPalette(palette); }
    ~OtherPalette() { QApplication::setPalette(former_); }

private:
    QPalette former_ = QApplication::palette();
};

/// A dialog of the library, or of its bars, with nothing in it but its template.
class EveryTemplate : public test::QtDialogTest, public testing::WithParamInterface<int> {
protected:
    EveryTemplate() { kv::AddToResourceChain(kv::LibraryResources()); }
    ~EveryTemplate() override {
        plain_.DestroyWindow();
        kv::RemoveFromResourceChain(kv::LibraryResources());
    }
    void SetUp() override {
        ASSERT_TRUE(plain_.Create(static_cast<UINT>(GetParam())));
        plain_.ShowWindow(SW_SHOW);
        Process();
        ASSERT_TRUE(QTest::qWaitForWindowActive(Window()));
    }

    kv::Node& Root() { return *plain_.m_hWnd; }
    QWidget* Window() { return kv::qt::WidgetOf(Root()); }
    void Press(Qt::Key key) {
        QWidget* focus = Window()->focusWidget();
        QTest::keyClick(focus ? focus : Window(), key);
        Process();
    }
    /// The control with the focus, of a combo box the box itself.
    static const kv::Node* Focused() {
        const kv::Node* focus = kv::WindowSystem::Get().Focus();
        const bool inCombo =
            focus && focus->Parent() && focus->Parent()->Class() == kv::NodeClass::kComboBox;
        return inCombo ? focus->Parent() : focus;
    }
    /// What Tab reaches, and in a group of radio buttons the arrows.
    std::set<const kv::Node*> Reached() {
        std::set<const kv::Node*> reached;
        while (Focused() && reached.insert(Focused()).second) {
            if (IsRadio(*Focused())) {
                do {
                    Press(Qt::Key_Down);
                } while (Focused() && reached.insert(Focused()).second);
            }
            Press(Qt::Key_Tab);
        }
        return reached;
    }
    static QImage PictureOf(const kv::Node& control) {
        return kv::qt::WidgetOf(control)->grab().toImage();
    }
    /// Presses Tab once round the dialog, and looks at what gets the focus before and after.
    void ExpectToSeeEachTab(const char* look) {
        constexpr int kLeast = 12;
        std::set<const kv::Node*> seen;
        for (;;) {
            const kv::Node* next = kv::NextTabStop(Root(), kv::WindowSystem::Get().Focus(), true);
            if (!next || next == Focused() || !seen.insert(next).second) return;
            const QImage before = PictureOf(*next);
            Press(Qt::Key_Tab);
            ASSERT_EQ(Focused(), next);
            EXPECT_GE(ChangedPixels(before, PictureOf(*next)), kLeast)
                << look << ": " << next->Id() << " " << next->Text();
        }
    }
    /// Whether a control, or as much of it as there is room for, is in sight.
    bool IsInSight(const kv::Node& control) {
        const QWidget* widget = kv::qt::WidgetOf(control);
        const QRect place(widget->mapTo(Window(), QPoint()), widget->size());
        return Window()->rect().contains(place.topLeft()) &&
               (widget->visibleRegion().boundingRect().size() == place.size() ||
                place.width() > Window()->width() / 2 || place.height() > Window()->height() / 2);
    }
    QImage Picture(const QString& name) {
        Process();
        const QString file = QStringLiteral("%1_%2_x%3.png")
                                 .arg(GetParam())
                                 .arg(name)
                                 .arg(Window()->devicePixelRatio());
        const QString path = test::PicturePath(file);
        EXPECT_TRUE(kv::qt::SavePicture(Root(), path.toStdString()));
        return QImage(path);
    }

    CDialog plain_;
};

TEST_P(EveryTemplate, HasANameForEachControl) {
    for (const auto& child : Root().Children()) {
        const bool named = IsForPeople(*child) || child->Class() == kv::NodeClass::kSpin ||
                           child->Class() == kv::NodeClass::kProgress;
        if (!named) continue;
        QAccessibleInterface* shown =
            QAccessible::queryAccessibleInterface(kv::qt::WidgetOf(*child));
        ASSERT_NE(shown, nullptr) << child->Id();
        EXPECT_FALSE(shown->text(QAccessible::Name).trimmed().isEmpty()) << child->Id();
    }
}

TEST_P(EveryTemplate, IsReachedByTheKeyboardAlone) {
    const auto reached = Reached();
    for (const auto& child : Root().Children()) {
        if (!IsForPeople(*child) || !child->Visible() || !child->Enabled()) continue;
        EXPECT_TRUE(reached.contains(child.get())) << child->Id();
    }
}

TEST_P(EveryTemplate, FollowsTheChangeToDarkAndBack) {
    const QPalette light = QApplication::palette();
    const double before = LightShare(Picture("light"));
    QApplication::setPalette(test::DarkPalette());
    const double dark = LightShare(Picture("dark"));
    QApplication::setPalette(light);
    EXPECT_GT(before, 0.3);
    EXPECT_LT(dark, 0.08);
    EXPECT_NEAR(LightShare(Picture("light")), before, 0.01);
}

TEST_P(EveryTemplate, ShowsWhereTheFocusIsAfterEachTab) {
    ExpectToSeeEachTab("light");
    {
        const OtherPalette dark(test::DarkPalette());
        ExpectToSeeEachTab("dark");
    }
    const test::LargerFont twice(2);
    ExpectToSeeEachTab("twice the size");
}

TEST_P(EveryTemplate, IsNotLargerThanTheScreenAndTabBringsEachControlIntoSight) {
    for (const double factor : {1.0, 2.0, 4.0}) {
        const test::LargerFont font(factor);
        Process();
        const QSize screen = Window()->screen()->availableSize();
        EXPECT_LE(Window()->frameSize().width(), screen.width()) << factor;
        EXPECT_LE(Window()->frameSize().height(), screen.height()) << factor;
        std::set<const kv::Node*> seen;
        while (Focused() && seen.insert(Focused()).second) {
            EXPECT_TRUE(IsInSight(*Focused())) << factor << ": " << Focused()->Id();
            Press(Qt::Key_Tab);
        }
    }
    EXPECT_FALSE(Picture("after_larger_fonts").isNull());
}

INSTANTIATE_TEST_SUITE_P(, EveryTemplate, testing::ValuesIn(TemplateIds()));

}  // namespace
