// Import, Export and the list file, through the controls.

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>

#include "frame/kvcom/misc.h"
#include "frame/kvcom/ut_registry.h"
#include "qualifiers/lease_list_sel.h"
#include "qualifiers/list_sel.h"
#include "qualifiers/qualifier_fixture.h"
#include "support/file_faults.h"
#include "support/file_size_limit.h"
#include "support/plain_user.h"
#include "window/dialogs/file_dialog.h"

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using namespace kv::list_sel;
namespace fs = std::filesystem;

constexpr DWORD kFlags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY;

class ListSelFiles : public QualifierTest {
protected:
    ListSelFiles() {
        CKvMisc::S_SetImportFilePath("");
        fs::create_directories(folder.Native("home/App"));
        fs::create_directories(folder.Native("work/Report"));
        const CKvUtRegistry registry;
        registry.SetRegistry(CKvUtRegistry::S_GetHomePath(), CKvUtRegistry::S_GetHomeKey(),
                             folder.Dialog("home"));
        registry.SetRegistry(CKvUtRegistry::S_GetWorkPath(), CKvUtRegistry::S_GetWorkKey(),
                             folder.Dialog("work"));
    }

    /// What Selected holds after a file with that content was imported; with a message if one is
    /// to come.
    std::vector<std::string> Imported(const std::string& content, const std::string& message = {}) {
        folder.Write("lists/in.txt", content);
        desktop.ExpectFile(folder.Dialog("lists\\in.txt"));
        if (!message.empty()) desktop.ExpectMessage(message);
        std::vector<std::string> rows;
        Run(dialog, [&](kv::User& user) {
            user.Click(kImport);
            rows = user.Rows(kSelected);
        });
        return rows;
    }
    /// Exports the vector under that name.
    void Export(const std::string& path) {
        desktop.ExpectFile(path);
        Run(dialog, [](kv::User& user) { user.Click(kExport); });
    }
    static std::string ImportFolder() { return CKvMisc::S_GetImportFilePath().str(); }
    void ExpectHomeIsCurrent() const { EXPECT_EQ(kv::CurrentFolder(), folder.Dialog("home\\App")); }

    CKvGuiListSel dialog{"lessee", "lease", &combo, values, kTemplate, nullptr};
};

// Import.

TEST_F(ListSelFiles, ImportAsksInTheReportFolderOfTheWorkFolder) {
    EXPECT_EQ(ImportFolder(), "");
    desktop.ExpectFileCancel();
    Run(dialog, [](kv::User& user) {
        user.Click(kImport);
        EXPECT_THAT(user.Rows(kSelected), IsEmpty());
    });
    ASSERT_EQ(desktop.FileDialogs().size(), 1u);
    const kv::FileDialogRequest& asked = desktop.FileDialogs()[0];
    EXPECT_TRUE(asked.open);
    EXPECT_EQ(asked.title, "Import Norvadon PC Qualifiers");
    EXPECT_EQ(asked.filter, "Text File |*.txt|All Files |*.*|");
    EXPECT_EQ(asked.flags, kFlags);
    EXPECT_EQ(asked.initialFolder, folder.Dialog("work\\Report\\"));
    EXPECT_EQ(asked.fileName, "");
    EXPECT_EQ(ImportFolder(), folder.Dialog("work\\Report\\"));
    ExpectHomeIsCurrent();
}

TEST_F(ListSelFiles, ImportRemembersTheFolderOfTheFile) {
    EXPECT_THAT(Imported("a\n"), ElementsAre("A"));
    EXPECT_EQ(ImportFolder(), folder.Dialog("lists\\"));
    ExpectHomeIsCurrent();
    desktop.ExpectFileCancel();
    Run(dialog, [](kv::User& user) { user.Click(kImport); });
    EXPECT_EQ(desktop.FileDialogs()[1].initialFolder, folder.Dialog("lists\\"));
    EXPECT_EQ(ImportFolder(), folder.Dialog("lists\\"));
}

TEST_F(ListSelFiles, ImportAddsBehindWithDoubles) {
    Given("<LIST>", {"Z", "A"});
    EXPECT_THAT(Imported("a\nb\na\n"), ElementsAre("Z", "A", "A", "B", "A"));
}

