#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>

#include "base/text.h"
#include "frame/kvdbkvn/statement_trace.h"
#include "frame/module.h"
#include "kvdlg/play.h"
#include "kvdlg/report.h"
#include "recording/recording.h"
#include "support/temp_folder.h"

namespace test {

using adaptors::Json;

/// What a run leaves behind: its exit status, and what it told. Of a script that does not fit,
/// "mismatch" tells why.
struct Ended {
    int status = 0;
    Json told;
};

/// Runs dialogs in processes of their own, each on the same ground: a drive with some files,
/// settings, and a database, which are as they were after whatever a run does to them.
class SameGround : public testing::Test {
protected:
    SameGround() {
        for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
            folder_.Set(variable, folder_.Native("home/") + variable);
        folder_.Set("KVGUICTL_DB", "sqlite:" + folder_.Native("sample.db"));
        InitControlDll();
    }

    /// The drive C.
    std::string Drive() const { return folder_.Native("drive"); }

    /// What `work` returns is told, with "changed": whether it may have changed the database.
    Ended Apart(const std::function<Json()>& work) {
        Restore();
        std::filesystem::remove(Told());
        const pid_t child = fork();
        if (child == 0) {
            alarm(kMostSeconds);
            Tell(work());
        }
        Ended ended;
        waitpid(child, &ended.status, 0);
        ended.told = Json::parse(folder_.Read("told.json"), nullptr, false);
        changed_ = !ended.told.is_object() || ended.told.value("changed", true);
        return ended;
    }

    /// Plays a script; the outcome is under "outcome". `adaptor` may be another than that of a
    /// class, but asks for the same.
    Json Play(const adaptors::Adaptor& adaptor, const Json& json) {
        const kvdlg::Script script{recording::TextOf(json), json};
        adaptors::Run run(json.value("inputs", Json::object()));
        kvdlg::Records records;
        Trace(records);
        kvdlg::Play(
            adaptor, run, script, records,
            [&](kv::Node& window) { records.windows.push_back(kvdlg::Describe(window, "")); },
            [&](const std::string& words) {
                Tell({{"mismatch", words}, {"changed", Changes(records)}});
            });
        return Told(run, records);
    }

    static Json Told(const adaptors::Run& run, const kvdlg::Records& records) {
        return {{"outcome", kvdlg::Outcome(run, records, false)}, {"changed", Changes(records)}};
    }
    static void Trace(kvdlg::Records& records) {
        kv::db::SetStatementTrace([&](const std::string& sent) { records.sql.push_back(sent); });
    }

    TempFolder folder_;

private:
    static constexpr unsigned kMostSeconds = 120;

    std::string Told() const { return folder_.Native("told.json"); }
    [[noreturn]] void Tell(const Json& seen) const {
        kv::WriteFileWhole(Told(), recording::TextOf(seen));
        std::_Exit(0);
    }

    static bool Changes(const kvdlg::Records& records) {
        return std::ranges::any_of(records.sql, [](const Json& each) {
            return !kv::StartsWithNoCase(kv::TrimSpace(each.get<std::string>()), "select");
        });
    }

    void Restore() {
        namespace fs = std::filesystem;
        fs::current_path(folder_.Native());
        fs::remove_all(Drive());
        fs::remove_all(folder_.Native("home"));
        folder_.Write("drive/list.txt", "ACT\nREM\n391\n");
        folder_.Write("drive/blocks.txt", "GREEN CANYON,200,\nWEST CAMERON,1,\n");
        folder_.Write("drive/maps/points.txt", "1 2\n3 4\n");
        folder_.Write("registry.ini", "[SOFTWARE\\KVI\\Drives]\nC=" + Drive() + "\n");
        fs::remove(folder_.Native("profile.ini"));
        fs::current_path(Drive());
        kv::ForgetDrives();
        if (!changed_) return;
        for (const char* part : {"", "-wal", "-shm"})
            fs::remove(folder_.Native("sample.db") + part);
        const char* sample = std::getenv("KVGUICTL_SAMPLE_DB");
        fs::copy_file(sample ? sample : "", folder_.Native("sample.db"));
        changed_ = false;
    }

    bool changed_ = true;  ///< whether the database is to be copied anew
};

}  // namespace test
