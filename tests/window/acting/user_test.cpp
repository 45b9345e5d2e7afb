#include "window/acting/user.h"

#include "support/dialog_fixture.h"

using enum kv::ControlKind;
using test::RecordingDialog;
using test::Row;
using test::TestTemplate;
using testing::StartsWith;

namespace {

struct Deed {
    const char* name;
    void (*act)(kv::User& user, int id);
};

const Deed kActs[] = {
    {"click", [](kv::User& user, int id) { user.Click(id); }},
    {"doubleclick", [](kv::User& user, int id) { user.DoubleClick(id, 0); }},
    {"type", [](kv::User& user, int id) { user.Type(id, "x"); }},
    {"key", [](kv::User& user, int id) { user.Key(id, "Down"); }},
    {"paste", [](kv::User& user, int id) { user.Paste(id, "x"); }},
    {"select", [](kv::User& user, int id) { user.Select(id, 0); }},
    {"drop", [](kv::User& user, int id) { user.Drop(id); }},
    {"focus", [](kv::User& user, int id) { user.Focus(id); }},
};

const Deed kLooks[] = {
    {"text", [](kv::User& user, int id) { user.Text(id); }},
    {"checked", [](kv::User& user, int id) { user.Checked(id); }},
    {"enabled", [](kv::User& user, int id) { user.Enabled(id); }},
    {"visible", [](kv::User& user, int id) { user.Visible(id); }},
    {"rows", [](kv::User& user, int id) { user.Rows(id); }},
    {"selected", [](kv::User& user, int id) { user.Selected(id); }},
    {"doubleclick", [](kv::User& user, int id) { user.DoubleClick(id, "a row"); }},
    {"select", [](kv::User& user, int id) { user.Select(id, "a row"); }},
    {"select", [](kv::User& user, int id) { user.RowIndex(id, "a row"); }},
};

/// What a user says who cannot do what they are to do.
class UserWords : public test::DialogTest {
protected:
    void SetUp() override { ASSERT_TRUE(dialog.Create(test::kTestTemplate)); }

    std::string WordsOf(const std::function<void(kv::User&)>& act) {
        kv::User user(*dialog.m_hWnd, [](const std::string& words) { throw words; });
        try {
            act(user);
        } catch (const std::string& words) {
            return words;
        }
        return "nothing";
    }
    std::string WordsOf(const Deed& deed, int id) {
        return WordsOf([&](kv::User& user) { deed.act(user, id); });
    }

    TestTemplate template_{{Row(11, kEdit), Row(31, kListBox)}};
    RecordingDialog dialog;
};

TEST_F(UserWords, NameTheDeedAndTheControlThatIsNotThere) {
    for (const auto& deeds : {std::span<const Deed>(kActs), std::span<const Deed>(kLooks)})
        for (const Deed& deed : deeds)
            EXPECT_EQ(WordsOf(deed, 900), std::string(deed.name) +
                                              " 900: test::RecordingDialog \"Test\" has no such "
                                              "control");
}

TEST_F(UserWords, NameTheDeedAndTheControlThatIsDisabled) {
    dialog.GetDlgItem(31)->SetFocus();
    dialog.GetDlgItem(11)->EnableWindow(FALSE);
    for (const Deed& deed : kActs)
        EXPECT_EQ(WordsOf(deed, 11), std::string(deed.name) +
                                         " 11: the control in test::RecordingDialog \"Test\" is "
                                         "disabled, hidden or of another kind");
}

TEST_F(UserWords, NameTheKeyThatComesToNobody) {
    dialog.EnableWindow(FALSE);
    EXPECT_THAT(WordsOf([](kv::User& user) { user.Key(0, "Down"); }), StartsWith("key 0: the "));
    EXPECT_EQ(WordsOf([](kv::User& user) { user.Key(0, "Ctrl+Any"); }),
              "key 0: no key is named \"Ctrl+Any\"");
}

TEST_F(UserWords, NameTheRowThatIsNotThere) {
    for (const Deed& deed : std::span(kLooks).last(3))
        EXPECT_EQ(WordsOf(deed, 31), std::string(deed.name) + " 31: no row \"a row\"");
}

TEST_F(UserWords, NameTheWindowThatHasGone) {
    dialog.ShowWindow(SW_HIDE);
    EXPECT_EQ(WordsOf(kActs[0], 11),
              "click 11: the window test::RecordingDialog \"Test\" is not open any more");
}

TEST_F(UserWords, AreNoneWhereAllIsWell) {
    for (const Deed& deed : {kActs[0], kActs[2], kActs[3], kActs[4], kActs[7]})
        EXPECT_EQ(WordsOf(deed, 11), "nothing") << deed.name;
}

}  // namespace
