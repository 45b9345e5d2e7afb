#include "base/file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <stdexcept>

#include "support/file_size_limit.h"
#include "support/temp_folder.h"

namespace {

using test::TempFolder;

std::vector<std::string> Found(const std::string& pattern) {
    std::vector<std::string> names;
    CFileFind finder;
    bool more = finder.FindFile(pattern.c_str());
    while (more) {
        more = finder.FindNextFile();
        names.push_back(finder.GetFileName().str());
    }
    return names;
}

TEST(CFile, ReadsBytesOneByOneToTheEnd) {
    const TempFolder folder;
    folder.Write("a.txt", "a\r\n");
    CFile file;
    ASSERT_TRUE(file.Open(folder.Dialog("a.txt").c_str(), CFile::modeRead | CFile::shareDenyNone));
    EXPECT_EQ(file.GetLength(), 3u);
    std::string read;
    char byte = 0;
    while (file.Read(&byte, 1) == 1)
        read += byte;
    EXPECT_EQ(read, "a\r\n");
    EXPECT_EQ(file.GetFilePath(), folder.Dialog("a.txt"));
    EXPECT_TRUE(file.Close());
    EXPECT_EQ(file.Read(&byte, 1), 0u);
}

TEST(CFile, ReadGivesFewerBytesOnlyAtTheEnd) {
    const TempFolder folder;
    folder.Write("a", "abcde");
    CFile file;
    ASSERT_TRUE(file.Open(folder.Dialog("a").c_str(), CFile::modeRead));
    char buffer[4];
    EXPECT_EQ(file.Read(buffer, 4), 4u);
    EXPECT_EQ(file.Read(buffer, 4), 1u);
    EXPECT_EQ(buffer[0], 'e');
    EXPECT_EQ(file.Read(buffer, 4), 0u);
}

TEST(CFile, MakesAFileThatStandsThereOnceClosed) {
    const TempFolder folder;
    folder.Write("a.txt", "old and long");
    CFile file;
    ASSERT_TRUE(
        file.Open(folder.Dialog("A.txt").c_str(), CFile::modeCreate | CFile::modeReadWrite));
    EXPECT_TRUE(file.Write("new", 3));
    EXPECT_TRUE(file.Write("\r\n", 2));
    EXPECT_EQ(file.GetLength(), 5u);
    EXPECT_EQ(folder.Read("a.txt"), "old and long");
    EXPECT_TRUE(file.Close());
    EXPECT_EQ(folder.Read("a.txt"), "new\r\n");
    EXPECT_EQ(folder.Count(), 1u);
}

TEST(CFile, ClosesWhenItIsDestroyed) {
    const TempFolder folder;
    {
        CFile file;
        ASSERT_TRUE(file.Open(folder.Dialog("a").c_str(), CFile::modeCreate | CFile::modeWrite));
        EXPECT_TRUE(file.Write("x", 1));
    }
    EXPECT_EQ(folder.Read("a"), "x");
}

TEST(CFile, DropsWhatAnExceptionLeavesHalfWritten) {
    const TempFolder folder;
    folder.Write("a", "old");
    const auto write = [&](bool fails) {
        CFile file;
        ASSERT_TRUE(file.Open(folder.Dialog("a").c_str(), CFile::modeCreate | CFile::modeWrite));
        ASSERT_TRUE(file.Write("new", 3));
        if (fails) throw std::runtime_error("no more memory");
    };
    EXPECT_THROW(write(true), std::runtime_error);
    EXPECT_EQ(folder.Read("a"), "old");
    struct WritesWhileItGoes {
        decltype(write)& work;
        ~WritesWhileItGoes() { work(false); }
    };
    EXPECT_THROW(([&] {
                     const WritesWhileItGoes last{write};
                     throw std::runtime_error("something else");
                 })(),
                 std::runtime_error);
    EXPECT_EQ(folder.Read("a"), "new") << "whole, though an exception passes by further out";
}

TEST(CFile, DoesNotOpenWhatIsNotThereOrIsAFolder) {
    const TempFolder folder;
    CFile file;
    EXPECT_FALSE(file.Open(folder.Dialog("none").c_str(), CFile::modeRead));
    EXPECT_FALSE(file.Open(folder.Dialog().c_str(), CFile::modeRead));
    EXPECT_FALSE(file.Open(folder.Dialog().c_str(), CFile::modeCreate | CFile::modeWrite));
    EXPECT_FALSE(
        file.Open((folder.Dialog("none") + "\\a").c_str(), CFile::modeCreate | CFile::modeWrite));
    EXPECT_FALSE(file.Open("", CFile::modeRead));
    EXPECT_FALSE(file.Open(nullptr, CFile::modeRead));
    folder.Write("a", "x");
    EXPECT_FALSE(file.Open(folder.Dialog("a").c_str(), CFile::modeWrite));
    EXPECT_EQ(folder.Read("a"), "x");
    EXPECT_FALSE(file.Write("x", 1));
    EXPECT_TRUE(file.Close());
}

TEST(CFile, AFullDiskIsToldAndTheOldFileStays) {
    const TempFolder folder;
    folder.Write("a", "old");
    CFile file;
    ASSERT_TRUE(file.Open(folder.Dialog("a").c_str(), CFile::modeCreate | CFile::modeWrite));
    bool closed = true;
    {
        const test::FileSizeLimit limit(10);
        EXPECT_TRUE(file.Write("more than ten bytes", 19));
        closed = file.Close();
    }
    EXPECT_FALSE(closed);
    EXPECT_EQ(folder.Read("a"), "old");
    EXPECT_TRUE(file.Open(folder.Dialog("a").c_str(), CFile::modeRead));
    EXPECT_TRUE(file.Close());
}

TEST(CFile, DoesNotWaitForAPipe) {
    const TempFolder folder;
    ASSERT_EQ(mkfifo(folder.Native("pipe").c_str(), 0600), 0);
    CFile file;
    EXPECT_FALSE(file.Open(folder.Dialog("pipe").c_str(), CFile::modeRead));
}

TEST(CFile, TellsTheStatusOfAFile) {
    const TempFolder folder;
    folder.Write("Sub/a.txt", "12345");
    CFileStatus status;
    ASSERT_TRUE(CFile::GetStatus(folder.Dialog("sub").c_str(), status));
    EXPECT_EQ(status.m_attribute & CFile::directory, CFile::directory);
    ASSERT_TRUE(CFile::GetStatus((folder.Dialog("sub") + "\\A.TXT").c_str(), status));
    EXPECT_EQ(status.m_size, 5u);
    EXPECT_EQ(status.m_attribute & CFile::directory, 0);
    EXPECT_EQ(status.m_szFullName, folder.Dialog("Sub/a.txt"));
    EXPECT_FALSE(CFile::GetStatus(folder.Dialog("none").c_str(), status));
    EXPECT_EQ(status.m_size, 5u);
}

TEST(CFile, RemovesAFile) {
    const TempFolder folder;
    folder.Write("a", "");
    EXPECT_TRUE(CFile::Remove(folder.Dialog("A").c_str()));
    EXPECT_FALSE(folder.Has("a"));
    EXPECT_FALSE(CFile::Remove(folder.Dialog("A").c_str()));
}

TEST(CFileFind, ListsAFolderWithItsDotsFirst) {
    const TempFolder folder;
    for (const char* name : {"b.txt", "A.dat", "sub/x", "noext"})
        folder.Write(name, "");
    EXPECT_THAT(Found(folder.Dialog() + "\\*.*"),
                testing::ElementsAre(".", "..", "A.dat", "b.txt", "noext", "sub"));
    EXPECT_THAT(Found(folder.Dialog() + "\\*"), testing::SizeIs(6));
}

TEST(CFileFind, ARootHasNoDots) {
    const TempFolder folder;
    folder.Write("a", "");
    kv::MapDrive('D', folder.Native());
    EXPECT_THAT(Found("D:\\*.*"), testing::ElementsAre("a"));
}

TEST(CFileFind, MatchesPatternsWithoutRegardToCase) {
    const TempFolder folder;
    for (const char* name : {"one.TXT", "two.txt", "two.text", "a1", "a12"})
        folder.Write(name, "");
    EXPECT_THAT(Found(folder.Dialog() + "\\*.txt"), testing::ElementsAre("one.TXT", "two.txt"));
    EXPECT_THAT(Found(folder.Dialog() + "\\TWO.*"), testing::ElementsAre("two.text", "two.txt"));
    EXPECT_THAT(Found(folder.Dialog() + "\\a?"), testing::ElementsAre("a1"));
    EXPECT_THAT(Found(folder.Dialog() + "\\*o*t"),
                testing::ElementsAre("one.TXT", "two.text", "two.txt"));
    EXPECT_THAT(Found(folder.Dialog() + "\\*.dat"), testing::IsEmpty());
}

TEST(CFileFind, FindsOneFileByItsName) {
    const TempFolder folder;
    folder.Write("Sub/x", "");
    CFileFind finder;
    ASSERT_TRUE(finder.FindFile(folder.Dialog("SUB").c_str()));
    EXPECT_EQ(finder.GetFileName(), "");
    EXPECT_FALSE(finder.IsDirectory());
    EXPECT_FALSE(finder.FindNextFile());
    EXPECT_EQ(finder.GetFileName(), "Sub");
    EXPECT_EQ(finder.GetFilePath(), folder.Dialog("Sub"));
    EXPECT_TRUE(finder.IsDirectory());
    EXPECT_FALSE(finder.IsDots());
    EXPECT_FALSE(finder.FindNextFile());
    EXPECT_EQ(finder.GetFileName(), "Sub");
    finder.Close();
    EXPECT_EQ(finder.GetFileName(), "");
}

TEST(CFileFind, WithoutAPatternListsTheCurrentFolder) {
    const TempFolder folder;
    folder.Write("a.b.txt", "");
    ASSERT_TRUE(kv::ChangeFolder(folder.Dialog()));
    CFileFind finder;
    ASSERT_TRUE(finder.FindFile());
    EXPECT_TRUE(finder.FindNextFile());
    EXPECT_TRUE(finder.IsDots());
    EXPECT_TRUE(finder.FindNextFile());
    EXPECT_TRUE(finder.IsDots());
    EXPECT_FALSE(finder.FindNextFile());
    EXPECT_EQ(finder.GetFilePath(), folder.Dialog("a.b.txt"));
    EXPECT_EQ(finder.GetFileTitle(), "a.b");
}

TEST(CFileFind, FindsNothingWhereThereIsNoFolder) {
    const TempFolder folder;
    CFileFind finder;
    EXPECT_FALSE(finder.FindFile((folder.Dialog("none") + "\\*.*").c_str()));
    EXPECT_FALSE(finder.FindFile("Q:\\*.*"));
    EXPECT_FALSE(finder.FindFile((folder.Dialog() + "\\").c_str()));
    EXPECT_FALSE(finder.FindNextFile());
}

}  // namespace
