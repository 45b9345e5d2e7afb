#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/export.h"
#include "window/dialog_keys.h"
#include "window/node.h"

namespace kv {

/// A person at one window, acting on its controls by their ids. After every action what waits is
/// dispatched and idle time passes. An action on a control that is not there, or that a person
/// could not act on, ends the run through the desktop's failure.
class KVGUICTL_API User {
public:
    /// `fail` must not return.
    User(Node& window, std::function<void(const std::string&)> fail);

    /// The window, for looking at it.
    CWnd& Window();
    Node& WindowNode() { return *window_; }
    /// Whether the window is still open.
    bool Open() const;

    void Click(int id);
    void DoubleClick(int id, int row);
    void DoubleClick(int id, const std::string& rowText);
    /// Enters the control by Tab, so that its text is replaced, and types key by key.
    void Type(int id, const std::string& text);
    /// Presses a key by its name, with "Shift+", "Ctrl+" and "Alt+" ahead of it, in the control (0:
    /// in what has the focus).
    void Key(int id, const std::string& key);
    void Paste(int id, const std::string& text);
    /// Picks rows of a list, or the one row of a combo box, by index or by text.
    void Select(int id, const std::vector<int>& rows);
    void Select(int id, int row);
    void Select(int id, const std::string& rowText);
    void Drop(int id);
    void Focus(int id);
    /// Closes the window by its window button.
    void Close();

    // What the person sees.
    std::string Text(int id);
    bool Checked(int id);
    bool Enabled(int id);
    bool Visible(int id);
    bool HasControl(int id) const;
    /// Index of the row with that text, which has to be there.
    int RowIndex(int id, const std::string& rowText);
    std::vector<std::string> Rows(int id);
    /// Selected rows of a list box; the current row of a combo box.
    std::vector<int> Selected(int id);

private:
    Node& ControlOf(int id, const char* action);
    int RowOf(Node& control, const std::string& text, const char* action);
    void Done(bool done, const char* action, int id);
    [[noreturn]] void Fail(const std::string& words);

    std::shared_ptr<Node> window_;
    std::function<void(const std::string&)> fail_;
};

/// Name of the handle's class, as in the source.
KVGUICTL_API std::string ClassName(const CWnd& window);
/// Class name and caption of a window, for messages.
KVGUICTL_API std::string Describe(Node& window);

}  // namespace kv
