// The block selection dialog: the import of a large file beside reading and splitting that file,
// and showing a large selection beside filling a list view with it.

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/paths.h"
#include "base/text.h"
#include "blocks/blk_ext_dlg.h"
#include "blocks/blk_ext_ids.h"
#include "frame/module.h"
#include "ratio.h"
#include "window/acting/headless_desktop.h"
#include "window/acting/input.h"
#include "window/window_system.h"

namespace {

using namespace kv::blk_ext;

constexpr int kEntries = 100'000;
constexpr int kShownEntries = 30'000;

/// A file of so many entries, some of which are there twice, that is gone when the program ends.
class BlockFile {
public:
    BlockFile()
        : path_((std::filesystem::temp_directory_path() /
                 ("kvbench-blocks-" + std::to_string(getpid()) + ".txt"))
                    .string()) {
        constexpr int kAreas = 97;
        std::ofstream out(path_);
        out << "AREA NAME\tBlock\tExt.\n";
        for (int i = 0; i < kEntries; ++i) {
            const int entry = i % 10 == 9 ? i - 9 : i;
            out << "EAST ADDITION " << entry % kAreas << '\t' << entry / kAreas << '\t'
                << (entry % 3 ? " " : "A") << "\t\n";
        }
        out << "\n***Neighborhood Relationship***\n";
        if (!out.flush()) throw std::runtime_error("no file of blocks could be written");
    }
    ~BlockFile() { std::filesystem::remove(path_); }
    const std::string& Path() const { return path_; }

private:
    std::string path_;
};

const std::string& Path() {
    static const BlockFile file;
    return file.Path();
}

class OpenDialog : public CKvGuiBlkExtDlg {
public:
    OpenDialog() {
        InitControlDll();
        kv::WindowSystem::Get().SetDesktop(&desktop_);
        SetType(selection, "NORVADON");
        SetFieldString("areaname");
        Create(kTemplate);
    }
    ~OpenDialog() override {
        DestroyWindow();
        kv::WindowSystem::Get().SetDesktop(nullptr);
    }
    using CKvGuiBlkExtDlg::ImportWithTabDelimiter;
    using CKvGuiBlkExtDlg::m_listSelected;
    using CKvGuiBlkExtDlg::RefreshSelectedListBox;

    kv::blocks::Selection selection;

private:
    kv::HeadlessDesktop desktop_;
};

void Import(benchmark::State& state) {
    OpenDialog dialog;
    for (auto _ : state) {
        state.PauseTiming();
        dialog.selection = {};
        state.ResumeTiming();
        dialog.ImportWithTabDelimiter(Path());
    }
    if (dialog.selection.first.size() != kEntries - kEntries / 10) {
        state.SkipWithError("not every entry came in");
    }
}

void ReadAndSplit(benchmark::State& state) {
    for (auto _ : state) {
        const auto text = kv::ReadTextFile(Path());
        if (!text) {
            state.SkipWithError("the file cannot be read");
            break;
        }
        std::vector<std::vector<std::string>> lines;
        for (const std::string& line : kv::SplitLines(*text))
            lines.push_back(kv::Split(line, '\t'));
        benchmark::DoNotOptimize(lines);
    }
}

kv::blocks::Selection Entries(int count) {
    kv::blocks::Selection selection;
    for (int i = 0; i < count; ++i) {
        selection.first.push_back("EAST ADDITION " + std::to_string(i % 97));
        selection.second.push_back(std::to_string(i / 97) + "A");
    }
    return selection;
}

void FillListView(CListCtrlEx& list, const kv::blocks::Selection& selection) {
    list.DeleteAllItems();
    for (std::size_t i = 0; i < selection.first.size(); ++i) {
        list.AddItem(static_cast<int>(i), 0, selection.first[i].c_str());
        list.AddItem(static_cast<int>(i), 1, selection.second[i].c_str());
    }
}

/// Shows so many entries, every second of them selected.
void ShowHalfSelected(OpenDialog& dialog) {
    dialog.selection = Entries(kShownEntries);
    dialog.RefreshSelectedListBox();
    for (int row = 0; row < kShownEntries; row += 2)
        dialog.m_listSelected.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
    dialog.GetDlgItem(kRemove)->EnableWindow(TRUE);
}

void Remove(benchmark::State& state) {
    OpenDialog dialog;
    for (auto _ : state) {
        state.PauseTiming();
        ShowHalfSelected(dialog);
        state.ResumeTiming();
        kv::input::Click(*dialog.GetDlgItem(kRemove)->m_hWnd);
    }
    if (dialog.m_listSelected.GetItemCount() != kShownEntries / 2) {
        state.SkipWithError("not every entry was removed");
    }
}

/// Reads the selected rows, and fills the list view with as many.
void ReadAndFill(benchmark::State& state) {
    OpenDialog dialog;
    CListCtrlEx& list = dialog.m_listSelected;
    for (auto _ : state) {
        state.PauseTiming();
        ShowHalfSelected(dialog);
        state.ResumeTiming();
        kv::blocks::Selection selection;
        for (int row = list.GetNextItem(-1, LVNI_SELECTED); row >= 0;
             row = list.GetNextItem(row, LVNI_SELECTED)) {
            selection.first.push_back(list.GetItemText(row, 0));
            selection.second.push_back(list.GetItemText(row, 1));
        }
        FillListView(list, selection);
    }
}

void Refresh(benchmark::State& state) {
    OpenDialog dialog;
    dialog.selection = Entries(kShownEntries);
    for (auto _ : state)
        dialog.RefreshSelectedListBox();
}

void FillOnce(benchmark::State& state) {
    OpenDialog dialog;
    const kv::blocks::Selection selection = Entries(kShownEntries);
    for (auto _ : state)
        FillListView(dialog.m_listSelected, selection);
}

const bench::Subject kSubjects[] = {
    {"blocks/import of 100,000 entries", 3, Import, ReadAndSplit},
    {"blocks/show 30,000 entries", 1.5, Refresh, FillOnce},
    {"blocks/remove every second of 30,000 entries", 2, Remove, ReadAndFill},
};

}  // namespace
