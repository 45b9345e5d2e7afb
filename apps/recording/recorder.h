#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "window/acting/listener.h"

namespace recording {

using Json = nlohmann::ordered_json;

/// Whether the bytes can stand in a script, which is UTF-8.
bool IsWritable(std::string_view text);

/// Writes what a person does as the scenes of a script: what is clicked, picked and typed, by the
/// ids of controls and the texts of rows. What is typed into a password box becomes asterisks.
class Recorder {
public:
    using Time = std::chrono::system_clock::time_point;

    const Json& Scenes() const { return scenes_; }
    /// How many of the deeds are pauses.
    int Pauses() const { return pauses_; }

    /// A window opens that the person works in from now on, until it closes.
    void WindowOpens(kv::Node& window);
    void WindowCloses();
    /// Something opens that is answered as a whole: what happens until it is, is part of that.
    void QuestionOpens(Json scene);
    void IsAnswered(const char* key, Json answer);

    /// What the person does meanwhile is done inside long work.
    void PumpBegins();
    void PumpEnds();
    /// The same while a query runs, of which the text as it was sent is given: what the person does
    /// is done to the window by which it can be cancelled.
    void QueryBegins(const std::string& sql);
    void QueryEnds();
    /// That window is up.
    void WaitIsSeen();

    /// `now` is the time for all that the deed does.
    void Did(const kv::input::Deed& deed, Time now);

    /// What was done last has read that from the clipboard.
    void ClipboardIsRead(const std::string& text);
    void ClipboardIsSet() { clipboard_.reset(); }

private:
    struct Window {
        std::weak_ptr<kv::Node> node;
        std::size_t scene;
    };
    /// A pumping of the queue, or a query.
    struct Work {
        std::size_t windows;             ///< how many were open before
        std::optional<std::string> sql;  ///< of a query, "" where it cannot be told
        std::optional<std::size_t> scene;
    };

    bool InQuery() const { return !works_.empty() && works_.back().sql; }
    std::size_t AddScene(Json scene);
    const Window* WindowOf(kv::Node& node) const;
    std::size_t SceneOfDeeds(const Window& window);
    std::size_t SceneOfWork();
    Json HeadOfWork(const Work& work);
    bool PressedBeside(const kv::input::Deed& deed);
    void Write(const kv::input::Deed& deed, kv::Node& window, Time now);
    void Mouse(const kv::input::Deed& deed, int id);
    void List(const kv::input::Deed& deed, int id);
    void ClickRow(const kv::input::Deed& deed, int id);
    void Text(const kv::input::Deed& deed, int id);
    void Keys(const kv::input::Deed& deed, int id, Time now);
    void TypeOn(int id, const std::string& text);

    Json& Deeds() { return scenes_[*scene_]["do"]; }
    void Add(const char* action, Json value) { Deeds().push_back({{action, std::move(value)}}); }
    bool LastIs(const Json& deed) { return !Deeds().empty() && Deeds().back() == deed; }

    Json scenes_ = Json::array();
    std::vector<Window> windows_;
    int questions_ = 0;  ///< open ones
    std::size_t question_ = 0;
    std::vector<Work> works_;
    int pumpsPassed_ = 0;
    std::map<std::string, int> queriesBegun_;  ///< since the last scene of one
    int pauses_ = 0;
    std::optional<std::size_t> scene_;  ///< of the last deed
    bool secret_ = false;               ///< whether that is done to a password box
    bool heldOutside_ = false;
    std::optional<Time> searched_;  ///< when the last character was typed into a list
    std::optional<std::string> clipboard_;
};

}  // namespace recording
