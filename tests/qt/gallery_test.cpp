#include <QImage>
#include <QStyle>

#include "dark_palette.h"
#include "qt/drawing/scale.h"
#include "qt_fixture.h"
#include "window/controls/progress_node.h"
#include "window/list_view/list_ctrl.h"

using enum kv::ControlKind;

namespace {

/// Every kind of control in one dialog, laid out as a designer would.
std::vector<kv::ControlRow> EveryKind() {
    return {
        {10, kGroupBox, "Lessee", {7, 7, 150, 66}},
        {11, kLabel, "&Company name:", {14, 20, 50, 8}},
        {12, kEdit, "SHELL OFFSHORE INC.", {66, 18, 84, 12}},
        {13, kLabel, "&Search by:", {14, 36, 50, 8}},
        {14, kDropList, "", {66, 34, 84, 12}},
        {15, kLabel, "&Area:", {14, 52, 50, 8}},
        {16, kDropDown, "", {66, 50, 84, 12}},
        {20, kGroupBox, "Show", {164, 7, 129, 66}},
        {21, kRadio, "Area &names", {171, 20, 60, 10}, kv::kFirstOfGroup},
        {22, kRadio, "Area co&des", {171, 34, 60, 10}},
        {23, kRadio, "&MMS codes", {171, 48, 60, 10}},
        {24, kCheckBox, "&Blocks", {235, 20, 52, 10}, kv::kFirstOfGroup},
        {25, kCheckBox, "&Extensions", {235, 34, 52, 10}},
        {26, kCheckBox, "Neighbors", {235, 48, 52, 10}, kv::kDisabled},
        {30, kLabel, "A&vailable:", {7, 80, 60, 8}},
        {31, kMultiList, "", {7, 91, 70, 66}},
        {32, kPushButton, "&Add >>", {82, 97, 50, 14}},
        {33, kPushButton, "<< &Remove", {82, 115, 50, 14}, kv::kDisabled},
        {34, kLabel, "&Leases:", {137, 80, 60, 8}},
        {35, kListView, "", {137, 91, 156, 66}},
        {40, kLabel, "S&cale:", {7, 166, 26, 8}},
        {41, kEdit, "2000", {35, 164, 32, 12}},
        {42, kSpin, "", {67, 164, 10, 12}},
        {43, kLabel, "Latitude:", {86, 166, 34, 8}},
        {44, kEdit, "28.504236", {122, 164, 50, 12}, kv::kReadOnly},
        {45, kEdit, "disabled", {177, 164, 50, 12}, kv::kDisabled},
        {46, kProgress, "", {232, 164, 61, 12}},
        {IDOK, kDefaultButton, "OK", {188, 181, 50, 14}},
        {IDCANCEL, kPushButton, "Cancel", {243, 181, 50, 14}},
    };
}

class Gallery : public test::QtDialogTest {
protected:
    void Fill() {
        for (const char* text : {"GARDEN BANKS", "GREEN CANYON", "VERMILION", "WEST CAMERON"}) {
            dialog.SendDlgItemMessage(16, CB_ADDSTRING, 0, kv::AsParam(text));
            dialog.SendDlgItemMessage(31, LB_ADDSTRING, 0, kv::AsParam(text));
        }
        dialog.SendDlgItemMessage(14, CB_ADDSTRING, 0, kv::AsParam("Beginning of name"));
        dialog.SendDlgItemMessage(14, CB_SETCURSEL, 0);
        dialog.SendDlgItemMessage(16, CB_SETCURSEL, 2);
        dialog.SendDlgItemMessage(31, LB_SETSEL, TRUE, 1);
        dialog.SendDlgItemMessage(31, LB_SETSEL, TRUE, 2);
        dialog.CheckRadioButton(21, 23, 22);
        dialog.CheckDlgButton(24, BST_CHECKED);
        dialog.SendDlgItemMessage(46, PBM_SETPOS, 60);
        auto& list = dialog.Control<CListCtrl>(35);
        list.SetExtendedStyle(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
        list.InsertColumn(0, "Lease", LVCFMT_LEFT, 70);
        list.InsertColumn(1, "Block", LVCFMT_RIGHT, 60);
        list.InsertColumn(2, "Status", LVCFMT_LEFT, 90);
        for (int row = 0; row < 12; ++row) {
            list.InsertItem(row, ("G" + std::to_string(12001 + row)).c_str());
            list.SetItemText(row, 1, std::to_string(100 + row * 7).c_str());
            list.SetItemText(row, 2, row % 3 ? "PROD" : "RELINQ");
        }
        list.SetCheck(1);
        list.SetItemState(2, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    }

    /// Saves the dialog's picture and reads it back.
    QImage Picture(const QString& name) {
        Process();
        const QString file =
            QStringLiteral("%1_x%2.png").arg(name).arg(Window()->devicePixelRatio());
        const QString path = test::PicturePath(file);
        EXPECT_TRUE(kv::qt::SavePicture(*dialog.m_hWnd, path.toStdString()));
        return QImage(path);
    }
};

/// Number of the colours in a picture, up to a few.
int ColorsIn(const QImage& image) {
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colors.insert(image.pixel(x, y));
    }
    return static_cast<int>(colors.size());
}

TEST_F(Gallery, ShowsEveryKindOfControl) {
    Show(EveryKind());
    Fill();
    const QImage image = Picture("every_kind");
    // All of it, also of a dialog that scrolls, since the screen is too small for it.
    const QSize whole = kv::qt::CurrentScale().ToScreen(
        CSize{dialog.m_hWnd->Rect().Width(), dialog.m_hWnd->Rect().Height()});
    const QSize screen = Window()->screen()->availableGeometry().size();
    const bool fits = whole.width() < screen.width() && whole.height() < screen.height();
    EXPECT_EQ(image.size(), (fits ? Window()->size() : whole) * Window()->devicePixelRatio());
    EXPECT_GT(ColorsIn(image), 20);
}

TEST_F(Gallery, TakesALargerFontAsAWhole) {
    Show(EveryKind());
    Fill();
    const QSize before = Window()->size();
    const QFont former = QApplication::font();
    QFont larger = former;
    larger.setPointSizeF(former.pointSizeF() * 1.5);
    QApplication::setFont(larger);
    const QImage image = Picture("large_font");
    const int wanted = static_cast<int>(before.width() * 1.5);
    const int most = Window()->screen()->availableGeometry().width();
    EXPECT_NEAR(Window()->width(), std::min(wanted, most), before.width() * 0.1);
    EXPECT_GT(ColorsIn(image), 20);
    QApplication::setFont(former);
}

TEST_F(Gallery, TakesADarkPalette) {
    Show(EveryKind());
    Fill();
    const QPalette former = QApplication::palette();
    QApplication::setPalette(test::DarkPalette());
    const QImage image = Picture("dark");
    EXPECT_LT(qGray(image.pixel(2, image.height() - 2)), 80);
    QApplication::setPalette(former);
}

}  // namespace
