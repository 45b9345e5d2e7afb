// A primary and a standby that follows it: what people notice when the primary dies.

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <stdexcept>
#include <string>

#include "base/text.h"
#include "frame/module.h"
#include "qualifiers/list_sel.h"
#include "qualifiers/list_sel_ids.h"
#include "services/kvdbkvn/session_pool.h"
#include "support/database_helpers.h"
#include "support/dialog_fixture.h"
#include "support/postgres_cluster.h"
#include "support/postgres_database.h"
#include "support/temp_folder.h"
#include "window/controls/combo_box.h"

namespace test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using namespace kv::list_sel;

void Use(const std::string& server) {
    ConnectTo(CKvDbInfo("", "", server.c_str()));
}

class TwoServers : public DialogTest {
protected:
    TwoServers() {
        InitControlDll();
        PostgresClient(primary_.Url())
            .Run(
                "create schema norvadon; create table norvadon.kvt (a text);"
                "insert into norvadon.kvt values ('AMBER')");
        PostgresClient follower(standby_.Url());
        while (follower.Run("select to_regclass('norvadon.kvt')").empty()) {
        }
        Use("postgresql://kv@" + primary_.Host() + "," + standby_.Host() + "/postgres");
        manager_.Connect();
    }
    ~TwoServers() override { kv::db::SessionPool::Instance().Clear(); }

    int Insert(const std::string& value) {
        return manager_.Insert("insert into NORVADON.kvt values ('" + value + "')");
    }
    std::string Rows() {
        manager_.Select("select a from NORVADON.kvt order by a");
        return RowsOf(manager_, 1);
    }

    PostgresCluster primary_;
    PostgresCluster standby_{&primary_};
    CKvDbAbsDataMgr manager_{1};
};

TEST_F(TwoServers, APrimaryThatDiesCostsWhatWasNotCommittedAndNoMore) {
    CComboBox combo;
    std::vector<std::string> values;
    CKvGuiListSel dialog("a", "NORVADON.kvt", &combo, values, kTemplate, nullptr);
    EXPECT_EQ(Insert("BLUE"), 1);
    Run(dialog, [&](kv::User& user) {
        user.Click(kSearch);
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("AMBER"));
        primary_.Kill();
        EXPECT_THAT(FailureOf([&] { manager_.Commit(); }),
                    HasSubstr("what it had not committed is undone"));
        user.Type(kFind, "amb");
        user.Click(kSearch);
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("AMBER")) << "with the next use";
    });

    manager_.Connect();
    EXPECT_EQ(Rows(), "AMBER");
    EXPECT_THAT(FailureOf([&] { Insert("CORAL"); }),
                HasSubstr("Refused: the server that answers is a standby, which only reads until "
                          "it takes over"));
    EXPECT_EQ(Rows(), "AMBER");

    standby_.Promote();
    EXPECT_EQ(Insert("CORAL"), 1);
    manager_.Commit();
    EXPECT_EQ(PostgresClient(standby_.Url()).Run("select count(*) from norvadon.kvt"), "2");
}

/// A host that takes connections and never answers.
class DeadHost {
public:
    explicit DeadHost(const std::string& folder)
        : socket_(socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0)) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        const std::string path = folder + "/.s.PGSQL.5432";
        path.copy(address.sun_path, sizeof(address.sun_path) - 1);
        constexpr int kMostWaiting = 10;
        if (bind(socket_, reinterpret_cast<sockaddr*>(&address), sizeof(address)) != 0 ||
            listen(socket_, kMostWaiting) != 0)
            throw std::runtime_error("Cannot listen at " + path);
    }
    ~DeadHost() { close(socket_); }
    DeadHost(const DeadHost&) = delete;
    DeadHost& operator=(const DeadHost&) = delete;

    /// How often somebody has tried since it was asked last.
    int Tries() const {
        int tries = 0;
        for (int one; (one = accept(socket_, nullptr, nullptr)) >= 0; ++tries)
            close(one);
        return tries;
    }

private:
    int socket_;
};

TEST(PostgresHosts, ADeadOneCostsItsTimeOutOnce) {
    TempFolder folder;
    const DeadHost dead(folder.Native());
    const PostgresDatabase database;
    const std::string url = database.Url();
    const std::size_t host = url.find('@') + 1;
    const std::string several =
        kv::ReplaceAll(folder.Native(), "/", "%2F") + "," + url.substr(host);
    Use(url.substr(0, host) + several + "?connect_timeout=2");
    for (const int expected : {1, 0, 0}) {
        kv::db::SessionPool::Instance().Clear();
        CKvDbAbsDataMgr manager(1);
        manager.Connect();
        EXPECT_EQ(manager.Select("select 1 from dual"), 1);
        manager.Disconnect();
        EXPECT_EQ(dead.Tries(), expected);
    }
    kv::db::SessionPool::Instance().Clear();
}

}  // namespace
}  // namespace test
