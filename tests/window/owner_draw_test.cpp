#include "window/owner_draw.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "window/acting/headless_desktop.h"
#include "window/drawing/raster.h"
#include "window/message_handlers.h"
#include "window/paint_context.h"
#include "window/window_system.h"
#include "window/wnd.h"

namespace {

using kv::ControlColors;
using kv::NodeClass;
using kv::SystemColor;

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

class Window : public CWnd {
public:
    using CWnd::CreateNode;
};

/// A button that paints itself red and notes what it was told.
class RedButton : public Window, public kv::OwnerDrawn {
public:
    void DrawItem(DRAWITEMSTRUCT* item) override {
        items.push_back(*item);
        item->hDC->FillSolidRect(&item->rcItem, kRed);
        item->hDC->SetTextColor(kRed);
    }
    std::vector<DRAWITEMSTRUCT> items;
};

class PaintedLabel : public Window {
public:
    void OnPaint() {
        CPaintDC dc(this);
        rect = dc.m_ps.rcPaint;
        dc.FillSolidRect(0, 0, 1000, 1000, kBlue);
    }
    static const kv::MessageMap& Messages() {
        static const kv::MessageEntry kEntries[] = {
            kv::OnMessage<&PaintedLabel::OnPaint>(WM_PAINT)};
        static const kv::MessageMap kMap{&CWnd::Messages(), kEntries};
        return kMap;
    }
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }
    CRect rect;
};

/// Answers with colours of its own, for itself and for what is in it.
class Colored : public Window {
public:
    HBRUSH OnCtlColor(CDC* context, CWnd* control, UINT kind) {
        asked.emplace_back(control->GetDlgCtrlID(), kind);
        context->SetTextColor(kRed);
        context->SetBkColor(kBlue);
        return answers ? brush.GetSafeHandle() : nullptr;
    }
    static const kv::MessageMap& Messages() {
        static const kv::MessageEntry kEntries[] = {
            kv::OnMessage<&Colored::OnCtlColor>(WM_CTLCOLOR)};
        static const kv::MessageMap kMap{&CWnd::Messages(), kEntries};
        return kMap;
    }
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

    CBrush brush{kBlue};
    bool answers = true;
    std::vector<std::pair<int, UINT>> asked;
};

class OwnerDraw : public ::testing::Test {
protected:
    OwnerDraw() {
        kv::WindowSystem::Get().SetDesktop(&desktop_);
        host_.CreateNode(NodeClass::kFrame, "", WS_VISIBLE, {0, 0, 200, 100}, nullptr, 0);
    }
    ~OwnerDraw() override {
        host_.DestroyWindow();
        kv::WindowSystem::Get().SetDesktop(nullptr);
    }

    void Put(Window& control, NodeClass nodeClass, DWORD style, const char* text = "") {
        control.CreateNode(nodeClass, text, style | WS_CHILD | WS_VISIBLE, {10, 10, 40, 30}, &host_,
                           77);
    }
    COLORREF At(int x, int y) const { return picture_.Pixel({x, y}); }
    COLORREF Color(SystemColor which) { return desktop_.Color(which); }

    kv::HeadlessDesktop desktop_;
    Window host_;
    kv::Raster picture_{60, 40, kv::ToArgb(kWhite)};
    CDC dc_{picture_};
};

TEST_F(OwnerDraw, AnOwnerDrawnButtonDrawsItselfWithinItsOwnBounds) {
    RedButton button;
    Put(button, NodeClass::kButton, BS_OWNERDRAW);
    dc_.SetViewportOrg(5, 5);
    EXPECT_TRUE(kv::PaintControl(*button.m_hWnd, dc_));
    EXPECT_EQ(At(5, 5), kRed);
    EXPECT_EQ(At(34, 24), kRed);
    EXPECT_EQ(At(35, 24), kWhite);
    EXPECT_EQ(At(34, 25), kWhite);
    EXPECT_EQ(At(4, 5), kWhite);
}

