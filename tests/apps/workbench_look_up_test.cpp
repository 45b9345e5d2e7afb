// Look-ups behind the workbench that the person cancels: nothing false is told or kept of them.

#include <gmock/gmock.h>

#include <QTimer>
#include <filesystem>

#include "frame/kvdbkvn/db_util.h"
#include "support/endless_view.h"
#include "support/sqlite_file.h"
#include "window/blocked_windows.h"
#include "window/window_system.h"
#include "workbench/readouts/map_positions.h"
#include "workbench_window_fixture.h"

namespace workbench {
namespace {

using testing::IsEmpty;

constexpr const char* kArea = "43113";
constexpr const char* kBlock = "391";

/// On a database of the test's own, in which a table takes endlessly for a while.
class CancelledLookUp : public WorkbenchTest {
protected:
    CancelledLookUp() {
        std::filesystem::copy_file(std::getenv("KVGUICTL_SAMPLE_DB"), file);
        Open("sqlite:" + file);
        kv::SetPatience(std::chrono::milliseconds(50));
    }

    void MakeEndless(const std::string& table, const std::string& columns) const {
        test::RunOnSqliteFile(file, "alter table " + table + " rename to kept;" +
                                        test::EndlessView(table, columns, test::kTextCell));
    }
    void MakeShort(const std::string& table) const {
        test::RunOnSqliteFile(file, "drop view " + table + "; alter table kept rename to " + table);
    }
    /// Presses Cancel in each window of a query that takes long while `act` acts.
    template <typename Act>
    void Cancelling(const Act& act) {
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &look, [this] {
            const auto tops = kv::WindowSystem::Get().TopLevels();
            kv::Node& last = *tops.back();
            if (last.Text() != "Waiting for the Database") return;
            ++cancelled;
            QTest::mouseClick(kv::qt::WidgetOf(*last.FindChild(IDCANCEL)), Qt::LeftButton);
        });
        look.start(20);
        act();
    }

    const std::string file = folder.Native("sample.db");
    int cancelled = 0;
};

TEST_F(CancelledLookUp, OfThePickShowsAndTellsNothingAndTheNextRunLooksAgain) {
    Pick("GC", "200");
    MakeEndless("gulf_mexico_connam2", "areaname, stcode, area_abbr");
    Cancelling([this] { user->Click(kv::abe_bar::kRun); });
    EXPECT_EQ(cancelled, 1);
    EXPECT_THAT(failures, IsEmpty());
    EXPECT_TRUE(host->Canvas().GetPick().Empty());

    MakeShort("gulf_mexico_connam2");
    user->Click(kv::abe_bar::kRun);
    EXPECT_THAT(failures, IsEmpty());
    EXPECT_TRUE(host->Canvas().GetPick().block);
}

TEST_F(CancelledLookUp, OfAReportTellsNothing) {
    Pick("GC", "200");
    MakeEndless("gulf_mexico_connam2", "areaname, stcode, area_abbr");
    Cancelling([this] { Report("Wells"); });
    EXPECT_EQ(cancelled, 1);
    EXPECT_THAT(failures, IsEmpty());
    EXPECT_EQ(host->Results().Model().Table().RowCount(), 0);
}

TEST_F(CancelledLookUp, OfAProjectionIsNotKeptByTheReadouts) {
    MapPositions positions(
        host->Model(), [this](const QString& words) { failures.push_back(words.toStdString()); });
    const auto block = host->Model().FindPick({kArea}, kBlock).block;
    ASSERT_TRUE(block);
    const Place middle = ToPlace(block->Bounds().Middle());
    MakeEndless("gulf_mexico_area_projection", "areacode, projection, none");
    Cancelling([&] { EXPECT_EQ(positions.ProjectionAt(middle), 115) << "the UTM zone there"; });
    EXPECT_EQ(cancelled, 1);

    MakeShort("gulf_mexico_area_projection");
    EXPECT_EQ(positions.ProjectionAt(middle), CKvDbUtil::S_GetProjectionByArea(kArea, ""));
}

TEST_F(CancelledLookUp, OfAProjectionEndsPrintingWithoutAWord) {
    host->ShowOnMap({kArea}, kBlock);
    MakeEndless("gulf_mexico_area_projection", "areacode, projection, none");
    Cancelling([this] { MenuAction("Print...")->trigger(); });
    EXPECT_EQ(cancelled, 1);
    EXPECT_THAT(failures, IsEmpty());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
}  // namespace workbench
