// A pick session on the area/block/layer bar, played without a screen and printed as it goes.

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/db_info.h"
#include "frame/module.h"
#include "pickers/abe_bar.h"
#include "pickers/abe_bar_ids.h"
#include "window/acting/headless_desktop.h"
#include "window/frames/frame_wnd.h"
#include "window/window_system.h"

namespace {

using namespace kv::abe_bar;

constexpr size_t kRowsToShow = 6;

/// The host's main window: told by the bar when to run.
class MainFrame : public CFrameWnd {
public:
    CVZABEBar bar;

    static const kv::MessageMap& Messages() {
        static const kv::MessageEntry kEntries[] = {
            kv::OnMessage<&MainFrame::OnRun>(CKvABEBar::kRunMessage),
        };
        static const kv::MessageMap kMap{&CFrameWnd::Messages(), kEntries};
        return kMap;
    }
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

private:
    LRESULT OnRun(WPARAM, LPARAM) {
        std::printf("  The main window is told to run: %s, area %s (area code %s), block %s",
                    bar.IsMapSelected() ? "a map" : "a report", bar.GetArea().c_str(),
                    bar.GetAreacode(true).c_str(), bar.GetBlk(false).c_str());
        if (!bar.IsMapSelected()) std::printf(", layer number %d", bar.GetLayer());
        std::printf("\n");
        return 0;
    }
};

class Session {
public:
    explicit Session(MainFrame& frame)
        : user_(*frame.bar.m_hWnd, [](const std::string& words) {
              std::fprintf(stderr, "pick_session: %s\n", words.c_str());
              std::exit(1);
          }) {}

    void Say(const char* what) { std::printf("\n%s\n", what); }

    void Type(int id, const char* text) {
        std::printf("  types \"%s\" into %s\n", text, NameOf(id));
        user_.Type(id, text);
    }
    void Select(int id, const char* row) {
        std::printf("  picks \"%s\" in %s\n", row, NameOf(id));
        user_.Select(id, row);
    }
    void Click(int id) {
        std::printf("  clicks \"%s\"\n", NameOf(id));
        user_.Click(id);
    }

    void ShowBar() {
        std::printf(
            "  | Area [%s]%s  Blk/Ext [%s]%s  Layer [%s]%s  (%c) Map%s  (%c) Report%s  "
            "[Run]%s\n",
            user_.Text(kArea).c_str(), Off(kArea), user_.Text(kBlock).c_str(), Off(kBlock),
            user_.Text(kLayer).c_str(), Off(kLayer), Mark(kMap), Off(kMap), Mark(kReport),
            Off(kReport), Off(kRun));
    }
    void ShowRows(int id) {
        const std::vector<std::string> rows = user_.Rows(id);
        std::printf("  %s lists %zu rows:", NameOf(id), rows.size());
        for (size_t row = 0; row < rows.size() && row < kRowsToShow; ++row) {
            std::printf(" \"%s\"", rows[row].c_str());
        }
        std::printf(rows.size() > kRowsToShow ? " ...\n" : "\n");
    }
    std::string Row(int id, size_t index) { return user_.Rows(id).at(index); }
    bool HasRows(int id) { return !user_.Rows(id).empty(); }

private:
    const char* Off(int id) { return user_.Enabled(id) ? "" : " (off)"; }
    char Mark(int id) { return user_.Checked(id) ? '*' : ' '; }

    static const char* NameOf(int id) {
        switch (id) {
            case kArea:
                return "the area box";
            case kBlock:
                return "the block box";
            case kLayer:
                return "the layer box";
            case kMap:
                return "Map";
            case kReport:
                return "Report";
            default:
                return "Run";
        }
    }

    kv::User user_;
};

/// Whether the database answers, told in a sentence otherwise.
bool DatabaseAnswers() {
    CKvDbAbsDataMgr manager(1);
    try {
        manager.Connect();
        manager.Select("select count(*) from NORVADON.gulf_mexico_lbi");
        std::printf("The dataset holds %s blocks.\n", manager.GetItem(0, 0));
    } catch (const CKvException& e) {
        std::fprintf(stderr, "pick_session: %s\n", e.GetErrorMessage(true, false).c_str());
        return false;
    }
    manager.Disconnect();
    return true;
}

void Play(Session& session) {
    session.Say("The frame comes up: nothing has been asked of the database.");
    session.ShowBar();

    session.Say("The user drops the area box, which fills with MMS codes, and picks one.");
    session.Select(kArea, "VR");
    session.ShowRows(kArea);
    session.ShowRows(kBlock);
    session.ShowBar();

    session.Say("A block completes the pick. Run asks for a map of it.");
    session.Select(kBlock, session.Row(kBlock, 1).c_str());
    session.ShowBar();
    session.Click(kRun);

    session.Say("The first label row turns the area box to area names; typing completes.");
    session.Select(kArea, " -AREA NAME-");
    session.ShowRows(kArea);
    session.Type(kArea, "EUGENE ISLAND");
    session.ShowRows(kBlock);
    session.Select(kBlock, "ALL");
    session.ShowBar();

    session.Say("A report of the platforms there.");
    session.Click(kReport);
    session.Select(kLayer, "Platforms");
    session.ShowBar();
    session.Click(kRun);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 2) {
        std::fprintf(stderr, "usage: pick_session [SERVER]   (sqlite:PATH, postgresql://...)\n");
        return 2;
    }
    if (argc == 2) {
        CKvDbInfo info("", "", argv[1]);
        CKvDbAbsDataMgr(1).SetDbInfo(info);
    }
    InitControlDll();
    kv::HeadlessDesktop desktop;
    kv::WindowSystem::Get().SetDesktop(&desktop);
    if (!DatabaseAnswers()) return 3;

    CWinApp app;
    MainFrame frame;
    app.m_pMainWnd = &frame;
    frame.Create("Pick session");
    frame.EnableDocking(CBRS_ALIGN_ANY);
    frame.ShowWindow(SW_SHOW);
    if (!frame.bar.Create(&frame, kTemplate, CBRS_TOP, kTemplate)) {
        std::fprintf(stderr, "pick_session: the bar could not be created\n");
        return 1;
    }
    frame.RecalcLayout();
    kv::WindowSystem::Get().Settle();

    Session session(frame);
    Play(session);
    std::printf("\nThe session is over.\n");
    return 0;
}
