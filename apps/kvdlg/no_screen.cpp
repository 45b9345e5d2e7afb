// Takes the place of screen.cpp where the library is built without windows.

#include "kvdlg/failure.h"
#include "kvdlg/screen.h"

namespace kvdlg {

std::unique_ptr<Screen> OpenDisplay(Records&, WindowClosed) {
    throw BadUse("This kvdlg was built without windows; --script plays the user without one");
}

std::unique_ptr<Screen> OpenHiddenScreen() {
    throw BadUse("This kvdlg was built without windows, and takes no pictures");
}

}  // namespace kvdlg