TEST_F(ListSelFiles, ImportLeavesAvailableAlone) {
    folder.Write("in.txt", "AMBER\n");
    desktop.ExpectFile(folder.Dialog("in.txt"));
    Run(dialog, [](kv::User& user) {
        Search(user, "amber");
        user.Click(kImport);
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("AMBER", "AMBER SHELF"));
        EXPECT_TRUE(user.Enabled(kClear));
        EXPECT_TRUE(user.Enabled(kRemove));
    });
}

TEST_F(ListSelFiles, ImportOfCommentsAddsNothing) {
    EXPECT_THAT(Imported("# one\n#two\n"), IsEmpty());
}

TEST_F(ListSelFiles, ImportReadsLinesOfEveryForm) {
    EXPECT_THAT(Imported("# list\r\n\r\n\r\n  amber \r\n\r\nShelf Oil\r\nlast"),
                ElementsAre("AMBER", "SHELF OIL", "LAST"));
}

TEST_F(ListSelFiles, ImportCutsLinesThatAreTooLongAndSaysOnceHowMany) {
    const std::string path = folder.Dialog("lists\\in.txt");
    EXPECT_THAT(
        Imported(std::string(99, 'x') + "\n" + std::string(100, 'y') + "\n" +
                     std::string(1000, 'z') + "\nend\n",
                 path + ":\n2 lines were longer than 99 characters and cut there."),
        ElementsAre(std::string(99, 'X'), std::string(99, 'Y'), std::string(99, 'Z'), "END"));
    Given("");
    EXPECT_THAT(Imported(std::string(100, 'y'),
                         path + ":\n1 line was longer than 99 characters and cut there."),
                ElementsAre(std::string(99, 'Y')));
    EXPECT_EQ(desktop.ScenesLeft(), 0);
}

TEST_F(ListSelFiles, ImportReadsWhatAnyEditorWrites) {
    using namespace std::string_literals;
    EXPECT_THAT(Imported("\xEF\xBB\xBFshelf\r\nb\r\n"), ElementsAre("SHELF", "B"));
    Given("");
    EXPECT_THAT(Imported("\xFF\xFEs\0\xE9\0\r\0\n\0b\0"s), ElementsAre("S\xC3\xA9", "B"));
    Given("");
    EXPECT_THAT(Imported("\xFE\xFF\0s\0\n\0b"s), ElementsAre("S", "B"));
    Given("");
    EXPECT_THAT(Imported("a\r# no\rb\r"), ElementsAre("A", "B"));
    Given("");
    EXPECT_THAT(Imported(""), IsEmpty());
    EXPECT_THAT(Imported("\xEF\xBB\xBF"), IsEmpty());
}

TEST_F(ListSelFiles, ImportOfWhatIsNotTextIsRefused) {
    using namespace std::string_literals;
    Given("<LIST>", {"A"});
    const std::string path = folder.Dialog("lists\\in.txt");
    for (const std::string& content : {"plain\n\x7F"
                                       "ELF\0\n"s,
                                       "u\0t\0f\0"s, "\0"s}) {
        EXPECT_THAT(Imported(content, path + " is not a text file.\nSettings not read."),
                    ElementsAre("A"));
    }
    EXPECT_EQ(desktop.ScenesLeft(), 0);
}

TEST_F(ListSelFiles, ImportOfAPipeSaysSoAndDoesNotWait) {
    const std::string path = folder.Dialog("pipe.txt");
    ASSERT_EQ(mkfifo(folder.Native("pipe.txt").c_str(), 0600), 0);
    desktop.ExpectFile(path);
    desktop.ExpectMessage("Can't open settings file " + path + ".\nSettings not read.");
    Run(dialog, [](kv::User& user) { user.Click(kImport); });
    EXPECT_EQ(desktop.ScenesLeft(), 0);
}

TEST_F(ListSelFiles, ImportThatFailsWhileItReadsSaysSo) {
    const std::string path = folder.Dialog("lists\\in.txt");
    const std::string fault = "Can't open settings file " + path + ".\nSettings not read.";
    folder.Write("lists/in.txt", "a\n");
    const auto callsOfImport = [&](int failing, const std::vector<std::string>& rows) {
        desktop.ExpectFile(path);
        if (rows.empty()) desktop.ExpectMessage(fault);
        int calls = 0;
        Run(dialog, [&](kv::User& user) {
            const test::FileFaults faults(failing);
            user.Click(kImport);
            EXPECT_EQ(user.Rows(kSelected), rows);
            calls = faults.Calls();
        });
        return calls;
    };
    callsOfImport(0, {"A"});
    const int last = callsOfImport(0, {"A"});
    // The last one goes back to the home folder; the file is opened and read ahead of it.
    EXPECT_EQ(callsOfImport(last, {"A"}), last);
    for (const int failing : {last - 2, last - 1})
        callsOfImport(failing, {});
    EXPECT_EQ(desktop.ScenesLeft(), 0);
}

