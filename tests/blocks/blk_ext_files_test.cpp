// Import and Export, through the controls.

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "blocks/block_files_fixture.h"
#include "blocks/import_config_dlg.h"
#include "blocks/import_config_ids.h"
#include "support/file_faults.h"
#include "support/file_size_limit.h"
#include "support/plain_user.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using ::testing::SizeIs;
using namespace kv::blk_ext;
using kv::blocks::Place;
namespace fs = std::filesystem;

constexpr const char* kWrongFormat = "The file is wrong format";
constexpr const char* kConfig = "CKvImportConfigDlg";

class BlkExtFiles : public BlockFilesTest {
protected:
    /// The entries after a file with that content was imported; with a message if one is to come.
    std::vector<std::string> Imported(const std::string& content, const char* message = nullptr) {
        folder.Write("lists/in.txt", content);
        desktop.ExpectFile(folder.Dialog("lists\\in.txt"));
        if (message) desktop.ExpectMessage(message);
        Run(dialog, [](kv::User& user) { user.Click(kImport); });
        return Entries();
    }
    /// The same for a user's own file, of which `tell` says how its lines are made.
    std::vector<std::string> ImportedAsTold(const std::string& content,
                                            const std::function<void(kv::User&)>& tell) {
        folder.Write("lists/in.txt", content);
        desktop.ExpectFile(folder.Dialog("lists\\in.txt"));
        desktop.ExpectWindow(kConfig, tell);
        Run(dialog, [](kv::User& user) { user.Click(kImport); });
        return Entries();
    }
    static void CloseConfig(kv::User& user) { user.Click(IDOK); }

    std::string Exported() {
        desktop.ExpectFile(folder.Dialog("out.txt"));
        Run(dialog, [](kv::User& user) { user.Click(kExport); });
        return folder.Read("out.txt");
    }
};

// Import.

TEST_F(BlkExtFiles, ImportAsksInTheReportFolderOfTheWorkFolder) {
    desktop.ExpectFileCancel();
    Run(dialog, [](kv::User& user) { user.Click(kImport); });
    ASSERT_THAT(desktop.FileDialogs(), SizeIs(1));
    const kv::FileDialogRequest& asked = desktop.FileDialogs()[0];
    EXPECT_TRUE(asked.open);
    EXPECT_EQ(asked.title, "Open Text File");
    EXPECT_THAT(kv::ParseFilter(asked.filter),
                ElementsAre(kv::FileFilter{"Text files *.txt", "*.txt"}));
    EXPECT_EQ(asked.defaultExtension, "TXT");
    EXPECT_EQ(asked.initialFolder, folder.Dialog("work") + "\\REPORT");
    EXPECT_EQ(ImportFolder(), folder.Dialog("work") + "\\REPORT");
    ExpectHomeIsCurrent();
}

TEST_F(BlkExtFiles, ImportAddsToWhatIsSelectedAndRemembersTheFolder) {
    Given({{"PLAIN", ""}, {"GRAND ISLE", "9A"}});
    EXPECT_THAT(Imported("AREA NAME\tBlock\tExt.\nGrand Isle\t9\tA\t\nGulf Bay\t45\t \t\n"),
                ElementsAre("PLAIN/", "GRAND ISLE/9A", "GULF BAY/45"));
    EXPECT_EQ(ImportFolder(), folder.Dialog("lists\\"));
    ExpectHomeIsCurrent();
}

TEST_F(BlkExtFiles, ImportShowsWhatItAdded) {
    folder.Write("in.txt", "area name\nplain\t\n");
    desktop.ExpectFile(folder.Dialog("in.txt"));
    Run(dialog, [](kv::User& user) {
        user.Click(kImport);
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("PLAIN\t"));
        EXPECT_TRUE(user.Enabled(kClear));
        EXPECT_FALSE(user.Enabled(kRemove));
    });
}

