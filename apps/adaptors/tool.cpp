#include "adaptors/tool.h"

#include "window/desktop.h"
#include "window/window_system.h"

namespace adaptors {

std::vector<Method> ToolMethods() {
    return {
        {"ResetToDefault", {}, "empties the tool"},
        {"SetPosition",
         {{"latitude", "number", "decimal degrees, north positive", 28.5},
          {"longitude", "number", "decimal degrees, east positive", -91.25}},
         "gives it a position, as a click on a map does"},
        {"Show", {}, "shows the tool again that its OK has hidden"},
    };
}

Json AngleTexts(const CDialog& dialog, const kv::coordtools::AngleIds& ids) {
    Json texts = Json::array();
    for (const int id : {ids.degrees.edit, ids.minutes.edit, ids.seconds.edit})
        texts.push_back(dialog.DlgItemText(id));
    return texts;
}

void RunTool(Run& run, ScriptedTool& tool) {
    CDialog* dialog = tool.Window();
    if (!dialog) {
        run.result = -1;
        return;
    }
    run.SetCall([&tool](const std::string& method, const Json& arguments) {
        tool.Call(method, arguments);
    });
    kv::WindowSystem::Get().GetDesktop().RunModeless(*dialog->m_hWnd, *dialog->m_hWnd);
    run.SetCall(nullptr);
    if (tool.Window()) run.outcome = tool.State();
}

}  // namespace adaptors
