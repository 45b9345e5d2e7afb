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
        kv::ResetPrinter();
    }
    ~PrintDialog() override { kv::WindowSystem::Get().SetDesktop(nullptr); }

    /// Chooses that printer in print setup.
    void Choose(const PrinterSettings& settings) {
        desktop_.ExpectPrintSetup(settings);
        CPrintDialog dialog(TRUE);
        EXPECT_EQ(dialog.DoModal(), IDOK);
    }
    static std::string CurrentDevice() {
        const auto printer = kv::CurrentPrinter();
        return printer ? printer->device : "none";
    }

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

TEST_F(PrintDialog, AChosenPrinterThatIsGoneGivesWayToTheDefaultOneUntilItIsBack) {
    Choose({"Plotter South", 1, true, 2159, 2794});
    EXPECT_EQ(CurrentDevice(), "Plotter South");
    desktop_.RemovePrinter("Plotter South");
    EXPECT_EQ(CurrentDevice(), "Plotter North");
    desktop_.SetNoPrinter();
    EXPECT_EQ(CurrentDevice(), "none");
}

TEST_F(PrintDialog, ASheetThatWasChosenWithoutAPrinterStays) {
    desktop_.SetNoPrinter();
    Choose({"", 8, true, 2970, 4200});
    ASSERT_TRUE(kv::CurrentPrinter());
    EXPECT_EQ(kv::CurrentPrinter()->paper, 8);
}

TEST_F(PrintDialog, WhatWasChosenCanBeForgotten) {
    Choose({"Plotter South", 1, true, 2159, 2794});
    kv::ResetPrinter();
    EXPECT_EQ(CurrentDevice(), "Plotter North");
}

TEST_F(PrintDialog, TheNameOfALongPrinterIsWhole) {
    const std::string name = "Plotter of the drafting room, third floor";
    desktop_.SetPrinter({name, 1, false, 2159, 2794});
    CPrintDialog dialog(TRUE);
    ASSERT_TRUE(dialog.GetDefaults());
    EXPECT_EQ(dialog.GetDeviceName().str(), name);
    EXPECT_EQ(std::string(dialog.GetDevMode()->dmDeviceName), name.substr(0, 31));
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

TEST(Papers, GoByTheNameOfTheirForm) {
    PrinterSettings settings{"Plotter", 0, false, 9144, 12192, "ARCH E"};
    EXPECT_EQ(kv::FormName(settings), "ARCH E");
    EXPECT_STREQ(kv::ToDevMode(settings).dmFormName, "ARCH E");
    settings.form = "";
    EXPECT_EQ(kv::FormName(settings), "Custom");
    settings.paper = 9;
    EXPECT_EQ(kv::FormName(settings), "A4");
}

TEST(DevMode, TellsThePrinterBack) {
    const PrinterSettings settings{"Plotter", 8, true, 2970, 4200, "A3"};
    const PrinterSettings back = kv::FromDevMode(kv::ToDevMode(settings));
    EXPECT_EQ(back.device, "Plotter");
    EXPECT_EQ(back.form, "A3");
    EXPECT_EQ(back.paper, 8);
    EXPECT_TRUE(back.landscape);
    EXPECT_EQ(back.widthTenthMm, 2970);
    EXPECT_EQ(back.heightTenthMm, 4200);
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
