#include "support/out_of_memory.h"

#include <optional>
#include <utility>

#include "support/dialog_fixture.h"
#include "window/frames/frame_wnd.h"

namespace {

class OutOfMemory : public test::DialogTest {};

TEST_F(OutOfMemory, AWindowWhoseObjectGoesThenStaysWithoutAHandle) {
    std::optional<CFrameWnd> frame(std::in_place);
    frame->Create("Host");
    const HWND window = frame->m_hWnd;
    const CWnd* const object = &*frame;
    const auto keep = window->shared_from_this();
    {
        const test::OutOfMemory out;
        frame.reset();
    }
    EXPECT_FALSE(window->Destroyed());
    EXPECT_NE(CWnd::FromHandle(window), object);
    kv::WindowSystem::Get().Destroy(*window);
    EXPECT_TRUE(window->Destroyed());
}

}  // namespace
