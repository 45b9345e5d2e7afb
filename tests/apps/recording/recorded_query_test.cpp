// A query that takes too long for the person, who cancels it in a real window: played again it is
// cancelled, too, however long it takes there.

#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "qt/qt_desktop.h"
#include "qualifiers/list_sel_ids.h"
#include "same_ground.h"
#include "window/blocked_windows.h"
#include "window/held_back.h"
#include "window/window_system.h"

namespace {

using adaptors::Json;
using namespace kv::list_sel;

/// Looks for a text, which takes long, cancels that, and goes on; again and again, and closes the
/// dialog then.
class ImpatientPerson : public QObject {
public:
    explicit ImpatientPerson(std::vector<QString> wanted) : wanted_(std::move(wanted)) { Look(); }

private:
    void Look() {
        QTimer::singleShot(0, this, [this] {
            Look();
            Act();
        });
    }
    void Act() {
        if (kv::HoldsBack()) return Press(*kv::WindowSystem::Get().TopLevels().back(), IDCANCEL);
        kv::Node* window = kv::WindowSystem::Get().ActiveWindow();
        if (!window || !kv::qt::WidgetOf(*window)) return;
        if (wanted_.empty()) return Press(*window, IDOK);
        const QString text = wanted_.back();
        wanted_.pop_back();
        QWidget* find = kv::qt::WidgetOf(*window->FindChild(kFind));
        find->setFocus();
        QTest::keyClick(find, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(find, text);
        Press(*window, kSearch);
    }
    static void Press(kv::Node& window, int button) {
        QWidget* widget = kv::qt::WidgetOf(*window.FindChild(button));
        if (widget->isEnabled()) QTest::mouseClick(widget, Qt::LeftButton);
    }

    std::vector<QString> wanted_;  ///< the first one last
};

class RecordedQuery : public test::SameGround {
protected:
    static const adaptors::Adaptor& Dialog() { return *adaptors::Find("CKvGuiListSel"); }

    /// The sample database has no answer within any time that a person would wait.
    static Json Record(std::vector<QString> wanted) {
        kv::SetPatience(std::chrono::milliseconds(50));
        adaptors::Run run(Json{{"column", "a.company||b.ptnum||c.ptnum"},
                               {"table",
                                "NORVADON.gulf_mexico_company a, NORVADON.gulf_mexico_lbv b, "
                                "NORVADON.gulf_mexico_lbv c"},
                               {"values", {"KEPT"}},
                               {"text", "<LIST>"}});
        kvdlg::Records records;
        Trace(records);
        const auto screen = kvdlg::OpenDisplay(records, [&](kv::Node& window) {
            records.windows.push_back(kvdlg::Describe(window, ""));
        });
        const recording::Recording recording(run.Inputs());
        const ImpatientPerson person(std::move(wanted));
        Dialog().run(run);
        Json told = Told(run, records);
        told["script"] = recording.Script();
        return told;
    }
};

TEST_F(RecordedQuery, ThatWasCancelledIsCancelledWhenItIsPlayed) {
    const test::Ended seen = Apart([] { return Record({"second", "first"}); });
    ASSERT_TRUE(seen.told.is_object()) << "it ended with " << seen.status;
    const Json& script = seen.told.at("script");
    Json queries = Json::array();
    for (const Json& scene : script.at("user")) {
        EXPECT_FALSE(scene.contains("pump")) << "no matter of time";
        if (scene.contains("query")) queries.push_back(scene);
    }
    ASSERT_EQ(queries.size(), 2U) << script.dump();
    EXPECT_NE(queries[0].at("query").get<std::string>().find("'%FIRST%'"), std::string::npos);
    EXPECT_EQ(queries[1].at("do"), Json::parse(R"([{"click": 2}])"));

    const test::Ended played = Apart([&] { return Play(Dialog(), script); });
    ASSERT_TRUE(played.told.is_object()) << "it ended with " << played.status;
    EXPECT_EQ(played.told.value("mismatch", ""), "");
    EXPECT_EQ(played.told.value("outcome", Json()), seen.told.at("outcome"));
}

}  // namespace
