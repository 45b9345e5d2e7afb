#include "window/data_exchange.h"

#include "support/dialog_fixture.h"
#include "window/controls/combo_box.h"
#include "window/controls/list_box.h"

using enum kv::ControlKind;
using test::FocusedId;
using test::RecordingDialog;
using test::Row;
using test::TestTemplate;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class DataExchange : public test::DialogTest {
protected:
    TestTemplate dialogTemplate_{{
        Row(11, kEdit),
        Row(12, kEdit),
        Row(13, kCheckBox, "Check"),
        Row(31, kRadio, "One", kv::kFirstOfGroup),
        Row(32, kRadio, "Two"),
        Row(33, kRadio, "Three"),
        Row(50, kListBox, "", kv::kFirstOfGroup),
        Row(51, kDropList),
        Row(52, kDropDown),
        Row(IDOK, kDefaultButton, "OK"),
    }};
    RecordingDialog dialog_;
};

TEST_F(DataExchange, OnInitDialogShowsTheMembersAndOnOkTakesThem) {
    CString text = "first";
    std::string plain = "second";
    dialog_.onExchange = [&](CDataExchange* exchange) {
        DDX_Text(exchange, 11, text);
        DDX_Text(exchange, 12, plain);
    };
    EXPECT_EQ(Run(dialog_,
                  [&](kv::User& user) {
                      EXPECT_EQ(user.Text(11), "first");
                      EXPECT_EQ(user.Text(12), "second");
                      user.Type(11, "one");
                      user.Type(12, "two");
                      EXPECT_EQ(text, "first");
                      user.Click(IDOK);
                  }),
              IDOK);
    EXPECT_EQ(text, "one");
    EXPECT_EQ(plain, "two");
}

TEST_F(DataExchange, CancelLeavesTheMembers) {
    CString text = "first";
    dialog_.onExchange = [&](CDataExchange* exchange) { DDX_Text(exchange, 11, text); };
    Run(dialog_, [](kv::User& user) {
        user.Type(11, "one");
        user.Key(0, "Escape");
    });
    EXPECT_EQ(text, "first");
}

TEST_F(DataExchange, GoesBothWaysForEveryKindOfControl) {
    int check = 1;
    int radio = 1;
    int listRow = 2;
    int comboRow = 1;
    CString listText = "ro";
    CString comboText = "typed";
    dialog_.onInit = [&] {
        for (const char* row : {"axe", "bow", "row"}) {
            dialog_.Control<CListBox>(50).AddString(row);
            dialog_.Control<CComboBox>(51).AddString(row);
            dialog_.Control<CComboBox>(52).AddString(row);
        }
        dialog_.onExchange = [&](CDataExchange* exchange) {
            DDX_Check(exchange, 13, check);
            DDX_Radio(exchange, 31, radio);
            DDX_LBIndex(exchange, 50, listRow);
            DDX_CBIndex(exchange, 51, comboRow);
            DDX_CBString(exchange, 52, comboText);
        };
        dialog_.UpdateData(FALSE);
        return TRUE;
    };
    Run(dialog_, [&](kv::User& user) {
        EXPECT_TRUE(user.Checked(13));
        EXPECT_FALSE(user.Checked(31));
        EXPECT_TRUE(user.Checked(32));
        EXPECT_THAT(user.Selected(50), ElementsAre(2));
        EXPECT_EQ(user.Text(51), "bow");
        EXPECT_EQ(user.Text(52), "typed");
        user.Click(13);
        user.Click(33);
        user.Select(50, "axe");
        user.Select(51, "row");
        user.Select(52, "axe");
        EXPECT_TRUE(dialog_.UpdateData(TRUE));
        EXPECT_EQ(check, 0);
        EXPECT_EQ(radio, 2);
        EXPECT_EQ(listRow, 0);
        EXPECT_EQ(comboRow, 2);
        EXPECT_EQ(comboText, "axe");

        dialog_.onExchange = [&](CDataExchange* exchange) { DDX_LBString(exchange, 50, listText); };
        dialog_.UpdateData(FALSE);
        EXPECT_THAT(user.Selected(50), ElementsAre(2));
        dialog_.UpdateData(TRUE);
        EXPECT_EQ(listText, "row");
        dialog_.Control<CListBox>(50).SetCurSel(-1);
        dialog_.UpdateData(TRUE);
        EXPECT_EQ(listText, "");
    });
}

TEST_F(DataExchange, ARadioGroupWithNothingCheckedIsMinusOne) {
    int radio = -1;
    dialog_.onExchange = [&](CDataExchange* exchange) { DDX_Radio(exchange, 31, radio); };
    Run(dialog_, [&](kv::User&) {
        radio = 5;
        dialog_.UpdateData(TRUE);
        EXPECT_EQ(radio, -1);
    });
}

