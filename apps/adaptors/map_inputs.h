#pragma once

#include "adaptors/adaptor.h"
#include "mapbuild/builders/quick_off_bld_dlg.h"

/// Inputs and outcomes of the dialogs that build maps.
namespace adaptors {

inline constexpr const char* kMapBoundsInWords =
    "an object with x, y, lat and lon, each a list of minimum and maximum, and feet";

/// What a map record holds, in JSON. Bounds that have no value are null.
Json MapAsJson(const CKvMapBounds& map);
/// Names of what `MapAsJson` gives, for "returns".
inline constexpr const char* kMapOutcome =
    "x, y, lat, lon (minimum and maximum of each; null without value), feet, xyBounded, "
    "mapProjection, mapScale, "
    "zone, rectifyingPoint (latitude, longitude, whether the user named it), snap, width, height, "
    "percent (texts of the sizes), areas, blocks, extensions (of the picks), pickedAs";

/// The inputs of all that pick blocks or counties: "picks", "onshore", "dataset", "projection",
/// "xyBounded", "mapName" and "map"; "mode" where it is the caller's to say.
std::vector<Input> PickInputs();
Input ModeInput();
/// Sets a dialog up from them.
void TakePickInputs(const Run& run, CKvGuiQuickOffBldDlg& dialog);
void TakeMode(const Run& run, CKvGuiQuickOffBldDlg& dialog);

/// Runs a dialog that has been set up, and takes its outcome.
void RunMapDialog(Run& run, CKvGuiQuickOffBldDlg& dialog);
inline constexpr const char* kQuickOutcome =
    "termination, mapName, projection, scale; of the map: ";

}  // namespace adaptors
