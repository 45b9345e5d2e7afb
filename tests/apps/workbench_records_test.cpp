// The workbench's work on single records: the order of areas, the search for a well, the comments
// on it.

#include <gmock/gmock.h>

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <filesystem>

#include "frame/kvcom/misc.h"
#include "frame/kvdbkvn/database_fault.h"
#include "pickers/order_dlg_ids.h"
#include "records/create_user_table_ids.h"
#include "records/well_search_ids.h"
#include "window/window_system.h"
#include "workbench/records/area_order.h"
#include "workbench/records/well_comments.h"
#include "workbench/records/well_finder.h"
#include "workbench_window_fixture.h"

namespace workbench {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
namespace comments = well_comments;

/// On a copy of the sample, which the tests change.
class WorkbenchRecords : public WorkbenchTest {
protected:
    WorkbenchRecords() {
        std::filesystem::copy_file(test::SampleServer().substr(7), folder.Native("copy.db"));
    }

    void OpenCopy() {
        Open("sqlite:" + folder.Native("copy.db"));
        host->SetNoteShown([this](const QString& note) { notes.push_back(note.toStdString()); });
    }
    /// What a person does in the next modal dialog, while `open` runs it.
    template <typename Open>
    void InDialog(Open open, const std::function<void(kv::User&)>& act) {
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            auto& modals = kv::WindowSystem::Get().Modals();
            if (modals.empty()) return;
            timer.stop();
            kv::User person(*modals.back(), [](const std::string& words) { FAIL() << words; });
            act(person);
        });
        timer.start(0);
        open();
    }
    void FindWell(const std::function<void(kv::User&)>& act) {
        InDialog([this] { host->Records().FindWell(); }, act);
        host->Runner().Finish();
    }
    void FindByApi(const std::string& number) {
        FindWell([&](kv::User& person) {
            if (!person.Checked(kv::well_search::kByApi)) person.Click(kv::well_search::kByApi);
            person.Type(kv::well_search::kApi, number);
            person.Click(IDOK);
        });
    }
    static void MakeCommentTable() {
        CKvDbAbsDataMgr manager(KV_CONNECT_DEFAULT);
        manager.Connect();
        manager.ExecuteDDL(
            "create table NORVADON.GULF_MEXICO_WELL_COMMENT(ID VARCHAR2(20) NOT "
            "NULL ENABLE,REC_SEQ NUMBER NOT NULL ENABLE,COMMENTS VARCHAR2(80),"
            "USER_ID VARCHAR2(20),REVISION_DATE DATE, PRIMARY KEY (ID, REC_SEQ))");
        manager.Disconnect();
    }
    /// A well of the sample that stands in an area with an MMS code.
    struct Well {
        std::string api, name, areaCode, mmsCode, block;
        Place place;
    };
    static Well SomeWell() {
        const Rows rows(
            "select t.api_no, t.well_name, t.areacode, a.area_abbr, t.lbnum||t.lbext, t.surf_lat, "
            "t.surf_lon from NORVADON.gulf_mexico_well_hdr t, NORVADON.gulf_mexico_connam2 a where "
            "a.stcode = t.areacode and a.area_abbr = 'GC' order by t.api_no");
        return {rows.Cell(0, 0), rows.Cell(0, 1), rows.Cell(0, 2),
                rows.Cell(0, 3), rows.Cell(0, 4), {rows.Number(0, 5), rows.Number(0, 6)}};
    }
    /// Shows a well with a comment of somebody on it.
    Well ShowCommented(const std::string& text, const std::string& writer) {
        OpenCopy();
        MakeCommentTable();
        Well well = SomeWell();
        comments::Add(well.api, text, writer);
        FindByApi(well.api);
        return well;
    }
    std::vector<std::string> CommentsShown() {
        std::vector<std::string> texts;
        QTableWidget& list = host->Well().CommentList();
        for (int row = 0; row < list.rowCount(); ++row)
            texts.push_back(list.item(row, 0)->text().toStdString());
        return texts;
    }
    void TypeComment(const std::string& text) {
        QLineEdit& field = host->Well().CommentField();
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, QString::fromStdString(text));
    }

    std::vector<std::string> notes;
};

