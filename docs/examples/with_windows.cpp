// The same dialog in a window, in a program that knows nothing else of Qt.

#include <cstdio>
#include <string>
#include <vector>

#include "frame/module.h"
#include "qt/application.h"
#include "qualifiers/pipe_status_dlg.h"
#include "window/controls/combo_box.h"
#include "window/frames/frame_wnd.h"

int main(int argc, char** argv) {
    kv::qt::Application application(argc, argv);
    InitControlDll();

    CFrameWnd frame;
    frame.Create("Host");
    CComboBox combo;
    combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, {0, 0, 120, 120}, &frame, 1);
    std::vector<std::string> values;

    CKvGuiPipeStatusDlg dialog(&combo, values, false, nullptr);
    if (dialog.DoModal() != IDOK) return 1;
    for (const std::string& value : values)
        std::printf("%s\n", value.c_str());
}
