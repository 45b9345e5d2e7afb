#pragma once

#include "window/controls/button.h"
#include "window/message_handlers.h"
#include "window/named.h"
#include "window/owner_draw.h"

/// A push button in colours of its own, one of the cells of all colours. Shown, it takes the colour
/// that its id stands for; a click sends the parent message 0 with the colour's index, and then
/// its command.
class KVGUICTL_API CKvColorButton : public CButton, public kv::OwnerDrawn, public kv::Named {
public:
    static constexpr CRuntimeClass classCKvColorButton{"CKvColorButton"};
    const CRuntimeClass* GetRuntimeClass() const override { return &classCKvColorButton; }

    CKvColorButton() { SetColorToWindowsDefault(); }

    /// What is not given stays.
    void SetColor(COLORREF text, COLORREF back);
    void SetColor(COLORREF text, COLORREF back, COLORREF disabled);
    void SetColor(COLORREF text, COLORREF back, COLORREF disabled, COLORREF light,
                  COLORREF highlight, COLORREF shadow, COLORREF darkShadow);
    void SetColorToWindowsDefault();

    void DrawItem(DRAWITEMSTRUCT* item) override;
    std::string SpokenName() const override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    LRESULT OnCreate(WPARAM wParam, LPARAM lParam);
    void OnShowWindow(BOOL bShow, UINT nStatus);
    bool OnClicked();

    COLORREF m_crText = 0;
    COLORREF m_crBack = 0;
    COLORREF m_crDisabled = 0;
    COLORREF m_crLight = 0;
    COLORREF m_crHighlight = 0;
    COLORREF m_crShadow = 0;
    COLORREF m_crDarkShadow = 0;

private:
    int Index() const;
};
