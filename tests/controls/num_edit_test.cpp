#include "controls/num_edit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "support/comma_locale.h"
#include "support/dialog_fixture.h"

namespace {

using testing::ElementsAre;

constexpr int kBox = 10;
constexpr int kOther = 11;

/// A dialog whose first edit is a number box.
class NumberDialog : public test::RecordingDialog {
public:
    CNumEdit number;

    BOOL OnInitDialog() override {
        number.SubclassDlgItem(kBox, this);
        return RecordingDialog::OnInitDialog();
    }
};

class NumEdit : public test::DialogTest {
protected:
    void RunDialog(const std::function<void(kv::User&)>& act) {
        const test::TestTemplate dialogTemplate(
            {test::Row(kBox, kv::ControlKind::kEdit), test::Row(kOther, kv::ControlKind::kEdit),
             test::Row(IDOK, kv::ControlKind::kDefaultButton),
             test::Row(IDCANCEL, kv::ControlKind::kPushButton)});
        Run(dialog, [&](kv::User& user) {
            person = &user;
            act(user);
        });
    }
    std::string Text() { return person->Text(kBox); }
    std::pair<int, int> Selection() {
        int start = 0;
        int end = 0;
        number.GetSel(start, end);
        return {start, end};
    }
    /// A key goes through the box as it stands, with its caret.
    void Press(char ch) {
        number.SetFocus();
        kv::input::TypeHere(std::string(1, ch));
    }

