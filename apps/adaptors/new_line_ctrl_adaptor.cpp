#include "adaptors/adaptor.h"
#include "drawing/new_line_ctrl_dlg.h"
#include "drawing/new_line_ctrl_ids.h"
#include "window/desktop.h"
#include "window/window_system.h"

namespace adaptors {

namespace {

std::vector<CKvDispPoint> PointsOf(const Run& run) {
    std::vector<CKvDispPoint> points;
    for (const auto& point : run.Get("points", std::vector<std::vector<double>>{})) {
        if (point.size() != 2) throw BadInput("A point has two numbers, X and Y", "points");
        points.emplace_back(point[0], point[1]);
    }
    return points;
}

Json InJson(const std::vector<CKvDispPoint>& points) {
    Json list = Json::array();
    for (const CKvDispPoint& point : points)
        list.push_back({point.GetX(), point.GetY()});
    return list;
}

/// A modeless dialog ends by hiding.
int RunModeless(CKvNewLineCtrlDlg& dialog) {
    if (!dialog.Create(nullptr)) return -1;
    dialog.MoveTo({100, 100});
    kv::WindowSystem::Get().GetDesktop().RunModeless(*dialog.m_hWnd, *dialog.m_hWnd);
    return IDOK;
}

void RunLine(Run& run) {
    CKvNewLineCtrlDlg dialog;
    dialog.SetWidth(static_cast<BYTE>(run.Get("width", 0)));
    dialog.SetType(static_cast<BYTE>(run.Get("type", 0)));
    dialog.SetLineColor(static_cast<KVColor>(run.Get("color", int{KV_COLOR_DEFAULT})));
    dialog.SetFillColor(static_cast<KVColor>(run.Get("fillColor", int{KV_COLOR_DEFAULT})));
    dialog.SetPolygonFlag(run.Get("polygon", false));
    dialog.SetFilledFlag(run.Get("filled", false));
    dialog.SetModifyMode(run.Get("modify", false));
    if (const auto points = PointsOf(run); !points.empty()) dialog.SetUserInputPts(points);
    // What the host would do once there is something to accept.
    dialog.SetWaitMode(true);
    const bool modeless = run.Get("modeless", false);
    run.result = modeless ? RunModeless(dialog) : dialog.DoModal();
    std::vector<CKvDispPoint> points;
    dialog.GetUserInputPts(points, true);
    const E_KV_LINE_OPTION option = dialog.GetOptionFlag();
    run.outcome = {{"width", dialog.GetWidth()},
                   {"type", dialog.GetType()},
                   {"color", int{dialog.GetLineColor()}},
                   {"fillColor", int{dialog.GetFillColor()}},
                   {"polygon", option.bPolygon != 0},
                   {"filled", option.bFilled != 0},
                   {"modified", option.bModify != 0},
                   {"newVertices", option.bNewVertices != 0},
                   {"byKeyboard", option.bByKeyboard != 0},
                   {"points", InJson(points)}};
}

const Register kRegistered({
    "CKvNewLineCtrlDlg",
    "Drawing tools",
    "Polyline Dialog",
    "Look and vertices of a line or polygon",
    kv::new_line_ctrl::kTemplate,
    {
        {"width", "number", "line width, 0 to 9", 2},
        {"type", "number", "line type, 0 to 5", nullptr},
        {"color", "number", "index of the line's color", nullptr},
        {"fillColor", "number", "index of the filling's color", nullptr},
        {"polygon", "flag", "whether the line is closed; shown with \"modify\" only", nullptr},
        {"filled", "flag", "whether it is filled; shown with \"modify\" only", nullptr},
        {"modify", "flag", "whether it exists already and is to be changed", nullptr},
        {"points", "list of pairs", "its vertices, X and Y", nullptr},
        {"modeless", "flag", "whether the dialog stands beside its host", nullptr},
    },
    "width, type, color, fillColor, polygon, filled, modified (whether anything changed), "
    "newVertices, byKeyboard, points (X and Y of each accepted vertex)",
    RunLine,
});

}  // namespace

}  // namespace adaptors