TEST_F(OwnerDraw, OnlyItsOwnStateDisablesAButtonNotThatOfItsWindow) {
    RedButton button;
    Put(button, NodeClass::kButton, BS_OWNERDRAW);
    host_.EnableWindow(FALSE);
    kv::PaintControl(*button.m_hWnd, dc_);
    button.EnableWindow(FALSE);
    kv::PaintControl(*button.m_hWnd, dc_);
    ASSERT_EQ(button.items.size(), 2u);
    EXPECT_EQ(button.items[0].itemState & ODS_DISABLED, 0u);
    EXPECT_NE(button.items[1].itemState & ODS_DISABLED, 0u);
}

TEST_F(OwnerDraw, TheButtonIsToldWhatToDraw) {
    RedButton button;
    Put(button, NodeClass::kButton, BS_OWNERDRAW);
    kv::PaintControl(*button.m_hWnd, dc_);
    ASSERT_EQ(button.items.size(), 1u);
    const DRAWITEMSTRUCT& item = button.items.front();
    EXPECT_EQ(item.CtlType, ODT_BUTTON);
    EXPECT_EQ(item.CtlID, 77u);
    EXPECT_EQ(item.itemAction, ODA_DRAWENTIRE);
    EXPECT_EQ(item.itemState, 0u);
    EXPECT_EQ(item.hwndItem, button.m_hWnd);
    EXPECT_EQ(item.rcItem, (CRect{0, 0, 30, 20}));
}

TEST_F(OwnerDraw, TheButtonIsToldItsState) {
    RedButton button;
    Put(button, NodeClass::kButton, BS_OWNERDRAW);
    kv::WindowSystem::Get().SetFocusQuietly(button.m_hWnd);
    kv::PaintControl(*button.m_hWnd, dc_);
    EXPECT_EQ(button.items.back().itemState, ODS_FOCUS);
    kv::WindowSystem::Get().SetFocusQuietly(nullptr);
    button.EnableWindow(FALSE);
    kv::PaintControl(*button.m_hWnd, dc_);
    EXPECT_EQ(button.items.back().itemState, ODS_DISABLED);
    button.EnableWindow(TRUE);
    button.SendMessage(BM_SETSTATE, TRUE);
    kv::PaintControl(*button.m_hWnd, dc_);
    EXPECT_EQ(button.items.back().itemState, ODS_SELECTED);
}

TEST_F(OwnerDraw, DrawingLeavesTheContextAsItWas) {
    RedButton button;
    Put(button, NodeClass::kButton, BS_OWNERDRAW);
    kv::PaintControl(*button.m_hWnd, dc_);
    EXPECT_EQ(dc_.GetTextColor(), RGB(0, 0, 0));
    EXPECT_EQ(dc_.GetClipBox(), (CRect{0, 0, 60, 40}));
}

TEST_F(OwnerDraw, TheDrawingGoesByWayOfTheParent) {
    class Parent : public Window {
    public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_DRAWITEM) {
                ids.push_back(static_cast<int>(wParam));
                const auto* item = reinterpret_cast<DRAWITEMSTRUCT*>(lParam);
                item->hDC->SetPixel(0, 0, kBlue);
                return TRUE;
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
        std::vector<int> ids;
    };
    Parent parent;
    parent.CreateNode(NodeClass::kFrame, "", WS_VISIBLE, {0, 0, 99, 99}, nullptr, 0);
    RedButton button;
    button.CreateNode(NodeClass::kButton, "", BS_OWNERDRAW | WS_CHILD | WS_VISIBLE, {0, 0, 9, 9},
                      &parent, 5);
    EXPECT_TRUE(kv::PaintControl(*button.m_hWnd, dc_));
    EXPECT_EQ(parent.ids, std::vector<int>{5});
    EXPECT_TRUE(button.items.empty());
    EXPECT_EQ(At(0, 0), kBlue);
    parent.DestroyWindow();
}

TEST_F(OwnerDraw, AnOwnerDrawnButtonThatNobodyDrawsIsAPlainOne) {
    Window button;
    Put(button, NodeClass::kButton, BS_OWNERDRAW, "OK");
    EXPECT_TRUE(kv::PaintControl(*button.m_hWnd, dc_));
    EXPECT_EQ(At(0, 0), Color(SystemColor::kButtonHighlight));
    EXPECT_EQ(At(29, 19), Color(SystemColor::kDarkShadow));
    EXPECT_EQ(At(28, 18), Color(SystemColor::kButtonShadow));
    EXPECT_EQ(At(4, 4), Color(SystemColor::kButtonFace));
}

