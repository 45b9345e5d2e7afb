#include "mapbuild/projection_dialog.h"

#include "mapbuild/projection_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;
using namespace kv::projection_dialog;

namespace {

class ProjectionDialog : public test::ProjectionTest {
protected:
    CKvGuiProjectionDialog dialog{nullptr};
};

TEST_F(ProjectionDialog, OpensWithoutAProjection) {
    EXPECT_EQ(dialog.GetProjection(), -1);
    Run(dialog, [&](kv::User& user) {
        EXPECT_THAT(user.Selected(kProjection), IsEmpty());
        EXPECT_EQ(user.Rows(kProjection).size(), 8U);
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetProjection(), -1);
}

TEST_F(ProjectionDialog, OpensOnTheProjectionThatItIsGiven) {
    dialog.SetProjection(-4203);
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kProjection), "Zone: -4203: North Coast");
        EXPECT_THAT(user.Selected(kProjection), ElementsAre(8));
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetProjection(), -4203);
}

TEST_F(ProjectionDialog, GivesTheProjectionThatWasPicked) {
    EXPECT_EQ(Run(dialog,
                  [&](kv::User& user) {
                      user.Select(kProjection, "2   Texas South");
                      user.Click(IDOK);
                  }),
              IDOK);
    EXPECT_EQ(dialog.GetProjection(), 2);
}

TEST_F(ProjectionDialog, GivesTheProjectionThatWasPickedUnderMore) {
    dialog.SetProjection(115);
    ExpectPick(kv::proj_sel::kUtmSpheroids, "Clarke 1866");
    desktop.ExpectWindow("CKvGuiUTMZoneDlg", [](kv::User& zone) {
        EXPECT_EQ(zone.Text(kv::utm_zone::kZone), "15");
        zone.Type(kv::utm_zone::kZone, "18");
        zone.Click(IDOK);
    });
    Run(dialog, [&](kv::User& user) {
        user.Select(kProjection, "More...");
        EXPECT_EQ(user.Text(kProjection), "118 UTM");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetProjection(), 118);
}

TEST_F(ProjectionDialog, HasNoRectifyingPoint) {
    dialog.SetProjection(115);
    ExpectPick(kv::proj_sel::kStraightMercator, "Clarke 1866");
    desktop.ExpectWindow("CKvGuiUTMZoneDlg", [](kv::User& zone) {
        EXPECT_TRUE(zone.Checked(kv::utm_zone::kCenterOfMap));
        EXPECT_FALSE(zone.Checked(kv::utm_zone::kUserSpecified));
        zone.Click(IDOK);
    });
    Run(dialog, [&](kv::User& user) {
        user.Select(kProjection, "More...");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetProjection(), 199);
}

TEST_F(ProjectionDialog, CanBeRunAgain) {
    for (const char* row : {"114 UTM", "117 UTM"}) {
        Run(dialog, [&](kv::User& user) {
            user.Select(kProjection, row);
            user.Click(IDOK);
        });
    }
    EXPECT_EQ(dialog.GetProjection(), 117);
}

}  // namespace
