#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

#include "base/numbers.h"
#include "coordtools/converter_ids.h"
#include "frame/module.h"
#include "qt/qt_desktop.h"
#include "window/acting/user.h"
#include "window/window_system.h"
#include "workbench/workbench.h"
#include "workbench_fixture.h"

namespace workbench {
namespace {

using namespace kv::converter;

constexpr const char* kConverter = "CKvConverterDialog";

/// The workbench with the map of the sample, and its tools.
class WorkbenchTools : public test::SampleTest {
protected:
    WorkbenchTools() {
        InitControlDll();
        host = std::make_unique<Workbench>(CKvDbInfo("", "", test::SampleServer().c_str()));
        host->SetFailureShown([](const QString& message) { FAIL() << message.toStdString(); });
        QSignalSpy painted(host.get(), &Workbench::FirstPainted);
        host->Show();
        while (painted.isEmpty())
            QApplication::processEvents();
        host->Runner().Finish();
    }
    ~WorkbenchTools() override {
        host.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void Choose(const char* className) {
        auto* action = host->Window().findChild<QAction*>(QString::fromLatin1(className));
        ASSERT_TRUE(action);
        action->trigger();
        QApplication::processEvents();
    }
    CDialog& Tool(const char* className) { return *host->Tools().Find(className)->Window(); }
    /// Clicks the map; answers the place.
    Place ClickMap(QPoint at) {
        QTest::mouseClick(&host->Canvas(), Qt::LeftButton, {}, at);
        return ToPlace(host->Canvas().View().ToMap({1.0 * at.x(), 1.0 * at.y()}));
    }
    std::string Decimal(CDialog& tool, const kv::coordtools::AngleIds& ids) {
        return tool.DlgItemText(ids.degrees.edit);
    }

    kv::qt::QtDesktop desktop;
    std::unique_ptr<Workbench> host;
};

TEST_F(WorkbenchTools, AConverterStandsOpenAndTheMapCanStillBeUsed) {
    EXPECT_EQ(host->Tools().Find(kConverter), nullptr);
    Choose(kConverter);
    EXPECT_TRUE(Tool(kConverter).IsWindowVisible());
    EXPECT_TRUE(host->Frame().IsWindowEnabled());
    EXPECT_TRUE(kv::WindowSystem::Get().Modals().empty());
    EXPECT_EQ(Tool(kConverter).GetParent(), &host->Frame());
}

TEST_F(WorkbenchTools, AClickOnTheMapIsHandedToTheConverter) {
    Choose(kConverter);
    CDialog& tool = Tool(kConverter);
    kv::User user(*tool.m_hWnd, [](const std::string& words) { FAIL() << words; });
    user.Select(kFormat, "degree");
    const Place place = ClickMap({150, 120});
    EXPECT_EQ(Decimal(tool, kLatitude), kv::FormatFixed(place.lat, 6));
    EXPECT_EQ(Decimal(tool, kLongitude), kv::FormatFixed(place.lon, 6));
    EXPECT_NE(tool.DlgItemText(kX), "");
    const std::string first = tool.DlgItemText(kX);
    ClickMap({250, 120});
    EXPECT_GT(kv::Atof(tool.DlgItemText(kX)), kv::Atof(first));
}

TEST_F(WorkbenchTools, AHiddenConverterKeepsItsValuesUntilItIsShownAgain) {
    Choose(kConverter);
    CDialog& tool = Tool(kConverter);
    kv::User user(*tool.m_hWnd, [](const std::string& words) { FAIL() << words; });
    ClickMap({150, 120});
    const std::string x = tool.DlgItemText(kX);
    user.Click(IDOK);
    EXPECT_FALSE(tool.IsWindowVisible());
    ClickMap({250, 220});
    EXPECT_EQ(tool.DlgItemText(kX), x);
    Choose(kConverter);
    EXPECT_TRUE(tool.IsWindowVisible());
    EXPECT_EQ(tool.DlgItemText(kX), x);
}

TEST_F(WorkbenchTools, ADragOfTheMapHandsNothing) {
    Choose(kConverter);
    CDialog& tool = Tool(kConverter);
    QTest::mousePress(&host->Canvas(), Qt::LeftButton, {}, {150, 120});
    QMouseEvent move(QEvent::MouseMove, QPointF(220, 160), QPointF(220, 160), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(&host->Canvas(), &move);
    QTest::mouseRelease(&host->Canvas(), Qt::LeftButton, {}, {220, 160});
    EXPECT_EQ(tool.DlgItemText(kX), "");
}

TEST_F(WorkbenchTools, BothConvertersStandOpenAtOnce) {
    Choose(kConverter);
    Choose("CKvNadConvertDlg");
    EXPECT_TRUE(Tool(kConverter).IsWindowVisible());
    EXPECT_TRUE(Tool("CKvNadConvertDlg").IsWindowVisible());
}

TEST_F(WorkbenchTools, GoWithTheMainWindow) {
    Choose(kConverter);
    host->Frame().DestroyWindow();
    EXPECT_EQ(host->Tools().Find(kConverter)->Window(), nullptr);
}

}  // namespace
}  // namespace workbench