TEST_F(OwnerDraw, APushButtonShowsThatItIsPressed) {
    const CRect rect{0, 0, 30, 20};
    kv::DrawPushButton(dc_, rect, ODS_SELECTED, "");
    EXPECT_EQ(At(0, 0), Color(SystemColor::kButtonShadow));
    EXPECT_EQ(At(29, 19), Color(SystemColor::kButtonShadow));
    EXPECT_EQ(At(1, 1), Color(SystemColor::kButtonFace));
}

TEST_F(OwnerDraw, APushButtonsTextIsGrayWhenDisabled) {
    const auto has = [this](COLORREF color) {
        for (int y = 3; y < 17; ++y) {
            for (int x = 3; x < 27; ++x) {
                if (At(x, y) == color) return true;
            }
        }
        return false;
    };
    kv::DrawPushButton(dc_, {0, 0, 30, 20}, 0, "OK");
    EXPECT_TRUE(has(Color(SystemColor::kButtonText)));
    EXPECT_FALSE(has(Color(SystemColor::kGrayText)));
    kv::DrawPushButton(dc_, {0, 0, 30, 20}, ODS_DISABLED, "OK");
    EXPECT_FALSE(has(Color(SystemColor::kButtonText)));
    EXPECT_TRUE(has(Color(SystemColor::kGrayText)));
}

TEST_F(OwnerDraw, ADefaultPushButtonHasAFrame) {
    kv::DrawPushButton(dc_, {0, 0, 30, 20}, ODS_DEFAULT, "");
    EXPECT_EQ(At(0, 0), Color(SystemColor::kButtonText));
    EXPECT_EQ(At(29, 19), Color(SystemColor::kButtonText));
    EXPECT_EQ(At(1, 1), Color(SystemColor::kButtonHighlight));
}

TEST_F(OwnerDraw, AControlWithAPaintHandlerPaintsItself) {
    PaintedLabel label;
    Put(label, NodeClass::kStatic, 0);
    dc_.SetViewportOrg(2, 3);
    EXPECT_TRUE(kv::PaintControl(*label.m_hWnd, dc_));
    EXPECT_EQ(label.rect, (CRect{0, 0, 30, 20}));
    EXPECT_EQ(At(2, 3), kBlue);
    EXPECT_EQ(At(31, 22), kBlue);
    EXPECT_EQ(At(32, 22), kWhite);
    EXPECT_EQ(At(1, 3), kWhite);
}

TEST_F(OwnerDraw, AControlWithoutOneIsLeftToTheView) {
    Window label;
    Put(label, NodeClass::kStatic, 0, "Area");
    EXPECT_FALSE(kv::PaintControl(*label.m_hWnd, dc_));
    EXPECT_EQ(At(0, 0), kWhite);
}

TEST_F(OwnerDraw, OutsideOfPaintingAPaintMessageDrawsNowhere) {
    PaintedLabel label;
    Put(label, NodeClass::kStatic, 0);
    label.SendMessage(WM_PAINT);
    EXPECT_EQ(label.rect, (CRect{0, 0, 30, 20}));
    EXPECT_EQ(kv::PaintingContext(label.m_hWnd), nullptr);
    EXPECT_EQ(At(0, 0), kWhite);
}

TEST_F(OwnerDraw, AControlIsAskedForItsColoursFirst) {
    Colored edit;
    Put(edit, NodeClass::kEdit, 0);
    EXPECT_EQ(kv::AskColors(*edit.m_hWnd, dc_), (ControlColors{kRed, kBlue}));
    EXPECT_EQ(edit.asked, (std::vector<std::pair<int, UINT>>{{77, CTLCOLOR_EDIT}}));
}