    NumberDialog dialog;
    CNumEdit& number = dialog.number;
    kv::User* person = nullptr;
};

TEST_F(NumEdit, FreshTakesZeroAlone) {
    RunDialog([&](kv::User&) {
        double least = 1.0;
        double most = 1.0;
        number.GetRange(least, most);
        EXPECT_EQ(least, 0.0);
        EXPECT_EQ(most, 0.0);
        EXPECT_EQ(number.GetDelta(), 0.0);
        EXPECT_EQ(number.Verbose(), 0);
        EXPECT_EQ(number.SetValue(5.0), 0);
        EXPECT_EQ(Text(), "");
        EXPECT_EQ(number.SetValue(0.0), 1);
        EXPECT_EQ(Text(), "0");
        EXPECT_EQ(number.IsValid("0.000"), CNumEdit::kValid);
        EXPECT_EQ(number.IsValid("0.001"), CNumEdit::kOutOfRange);
    });
}

TEST_F(NumEdit, ItsRangeHasBothItsEnds) {
    RunDialog([&](kv::User&) {
        number.SetRange(0.0, 60.0);
        EXPECT_EQ(number.SetValue(60.0), 1);
        EXPECT_EQ(Text(), "60");
        EXPECT_EQ(number.SetValue(60.5), 0);
        EXPECT_EQ(Text(), "60");
        EXPECT_EQ(number.SetValue(0.0), 1);
        EXPECT_EQ(number.SetValue(-0.5), 0);
        EXPECT_EQ(Text(), "0");
    });
}

TEST_F(NumEdit, RefusesWhatIsNoNumber) {
    RunDialog([&](kv::User&) {
        const double infinity = std::numeric_limits<double>::infinity();
        number.SetRange(-infinity, infinity);
        EXPECT_EQ(number.SetValue(std::numeric_limits<double>::quiet_NaN()), 0);
        EXPECT_EQ(Text(), "");
    });
}

struct Judged {
    const char* text;
    int code;
};

TEST_F(NumEdit, JudgesATextAsAWhole) {
    constexpr Judged kTexts[] = {
        {"0", 0},          {"60", 0},  {"+5", 0},   {" 12", 0}, {"12 ", 0},   {"1e1", 0},
        {".5", 0},         {"5.", 0},  {"-10", 0},  {"61", 1},  {"-10.1", 1}, {"1e999", 1},
        {"", 2},           {" ", 2},   {"12a", 2},  {"a12", 2}, {"1.2.3", 2}, {"1 2", 2},
        {".", 2},          {"--1", 2}, {"0x10", 2}, {"inf", 2}, {"nan", 2},   {"1e", 2},
        {"+-", 2},         {"- 1", 2}, {"1,5", 2},  {"+", 3},   {"-", 3},     {" -", 2},
        {"30\xc2\xb0", 2}, {"- ", 2},
    };
    RunDialog([&](kv::User&) {
        number.SetRange(-10.0, 60.0);
        for (const Judged& each : kTexts) {
            EXPECT_EQ(number.IsValid(each.text), each.code) << '"' << each.text << '"';
            number.SetWindowText(each.text);
            EXPECT_EQ(number.IsValid(), each.code) << '"' << each.text << '"';
        }
    });
}

TEST_F(NumEdit, GivesTheLowerEndForWhatIsNotValid) {
    RunDialog([&](kv::User&) {
        number.SetRange(-10.0, 60.0);
        EXPECT_EQ(number.GetValue(), -10.0);
        for (const char* text : {"-", "+", "12a", "61", "1.2.3"}) {
            number.SetWindowText(text);
            EXPECT_EQ(number.GetValue(), -10.0) << text;
        }
        number.SetWindowText("12.25");
        EXPECT_EQ(number.GetValue(), 12.25);
    });
}

struct Formatted {
    double value;
    const char* format;
    const char* text;
};

TEST_F(NumEdit, ShowsDecimalsWhereSixDigitsHaveAFraction) {
    constexpr Formatted kValues[] = {
        {30.0, "%.0f", "30"},
        {12.5, "%.3f", "12.500"},
        {15.25, "%.3f", "15.250"},
        {-0.5, "%.3f", "-0.500"},
        {0.0, "%.0f", "0"},
        {-0.0, "%.0f", "-0"},
        // Six digits show no fraction, and so it is cut.
        {29.9999999, "%.0f", "30"},
        {123456.25, "%.0f", "123456"},
        {1000000.0, "%.0f", "1000000"},
        // With an exponent there is a point for a reason of its own.
        {1234567.0, "%.3f", "1234567.000"},
        {0.00001, "%.0f", "0"},
        {0.000015, "%.3f", "0.000"},
    };
    RunDialog([&](kv::User&) {
        number.SetRange(-1e9, 1e9);
        for (const Formatted& each : kValues) {
            CString format;
            EXPECT_EQ(&number.ConstructFormat(format, each.value), &format);
            EXPECT_STREQ(format, each.format) << each.value;
            EXPECT_EQ(number.SetValue(each.value), 1);
            EXPECT_EQ(Text(), each.text);
        }
        number.SetPrecision(6);
        number.SetValue(28.504236);
        EXPECT_EQ(Text(), "28.504236");
        number.SetValue(28.0);
        EXPECT_EQ(Text(), "28");
    });
}

TEST_F(NumEdit, DoesNotDependOnTheLocale) {
    const test::CommaLocale locale;
    if (!locale.Found()) GTEST_SKIP() << "no locale with a decimal comma";
    RunDialog([&](kv::User&) {
        number.SetRange(0.0, 60.0);
        number.SetValue(12.5);
        EXPECT_EQ(Text(), "12.500");
        EXPECT_EQ(number.GetValue(), 12.5);
        EXPECT_EQ(number.IsValid("12,5"), CNumEdit::kNoNumber);
    });
}

TEST_F(NumEdit, ChangesByStepsUpToItsEnds) {
    RunDialog([&](kv::User&) {
        number.SetRange(0.0, 60.0);
        number.SetDelta(0.05);
        number.SetWindowText("59.9");
        number.ChangeAmount(1);
        EXPECT_EQ(Text(), "59.950");
        number.ChangeAmount(1);
        EXPECT_EQ(Text(), "60");
        number.ChangeAmount(1);
        EXPECT_EQ(Text(), "60");
        number.ChangeAmount(-2);
        EXPECT_EQ(Text(), "59.900");
        number.ChangeAmount(-5000);
        EXPECT_EQ(Text(), "0");
        number.SetWindowText("");
        number.ChangeAmount(3);
        EXPECT_EQ(Text(), "0.150");
    });
}

// Typing.

TEST_F(NumEdit, ALetterBringsTheFormerNumberBackSelected) {
    RunDialog([&](kv::User& user) {
        number.SetRange(0.0, 60.0);
        user.Type(kBox, "12");
        EXPECT_EQ(Text(), "12");
        Press('a');
        EXPECT_EQ(Text(), "12");
        EXPECT_EQ(Selection(), std::make_pair(0, 2));
        Press('7');
        EXPECT_EQ(Text(), "7");
    });
}

TEST_F(NumEdit, ALetterInAnEmptyBoxBringsTheLowerEnd) {
    RunDialog([&](kv::User& user) {
        number.SetRange(-90.0, 90.0);
        user.Type(kBox, "x");
        EXPECT_EQ(Text(), "-90");
        EXPECT_EQ(Selection(), std::make_pair(0, 3));
    });
}

TEST_F(NumEdit, ALetterOfTwoBytesIsTakenBackAsAWhole) {
    RunDialog([&](kv::User& user) {
        number.SetRange(0.0, 60.0);
        user.Type(kBox, "12");
        number.SetFocus();
        kv::input::TypeHere("\xc3\xa9");
        EXPECT_EQ(Text(), "12");
    });
}

TEST_F(NumEdit, BlanksAreDropped) {
    RunDialog([&](kv::User& user) {
        number.SetRange(0.0, 60.0);
        user.Type(kBox, "1 2");
        EXPECT_EQ(Text(), "12");
    });
}

TEST_F(NumEdit, ASignBeginsANumber) {
    RunDialog([&](kv::User& user) {
        number.SetRange(-90.0, 90.0);
        user.Type(kBox, "-");
        EXPECT_EQ(Text(), "-");
        user.Type(kBox, "-12.5");
        EXPECT_EQ(Text(), "-12.5");
        EXPECT_EQ(number.GetValue(), -12.5);
        Press('-');
        EXPECT_EQ(Text(), "-12.500");
        user.Type(kBox, "+5");
        EXPECT_EQ(Text(), "+5");
    });
}

TEST_F(NumEdit, DigitsAndPointsAreLetThroughUnjudged) {
    RunDialog([&](kv::User& user) {
        number.SetRange(0.0, 60.0);
        user.Type(kBox, "200");
        EXPECT_EQ(Text(), "200");
        EXPECT_EQ(number.GetValue(), 0.0);
        Press('x');
        EXPECT_EQ(Text(), "0");
        user.Type(kBox, "1.2.3");
        EXPECT_EQ(Text(), "1.2.3");
        user.Key(kBox, "End");
        Press('\b');
        EXPECT_EQ(Text(), "1.2.");
    });
}

TEST_F(NumEdit, CopyingLeavesTheTextAlone) {
    RunDialog([&](kv::User& user) {
        number.SetRange(0.0, 60.0);
        user.Type(kBox, "1.2.3");
        number.SetSel(0, -1);
        kv::input::TypeHere("\x03");
        EXPECT_EQ(Text(), "1.2.3");
        EXPECT_EQ(desktop.ClipboardText(), "1.2.3");
    });
}

TEST_F(NumEdit, PastingIsNoTyping) {
    RunDialog([&](kv::User& user) {
        number.SetRange(0.0, 60.0);
        user.Paste(kBox, "some 12");
        EXPECT_EQ(Text(), "some 12");
        number.SetSel(0, -1);
        desktop.SetClipboardText("words");
        kv::input::TypeHere("\x16");
        EXPECT_EQ(Text(), "words");
        number.SetWindowText("");
    });
}

TEST_F(NumEdit, KeysThatWaitAreDroppedWithTheWrongOne) {
    RunDialog([&](kv::User& user) {
        number.SetRange(0.0, 60.0);
        user.Type(kBox, "12");
        for (const char ch : {'x', '3', '4'}) {
            number.PostMessage(WM_CHAR, static_cast<WPARAM>(ch));
        }
        dialog.GetDlgItem(kOther)->PostMessage(WM_CHAR, '9');
        kv::WindowSystem::Get().Settle();
        EXPECT_EQ(Text(), "12");
        EXPECT_EQ(Selection(), std::make_pair(0, 2));
        EXPECT_EQ(user.Text(kOther), "9");
    });
}

TEST_F(NumEdit, OtherMessagesThatWaitComeThrough) {
    RunDialog([&](kv::User& user) {
        number.SetRange(0.0, 60.0);
        user.Type(kBox, "12");
        number.PostMessage(WM_CHAR, 'x');
        number.PostMessage(WM_SETTEXT, 0, kv::AsParam("45"));
        number.PostMessage(WM_CHAR, '3');
        kv::WindowSystem::Get().Settle();
        EXPECT_EQ(Text(), "45");
    });
}

TEST_F(NumEdit, KeysThatWaitBehindARightOneAreTyped) {
    RunDialog([&](kv::User& user) {
        number.SetRange(0.0, 1000.0);
        user.Type(kBox, "1");
        for (const char ch : {'2', '3', '4'}) {
            number.PostMessage(WM_CHAR, static_cast<WPARAM>(ch));
        }
        kv::WindowSystem::Get().Settle();
        EXPECT_EQ(Text(), "1234");
        number.SetWindowText("");
    });
}

TEST_F(NumEdit, AReadOnlyBoxStaysAsItIs) {
    RunDialog([&](kv::User& user) {
        number.SetRange(-90.0, 90.0);
        number.SetReadOnly(TRUE);
        user.Type(kBox, "x1-");
        EXPECT_EQ(Text(), "");
    });
}

// Leaving.

TEST_F(NumEdit, LeavingWithANumberOutOfRangeEmptiesItAndKeepsTheFocus) {
    RunDialog([&](kv::User& user) {
        number.SetRange(0.0, 60.0);
        user.Type(kBox, "200");
        desktop.ExpectMessage("Value out of range");
        user.Key(kBox, "Tab");
        EXPECT_EQ(Text(), "");
        EXPECT_EQ(test::FocusedId(), kBox);
        user.Key(kBox, "Tab");
        EXPECT_EQ(test::FocusedId(), kOther);
    });
    EXPECT_THAT(desktop.Messages(), ElementsAre("Value out of range"));
}

TEST_F(NumEdit, LeavingJudgesTheNumberAheadOfTheRest) {
    RunDialog([&](kv::User& user) {
        number.SetRange(0.0, 60.0);
        user.Type(kBox, "1.2.3");
        user.Key(kBox, "Tab");
        EXPECT_EQ(test::FocusedId(), kOther);
        EXPECT_EQ(Text(), "1.2.3");
        EXPECT_EQ(number.GetValue(), 0.0);
    });
    EXPECT_TRUE(desktop.Messages().empty());
}

TEST_F(NumEdit, LeavingAnEmptyBoxIsFine) {
    RunDialog([&](kv::User& user) {
        number.SetRange(5.0, 60.0);
        user.Focus(kBox);
        user.Key(kBox, "Tab");
        EXPECT_EQ(test::FocusedId(), kOther);
    });
}

TEST_F(NumEdit, LeavingALoneSignOrAPointIsRefused) {
    RunDialog([&](kv::User& user) {
        number.SetRange(-60.0, 60.0);
        for (const char* text : {"-", "."}) {
            user.Type(kBox, text);
            desktop.ExpectMessage("Value out of range");
            user.Focus(kOther);
            EXPECT_EQ(Text(), "") << text;
            EXPECT_EQ(test::FocusedId(), kBox) << text;
        }
    });
}

TEST_F(NumEdit, ItsParentHearsOfTheLeavingFirst) {
    RunDialog([&](kv::User& user) {
        number.SetRange(0.0, 60.0);
        user.Type(kBox, "200");
        std::string then;
        dialog.when["10 lost"] = [&] { then = Text(); };
        desktop.ExpectMessage("Value out of range");
        user.Focus(kOther);
        EXPECT_EQ(then, "200");
    });
}

TEST_F(NumEdit, AClickOnOkIsSwallowedByTheWarning) {
    RunDialog([&](kv::User& user) {
        number.SetRange(0.0, 60.0);
        user.Type(kBox, "200");
        desktop.ExpectMessage("Value out of range");
        user.Click(IDOK);
        EXPECT_TRUE(user.Open());
        EXPECT_EQ(Text(), "");
        EXPECT_EQ(test::FocusedId(), kBox);
    });
}

TEST_F(NumEdit, EscapeEndsTheDialogWithoutAWarning) {
    RunDialog([&](kv::User& user) {
        number.SetRange(0.0, 60.0);
        user.Type(kBox, "200");
        user.Key(kBox, "Escape");
        EXPECT_FALSE(user.Open());
    });
    EXPECT_TRUE(desktop.Messages().empty());
}

// Keys that press a button while the focus stays.

constexpr int kConvert = 20;
constexpr int kFlag = 21;

class NumEditKeys : public NumEdit {
protected:
    void RunKeys(kv::ControlKind ok, kv::ControlKind cancel,
                 const std::function<void(kv::User&)>& act) {
        using enum kv::ControlKind;
        const test::TestTemplate dialogTemplate(
            {test::Row(kBox, kEdit), test::Row(12, kLabel, "O&ther"), test::Row(kOther, kEdit),
             test::Row(kConvert, kPushButton, "Con&vert"), test::Row(kFlag, kCheckBox, "&Flag"),
             test::Row(IDOK, ok, "&OK"), test::Row(IDCANCEL, cancel, "&Cancel")});
        Run(dialog, [&](kv::User& user) {
            person = &user;
            number.SetRange(0.0, 60.0);
            act(user);
        });
    }
    void RunKeys(const std::function<void(kv::User&)>& act) {
        RunKeys(kv::ControlKind::kDefaultButton, kv::ControlKind::kPushButton, act);
    }
};

TEST_F(NumEditKeys, EnterOkByItsKeyAndOtherButtonsJudgeTheBoxAsLeavingItDoes) {
    RunKeys([&](kv::User& user) {
        for (const char* key : {"Enter", "Alt+O", "Alt+V"}) {
            user.Type(kBox, "95");
            dialog.told.clear();
            desktop.ExpectMessage("Value out of range");
            user.Key(kBox, key);
            EXPECT_TRUE(user.Open()) << key;
            EXPECT_EQ(Text(), "") << key;
            EXPECT_EQ(test::FocusedId(), kBox) << key;
            EXPECT_FALSE(dialog.WasTold("20 clicked")) << key;
        }
        user.Type(kBox, "60");
        user.Key(kBox, "Alt+V");
        EXPECT_TRUE(dialog.WasTold("20 clicked"));
        EXPECT_EQ(Text(), "60");
        user.Key(kBox, "Enter");
        EXPECT_FALSE(user.Open());
    });
    EXPECT_EQ(desktop.ScenesLeft(), 0);
}

TEST_F(NumEditKeys, OkByItsKeyTakesANumberInRangeAndAnEmptyBox) {
    for (const char* text : {"", "30"}) {
        RunKeys([&](kv::User& user) {
            user.Type(kBox, text);
            user.Key(kBox, "Alt+O");
            EXPECT_FALSE(user.Open()) << text;
        });
    }
    EXPECT_TRUE(desktop.Messages().empty());
}

TEST_F(NumEditKeys, EnterIsJudgedWhereThereIsNoDefaultButton) {
    RunKeys(kv::ControlKind::kPushButton, kv::ControlKind::kPushButton, [&](kv::User& user) {
        user.Type(kBox, "95");
        desktop.ExpectMessage("Value out of range");
        user.Key(kBox, "Enter");
        EXPECT_TRUE(user.Open());
        user.Key(kBox, "Enter");
        EXPECT_FALSE(user.Open());
    });
}

TEST_F(NumEditKeys, CancelGivesUpWhatTheBoxHolds) {
    RunKeys([&](kv::User& user) {
        user.Type(kBox, "95");
        user.Key(kBox, "Alt+C");
        EXPECT_FALSE(user.Open());
    });
    RunKeys(kv::ControlKind::kPushButton, kv::ControlKind::kDefaultButton, [&](kv::User& user) {
        user.Type(kBox, "95");
        user.Key(kBox, "Enter");
        EXPECT_FALSE(user.Open());
    });
    EXPECT_TRUE(desktop.Messages().empty());
}

TEST_F(NumEditKeys, KeysThatMoveTheFocusAreToldAboutOnce) {
    RunKeys([&](kv::User& user) {
        for (const char* key : {"Alt+T", "Alt+F"}) {
            user.Type(kBox, "95");
            desktop.ExpectMessage("Value out of range");
            user.Key(kBox, key);
            EXPECT_EQ(test::FocusedId(), kBox) << key;
            EXPECT_FALSE(user.Checked(kFlag));
        }
    });
    EXPECT_EQ(desktop.ScenesLeft(), 0);
}

TEST_F(NumEditKeys, EnterInAnotherBoxLeavesTheNumberAlone) {
    RunKeys([&](kv::User& user) {
        user.Focus(kOther);
        number.SetWindowText("95");
        user.Key(kOther, "Enter");
        EXPECT_FALSE(user.Open());
    });
    EXPECT_TRUE(desktop.Messages().empty());
}

// Reporting.

TEST_F(NumEdit, ReportsWrongInputWhenAskedTo) {
    RunDialog([&](kv::User& user) {
        number.SetRange(0.0, 60.0);
        user.Focus(kOther);
        number.Verbose(1);
        EXPECT_EQ(number.Verbose(), 1);

        number.SetWindowText("61");
        desktop.ExpectMessage("Given value is out of range.\n");
        EXPECT_EQ(number.IsValid(), CNumEdit::kOutOfRange);
        number.SetWindowText("12a");
        desktop.ExpectMessage("Characters must be a number.\n");
        EXPECT_EQ(number.IsValid(), CNumEdit::kNoNumber);
        desktop.ExpectMessage("61b");
        EXPECT_EQ(number.IsValid("61b"), CNumEdit::kNoNumber);
        desktop.ExpectMessage("99");
        EXPECT_EQ(number.IsValid("99"), CNumEdit::kOutOfRange);

        number.SetWindowText("-");
        EXPECT_EQ(number.IsValid(), CNumEdit::kSignAlone);
        EXPECT_EQ(number.IsValid("30"), CNumEdit::kValid);
        number.SetWindowText("");
        number.Verbose(0);
    });
    EXPECT_EQ(desktop.Messages().size(), 4u);
}

TEST_F(NumEdit, KnowsItsClassWhileTheProgramRuns) {
    EXPECT_STREQ(number.GetRuntimeClass()->m_lpszClassName, "CNumEdit");
    const auto made = number.GetRuntimeClass()->CreateObject();
    EXPECT_NE(dynamic_cast<CNumEdit*>(made.get()), nullptr);
}

TEST_F(NumEdit, AHandlerThatEndsTheBoxInTheMiddleOfAKeyDoesNoHarm) {
    RunDialog([&](kv::User& user) {
        number.SetRange(0.0, 60.0);
        user.Type(kBox, "12");
        dialog.when["10 changed"] = [&] { number.DestroyWindow(); };
        kv::input::TypeHere("x");
        EXPECT_EQ(number.m_hWnd, nullptr);
        EXPECT_FALSE(user.HasControl(kBox));
    });
}

}  // namespace
