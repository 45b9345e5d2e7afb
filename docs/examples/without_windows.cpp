// Runs a dialog where nobody sees it: what a person would do is told ahead of time.

#include <cstdio>
#include <string>
#include <vector>

#include "frame/module.h"
#include "qualifiers/pipe_ids.h"
#include "qualifiers/pipe_status_dlg.h"
#include "window/acting/headless_desktop.h"
#include "window/controls/combo_box.h"
#include "window/frames/frame_wnd.h"
#include "window/window_system.h"

int main() {
    InitControlDll();
    kv::HeadlessDesktop desktop;
    kv::WindowSystem::Get().SetDesktop(&desktop);
    desktop.ExpectWindow("CKvGuiPipeStatusDlg", [](kv::User& user) {
        user.Click(kv::pipe_status::kAllInactive);
        user.Click(IDOK);
    });

    // What the dialog takes of its caller's: a combo box, and a vector of the values.
    CFrameWnd frame;
    frame.Create("Host");
    CComboBox combo;
    combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, {0, 0, 120, 120}, &frame, 1);
    std::vector<std::string> values;

    CKvGuiPipeStatusDlg dialog(&combo, values, false, &frame);
    if (dialog.DoModal() != IDOK) return 1;

    CString shown;
    combo.GetWindowText(shown);
    std::printf("%zu values, and the box shows %s\n", values.size(), static_cast<LPCTSTR>(shown));
}