TEST_F(WorkbenchRecords, AreasComeInTheOrderOfTheirNamesOrInTheUsers) {
    test::ConnectTo(CKvDbInfo("", "", ("sqlite:" + folder.Native("copy.db")).c_str()));
    const Rows rows("select stcode from NORVADON.gulf_mexico_connam2 order by areaname desc");
    std::vector<std::string> codes{"'nowhere'"};
    for (int row = 0; row < 3; ++row)
        codes.push_back(Quoted(rows.Cell(row, 0)));
    EXPECT_THAT(Ordered(codes, false), ElementsAre(codes[3], codes[2], codes[1], "'nowhere'"));
    CKvDbAbsDataMgr manager(KV_CONNECT_DEFAULT);
    manager.Connect();
    for (int place = 1; place <= 3; ++place) {
        manager.ExecuteDML(
            "update NORVADON.nvd2000_area_order set seq = " + std::to_string(-((place + 1) % 3)) +
            " where areaname = (select areaname from NORVADON.gulf_mexico_connam2 "
            "where stcode = " +
            codes[static_cast<std::size_t>(place)] + ")");
    }
    manager.Disconnect();
    // The first has the position -2, the second 0, the third -1.
    EXPECT_THAT(Ordered(codes, true), ElementsAre(codes[1], codes[3], codes[2], "'nowhere'"));
}

TEST_F(WorkbenchRecords, AReportFollowsTheOrderThatWasAskedFor) {
    OpenCopy();
    const auto areas = [this] {
        std::vector<std::string> names;
        const ResultTable& table = host->Results().Model().Table();
        for (int row = 0; row < table.RowCount(); ++row) {
            if (names.empty() || names.back() != table.Cell(row, 2))
                names.push_back(table.Cell(row, 2));
        }
        return names;
    };
    Pick("HI", "ALL");
    Report("Wells");
    const std::vector<std::string> byCode = areas();
    ASSERT_GE(byCode.size(), 2U);
    InDialog([this] { host->Records().AskAreaOrder(); },
             [](kv::User& person) {
                 person.Click(kv::order_dlg::kAreaName);
                 person.Click(IDOK);
             });
    Report("Wells");
    std::vector<std::string> byName = byCode;
    std::sort(byName.begin(), byName.end());
    EXPECT_EQ(areas(), byName);
    test::ConnectTo(CKvDbInfo("", "", ("sqlite:" + folder.Native("copy.db")).c_str()));
    CKvDbAbsDataMgr manager(KV_CONNECT_DEFAULT);
    manager.Connect();
    manager.ExecuteDML("update NORVADON.nvd2000_area_order set seq = -1 where areaname = " +
                       Quoted(byName.back()));
    manager.Disconnect();
    InDialog([this] { host->Records().AskAreaOrder(); },
             [](kv::User& person) {
                 person.Click(kv::order_dlg::kCustom);
                 person.Click(IDOK);
             });
    Report("Wells");
    EXPECT_EQ(areas().front(), byName.back());
    EXPECT_THAT(failures, IsEmpty());
}

TEST_F(WorkbenchRecords, AWellIsMeantByItsNumberOrByItsPlaceOnTheMap) {
    const Place southWest{27, -92};
    const Place northEast{28, -90};
    EXPECT_EQ(WellCondition("608'1", true, 0, southWest, northEast), "t.api_no = '608''1'");
    const std::string seen =
        " and t.surf_lat between 27.000000 and 28.000000 and t.surf_lon between -92.000000 and "
        "-90.000000";
    EXPECT_EQ(WellCondition("_#_#A001", false, 0, southWest, northEast),
              "t.well_name = 'A001'" + seen);
    EXPECT_EQ(WellCondition("GC#_#A001", false, 0, southWest, northEast),
              "t.well_name = 'A001' and a.area_abbr = 'GC'" + seen);
    EXPECT_EQ(WellCondition("O'HARA#12A-BAY#001", false, 1, southWest, northEast),
              "t.well_name = '001' and a.areaname = 'O''HARA' and t.lbnum||t.lbext = '12A'" + seen);
    EXPECT_EQ(WellCondition("43608#200#001", false, 2, southWest, northEast),
              "t.well_name = '001' and a.stcode = '43608' and t.lbnum||t.lbext = '200'" + seen);
}

TEST_F(WorkbenchRecords, AWellIsFoundByItsApiNumberMarkedAndItsRecordShown) {
    OpenCopy();
    const Well well = SomeWell();
    FindByApi(well.api);
    EXPECT_EQ(host->Results().Heading().text().toStdString(), "Wells found: 1");
    EXPECT_EQ(host->Well().Well(), well.api);
    EXPECT_TRUE(host->Well().isVisible());
    EXPECT_EQ(host->Well().Record().item(0, 1)->text().toStdString(), well.api);
    ASSERT_TRUE(host->Canvas().Marks().rowPlace);
    EXPECT_TRUE(host->Canvas().View().Visible().Contains(ToMap(well.place)));
    EXPECT_THAT(failures, IsEmpty());
}

