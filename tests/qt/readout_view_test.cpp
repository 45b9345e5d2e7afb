// The readouts in real windows. Their pictures are kept.

#include <QImage>
#include <QLineEdit>

#include "coordtools/coord_dialog.h"
#include "coordtools/coord_ids.h"
#include "coordtools/distance_dialog.h"
#include "coordtools/distance_ids.h"
#include "dark_palette.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/module.h"
#include "qt_fixture.h"
#include "support/temp_folder.h"
#include "support/zone_database.h"

namespace {

namespace coord = kv::coord_dialog;
namespace dist = kv::distance_dialog;

class ReadoutView : public ::testing::Test {
protected:
    ReadoutView() {
        InitControlDll();
        const std::string zones = test::MakeZoneDatabase(folder.Native("zones.db"));
        CKvDbInfo info("", "", ("sqlite:" + zones).c_str());
        CKvDbAbsDataMgr(1).SetDbInfo(info);
        coordinates.Create(coord::kTemplate);
        distance.Create(dist::kTemplate);
        QApplication::processEvents();
    }
    ~ReadoutView() override {
        coordinates.CloseDlg();
        coordinates.DestroyWindow();
        distance.CloseDlg();
        distance.DestroyWindow();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void FeedCoordinates() {
        coordinates.DialogUpdateText(2'212'345.67, 10'346'789.01, 115, "feet");
    }
    void FeedDistance() {
        distance.DialogUpdateText(2'212'345.67, 10'346'789.01, 2'215'345.67, 10'350'789.01, 115,
                                  "feet");
    }
    template <typename Widget = QWidget>
    static Widget* WidgetOf(const CDialog& dialog, int id) {
        return dynamic_cast<Widget*>(kv::qt::WidgetOf(*dialog.m_hWnd->FindChild(id)));
    }
    static QWidget* WindowOf(const CDialog& dialog) { return kv::qt::WidgetOf(*dialog.m_hWnd); }
    static QImage Picture(const CDialog& dialog, const QString& name) {
        QApplication::processEvents();
        const QString file =
            QStringLiteral("%1_x%2.png").arg(name).arg(WindowOf(dialog)->devicePixelRatio());
        const QString path = test::PicturePath(file);
        EXPECT_TRUE(kv::qt::SavePicture(*dialog.m_hWnd, path.toStdString()));
        return QImage(path);
    }
    /// In light and in dark, of the same size.
    static void Pictures(const CDialog& dialog, const QString& name) {
        const QPalette light = QApplication::palette();
        const QImage image = Picture(dialog, name);
        QApplication::setPalette(test::DarkPalette());
        const QImage dark = Picture(dialog, name + "_dark");
        QApplication::setPalette(light);
        EXPECT_EQ(image.size(), dark.size());
        EXPECT_NE(image, dark);
    }
    /// The whole text of a box is to be seen.
    static void ExpectTextFits(const CDialog& dialog, int id) {
        const auto* edit = WidgetOf<QLineEdit>(dialog, id);
        ASSERT_TRUE(edit) << id;
        EXPECT_NE(edit->text(), "") << id;
        EXPECT_LE(edit->fontMetrics().horizontalAdvance(edit->text()), edit->width() - 8) << id;
    }
    kv::User At(CDialog& dialog) {
        return {*dialog.m_hWnd, [](const std::string& words) { FAIL() << words; }};
    }

    test::TempFolder folder;
    kv::qt::QtDesktop desktop;
    CKvCoordDialog coordinates{nullptr};
    CKvDistanceDialog distance{nullptr, nullptr};
};

TEST_F(ReadoutView, ThePositionIsShownAsAWhole) {
    FeedCoordinates();
    for (const int id : {coord::kX, coord::kY, coord::kMapProjection, coord::kLatitude.seconds.edit,
                         coord::kLongitude.degrees.edit})
        ExpectTextFits(coordinates, id);
    EXPECT_EQ(WidgetOf<QLineEdit>(coordinates, coord::kX)->text(), "2212345.67");
    EXPECT_TRUE(WidgetOf<QLineEdit>(coordinates, coord::kX)->isReadOnly());
    Pictures(coordinates, "CKvCoordDialog");
    At(coordinates).Select(coord::kFormat, "degree.degree");
    ExpectTextFits(coordinates, coord::kLongitude.degrees.edit);
    Pictures(coordinates, "CKvCoordDialog_degree");
}

TEST_F(ReadoutView, TheLineIsShownAsAWhole) {
    FeedDistance();
    for (const int id :
         {dist::kDistance, dist::kOffsetX, dist::kOffsetY, dist::kStartX, dist::kStartY,
          dist::kEndX, dist::kEndY, dist::kMapProjection, dist::kEndLongitude.seconds.edit})
        ExpectTextFits(distance, id);
    EXPECT_EQ(WidgetOf<QLineEdit>(distance, dist::kDistance)->text(), "5000.00");
    Pictures(distance, "CKvDistanceDialog");
    At(distance).Select(dist::kFormat, "degree");
    At(distance).Select(dist::kUserProjection, "3   Louisiana South");
    ExpectTextFits(distance, dist::kEndLongitude.degrees.edit);
    Pictures(distance, "CKvDistanceDialog_degree");
}

/// Counts how often a window is put in front of others.
class Raises : public QObject {
public:
    explicit Raises(QWidget* window) { window->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::ZOrderChange) ++count;
        return false;
    }
    int count = 0;
};

TEST_F(ReadoutView, AFeedBringsTheWindowUpOnceAndLeavesTheKeys) {
    QWidget* front = WindowOf(distance);
    ASSERT_TRUE(QTest::qWaitForWindowActive(front));
    Raises raises(WindowOf(coordinates));
    FeedCoordinates();
    FeedCoordinates();
    EXPECT_EQ(raises.count, 1);
    EXPECT_TRUE(front->isActiveWindow());
    FeedDistance();
    FeedCoordinates();
    EXPECT_EQ(raises.count, 2);
    EXPECT_TRUE(front->isActiveWindow());
}

TEST_F(ReadoutView, AFeedShowsNoHiddenWindow) {
    kv::input::CloseWindow(*coordinates.m_hWnd);
    EXPECT_FALSE(WindowOf(coordinates)->isVisible());
    FeedCoordinates();
    EXPECT_FALSE(WindowOf(coordinates)->isVisible());
    coordinates.ShowWindow(SW_SHOW);
    EXPECT_TRUE(WindowOf(coordinates)->isVisible());
    EXPECT_EQ(WidgetOf<QLineEdit>(coordinates, coord::kX)->text(), "2212345.67");
}

TEST_F(ReadoutView, ItsUnitsTellWhatAFootIs) {
    EXPECT_TRUE(WidgetOf(coordinates, coord::kUnit)->toolTip().contains("US survey feet"));
    EXPECT_TRUE(WidgetOf(distance, dist::kUnit)->toolTip().contains("US survey feet"));
}

}  // namespace