TEST_F(BlkExtFiles, ImportTakesTheVocabularyOfTheHeaderWhereNothingIsSelected) {
    CNeighborBlocks* before = nullptr;
    folder.Write("in.txt", "AreaCode\tBlock\n017\t9\t\n");
    desktop.ExpectFile(folder.Dialog("in.txt"));
    Run(dialog, [&](kv::User& user) {
        before = dialog.GetNeighborBlockPointer();
        user.Click(kImport);
    });
    EXPECT_THAT(Entries(), ElementsAre("017/9"));
    EXPECT_EQ(dialog.GetFieldString(), "stcode");
    EXPECT_NE(before, nullptr);
}

TEST_F(BlkExtFiles, ImportTakesAreaNamesAheadOfMmsCodesAheadOfAreaCodes) {
    Imported("MMS CODE\tAREA CODE\nGI\t\n");
    EXPECT_EQ(dialog.GetFieldString(), "area_abbr");
    Given({});
    Imported("AREA CODE\tAREA NAME\nGI\t\n");
    EXPECT_EQ(dialog.GetFieldString(), "areaname");
}

TEST_F(BlkExtFiles, ImportRefusesAnotherVocabularyThanThatOfTheSelection) {
    Given({{"PLAIN", ""}});
    EXPECT_THAT(Imported("MMS CODE\tBlock\tExt.\nGI\t9\t \t\n", kWrongFormat),
                ElementsAre("PLAIN/"));
    EXPECT_EQ(dialog.GetFieldString(), "areaname");
}

TEST_F(BlkExtFiles, ImportTakesMmsCodesWhereTheFieldIsNoneOfTheThree) {
    dialog.SetFieldString("region");
    Given({{"GI", ""}});
    EXPECT_THAT(Imported("MMS CODE\tBlock\tExt.\nGI\t9\t \t\n"), ElementsAre("GI/", "GI/9"));
    EXPECT_EQ(dialog.GetFieldString(), "area_abbr");
}

TEST_F(BlkExtFiles, ImportOfAHeaderAloneAddsNothing) {
    EXPECT_THAT(Imported("MMS CODE"), IsEmpty());
    EXPECT_THAT(Imported("MMS CODE\tBlock\tExt.\n"), IsEmpty());
}

TEST_F(BlkExtFiles, ImportReadsLineEndsOfTheOtherKindAlike) {
    EXPECT_THAT(Imported("AREA NAME\tBlock\tExt.\r\nPLAIN\t9\tA\t\r\nGULF BAY\t1\t \t\r\n\r\n"
                         "***Neighborhood Relationship***\r\n[PLAIN]\t9A\r\nGULF~BAY\t1\r\n"),
                ElementsAre("PLAIN/9A", "GULF BAY/1"));
    EXPECT_THAT(dialog.GetNeighborRel(),
                ElementsAre(Pair(Place("PLAIN", "9A"), ElementsAre(Place("GULF BAY", "1")))));
}

TEST_F(BlkExtFiles, ImportReadsFilesOfAnyLength) {
    const std::string header = "AREA NAME\tBlock\tExt.\n";
    for (const std::size_t length : {999u, 1000u, 1001u, 2000u, 10000u}) {
        SCOPED_TRACE(length);
        Given({});
        std::string content = header + "FIRST\t1\t \t\n";
        const std::string last = "\t2\t \t\n";
        content += std::string(length - content.size() - last.size(), 'X') + last;
        EXPECT_EQ(content.size(), length);
        Imported(content);
        EXPECT_THAT(selection.second, ElementsAre("1", "2"));
    }
}

TEST_F(BlkExtFiles, ImportReadsTheNeighborsAlsoWhereTheMarkerIsMissing) {
    // The text ends in the search for the marker.
    Imported("AREA NAME\tBlock\tExt.\nPLAIN\t9\tA\t\n");
    EXPECT_THAT(dialog.GetNeighborRel(), IsEmpty());
    // The extension N is a part of the marker.
    Imported("AREA NAME\tBlock\tExt.\nPLAIN\t9\tN\t\nGULF\t1\tB\t\n");
    EXPECT_THAT(dialog.GetNeighborRel(),
                ElementsAre(Pair(Place("", ""), ElementsAre(Place("1", "B")))));
}

