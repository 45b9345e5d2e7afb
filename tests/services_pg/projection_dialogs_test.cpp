// What the projection dialogs show of the sample's zones, on every engine.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "frame/module.h"
#include "mapbuild/proj_ctrl.h"
#include "mapbuild/proj_sel.h"
#include "mapbuild/proj_sel_ids.h"
#include "services/kvcom/projection_zones.h"
#include "services/kvdbkvn/session_pool.h"
#include "support/database_helpers.h"
#include "support/postgres_database.h"
#include "window/acting/headless_desktop.h"
#include "window/window_system.h"

namespace test {
namespace {

using kv::coord::Zone;
using namespace kv::proj_sel;

enum class Engine { kSqlite, kPostgres, kSqliteOverOdbc, kPostgresOverOdbc };

const char* NameOf(Engine engine) {
    switch (engine) {
        case Engine::kSqlite:
            return "Sqlite";
        case Engine::kPostgres:
            return "Postgres";
        case Engine::kSqliteOverOdbc:
            return "SqliteOverOdbc";
        default:
            return "PostgresOverOdbc";
    }
}

void PrintTo(Engine engine, std::ostream* out) {
    *out << NameOf(engine);
}

std::string ServerOf(Engine engine) {
    switch (engine) {
        case Engine::kSqlite:
            return std::string("sqlite:") + SAMPLE_DATABASE;
        case Engine::kPostgres:
            return SamplePostgresUrl();
        case Engine::kSqliteOverOdbc:
            return std::string("odbc:Driver=SQLite3;Database=") + SAMPLE_DATABASE;
        default:
            return "odbc:Driver=PostgreSQL Unicode;Servername=" +
                   SocketFolderOf(SamplePostgresUrl()) + ";Database=" + kSampleDatabase + ";UID=kv";
    }
}

/// A line of the list, and the code that it gives.
struct Line {
    std::string text;
    int code;
};

std::vector<Line> LinesOf(const std::vector<std::string>& categories) {
    std::vector<Line> lines;
    for (const Zone& zone : kv::coord::Zones()) {
        if (std::ranges::find(categories, zone.category) == categories.end()) continue;
        const bool spheroid = zone.category == std::string("utm_spheroids");
        const std::string name = zone.description;
        lines.push_back(
            {spheroid ? name : "Zone: " + std::to_string(zone.code) + ": " + name, zone.code});
    }
    return lines;
}

std::vector<Line> StatePlaneLines() {
    std::vector<const Zone*> zones;
    for (const Zone& zone : kv::coord::Zones()) {
        if (zone.statePlaneCode != 0) zones.push_back(&zone);
    }
    std::ranges::stable_sort(zones, {},
                             [](const Zone* zone) { return std::string(zone->description); });
    std::vector<Line> lines;
    for (const Zone* zone : zones) {
        const int code = -zone->statePlaneCode;
        lines.push_back({"Zone: " + std::to_string(code) + ": " + zone->description, code});
    }
    return lines;
}

class ProjectionDialogsOnTheSample : public testing::TestWithParam<Engine> {
protected:
    ProjectionDialogsOnTheSample() {
        InitControlDll();
        kv::WindowSystem::Get().SetDesktop(&desktop_);
        ConnectTo(CKvDbInfo("", "", ServerOf(GetParam()).c_str()));
    }
    ~ProjectionDialogsOnTheSample() override { kv::db::SessionPool::Instance().Clear(); }

    /// The rows under a type of projection, and the code of the last of them.
    void ExpectList(int radio, const std::vector<Line>& expected) {
        ASSERT_FALSE(expected.empty());
        desktop_.ExpectWindow("CKvGuiProjSel", [&](kv::User& user) {
            user.Click(radio);
            std::vector<std::string> texts;
            for (const Line& line : expected)
                texts.push_back(line.text);
            EXPECT_EQ(user.Rows(kList), texts);
            user.Select(kList, texts.back());
            user.Click(radio == kUtmSpheroids || radio == kStraightMercator ? IDCANCEL : IDOK);
        });
        CKvGuiProjSel dialog(0, nullptr);
        if (dialog.DoModal() == IDOK) {
            EXPECT_EQ(dialog.m_nProjection, expected.back().code);
        }
    }

    kv::HeadlessDesktop desktop_;
};

TEST_P(ProjectionDialogsOnTheSample, ListTheZonesOfEachType) {
    ExpectList(kStateLambert, LinesOf({"state_lambert"}));
    ExpectList(kStateTransverseMercator, LinesOf({"state_trans_mercator"}));
    ExpectList(kMiscLambert, LinesOf({"misc_lambert"}));
    ExpectList(kMiscTransverseMercator, LinesOf({"misc_trans_mercator"}));
    ExpectList(kUtmSpheroids, LinesOf({"utm_spheroids"}));
    ExpectList(kMiscOther, LinesOf({"misc_boone", "misc_cassini", "misc_other"}));
    ExpectList(kStatePlane, StatePlaneLines());
    ExpectList(kStraightMercator, LinesOf({"utm_spheroids"}));
}

TEST_P(ProjectionDialogsOnTheSample, DescribeEachCode) {
    for (const Zone& zone : kv::coord::Zones()) {
        const std::string name = zone.description;
        const std::string code = std::to_string(zone.code);
        const bool spheroid = zone.category == std::string("utm_spheroids");
        EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(zone.code),
                  spheroid ? "Zone: 0: " + name : "Zone : " + code + ": " + name);
        if (spheroid) {
            EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(zone.code + 15), "Zone: 15: " + name);
        }
    }
    for (const Line& line : StatePlaneLines())
        EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(line.code), line.text);
}

INSTANTIATE_TEST_SUITE_P(, ProjectionDialogsOnTheSample,
                         testing::Values(Engine::kSqlite, Engine::kPostgres,
                                         Engine::kSqliteOverOdbc, Engine::kPostgresOverOdbc),
                         [](const auto& each) { return NameOf(each.param); });

}  // namespace
}  // namespace test
