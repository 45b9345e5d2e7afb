// Select from Map.

#include <map>
#include <utility>

#include "blocks/blk_ext_dlg.h"
#include "blocks/import_format.h"
#include "frame/catalogue.h"
#include "frame/graphics.h"
#include "frame/kvcom/cancelled.h"
#include "frame/kvcom/misc.h"
#include "frame/kvdbkvn/db_util.h"
#include "frame/kvdbkvn/table_owner.h"

namespace {

/// Takes the text up to the first comma, which goes with it; all of it where there is none.
std::string CutField(std::string_view& text) {
    const std::size_t comma = text.find(',');
    const std::string field(text.substr(0, comma));
    text.remove_prefix(comma == std::string_view::npos ? text.size() : comma + 1);
    return field;
}

}  // namespace

std::string CKvGuiBlkExtDlg::AreaOfName(const std::string& areaName) const {
    if (m_sFieldString == kv::catalogue::kColumnAreaCode) {
        return CKvDbUtil::S_GetArea(areaName, false);
    }
    if (m_sFieldString == kv::catalogue::kColumnMmsCode) {
        return CKvDbUtil::S_GetArea(areaName, true);
    }
    return areaName;
}

void CKvGuiBlkExtDlg::OnButtonImportmap() {
    std::string user;
    std::string password;
    std::string server;
    CKvMisc::GetParsedConnectString(user, password, server, true);
    const std::string owner = CKvTableOwner().GetTableOwner().str();
    const std::string picked = graphics(user, password, server, 1, "", owner);

    std::string_view rest = picked;
    for (int field = 0; field < 2; ++field) {
        if (rest.find(',') != std::string_view::npos) CutField(rest);
    }
    // Each area is looked up once, however many of its blocks were picked.
    std::map<std::string, std::string> areas;
    std::vector<kv::ImportedBlock> entries;
    try {
        const kv::db::CancelledLookUpsThrow asked;
        while (rest.size() > 1) {
            const std::string name = CutField(rest);
            const std::string block = CutField(rest);
            const auto [area, isNew] = areas.try_emplace(name);
            if (isNew) area->second = AreaOfName(name);
            entries.push_back({area->second, block + CutField(rest)});
        }
    } catch (const CKvCancelled&) {
        return;
    }
    AddEntries(std::move(entries));
    RefreshSelectedListBox();
}
