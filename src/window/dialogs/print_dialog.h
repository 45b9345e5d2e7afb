#pragma once

#include <optional>
#include <string>

#include "base/cstring.h"
#include "base/export.h"
#include "base/types.h"
#include "window/desktop.h"
#include "window/dialogs/dialog.h"

inline constexpr short DMORIENT_PORTRAIT = 1;
inline constexpr short DMORIENT_LANDSCAPE = 2;

inline constexpr DWORD PD_ALLPAGES = 0x00000000;
inline constexpr DWORD PD_NOSELECTION = 0x00000004;
inline constexpr DWORD PD_NOPAGENUMS = 0x00000008;
inline constexpr DWORD PD_PRINTSETUP = 0x00000040;
inline constexpr DWORD PD_USEDEVMODECOPIES = 0x00040000;
inline constexpr DWORD PD_HIDEPRINTTOFILE = 0x00100000;

/// A printer's settings. The lengths are those of the sheet as it lies in portrait, in tenths of a
/// millimetre, whatever the orientation.
struct DEVMODE {
    char dmDeviceName[32] = "";
    short dmOrientation = DMORIENT_PORTRAIT;
    short dmPaperSize = 1;
    short dmPaperLength = 0;
    short dmPaperWidth = 0;
    char dmFormName[32] = "";
};

namespace kv {

/// Name of a paper by its number, 1 being "Letter"; "Custom" for a number that has none.
KVGUICTL_API std::string PaperName(int paper);

/// Name of the paper that is set.
KVGUICTL_API std::string FormName(const PrinterSettings& settings);

/// The printer that the program uses: as print setup left it, as long as it is there; before that,
/// and once it is gone, the machine's default one. None where the machine has no printer.
KVGUICTL_API std::optional<PrinterSettings> CurrentPrinter();
/// Forgets what print setup left.
KVGUICTL_API void ResetPrinter();

/// Names are cut to the room for them; real printing goes by the settings.
KVGUICTL_API DEVMODE ToDevMode(const PrinterSettings& settings);
KVGUICTL_API PrinterSettings FromDevMode(const DEVMODE& mode);

}  // namespace kv

/// The platform's dialog for choosing a printer, its paper and orientation.
class KVGUICTL_API CPrintDialog : public CDialog {
public:
    static constexpr CRuntimeClass classCPrintDialog{"CPrintDialog"};
    const CRuntimeClass* GetRuntimeClass() const override { return &classCPrintDialog; }

    /// Only the form for setting up is there: a host prints by itself. `flags` are PD_... bits.
    explicit CPrintDialog(BOOL setupOnly,
                          DWORD flags = PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOPAGENUMS |
                                        PD_HIDEPRINTTOFILE | PD_NOSELECTION,
                          CWnd* parent = nullptr);

    /// IDOK, and what was chosen is the program's printer from then on, or IDCANCEL. It opens with
    /// the current printer.
    int DoModal() override;
    /// Takes the current printer without showing anything; false when there is none.
    BOOL GetDefaults();

    /// Of the printer that was chosen or taken; null before that.
    DEVMODE* GetDevMode() { return m_devMode ? &*m_devMode : nullptr; }
    /// All of it, also where the record's room is too small.
    CString GetDeviceName() const { return m_strDevice.c_str(); }
    DWORD GetFlags() const { return m_nFlags; }

private:
    void Take(const kv::PrinterSettings& settings);

    DWORD m_nFlags;
    std::optional<DEVMODE> m_devMode;
    std::string m_strDevice;
};
