#pragma once

#include "frame/module.h"
#include "print/print_control.h"
#include "support/dialog_fixture.h"
#include "window/dialogs/print_dialog.h"

namespace test {

/// A test of the dialog ahead of printing, in a program that has run none before.
class PrintTest : public DialogTest {
protected:
    PrintTest() {
        InitControlDll();
        kv::ResetPrinter();
        using Control = CKvGuiPrintControl;
        Control::m_bTTFont = Control::m_bColor = true;
        Control::m_bLandscape = Control::m_bPrintLandscape = false;
        Control::m_bGray = Control::m_bIsCGM = false;
        Control::m_fMargin = 1.0F;
        Control::m_fPrintBoundWidth = Control::m_fPrintBoundHeight = 36.0F;
        Control::m_nMapScale = Control::m_nOrigScale = Control::m_nPrintScale = 0;
    }

    static constexpr const char* kNoPrinter = "Unable to communicate with the printer";
    static constexpr const char* kNoScale = "Unknown map scale";
};

}  // namespace test
