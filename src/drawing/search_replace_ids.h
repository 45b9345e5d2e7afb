#pragma once

/// Template and controls of the dialog for search and replace.
namespace kv::search_replace {

inline constexpr int kTemplate = 15111;

inline constexpr int kLayer = 29101;
inline constexpr int kSearch = 29102;
inline constexpr int kReplace = 29103;

/// Most characters of a replacement.
inline constexpr int kLongestReplacement = 50;

}  // namespace kv::search_replace
