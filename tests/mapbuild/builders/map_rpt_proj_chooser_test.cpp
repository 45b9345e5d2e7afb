#include "mapbuild/builders/map_rpt_proj_chooser.h"

#include "frame/module.h"
#include "mapbuild/builders/map_rpt_proj_chooser_ids.h"
#include "support/dialog_fixture.h"

using namespace kv::rpt_proj;

namespace {

class MapRptProjChooser : public test::DialogTest {
protected:
    MapRptProjChooser() { InitControlDll(); }

    CKvGuiMapRptProjChooser dialog{nullptr};
};

TEST_F(MapRptProjChooser, BeginsWithTheMapsProjection) {
    Run(dialog, [](kv::User& user) {
        EXPECT_EQ(user.Window().WindowText(), "Choose Projection");
        EXPECT_TRUE(user.Checked(kMapProjection));
        EXPECT_FALSE(user.Checked(kBaseProjection));
        EXPECT_FALSE(user.HasControl(IDCANCEL));
        user.Click(IDOK);
    });
    EXPECT_TRUE(dialog.GetRptUseMapProjFlag());
}

TEST_F(MapRptProjChooser, KeepsAFlagThatIsFalse) {
    dialog.SetRptUseMapProjFlag(false);
    Run(dialog, [](kv::User& user) {
        EXPECT_FALSE(user.Checked(kMapProjection));
        EXPECT_TRUE(user.Checked(kBaseProjection));
        user.Click(IDOK);
    });
    EXPECT_FALSE(dialog.GetRptUseMapProjFlag());
}

TEST_F(MapRptProjChooser, TakesTheChoiceAtOKOnly) {
    EXPECT_EQ(Run(dialog,
                  [](kv::User& user) {
                      user.Click(kBaseProjection);
                      user.Key(0, "Escape");
                  }),
              IDCANCEL);
    EXPECT_TRUE(dialog.GetRptUseMapProjFlag());
    EXPECT_EQ(Run(dialog,
                  [](kv::User& user) {
                      user.Click(kBaseProjection);
                      user.Click(IDOK);
                  }),
              IDOK);
    EXPECT_FALSE(dialog.GetRptUseMapProjFlag());
}

}  // namespace
