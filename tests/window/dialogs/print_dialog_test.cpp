#include "window/dialogs/print_dialog.h"

#include <gtest/gtest.h>

#include <string>

#include "window/acting/headless_desktop.h"
#include "window/window_system.h"

namespace {

using kv::PrinterSettings;

class PrintDialog : public ::testing::Test {
protected:
    PrintDialog() {
        kv::WindowSystem::Get().SetDesktop(&desktop_);
        desktop_.SetPrinter({"Plotter North", 9, false, 2100, 2970});
    }
    ~PrintDialog() override { kv::WindowSystem::Get().SetDesktop(nullptr); }

    kv::HeadlessDesktop desktop_;
};

TEST_F(PrintDialog, TakesTheDefaultPrinterWithoutOpening) {
    CPrintDialog dialog(TRUE);
    EXPECT_EQ(dialog.GetDevMode(), nullptr);
    ASSERT_TRUE(dialog.GetDefaults());
    const DEVMODE& mode = *dialog.GetDevMode();
    EXPECT_STREQ(mode.dmDeviceName, "Plotter North");
    EXPECT_STREQ(mode.dmFormName, "A4");
    EXPECT_EQ(mode.dmOrientation, DMORIENT_PORTRAIT);
    EXPECT_EQ(mode.dmPaperSize, 9);
    EXPECT_EQ(mode.dmPaperLength, 2970);
    EXPECT_EQ(mode.dmPaperWidth, 2100);
    EXPECT_EQ(dialog.GetDeviceName(), "Plotter North");
}

TEST_F(PrintDialog, HasNoDefaultsWithoutAPrinter) {
    desktop_.SetNoPrinter();
    CPrintDialog dialog(TRUE);
    EXPECT_FALSE(dialog.GetDefaults());
    EXPECT_EQ(dialog.GetDevMode(), nullptr);
    EXPECT_EQ(dialog.GetDeviceName(), "");
}

TEST_F(PrintDialog, WhatWasSetUpIsTheProgramsPrinterFromThenOn) {
    desktop_.ExpectPrintSetup({"Plotter South", 1, true, 2159, 2794});
    CPrintDialog dialog(TRUE);
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_STREQ(dialog.GetDevMode()->dmFormName, "Letter");

    CPrintDialog later(TRUE);
    ASSERT_TRUE(later.GetDefaults());
    EXPECT_STREQ(later.GetDevMode()->dmDeviceName, "Plotter South");
    EXPECT_EQ(later.GetDevMode()->dmOrientation, DMORIENT_LANDSCAPE);
    EXPECT_EQ(later.GetDevMode()->dmPaperLength, 2794);
    EXPECT_EQ(later.GetDevMode()->dmPaperWidth, 2159);
}

TEST_F(PrintDialog, CancelledItChangesNothing) {
    const auto before = kv::CurrentPrinter();
    desktop_.ExpectPrintSetupCancel();
    CPrintDialog dialog(TRUE);
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.GetDevMode(), nullptr);
    ASSERT_TRUE(before && kv::CurrentPrinter());
    EXPECT_EQ(kv::CurrentPrinter()->device, before->device);
}

TEST_F(PrintDialog, SettingUpIsAmongItsFlags) {
    EXPECT_EQ(CPrintDialog(TRUE, PD_NOPAGENUMS).GetFlags(), PD_NOPAGENUMS | PD_PRINTSETUP);
    EXPECT_EQ(CPrintDialog(FALSE, PD_NOPAGENUMS).GetFlags(), PD_NOPAGENUMS);
    EXPECT_EQ(CPrintDialog(FALSE).GetFlags(), 0x14000Cu);
}

TEST(Papers, HaveTheirNames) {
    EXPECT_EQ(kv::PaperName(1), "Letter");
    EXPECT_EQ(kv::PaperName(5), "Legal");
    EXPECT_EQ(kv::PaperName(8), "A3");
    EXPECT_EQ(kv::PaperName(17), "11x17");
    EXPECT_EQ(kv::PaperName(256), "Custom");
}

TEST(DevMode, LongNamesAreCutToTheirRoom) {
    PrinterSettings settings;
    settings.device = std::string(40, 'x');
    EXPECT_EQ(std::string(kv::ToDevMode(settings).dmDeviceName), std::string(31, 'x'));
}

TEST(DevMode, LengthsTooLongForItAreCut) {
    PrinterSettings settings;
    settings.heightTenthMm = 100000;
    EXPECT_EQ(kv::ToDevMode(settings).dmPaperLength, 32767);
}

}  // namespace
