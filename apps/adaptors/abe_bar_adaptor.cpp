// The area/block/layer bar in a frame of its own.

#include "adaptors/adaptor.h"
#include "pickers/abe_bar.h"
#include "pickers/abe_bar_ids.h"
#include "window/desktop.h"
#include "window/frames/frame_wnd.h"
#include "window/window_system.h"

namespace adaptors {

namespace {

/// Counts what the bar's Run asks for.
class BarHost : public CFrameWnd {
public:
    explicit BarHost(Run& run) : m_run(run) {}

    CVZABEBar m_bar;

    static const kv::MessageMap& Messages() {
        static const kv::MessageEntry kEntries[] = {
            kv::OnMessage<&BarHost::OnRun>(CKvABEBar::kRunMessage),
            kv::OnMessage<&BarHost::OnClose>(WM_CLOSE),
        };
        static const kv::MessageMap kMap{&CFrameWnd::Messages(), kEntries};
        return kMap;
    }
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

    Json State() {
        return {{"area", m_bar.GetArea()},
                {"areaMode", m_bar.GetAreaMode()},
                {"areacode", m_bar.GetAreacode(false)},
                {"areacodeQuoted", m_bar.GetAreacode(true)},
                {"block", m_bar.GetBlk(false)},
                {"blockStripped", m_bar.GetBlk(true)},
                {"layer", static_cast<int>(m_bar.GetLayer())},
                {"map", m_bar.IsMapSelected()}};
    }

private:
    LRESULT OnRun(WPARAM, LPARAM) {
        m_run.outcome["runs"].push_back(State());
        return 0;
    }
    /// What the bar holds is read when the user is done with it.
    void OnClose() { ShowWindow(SW_HIDE); }

    Run& m_run;
};

void RunBar(Run& run) {
    CWinApp app;
    BarHost frame(run);
    app.m_pMainWnd = &frame;
    run.outcome["runs"] = Json::array();
    frame.Create("Area/block/layer bar", {0, 0, 660, 40});
    frame.EnableDocking(CBRS_ALIGN_ANY);
    if (!frame.m_bar.Create(&frame, kv::abe_bar::kTemplate, CBRS_TOP, kv::abe_bar::kTemplate)) {
        run.result = -1;
        return;
    }
    frame.RecalcLayout();
    frame.m_bar.SetIncludeAll(run.Get("includeAll", true));
    frame.m_bar.SetEnableABE(run.Get("enableABE", true));
    if (const auto area = run.Get<std::string>("areacode", ""); !area.empty()) {
        frame.m_bar.SetArea(area);
    }
    if (const auto block = run.Get<std::string>("block", ""); !block.empty()) {
        frame.m_bar.SetBlkExt(block);
    }
    frame.ShowWindow(SW_SHOW);
    kv::WindowSystem::Get().GetDesktop().RunModeless(*frame.m_hWnd, *frame.m_bar.m_hWnd);
    run.outcome.update(frame.State());
}

const Register kRegistered({
    "CVZABEBar",
    "Area and block pickers",
    "Area/block/layer bar",
    "Area and block bar",
    kv::abe_bar::kTemplate,
    {
        {"areacode", "text", "area code to select at the start", nullptr},
        {"block", "text", "text of the block box at the start", nullptr},
        {"includeAll", "flag", "whether the block box offers the row ALL; true by default", true},
        {"enableABE", "flag", "whether the pickers may be used; true by default", nullptr},
    },
    "area (as shown), areaMode (0 MMS code, 1 area name, 2 area code), areacode (bare, several "
    "with commas between them), areacodeQuoted (for a statement), block (as shown), blockStripped "
    "(without the suffix of its water), layer (its number), map (whether Map is checked, and not "
    "Report); runs (a list with the same for each press of Run)",
    RunBar,
});

}  // namespace

}  // namespace adaptors
