// Dialogs of this family as a host derives them.

#include "mapbuild/builders/map_rpt_proj_chooser.h"
#include "mapbuild/db_bounds_dlg.h"
#include "mapbuild/dms_dlg.h"
#include "mapbuild/projection_dialog.h"
#include "mapbuild/projection_fixture.h"
#include "mapbuild/utm_zone_dlg.h"
#include "support/exchanging_dialog.h"

namespace {

class DerivedDialogs : public test::ProjectionTest {
protected:
    template <typename Dialog>
    void ExpectExchange(Dialog& dialog) {
        Run(dialog, [&](kv::User& user) {
            EXPECT_EQ(dialog.shown, 1);
            user.Click(IDOK);
        });
        EXPECT_EQ(dialog.taken, 1);
    }
};

TEST_F(DerivedDialogs, ExchangeTheirDataAtTheStartAndAtOk) {
    test::Exchanging<CKvDbBoundsDlg> bounds;
    ExpectExchange(bounds);
    test::Exchanging<CKvGuiDMSDlg> angles("2", "1", true, nullptr);
    ExpectExchange(angles);
    test::Exchanging<CKvGuiProjectionDialog> projection(nullptr);
    ExpectExchange(projection);
    test::Exchanging<CKvGuiUTMZoneDlg> zone(nullptr);
    ExpectExchange(zone);
    test::Exchanging<CKvGuiMapRptProjChooser> chooser(nullptr);
    ExpectExchange(chooser);
}

}  // namespace
