#pragma once

#include <memory>

#include "drawing/swatches/color_button.h"

namespace kv::swatches {

/// A swatch of a class with a kind, as a cell.
template <typename Button>
std::unique_ptr<Swatch> MakeCell(E_DIALOG_TYPE kind, int value) {
    auto cell = std::make_unique<Button>();
    cell->SetDlgType(kind);
    cell->SetEventType(E_EVENT_CELL);
    cell->SetChange(value);
    return cell;
}

}  // namespace kv::swatches