TEST_F(ListSelFiles, ImportOfAFileThatIsNotThereChangesNothing) {
    Given("<LIST>", {"A"});
    const std::string path = folder.Dialog("lists\\none.txt");
    desktop.ExpectFile(path);
    desktop.ExpectMessage("Can't open settings file " + path + ".\nSettings not read.");
    Run(dialog, [](kv::User& user) {
        user.Click(kImport);
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("A"));
    });
    ExpectHomeIsCurrent();
}

TEST_F(ListSelFiles, ImportOfAFolderChangesNothing) {
    fs::create_directories(folder.Native("lists/folder.txt"));
    desktop.ExpectFile(folder.Dialog("lists\\folder.txt"));
    desktop.ExpectMessage("");
    Run(dialog, [](kv::User& user) { user.Click(kImport); });
    EXPECT_THAT(desktop.Messages()[0], HasSubstr("Settings not read."));
}

// Export.

TEST_F(ListSelFiles, ExportMakesTheImportFolderAndAsksThere) {
    fs::remove(folder.Native("work/Report"));
    desktop.ExpectFileCancel();
    Run(dialog, [](kv::User& user) { user.Click(kExport); });
    EXPECT_TRUE(folder.Has("work/Report"));
    ASSERT_EQ(desktop.FileDialogs().size(), 1u);
    const kv::FileDialogRequest& asked = desktop.FileDialogs()[0];
    EXPECT_FALSE(asked.open);
    EXPECT_EQ(asked.title, "Export Norvadon PC Qualifiers");
    EXPECT_EQ(asked.filter, "Text File |*.txt|All Files |*.*|");
    EXPECT_EQ(asked.flags, kFlags);
    EXPECT_EQ(asked.initialFolder, folder.Dialog("work\\Report\\"));
    EXPECT_EQ(folder.Count(), 4u);  // the database, the registry, home and work
    ExpectHomeIsCurrent();
}

TEST_F(ListSelFiles, ExportWritesTheRowsAsTheyStand) {
    Given("<LIST>", {"b", "", " A ", "b"});
    fs::create_directories(folder.Native("lists"));
    Export(folder.Dialog("lists\\out.txt"));
    EXPECT_EQ(folder.Read("lists/out.txt"), "b\n\n A \nb\n");
    EXPECT_EQ(ImportFolder(), folder.Dialog("lists\\"));
    ExpectHomeIsCurrent();
}

TEST_F(ListSelFiles, ExportOfAnEmptyListWritesAnEmptyFile) {
    Export(folder.Dialog("work\\Report\\out.txt"));
    EXPECT_TRUE(folder.Has("work/Report/out.txt"));
    EXPECT_EQ(folder.Read("work/Report/out.txt"), "");
}

TEST_F(ListSelFiles, ExportAlwaysWritesTheExtensionTxt) {
    Given("A");
    Export(folder.Dialog("work\\out.dat"));
    Export(folder.Dialog("work\\a.b.c"));
    Export(folder.Dialog("work\\bare"));
    EXPECT_FALSE(folder.Has("work/out.dat"));
    for (const char* name : {"work/out.txt", "work/a.b.txt", "work/bare.txt"}) {
        EXPECT_EQ(folder.Read(name), "A\n") << name;
    }
}

TEST_F(ListSelFiles, WhatIsExportedIsImportedAgain) {
    const std::vector<std::string> list{"AMBER", "SHELF OIL", "CAF\xc3\xa9", std::string(99, 'X')};
    Given("<LIST>", list);
    Export(folder.Dialog("work\\list.txt"));
    Given("");
    desktop.ExpectFile(folder.Dialog("work\\list.txt"));
    Run(dialog, [](kv::User& user) {
        user.Click(kImport);
        user.Click(IDOK);
    });
    EXPECT_EQ(values, list);
    EXPECT_EQ(combo.WindowText(), "<LIST>");
}

TEST_F(ListSelFiles, ExportThatCannotBeWrittenSaysSo) {
    Given("A");
    const std::string path = folder.Dialog("none\\out.txt");
    desktop.ExpectFile(path);
    desktop.ExpectMessage("Can't write to settings file " + path);
    Run(dialog, [](kv::User& user) {
        user.Click(kExport);
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("A"));
    });
    ExpectHomeIsCurrent();
}

