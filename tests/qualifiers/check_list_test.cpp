// Lease status, pipeline status and pipeline product: one machine with three tables.

#include <gmock/gmock.h>

#include <memory>

#include "qualifiers/lease_status_dlg.h"
#include "qualifiers/lease_status_ids.h"
#include "qualifiers/pipe_ids.h"
#include "qualifiers/pipe_product_dlg.h"
#include "qualifiers/pipe_status_dlg.h"
#include "qualifiers/qualifier_fixture.h"

namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using Texts = std::vector<std::string>;

struct Member {
    int id;
    const char* label;
    const char* word;
};
struct Group {
    int allId;
    std::vector<Member> members;
};
struct Table {
    const char* name;
    const char* caption;
    int templateId;
    /// In the order in which the words are saved.
    std::vector<Group> groups;
    std::function<std::unique_ptr<CDialog>(CComboBox*, Texts&, bool)> make;
};

template <typename Dialog>
std::unique_ptr<CDialog> Make(CComboBox* combo, Texts& values, bool readOnly) {
    return std::make_unique<Dialog>(combo, values, readOnly, nullptr);
}

const std::vector<Table>& Tables() {
    static const std::vector<Table> tables{
        {"LeaseStatus",
         "Lease Status",
         12002,
         {{12012,
           {{12009, "Consolidated", "CONSOLIDATED"},
            {12023, "Expired", "EXPIRED"},
            {12017, "Not Issued", "NOT ISSUED"},
            {12024, "Forfeited", "FORFEITED"},
            {12025, "Rejected", "REJECTED"},
            {12026, "Relinquished or Cancelled", "RELINQUISHED OR CANCELLED"},
            {12027, "Terminated", "TERMINATED"}}},
          {12007,
           {{12008, "Direct Sus of Oper", "DIR SUS OF OPER"},
            {12016, "Extended Term", "EXTENDED TERM-OP"},
            {12018, "Operations", "OPERATIONS"},
            {12019, "Preliminary", "PRELIMINARY"},
            {12020, "Primary DSO", "PRIMARY DSO"},
            {12021, "Primary Term", "PRIMARY TERM"},
            {12022, "Suspens of Oper", "SUSPENS OF OPER"}}},
          {12013,
           {{12010, "Active HBP", "ACTIVE HBP"},
            {12028, "Active 3 Years", "ACTIVE 3 YRS"},
            {12029, "Active 5 Years", "ACTIVE 5 YRS"}}},
          {12014,
           {{12030, "Suspens of Prod", "SUSPENS OF PROD"},
            {12031, "Unit", "UNIT"},
            {12032, "Producing", "PRODUCING"}}},
          {12015,
           {{12033, "Never Been Leased", "NBL"},
            {12034, "No Information", "NO INFO"},
            {12035, "Deferred", "DEFERRED"}}}},
         Make<CKvGuiLeaseStatusDlg>},
        {"PipeStatus",
         "Pipeline Status",
         13000,
         {{13004, {{13005, "Active (ACT)", "ACT"}}},
          {13007,
           {{13008, "Abandoned (ABN)", "ABN"},
            {13009, "Abandoned/Comb. (A/C)", "A/C"},
            {13010, "Cancelled (CNCL)", "CNCL"},
            {13011, "Out of Service (OUT)", "OUT"},
            {13012, "Out/Combined (O/C)", "O/C"},
            {13013, "Relinquished (RELQ)", "RELQ"},
            {13014, "Relinquished/Removed (R/R)", "RR"},
            {13015, "Removed (REM)", "REM"},
            {13016, "Proposal to remove (PREM)", "PREM"},
            {13017, "Removed/Abandoned (R/A)", "RA"},
            {13018, "Removed/Comb (R/C)", "RC"},
            {13019, "Proposed (PROP)", "PROP"},
            {13020, "Combined (COMB)", "COMB"},
            {13021, "Proposal to abandon (PABN)", "PABN"}}}},
         Make<CKvGuiPipeStatusDlg>},
        {"PipeProduct",
         "Pipeline Product Codes:",
         13001,
         {{13023, {{13024, "Gas and Oil (G/O)", "G/O"}, {13025, "Oil and Water (O/W)", "O/W"}}},
          {13034,
           {{13035, "Bulk Gas/Service (BG/S)", "BG/S"},
            {13036, "Gas Before Process (BLKG)", "BLKG"},
            {13037, "Gas Condensate (G/C)", "G/C"},
            {13038, "Gas After Process (GAS)", "GAS"},
            {13039, "Liquid Propane (LPRO)", "LPRO"},
            {29287, "Bulk Gas with Trace H2S (BLGH)", "BLGH"}}},
          {13027,
           {{13028, "Oil Before Process (BLKO)", "BLKO"},
            {13029, "Bulk Oil/Lift (BO/L)", "BO/L"},
            {13030, "Bulk Oil/Service (BO/S)", "BO/S"},
            {13031, "Condensate (COND)", "COND"},
            {13032, "Oil After Process (OIL)", "OIL"}}},
          {13041,
           {{13042, "Acid (ACID)", "ACID"},
            {13043, "Pneumatic (AIR)", "AIR"},
            {13044, "Chemicals (CHEM)", "CHEM"},
            {13045, "Diesel (DIES)", "DIES"},
            {13046, "Flare Gas (FLG)", "FLG"},
            {13047, "Water (H2O)", "H2O"},
            {13048, "Gas Injection (INU)", "INU"},
            {13049, "Liquid Gas Enhanc. (LGER)", "LGER"},
            {13050, "Gas Lift (LIFT)", "LIFT"},
            {13051, "Methanol/Glycol (METH)", "METH"},
            {13052, "Nat. Gas Enhanc. (NGER)", "NGER"},
            {13053, "Utility Line (SERV)", "SERV"},
            {13059, "Supply Gas (SPLY)", "SPLY"},
            {13054, "Spare (SPRE)", "SPRE"},
            {13055, "Liquidified Sulfur (SULF)", "SULF"},
            {13056, "Test (TEST)", "TEST"},
            {13057, "Tow Route (TOW)", "TOW"},
            {13058, "Umbilical Hydraulic (UMB)", "UMB"}}}},
         Make<CKvGuiPipeProductDlg>},
    };
    return tables;
}

