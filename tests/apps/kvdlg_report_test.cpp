#include "kvdlg/report.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "window/controls/edit.h"
#include "window/frames/frame_wnd.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

TEST(KvdlgReport, TellsOfAPasswordOnlyThatThereIsOne) {
    CFrameWnd frame;
    frame.Create("Log in");
    CEdit user;
    CEdit password;
    user.Create(WS_CHILD | WS_VISIBLE, {0, 0, 100, 20}, &frame, 1);
    password.Create(WS_CHILD | WS_VISIBLE | ES_PASSWORD, {0, 20, 100, 40}, &frame, 2);
    const auto texts = [&] {
        const auto controls = kvdlg::Describe(*frame.m_hWnd, "").at("controls");
        return std::vector<std::string>{controls.at(0).at("text"), controls.at(1).at("text")};
    };
    EXPECT_THAT(texts(), ElementsAre("", ""));
    user.SetWindowText("scott");
    password.SetWindowText("tiger");
    EXPECT_THAT(texts(), ElementsAre("scott", "***"));
    EXPECT_THAT(kvdlg::Print(kvdlg::Describe(*frame.m_hWnd, "start")), Not(HasSubstr("tiger")));
}

}  // namespace
