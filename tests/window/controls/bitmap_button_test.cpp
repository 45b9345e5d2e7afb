#include "window/controls/bitmap_button.h"

#include <gtest/gtest.h>

#include "window/acting/headless_desktop.h"
#include "window/drawing/raster.h"
#include "window/templates/resources.h"
#include "window/window_system.h"

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kUp = RGB(1, 0, 0);
constexpr COLORREF kPressed = RGB(2, 0, 0);
constexpr COLORREF kFocused = RGB(3, 0, 0);
constexpr COLORREF kDisabled = RGB(4, 0, 0);

constexpr std::string_view kRows[] = {"####", "####"};
constexpr kv::PaletteEntry kPalettes[] = {
    {'#', kv::ToArgb(kUp)},
    {'#', kv::ToArgb(kPressed)},
    {'#', kv::ToArgb(kFocused)},
    {'#', kv::ToArgb(kDisabled)},
};
constexpr kv::ImageResource kImages[] = {
    {501, 4, 2, kRows, std::span(kPalettes).subspan(0, 1)},
    {502, 4, 2, kRows, std::span(kPalettes).subspan(1, 1)},
    {503, 4, 2, kRows, std::span(kPalettes).subspan(2, 1)},
    {504, 4, 2, kRows, std::span(kPalettes).subspan(3, 1)},
};

class Window : public CWnd {
public:
    using CWnd::CreateNode;
};

class BitmapButton : public ::testing::Test {
protected:
    BitmapButton() {
        kv::WindowSystem::Get().SetDesktop(&desktop_);
        for (const auto& image : kImages)
            module_.images.push_back(&image);
        kv::AddToResourceChain(module_);
        host_.CreateNode(kv::NodeClass::kFrame, "", WS_VISIBLE, {0, 0, 99, 99}, nullptr, 0);
    }
    ~BitmapButton() override {
        host_.DestroyWindow();
        kv::RemoveFromResourceChain(module_);
        kv::WindowSystem::Get().SetDesktop(nullptr);
    }

    /// Puts an owner-drawn button of 20 by 16 pixels into the host and attaches to it.
    void Put(CBitmapButton& button, int id) {
        Window creator;
        creator.CreateNode(kv::NodeClass::kButton, "", BS_OWNERDRAW | WS_CHILD | WS_VISIBLE,
                           {10, 10, 30, 26}, &host_, id);
        creator.Detach();
        attached_ = button.AutoLoad(static_cast<UINT>(id), &host_);
    }
    COLORREF Painted(CBitmapButton& button) {
        kv::Raster picture(30, 30, kv::ToArgb(kWhite));
        CDC dc(picture);
        kv::PaintControl(*button.m_hWnd, dc);
        return picture.Pixel({0, 0});
    }

    kv::HeadlessDesktop desktop_;
    kv::ResourceModule module_;
    Window host_;
    BOOL attached_ = FALSE;
};

TEST_F(BitmapButton, ShowsThePictureOfItsState) {
    CBitmapButton button;
    Put(button, 9);
    EXPECT_TRUE(button.LoadBitmaps(501, 502, 503, 504));
    EXPECT_EQ(Painted(button), kUp);
    kv::WindowSystem::Get().SetFocusQuietly(button.m_hWnd);
    EXPECT_EQ(Painted(button), kFocused);
    button.SendMessage(BM_SETSTATE, TRUE);
    EXPECT_EQ(Painted(button), kPressed);
    button.SendMessage(BM_SETSTATE, FALSE);
    kv::WindowSystem::Get().SetFocusQuietly(nullptr);
    button.EnableWindow(FALSE);
    EXPECT_EQ(Painted(button), kDisabled);
}

TEST_F(BitmapButton, TheFirstPictureStandsInForAnyOther) {
    CBitmapButton button;
    Put(button, 9);
    EXPECT_TRUE(button.LoadBitmaps(501));
    button.SendMessage(BM_SETSTATE, TRUE);
    EXPECT_EQ(Painted(button), kUp);
    button.EnableWindow(FALSE);
    EXPECT_EQ(Painted(button), kUp);
}

TEST_F(BitmapButton, TellsWhenAPictureIsNotThere) {
    CBitmapButton button;
    Put(button, 9);
    EXPECT_FALSE(button.LoadBitmaps(0));
    EXPECT_FALSE(button.LoadBitmaps(599));
    EXPECT_FALSE(button.LoadBitmaps(501, 599));
    EXPECT_EQ(Painted(button), kUp);
}

TEST_F(BitmapButton, WithoutPicturesItIsAPlainPushButton) {
    CBitmapButton button;
    Put(button, 9);
    EXPECT_TRUE(attached_);
    EXPECT_EQ(Painted(button), desktop_.Color(kv::SystemColor::kButtonHighlight));
}

TEST_F(BitmapButton, TakesTheExtentOfThePictureThatItHas) {
    CBitmapButton button;
    EXPECT_TRUE(button.LoadBitmaps(501));
    Put(button, 9);
    EXPECT_TRUE(attached_);
    EXPECT_EQ(button.m_hWnd->Rect(), (CRect{10, 10, 14, 12}));
    EXPECT_EQ(Painted(button), kUp);
}

TEST_F(BitmapButton, APictureOfTheSameIdAsTheControlIsNotItsOwn) {
    CBitmapButton button;
    Put(button, 501);
    EXPECT_EQ(Painted(button), desktop_.Color(kv::SystemColor::kButtonHighlight));
    EXPECT_EQ(button.m_hWnd->Rect(), (CRect{10, 10, 30, 26}));
}

TEST_F(BitmapButton, AttachesToNothingWhereThereIsNoControl) {
    CBitmapButton button;
    EXPECT_FALSE(button.AutoLoad(12345, &host_));
    EXPECT_EQ(button.m_hWnd, nullptr);
}

}  // namespace
