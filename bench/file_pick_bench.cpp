// Opening the file picker on a folder of 100,000 files beside reading the folder with the C library
// and sorting the names.

#include <dirent.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "base/paths.h"
#include "controls/file_pick_ctrl.h"
#include "controls/file_pick_ids.h"
#include "frame/module.h"
#include "ratio.h"
#include "window/acting/headless_desktop.h"
#include "window/window_system.h"

namespace {

constexpr int kFiles = 100'000;

/// Where there is memory for files: on a disk, making so many can take many minutes.
std::string PlaceForFiles() {
    const std::filesystem::path memory = "/dev/shm";
    const bool there = std::filesystem::is_directory(memory);
    return (there ? memory : std::filesystem::temp_directory_path()).string();
}

/// A folder of so many files, gone when the program ends.
class BigFolder {
public:
    BigFolder() : path_(PlaceForFiles() + "/kvbench-folder-" + std::to_string(getpid())) {
        std::filesystem::create_directory(Path());
        for (int i = 0; i < kFiles; ++i) {
            const std::string name = Path() + "/map " + std::to_string(i * 61'681LL % kFiles);
            std::fclose(std::fopen((name + ".txt").c_str(), "w"));
        }
    }
    ~BigFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(Path(), ignored);
    }
    const std::string& Path() const { return path_; }

private:
    std::string path_;
};

const std::string& FolderPath() {
    static const BigFolder folder;
    static const std::string path = folder.Path();
    return path;
}

void OpenOurs(benchmark::State& state) {
    InitControlDll();
    kv::HeadlessDesktop desktop;
    kv::WindowSystem::Get().SetDesktop(&desktop);
    const std::string folder = kv::FromNative(FolderPath());
    std::size_t lines = 0;
    for (auto _ : state) {
        CFilePickCtrl dialog;
        dialog.SetStartPath(folder.c_str());
        desktop.ExpectWindow("Pick", [&](kv::User& user) {
            auto& list = static_cast<CListCtrl&>(*user.Window().GetDlgItem(kv::file_pick::kFiles));
            lines = static_cast<std::size_t>(list.GetItemCount());
            user.Close();
        });
        dialog.DoModal("Pick");
    }
    if (lines != kFiles + 1) state.SkipWithError("not every file is listed");
    kv::WindowSystem::Get().SetDesktop(nullptr);
}

void OpenPeer(benchmark::State& state) {
    const std::string folder = FolderPath();
    std::size_t count = 0;
    for (auto _ : state) {
        std::vector<std::string> names;
        DIR* opened = opendir(folder.c_str());
        while (const dirent* entry = readdir(opened))
            names.emplace_back(entry->d_name);
        closedir(opened);
        std::sort(names.begin(), names.end());
        count = names.size();
    }
    if (count != kFiles + 2) state.SkipWithError("not every file is read");
}

const bench::Subject kOpen("file picker/open 100,000 files", 2, OpenOurs, OpenPeer);

}  // namespace
