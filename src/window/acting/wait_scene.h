#pragma once

#include <deque>
#include <functional>
#include <string>

#include "base/export.h"
#include "window/acting/headless_desktop.h"
#include "window/query_waits.h"

namespace kv {

/// A scene of a desktop without a screen: a query takes longer than a person is left without a
/// sign, and `act` acts on the window by which it can be cancelled, once `skip` pumpings have gone
/// by.
KVGUICTL_API void ExpectWait(HeadlessDesktop& desktop, std::function<void(User&)> act,
                             int skip = 0);

/// Scenes of a desktop without a screen in which a person acts on that window whatever time the
/// query takes: it comes up ahead of the query. As long as it lives, these are taken in their
/// order.
class KVGUICTL_API QueryScenes {
public:
    /// The desktop outlives it.
    explicit QueryScenes(HeadlessDesktop& desktop);
    ~QueryScenes();
    QueryScenes(const QueryScenes&) = delete;
    QueryScenes& operator=(const QueryScenes&) = delete;

    /// Of the query with that text (empty: any), as it was sent, once `skip` of them have gone by
    /// since the scene before.
    void Expect(std::string sql, std::function<void(User&)> act, int skip = 0);
    /// Scenes not taken yet.
    int Left() const { return static_cast<int>(scenes_.size()); }

private:
    struct Scene {
        std::string sql;
        std::function<void(User&)> act;
        int skip;
    };

    ActOnWait Begins(const std::string& sql);
    void Play(Node& window);

    HeadlessDesktop& desktop_;
    std::deque<Scene> scenes_;
    QueryWaits former_;
};

}  // namespace kv
