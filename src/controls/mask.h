#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/export.h"

namespace kv {

/// A text that is entered place by place by the rules of a mask: what a masked edit holds.
///
/// Each place of the mask is a slot or a literal:
///
///     #  a digit                     9  a digit, may stay empty
///     ?  a letter                    A  a letter or digit
///     a  a letter or digit, may stay empty
///     &  any character               C  any character, may stay empty
///     >  <  what is entered from here on becomes upper, or lower, case; they take no place
///     \  the next character is a literal, whatever it is
///
/// Every other character is a literal. Letters and digits are the ASCII ones. Offsets are bytes of
/// the text as it is shown; a UTF-8 sequence is one character and one place.
class KVGUICTL_API Mask {
public:
    static constexpr std::size_t kMostPlaces = 64;

    /// False, and nothing changed, for a mask of more places than `kMostPlaces`. What was entered
    /// stays if the new mask takes it as a whole.
    bool SetPattern(std::string_view pattern);
    const std::string& Pattern() const { return pattern_; }
    /// Without a mask nothing can be entered here.
    bool Empty() const { return places_.empty(); }

    /// The character shown in empty places; false for one that cannot be shown.
    bool SetPrompt(char prompt);
    char Prompt() const { return prompt_; }
    /// Whether the prompt character may be entered: where the mask takes it, it is entered, and
    /// else it empties its place.
    void AllowPrompt(bool allow) { allowPrompt_ = allow; }
    bool PromptAllowed() const { return allowPrompt_; }

    /// Literals, entered characters, and prompts for what is empty.
    std::string Shown() const;
    /// Without the prompts; empty when nothing was entered.
    std::string Text() const;
    /// The entered characters alone.
    std::string Entered() const;
    /// The part of the shown text between two offsets, with or without its literals and prompts.
    std::string Clip(int first, int last, bool literals, bool prompts) const;
    bool AnythingEntered() const;
    /// Whether every slot that may not stay empty is filled.
    bool Complete() const;
    /// Whether it is complete, and there is no slot left at or behind the offset.
    bool FullAt(int offset) const;

    void Clear();
    /// Takes a text that fits the mask, with its literals and prompts or without. False, and
    /// nothing changed, for any other.
    bool Assign(std::string_view text);

    /// Enters one character at an offset, or in the next slot behind it. One that is the
    /// next literal leads behind that. Returns the offset behind it, or none when the mask does not
    /// take it.
    std::optional<int> Enter(int offset, std::string_view character);
    /// Enters what the mask takes of a text, and leaves out the rest. Returns the offset behind it.
    int Paste(int offset, std::string_view text);
    /// Empties the slots between two offsets.
    void Erase(int first, int last);
    /// Empties the slot that ends at the offset, or the last one ahead of it; returns the
    /// offset at which it begins, or the given one where there is none.
    int EraseAhead(int offset);
    /// Empties the slot at the offset, or the first one behind it; returns the offset at
    /// which it ends, or the given one where there is none.
    int EraseBehind(int offset);

private:
    enum class Case { kKept, kUpper, kLower };
    struct Place {
        char kind = 0;  ///< the slot; 0 for a literal
        Case letters = Case::kKept;
        std::string text;  ///< the literal, or what was entered
    };

    static std::optional<std::vector<Place>> Parse(std::string_view pattern);
    static bool Accepts(const Place& place, std::string_view character);
    bool Put(Place& place, std::string_view character) const;
    bool IsPrompt(std::string_view character) const;
    std::string ShownOf(const Place& place) const;
    std::size_t PlaceAt(int offset) const;
    int OffsetOf(std::size_t place) const;
    std::optional<std::size_t> EnterAt(std::size_t place, std::string_view character);
    std::optional<std::size_t> BehindLiteral(std::size_t place, std::string_view literal) const;

    std::string pattern_;
    std::vector<Place> places_;
    char prompt_ = '_';
    bool allowPrompt_ = false;
};

/// Bytes of the UTF-8 sequence that begins with `lead`; 1 for a byte that begins none.
std::size_t SequenceSize(char lead);
/// Bytes of the character that a text begins with: those of a UTF-8 sequence, else 1. The text must
/// not be empty.
std::size_t CharacterSize(std::string_view text);

}  // namespace kv
