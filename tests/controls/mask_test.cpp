#include "controls/mask.h"

#include <gtest/gtest.h>

#include <string>

namespace {

kv::Mask Of(const char* pattern) {
    kv::Mask mask;
    EXPECT_TRUE(mask.SetPattern(pattern));
    return mask;
}

/// The text shown after these characters were typed one behind the other, those that the mask
/// refuses left out.
std::string Typed(kv::Mask mask, const std::string& characters) {
    int caret = 0;
    for (const char ch : characters)
        caret = mask.Enter(caret, std::string(1, ch)).value_or(caret);
    return mask.Shown();
}

TEST(Mask, EachSlotTakesItsOwnCharacters) {
    struct Row {
        const char* pattern;
        const char* taken;
        const char* refused;
    };
    constexpr Row kRows[] = {
        {"#", "0123456789", "aZ +-. &"}, {"9", "0123456789", "aZ +-. &"},
        {"?", "azAZ", "0 -."},           {"A", "azAZ09", " -.&"},
        {"a", "azAZ09", " -.&"},         {"&", "azAZ09 -.&~", "\t\x7F"},
        {"C", "azAZ09 -.&~", "\t\x7F"},
    };
    for (const Row& row : kRows) {
        for (const char* ch = row.taken; *ch; ++ch) {
            kv::Mask mask = Of(row.pattern);
            EXPECT_EQ(mask.Enter(0, std::string(1, *ch)), 1) << row.pattern << *ch;
            EXPECT_EQ(mask.Shown(), std::string(1, *ch));
        }
        for (const char* ch = row.refused; *ch; ++ch) {
            kv::Mask mask = Of(row.pattern);
            EXPECT_EQ(mask.Enter(0, std::string(1, *ch)), std::nullopt) << row.pattern << *ch;
            EXPECT_EQ(mask.Shown(), "_");
        }
    }
}

TEST(Mask, EverythingElseIsALiteral) {
    EXPECT_EQ(Of("(###) ###-####").Shown(), "(___) ___-____");
    EXPECT_EQ(Of("#.#,#:#/#").Shown(), "_._,_:_/_");
    EXPECT_EQ(Of("\\##").Shown(), "#_");
    EXPECT_EQ(Of("\\\\#\\A\\>").Shown(), "\\_A>");
    EXPECT_EQ(Of("#\\").Shown(), "_\\");
    EXPECT_EQ(Of("b0#").Shown(), "b0_");
}

TEST(Mask, CaseMarksTakeNoPlaceAndLastToTheNextOne) {
    EXPECT_EQ(Typed(Of(">?"
                       "?<?"
                       "?"),
                    "aBcD"),
              "ABcd");
    EXPECT_EQ(Typed(Of("?>?"), "aa"), "aA");
    EXPECT_EQ(Of(">").Shown(), "");
    EXPECT_TRUE(Of(">").Empty());
}

TEST(Mask, TypingSkipsLiterals) {
    EXPECT_EQ(Typed(Of("(###) ###-####"), "5551234567"), "(555) 123-4567");
    EXPECT_EQ(Typed(Of("##-??"
                       "?-##"),
                    "12"),
              "12-___-__");
}

TEST(Mask, ALiteralThatIsTypedIsPassedOver) {
    EXPECT_EQ(Typed(Of("(###) ###-####"), "(555) 123-4567"), "(555) 123-4567");
    EXPECT_EQ(Typed(Of("&&-&&"), "ab-cd"), "ab-cd");
    EXPECT_EQ(Typed(Of("&&-&&"), "abcd"), "ab-cd");
}

TEST(Mask, TheNextLiteralLeadsOutOfAGroupThatIsNotFull) {
    EXPECT_EQ(Typed(Of("##/##/####"), "1/2/2024"), "1_/2_/2024");
    EXPECT_EQ(Typed(Of("(###) ###"), "5) 6"), "(5__) 6__");
    EXPECT_EQ(Of("##/##").Enter(0, "-"), std::nullopt);
}

TEST(Mask, NothingCanBeEnteredBehindTheEnd) {
    kv::Mask mask = Of("##");
    EXPECT_EQ(mask.Enter(2, "1"), std::nullopt);
    EXPECT_EQ(mask.Enter(99, "1"), std::nullopt);
    EXPECT_EQ(mask.Shown(), "__");
    EXPECT_EQ(Of("#-").Enter(1, "1"), std::nullopt);
}

TEST(Mask, TextLeavesPromptsOutAndIsEmptyWithNothingEntered) {
    kv::Mask mask = Of("##-##");
    EXPECT_EQ(mask.Text(), "");
    EXPECT_EQ(mask.Entered(), "");
    mask.Enter(0, "1");
    EXPECT_EQ(mask.Shown(), "1_-__");
    EXPECT_EQ(mask.Text(), "1-");
    EXPECT_EQ(mask.Entered(), "1");
}

TEST(Mask, AssignTakesTextsWithLiteralsOrWithout) {
    kv::Mask mask = Of("(###) ###-####");
    EXPECT_TRUE(mask.Assign("(555) 123-4567"));
    EXPECT_EQ(mask.Shown(), "(555) 123-4567");
    EXPECT_TRUE(mask.Assign("2065550000"));
    EXPECT_EQ(mask.Shown(), "(206) 555-0000");
    EXPECT_TRUE(mask.Assign("(2__) ___-____"));
    EXPECT_EQ(mask.Shown(), "(2__) ___-____");
    EXPECT_TRUE(mask.Assign(""));
    EXPECT_EQ(mask.Shown(), "(___) ___-____");
}

TEST(Mask, AssignRefusesWhatDoesNotFitAndLeavesTheText) {
    kv::Mask mask = Of("##-##");
    mask.Assign("12-34");
    EXPECT_FALSE(mask.Assign("12-345"));
    EXPECT_FALSE(mask.Assign("ab"));
    EXPECT_FALSE(mask.Assign("12x34"));
    EXPECT_EQ(mask.Shown(), "12-34");
}

TEST(Mask, PasteLeavesOutWhatDoesNotFit) {
    kv::Mask mask = Of("(###) ###-####");
    EXPECT_EQ(mask.Paste(0, "tel. 206.555.0000 ext. 7"), 14);
    EXPECT_EQ(mask.Shown(), "(206) 555-0000");
    EXPECT_EQ(mask.Paste(1, "x"), 1);
    EXPECT_EQ(mask.Paste(1, "99"), 3);
    EXPECT_EQ(mask.Shown(), "(996) 555-0000");
}

TEST(Mask, EraseEmptiesSlotsAlone) {
    kv::Mask mask = Of("##-##");
    mask.Assign("12-34");
    mask.Erase(1, 4);
    EXPECT_EQ(mask.Shown(), "1_-_4");
    mask.Clear();
    EXPECT_EQ(mask.Shown(), "__-__");
}

TEST(Mask, EraseAheadPassesLiterals) {
    kv::Mask mask = Of("(#)-#");
    mask.Assign("(1)-2");
    EXPECT_EQ(mask.EraseAhead(5), 4);
    EXPECT_EQ(mask.EraseAhead(4), 1);
    EXPECT_EQ(mask.Shown(), "(_)-_");
    EXPECT_EQ(mask.EraseAhead(1), 1);
    EXPECT_EQ(mask.EraseAhead(0), 0);
}

TEST(Mask, EraseBehindPassesLiterals) {
    kv::Mask mask = Of("(#)-#");
    mask.Assign("(1)-2");
    EXPECT_EQ(mask.EraseBehind(0), 2);
    EXPECT_EQ(mask.EraseBehind(2), 5);
    EXPECT_EQ(mask.Shown(), "(_)-_");
    EXPECT_EQ(mask.EraseBehind(5), 5);
}

TEST(Mask, CompleteAsksForWhatMayNotStayEmpty) {
    kv::Mask mask = Of("#9?aAC&");
    mask.Assign("1_x_Y_z");
    EXPECT_TRUE(mask.Complete());
    mask.Erase(6, 7);
    EXPECT_FALSE(mask.Complete());
    EXPECT_TRUE(Of("999").Complete());
    EXPECT_FALSE(Of("999").FullAt(3));
}

TEST(Mask, FullAtAsksForAPlaceBehindAllSlots) {
    kv::Mask mask = Of("##-#)");
    mask.Assign("12-3)");
    EXPECT_TRUE(mask.FullAt(4));
    EXPECT_TRUE(mask.FullAt(5));
    EXPECT_FALSE(mask.FullAt(3));
    mask.Erase(0, 1);
    EXPECT_FALSE(mask.FullAt(4));
}

TEST(Mask, ClipTakesLiteralsAndPromptsAsAsked) {
    kv::Mask mask = Of("##-##");
    mask.Assign("1_-2_");
    EXPECT_EQ(mask.Clip(0, 5, true, true), "1_-2_");
    EXPECT_EQ(mask.Clip(0, 5, true, false), "1-2");
    EXPECT_EQ(mask.Clip(0, 5, false, false), "12");
    EXPECT_EQ(mask.Clip(1, 4, true, true), "_-2");
    EXPECT_EQ(mask.Clip(3, 3, true, true), "");
}

TEST(Mask, ThePromptIsNoInputUnlessItIsAllowed) {
    kv::Mask mask = Of("&#");
    EXPECT_EQ(mask.Enter(0, "_"), std::nullopt);
    mask.AllowPrompt(true);
    EXPECT_EQ(mask.Enter(0, "_"), 1);
    EXPECT_EQ(mask.Entered(), "_");
    mask.Enter(1, "5");
    EXPECT_EQ(mask.Enter(1, "_"), 2);
    EXPECT_EQ(mask.Entered(), "_");
}

TEST(Mask, ThePromptCanBeAnotherCharacter) {
    kv::Mask mask = Of("#-#");
    EXPECT_TRUE(mask.SetPrompt('*'));
    EXPECT_EQ(mask.Shown(), "*-*");
    EXPECT_FALSE(mask.SetPrompt('\0'));
    EXPECT_FALSE(mask.SetPrompt('\n'));
    EXPECT_FALSE(mask.SetPrompt('\xC3'));
    EXPECT_EQ(mask.Prompt(), '*');
    EXPECT_TRUE(mask.Assign("*-4"));
    EXPECT_EQ(mask.Entered(), "4");
}

TEST(Mask, HasAtMostSixtyFourPlaces) {
    kv::Mask mask = Of("##");
    EXPECT_TRUE(mask.SetPattern(std::string(64, '#')));
    EXPECT_FALSE(mask.SetPattern(std::string(65, '#')));
    EXPECT_EQ(mask.Pattern(), std::string(64, '#'));
    EXPECT_TRUE(mask.SetPattern(">" + std::string(64, '#') + "<"));
}

TEST(Mask, ANewMaskKeepsWhatItTakesAsAWhole) {
    kv::Mask mask = Of("##-##");
    mask.Assign("12-34");
    mask.SetPattern("#/#/#/#");
    EXPECT_EQ(mask.Shown(), "1/2/3/4");
    mask.SetPattern("???");
    EXPECT_EQ(mask.Shown(), "___");
}

TEST(Mask, TheSameMaskAgainChangesNothing) {
    kv::Mask mask = Of("###");
    mask.Assign("1_3");
    mask.SetPattern("###");
    EXPECT_EQ(mask.Shown(), "1_3");
}

TEST(Mask, ACharacterOfSeveralBytesTakesOnePlace) {
    kv::Mask mask = Of("&&°&");
    EXPECT_EQ(mask.Shown(), "__°_");
    EXPECT_EQ(mask.Enter(0, "é"), 2);
    EXPECT_EQ(mask.Enter(2, "x"), 3);
    EXPECT_EQ(mask.Enter(3, "y"), 6);
    EXPECT_EQ(mask.Shown(), "éx°y");
    EXPECT_EQ(mask.EraseAhead(2), 0);
    EXPECT_EQ(mask.Shown(), "_x°y");
    EXPECT_EQ(Of("#").Enter(0, "é"), std::nullopt);
}

TEST(Mask, BytesThatAreNoSequencePassThroughOneByOne) {
    kv::Mask mask = Of("&&");
    EXPECT_EQ(mask.Paste(0, "\xB0\xC3"), 2);
    EXPECT_EQ(mask.Shown(), "\xB0\xC3");
}

}  // namespace
