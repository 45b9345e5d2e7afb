#pragma once

#include <array>

#include "coordtools/angle_ids.h"
#include "window/templates/template_rows.h"

/// Rows of the coordinate tools' templates.
namespace kv::coordtools {

/// Where the boxes of an angle begin, from where its label does, and how far both reach, in dialog
/// units.
inline constexpr int kAngleLabelWidth = 44;
inline constexpr int kAngleRowWidth = 202;

/// An edit with its spin button and its unit's letter.
constexpr std::array<ControlRow, 3> BoxRows(const BoxIds& ids, int x, int y, int width,
                                            const char* letter) {
    return {{
        {ids.edit, ControlKind::kEdit, "", {x, y, width, 12}},
        {ids.spin, ControlKind::kSpin, "", {x + width, y, 10, 12}},
        {ids.label, ControlKind::kLabel, letter, {x + width + 12, y + 2, 8, 8}},
    }};
}

/// The three boxes of an angle in a line, behind their label. As one decimal number the degrees'
/// box is twice as wide and its label eight times, which is no more than all three take.
constexpr std::array<ControlRow, 10> AngleRows(const AngleIds& ids, const char* label, int x, int y,
                                               int labelWidth = kAngleLabelWidth) {
    const int boxes = x + labelWidth;
    const std::array<ControlRow, 1> name{
        {{IDC_STATIC, ControlKind::kLabel, label, {x, y + 2, labelWidth - 4, 8}}}};
    return JoinRows(name, BoxRows(ids.degrees, boxes, y, 28, "D"),
                    BoxRows(ids.minutes, boxes + 52, y, 26, "M"),
                    BoxRows(ids.seconds, boxes + 102, y, 36, "S"));
}

}  // namespace kv::coordtools
