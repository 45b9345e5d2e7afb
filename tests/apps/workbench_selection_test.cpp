#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QSignalSpy>
#include <QTimer>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "blocks/blk_ext_ids.h"
#include "frame/module.h"
#include "qt/qt_desktop.h"
#include "window/acting/user.h"
#include "window/window_system.h"
#include "workbench/selected_blocks.h"
#include "workbench/workbench.h"
#include "workbench_fixture.h"

namespace workbench {
namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAre;

using Named = std::pair<std::string, std::string>;

std::vector<Named> NamesOf(const std::vector<BlockRef>& blocks) {
    std::vector<Named> names;
    for (const BlockRef& block : blocks)
        names.emplace_back(block.area->name, block.Label());
    return names;
}

/// The workbench on the sample database, with a block dialog's selection.
class WorkbenchSelection : public test::SampleTest {
protected:
    WorkbenchSelection() {
        InitControlDll();
        CKvDbInfo info("", "", test::SampleServer().c_str());
        host_ = std::make_unique<Workbench>(info);
        host_->SetFailureShown(
            [this](const QString& message) { failures_.push_back(message.toStdString()); });
        QSignalSpy painted(host_.get(), &Workbench::FirstPainted);
        host_->Show();
        while (painted.isEmpty())
            QApplication::processEvents();
        host_->Runner().Finish();
    }
    ~WorkbenchSelection() override {
        host_.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Runs the dialog, in which two blocks are selected, and ends it by a button.
    void RunDialog(int button) {
        QTimer person;
        QObject::connect(&person, &QTimer::timeout, [&person, button] {
            auto& modals = kv::WindowSystem::Get().Modals();
            if (modals.empty()) return;
            person.stop();
            kv::User at(*modals.back(), [](const std::string& words) { FAIL() << words; });
            at.Type(kv::blk_ext::kFind, "GREEN CANYON");
            at.Click(kv::blk_ext::kSearch);
            at.DoubleClick(kv::blk_ext::kAvailable, 0);
            for (const char* block : {"500", "545"}) {
                at.Select(kv::blk_ext::kBlocks, block);
                at.Click(kv::blk_ext::kAdd);
            }
            at.Click(button);
        });
        person.start(0);
        host_->RunDialog(*adaptors::Find("CKvGuiBlkExtDlg"));
    }
    void ShowNeighbors() {
        for (QAction* action : host_->Window().findChildren<QAction*>()) {
            if (action->text().remove(u'&') == "Show neighbors of the selected blocks")
                return action->trigger();
        }
        FAIL() << "no such action";
    }
    const MapMarks& Marks() const { return host_->Canvas().Marks(); }
    std::vector<Named> Find(const std::string& field, const std::vector<Named>& places) {
        SelectedBlocks selected;
        selected.field = field;
        for (const auto& [area, block] : places) {
            selected.places.first.push_back(area);
            selected.places.second.push_back(block);
        }
        return NamesOf(OnTheMap(host_->Model(), selected));
    }

    kv::qt::QtDesktop desktop_;
    std::vector<std::string> failures_;
    std::unique_ptr<Workbench> host_;
};

TEST_F(WorkbenchSelection, IsFoundOnTheMapByWhateverAreasAreCalled) {
    const std::vector<Named> one = {{"GREEN CANYON", "500"}};
    EXPECT_EQ(Find("areaname", {{"GREEN CANYON", "500"}, {"NOWHERE", "1"}}), one);
    EXPECT_EQ(Find("stcode", {{"43608", "500"}, {"43608", "500"}}), one);
    EXPECT_EQ(Find("area_abbr", {{"GC", "500"}}), one);
    EXPECT_THAT(Find("areaname", {{"GREEN CANYON", "9999"}}), IsEmpty());
}

TEST_F(WorkbenchSelection, BlocksOfStateWatersAreFoundWithTheirSuffixToo) {
    const auto bare = Find("stcode", {{"42607", "1"}});
    EXPECT_EQ(bare.size(), 1U);
    EXPECT_EQ(Find("stcode", {{"42607", "1-S"}}), bare);
    EXPECT_THAT(Find("stcode", {{"42607", "1-L"}}), IsEmpty());
}

TEST_F(WorkbenchSelection, AWholeAreaIsAllOfItsBlocks) {
    EXPECT_EQ(Find("areaname", {{"GREEN CANYON", ""}}).size(),
              static_cast<std::size_t>(Count("NORVADON.gulf_mexico_lbi where areacode = '43608'")));
}

TEST_F(WorkbenchSelection, OfADialogIsShownWithOkAndItsNeighborsOnRequest) {
    ShowNeighbors();
    EXPECT_THAT(Marks().neighbors, IsEmpty());
    RunDialog(IDCANCEL);
    EXPECT_THAT(Marks().selected, IsEmpty());

    RunDialog(IDOK);
    EXPECT_THAT(NamesOf(Marks().selected),
                UnorderedElementsAre(Named("GREEN CANYON", "500"), Named("GREEN CANYON", "545")));
    EXPECT_THAT(Marks().neighbors, IsEmpty());
    ShowNeighbors();
    // Eight around each; the two that they have in common count once.
    EXPECT_EQ(Marks().neighbors.size(), 12U);
    std::set<Named> names;
    for (const auto* blocks : {&Marks().selected, &Marks().neighbors}) {
        for (const Named& name : NamesOf(*blocks))
            EXPECT_TRUE(names.insert(name).second) << name.first << " " << name.second;
    }
    const Box seen = host_->Canvas().View().Visible();
    for (const BlockRef& block : Marks().neighbors)
        EXPECT_TRUE(seen.Contains(block.Bounds().Middle()));
    QDir().mkpath(QStringLiteral("pictures"));
    EXPECT_TRUE(host_->Window().grab().save(QStringLiteral("pictures/selection.png")));
    EXPECT_THAT(failures_, IsEmpty());
}

}  // namespace
}  // namespace workbench