TEST_F(WorkbenchRecords, TheWellsOfTheReportAreOffered) {
    OpenCopy();
    const Well well = SomeWell();
    Pick("GC", well.block.c_str());
    Report("Wells");
    std::vector<std::string> offered;
    FindWell([&](kv::User& person) {
        EXPECT_TRUE(person.Checked(kv::well_search::kByApi));
        offered = person.Rows(kv::well_search::kApi);
        EXPECT_EQ(person.Text(kv::well_search::kArea), "GC");
        EXPECT_EQ(person.Text(kv::well_search::kBlock), well.block);
        person.Click(IDCANCEL);
    });
    EXPECT_EQ(offered.size(), static_cast<std::size_t>(host->Results().Model().rowCount()));
    EXPECT_THAT(offered, testing::Contains(well.api));
}

TEST_F(WorkbenchRecords, AWellIsFoundByAreaBlockAndNumberInsideTheView) {
    OpenCopy();
    const Well well = SomeWell();
    FindWell([&](kv::User& person) {
        EXPECT_TRUE(person.Checked(kv::well_search::kByArea)) << "there is no report yet";
        person.Select(kv::well_search::kArea, "GC");
        person.Select(kv::well_search::kBlock, well.block);
        person.Type(kv::well_search::kWell, well.name);
        person.Click(IDOK);
    });
    EXPECT_EQ(host->Well().Well(), well.api);
    EXPECT_THAT(failures, IsEmpty());
}

TEST_F(WorkbenchRecords, AWellThatIsNotThereIsTold) {
    OpenCopy();
    FindByApi("000000000000");
    EXPECT_THAT(failures, ElementsAre("There is no such well."));
    EXPECT_EQ(host->Well().Well(), "");
}

TEST_F(WorkbenchRecords, ASearchThatIsCancelledSaysNothingOfTheWell) {
    OpenCopy();
    InDialog([this] { host->Records().FindWell(); },
             [](kv::User& person) {
                 if (!person.Checked(kv::well_search::kByApi))
                     person.Click(kv::well_search::kByApi);
                 person.Type(kv::well_search::kApi, "000000000000");
                 person.Click(IDOK);
             });
    ASSERT_TRUE(host->Runner().Busy());
    host->Runner().Cancel();
    EXPECT_THAT(failures, IsEmpty());
}

TEST_F(WorkbenchRecords, WellsAreLookedForInsideTheBuiltMapWhateverIsSeen) {
    OpenCopy();
    const Well well = SomeWell();
    MapDocument next = host->History().Current();
    next.map.emplace();
    next.map->bounds.SetXYBounded(false);
    next.map->bounds.SetPrimeProj(115);
    const auto bound = [&](double lat, double lon) {
        next.map->bounds.SetLatMin(lat - 0.25), next.map->bounds.SetLatMax(lat + 0.25);
        next.map->bounds.SetLonMin(lon - 0.25), next.map->bounds.SetLonMax(lon + 0.25);
        host->History().Do(next, "map");
    };
    bound(well.place.lat, well.place.lon);
    host->Canvas().ShowPick(host->Model().FindPick({"43113"}, "391"));
    FindWell([&](kv::User& person) {
        person.Select(kv::well_search::kArea, "GC");
        person.Select(kv::well_search::kBlock, well.block);
        person.Type(kv::well_search::kWell, well.name);
        person.Click(IDOK);
    });
    EXPECT_EQ(host->Well().Well(), well.api);
    bound(well.place.lat, well.place.lon - 3);
    host->Canvas().ShowPlace(well.place);
    FindWell([](kv::User& person) {
        EXPECT_THAT(person.Rows(kv::well_search::kArea), testing::Not(testing::Contains("GC")));
        person.Click(IDCANCEL);
    });
    EXPECT_THAT(failures, IsEmpty());
}

TEST_F(WorkbenchRecords, WithoutATableOfCommentsTheWellSaysSo) {
    OpenCopy();
    FindByApi(SomeWell().api);
    EXPECT_TRUE(host->Well().Note().isVisible());
    EXPECT_THAT(host->Well().Note().text().toStdString(),
                HasSubstr("Database > Create comment table"));
    EXPECT_FALSE(host->Well().CommentField().isEnabled());
    EXPECT_FALSE(host->Well().AddButton().isEnabled());
}