TEST_F(OwnerDraw, ThenItsParentIsAsked) {
    Colored parent;
    parent.CreateNode(NodeClass::kFrame, "", WS_VISIBLE, {0, 0, 99, 99}, nullptr, 0);
    Window list;
    list.CreateNode(NodeClass::kListBox, "", WS_CHILD | WS_VISIBLE, {0, 0, 9, 9}, &parent, 8);
    EXPECT_EQ(kv::AskColors(*list.m_hWnd, dc_), (ControlColors{kRed, kBlue}));
    EXPECT_EQ(parent.asked, (std::vector<std::pair<int, UINT>>{{8, CTLCOLOR_LISTBOX}}));
    parent.DestroyWindow();
}

TEST_F(OwnerDraw, TheParentsParentIsAskedOnlyBehindAComboBox) {
    Colored outer;
    outer.CreateNode(NodeClass::kFrame, "", WS_VISIBLE, {0, 0, 99, 99}, nullptr, 0);
    Window bar;
    bar.CreateNode(NodeClass::kBar, "", WS_CHILD | WS_VISIBLE, {0, 0, 90, 30}, &outer, 1);
    Window label;
    label.CreateNode(NodeClass::kStatic, "", WS_CHILD | WS_VISIBLE, {0, 0, 9, 9}, &bar, 2);
    kv::AskColors(*label.m_hWnd, dc_);
    EXPECT_TRUE(outer.asked.empty());

    Window combo;
    combo.CreateNode(NodeClass::kComboBox, "", WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, {0, 0, 90, 12},
                     &outer, 3);
    kv::Node* edit = combo.m_hWnd->FocusTarget();
    ASSERT_NE(edit, combo.m_hWnd);
    EXPECT_EQ(kv::AskColors(*edit, dc_), (ControlColors{kRed, kBlue}));
    EXPECT_EQ(outer.asked.size(), 1u);
    outer.DestroyWindow();
}

TEST_F(OwnerDraw, WithoutABrushTheSystemsColoursStand) {
    Colored edit;
    edit.answers = false;
    Put(edit, NodeClass::kEdit, 0);
    EXPECT_EQ(kv::AskColors(*edit.m_hWnd, dc_),
              (ControlColors{Color(SystemColor::kWindowText), Color(SystemColor::kWindow)}));
}

TEST_F(OwnerDraw, AHollowBrushLetsTheBackgroundThrough) {
    Colored label;
    label.brush.CreateStockObject(NULL_BRUSH);
    Put(label, NodeClass::kStatic, 0);
    EXPECT_EQ(kv::AskColors(*label.m_hWnd, dc_), (ControlColors{kRed, std::nullopt}));
}

TEST_F(OwnerDraw, ControlsHaveTheSystemsColours) {
    Window label;
    Put(label, NodeClass::kStatic, 0);
    EXPECT_EQ(kv::AskColors(*label.m_hWnd, dc_),
              (ControlColors{Color(SystemColor::kButtonText), Color(SystemColor::kButtonFace)}));
    label.EnableWindow(FALSE);
    EXPECT_EQ(kv::AskColors(*label.m_hWnd, dc_),
              (ControlColors{Color(SystemColor::kGrayText), Color(SystemColor::kButtonFace)}));
}

TEST_F(OwnerDraw, AnEditThatCannotBeTypedIntoLooksLikeALabel) {
    Colored edit;
    edit.answers = false;
    Put(edit, NodeClass::kEdit, 0);
    edit.EnableWindow(FALSE);
    EXPECT_EQ(kv::AskColors(*edit.m_hWnd, dc_),
              (ControlColors{Color(SystemColor::kGrayText), Color(SystemColor::kButtonFace)}));
    edit.EnableWindow(TRUE);
    edit.ModifyStyle(0, ES_READONLY);
    EXPECT_EQ(kv::AskColors(*edit.m_hWnd, dc_),
              (ControlColors{Color(SystemColor::kButtonText), Color(SystemColor::kButtonFace)}));
    EXPECT_EQ(edit.asked.back().second, CTLCOLOR_STATIC);
}

TEST_F(OwnerDraw, AskingLeavesTheContextAsItWas) {
    Colored edit;
    Put(edit, NodeClass::kEdit, 0);
    dc_.SetTextColor(kBlue);
    kv::AskColors(*edit.m_hWnd, dc_);
    EXPECT_EQ(dc_.GetTextColor(), kBlue);
    EXPECT_EQ(dc_.GetBkColor(), kWhite);
}

}  // namespace