TEST_F(ListSelFiles, ExportBelowWhatIsNoFolderSaysSo) {
    folder.Write("work/file", "old\n");
    Given("A");
    const std::string path = folder.Dialog("work\\file\\out.txt");
    desktop.ExpectFile(path);
    desktop.ExpectMessage("Can't write to settings file " + path);
    Run(dialog, [](kv::User& user) { user.Click(kExport); });
    EXPECT_EQ(folder.Read("work/file"), "old\n");
}

TEST_F(ListSelFiles, ExportOntoAFolderSaysSo) {
    fs::create_directories(folder.Native("work/out.txt"));
    Given("A");
    const std::string path = folder.Dialog("work\\out.txt");
    desktop.ExpectFile(path);
    desktop.ExpectMessage("Can't write to settings file " + path);
    Run(dialog, [](kv::User& user) { user.Click(kExport); });
    EXPECT_TRUE(fs::is_empty(folder.Native("work/out.txt")));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Native("work")), {}), 2);
}

TEST_F(ListSelFiles, AFullDiskLeavesTheOldFile) {
    folder.Write("work/full.txt", "old\n");
    Given("<LIST>", std::vector<std::string>(50, "A LONG LINE OF A LIST"));
    const std::string path = folder.Dialog("work\\full.txt");
    desktop.ExpectFile(path);
    desktop.ExpectMessage("Can't write to settings file " + path);
    Run(dialog, [](kv::User& user) {
        const test::FileSizeLimit limit(100);
        user.Click(kExport);
        EXPECT_EQ(user.Rows(kSelected).size(), 50u);
    });
    EXPECT_EQ(folder.Read("work/full.txt"), "old\n");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Native("work")), {}), 2);
}

TEST_F(ListSelFiles, AFolderWithoutWritePermissionIsReported) {
    folder.Write("locked/a.txt", "old\n");
    fs::permissions(folder.Native(), fs::perms::all);
    fs::permissions(folder.Native("locked"), fs::perms::owner_read | fs::perms::owner_exec |
                                                 fs::perms::others_read | fs::perms::others_exec);
    Given("A");
    EXPECT_EXIT(
        test::ExitAsPlainUser(folder.Native("locked/a.txt"),
                              [&] {
                                  const std::string path = folder.Dialog("locked\\b.txt");
                                  desktop.ExpectFile(path);
                                  desktop.ExpectMessage("Can't write to settings file " + path);
                                  Run(dialog, [](kv::User& user) { user.Click(kExport); });
                                  return desktop.ScenesLeft() == 0;
                              }),
        testing::ExitedWithCode(0), "");
    EXPECT_FALSE(folder.Has("locked/b.txt"));
    EXPECT_EQ(folder.Read("locked/a.txt"), "old\n");
}

TEST_F(ListSelFiles, AFileThatMayNotBeReadIsReported) {
    folder.Write("work/closed.txt", "a\n");
    fs::permissions(folder.Native(), fs::perms::all);
    fs::permissions(folder.Native("work/closed.txt"), fs::perms::none);
    EXPECT_EXIT(test::ExitAsPlainUser(folder.Native("work/closed.txt"),
                                      [&] {
                                          const std::string path =
                                              folder.Dialog("work\\closed.txt");
                                          desktop.ExpectFile(path);
                                          desktop.ExpectMessage("Can't open settings file " + path +
                                                                ".\nSettings not read.");
                                          Run(dialog, [](kv::User& user) { user.Click(kImport); });
                                          return desktop.ScenesLeft() == 0;
                                      }),
                testing::ExitedWithCode(0), "");
}

// The list file.

TEST_F(ListSelFiles, FileRecordsAPathAndReadsNothing) {
    folder.Write("lists/l.txt", "a\n");
    Given("<LIST>", {"X"});
    const std::string path = folder.Dialog("lists\\l.txt");
    desktop.ExpectFile(path);
    Run(dialog, [](kv::User& user) {
        user.Click(kListFileButton);
        EXPECT_TRUE(user.Checked(kListFileCheck));
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("X"));
        user.Click(IDOK);
    });
    EXPECT_EQ(desktop.FileDialogs()[0].title, "Import Norvadon PC Qualifiers");
    EXPECT_EQ(desktop.FileDialogs()[0].filter, "Text File |*.txt|All Files |*.*|");
    EXPECT_TRUE(desktop.FileDialogs()[0].open);
    EXPECT_EQ(desktop.FileDialogs()[0].initialFolder, folder.Dialog("work\\Report\\"));
    EXPECT_EQ(dialog.GetListFileName(), path);
    EXPECT_TRUE(dialog.GetListFileFlag());
    EXPECT_EQ(combo.WindowText(), "<LIST>");
    EXPECT_THAT(values, ElementsAre("X"));
    EXPECT_EQ(ImportFolder(), folder.Dialog("lists\\"));
    ExpectHomeIsCurrent();
}

