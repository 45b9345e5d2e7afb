#pragma once

#include <array>
#include <cstddef>

#include "window/templates/dialog_template.h"

namespace kv {

/// Parts of a template's rows, one behind the other.
template <std::size_t... counts>
constexpr auto JoinRows(const std::array<ControlRow, counts>&... parts) {
    std::array<ControlRow, (counts + ...)> all{};
    std::size_t at = 0;
    const auto append = [&](const auto& part) {
        for (const ControlRow& row : part)
            all[at++] = row;
    };
    (append(parts), ...);
    return all;
}

}  // namespace kv
