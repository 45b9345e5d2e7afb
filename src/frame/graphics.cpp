#include "frame/graphics.h"

#include <exception>
#include <utility>

#include "frame/kvlogs/log.h"

namespace kv {

namespace {

Graphics& Current() {
    static auto* current = new Graphics;
    return *current;
}

std::string Failed(const std::string& why) {
    CKvLog::Output("No blocks were picked on the map: " + why, 101, false);
    return {};
}

}  // namespace

Graphics SetGraphics(Graphics graphics) {
    return std::exchange(Current(), std::move(graphics));
}

}  // namespace kv

std::string graphics(const std::string& user, const std::string& password,
                     const std::string& server, int mode, const std::string& text,
                     const std::string& owner) {
    // A copy, since the host may name another one while the map is open.
    const kv::Graphics pick = kv::Current();
    if (!pick) return kv::Failed("the host has named no map");
    try {
        return pick(user, password, server, mode, text, owner);
    } catch (const std::exception& e) {
        return kv::Failed(e.what());
    } catch (...) {
        return kv::Failed("the map failed");
    }
}
