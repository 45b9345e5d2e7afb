#include <string_view>

#include "pickers/abe_bar_ids.h"
#include "window/drawing/whole_image.h"
#include "window/templates/resources.h"

namespace {

/// Its rim is dark enough for a light button, its body bright enough for a dark one.
constexpr kv::PaletteEntry kRunPalette[] = {
    {'D', 0xFF1B7A35},
    {'G', 0xFF2EB457},
    {'L', 0xFF86E3A0},
    {'S', 0xFF249447},
};

constexpr std::string_view kRunRows[] = {
    "................",  //
    "..DD............",  //
    "..DLDD..........",  //
    "..DLLLDD........",  //
    "..DLLGGDD.......",  //
    "..DLGGGGGDD.....",  //
    "..DLGGGGGGGDD...",  //
    "..DLGGGGGGGGGD..",  //
    "..DGGGGGGGGGSD..",  //
    "..DGGGGGGGSDD...",  //
    "..DGGGGGSDD.....",  //
    "..DGGGSDD.......",  //
    "..DGSSDD........",  //
    "..DSDD..........",  //
    "..DD............",  //
    "................",  //
};

constexpr kv::ImageResource kRunImage{kv::abe_bar::kRunIcon, 16, 16, kRunRows, kRunPalette};
static_assert(kv::IsWhole(kRunImage));
const kv::RegisterImage kRegistered(kRunImage);

}  // namespace
