#include "window/dialogs/print_dialog.h"

#include <algorithm>
#include <limits>
#include <span>

#include "window/modal_scope.h"
#include "window/window_system.h"

namespace {

/// Papers by the platform's numbers.
struct Paper {
    int number;
    const char* name;
};
constexpr Paper kPapers[] = {
    {1, "Letter"},
    {2, "Letter Small"},
    {3, "Tabloid"},
    {4, "Ledger"},
    {5, "Legal"},
    {6, "Statement"},
    {7, "Executive"},
    {8, "A3"},
    {9, "A4"},
    {10, "A4 Small"},
    {11, "A5"},
    {12, "B4"},
    {13, "B5"},
    {14, "Folio"},
    {15, "Quarto"},
    {16, "10x14"},
    {17, "11x17"},
    {18, "Note"},
    {19, "Envelope #9"},
    {20, "Envelope #10"},
    {24, "C size sheet"},
    {25, "D size sheet"},
    {26, "E size sheet"},
    {66, "A2"},
};

/// What print setup left, for the rest of the program's life.
std::optional<kv::PrinterSettings>& ChosenPrinter() {
    static std::optional<kv::PrinterSettings> chosen;
    return chosen;
}

short ToShort(int value) {
    return static_cast<short>(std::clamp<int>(value, 0, std::numeric_limits<short>::max()));
}

/// The text, as far as there is room for it and a closing 0.
void CopyInto(std::span<char> room, const std::string& text) {
    kv::CopyText(text, room.data(), room.size());
}

}  // namespace

namespace kv {

std::string PaperName(int paper) {
    for (const Paper& each : kPapers) {
        if (each.number == paper) return each.name;
    }
    return "Custom";
}

std::string FormName(const PrinterSettings& settings) {
    return settings.form.empty() ? PaperName(settings.paper) : settings.form;
}

std::optional<PrinterSettings> CurrentPrinter() {
    Desktop& desktop = WindowSystem::Get().GetDesktop();
    // A sheet that was chosen where there is no printer has none that could be gone.
    const auto& chosen = ChosenPrinter();
    if (chosen && (chosen->device.empty() || desktop.HasPrinter(chosen->device))) return chosen;
    PrinterSettings settings;
    if (!desktop.DefaultPrinter(settings)) return std::nullopt;
    return settings;
}

void ResetPrinter() {
    ChosenPrinter().reset();
}

DEVMODE ToDevMode(const PrinterSettings& settings) {
    DEVMODE mode;
    CopyInto(mode.dmDeviceName, settings.device);
    CopyInto(mode.dmFormName, FormName(settings));
    mode.dmOrientation = settings.landscape ? DMORIENT_LANDSCAPE : DMORIENT_PORTRAIT;
    mode.dmPaperSize = ToShort(settings.paper);
    mode.dmPaperLength = ToShort(settings.heightTenthMm);
    mode.dmPaperWidth = ToShort(settings.widthTenthMm);
    return mode;
}

PrinterSettings FromDevMode(const DEVMODE& mode) {
    PrinterSettings settings;
    settings.device = mode.dmDeviceName;
    settings.form = mode.dmFormName;
    settings.paper = mode.dmPaperSize;
    settings.landscape = mode.dmOrientation == DMORIENT_LANDSCAPE;
    settings.heightTenthMm = mode.dmPaperLength;
    settings.widthTenthMm = mode.dmPaperWidth;
    return settings;
}

}  // namespace kv

CPrintDialog::CPrintDialog(BOOL setupOnly, DWORD flags, CWnd* parent)
    : CDialog(0, parent), m_nFlags(setupOnly ? flags | PD_PRINTSETUP : flags) {}

int CPrintDialog::DoModal() {
    kv::PrinterSettings settings = kv::CurrentPrinter().value_or(kv::PrinterSettings{});
    const kv::ModalScope scope;
    if (kv::WindowSystem::Get().GetDesktop().RunPrintSetup(settings) != IDOK) return IDCANCEL;
    ChosenPrinter() = settings;
    Take(settings);
    return IDOK;
}

BOOL CPrintDialog::GetDefaults() {
    const auto settings = kv::CurrentPrinter();
    if (!settings) return FALSE;
    Take(*settings);
    return TRUE;
}

void CPrintDialog::Take(const kv::PrinterSettings& settings) {
    m_devMode = kv::ToDevMode(settings);
    m_strDevice = settings.device;
}
