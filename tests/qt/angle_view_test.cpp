#include <QAccessible>
#include <QClipboard>
#include <QImage>
#include <QMessageBox>
#include <QToolButton>
#include <QWheelEvent>

#include "mapbuild/angle_dialog.h"
#include "qt_fixture.h"

using namespace test;
using enum kv::ControlKind;

namespace {

constexpr double kLat = 28 + 30 / 60.0 + 15.25 / 3600.0;
constexpr double kLon = -89.125;

std::vector<kv::ControlRow> Rows() {
    std::vector<kv::ControlRow> rows{{IDC_STATIC, kLabel, "Latitude", {7, 9, 40, 8}}};
    const auto add = [&](int group, int y) {
        for (kv::ControlRow row : AngleRows(group, y)) {
            row.place.x += 44;
            rows.push_back(row);
        }
    };
    add(kLatGroup, 7);
    rows.push_back({IDC_STATIC, kLabel, "Longitude", {7, 25, 40, 8}});
    add(kLonGroup, 23);
    rows.push_back({IDOK, kDefaultButton, "OK", {117, 42, 50, 14}});
    rows.push_back({IDCANCEL, kPushButton, "Cancel", {171, 42, 50, 14}});
    return rows;
}

/// A latitude and a longitude in a real window.
class AngleViews : public testing::Test {
protected:
    AngleViews() : template_(Rows(), kTestTemplate, "Angles", 228, 63) {
        dialog.firstLat = kLat;
        dialog.firstLon = kLon;
    }
    void SetUp() override {
        ASSERT_TRUE(dialog.Create(kTestTemplate));
        dialog.ShowWindow(SW_SHOW);
        Process();
        ASSERT_TRUE(QTest::qWaitForWindowActive(Window()));
        dialog.lat->SetPartner(dialog.lon.get());
    }
    ~AngleViews() override {
        dialog.DestroyWindow();
        Process();
    }

    static void Process() {
        QApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QWidget* Window() { return kv::qt::WidgetOf(*dialog.m_hWnd); }
    QWidget* WidgetOf(int id) { return kv::qt::WidgetOf(*dialog.m_hWnd->FindChild(id)); }
    QString Shown(int id) { return dynamic_cast<QLineEdit&>(*WidgetOf(id)).text(); }
    QString Boxes(int group) {
        return Shown(group + kDegEdit) + '|' + Shown(group + kMinEdit) + '|' +
               Shown(group + kSecEdit);
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(Window()->focusWidget(), key, modifiers);
    }
    void ClickInto(int id) { QTest::mouseClick(WidgetOf(id), Qt::LeftButton); }
    void PressArrow(int spin, bool up) {
        const auto arrows = WidgetOf(spin)->findChildren<QToolButton*>();
        ASSERT_EQ(arrows.size(), 2);
        QTest::mouseClick(arrows.at(up ? 0 : 1), Qt::LeftButton);
    }
    void Turn(int id, int delta) {
        const QPointF at(3, 3);
        QWheelEvent event(at, WidgetOf(id)->mapToGlobal(at), {}, {0, delta}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(WidgetOf(id), &event);
    }
    QString NameOf(int id) {
        return QAccessible::queryAccessibleInterface(WidgetOf(id))->text(QAccessible::Name);
    }

    kv::qt::QtDesktop desktop;
    TestTemplate template_;
    AngleDialog dialog;
};

TEST_F(AngleViews, TheArrowsStepTheBoxBesideThem) {
    EXPECT_EQ(Boxes(kLatGroup), "28|30|15.250");
    PressArrow(kLatGroup + kDegSpin, true);
    PressArrow(kLatGroup + kMinSpin, false);
    PressArrow(kLatGroup + kSecSpin, true);
    EXPECT_EQ(Boxes(kLatGroup), "29|29|15.300");
    for (int press = 0; press < 70; ++press)
        PressArrow(kLatGroup + kDegSpin, true);
    EXPECT_EQ(Boxes(kLatGroup), "90|29|15.300");
}

TEST_F(AngleViews, UpAndDownStepTheBoxThatHasTheFocus) {
    ClickInto(kLatGroup + kSecEdit);
    Press(Qt::Key_Up);
    EXPECT_EQ(Boxes(kLatGroup), "28|30|15.300");
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    EXPECT_EQ(Boxes(kLatGroup), "28|30|15.200");
}

TEST_F(AngleViews, TheWheelStepsOverTheArrowsAndOverTheBoxWithTheFocus) {
    Turn(kLatGroup + kMinSpin, 120);
    EXPECT_EQ(Boxes(kLatGroup), "28|31|15.250");
    Turn(kLatGroup + kSecEdit, 120);
    EXPECT_EQ(Boxes(kLatGroup), "28|31|15.250") << "it has not the focus";
    ClickInto(kLatGroup + kSecEdit);
    Turn(kLatGroup + kSecEdit, -60);
    Turn(kLatGroup + kSecEdit, -60);
    EXPECT_EQ(Boxes(kLatGroup), "28|31|15.200");
}

TEST_F(AngleViews, ReadOnlyBoxesDoNotStep) {
    dialog.lat->SetDMSReadOnly(true);
    Process();
    PressArrow(kLatGroup + kDegSpin, true);
    Turn(kLatGroup + kDegSpin, 120);
    ClickInto(kLatGroup + kDegEdit);
    Press(Qt::Key_Up);
    Press(Qt::Key_5);
    EXPECT_EQ(Boxes(kLatGroup), "28|30|15.250");
}

TEST_F(AngleViews, AWrongKeyBringsTheNumberBackSelected) {
    ClickInto(kLatGroup + kMinEdit);
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_1);
    Press(Qt::Key_2);
    Press(Qt::Key_X);
    EXPECT_EQ(Shown(kLatGroup + kMinEdit), "12");
    EXPECT_EQ(dynamic_cast<QLineEdit&>(*WidgetOf(kLatGroup + kMinEdit)).selectedText(), "12");
}

TEST_F(AngleViews, LeavingWithANumberOutOfRangeKeepsTheFocus) {
    ClickInto(kLatGroup + kMinEdit);
    Press(Qt::Key_A, Qt::ControlModifier);
    for (const Qt::Key key : {Qt::Key_2, Qt::Key_0, Qt::Key_0})
        Press(key);
    QString words;
    QTimer::singleShot(0, qApp, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        words = box->text();
        QTest::keyClick(box, Qt::Key_Return);
    });
    ClickInto(kLonGroup + kDegEdit);
    Process();
    EXPECT_EQ(words, "Value out of range");
    EXPECT_EQ(Boxes(kLatGroup), "28||15.250");
    EXPECT_EQ(Window()->focusWidget(), WidgetOf(kLatGroup + kMinEdit));
    Press(Qt::Key_5);
    EXPECT_EQ(Boxes(kLatGroup), "28|5|15.250");
}

TEST_F(AngleViews, APositionFromTheClipboardFillsBothGroups) {
    QGuiApplication::clipboard()->setText(
        QStringLiteral("28\u00B045'36.5\"S 95\u00B030\u203215\u2033W"));
    ClickInto(kLatGroup + kMinEdit);
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Boxes(kLatGroup), "-28|45|36.50");
    EXPECT_EQ(Boxes(kLonGroup), "-95|30|15.00");
}