TEST_F(WorkbenchRecords, ATableOfCommentsIsMadeAndTheConnectionPutBack) {
    OpenCopy();
    FindByApi(SomeWell().api);
    InDialog([this] { host->Records().CreateCommentTable(); },
             [](kv::User& person) {
                 person.Type(kv::create_user_table::kUser, "somebody");
                 person.Click(IDOK);
             });
    EXPECT_THAT(notes, ElementsAre("The table GULF_MEXICO_WELL_COMMENT is made."));
    EXPECT_THAT(failures, IsEmpty());
    std::string login, password, server;
    CKvMisc::GetParsedConnectString(login, password, server, true);
    EXPECT_EQ(login, "");
    EXPECT_FALSE(host->Well().Note().isVisible());
    EXPECT_TRUE(host->Well().CommentField().isEnabled());
}

TEST_F(WorkbenchRecords, ALoginThatFailsIsToldByTheDialogAlone) {
    OpenCopy();
    std::vector<std::string> boxes;
    QTimer reader;
    QObject::connect(&reader, &QTimer::timeout, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box) return;
        boxes.push_back(box->text().toStdString());
        if (boxes.size() == 2) kv::db::SetDatabaseFault(nullptr);
        box->button(QMessageBox::Ok)->click();
    });
    reader.start(0);
    InDialog([this] { host->Records().CreateCommentTable(); },
             [](kv::User& person) {
                 person.Type(kv::create_user_table::kUser, "nobody");
                 kv::db::SetDatabaseFault([](std::string_view) { return true; });
                 person.Click(IDOK);
             });
    EXPECT_EQ(boxes.size(), 2U) << "one for the check, one for the making";
    EXPECT_THAT(failures, IsEmpty());
    EXPECT_THAT(notes, IsEmpty());
    EXPECT_FALSE(comments::Exist()) << "and the connection is put back";
}

TEST_F(WorkbenchRecords, CommentsThatCannotBeReadAreNotSaidToHaveNoTable) {
    const Well well = ShowCommented("theirs", "you");
    WellPane& pane = host->Well();
    kv::db::SetDatabaseFault([](std::string_view call) { return call == "step"; });
    QTest::mouseClick(&pane.RefreshButton(), Qt::LeftButton);
    EXPECT_THAT(failures, ElementsAre(HasSubstr("Database error")));
    EXPECT_TRUE(pane.Note().isVisible());
    EXPECT_EQ(pane.Note().text(), "The comments could not be read. Refresh tries it again.");
    EXPECT_THAT(CommentsShown(), ElementsAre("theirs")) << "as before";
    EXPECT_TRUE(pane.CommentField().isEnabled());

    ResultTable another = host->Results().Model().Table();
    another.cells.front() = "another";
    pane.ShowWell(another, 0);
    EXPECT_THAT(CommentsShown(), IsEmpty()) << "those were another well's";
    kv::db::SetDatabaseFault(nullptr);
    QTest::mouseClick(&pane.RefreshButton(), Qt::LeftButton);
    EXPECT_FALSE(pane.Note().isVisible());
}

TEST_F(WorkbenchRecords, WithoutAWellNothingCanBeWritten) {
    OpenCopy();
    MakeCommentTable();
    FindByApi(SomeWell().api);
    ASSERT_TRUE(host->Well().CommentField().isEnabled());
    host->Well().Clear();
    EXPECT_FALSE(host->Well().CommentField().isEnabled());
}

TEST_F(WorkbenchRecords, ACommentBehindTheLastNumberIsRefused) {
    OpenCopy();
    MakeCommentTable();
    const std::string well = SomeWell().api;
    for (const char* last : {"2147483646", "99999999999"}) {
        CKvDbAbsDataMgr manager(KV_CONNECT_DEFAULT);
        manager.Connect();
        manager.ExecuteDML("delete from " + comments::Table());
        manager.ExecuteDML("insert into " + comments::Table() + " (ID, REC_SEQ) values (" +
                           Quoted(well) + ", " + last + ")");
        manager.Commit();
        manager.Disconnect();
        if (last == std::string("2147483646")) comments::Add(well, "the last one", "me");
        EXPECT_THROW(comments::Add(well, "one too many", "me"), CKvException) << last;
    }
}

