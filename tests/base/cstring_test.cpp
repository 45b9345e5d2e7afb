#include "base/cstring.h"

#include <gtest/gtest.h>

#include <cstring>
#include <sstream>

#include "support/comma_locale.h"

namespace {

TEST(CString, BeginsEmpty) {
    const CString text;
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(text.GetLength(), 0);
    EXPECT_STREQ(text, "");
}

TEST(CString, IsMadeFromEveryKindOfText) {
    EXPECT_EQ(CString("Green Canyon"), "Green Canyon");
    EXPECT_EQ(CString(std::string("GC")), "GC");
    EXPECT_EQ(CString('x', 3), "xxx");
    EXPECT_EQ(CString('x'), "x");
    EXPECT_EQ(CString('x', -1), "");
    EXPECT_EQ(CString(static_cast<LPCTSTR>(nullptr)), "");
}

TEST(CString, KeepsBytesThatAreNoUtf8) {
    const CString degree("29\xB0");
    EXPECT_EQ(degree.GetLength(), 3);
    EXPECT_EQ(degree.GetAt(2), '\xB0');
}

TEST(CString, ComparesByByteWithTextsOfAnyKind) {
    const CString text("beta");
    EXPECT_TRUE(text == "beta");
    EXPECT_TRUE("beta" == text);
    EXPECT_TRUE(text == std::string("beta"));
    EXPECT_TRUE(text != "Beta");
    EXPECT_TRUE(text < CString("gamma"));
    EXPECT_TRUE("alpha" < text);
    EXPECT_TRUE(text > "Beta");
    EXPECT_LT(text.Compare("betas"), 0);
    EXPECT_EQ(text.Compare("beta"), 0);
    EXPECT_GT(text.Compare("bet"), 0);
}

TEST(CString, ComparesWithoutCaseForAsciiLettersAlone) {
    EXPECT_EQ(CString("Main Pass").CompareNoCase("MAIN PASS"), 0);
    EXPECT_LT(CString("a").CompareNoCase("B"), 0);
    EXPECT_GT(CString("ab").CompareNoCase("A"), 0);
    EXPECT_NE(CString("\xC4").CompareNoCase("\xE4"), 0);
}

TEST(CString, JoinsTextsOfEveryKind) {
    const CString area("MP");
    EXPECT_EQ(area + CString("#"), "MP#");
    EXPECT_EQ(area + "#", "MP#");
    EXPECT_EQ("#" + area, "#MP");
    EXPECT_EQ(area + '#', "MP#");
    EXPECT_EQ('#' + area, "#MP");
    EXPECT_EQ(area + std::string("#ALL"), "MP#ALL");
    CString grown(area);
    grown += '#';
    grown += "12";
    grown += CString("3");
    EXPECT_EQ(grown, "MP#123");
}

TEST(CString, TakesPartOfItself) {
    CString text("abcdef");
    text = static_cast<LPCTSTR>(text) + 2;
    EXPECT_EQ(text, "cdef");
    text += text;
    EXPECT_EQ(text, "cdefcdef");
    text.Insert(1, static_cast<LPCTSTR>(text) + 4);
    EXPECT_EQ(text, "ccdefdefcdef");
}

TEST(CString, ReadsAndSetsOneCharacter) {
    CString text("abc");
    EXPECT_EQ(text[1], 'b');
    EXPECT_EQ(text.GetAt(3), '\0');
    EXPECT_EQ(text.GetAt(-1), '\0');
    text.SetAt(1, 'X');
    text.SetAt(3, 'Y');
    text.SetAt(-1, 'Y');
    EXPECT_EQ(text, "aXc");
    text.Empty();
    EXPECT_TRUE(text.IsEmpty());
}

TEST(CString, FindsCharactersAndTexts) {
    const CString path("C:\\a\\b\\file.txt");
    EXPECT_EQ(path.Find('\\'), 2);
    EXPECT_EQ(path.Find('\\', 3), 4);
    EXPECT_EQ(path.Find("b\\"), 5);
    EXPECT_EQ(path.Find("b\\", 6), -1);
    EXPECT_EQ(path.ReverseFind('\\'), 6);
    EXPECT_EQ(path.ReverseFind('?'), -1);
    EXPECT_EQ(path.FindOneOf(".\\"), 2);
    EXPECT_EQ(path.FindOneOf("?*"), -1);
}

TEST(CString, FindsNothingFromAStartOutsideTheText) {
    const CString text("abc");
    EXPECT_EQ(text.Find('a', -1), -1);
    EXPECT_EQ(text.Find('a', 3), -1);
    EXPECT_EQ(text.Find("a", 4), -1);
    EXPECT_EQ(text.Find("", 2), 2);
    EXPECT_EQ(text.Find(static_cast<LPCTSTR>(nullptr)), -1);
}

TEST(CString, CutsPositionsAndCountsToTheText) {
    const CString text("abcdef");
    EXPECT_EQ(text.Mid(2), "cdef");
    EXPECT_EQ(text.Mid(2, 3), "cde");
    EXPECT_EQ(text.Mid(4, 99), "ef");
    EXPECT_EQ(text.Mid(6), "");
    EXPECT_EQ(text.Mid(99, 2), "");
    EXPECT_EQ(text.Mid(-2, 2), "ab");
    EXPECT_EQ(text.Mid(2, -1), "");
    EXPECT_EQ(text.Left(2), "ab");
    EXPECT_EQ(text.Left(99), "abcdef");
    EXPECT_EQ(text.Left(-1), "");
    EXPECT_EQ(text.Right(2), "ef");
    EXPECT_EQ(text.Right(99), "abcdef");
    EXPECT_EQ(text.Right(-1), "");
}

TEST(CString, TrimsWhiteSpaceOrGivenCharacters) {
    EXPECT_EQ(CString(" \t\r\n\v\fa b \n").TrimLeft(), "a b \n");
    EXPECT_EQ(CString(" a b \t\r\n\v\f").TrimRight(), " a b");
    EXPECT_EQ(CString("  a b  ").Trim(), "a b");
    EXPECT_EQ(CString(" \t ").Trim(), "");
    EXPECT_EQ(CString("00120").TrimLeft('0'), "120");
    EXPECT_EQ(CString("00120").TrimRight('0'), "0012");
    EXPECT_EQ(CString("00120").Trim('0'), "12");
    EXPECT_EQ(CString("-+12+-").Trim("+-"), "12");
    EXPECT_EQ(CString("-+12+-").TrimLeft("+-"), "12+-");
    EXPECT_EQ(CString("-+12+-").TrimRight("+-"), "-+12");
}

TEST(CString, ChangesTheCaseOfAsciiLettersAlone) {
    EXPECT_EQ(CString("Main \xE4 12").MakeUpper(), "MAIN \xE4 12");
    EXPECT_EQ(CString("Main \xC4 12").MakeLower(), "main \xC4 12");
}

TEST(CString, ReplacesRemovesInsertsAndDeletes) {
    CString text("a~b~c");
    EXPECT_EQ(text.Replace('~', ' '), 2);
    EXPECT_EQ(text, "a b c");
    EXPECT_EQ(text.Replace(" ", " , "), 2);
    EXPECT_EQ(text, "a , b , c");
    EXPECT_EQ(text.Replace("", "x"), 0);
    EXPECT_EQ(text.Replace("nothing", "x"), 0);
    EXPECT_EQ(text.Remove(' '), 4);
    EXPECT_EQ(text, "a,b,c");
    EXPECT_EQ(text.Insert(1, "--"), 7);
    EXPECT_EQ(text.Insert(-5, '<'), 8);
    EXPECT_EQ(text.Insert(99, '>'), 9);
    EXPECT_EQ(text, "<a--,b,c>");
    EXPECT_EQ(text.Delete(2, 2), 7);
    EXPECT_EQ(text.Delete(0), 6);
    EXPECT_EQ(text.Delete(5, 99), 5);
    EXPECT_EQ(text.Delete(99), 5);
    EXPECT_EQ(text.Delete(0, -1), 5);
    EXPECT_EQ(text, "a,b,c");
}

TEST(CString, FormatsAsPrintf) {
    CString text;
    text.Format("%d%c", 45, '%');
    EXPECT_EQ(text, "45%");
    text.Format("%s # %5.2f|%-6s|%06d|%x|%u%%", "MP", 1.005, "ab", -42, 255u, 7u);
    EXPECT_EQ(text, "MP #  1.00|ab    |-00042|ff|7%");
    text.Format("%*d|%-*d|%.*s|%.3s|%ld|%lld|%zu", 5, 1, 4, 2, 2, "abc", "defg", 7L, 8LL,
                static_cast<std::size_t>(9));
    EXPECT_EQ(text, "    1|2   |ab|def|7|8|9");
    text.Format("%s", text.GetString());
    EXPECT_EQ(text, "    1|2   |ab|def|7|8|9");
}

TEST(CString, FormatsExponentsWithThreeDigits) {
    CString text;
    text.Format("[%g][%G][%e][%12.3e][%-12.3e][%012.3e][%+g]", 1e20, 1e-7, 1.5, 1.5, 1.5, -1.5,
                1e10);
    EXPECT_EQ(text,
              "[1e+020][1E-007][1.500000e+000][  1.500e+000][1.500e+000  ][-01.500e+000]"
              "[+1e+010]");
}

TEST(CString, FormatsWithAPointWhateverTheLocale) {
    const test::CommaLocale locale;
    if (!locale.Found()) GTEST_SKIP() << "no locale with a decimal comma";
    CString text;
    text.Format("%.2f", 1234.5);
    EXPECT_EQ(text, "1234.50");
}

TEST(CString, LendsABufferToWriteTo) {
    CString text("abc");
    char* buffer = text.GetBuffer(10);
    EXPECT_STREQ(buffer, "abc");
    std::strcpy(buffer, "longer");
    text.ReleaseBuffer();
    EXPECT_EQ(text, "longer");
    EXPECT_EQ(text.GetLength(), 6);
    text.GetBuffer();
    text.ReleaseBuffer(4);
    EXPECT_EQ(text, "long");
}

TEST(CString, IsAStandardStringWhenAsked) {
    const CString text("abc");
    EXPECT_EQ(text.str(), std::string("abc"));
    std::ostringstream out;
    out << text;
    EXPECT_EQ(out.str(), "abc");
}

}  // namespace
