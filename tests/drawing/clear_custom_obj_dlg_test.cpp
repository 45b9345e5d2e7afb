#include "drawing/clear_custom_obj_dlg.h"

#include <vector>

#include "drawing/clear_custom_obj_ids.h"
#include "frame/module.h"
#include "support/exchanging_dialog.h"

using namespace kv::clear_custom_obj;
using testing::ElementsAre;

namespace {

class ClearCustomObjDlg : public test::DialogTest {
protected:
    ClearCustomObjDlg() { InitControlDll(); }
    std::vector<bool> Flags() const {
        return {dialog.GetClearTextFlg(), dialog.GetClearPolyFlg(), dialog.GetClearColorFillFlg()};
    }
    static std::vector<bool> Boxes(kv::User& user) {
        return {user.Checked(kTexts), user.Checked(kPolygons), user.Checked(kColorFills)};
    }

    CKvGuiClearCustomObjDlg dialog;
};

TEST_F(ClearCustomObjDlg, ShowsNothingCheckedOfItself) {
    Run(dialog, [](kv::User& user) {
        EXPECT_EQ(user.Window().WindowText(), "Clear Customized Graphics");
        EXPECT_THAT(Boxes(user), ElementsAre(false, false, false));
        for (const int id : {kTexts, kPolygons, kColorFills})
            EXPECT_TRUE(user.Enabled(id)) << id;
    });
}

TEST_F(ClearCustomObjDlg, EachFlagHasItsBoxBothWays) {
    const int boxes[] = {kTexts, kPolygons, kColorFills};
    for (std::size_t own = 0; own < 3; ++own) {
        dialog.SetClearTextFlg(own == 0);
        dialog.SetClearPolyFlg(own == 1);
        dialog.SetClearColorFillFlg(own == 2);
        std::vector<bool> expected(3, false);
        expected[own] = true;
        const int result = Run(dialog, [&](kv::User& user) {
            EXPECT_EQ(Boxes(user), expected);
            user.Click(boxes[own]);
            user.Click(boxes[(own + 1) % 3]);
            user.Click(IDOK);
        });
        EXPECT_EQ(result, IDOK);
        std::vector<bool> clicked(3, false);
        clicked[(own + 1) % 3] = true;
        EXPECT_EQ(Flags(), clicked);
    }
}

TEST_F(ClearCustomObjDlg, WithNothingCheckedOkIsStillOk) {
    dialog.SetClearTextFlg(true);
    const int result = Run(dialog, [](kv::User& user) {
        user.Click(kTexts);
        user.Key(0, "Enter");
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_THAT(Flags(), ElementsAre(false, false, false));
}

TEST_F(ClearCustomObjDlg, ADerivedOneExchangesItsDataAtTheStartAndAtOk) {
    test::Exchanging<CKvGuiClearCustomObjDlg> own;
    Run(own, [&](kv::User& user) {
        EXPECT_EQ(own.shown, 1);
        user.Click(IDOK);
    });
    EXPECT_EQ(own.taken, 1);
}

TEST_F(ClearCustomObjDlg, CancelLeavesTheFlags) {
    dialog.SetClearPolyFlg(true);
    const int result = Run(dialog, [](kv::User& user) {
        user.Click(kTexts);
        user.Click(kPolygons);
        user.Key(0, "Escape");
    });
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_THAT(Flags(), ElementsAre(false, true, false));
}

}  // namespace
