#pragma once

#include <string>
#include <vector>

#include "support/dialog_fixture.h"
#include "window/desktop.h"

namespace test {

/// A desktop that answers whatever message box opens with OK, and keeps its words.
class ListeningDesktop : public TestDesktop {
public:
    int RunMessageBox(const kv::MessageBoxRequest& request) override {
        shown.push_back(request.text);
        return IDOK;
    }
    std::vector<std::string> shown;
};

}  // namespace test
