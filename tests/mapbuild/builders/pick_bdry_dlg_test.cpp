#include "mapbuild/builders/pick_bdry_dlg.h"

#include "mapbuild/builders/map_fixture.h"
#include "window/window_system.h"

using namespace kv::quick_bld;
using test::ExpectNear;

namespace {

class PickBdryDlg : public test::MapTest {
protected:
    PickBdryDlg() {
        std::vector<std::string> picks{"GC#500"};
        dialog.SetIDs(picks);
        dialog.SetMode(1, 0, 0);
    }

    CKvPickBdryDlg dialog{nullptr};
};

TEST_F(PickBdryDlg, ShowsAnglesSizesAndProjectionAlone) {
    Run(dialog, [](kv::User& user) {
        EXPECT_EQ(user.Window().WindowText(), "Export Pick Boundary Dialog");
        for (const int id : {kMapBasics, kMapNameLabel, kMapName, kXYBounded, kLatLonBounded, kFeet,
                             kMeters, kXMin, kXMax, kYMin, kYMax, kXMinLabel, kYMinLabel,
                             kXMaxLabel, kYMaxLabel, kSizingOptions, kSnapBounds}) {
            EXPECT_TRUE(user.HasControl(id)) << id;
            EXPECT_FALSE(user.Visible(id)) << id;
        }
        for (const int id : kAngleBoxes)
            EXPECT_TRUE(user.Visible(id)) << id;
        for (const int id :
             std::initializer_list<int>{kWidth, kHeight, kPercent, kProjection, IDOK, IDCANCEL})
            EXPECT_TRUE(user.Visible(id)) << id;
    });
}

TEST_F(PickBdryDlg, HidesThemAlsoWhereATemplateShowsThem) {
    Run(dialog, [&](kv::User& user) {
        dialog.GetDlgItem(kMapName)->ShowWindow(SW_SHOW);
        dialog.GetDlgItem(kXMax)->ShowWindow(SW_SHOW);
        dialog.HideExtraControls();
        EXPECT_FALSE(user.Visible(kMapName));
        EXPECT_FALSE(user.Visible(kXMax));
    });
}

TEST_F(PickBdryDlg, GivesTheBoundsOfThePicksEnlarged) {
    EXPECT_EQ(Run(dialog,
                  [&](kv::User& user) {
                      ExpectNear(ShownAngles(user), {27.30, 27.45, -90.70, -90.55}, kShownAngle);
                      user.Select(kWidth, "1");
                      user.Select(kHeight, "1");
                      user.Select(kPercent, "100");
                      user.Click(IDOK);
                  }),
              IDOK);
    EXPECT_TRUE(dialog.GetTermination());
    const CMinMax2Dd_t bounds = dialog.GetLLMapBounds();
    ExpectNear(bounds, {-90.70, -90.55, 27.30, 27.45}, 1e-9);
}

TEST_F(PickBdryDlg, APickedProjectionIsTakenAndTheDialogComesToTheFront) {
    test::TestTemplate other({test::Row(11, kv::ControlKind::kEdit)});
    test::RecordingDialog beside;
    beside.Create(test::kTestTemplate);
    Run(dialog, [&](kv::User& user) {
        user.Focus(kWidth);
        kv::WindowSystem::Get().SetFocusQuietly(nullptr);
        dialog.OnCmdMsg(kProjection, CBN_SELCHANGE, nullptr, nullptr);
        EXPECT_EQ(test::FocusedId(), kWidth);
        user.Select(kProjection, "116 UTM");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetProjection(), 116);
    beside.DestroyWindow();
}

TEST_F(PickBdryDlg, OnshoreItKeepsItsCaption) {
    dialog.ResetABEVec();
    dialog.SetBlock("48167");
    dialog.SetTemplateType(KV_TEMPLATE_ONSHORE);
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Window().WindowText(), "Export Pick Boundary Dialog");
        ExpectNear(ShownAngles(user), {29.05, 29.6, -95.23, -94.37}, kShownAngle);
    });
}

}  // namespace
