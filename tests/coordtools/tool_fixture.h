#pragma once

#include <memory>
#include <string>
#include <vector>

#include "coordtools/angle_ids.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/module.h"
#include "support/dialog_fixture.h"
#include "support/temp_folder.h"
#include "support/zone_database.h"
#include "window/controls/edit.h"

namespace test {

/// A modeless tool, created as a host does, and a person at it.
template <typename Tool>
class ToolTest : public DialogTest {
protected:
    ToolTest() {
        InitControlDll();
        CKvDbInfo info("", "", ("sqlite:" + zones).c_str());
        CKvDbAbsDataMgr(1).SetDbInfo(info);
        tool.Create(tool.GetTemplateId());
        user = std::make_unique<kv::User>(
            *tool.m_hWnd, [this](const std::string& words) { desktop.Fail(words); });
    }
    ~ToolTest() override {
        if (!tool.m_hWnd) return;
        tool.CloseDlg();
        tool.DestroyWindow();
    }

    std::vector<std::string> Texts(const kv::coordtools::AngleIds& ids) {
        return {user->Text(ids.degrees.edit), user->Text(ids.minutes.edit),
                user->Text(ids.seconds.edit)};
    }
    /// Types an angle as degrees, minutes and seconds.
    void Type(const kv::coordtools::AngleIds& ids, const char* degrees, const char* minutes,
              const char* seconds) {
        user->Type(ids.degrees.edit, degrees);
        user->Type(ids.minutes.edit, minutes);
        user->Type(ids.seconds.edit, seconds);
    }
    /// Whether the tool's controls stand on an angle's boxes, which are plain ones without them.
    bool Held(const kv::coordtools::AngleIds& ids) const {
        const bool first = tool.m_hWnd->FindChild(ids.degrees.edit)->Handle() != nullptr;
        for (const kv::coordtools::BoxIds& box : {ids.degrees, ids.minutes, ids.seconds}) {
            for (const int id : {box.edit, box.spin}) {
                EXPECT_EQ(tool.m_hWnd->FindChild(id)->Handle() != nullptr, first) << id;
            }
        }
        return first;
    }
    bool ReadOnly(int id) const { return (tool.GetDlgItem(id)->GetStyle() & ES_READONLY) != 0; }
    bool ReadOnly(const kv::coordtools::AngleIds& ids) const {
        const bool first = ReadOnly(ids.degrees.edit);
        for (const kv::coordtools::BoxIds& box : {ids.degrees, ids.minutes, ids.seconds}) {
            EXPECT_EQ(ReadOnly(box.edit), first) << box.edit;
            EXPECT_EQ(tool.GetDlgItem(box.spin)->IsWindowEnabled() == 0, first) << box.spin;
        }
        return first;
    }

    TempFolder folder;
    std::string zones = MakeZoneDatabase(folder.Native("zones.db"));
    Tool tool{nullptr};
    std::unique_ptr<kv::User> user;
};

}  // namespace test
