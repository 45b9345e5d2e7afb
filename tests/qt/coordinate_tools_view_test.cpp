// The coordinate tools in real windows, in both forms of an angle. Their pictures are kept.

#include <QFontMetrics>
#include <QImage>

#include "coordtools/converter_dialog.h"
#include "coordtools/converter_ids.h"
#include "coordtools/nad_convert_dlg.h"
#include "coordtools/nad_convert_ids.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/module.h"
#include "qt_fixture.h"
#include "support/temp_folder.h"
#include "support/zone_database.h"
#include "window/drawing/gdi_objects.h"

namespace {

using kv::coordtools::AngleIds;

constexpr double kLat = 28.504236;
constexpr double kLon = -91.25;

class CoordinateTools : public ::testing::Test {
protected:
    CoordinateTools() {
        InitControlDll();
        const std::string zones = test::MakeZoneDatabase(folder.Native("zones.db"));
        CKvDbInfo info("", "", ("sqlite:" + zones).c_str());
        CKvDbAbsDataMgr(1).SetDbInfo(info);
    }

    template <typename Tool>
    void Open(Tool& tool) {
        ASSERT_TRUE(tool.Create(tool.GetTemplateId()));
        user = std::make_unique<kv::User>(*tool.m_hWnd,
                                          [](const std::string& words) { FAIL() << words; });
        tool.ResetToDefault();
    }
    static QWidget* WidgetOf(const CDialog& tool, int id) {
        return kv::qt::WidgetOf(*tool.m_hWnd->FindChild(id));
    }
    /// Saves the tool's picture and reads it back.
    static QImage Picture(const CDialog& tool, const QString& name) {
        QApplication::processEvents();
        const QString path = test::PicturePath(name);
        EXPECT_TRUE(kv::qt::SavePicture(*tool.m_hWnd, path.toStdString()));
        return QImage(path);
    }

    static void ExpectParts(const CDialog& tool, const AngleIds& ids) {
        for (const auto& box : {ids.degrees, ids.minutes, ids.seconds}) {
            EXPECT_TRUE(WidgetOf(tool, box.edit)->isVisible()) << box.edit;
            EXPECT_TRUE(WidgetOf(tool, box.spin)->isVisible()) << box.spin;
            EXPECT_TRUE(WidgetOf(tool, box.label)->isVisible()) << box.label;
            ExpectNoneOverlaps(tool, box.edit, box.label);
        }
        ExpectNoneOverlaps(tool, ids.degrees.label, ids.minutes.edit);
        ExpectNoneOverlaps(tool, ids.minutes.label, ids.seconds.edit);
    }
    static void ExpectOneNumber(const CDialog& tool, const AngleIds& ids) {
        for (const auto& box : {ids.minutes, ids.seconds}) {
            EXPECT_FALSE(WidgetOf(tool, box.edit)->isVisible()) << box.edit;
            EXPECT_FALSE(WidgetOf(tool, box.spin)->isVisible()) << box.spin;
            EXPECT_FALSE(WidgetOf(tool, box.label)->isVisible()) << box.label;
        }
        ExpectNoneOverlaps(tool, ids.degrees.edit, ids.degrees.spin);
        ExpectNoneOverlaps(tool, ids.degrees.spin, ids.degrees.label);
        const QWidget* label = WidgetOf(tool, ids.degrees.label);
        EXPECT_LE(label->fontMetrics().horizontalAdvance("Degree.Degree"), label->width());
        // The number as a whole is to be seen.
        const QWidget* edit = WidgetOf(tool, ids.degrees.edit);
        EXPECT_LE(edit->fontMetrics().horizontalAdvance("-179.123456"), edit->width() - 8);
        EXPECT_LE(label->geometry().right(), WidgetOf(tool, ids.seconds.label)->geometry().right());
    }
    static void ExpectNoneOverlaps(const CDialog& tool, int left, int right) {
        EXPECT_LE(WidgetOf(tool, left)->geometry().right(),
                  WidgetOf(tool, right)->geometry().left())
            << left << " " << right;
    }