TEST_F(AngleViews, EachBoxGoesByItsAngleAndItsUnit) {
    EXPECT_EQ(NameOf(kLatGroup + kDegEdit), "Latitude D");
    EXPECT_EQ(NameOf(kLatGroup + kMinEdit), "Latitude M");
    EXPECT_EQ(NameOf(kLatGroup + kSecEdit), "Latitude S");
    EXPECT_EQ(NameOf(kLonGroup + kMinEdit), "Longitude M");
    EXPECT_EQ(NameOf(kLonGroup + kMinSpin), "Longitude M");
    dialog.lat->SetFormat(true);
    Process();
    EXPECT_EQ(NameOf(kLatGroup + kDegEdit), "Latitude Degree.Degree");
}

TEST_F(AngleViews, BothFormsFitTheirDialog) {
    const auto picture = [&](const char* name) {
        Process();
        const QString path = test::PicturePath(name);
        EXPECT_TRUE(kv::qt::SavePicture(*dialog.m_hWnd, path.toStdString()));
        return QImage(path);
    };
    dialog.lat->SetDMS(-kLat);
    dialog.lon->SetDMS(kLon);
    const QImage parts = picture("angles_in_parts.png");
    dialog.lat->SetFormat(true);
    dialog.lat->SetDMS(-kLat);
    const QImage mixed = picture("angles_in_both_forms.png");
    dialog.lon->SetFormat(true);
    dialog.lon->SetDMS(kLon);
    const QImage decimal = picture("angles_in_decimal_degrees.png");
    EXPECT_NE(parts, mixed);
    EXPECT_NE(mixed, decimal);

    const auto& box = dynamic_cast<QLineEdit&>(*WidgetOf(kLonGroup + kDegEdit));
    EXPECT_EQ(box.text(), "-89.125000");
    EXPECT_LT(box.fontMetrics().horizontalAdvance(box.text()), box.width());
    EXPECT_LE(WidgetOf(kLonGroup + kDegSpin)->geometry().right(), Window()->width());
    EXPECT_GT(WidgetOf(kLonGroup + kDegSpin)->geometry().left(), box.geometry().right());
    EXPECT_FALSE(WidgetOf(kLonGroup + kMinEdit)->isVisible());
}

}  // namespace
