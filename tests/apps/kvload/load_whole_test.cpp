// A load is whole or not at all.

#include <sqlite3.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>

#include "apps/kvload/load_fixture.h"
#include "support/file_size_limit.h"

namespace {

/// What the process has synced to the disk, by the names of then; and which of it fails.
std::vector<std::string> synced;
std::string unsynced;

}  // namespace

/// In the place of the system's.
extern "C" int fsync(int file) {
    std::error_code ignored;
    synced.push_back(
        std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(file), ignored));
    if (!unsynced.empty() && synced.back().ends_with(unsynced)) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(syscall(SYS_fsync, file));
}

namespace test {
namespace {

using kvload::OpenStore;
using kvload::Purpose;
using testing::HasSubstr;

class LoadWhole : public LoadTest {
protected:
    /// That many blocks.
    void WriteBlocks(int count) {
        std::string rows = "area,block,WKT\n";
        for (int i = 1; i <= count; ++i)
            rows += "43602," + std::to_string(i) + "," + kSquare + "\n";
        folder.Write("blocks.csv", rows);
    }

    std::vector<std::string> Files() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder.Native()))
            names.push_back(entry.path().filename());
        std::ranges::sort(names);
        return names;
    }
};

TEST_F(LoadWhole, OfANewFileLeavesADatasetThatTheProgramsOpen) {
    LoadArea();
    EXPECT_EQ(Rows("select areaname, stcode, area_abbr from gulf_mexico_connam2"),
              "GREEN CANYON|43602|GC\n");
    EXPECT_EQ(Rows("select count(*) > 100 from gulf_mexico_zone_code"), "1\n");
    EXPECT_EQ(Rows("select count(*) from nvd2000_tmp_abe2"), "0\n");
    EXPECT_EQ(Rows("pragma journal_mode"), "wal\n");
    for (const auto& table : kv::sample::Tables())
        EXPECT_EQ(Rows("select count(*) from sqlite_master where type = 'index' and tbl_name = '" +
                       std::string(table.name) + "'"),
                  std::to_string(table.indexes.size()) + "\n")
            << table.name;
}

TEST_F(LoadWhole, OfANewFileTakesAwayTheLogOfADatabaseThatWasThere) {
    for (const char* ending : {"-wal", "-shm", "-journal"})
        folder.Write(std::string("data.db") + ending, "left behind");
    LoadArea();
    EXPECT_THAT(Files(), testing::Not(testing::Contains(testing::StartsWith("data.db-"))));
    EXPECT_EQ(Rows("select areaname from gulf_mexico_connam2"), "GREEN CANYON\n");
}

/// While it lives, SQLite takes files for those of a folder that shares no memory.
class WithoutSharedMemory {
public:
    WithoutSharedMemory() { sqlite3_vfs_register(sqlite3_vfs_find("unix-none"), 1); }
    ~WithoutSharedMemory() { sqlite3_vfs_register(sqlite3_vfs_find("unix"), 1); }
    WithoutSharedMemory(const WithoutSharedMemory&) = delete;
    WithoutSharedMemory& operator=(const WithoutSharedMemory&) = delete;
};

TEST_F(LoadWhole, LeavesNoNewFileThatCannotHaveALog) {
    const WithoutSharedMemory files;
    EXPECT_THAT([this] { LoadArea(); }, testing::ThrowsMessage<std::runtime_error>(
                                            "The database cannot have a write-ahead log"));
    EXPECT_THAT(Files(), testing::Not(testing::Contains(testing::StartsWith("data.db"))));
}

TEST_F(LoadWhole, AddsToWhatIsThere) {
    LoadArea();
    WriteBlocks(2);
    Load("blocks.csv", kBlocks);
    folder.Write("more.csv",
                 std::string("area,block,WKT\n43602,3,") + kSquare + "\n43602,1," + kSquare + "\n");
    const auto outcome = Load("more.csv", kBlocks);
    EXPECT_EQ(outcome.loaded, 1);
    EXPECT_THAT(outcome.leftOut,
                testing::ElementsAre(HasSubstr("is that of the database already")));
    EXPECT_EQ(Rows("select lbnum, refnum from gulf_mexico_lbi order by refnum"), "1|1\n2|2\n3|3\n");
}

TEST_F(LoadWhole, ReplacesWhatIsThereOnRequest) {
    LoadArea();
    WriteBlocks(3);
    Load("blocks.csv", kBlocks);
    WriteBlocks(1);
    EXPECT_EQ(Load("blocks.csv", kBlocks, true).loaded, 1);
    EXPECT_EQ(Rows("select count(*) from gulf_mexico_lbi"), "1\n");
    EXPECT_EQ(Rows("select count(*) from gulf_mexico_lbv"), "4\n");
    EXPECT_EQ(Rows("select count(*) from gulf_mexico_connam2"), "1\n");
}

TEST_F(LoadWhole, TakesSourcesInTheOrderInWhichTheyNeedEachOther) {
    WriteBlocks(1);
    folder.Write("areas.csv", "name,code,abbr\nGreen Canyon,43602,GC\n");
    const auto outcomes = LoadAll({JobOf("blocks.csv", kBlocks), JobOf("areas.csv", kAreas)});
    ASSERT_EQ(outcomes.size(), 2u);
    EXPECT_EQ(outcomes[0].target, "areas");
    EXPECT_EQ(outcomes[1].loaded, 1);
}