Texts WordsOf(const Group& group) {
    Texts words;
    for (const Member& member : group.members)
        words.push_back(member.word);
    return words;
}

class CheckList : public QualifierTest, public testing::WithParamInterface<Table> {
protected:
    int Open(const std::function<void(kv::User&)>& act, bool readOnly = false) {
        return Run(*GetParam().make(&combo, values, readOnly), act);
    }
    static void ExpectNothingChecked(kv::User& user) {
        for (const Group& group : GetParam().groups) {
            EXPECT_FALSE(user.Checked(group.allId));
            for (const Member& member : group.members)
                EXPECT_FALSE(user.Checked(member.id));
        }
    }
};

INSTANTIATE_TEST_SUITE_P(, CheckList, testing::ValuesIn(Tables()),
                         [](const auto& each) { return std::string(each.param.name); });

TEST_P(CheckList, ShowsItsGroupsWithNothingChecked) {
    Open([](kv::User& user) {
        EXPECT_EQ(user.Window().WindowText(), GetParam().caption);
        ExpectNothingChecked(user);
        for (const Group& group : GetParam().groups) {
            EXPECT_EQ(user.Text(group.allId), "ALL");
            for (const Member& member : group.members) {
                EXPECT_EQ(user.Text(member.id), member.label);
            }
        }
    });
    EXPECT_THAT(statements, IsEmpty());
}

TEST_P(CheckList, EachBoxStandsForItsWord) {
    for (const Group& group : GetParam().groups) {
        for (const Member& member : group.members) {
            Given("");
            Open([&](kv::User& user) {
                user.Click(member.id);
                user.Click(IDOK);
            });
            EXPECT_THAT(values, ElementsAre(member.word));
            EXPECT_EQ(combo.WindowText(), member.word);
            Open([&](kv::User& user) {
                EXPECT_TRUE(user.Checked(member.id));
                EXPECT_EQ(user.Checked(group.allId), group.members.size() == 1);
                user.Click(member.id);
                ExpectNothingChecked(user);
            });
        }
    }
}

