// What the block selection dialogs ask, on every engine: the same rows in the same order.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "blocks/dyn_blk_ext_dlg.h"
#include "services/kvdbkvn/session_pool.h"
#include "support/database_helpers.h"
#include "support/postgres_database.h"
#include "support/temp_folder.h"

namespace test {
namespace {

using Rows = std::vector<std::string>;

/// A field that areas are shown by, with the pattern of a search and an area that it finds.
struct Field {
    const char* column;
    const char* pattern;
    const char* area;
    const char* areaOfPipelines;
};

constexpr Field kFields[] = {
    {"areaname", "%ISLAND%", "HIGH ISLAND", "GALVESTON STATE"},
    {"stcode", "42%", "42702", "42606"},
    {"area_abbr", "%I", "HI", "GA"},
};

class BlockQueriesOnTheSample : public testing::Test {
protected:
    ~BlockQueriesOnTheSample() override { kv::db::SessionPool::Instance().Clear(); }

    static std::string Sqlite() { return std::string("sqlite:") + SAMPLE_DATABASE; }
    /// The other engines by name.
    static std::vector<std::pair<const char*, std::string>> Others() {
        const std::string url = SamplePostgresUrl();
        return {
            {"PostgreSQL", url},
            {"SQLite over ODBC", std::string("odbc:Driver=SQLite3;Database=") + SAMPLE_DATABASE},
            {"PostgreSQL over ODBC",
             "odbc:Driver=PostgreSQL Unicode;Servername=" + SocketFolderOf(url) +
                 ";Database=" + kSampleDatabase + ";UID=kv"}};
    }

    /// The rows of each statement on that server; none for one that is refused.
    static std::vector<std::optional<Rows>> Answers(const std::string& server,
                                                    const std::vector<std::string>& statements) {
        ConnectTo(CKvDbInfo("", "", server.c_str()));
        std::vector<std::optional<Rows>> answers;
        for (const std::string& sql : statements) {
            CKvDbAbsDataMgr manager(1);
            answers.emplace_back();
            FailureOf([&] {
                manager.Connect();
                manager.Select(sql);
                Rows& rows = answers.back().emplace();
                for (int row = 0; row < manager.NumberOfRows(); ++row)
                    rows.emplace_back(manager.GetItem(row, 0));
            });
        }
        return answers;
    }

    /// Whose statements they are: the dialog on the dataset's own tables, and those on a table with
    /// one set of columns, and with two.
    std::vector<std::unique_ptr<CKvGuiBlkExtDlg>> Dialogs() {
        std::vector<std::unique_ptr<CKvGuiBlkExtDlg>> dialogs;
        dialogs.push_back(std::make_unique<CKvGuiBlkExtDlg>());
        for (const bool single : {true, false}) {
            dialogs.push_back(std::make_unique<CKvGuiDynBlkExtDlg>(
                "NORVADON.gulf_mexico_pipeline", "areacode", "lbnum||lbext", "to_areacode",
                "to_lbnum||to_lbext", single));
        }
        for (const auto& dialog : dialogs) {
            dialog->SetType(selection_, "NORVADON");
            dialog->SetTableName("NORVADON.gulf_mexico_connam2");
        }
        return dialogs;
    }

    std::vector<std::string> Statements() {
        std::vector<std::string> statements;
        for (const auto& dialog : Dialogs()) {
            const bool dynamic = dynamic_cast<CKvGuiDynBlkExtDlg*>(dialog.get()) != nullptr;
            for (const Field& field : kFields) {
                dialog->SetFieldString(field.column);
                statements.push_back(dialog->GetAreaQuery(field.pattern));
                statements.push_back(
                    dialog->GetBlkExtQuery(dynamic ? field.areaOfPipelines : field.area));
            }
        }
        return statements;
    }

    TempFolder folder_;
    kv::blocks::Selection selection_;
};

TEST_F(BlockQueriesOnTheSample, GiveTheSameRowsOnEveryEngine) {
    const std::vector<std::string> statements = Statements();
    const auto expected = Answers(Sqlite(), statements);
    for (std::size_t i = 0; i < statements.size(); ++i) {
        SCOPED_TRACE(statements[i]);
        ASSERT_TRUE(expected[i]);
        EXPECT_FALSE(expected[i]->empty());
    }
    for (const auto& [name, server] : Others()) {
        const auto answers = Answers(server, statements);
        for (std::size_t i = 0; i < statements.size(); ++i)
            EXPECT_EQ(answers[i], expected[i]) << name << ": " << statements[i];
    }
}

TEST_F(BlockQueriesOnTheSample, AreRefusedOnEveryEngineForAnAreaWithAQuote) {
    std::vector<std::string> statements;
    for (const auto& dialog : Dialogs()) {
        dialog->SetFieldString("areaname");
        statements.push_back(dialog->GetAreaQuery("%O'NEIL%"));
        statements.push_back(dialog->GetBlkExtQuery("O'NEIL"));
    }
    auto engines = Others();
    engines.emplace_back("SQLite", Sqlite());
    for (const auto& [name, server] : engines) {
        for (const auto& answer : Answers(server, statements))
            EXPECT_FALSE(answer) << name;
    }
}

}  // namespace
}  // namespace test
