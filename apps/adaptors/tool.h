#pragma once

#include <memory>
#include <string>
#include <vector>

#include "adaptors/adaptor.h"
#include "coordtools/angle_ids.h"
#include "window/dialogs/dialog.h"

namespace adaptors {

/// A modeless tool as a host keeps it: on the screen as soon as it is made, hidden by its OK, shown
/// again, and closed when it goes.
class Tool {
public:
    virtual ~Tool() = default;
    /// Null when the window could not be made, or was destroyed with its owner.
    virtual CDialog* Window() = 0;
    /// Gives it a position, as a click on a map does; decimal degrees.
    virtual void SetPosition(double lat, double lon) = 0;
};

/// A modeless tool as a script works on it.
class ScriptedTool {
public:
    virtual ~ScriptedTool() = default;
    /// Null when the window could not be made, or was destroyed.
    virtual CDialog* Window() = 0;
    /// One of the adaptor's `calls`.
    virtual void Call(const std::string& method, const Json& arguments) = 0;
    /// What its boxes hold.
    virtual Json State() = 0;
};

/// What every tool that takes positions understands: ResetToDefault, SetPosition and Show.
std::vector<Method> ToolMethods();

/// The texts of an angle's boxes.
Json AngleTexts(const CDialog& dialog, const kv::coordtools::AngleIds& ids);

/// Lets the user work on a tool until it is hidden.
void RunTool(Run& run, ScriptedTool& tool);

/// A tool of that class; `state` tells what its boxes hold.
template <typename Dialog>
class ToolOf : public Tool, public ScriptedTool {
public:
    using StateOf = Json (*)(const Dialog&);

    ToolOf(CWnd* owner, StateOf state) : dialog_(owner), state_(state) {
        if (dialog_.Create(dialog_.GetTemplateId())) dialog_.ResetToDefault();
    }
    ~ToolOf() override {
        dialog_.CloseDlg();
        dialog_.DestroyWindow();
    }
    CDialog* Window() override { return dialog_.m_hWnd ? &dialog_ : nullptr; }
    void SetPosition(double lat, double lon) override { dialog_.SetPosition(lat, lon); }
    void Call(const std::string& method, const Json& arguments) override {
        if (method == "ResetToDefault") {
            dialog_.ResetToDefault();
        } else if (method == "SetPosition") {
            SetPosition(arguments.at(0).get<double>(), arguments.at(1).get<double>());
        } else {
            dialog_.ShowWindow(SW_SHOW);
        }
    }
    Json State() override { return state_(dialog_); }

private:
    Dialog dialog_;
    StateOf state_;
};

/// The adaptor of a tool without inputs. The run ends when the tool is hidden; its outcome is the
/// tool's state.
template <typename Dialog>
Adaptor ToolAdaptor(const std::string& className, const std::string& family,
                    const std::string& caption, const std::string& purpose, int templateId,
                    const std::string& returns, typename ToolOf<Dialog>::StateOf state) {
    Adaptor adaptor{className, family,  caption, purpose,      templateId,
                    {},        returns, {},      ToolMethods()};
    adaptor.makeTool = [state](CWnd* owner) {
        return std::make_unique<ToolOf<Dialog>>(owner, state);
    };
    adaptor.run = [state](Run& run) {
        ToolOf<Dialog> tool(nullptr, state);
        RunTool(run, tool);
    };
    return adaptor;
}

}  // namespace adaptors