TEST_P(CheckList, TheAllBoxSetsItsMembers) {
    for (const Group& group : GetParam().groups) {
        Open([&](kv::User& user) {
            user.Click(group.allId);
            for (const Member& member : group.members)
                EXPECT_TRUE(user.Checked(member.id));
            for (const Group& other : GetParam().groups) {
                EXPECT_EQ(user.Checked(other.allId), other.allId == group.allId);
            }
            user.Click(group.allId);
            ExpectNothingChecked(user);
        });
    }
}

TEST_P(CheckList, TheMembersSetTheirAllBox) {
    for (const Group& group : GetParam().groups) {
        Open([&](kv::User& user) {
            for (const Member& member : group.members) {
                EXPECT_FALSE(user.Checked(group.allId));
                user.Click(member.id);
            }
            EXPECT_TRUE(user.Checked(group.allId));
            user.Click(group.members.front().id);
            EXPECT_FALSE(user.Checked(group.allId));
        });
    }
}

TEST_P(CheckList, GroupsAreSavedInTheirOrder) {
    Texts expected;
    Open([&](kv::User& user) {
        for (const Group& group : GetParam().groups) {
            user.Click(group.members.front().id);
            expected.push_back(group.members.front().word);
        }
        user.Click(IDOK);
    });
    EXPECT_EQ(values, expected);
    EXPECT_EQ(combo.WindowText(), "<LIST>");
}

TEST_P(CheckList, TheMarkerLetsTheVectorStandAndUnknownWordsAreLost) {
    const Group& group = GetParam().groups.back();
    Given("<LIST>", {"UNKNOWN", group.members.front().word, "R/R", "active"});
    Open([&](kv::User& user) {
        EXPECT_TRUE(user.Checked(group.members.front().id));
        user.Click(IDOK);
    });
    EXPECT_THAT(values, ElementsAre(group.members.front().word));
    EXPECT_EQ(combo.WindowText(), group.members.front().word);
}

TEST_P(CheckList, TheConstructorTakesTheTextOfTheControl) {
    Given("UNKNOWN", {"A", "B"});
    {
        const auto dialog = GetParam().make(&combo, values, false);
        EXPECT_THAT(values, ElementsAre("UNKNOWN"));
    }
    Given("", {"A", "B"});
    {
        const auto dialog = GetParam().make(&combo, values, false);
        EXPECT_THAT(values, IsEmpty());
    }
    Given("<LIST>", {"A", "B"});
    const auto dialog = GetParam().make(&combo, values, false);
    EXPECT_THAT(values, ElementsAre("A", "B"));
}

