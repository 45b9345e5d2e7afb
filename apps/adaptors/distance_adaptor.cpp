#include "adaptors/readout_inputs.h"
#include "adaptors/tool.h"
#include "coordtools/distance_dialog.h"
#include "coordtools/distance_ids.h"

namespace adaptors {

namespace {

using namespace kv::distance_dialog;

const std::vector<Input> kLine{
    {"x1", "number", "X of the line's start, in the map's unit", 2212345.67},
    {"y1", "number", "Y of the start", 10346789.01},
    {"x2", "number", "X of the line's end; 0 in X and Y for none yet", 2215345.67},
    {"y2", "number", "Y of the end", 10350789.01},
};

/// The tool with what its host gives it to write to.
class DistanceTool : public ScriptedTool {
public:
    explicit DistanceTool(const Run& run) {
        if (!dialog_.Create(kTemplate)) return;
        dialog_.SetModePtr(&mode_);
        const int projection = run.Get("projection", -1);
        const std::string unit = run.Get<std::string>("unit", "feet");
        dialog_.ResetToDefault(projection, unit);
        if (!run.Inputs().contains("x1")) return;
        dialog_.DialogUpdateText(run.Get("x1", 0.0), run.Get("y1", 0.0), run.Get("x2", 0.0),
                                 run.Get("y2", 0.0), projection, unit);
    }
    ~DistanceTool() override {
        dialog_.CloseDlg();
        dialog_.DestroyWindow();
    }
    CDialog* Window() override { return dialog_.m_hWnd ? &dialog_ : nullptr; }
    void Call(const std::string& method, const Json& arguments) override {
        const auto number = [&](std::size_t at) { return arguments.at(at).get<double>(); };
        if (method == "DialogUpdateText") {
            dialog_.DialogUpdateText(number(0), number(1), number(2), number(3),
                                     arguments.at(4).get<int>(),
                                     arguments.at(5).get<std::string>());
        } else if (method == "ResetToDefault") {
            dialog_.ResetToDefault(arguments.at(0).get<int>(), arguments.at(1).get<std::string>());
        } else {
            open_ = 1;
            mode_ = kReading;
            mode2_ = kReading;
            dialog_.ShowWindow(SW_SHOW);
        }
    }
    Json State() override {
        return {{"distance", dialog_.DlgItemText(kDistance)},
                {"offset", {dialog_.DlgItemText(kOffsetX), dialog_.DlgItemText(kOffsetY)}},
                {"unit", dialog_.DlgItemText(kUnit)},
                {"start", {dialog_.DlgItemText(kStartX), dialog_.DlgItemText(kStartY)}},
                {"startLatitude", AngleTexts(dialog_, kStartLatitude)},
                {"startLongitude", AngleTexts(dialog_, kStartLongitude)},
                {"end", {dialog_.DlgItemText(kEndX), dialog_.DlgItemText(kEndY)}},
                {"endLatitude", AngleTexts(dialog_, kEndLatitude)},
                {"endLongitude", AngleTexts(dialog_, kEndLongitude)},
                {"mapProjection", dialog_.DlgItemText(kMapProjection)},
                {"userProjection", dialog_.DlgItemText(kUserProjection)},
                {"openFlag", open_},
                {"mode", static_cast<int>(mode_)},
                {"mode2", mode2_}};
    }

private:
    int open_ = 1;
    KVEventMode mode_ = kReading;
    int mode2_ = kReading;
    CKvDistanceDialog dialog_{&mode2_, &open_};
};

const Register kRegistered({
    "CKvDistanceDialog",
    "Coordinate tools",
    "Check Distance",
    "Distance on a map",
    kTemplate,
    ReadoutInputs(kLine),
    "distance, offset (X and Y), unit, start, end (X and Y of each), startLatitude, "
    "startLongitude, endLatitude, endLongitude (the texts of the three boxes), mapProjection, "
    "userProjection (all as shown); openFlag, mode, mode2 (what the host is told: 0, 3 and 3 once "
    "it was closed)",
    [](Run& run) {
        DistanceTool tool(run);
        RunTool(run, tool);
    },
    ReadoutMethods(kLine),
});

}  // namespace

}  // namespace adaptors
