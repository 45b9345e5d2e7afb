#pragma once

/// Template and controls of the dialog that asks which folder a file is loaded from.
namespace kv::import_from {

inline constexpr int kTemplate = 15117;

inline constexpr int kUserFolder = 23771;
inline constexpr int kSystemFolder = 23772;

}  // namespace kv::import_from
