#include "recording/recorder.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/text.h"
#include "base/utf8.h"
#include "window/acting/input.h"
#include "window/acting/row_texts.h"
#include "window/acting/user.h"
#include "window/wnd.h"

namespace recording {

namespace {

using kv::input::Act;
using kv::input::Deed;

/// Without a character for so long, what is typed into a list begins anew.
constexpr std::chrono::seconds kPause{1};

/// The id of the control that the node is or lies in; 0 for the window itself.
int IdIn(const kv::Node& window, const kv::Node& node) {
    const kv::Node* control = &node;
    while (control != &window && control->Parent() != &window)
        control = control->Parent();
    return control == &window ? 0 : control->Id();
}

bool IsSecret(const kv::Node& node) {
    return node.Class() == kv::NodeClass::kEdit && node.HasStyle(ES_PASSWORD);
}

/// What a click does nothing to.
bool IsDead(const kv::Node& node) {
    const kv::NodeClass kind = node.Class();
    const bool group = kind == kv::NodeClass::kButton && kv::IsCaption(node);
    return kind == kv::NodeClass::kStatic || kind == kv::NodeClass::kProgress || group;
}

/// Its text, or its number where a row ahead of it has the same or a script cannot hold it.
Json RowAsJson(kv::Node& list, int row) {
    const std::vector<std::string> rows = kv::RowTexts(list);
    if (row < 0 || row >= static_cast<int>(rows.size())) return row;
    const std::string& text = rows[static_cast<std::size_t>(row)];
    const bool first = std::ranges::find(rows, text) - rows.begin() == row;
    return first && IsWritable(text) ? Json(text) : Json(row);
}

Json RowsAsJson(kv::Node& list, const std::vector<int>& rows) {
    if (rows.size() == 1) return RowAsJson(list, rows.front());
    Json json = Json::array();
    for (const int row : rows)
        json.push_back(RowAsJson(list, row));
    return json;
}

std::string InWords(const kv::Modifiers& held) {
    return std::string(held.shift ? "Shift+" : "") + (held.ctrl ? "Ctrl+" : "") +
           (held.alt ? "Alt+" : "");
}

/// Whether the key types a character.
bool Types(int key, const kv::Modifiers& held) {
    const bool character = key == VK_SPACE || (key >= '0' && key <= 'Z');
    return character && !held.ctrl && !held.alt;
}

/// "" for a key that has none.
std::string NameOfKey(int key) {
    constexpr std::array kNamed{"Backspace", "Tab",      "Enter", "Escape", "Space",
                                "PageUp",    "PageDown", "End",   "Home",   "Left",
                                "Up",        "Right",    "Down",  "Insert", "Delete"};
    const auto named = std::ranges::find_if(
        kNamed, [key](const char* name) { return kv::input::KeyByName(name) == key; });
    if (named != kNamed.end()) return *named;
    const std::string letter(1, static_cast<char>(key));
    if (key > 0 && key < 0x80 && kv::input::KeyByName(letter) == key) return letter;
    for (int number = 1; number <= 24; ++number) {
        const std::string name = "F" + std::to_string(number);
        if (kv::input::KeyByName(name) == key) return name;
    }
    return {};
}

const char* WordOf(UINT command) {
    switch (command) {
        case WM_CUT:
            return "cut";
        case WM_COPY:
            return "copy";
        case WM_PASTE:
            return "paste";
        case WM_CLEAR:
            return "delete";
        default:
            return "undo";
    }
}

}  // namespace

bool IsWritable(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = kv::Utf8At(text, at).length;
        if (length == 1 && static_cast<unsigned char>(text[at]) >= 0x80) return false;
        at += length;
    }
    return true;
}

std::size_t Recorder::AddScene(Json scene) {
    scenes_.push_back(std::move(scene));
    return scenes_.size() - 1;
}

void Recorder::WindowOpens(kv::Node& window) {
    if (questions_ > 0) return;
    const std::string name = kv::ClassName(*window.AnyHandle());
    windows_.push_back(
        {window.weak_from_this(), AddScene({{"window", name}, {"do", Json::array()}})});
}

void Recorder::WindowCloses() {
    if (questions_ == 0) windows_.pop_back();
}

void Recorder::QuestionOpens(Json scene) {
    if (questions_++ == 0) question_ = AddScene(std::move(scene));
}

void Recorder::IsAnswered(const char* key, Json answer) {
    if (--questions_ == 0) scenes_[question_][key] = std::move(answer);
}

void Recorder::PumpBegins() {
    if (questions_ == 0) works_.push_back({windows_.size(), {}, {}});
}

void Recorder::PumpEnds() {
    if (questions_ > 0) return;
    if (!works_.back().scene) ++pumpsPassed_;
    works_.pop_back();
}

