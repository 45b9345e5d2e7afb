#include "window/acting/wait_scene.h"

#include <utility>

#include "window/blocked_windows.h"

namespace kv {

void ExpectWait(HeadlessDesktop& desktop, std::function<void(User&)> act, int skip) {
    if (!Patience()) SetPatience(kUsualPatience);
    desktop.ExpectPump(std::move(act), skip);
}

QueryScenes::QueryScenes(HeadlessDesktop& desktop) : desktop_(desktop) {
    former_ = SetQueryWaits({[this](const std::string& sql) { return Begins(sql); }, {}});
}

QueryScenes::~QueryScenes() {
    SetQueryWaits(std::move(former_));
}

void QueryScenes::Expect(std::string sql, std::function<void(User&)> act, int skip) {
    scenes_.push_back({std::move(sql), std::move(act), skip});
}

ActOnWait QueryScenes::Begins(const std::string& sql) {
    if (scenes_.empty()) return nullptr;
    Scene& scene = scenes_.front();
    const bool fits = scene.sql.empty() || scene.sql == sql;
    if (!fits || scene.skip-- > 0) return nullptr;
    return [this](Node& window) { Play(window); };
}

void QueryScenes::Play(Node& window) {
    const Scene scene = std::move(scenes_.front());
    scenes_.pop_front();
    User user(window, [this](const std::string& words) { desktop_.Fail(words); });
    scene.act(user);
}

}  // namespace kv