TEST_F(DataExchange, NumbersAreShownAsTextAndReadBack) {
    int whole = -12;
    double broken = 0.1;
    dialog_.onExchange = [&](CDataExchange* exchange) {
        DDX_Text(exchange, 11, whole);
        DDX_Text(exchange, 12, broken);
    };
    Run(dialog_, [&](kv::User& user) {
        EXPECT_EQ(user.Text(11), "-12");
        EXPECT_EQ(user.Text(12), "0.1");
        user.Type(11, " 7 ");
        user.Type(12, "2.5e1");
        EXPECT_TRUE(dialog_.UpdateData(TRUE));
    });
    EXPECT_EQ(whole, 7);
    EXPECT_EQ(broken, 25.0);
}

TEST_F(DataExchange, AFailureTellsTheUserPutsTheFocusThereAndStopsTheCaller) {
    int whole = 3;
    CString behind = "kept";
    dialog_.onExchange = [&](CDataExchange* exchange) {
        DDX_Text(exchange, 11, whole);
        DDX_Text(exchange, 12, behind);
    };
    desktop.ExpectMessage("Please enter an integer.");
    Run(dialog_, [&](kv::User& user) {
        user.Type(11, "x");
        user.Type(12, "new");
        user.Click(IDOK);
        EXPECT_TRUE(user.Open());
        EXPECT_EQ(FocusedId(), 11);
        user.Key(0, "9");
        EXPECT_EQ(user.Text(11), "9");
    });
    EXPECT_EQ(whole, 3);
    EXPECT_EQ(behind, "kept");
}

struct Words {
    const char* name;
    const char* typed;
    const char* message;
    std::function<void(CDataExchange*)> exchange;
};

class DataExchangeWords : public DataExchange, public testing::WithParamInterface<Words> {};

TEST_P(DataExchangeWords, AreTheFrameworks) {
    // Shown are the members' values; what is typed is judged.
    bool judge = false;
    dialog_.onExchange = [&](CDataExchange* exchange) {
        if (judge) GetParam().exchange(exchange);
    };
    desktop.ExpectMessage(GetParam().message);
    Run(dialog_, [&](kv::User& user) {
        judge = true;
        user.Type(11, GetParam().typed);
        EXPECT_FALSE(dialog_.UpdateData(TRUE));
    });
    EXPECT_THAT(desktop.Messages(), ElementsAre(GetParam().message));
}

void ExchangeDouble(CDataExchange* exchange) {
    double value = 0;
    DDX_Text(exchange, 11, value);
    DDV_MinMaxDouble(exchange, value, -0.5, 360);
}

void ExchangeInt(CDataExchange* exchange) {
    int value = 0;
    DDX_Text(exchange, 11, value);
    DDV_MinMaxInt(exchange, value, 1, 31);
}

void ExchangeChars(CDataExchange* exchange) {
    CString value;
    DDX_Text(exchange, 11, value);
    DDV_MaxChars(exchange, value, 4);
}

INSTANTIATE_TEST_SUITE_P(
    , DataExchangeWords,
    testing::Values(
        Words{"NoNumber", "12a", "Please enter a number.", ExchangeDouble},
        Words{"EmptyIsNoNumber", "", "Please enter a number.", ExchangeDouble},
        Words{"NoInteger", "1.5", "Please enter an integer.", ExchangeInt},
        Words{"EmptyIsNoInteger", "", "Please enter an integer.", ExchangeInt},
        Words{"BelowTheRange", "-0.6", "Please enter a number between -0.5 and 360.",
              ExchangeDouble},
        Words{"AboveTheRange", "360.001", "Please enter a number between -0.5 and 360.",
              ExchangeDouble},
        Words{"IntegerOutOfRange", "32", "Please enter an integer between 1 and 31.", ExchangeInt},
        Words{"TooLong", "12345", "Please enter no more than 4 characters.", ExchangeChars}),
    [](const auto& each) { return each.param.name; });