void Recorder::QueryBegins(const std::string& sql) {
    if (questions_ > 0) return;
    const std::string text = IsWritable(sql) ? sql : "";
    ++queriesBegun_[text];
    works_.push_back({windows_.size(), text, {}});
}

void Recorder::QueryEnds() {
    if (questions_ == 0 && InQuery()) works_.pop_back();
}

void Recorder::WaitIsSeen() {
    if (questions_ == 0 && InQuery()) SceneOfWork();
}

const Recorder::Window* Recorder::WindowOf(kv::Node& node) const {
    const auto holds = [&node](const Window& each) {
        const auto window = each.node.lock();
        return window && node.IsSelfOrDescendantOf(*window);
    };
    const auto found = std::find_if(windows_.rbegin(), windows_.rend(), holds);
    return found == windows_.rend() ? nullptr : &*found;
}

/// What is done inside long work, to a window that was open before, is a scene of its own.
std::size_t Recorder::SceneOfDeeds(const Window& window) {
    const auto place = static_cast<std::size_t>(&window - windows_.data());
    const bool inside = !works_.empty() && place < works_.back().windows;
    return inside ? SceneOfWork() : window.scene;
}

std::size_t Recorder::SceneOfWork() {
    Work& work = works_.back();
    if (!work.scene) {
        Json scene = HeadOfWork(work);
        scene["do"] = Json::array();
        work.scene = AddScene(std::move(scene));
    }
    return *work.scene;
}

/// What tells the work from other work ahead of it.
Json Recorder::HeadOfWork(const Work& work) {
    if (!work.sql) return {{"pump", std::exchange(pumpsPassed_, 0)}};
    const auto begun = std::exchange(queriesBegun_, {});
    int before = -1;
    for (const auto& [sql, count] : begun)
        before += work.sql->empty() || sql == *work.sql ? count : 0;
    Json head{{"query", *work.sql}};
    if (before > 0) head["after"] = before;
    return head;
}

/// A click on what holds a bar takes the focus from it.
bool Recorder::PressedBeside(const Deed& deed) {
    if (deed.act != Act::kPress || WindowOf(deed.node)) return false;
    const auto liesThere = [&](const Window& each) {
        const auto window = each.node.lock();
        return window && window->IsSelfOrDescendantOf(deed.node);
    };
    const auto bar = std::ranges::find_if(windows_, liesThere);
    if (bar == windows_.end()) return false;
    scene_ = SceneOfDeeds(*bar);
    Add("focus", 0);
    return true;
}

void Recorder::Did(const Deed& deed, Time now) {
    if (questions_ > 0 || PressedBeside(deed)) return;
    const Window* window = WindowOf(deed.node);
    // Long work may show a window of its own.
    if (!window && works_.empty()) return;
    scene_ = window ? SceneOfDeeds(*window) : SceneOfWork();
    secret_ = IsSecret(deed.node);
    Write(deed, window ? *window->node.lock() : *deed.node.Root(), now);
}

void Recorder::Write(const Deed& deed, kv::Node& window, Time now) {
    const int id = IdIn(window, deed.node);
    switch (deed.act) {
        case Act::kClick:
        case Act::kPress:
        case Act::kPressAgain:
        case Act::kRelease:
        case Act::kHoldInside:
        case Act::kHoldOutside:
        case Act::kMoveFocus:
            Mouse(deed, id);
            break;
        case Act::kSelectText:
        case Act::kEditCommand:
        case Act::kTypeText:
        case Act::kPaste:
            Text(deed, id);
            break;
        case Act::kTypeHere:
        case Act::kPressKey:
        case Act::kInVain:
            Keys(deed, id, now);
            break;
        case Act::kCloseWindow:
            // What holds a bar goes by itself when the scene of the bar is over.
            if (&deed.node == &window) Add("close", nullptr);
            break;
        default:
            List(deed, id);
            break;
    }
}

void Recorder::Mouse(const Deed& deed, int id) {
    if (deed.act == Act::kMoveFocus) return Add("focus", id);
    if (IsDead(deed.node)) return;
    if (deed.node.Class() != kv::NodeClass::kButton) {
        // Where in a text it is, is told next.
        if (deed.act == Act::kClick || deed.act == Act::kPress) Add("click", id);
        return;
    }
    switch (deed.act) {
        case Act::kClick:
            return Add("click", id);
        case Act::kPress:
            heldOutside_ = false;
            return Add("hold", id);
        case Act::kPressAgain:
            heldOutside_ = false;
            return Add("holdagain", id);
        case Act::kHoldOutside:
            heldOutside_ = true;
            return;
        case Act::kHoldInside:
            heldOutside_ = false;
            return;
        default:
            break;
    }
    if (std::exchange(heldOutside_, false)) return Add("letgo", id);
    if (LastIs({{"hold", id}})) {
        Deeds().back() = {{"click", id}};
    } else if (LastIs({{"holdagain", id}})) {
        Deeds().back() = {{"doubleclick", id}};
    } else {
        Add("release", id);
    }
}