TEST_F(LoadWhole, OrNotAtAllWhereALaterSourceFails) {
    LoadArea();
    WriteBlocks(2);
    folder.Write("leases.csv", "area,blk\n43602,1\n");
    const std::string leases =
        R"({"table": "leases", "fields": {"areacode": "area", "label": "missing"}})";
    EXPECT_THROW(LoadAll({JobOf("blocks.csv", kBlocks), JobOf("leases.csv", leases)}),
                 std::runtime_error);
    EXPECT_EQ(Rows("select count(*) from gulf_mexico_lbi"), "0\n");
}

TEST_F(LoadWhole, OrNotAtAllWhereItIsCancelled) {
    LoadArea();
    WriteBlocks(5);
    const auto before = Files();
    // While rows are read, while blocks are written, and while their corners are.
    for (const int steps : {2, 7, 12}) {
        const auto store = OpenStore(Server(), Purpose::kLoad);
        int left = steps;
        kvload::Watcher watcher = Nobody();
        watcher.cancelled = [&] { return --left < 0; };
        EXPECT_THROW(kvload::Load({JobOf("blocks.csv", kBlocks)}, *store, false, watcher),
                     kvload::Cancelled);
    }
    EXPECT_EQ(Rows("select count(*) from gulf_mexico_lbi"), "0\n");
    EXPECT_EQ(Rows("select count(*) from gulf_mexico_lbv"), "0\n");
    EXPECT_EQ(Files(), before);
}

TEST_F(LoadWhole, LeavesNoNewFileWhereItIsCancelled) {
    folder.Write("areas.csv", "name,code,abbr\nGreen Canyon,43602,GC\n");
    const auto before = Files();
    {
        const auto store = OpenStore(Server(), Purpose::kLoad);
        kvload::Watcher watcher = Nobody();
        watcher.cancelled = [] { return true; };
        EXPECT_THROW(kvload::Load({JobOf("areas.csv", kAreas)}, *store, false, watcher),
                     kvload::Cancelled);
    }
    EXPECT_EQ(Files(), before);
}

TEST_F(LoadWhole, TellsEachStep) {
    LoadArea();
    WriteBlocks(2);
    std::string told;
    kvload::Watcher watcher = Nobody();
    watcher.progress = [&](const std::string& step, long long done, long long of) {
        told += step.substr(0, 11) + std::to_string(done) + "/" + std::to_string(of) + " ";
    };
    const auto store = OpenStore(Server(), Purpose::kLoad);
    kvload::Load({JobOf("blocks.csv", kBlocks)}, *store, false, watcher);
    EXPECT_THAT(told, HasSubstr("writing gul1/2 writing gul2/2 writing gul1/2 writing gul2/2"));
}

TEST_F(LoadWhole, OrNotAtAllOnAFullDisk) {
    LoadArea();
    WriteBlocks(3000);
    {
        const FileSizeLimit limit(std::filesystem::file_size(folder.Native("data.db")) + 4096);
        EXPECT_NE(Complaint("blocks.csv", kBlocks), "");
    }
    EXPECT_EQ(Rows("select count(*) from gulf_mexico_lbi"), "0\n");
    EXPECT_EQ(Load("blocks.csv", kBlocks).loaded, 3000);
}

TEST_F(LoadWhole, LeavesNoNewFileOnAFullDisk) {
    folder.Write("areas.csv", "name,code,abbr\nGreen Canyon,43602,GC\n");
    const auto before = Files();
    {
        const FileSizeLimit limit(20'000);
        EXPECT_NE(Complaint("areas.csv", kAreas), "");
    }
    EXPECT_EQ(Files(), before);
}

class LoadSynced : public LoadWhole {
protected:
    LoadSynced() { synced.clear(); }
    ~LoadSynced() override { unsynced.clear(); }

    std::string Folder() const { return std::filesystem::canonical(folder.Native()); }
};

TEST_F(LoadSynced, ANewFileIsOnTheDiskAheadOfItsNameAndThenTheName) {
    LoadArea();
    ASSERT_GE(synced.size(), 2u);
    EXPECT_THAT(synced[synced.size() - 2], testing::StartsWith(Folder() + "/data.db."));
    EXPECT_THAT(synced[synced.size() - 2], testing::EndsWith(".part"));
    EXPECT_EQ(synced.back(), Folder());
}

TEST_F(LoadSynced, ANewFileThatDoesNotReachTheDiskIsNone) {
    folder.Write("areas.csv", "name,code,abbr\nGreen Canyon,43602,GC\n");
    const auto before = Files();
    unsynced = ".part";
    EXPECT_THAT(Complaint("areas.csv", kAreas), HasSubstr("Input/output error"));
    EXPECT_EQ(Files(), before);
}

TEST_F(LoadSynced, ANewFileWhoseNameDoesNotReachTheDiskIsToldAndStays) {
    folder.Write("areas.csv", "name,code,abbr\nGreen Canyon,43602,GC\n");
    unsynced = Folder();
    EXPECT_THROW(Load("areas.csv", kAreas), kvload::CommitUnanswered);
    EXPECT_EQ(Rows("select stcode from gulf_mexico_connam2"), "43602\n");
}

TEST_F(LoadWhole, RefusesAFileThatIsNoDatabase) {
    folder.Write("data.db", "This is no database, though it is long enough to have a header.");
    folder.Write("areas.csv", "name,code,abbr\nA,1,\n");
    EXPECT_THAT(Complaint("areas.csv", kAreas), HasSubstr("not a database"));
}

}  // namespace
}  // namespace test
