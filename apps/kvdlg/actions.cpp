#include "kvdlg/actions.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "kvdlg/bad_script.h"
#include "window/acting/input.h"
#include "window/controls/combo_box_node.h"
#include "window/window_system.h"

namespace kvdlg {

namespace {

using kv::Node;
using kv::User;

int IdAt(const Json& value, std::size_t index, const std::string& where) {
    if (!value.is_array() || value.size() <= index || !value[index].is_number_integer()) {
        Wrong(where, "a list with the control's id at place " + std::to_string(index));
    }
    return value[index].get<int>();
}

std::string TextAt(const Json& value, std::size_t index, const std::string& where) {
    if (!value.is_array() || value.size() <= index || !value[index].is_string()) {
        Wrong(where, "a text at place " + std::to_string(index) + " of the list");
    }
    return value[index].get<std::string>();
}

int IdOf(const Json& value, const std::string& where) {
    if (value.is_number_integer()) return value.get<int>();
    Wrong(where, "a control's id");
}

/// A control that is acted on in ways that `kv::User` has no words for.
struct Target {
    int id;
    kv::HeadlessDesktop& desktop;

    /// The window itself where the id is 0.
    Node& Control(User& user) const {
        if (!user.Open()) Fail("the window is not open any more");
        Node* control = id == 0 ? &user.WindowNode() : user.WindowNode().FindChild(id);
        if (!control) Fail(kv::Describe(user.WindowNode()) + " has no such control");
        return *control;
    }
    /// Of a combo box its edit.
    Node& Edit(User& user) const {
        Node& control = Control(user);
        auto* combo = dynamic_cast<kv::ComboBoxNode*>(&control);
        return combo && combo->Edit() ? *combo->Edit() : control;
    }
    void Done(bool done) const {
        if (!done) Fail("the control is disabled, hidden or of another kind");
        kv::WindowSystem::Get().Settle();
    }
    [[noreturn]] void Fail(const std::string& words) const {
        desktop.Fail(std::to_string(id) + ": " + words);
    }
};

CPoint MiddleOf(const Node& control) {
    return {control.Rect().Width() / 2, control.Rect().Height() / 2};
}

/// What may come to nothing where the focus cannot be had is done all the same.
bool Hold(Node& control) {
    if (!kv::input::CanAct(control)) return false;
    kv::input::Press(control, MiddleOf(control));
    return true;
}

bool HoldAgain(Node& control) {
    return kv::input::PressAgain(control, MiddleOf(control));
}

bool Release(Node& control) {
    return kv::input::Release(control, MiddleOf(control));
}

/// On what holds a bar.
bool PressBeside(Node& bar) {
    return kv::input::CanAct(bar) && kv::input::Press(*bar.Root(), {0, 0});
}

bool LetGo(Node& button) {
    return kv::input::HoldOver(button, false) && Release(button);
}

/// The second click of two.
bool ClickTwice(Node& button) {
    const auto keep = button.shared_from_this();
    if (!HoldAgain(button)) return false;
    kv::WindowSystem::Get().Settle();
    kv::input::Release(button, MiddleOf(button));
    return true;
}

bool RightClick(Node& list, int row) {
    if (!kv::input::CanAct(list) || list.Class() != kv::NodeClass::kListView) return false;
    kv::input::RightClickRow(list, row);
    return true;
}

template <bool (*act)(Node&)>
Action OfControl(const Json& value, const std::string& where, kv::HeadlessDesktop& desktop) {
    return [target = Target{IdOf(value, where), desktop}](User& user) {
        target.Done(act(target.Control(user)));
    };
}

template <bool (*act)(Node&, int)>
Action WithNumber(const Json& value, const std::string& where, kv::HeadlessDesktop& desktop) {
    const Target target{IdAt(value, 0, where), desktop};
    if (value.size() != 2 || !value[1].is_number_integer()) Wrong(where, "[id, number]");
    return [target, number = value[1].get<int>()](User& user) {
        target.Done(act(target.Control(user), number));
    };
}

using RowOf = std::function<int(User&)>;

/// A row by its text or number; with `orNone` an empty list is -1, behind the rows.
RowOf MakeRow(const Json& value, const std::string& where, bool orNone) {
    const int id = IdAt(value, 0, where);
    const Json row = value.size() > 1 ? value[1] : Json();
    if (row.is_string()) {
        return [id, text = row.get<std::string>()](User& user) { return user.RowIndex(id, text); };
    }
    const bool none = orNone && row.is_array() && row.empty();
    if (!none && !row.is_number_integer()) Wrong(where, "a row by its text or number at place 1");
    return [index = none ? -1 : row.get<int>()](User&) { return index; };
}

template <bool (*act)(Node&, int)>
Action WithRow(const Json& value, const std::string& where, kv::HeadlessDesktop& desktop) {
    return [target = Target{IdAt(value, 0, where), desktop},
            row = MakeRow(value, where, true)](User& user) {
        const int index = row(user);
        target.Done(act(target.Control(user), index));
    };
}

/// A click on a row with keys held.
Action MakeSelectWithKeys(const Json& value, const std::string& where,
                          kv::HeadlessDesktop& desktop) {
    const std::string keys = TextAt(value, 2, where);
    const bool both = keys == "Shift+Ctrl";
    const kv::Modifiers held{both || keys == "Shift", both || keys == "Ctrl", false};
    if (!held.shift && !held.ctrl) Wrong(where, "\"Shift\", \"Ctrl\" or \"Shift+Ctrl\" at place 2");
    return [target = Target{IdAt(value, 0, where), desktop}, held,
            row = MakeRow(value, where, true)](User& user) {
        const int index = row(user);
        target.Done(kv::input::ClickRow(target.Control(user), index, held));
    };
}

Action MakeStep(const Json& value, const std::string& where, kv::HeadlessDesktop& desktop) {
    const std::string way = TextAt(value, 1, where);
    if (way != "up" && way != "down") Wrong(where, "\"up\" or \"down\" at place 1");
    return [target = Target{IdAt(value, 0, where), desktop}, up = way == "up"](User& user) {
        target.Done(kv::input::StepSpin(target.Control(user), up));
    };
}

Action MakeEdit(const Json& value, const std::string& where, kv::HeadlessDesktop& desktop) {
    static const std::map<std::string, UINT> commands{{"cut", WM_CUT},
                                                      {"copy", WM_COPY},
                                                      {"paste", WM_PASTE},
                                                      {"delete", WM_CLEAR},
                                                      {"undo", WM_UNDO}};
    const auto command = commands.find(TextAt(value, 1, where));
    if (command == commands.end()) Wrong(where, "cut, copy, paste, delete or undo at place 1");
    return [target = Target{IdAt(value, 0, where), desktop}, message = command->second](
               User& user) { target.Done(kv::input::EditCommand(target.Edit(user), message)); };
}

Action MakeMark(const Json& value, const std::string& where, kv::HeadlessDesktop& desktop) {
    const Target target{IdAt(value, 0, where), desktop};
    const bool whole =
        value.size() == 3 && value[1].is_number_integer() && value[2].is_number_integer();
    if (!whole) Wrong(where, "[id, from, to] with places in the text");
    return [target, from = value[1].get<int>(), to = value[2].get<int>()](User& user) {
        target.Done(kv::input::SelectText(target.Edit(user), from, to));
    };
}

Action MakeKeys(const Json& value, const std::string& where, kv::HeadlessDesktop& desktop) {
    return [target = Target{IdAt(value, 0, where), desktop},
            text = TextAt(value, 1, where)](User& user) {
        Node& control = target.Control(user);
        const bool here = kv::WindowSystem::Get().Focus() == control.FocusTarget();
        if (target.id != 0 && !here) target.Done(kv::input::MoveFocus(control));
        target.Done(kv::input::TypeHere(text));
    };
}

Action MakeClipboard(const Json& value, const std::string& where, kv::HeadlessDesktop&) {
    if (!value.is_string()) Wrong(where, "a text");
    return [text = value.get<std::string>()](User&) {
        kv::WindowSystem::Get().GetDesktop().SetClipboardText(text);
    };
}

Action MakePause(const Json&, const std::string&, kv::HeadlessDesktop& desktop) {
    return [&desktop](User&) { desktop.SetNow(desktop.Now() + std::chrono::seconds(1)); };
}

Action MakeType(const Json& value, const std::string& where, kv::HeadlessDesktop&) {
    return [id = IdAt(value, 0, where), text = TextAt(value, 1, where)](kv::User& user) {
        user.Type(id, text);
    };
}

Action MakeKey(const Json& value, const std::string& where, kv::HeadlessDesktop&) {
    const int id = IdAt(value, 0, where);
    const std::string name = TextAt(value, 1, where);
    const auto last = name.find_last_of('+');
    const std::string key = last == std::string::npos ? name : name.substr(last + 1);
    if (!kv::input::KeyByName(key)) Wrong(where, "the name of a key, and not \"" + name + "\"");
    return [id, name](kv::User& user) { user.Key(id, name); };
}

Action MakePaste(const Json& value, const std::string& where, kv::HeadlessDesktop&) {
    return [id = IdAt(value, 0, where), text = TextAt(value, 1, where)](kv::User& user) {
        user.Paste(id, text);
    };
}

Action MakeClick(const Json& value, const std::string& where, kv::HeadlessDesktop& desktop) {
    const int id = IdOf(value, where);
    if (id == 0) return OfControl<kv::input::Click>(value, where, desktop);
    return [id](kv::User& user) { user.Click(id); };
}

Action MakeDoubleClick(const Json& value, const std::string& where, kv::HeadlessDesktop& desktop) {
    if (value.is_number_integer()) return OfControl<ClickTwice>(value, where, desktop);
    const int id = IdAt(value, 0, where);
    if (value.size() > 1 && value[1].is_number_integer()) {
        return [id, row = value[1].get<int>()](kv::User& user) { user.DoubleClick(id, row); };
    }
    return [id, text = TextAt(value, 1, where)](kv::User& user) { user.DoubleClick(id, text); };
}

Action MakeSelect(const Json& value, const std::string& where, kv::HeadlessDesktop& desktop) {
    const int id = IdAt(value, 0, where);
    if (value.size() == 3) return MakeSelectWithKeys(value, where, desktop);
    if (value.size() != 2) Wrong(where, "[id, row text | index | list of them]");
    if (value[1].is_string()) {
        return [id, text = value[1].get<std::string>()](kv::User& user) { user.Select(id, text); };
    }
    const Json rows = value[1].is_array() ? value[1] : Json::array({value[1]});
    for (const Json& row : rows) {
        if (!row.is_string() && !row.is_number_integer()) Wrong(where, "rows as texts or indices");
    }
    return [id, rows](kv::User& user) {
        std::vector<int> indices;
        for (const Json& row : rows) {
            indices.push_back(row.is_string() ? user.RowIndex(id, row.get<std::string>())
                                              : row.get<int>());
        }
        user.Select(id, indices);
    };
}

Action MakeDrop(const Json& value, const std::string& where, kv::HeadlessDesktop&) {
    return [id = IdOf(value, where)](kv::User& user) { user.Drop(id); };
}

Action MakeFocus(const Json& value, const std::string& where, kv::HeadlessDesktop& desktop) {
    const int id = IdOf(value, where);
    if (id != 0) return [id](kv::User& user) { user.Focus(id); };
    return OfControl<PressBeside>(value, where, desktop);
}

Action MakeClose(const Json&, const std::string&, kv::HeadlessDesktop&) {
    return [](kv::User& user) { user.Close(); };
}

using Maker = Action (*)(const Json&, const std::string&, kv::HeadlessDesktop&);

const std::map<std::string, Maker>& Makers() {
    static const std::map<std::string, Maker> makers{
        {"check", WithRow<kv::input::ToggleCheck>},
        {"click", MakeClick},
        {"clipboard", MakeClipboard},
        {"close", MakeClose},
        {"closelist", OfControl<kv::input::CloseList>},
        {"copy", OfControl<kv::input::CopyRows>},
        {"doubleclick", MakeDoubleClick},
        {"drop", MakeDrop},
        {"edit", MakeEdit},
        {"focus", MakeFocus},
        {"heading", WithNumber<kv::input::ClickColumn>},
        {"hold", OfControl<Hold>},
        {"holdagain", OfControl<HoldAgain>},
        {"key", MakeKey},
        {"keys", MakeKeys},
        {"letgo", OfControl<LetGo>},
        {"mark", MakeMark},
        {"paste", MakePaste},
        {"pause", MakePause},
        {"release", OfControl<Release>},
        {"rightclick", WithRow<RightClick>},
        {"select", MakeSelect},
        {"step", MakeStep},
        {"tool", WithNumber<kv::input::PressTool>},
        {"type", MakeType},
        {"wheel", WithNumber<kv::input::TurnWheel>},
    };
    return makers;
}

}  // namespace

Action MakeAction(const Json& step, const std::string& where, kv::HeadlessDesktop& desktop,
                  const Hooks& hooks) {
    if (!step.is_object() || step.size() != 1) Wrong(where, "an object with one action");
    const std::string name = step.begin().key();
    const Json& value = step.begin().value();
    const std::string here = where + " (" + name + ")";
    if (name == "snapshot") {
        if (!value.is_string()) Wrong(here, "a name");
        return [take = hooks.snapshot, title = value.get<std::string>()](kv::User& user) {
            take(user.WindowNode(), title);
        };
    }
    if (name == "call") {
        const std::string method = TextAt(value, 0, here);
        const Json arguments(value.begin() + 1, value.end());
        return [call = hooks.call, method, arguments](kv::User&) { call(method, arguments); };
    }
    const auto maker = Makers().find(name);
    if (maker == Makers().end()) {
        std::string known = "snapshot, call";
        for (const auto& [each, make] : Makers())
            known += ", " + each;
        Wrong(where, "one of the actions " + known + ", and not \"" + name + "\"");
    }
    return maker->second(value, here, desktop);
}

}  // namespace kvdlg
