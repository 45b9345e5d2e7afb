#pragma once

#include <string>
#include <vector>

#include "adaptors/adaptor.h"
#include "window/controls/combo_box.h"
#include "window/frames/frame_wnd.h"

namespace adaptors {

/// What a caller of a qualifier dialog has of its own: a combo box, in a window that is not shown,
/// and a vector, both from the inputs "text" and "values".
class Caller {
public:
    explicit Caller(const Run& run);

    CComboBox combo;
    std::vector<std::string> values;

    /// What both hold in the end.
    void Tell(Run& run) const;

private:
    CFrameWnd frame_;
};

/// The two inputs, with what makes sense in them.
std::vector<Input> CallerInputs();

}  // namespace adaptors