TEST_F(BlkExtFiles, ImportReadsWhatAnyEditorWrites) {
    using namespace std::string_literals;
    EXPECT_THAT(Imported("\xEF\xBB\xBF"
                         "MMS CODE\r\nAB\t\r\n"),
                ElementsAre("AB/"));
    Given({});
    EXPECT_THAT(Imported("\xFF\xFEM\0M\0S\0 \0C\0O\0D\0E\0\n\0C\0D\0\t\0\n\0"s),
                ElementsAre("CD/"));
    Given({});
    EXPECT_THAT(Imported("AREA NAME\tBlock\rEF\t9\t\r\r***Neighborhood Relationship***\r"
                         "[EF]\t9\rGH\t1\r"),
                ElementsAre("EF/9"));
    EXPECT_THAT(dialog.GetNeighborRel(),
                ElementsAre(Pair(Place("EF", "9"), ElementsAre(Place("GH", "1")))));
}

TEST_F(BlkExtFiles, TheHeadIsCountedInTheDecodedText) {
    // The words stand in the first 60 characters, and beyond the first 60 bytes of the file.
    std::string wide = "\xFF\xFE";
    for (const char ch : std::string(44, ' ') + "Block\tMMS CODE\nAB\t9\t\n") {
        wide += ch;
        wide += '\0';
    }
    EXPECT_THAT(Imported(wide), ElementsAre("AB/9"));
    Given({});
    EXPECT_THAT(Imported("\xEF\xBB\xBF" + std::string(52, ' ') + "MMS CODE\nCD\t\n"),
                ElementsAre("CD/"));
    Given({});
    EXPECT_THAT(ImportedAsTold(std::string(53, ' ') + "MMS CODE\nEF\t\n", CloseConfig),
                ElementsAre("EF/"));
}

TEST_F(BlkExtFiles, ImportOfWhatIsNotTextIsRefused) {
    using namespace std::string_literals;
    Given({{"PLAIN", ""}});
    dialog.SetFieldString("area_abbr");
    EXPECT_THAT(Imported("MMS CODE\nAB\t\nC\0D\t\nEF\t\n"s, kWrongFormat), ElementsAre("PLAIN/"));
    EXPECT_THAT(Imported("M\0M\0S\0 \0C\0O\0D\0E\0"s, kWrongFormat), ElementsAre("PLAIN/"));
    EXPECT_EQ(desktop.ScenesLeft(), 0);
}

TEST_F(BlkExtFiles, AnEmptyFileIsAUsersFileWithoutLines) {
    EXPECT_THAT(ImportedAsTold("", CloseConfig), IsEmpty());
}

TEST_F(BlkExtFiles, ImportOfAPipeIsToldAndDoesNotWait) {
    ASSERT_EQ(mkfifo(folder.Native("pipe.txt").c_str(), 0600), 0);
    desktop.ExpectFile(folder.Dialog("pipe.txt"));
    desktop.ExpectMessage(kNotOpened);
    Run(dialog, [](kv::User& user) { user.Click(kImport); });
    EXPECT_EQ(desktop.ScenesLeft(), 0);
}

TEST_F(BlkExtFiles, ImportOfAFileThatIsNotThereIsTold) {
    desktop.ExpectFile(folder.Dialog("none.txt"));
    desktop.ExpectMessage(kNotOpened);
    fs::create_directories(folder.Native("folder.txt"));
    desktop.ExpectFile(folder.Dialog("folder.txt"));
    desktop.ExpectMessage(kNotOpened);
    Run(dialog, [](kv::User& user) {
        user.Click(kImport);
        user.Click(kImport);
    });
    EXPECT_THAT(Entries(), IsEmpty());
    ExpectHomeIsCurrent();
}

// A user's own file.

TEST_F(BlkExtFiles, AFileWithoutAKnownHeaderIsReadAsTheUserTells) {
    EXPECT_THAT(ImportedAsTold("my blocks\n gi \t 45 a\n\nlost\t1\n", CloseConfig),
                ElementsAre("GI/45a"));
    EXPECT_EQ(dialog.GetFieldString(), "area_abbr");
}

