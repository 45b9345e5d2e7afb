#pragma once

#include "window/acting/headless_desktop.h"
#include "window/screens.h"
#include "window/window_system.h"

namespace test {

inline constexpr CRect kFirstScreen{0, 0, 1280, 800};
inline constexpr CRect kSecondScreen{1280, 100, 2560, 900};

/// A desktop with a second screen to the right of the first, as long as it lives.
class TwoScreens : public kv::HeadlessDesktop, public kv::Screens {
public:
    TwoScreens() {
        SetScreenSize(kFirstScreen.Size());
        kv::SetScreens(*this, this);
        kv::WindowSystem::Get().SetDesktop(this);
    }
    ~TwoScreens() override {
        kv::WindowSystem::Get().SetDesktop(&before_);
        kv::SetScreens(*this, nullptr);
    }
    TwoScreens(const TwoScreens&) = delete;
    TwoScreens& operator=(const TwoScreens&) = delete;

    CRect ScreenAround(CPoint at) const override {
        return at.x < kFirstScreen.right ? kFirstScreen : kSecondScreen;
    }

private:
    kv::Desktop& before_ = kv::WindowSystem::Get().GetDesktop();
};

}  // namespace test