    kv::qt::QtDesktop desktop;
    test::TempFolder folder;
    std::unique_ptr<kv::User> user;
};

TEST_F(CoordinateTools, TheConverterShowsBothForms) {
    using namespace kv::converter;
    CKvConverterDialog tool(nullptr);
    Open(tool);
    tool.SetPosition(kLat, kLon);
    const QImage parts = Picture(tool, "CKvConverterDialog.png");
    ExpectParts(tool, kLatitude);
    ExpectParts(tool, kLongitude);
    user->Select(kFormat, "degree");
    const QImage number = Picture(tool, "CKvConverterDialog_degree.png");
    ExpectOneNumber(tool, kLatitude);
    ExpectOneNumber(tool, kLongitude);
    EXPECT_EQ(parts.size(), number.size());
    EXPECT_NE(parts, number);
    user->Select(kFormat, "d/m/s");
    ExpectParts(tool, kLatitude);
    tool.CloseDlg();
    tool.DestroyWindow();
}

TEST_F(CoordinateTools, TheListsOfUnitsHaveTheirRemarkAsAToolTip) {
    using namespace kv::converter;
    CKvConverterDialog tool(nullptr);
    Open(tool);
    for (const int id : {kUnit, kFromUnit, kToUnit}) {
        EXPECT_TRUE(WidgetOf(tool, id)->toolTip().contains("US survey feet")) << id;
    }
    EXPECT_EQ(WidgetOf(tool, kFormat)->toolTip(), "");
    tool.GetDlgItem(kFormat)->m_hWnd->SetToolTip("How angles are shown");
    EXPECT_EQ(WidgetOf(tool, kFormat)->toolTip(), "How angles are shown");
    tool.CloseDlg();
    tool.DestroyWindow();
}

TEST_F(CoordinateTools, ABoxHasTheFontThatItIsGiven) {
    using namespace kv::converter;
    CKvConverterDialog tool(nullptr);
    Open(tool);
    const QFont own = WidgetOf(tool, kX)->font();
    CFont font;
    font.CreatePointFont(240, "Courier");
    tool.GetDlgItem(kX)->SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font.GetSafeHandle()),
                                     TRUE);
    EXPECT_EQ(WidgetOf(tool, kX)->font().family(), "Courier");
    EXPECT_GT(WidgetOf(tool, kX)->font().pixelSize(), 0);
    EXPECT_EQ(WidgetOf(tool, kY)->font(), own);
    tool.GetDlgItem(kX)->SendMessage(WM_SETFONT, 0, TRUE);
    EXPECT_EQ(WidgetOf(tool, kX)->font(), own);
    tool.CloseDlg();
    tool.DestroyWindow();
}

TEST_F(CoordinateTools, TheDatumConverterShowsBothFormsInEachPanel) {
    using namespace kv::nad_convert;
    CKvNadConvertDlg tool(nullptr);
    Open(tool);
    user->Paste(kLatitude27.degrees.edit, "28.504236, -91.25");
    const QImage parts = Picture(tool, "CKvNadConvertDlg.png");
    for (const AngleIds& ids : {kLatitude27, kLongitude27, kLatitude83, kLongitude83})
        ExpectParts(tool, ids);
    user->Select(kFormat27, "degree");
    ExpectOneNumber(tool, kLatitude27);
    ExpectParts(tool, kLatitude83);
    user->Select(kFormat83, "degree");
    const QImage number = Picture(tool, "CKvNadConvertDlg_degree.png");
    for (const AngleIds& ids : {kLatitude27, kLongitude27, kLatitude83, kLongitude83})
        ExpectOneNumber(tool, ids);
    EXPECT_NE(parts, number);
    tool.CloseDlg();
    tool.DestroyWindow();
}

}  // namespace