TEST_F(BlkExtFiles, TheUserTellsVocabularyOrderAndDelimiters) {
    EXPECT_THAT(ImportedAsTold("\nPlain;A/45\n",
                               [](kv::User& user) {
                                   user.Click(kv::import_config::kAreaNames);
                                   user.Click(kv::import_config::kExtFirst);
                                   user.Click(kv::import_config::kHasExtDelimiter);
                                   user.Type(kv::import_config::kExtDelimiter, "/");
                                   user.Click(kv::import_config::kTab);
                                   user.Type(kv::import_config::kColumnDelimiter, ";");
                                   user.Click(IDOK);
                               }),
                ElementsAre("PLAIN/45A"));
    EXPECT_EQ(dialog.GetFieldString(), "areaname");
}

TEST_F(BlkExtFiles, AUsersFileInAForbiddenVocabularyIsRefused) {
    Given({{"PLAIN", ""}});
    desktop.ExpectFile(folder.Dialog("lists\\in.txt"));
    desktop.ExpectWindow(kConfig, CloseConfig);
    desktop.ExpectMessage(kWrongFormat);
    folder.Write("lists/in.txt", "x\nGI\t1\n");
    Run(dialog, [](kv::User& user) { user.Click(kImport); });
    EXPECT_THAT(Entries(), ElementsAre("PLAIN/"));
    EXPECT_EQ(dialog.GetFieldString(), "areaname");
}

TEST_F(BlkExtFiles, AUsersFileHasNeighborsOnlyBehindTheWholeMarker) {
    ImportedAsTold("N\nAA\t1\nBB\t2\n", CloseConfig);
    EXPECT_THAT(dialog.GetNeighborRel(), IsEmpty());
    ImportedAsTold("x\nCC\t3\n\n***Neighborhood Relationship***\n[CC]\t3\nAA\t1\n", CloseConfig);
    EXPECT_THAT(Entries(), ElementsAre("AA/1", "BB/2", "CC/3"));
    EXPECT_THAT(dialog.GetNeighborRel(),
                ElementsAre(Pair(Place("CC", "3"), ElementsAre(Place("AA", "1")))));
}

// Export.

TEST_F(BlkExtFiles, ExportMakesTheImportFolderAndAsksThere) {
    fs::remove(folder.Native("work/Report"));
    desktop.ExpectFileCancel();
    Run(dialog, [](kv::User& user) { user.Click(kExport); });
    EXPECT_TRUE(folder.Has("work/REPORT"));
    ASSERT_THAT(desktop.FileDialogs(), SizeIs(1));
    const kv::FileDialogRequest& asked = desktop.FileDialogs()[0];
    EXPECT_FALSE(asked.open);
    EXPECT_EQ(asked.title, "Save Text File");
    EXPECT_THAT(kv::ParseFilter(asked.filter),
                ElementsAre(kv::FileFilter{"Text files *.txt", "*.txt"}));
    EXPECT_EQ(asked.defaultExtension, "TXT");
    EXPECT_EQ(asked.initialFolder, folder.Dialog("work") + "\\REPORT");
    ExpectHomeIsCurrent();
}

TEST_F(BlkExtFiles, ExportWritesEntriesAndNeighbors) {
    Given({{"Grand Isle", "45A-S"}, {"PLAIN", ""}, {"PLAIN", " "}, {"GULF BAY", "7"}});
    dialog.GetNeighborRel()[{"Grand Isle", "45A-S"}] = {{"GULF BAY", "7"}, {"X", "1"}};
    EXPECT_EQ(Exported(),
              "AREA NAME\tBlock\tExt.\n"
              "Grand Isle\t45\tA-S\t\n"
              "PLAIN\t \t \t\n"
              "PLAIN\t \t \t\n"
              "GULF BAY\t7\t \t\n"
              "\n"
              "***Neighborhood Relationship***\n"
              "[Grand~Isle]\t45A-S\n"
              "GULF~BAY\t7\n"
              "X\t1\n");
    EXPECT_EQ(ImportFolder(), kv::FolderOf(folder.Dialog("out.txt")));
    ExpectHomeIsCurrent();
}