TEST_F(ListSelFiles, FileStartsAtTheFileThereIs) {
    const std::string path = folder.Dialog("lists\\l.txt");
    dialog.SetListFileName(path);
    desktop.ExpectFileCancel();
    Run(dialog, [](kv::User& user) {
        user.Click(kListFileButton);
        EXPECT_FALSE(user.Checked(kListFileCheck));
    });
    EXPECT_EQ(desktop.FileDialogs()[0].fileName, path);
    EXPECT_EQ(desktop.FileDialogs()[0].initialFolder, "");
    EXPECT_EQ(dialog.GetListFileName(), path);
    ExpectHomeIsCurrent();
}

TEST_F(ListSelFiles, ACancelledFileDialogUnchecksTheBoxAgain) {
    desktop.ExpectFileCancel();
    Run(dialog, [](kv::User& user) {
        user.Click(kListFileCheck);
        EXPECT_FALSE(user.Checked(kListFileCheck));
        user.Click(IDOK);
    });
    EXPECT_FALSE(dialog.GetListFileFlag());
    EXPECT_EQ(dialog.GetListFileName(), "");
}

TEST_F(ListSelFiles, CheckingAsksForTheFile) {
    folder.Write("lists/l.txt", "");
    desktop.ExpectFile(folder.Dialog("lists\\l.txt"));
    Run(dialog, [](kv::User& user) {
        user.Click(kListFileCheck);
        EXPECT_TRUE(user.Checked(kListFileCheck));
    });
    EXPECT_TRUE(dialog.GetListFileFlag());
}

TEST_F(ListSelFiles, UncheckingKeepsTheFileForLater) {
    Given("<LIST>", {"X"});
    const std::string path = folder.Dialog("lists\\l.txt");
    dialog.SetListFileName(path);
    dialog.SetListFileFlag(true);
    desktop.ExpectFileCancel();
    Run(dialog, [](kv::User& user) {
        EXPECT_TRUE(user.Checked(kListFileCheck));
        user.Click(kListFileCheck);
        EXPECT_FALSE(user.Checked(kListFileCheck));
        user.Click(kListFileCheck);
        EXPECT_FALSE(user.Checked(kListFileCheck));
    });
    EXPECT_EQ(dialog.GetListFileName(), path);
    EXPECT_FALSE(dialog.GetListFileFlag());
    EXPECT_EQ(desktop.FileDialogs()[0].fileName, path);
}

TEST_F(ListSelFiles, ACancelledDialogLeavesAListFileInUse) {
    Given("<LIST>", {"X"});
    dialog.SetListFileName(folder.Dialog("lists\\l.txt"));
    dialog.SetListFileFlag(true);
    desktop.ExpectFileCancel();
    Run(dialog, [](kv::User& user) {
        user.Click(kListFileButton);
        EXPECT_TRUE(user.Checked(kListFileCheck));
    });
    EXPECT_TRUE(dialog.GetListFileFlag());
}

TEST_F(ListSelFiles, TheLeaseDialogHasItsOwnWayToTheListFile) {
    folder.Write("lists/l.txt", "");
    desktop.ExpectFile(folder.Dialog("lists\\l.txt"));
    desktop.ExpectFileCancel();
    CKvGuiLeaseListSel lease("lease_no", "lease", &combo, values, kLeaseTemplate, nullptr);
    Run(lease, [](kv::User& user) {
        user.Click(kListFileButton);
        EXPECT_TRUE(user.Checked(kListFileCheck));
        user.Click(kListFileCheck);
        user.Click(kListFileCheck);
        EXPECT_FALSE(user.Checked(kListFileCheck));
        user.Click(IDOK);
    });
    EXPECT_FALSE(lease.GetListFileFlag());
    EXPECT_EQ(lease.GetListFileName(), folder.Dialog("lists\\l.txt"));
}

}  // namespace
