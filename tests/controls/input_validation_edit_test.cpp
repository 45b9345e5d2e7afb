#include "controls/input_validation_edit.h"

#include <gtest/gtest.h>

#include <string>

#include "support/dialog_fixture.h"

namespace {

constexpr int kBox = 10;

class CoordinateDialog : public CDialog {
public:
    CoordinateDialog() : CDialog(test::kTestTemplate) {}

    CInputValidationEdit edit;

    BOOL OnInitDialog() override {
        edit.SubclassDlgItem(kBox, this);
        return CDialog::OnInitDialog();
    }
};

class InputValidationEdit : public test::DialogTest {
protected:
    void RunDialog(const std::function<void(kv::User&)>& act) {
        const test::TestTemplate dialogTemplate({test::Row(kBox, kv::ControlKind::kEdit)});
        Run(dialog, act);
    }
    std::string Typed(kv::User& user, const std::string& text) {
        user.Type(kBox, text);
        return user.Text(kBox);
    }

    CoordinateDialog dialog;
};

TEST_F(InputValidationEdit, TakesDigitsPointAndALeadingSign) {
    RunDialog([&](kv::User& user) {
        EXPECT_EQ(Typed(user, "123"), "123");
        EXPECT_EQ(Typed(user, "-89.125"), "-89.125");
        EXPECT_EQ(Typed(user, "+89"), "+89");
        EXPECT_EQ(Typed(user, "1.2.3"), "1.2.3");
    });
}

TEST_F(InputValidationEdit, DropsASignThatIsNotAhead) {
    RunDialog([&](kv::User& user) {
        EXPECT_EQ(Typed(user, "8-9+1"), "891");
        EXPECT_EQ(Typed(user, "--8"), "-8");
        user.Key(kBox, "Home");
        kv::input::TypeHere("+");
        EXPECT_EQ(user.Text(kBox), "+-8");
    });
}

TEST_F(InputValidationEdit, DropsAPointThatIsAhead) {
    RunDialog([&](kv::User& user) {
        EXPECT_EQ(Typed(user, ".5"), "5");
        EXPECT_EQ(Typed(user, "0.5"), "0.5");
        dialog.edit.SetSel(0, -1);
        kv::input::TypeHere(".");
        EXPECT_EQ(user.Text(kBox), "0.5");
    });
}

TEST_F(InputValidationEdit, DropsEverythingElse) {
    RunDialog([&](kv::User& user) {
        EXPECT_EQ(Typed(user,
                        "1a2 3,4\xc2\xb0"
                        "5e6"),
                  "123456");
    });
}

TEST_F(InputValidationEdit, TakesBackspaceAndTheClipboardsKeys) {
    RunDialog([&](kv::User& user) {
        EXPECT_EQ(Typed(user, "12\b3"), "13");
        dialog.edit.SetSel(0, -1);
        kv::input::TypeHere("\x03");
        EXPECT_EQ(desktop.ClipboardText(), "13");
        desktop.SetClipboardText("N 28");
        kv::input::TypeHere("\x16");
        EXPECT_EQ(user.Text(kBox), "N 28");
    });
}

TEST_F(InputValidationEdit, CleansItsTextButForTheFirstCharacter) {
    RunDialog([&](kv::User& user) {
        const auto cleaned = [&](const char* text) {
            dialog.edit.SetWindowText(text);
            dialog.edit.TestString();
            return user.Text(kBox);
        };
        EXPECT_EQ(cleaned("-89.125"), "-89125");
        EXPECT_EQ(cleaned("x1y2"), "x12");
        EXPECT_EQ(cleaned("28 30"), "2830");
        EXPECT_EQ(cleaned("N"), "N");
        EXPECT_EQ(cleaned(""), "");
    });
}

}  // namespace