TEST_F(BlkExtFiles, ExportOfNothingWritesHeaderAndMarker) {
    dialog.SetFieldString("stcode");
    EXPECT_EQ(Exported(), "AREA CODE\tBlock\tExt.\n\n***Neighborhood Relationship***\n");
    dialog.SetFieldString("region");
    EXPECT_EQ(Exported(), "\n***Neighborhood Relationship***\n");
}

TEST_F(BlkExtFiles, ExportPutsTheExtensionBehindANameWithoutOne) {
    desktop.ExpectFile(folder.Dialog("out"));
    Run(dialog, [](kv::User& user) { user.Click(kExport); });
    EXPECT_TRUE(folder.Has("out.TXT"));
}

TEST_F(BlkExtFiles, WhatIsExportedComesBackWithTheLossesOfTheLayout) {
    Given({{"GRAND ISLE", "45A"},
           {"GRAND ISLE", "45A-S"},
           {"GRAND ISLE", "045A"},
           {"GRAND ISLE", "A12"},
           {"mixed Case", "7"},
           {"PLAIN", ""}});
    dialog.GetNeighborRel()[{"GRAND ISLE", "45A"}] = {{"mixed Case", "7"}};
    const kv::blocks::NeighborRelation relation = dialog.GetNeighborRel();
    Exported();
    Given({});
    dialog.ClearNBMap();
    desktop.ExpectFile(folder.Dialog("out.txt"));
    Run(dialog, [](kv::User& user) { user.Click(kImport); });
    EXPECT_THAT(Entries(), ElementsAre("GRAND ISLE/45A", "GRAND ISLE/45A-S", "GRAND ISLE/455A",
                                       "GRAND ISLE/012", "MIXED CASE/7", "PLAIN/"));
    EXPECT_EQ(dialog.GetNeighborRel(), relation);
}

TEST_F(BlkExtFiles, ExportOntoAFullDiskIsToldAndLeavesTheFileThatWasThere) {
    folder.Write("out.txt", "before");
    Given({});
    for (int i = 0; i < 1000; ++i) {
        selection.first.push_back("AREA");
        selection.second.push_back(std::to_string(i));
    }
    desktop.ExpectFile(folder.Dialog("out.txt"));
    desktop.ExpectMessage("Could not write to the file");
    Run(dialog, [](kv::User& user) {
        const test::FileSizeLimit limit(4096);
        user.Click(kExport);
    });
    EXPECT_EQ(folder.Read("out.txt"), "before");
}

TEST_F(BlkExtFiles, ExportIntoAFolderThatIsClosedIsTold) {
    folder.Write("closed/out.txt", "before");
    const std::string closed = folder.Native("closed");
    const auto toldAndUntouched = [&] {
        desktop.ExpectFile(folder.Dialog("closed\\out.txt"));
        desktop.ExpectMessage("Could not write to the file");
        Run(dialog, [](kv::User& user) { user.Click(kExport); });
        return desktop.Messages().size() == 1 && folder.Read("closed/out.txt") == "before";
    };
    EXPECT_EXIT(
        {
            fs::permissions(folder.Native(), fs::perms::all);
            fs::permissions(closed, fs::perms::owner_read | fs::perms::owner_exec);
            test::ExitAsPlainUser(closed, toldAndUntouched);
        },
        ::testing::ExitedWithCode(0), "");
    fs::permissions(closed, fs::perms::owner_all);
}

// Fixed widths, which no control leads to.

TEST_F(BlkExtFiles, FixedWidthsComeBackAsTheyWent) {
    for (const char* field : {"areaname", "stcode"}) {
        SCOPED_TRACE(field);
        dialog.SetFieldString(field);
        Given({{"A 1", "45A"}, {"B", ""}, {"C", "7"}});
        std::ofstream out(folder.Native("fixed.txt"));
        dialog.ExportWithFixedSizes(out);
        dialog.ExportNeighborBlockInfo(out);
        out.close();
        Given({});
        dialog.ImportWithFixedSizes(folder.Dialog("fixed.txt"));
        EXPECT_THAT(Entries(), ElementsAre("A 1/45A", "B/", "C/7"));
    }
}

