#include <dlfcn.h>

#include <cstdio>

#include "frame/module.h"
#include "pickers/abe_bar.h"
#include "pickers/abe_bar_ids.h"
#include "window/acting/user.h"
#include "window/frames/frame_wnd.h"

using namespace kv::abe_bar;

int main() {
    void* library = dlopen("libKVGuiCtl.so.0", RTLD_NOW);
    void* start = library ? dlsym(library, "InitControlDll") : nullptr;
    if (!start || !reinterpret_cast<decltype(&InitControlDll)>(start)()) return 1;

    CFrameWnd frame;
    frame.Create("Host");
    frame.ShowWindow(SW_SHOW);
    CVZABEBar bar;
    if (!bar.Create(&frame, kTemplate, CBRS_TOP, kTemplate)) return 2;

    kv::User user(*bar.m_hWnd, [](const std::string& words) { throw words; });
    user.Select(kArea, "VR");
    user.Select(kBlock, 1);
    std::printf("area %s, block %s\n", bar.GetAreacode(true).c_str(), bar.GetBlk(true).c_str());
}
