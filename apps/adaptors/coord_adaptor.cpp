#include "adaptors/readout_inputs.h"
#include "adaptors/tool.h"
#include "coordtools/coord_dialog.h"
#include "coordtools/coord_ids.h"

namespace adaptors {

namespace {

using namespace kv::coord_dialog;

const std::vector<Input> kPosition{
    {"x", "number", "X of the position, in the map's unit", 2212345.67},
    {"y", "number", "Y of the position", 10346789.01},
};

/// The readout with what its host gives it to write to.
class CoordTool : public ScriptedTool {
public:
    explicit CoordTool(const Run& run) {
        if (!dialog_.Create(kTemplate)) return;
        dialog_.SetModePtr(&mode_);
        const int projection = run.Get("projection", -1);
        const std::string unit = run.Get<std::string>("unit", "feet");
        dialog_.ResetToDefault(projection, unit);
        if (!run.Inputs().contains("x")) return;
        dialog_.DialogUpdateText(run.Get("x", 0.0), run.Get("y", 0.0), projection, unit);
    }
    ~CoordTool() override {
        dialog_.CloseDlg();
        dialog_.DestroyWindow();
    }
    CDialog* Window() override { return dialog_.m_hWnd ? &dialog_ : nullptr; }
    void Call(const std::string& method, const Json& arguments) override {
        if (method == "DialogUpdateText") {
            dialog_.DialogUpdateText(arguments.at(0).get<double>(), arguments.at(1).get<double>(),
                                     arguments.at(2).get<int>(),
                                     arguments.at(3).get<std::string>());
        } else if (method == "ResetToDefault") {
            dialog_.ResetToDefault(arguments.at(0).get<int>(), arguments.at(1).get<std::string>());
        } else {
            open_ = 1;
            mode_ = kReading;
            dialog_.ShowWindow(SW_SHOW);
        }
    }
    Json State() override {
        return {{"x", dialog_.DlgItemText(kX)},
                {"y", dialog_.DlgItemText(kY)},
                {"unit", dialog_.DlgItemText(kUnit)},
                {"latitude", AngleTexts(dialog_, kLatitude)},
                {"longitude", AngleTexts(dialog_, kLongitude)},
                {"mapProjection", dialog_.DlgItemText(kMapProjection)},
                {"userProjection", dialog_.DlgItemText(kUserProjection)},
                {"openFlag", open_},
                {"mode", static_cast<int>(mode_)}};
    }

private:
    int open_ = 1;
    KVEventMode mode_ = kReading;
    CKvCoordDialog dialog_{&open_};
};

const Register kRegistered({
    "CKvCoordDialog",
    "Coordinate tools",
    "Coordinate and Projection",
    "Position on a map",
    kTemplate,
    ReadoutInputs(kPosition),
    "x, y, unit, latitude, longitude (the texts of the three boxes), mapProjection, userProjection "
    "(all as shown); openFlag, mode (what the host is told: 0 and 3 once it was closed)",
    [](Run& run) {
        CoordTool tool(run);
        RunTool(run, tool);
    },
    ReadoutMethods(kPosition),
});

}  // namespace

}  // namespace adaptors