TEST_F(DataExchange, BothEndsOfARangeAreInIt) {
    double value = 0;
    dialog_.onExchange = [&](CDataExchange* exchange) {
        DDX_Text(exchange, 11, value);
        DDV_MinMaxDouble(exchange, value, -1, 1);
    };
    Run(dialog_, [&](kv::User& user) {
        for (const char* text : {"-1", "1"}) {
            user.Type(11, text);
            EXPECT_TRUE(dialog_.UpdateData(TRUE)) << text;
        }
    });
    EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(DataExchange, ShowingAValueOutOfRangeTellsNobody) {
    double value = 7;
    dialog_.onExchange = [&](CDataExchange* exchange) {
        DDX_Text(exchange, 11, value);
        DDV_MinMaxDouble(exchange, value, -1, 1);
    };
    Run(dialog_, [](kv::User& user) { EXPECT_EQ(user.Text(11), "7"); });
    EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(DataExchange, MaxCharsLimitsWhatCanBeTyped) {
    CString value;
    CString row;
    dialog_.onExchange = [&](CDataExchange* exchange) {
        DDX_Text(exchange, 11, value);
        DDV_MaxChars(exchange, value, 3);
        DDX_CBString(exchange, 52, row);
        DDV_MaxChars(exchange, row, 2);
    };
    Run(dialog_, [](kv::User& user) {
        user.Type(11, "abcdef");
        EXPECT_EQ(user.Text(11), "abc");
        user.Type(52, "xyz");
        EXPECT_EQ(user.Text(52), "xy");
    });
}

TEST_F(DataExchange, NotificationsAreHeldBackMeanwhile) {
    CString value = "shown";
    dialog_.onExchange = [&](CDataExchange* exchange) {
        DDX_Text(exchange, 11, value);
        if (exchange->m_bSaveAndValidate) exchange->Fail("No.");
    };
    desktop.ExpectMessage("No.");
    Run(dialog_, [&](kv::User& user) {
        EXPECT_FALSE(dialog_.WasTold("11 changed"));
        user.Focus(12);
        dialog_.told.clear();
        EXPECT_FALSE(dialog_.UpdateData(TRUE));
        EXPECT_EQ(FocusedId(), 11);
        EXPECT_THAT(dialog_.told, IsEmpty());
        user.Focus(12);
        EXPECT_THAT(dialog_.told, ElementsAre("11 lost", "12 gained"));
    });
}

TEST_F(DataExchange, TheControlsOwnReflectedHandlersAreHeldBackToo) {
    class Own : public CWnd {
    public:
        int told = 0;
        BOOL OnCmdMsg(UINT id, int code, void* extra, void* info) override {
            if (code == EN_CHANGE) ++told;
            return CWnd::OnCmdMsg(id, code, extra, info);
        }
    };
    Own own;
    CString value = "shown";
    dialog_.onExchange = [&](CDataExchange* exchange) {
        DDX_Control(exchange, 11, own);
        DDX_Text(exchange, 11, value);
    };
    Run(dialog_, [&](kv::User& user) {
        EXPECT_EQ(own.told, 0);
        user.Key(11, "x");
        EXPECT_EQ(own.told, 1);
    });
}

TEST_F(DataExchange, AttachesAControlOnce) {
    CWnd handle;
    dialog_.onExchange = [&](CDataExchange* exchange) { DDX_Control(exchange, 11, handle); };
    Run(dialog_, [&](kv::User&) {
        EXPECT_EQ(dialog_.GetDlgItem(11), &handle);
        dialog_.UpdateData(TRUE);
        dialog_.UpdateData(FALSE);
        EXPECT_EQ(dialog_.GetDlgItem(11), &handle);
    });
    EXPECT_EQ(handle.m_hWnd, nullptr);
}

TEST_F(DataExchange, WithAnIdThatTheTemplateLacksLeavesTheMemberAndTellsNobody) {
    CString text = "kept";
    int whole = 5;
    double broken = 5.5;
    int index = 3;
    CWnd handle;
    dialog_.onExchange = [&](CDataExchange* exchange) {
        DDX_Control(exchange, 900, handle);
        DDX_Text(exchange, 901, text);
        DDV_MaxChars(exchange, text, 1);
        DDX_Text(exchange, 902, whole);
        DDV_MinMaxInt(exchange, whole, 0, 1);
        DDX_Text(exchange, 903, broken);
        DDV_MinMaxDouble(exchange, broken, 0, 1);
        DDX_LBString(exchange, 904, text);
        DDX_CBString(exchange, 905, text);
        for (const auto& each : {DDX_Check, DDX_Radio, DDX_LBIndex, DDX_CBIndex}) {
            each(exchange, 906, index);
        }
    };
    Run(dialog_, [&](kv::User&) { EXPECT_TRUE(dialog_.UpdateData(TRUE)); });
    EXPECT_EQ(text, "kept");
    EXPECT_EQ(whole, 5);
    EXPECT_EQ(broken, 5.5);
    EXPECT_EQ(index, 3);
    EXPECT_EQ(handle.m_hWnd, nullptr);
    EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(DataExchange, AnExceptionInItIsShownAndTheDialogStaysOpen) {
    dialog_.onExchange = [](CDataExchange* exchange) {
        if (exchange->m_bSaveAndValidate) throw std::runtime_error("disk on fire");
    };
    desktop.ExpectMessage("disk on fire");
    Run(dialog_, [&](kv::User& user) {
        user.Click(IDOK);
        EXPECT_TRUE(user.Open());
        // The exchange is over, so that notifications come through again.
        user.Key(11, "x");
        EXPECT_TRUE(dialog_.WasTold("11 changed"));
    });
}

}  // namespace