TEST_F(BlkExtFiles, FixedWidthsAreReadByTheFieldAndTheColumnsOfTheHeader) {
    dialog.SetFieldString("stcode");
    folder.Write("one.txt", "AreaCode\n4261\n017  \n");
    dialog.ImportWithFixedSizes(folder.Dialog("one.txt"));
    EXPECT_THAT(Entries(), ElementsAre("4261/", "017/"));
    Given({});
    folder.Write("two.txt", "Area Code\tBlock\r\n4261 \t45        \tA  \r\n");
    dialog.ImportWithFixedSizes(folder.Dialog("two.txt"));
    EXPECT_THAT(Entries(), ElementsAre("4261/45"));
}

TEST_F(BlkExtFiles, FixedWidthsOfAnotherVocabularyAreRefused) {
    for (int i = 0; i < 3; ++i)
        desktop.ExpectMessage(kWrongFormat);
    desktop.ExpectMessage(kNotOpened);
    folder.Write("names.txt", "AREA NAME\nA\n");
    folder.Write("codes.txt", "MMS CODE\nA\n");
    dialog.ImportWithFixedSizes(folder.Dialog("codes.txt"));
    dialog.SetFieldString("stcode");
    dialog.ImportWithFixedSizes(folder.Dialog("names.txt"));
    dialog.SetFieldString("area_abbr");
    dialog.ImportWithFixedSizes(folder.Dialog("codes.txt"));
    dialog.ImportWithFixedSizes(folder.Dialog("none.txt"));
    EXPECT_THAT(Entries(), IsEmpty());
}

TEST_F(BlkExtFiles, EntriesAndNeighborsAreReadAtOnceOrNotAtAll) {
    folder.Write("in.txt", "h\nA\t1\t \t\n\n***Neighborhood Relationship***\n[A]\t1\nB\t2\n");
    const std::string path = folder.Dialog("in.txt");
    for (const int failing : {1, 2}) {
        SCOPED_TRACE(failing);
        desktop.ExpectMessage(kNotOpened);
        const test::FileFaults faults(failing);
        EXPECT_FALSE(dialog.ReadImportFile(path, 3));
        EXPECT_EQ(desktop.ScenesLeft(), 0);
        EXPECT_THAT(Entries(), IsEmpty());
        EXPECT_THAT(dialog.GetNeighborRel(), IsEmpty());
    }
    const test::FileFaults none(0);
    EXPECT_TRUE(dialog.ReadImportFile(path, 3));
    EXPECT_EQ(none.Calls(), 2);
    EXPECT_THAT(Entries(), ElementsAre("A/1"));
    EXPECT_THAT(dialog.GetNeighborRel(), SizeIs(1));
}

TEST_F(BlkExtFiles, ReadersTellWhetherTheFileCouldBeRead) {
    desktop.ExpectMessage(kNotOpened);
    EXPECT_FALSE(dialog.ReadImportFile(folder.Dialog("none.txt"), 3));
    desktop.ExpectMessage(kNotOpened);
    EXPECT_FALSE(dialog.ReadImportFile(folder.Dialog("none.txt"), false, ",", "-"));
    desktop.ExpectMessage(kNotOpened);
    EXPECT_FALSE(dialog.ReadImportFile(folder.Dialog("none.txt"), 5, 5, 5));
    folder.Write("in.txt", "h\nA\t1\t \t\n");
    EXPECT_TRUE(dialog.ReadImportFile(folder.Dialog("in.txt"), 3));
    EXPECT_TRUE(dialog.ReadImportFile(folder.Dialog("in.txt"), -1, -1, -1));
    EXPECT_THAT(Entries(), ElementsAre("A/1"));
    folder.Write("lines.txt", "B,2\n");
    EXPECT_TRUE(dialog.ReadImportFile(folder.Dialog("lines.txt"), false, ",", "-"));
    desktop.ExpectMessage(kNotOpened);
    dialog.ImportNeighborBlockInfo(folder.Dialog("none.txt"));
    EXPECT_THAT(dialog.GetNeighborRel(), IsEmpty());
    EXPECT_EQ(desktop.ScenesLeft(), 0);
}

}  // namespace