void Recorder::ClickRow(const Deed& deed, int id) {
    const int row = deed.numbers.front();
    const kv::Modifiers& held = deed.modifiers;
    if (row < 0 && deed.node.Class() == kv::NodeClass::kListBox) return Add("focus", id);
    Json value{id, row < 0 ? Json::array() : RowAsJson(deed.node, row)};
    std::string keys = InWords({held.shift, held.ctrl, false});
    if (!keys.empty()) {
        keys.pop_back();
        value.push_back(keys);
    }
    Add("select", std::move(value));
}

void Recorder::List(const Deed& deed, int id) {
    const int number = deed.numbers.empty() ? 0 : deed.numbers.front();
    switch (deed.act) {
        case Act::kDoubleClick:
            return Add("doubleclick", {id, RowAsJson(deed.node, number)});
        case Act::kClickRow:
            return ClickRow(deed, id);
        case Act::kSelectRows:
            return Add("select", {id, RowsAsJson(deed.node, deed.numbers)});
        case Act::kRightClickRow:
            return Add("rightclick", {id, RowAsJson(deed.node, number)});
        case Act::kClickColumn:
            return Add("heading", {id, number});
        case Act::kToggleCheck:
            return Add("check", {id, RowAsJson(deed.node, number)});
        case Act::kDropDown:
            return Add("drop", id);
        case Act::kCloseList:
            return Add("closelist", id);
        case Act::kTurnWheel:
            return Add("wheel", {id, number});
        case Act::kStepSpin:
            return Add("step", {id, number > 0 ? "up" : "down"});
        case Act::kPressTool:
            return Add("tool", {id, number});
        case Act::kCopyRows:
            return Add("copy", id);
        default:
            return;
    }
}

void Recorder::Text(const Deed& deed, int id) {
    const std::string text = secret_ ? std::string(deed.text.size(), '*') : std::string(deed.text);
    switch (deed.act) {
        case Act::kTypeText:
            return Add("type", {id, text});
        case Act::kPaste:
            return Add("paste", {id, text});
        case Act::kEditCommand:
            return Add("edit", {id, WordOf(static_cast<UINT>(deed.numbers.front()))});
        default:
            break;
    }
    // The mouse that is dragged selects again and again.
    const bool goesOn =
        !Deeds().empty() && Deeds().back().contains("mark") && Deeds().back()["mark"][0] == id;
    if (goesOn) Deeds().erase(Deeds().size() - 1);
    Add("mark", {id, deed.numbers[0], deed.numbers[1]});
}

void Recorder::Keys(const Deed& deed, int id, Time now) {
    if (deed.act == Act::kInVain) {
        if (!Deeds().empty() && Deeds().back().contains("key")) Deeds().erase(Deeds().size() - 1);
        return;
    }
    const bool inList = kv::HasRows(deed.node);
    if (inList && searched_ && now - *searched_ >= kPause) {
        searched_.reset();
        Add("pause", nullptr);
        ++pauses_;
    }
    if (deed.act == Act::kTypeHere) {
        if (inList) searched_ = now;
        TypeOn(id, secret_ ? "*" : std::string(deed.text));
        return;
    }
    const int key = deed.numbers.front();
    if (secret_ && Types(key, deed.modifiers)) return TypeOn(id, "*");
    const std::string name = NameOfKey(key);
    if (!name.empty()) Add("key", {id, InWords(deed.modifiers) + name});
}

void Recorder::TypeOn(int id, const std::string& text) {
    const bool goesOn =
        !Deeds().empty() && Deeds().back().contains("keys") && Deeds().back()["keys"][0] == id;
    if (goesOn) {
        Json& typed = Deeds().back()["keys"][1];
        typed = typed.get<std::string>() + text;
    } else {
        Add("keys", {id, text});
    }
}

void Recorder::ClipboardIsRead(const std::string& text) {
    if (!scene_ || clipboard_ == text) return;
    Json& deeds = Deeds();
    const bool brought = !deeds.empty() && deeds.back().contains("paste");
    if (!brought) {
        const Json deed{{"clipboard", secret_ ? std::string(text.size(), '*') : text}};
        deeds.insert(deeds.empty() ? deeds.end() : deeds.end() - 1, deed);
    }
    if (!secret_) clipboard_ = text;
}

}  // namespace recording