TEST_P(CheckList, CancelLeavesTheVectorAsTheConstructorDid) {
    const Member& member = GetParam().groups.front().members.front();
    Given(member.word, {"A", "B"});
    EXPECT_EQ(Open([&](kv::User& user) {
                  user.Click(member.id);
                  user.Click(IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_THAT(values, ElementsAre(member.word));
    EXPECT_EQ(combo.WindowText(), member.word);
}

TEST_P(CheckList, NothingCheckedEmptiesTheControl) {
    Given("UNKNOWN");
    Open([](kv::User& user) { user.Click(IDOK); });
    EXPECT_THAT(values, IsEmpty());
    EXPECT_EQ(combo.WindowText(), "");
}

TEST_P(CheckList, ReadOnlyShowsTheSelectionAndClosesWithOkAlone) {
    const Group& last = GetParam().groups.back();
    const Group& first = GetParam().groups.front();
    Given("<LIST>", {last.members.front().word, first.members.front().word});
    EXPECT_EQ(Open(
                  [&](kv::User& user) {
                      EXPECT_TRUE(user.Checked(last.members.front().id));
                      for (const auto& child : user.WindowNode().Children()) {
                          EXPECT_EQ(child->Enabled(), child->Id() == IDOK) << child->Id();
                      }
                      user.Key(0, "Escape");
                      EXPECT_TRUE(user.Open());
                      user.Click(IDOK);
                  },
                  true),
              IDOK);
    EXPECT_THAT(values, ElementsAre(first.members.front().word, last.members.front().word));
    EXPECT_EQ(combo.WindowText(), "<LIST>");
}

TEST_P(CheckList, OtherwiseEveryControlCanBeUsed) {
    Open([](kv::User& user) {
        for (const auto& child : user.WindowNode().Children())
            EXPECT_TRUE(child->Enabled());
    });
}

TEST_P(CheckList, AllBoxesGiveAllWordsButForTheOrderOfSomeTermsInTheirGroups) {
    Texts expected;
    Open([&](kv::User& user) {
        for (const Group& group : GetParam().groups) {
            user.Click(group.allId);
            for (const std::string& word : WordsOf(group))
                expected.push_back(word);
        }
        user.Click(IDOK);
    });
    // The one group that is saved in an order of its own.
    for (std::size_t i = 0; i + 1 < expected.size(); ++i) {
        if (expected[i] == "ACTIVE 3 YRS") std::swap(expected[i], expected[i + 1]);
        if (expected[i] == "ACTIVE 5 YRS") break;
    }
    EXPECT_EQ(values, expected);
}

class CheckListWords : public QualifierTest {
protected:
    template <typename Dialog>
    Texts Checked(const std::vector<int>& ids) {
        Given("");
        Dialog dialog(&combo, values, false, nullptr);
        Run(dialog, [&](kv::User& user) {
            for (const int id : ids)
                user.Click(id);
            user.Click(IDOK);
        });
        return values;
    }
};

TEST_F(CheckListWords, TheStateGroupAsAWholeGivesTheLongerTermFirst) {
    EXPECT_THAT(Checked<CKvGuiLeaseStatusDlg>({12013}),
                ElementsAre("ACTIVE HBP", "ACTIVE 5 YRS", "ACTIVE 3 YRS"));
    // Three single boxes check the ALL box.
    EXPECT_THAT(Checked<CKvGuiLeaseStatusDlg>({12010, 12028, 12029}),
                ElementsAre("ACTIVE HBP", "ACTIVE 5 YRS", "ACTIVE 3 YRS"));
    EXPECT_THAT(Checked<CKvGuiLeaseStatusDlg>({12028, 12029}),
                ElementsAre("ACTIVE 3 YRS", "ACTIVE 5 YRS"));
}

TEST_F(CheckListWords, SupplyGasComesAheadOfTheUtilityLineFromSingleBoxes) {
    EXPECT_THAT(Checked<CKvGuiPipeProductDlg>({13052, 13053, 13059, 13054}),
                ElementsAre("NGER", "SPLY", "SERV", "SPRE"));
    const Texts all = Checked<CKvGuiPipeProductDlg>({13041});
    ASSERT_EQ(all.size(), 18u);
    EXPECT_THAT(Texts(all.begin() + 10, all.begin() + 14),
                ElementsAre("NGER", "SERV", "SPLY", "SPRE"));
}

TEST_F(CheckListWords, ActiveAndAbandonedPipelines) {
    EXPECT_THAT(Checked<CKvGuiPipeStatusDlg>({13008, 13005}), ElementsAre("ACT", "ABN"));
    EXPECT_EQ(combo.WindowText(), "<LIST>");
}

TEST_F(CheckListWords, ClearUnchecksEveryBoxOfTheLeaseStatus) {
    Given("EXPIRED");
    CKvGuiLeaseStatusDlg dialog(&combo, values, false, nullptr);
    Run(dialog, [](kv::User& user) {
        for (const int id : {12007, 12012, 12013, 12014, 12015})
            user.Click(id);
        user.Click(kv::lease_status::kClear);
        for (int id = 12007; id <= 12035; ++id) {
            if (id == kv::lease_status::kClear) continue;
            EXPECT_FALSE(user.Checked(id)) << id;
        }
        user.Click(IDOK);
    });
    EXPECT_THAT(values, IsEmpty());
    EXPECT_EQ(combo.WindowText(), "");
}

TEST_F(CheckListWords, AWordOfTheControlComesUpAsOneBox) {
    Given("EXPIRED");
    CKvGuiLeaseStatusDlg dialog(&combo, values, false, nullptr);
    Run(dialog, [](kv::User& user) {
        for (int id = 12007; id <= 12035; ++id) {
            if (id == kv::lease_status::kClear) continue;
            EXPECT_EQ(user.Checked(id), id == 12023) << id;
        }
    });
}

TEST_F(CheckListWords, EachGroupCanBeSavedByItself) {
    Given("<LIST>", {"UNIT", "EXPIRED", "OPERATIONS", "NBL", "ACTIVE HBP"});
    CKvGuiLeaseStatusDlg lease(&combo, values, false, nullptr);
    Run(lease, [&](kv::User&) {
        values.clear();
        lease.SaveSpecials();
        lease.SaveHelds();
        lease.SaveStates();
        lease.SaveActives();
        lease.SaveInactives();
    });
    EXPECT_THAT(values, ElementsAre("NBL", "UNIT", "ACTIVE HBP", "OPERATIONS", "EXPIRED"));

    Given("<LIST>", {"RR", "ACT"});
    CKvGuiPipeStatusDlg status(&combo, values, false, nullptr);
    Run(status, [&](kv::User&) {
        values.clear();
        status.SaveInactives();
        status.SaveActives();
    });
    EXPECT_THAT(values, ElementsAre("RR", "ACT"));

    Given("<LIST>", {"TOW", "OIL", "GAS", "O/W"});
    CKvGuiPipeProductDlg product(&combo, values, false, nullptr);
    Run(product, [&](kv::User&) {
        values.clear();
        product.SaveOtherServ();
        product.SaveOilRel();
        product.SaveGasRel();
        product.SaveCombServ();
    });
    EXPECT_THAT(values, ElementsAre("TOW", "OIL", "GAS", "O/W"));
}

TEST_F(CheckListWords, DialogsWithoutACallerOpen) {
    CKvGuiLeaseStatusDlg lease;
    CKvGuiPipeStatusDlg status;
    CKvGuiPipeProductDlg product;
    for (CDialog* dialog : {static_cast<CDialog*>(&lease), static_cast<CDialog*>(&status),
                            static_cast<CDialog*>(&product)}) {
        EXPECT_EQ(Run(*dialog, [](kv::User& user) { user.Click(IDOK); }), IDOK);
    }
}

TEST_F(CheckListWords, EnablingAheadOfTheWindowDoesNothing) {
    CKvGuiLeaseStatusDlg lease;
    CKvGuiPipeStatusDlg status;
    CKvGuiPipeProductDlg product;
    lease.EnableDisableLeaseStatusDlg();
    status.EnableDisableStatusDlg();
    product.EnableDisableProductDlg();
    EXPECT_EQ(lease.GetSafeHwnd(), nullptr);
    EXPECT_EQ(Run(lease, [](kv::User& user) { user.Click(IDOK); }), IDOK);
}

TEST_F(CheckListWords, StaticsNameTheGroups) {
    const auto texts = [this](CDialog& dialog) {
        Texts statics;
        Run(dialog, [&](kv::User& user) {
            for (const auto& child : user.WindowNode().Children()) {
                if (child->Class() == kv::NodeClass::kStatic) statics.push_back(child->Text());
            }
        });
        return statics;
    };
    CKvGuiLeaseStatusDlg lease;
    EXPECT_THAT(texts(lease), ElementsAre("ACTIVE LEASE:", "INACTIVE LEASE:", "STATE LEASE ONLY:",
                                          "HELD BY PRODUCTION:", "SPECIAL CASE:"));
    CKvGuiPipeStatusDlg status;
    EXPECT_THAT(texts(status), ElementsAre("ACTIVE Status", "INACTIVE Status"));
    CKvGuiPipeProductDlg product;
    EXPECT_THAT(texts(product), ElementsAre("Combined Service:", "Oil Related Service:",
                                            "Gas Related Service:", "Other Services"));
}

// Hosts derive, and call and map the handlers by their names.

TEST_F(CheckListWords, ADerivedLeaseDialogHasAHandlerForEachGroup) {
    struct HostDialog : CKvGuiLeaseStatusDlg {
        using CKvGuiLeaseStatusDlg::CKvGuiLeaseStatusDlg;
        static const kv::MessageMap& Messages() {
            static const kv::MessageEntry kEntries[] = {kv::OnClicked<&HostDialog::OnUnit>(12031)};
            static const kv::MessageMap kMap{&CKvGuiLeaseStatusDlg::Messages(), kEntries};
            return kMap;
        }
        const kv::MessageMap& GetMessageMap() const override { return Messages(); }
        void OnUnit() {
            ++units;
            OnHold();
        }
        void ExpectEachSetsItsMembers() {
            void (HostDialog::*const all[])() = {
                &HostDialog::OnCheckActiveAll, &HostDialog::OnCheckInactiveAll,
                &HostDialog::OnCheckStateAll, &HostDialog::OnCheckHeldAll,
                &HostDialog::OnCheckSpecialAll};
            void (HostDialog::*const member[])() = {&HostDialog::OnActive, &HostDialog::OnInactive,
                                                    &HostDialog::OnState, &HostDialog::OnHold,
                                                    &HostDialog::OnSpecial};
            const int boxes[] = {12007, 12012, 12013, 12014, 12015};
            const int first[] = {12008, 12009, 12010, 12030, 12033};
            for (int group = 0; group < 5; ++group) {
                CheckDlgButton(boxes[group], BST_CHECKED);
                const auto setMembers = all[group];
                (this->*setMembers)();
                EXPECT_TRUE(IsDlgButtonChecked(first[group])) << group;
                CheckDlgButton(first[group], BST_UNCHECKED);
                const auto setAll = member[group];
                (this->*setAll)();
                EXPECT_FALSE(IsDlgButtonChecked(boxes[group])) << group;
            }
        }
        void ExpectFields(std::vector<std::string>* list, CComboBox* box) {
            EXPECT_EQ(m_pValues, list);
            EXPECT_EQ(m_pCombo, box);
            EXPECT_FALSE(m_bReadOnly);
        }
        int units = 0;
    };
    Given("<LIST>", {"SUSPENS OF PROD", "PRODUCING"});
    HostDialog dialog(&combo, values, false, nullptr);
    dialog.ExpectFields(&values, &combo);
    Run(dialog, [&](kv::User& user) {
        user.Click(12031);
        EXPECT_EQ(dialog.units, 1);
        EXPECT_TRUE(user.Checked(12014));
        dialog.ExpectEachSetsItsMembers();
    });
}

TEST_F(CheckListWords, ADerivedPipelineStatusDialogHasAHandlerForEachGroup) {
    struct HostDialog : CKvGuiPipeStatusDlg {
        using CKvGuiPipeStatusDlg::CKvGuiPipeStatusDlg;
        void ExpectEachSetsItsMembers() {
            CheckDlgButton(13004, BST_CHECKED);
            OnCheckActiveAll();
            EXPECT_TRUE(IsDlgButtonChecked(13005));
            CheckDlgButton(13005, BST_UNCHECKED);
            OnActive();
            EXPECT_FALSE(IsDlgButtonChecked(13004));
            CheckDlgButton(13007, BST_CHECKED);
            OnCheckInactiveAll();
            EXPECT_TRUE(IsDlgButtonChecked(13021));
            CheckDlgButton(13021, BST_UNCHECKED);
            OnInActive();
            EXPECT_FALSE(IsDlgButtonChecked(13007));
        }
    } dialog(&combo, values, false, nullptr);
    Run(dialog, [&](kv::User&) { dialog.ExpectEachSetsItsMembers(); });
}

TEST_F(CheckListWords, ADerivedPipelineProductDialogHasAHandlerForEachGroup) {
    struct HostDialog : CKvGuiPipeProductDlg {
        using CKvGuiPipeProductDlg::CKvGuiPipeProductDlg;
        void ExpectEachSetsItsMembers() {
            void (HostDialog::*const all[])() = {
                &HostDialog::OnCheckPpCombServAll, &HostDialog::OnCheckPpOilRelAll,
                &HostDialog::OnCheckPpGasRelAll, &HostDialog::OnCheckPpOtherServAll};
            void (HostDialog::*const member[])() = {&HostDialog::OnCombServ, &HostDialog::OnOilRel,
                                                    &HostDialog::OnGasRel,
                                                    &HostDialog::OnOtherServ};
            const int boxes[] = {13023, 13027, 13034, 13041};
            const int last[] = {13025, 13032, 29287, 13059};
            for (int group = 0; group < 4; ++group) {
                CheckDlgButton(boxes[group], BST_CHECKED);
                const auto setMembers = all[group];
                (this->*setMembers)();
                EXPECT_TRUE(IsDlgButtonChecked(last[group])) << group;
                CheckDlgButton(last[group], BST_UNCHECKED);
                const auto setAll = member[group];
                (this->*setAll)();
                EXPECT_FALSE(IsDlgButtonChecked(boxes[group])) << group;
            }
        }
    } dialog(&combo, values, false, nullptr);
    Run(dialog, [&](kv::User&) { dialog.ExpectEachSetsItsMembers(); });
}

}  // namespace
