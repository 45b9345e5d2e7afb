#include "adaptors/adaptor.h"
#include "frame/kvcom/misc.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "records/create_user_table.h"
#include "records/create_user_table_ids.h"

namespace adaptors {

namespace {

void RunCreateUserTable(Run& run) {
    std::string user;
    std::string password;
    std::string server;
    CKvMisc::GetParsedConnectString(user, password, server, true);
    CKvDbInfo before(user.c_str(), password.c_str(), server.c_str());
    {
        CKvCreateUserTable dialog;
        run.result = dialog.DoModal();
    }
    CKvMisc::GetParsedConnectString(user, password, server, false);
    run.outcome = {{"user", user}, {"server", server}};
    CKvDbAbsDataMgr(KV_CONNECT_DEFAULT).SetDbInfo(before);
}

const Register kRegistered({
    "CKvCreateUserTable",
    "Record tools",
    "Create Table Dialog",
    "Make a table of comments on wells",
    kv::create_user_table::kTemplate,
    {},
    "user, server (the login that was in force in the end, without its password; the one before is "
    "put back)",
    RunCreateUserTable,
});

}  // namespace

}  // namespace adaptors