TEST_F(WorkbenchRecords, CommentsAreAddedChangedAndRemovedInTheWellsRecord) {
    OpenCopy();
    MakeCommentTable();
    const Well well = SomeWell();
    FindByApi(well.api);
    WellPane& pane = host->Well();
    EXPECT_FALSE(pane.AddButton().isEnabled());
    TypeComment("it's dry");
    QTest::mouseClick(&pane.AddButton(), Qt::LeftButton);
    EXPECT_THAT(CommentsShown(), ElementsAre("it's dry"));
    EXPECT_EQ(pane.CommentField().text(), "");
    EXPECT_FALSE(pane.ChangeButton().isEnabled());

    pane.CommentList().selectRow(0);
    EXPECT_EQ(pane.CommentField().text().toStdString(), "it's dry");
    TypeComment("it's wet");
    QTest::mouseClick(&pane.ChangeButton(), Qt::LeftButton);
    EXPECT_THAT(CommentsShown(), ElementsAre("it's wet"));

    pane.CommentList().selectRow(0);
    QTest::mouseClick(&pane.RemoveButton(), Qt::LeftButton);
    EXPECT_THAT(CommentsShown(), IsEmpty());
    EXPECT_EQ(pane.CommentField().text().toStdString(), "it's wet") << "it can be added again";
    EXPECT_THAT(failures, IsEmpty());
}

TEST_F(WorkbenchRecords, NoMoreCanBeTypedThanACommentHolds) {
    OpenCopy();
    MakeCommentTable();
    FindByApi(SomeWell().api);
    TypeComment(std::string(79, 'x') + "\xC2\xB0" + "yz");
    EXPECT_EQ(host->Well().CommentField().text().toStdString(), std::string(79, 'x') + "y");
}

TEST_F(WorkbenchRecords, WhoComesSecondIsToldAndKeepsWhatTheyTyped) {
    const Well well = ShowCommented("first", "me");
    WellPane& pane = host->Well();
    pane.CommentList().selectRow(0);
    ASSERT_TRUE(comments::Change(well.api, comments::Of(well.api).front(), "theirs", "you"));
    TypeComment("mine");
    QTest::mouseClick(&pane.ChangeButton(), Qt::LeftButton);
    EXPECT_THAT(failures, ElementsAre(HasSubstr("Somebody else has changed or removed")));
    EXPECT_THAT(CommentsShown(), ElementsAre("theirs"));
    EXPECT_EQ(pane.CommentField().text().toStdString(), "mine");
}

TEST_F(WorkbenchRecords, WhatIsTypedOutlivesTheChoiceOfAnotherCommentAndOfAnotherWell) {
    const Well well = ShowCommented("theirs", "you");
    WellPane& pane = host->Well();
    TypeComment("mine");
    pane.CommentList().selectRow(0);
    EXPECT_EQ(pane.CommentField().text().toStdString(), "mine");

    const ResultTable found = host->Results().Model().Table();
    ResultTable another = found;
    another.cells.front() = "another";
    pane.ShowWell(another, 0);
    EXPECT_EQ(pane.CommentField().text(), "");
    pane.ShowWell(found, 0);
    EXPECT_EQ(pane.CommentField().text().toStdString(), "mine");
    pane.Clear();
    pane.ShowWell(found, 0);
    EXPECT_EQ(pane.CommentField().text().toStdString(), "mine") << "the second time, too";
}

TEST_F(WorkbenchRecords, ARefreshShowsWhatOthersAdded) {
    OpenCopy();
    MakeCommentTable();
    const Well well = SomeWell();
    FindByApi(well.api);
    comments::Add(well.api, "theirs", "you");
    EXPECT_THAT(CommentsShown(), IsEmpty());
    QTest::mouseClick(&host->Well().RefreshButton(), Qt::LeftButton);
    EXPECT_THAT(CommentsShown(), ElementsAre("theirs"));
}

TEST_F(WorkbenchRecords, AWellOfAnotherDatabaseIsShownNoMore) {
    OpenCopy();
    FindByApi(SomeWell().api);
    QString failure;
    ASSERT_TRUE(host->UseDatabase(CKvDbInfo("", "", test::SampleServer().c_str()), failure));
    EXPECT_EQ(host->Well().Well(), "");
    EXPECT_EQ(host->Well().Record().rowCount(), 0);
}

}  // namespace

}  // namespace workbench
