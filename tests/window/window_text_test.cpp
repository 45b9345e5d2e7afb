#include <algorithm>
#include <array>
#include <string>

#include "support/dialog_fixture.h"
#include "window/controls/combo_box.h"
#include "window/message_handlers.h"

using enum kv::ControlKind;
using test::Row;

namespace {

class WindowText : public test::DialogTest {
protected:
    WindowText() {
        dialog_.Create(test::kTestTemplate);
        dialog_.SetDlgItemText(11, "in the edit");
    }
    /// What WM_GETTEXT copies into a buffer of `room` bytes, which it must not overrun.
    std::string Copied(const CWnd& window, std::size_t room) {
        std::array<char, 64> buffer;
        buffer.fill('#');
        const LRESULT length =
            window.SendMessage(WM_GETTEXT, room, reinterpret_cast<LPARAM>(buffer.data()));
        EXPECT_TRUE(std::all_of(buffer.begin() + static_cast<std::ptrdiff_t>(room), buffer.end(),
                                [](char byte) { return byte == '#'; }));
        const std::string text = buffer.data();
        EXPECT_EQ(static_cast<std::size_t>(length), text.size());
        return text;
    }
    std::string CopiedOf(int id, std::size_t room = 40) {
        return Copied(*dialog_.GetDlgItem(id), room);
    }

    test::TestTemplate template_{{Row(11, kEdit), Row(12, kDropDown), Row(13, kDropList),
                                  Row(14, kLabel, "&Label"), Row(15, kPushButton, "Press")}};
    test::RecordingDialog dialog_;
};

TEST_F(WindowText, IsCopiedOnRequest) {
    EXPECT_EQ(Copied(dialog_, 40), "Test");
    EXPECT_EQ(CopiedOf(11), "in the edit");
    EXPECT_EQ(CopiedOf(14), "&Label");
    EXPECT_EQ(CopiedOf(15), "Press");
}

TEST_F(WindowText, OfAComboBoxIsWhatItShows) {
    dialog_.SetDlgItemText(12, "typed");
    EXPECT_EQ(CopiedOf(12), "typed");
    auto& list = dialog_.Control<CComboBox>(13);
    list.AddString("row");
    EXPECT_EQ(CopiedOf(13), "");
    list.SetCurSel(0);
    EXPECT_EQ(CopiedOf(13), "row");
}

TEST_F(WindowText, IsCutWhereThereIsNoRoom) {
    EXPECT_EQ(CopiedOf(11, 12), "in the edit");
    EXPECT_EQ(CopiedOf(11, 11), "in the edi");
    EXPECT_EQ(CopiedOf(11, 1), "");
    std::array<char, 2> untouched{'#', '#'};
    const auto place = reinterpret_cast<LPARAM>(untouched.data());
    EXPECT_EQ(dialog_.GetDlgItem(11)->SendMessage(WM_GETTEXT, 0, place), 0);
    EXPECT_EQ(untouched[0], '#');
    EXPECT_EQ(dialog_.GetDlgItem(11)->SendMessage(WM_GETTEXT, 40, 0), 0);
}

/// A control that shows its text and tells another one.
class Redacted : public CWnd {
public:
    const kv::MessageMap& GetMessageMap() const override {
        static const kv::MessageEntry kEntries[] = {
            kv::OnMessage<&Redacted::OnGetText>(WM_GETTEXT),
            kv::OnMessage<&Redacted::OnGetTextLength>(WM_GETTEXTLENGTH),
        };
        static const kv::MessageMap kMap{&CWnd::Messages(), kEntries};
        return kMap;
    }

private:
    LRESULT OnGetText(WPARAM size, LPARAM buffer) {
        return kv::CopyText("***", reinterpret_cast<char*>(buffer), size);
    }
    LRESULT OnGetTextLength(WPARAM, LPARAM) { return 3; }
};

TEST_F(WindowText, IsAskedOfTheHandleThatStandsInTheWay) {
    Redacted edit;
    edit.SubclassDlgItem(11, &dialog_);
    EXPECT_EQ(edit.WindowText(), "***");
    EXPECT_EQ(dialog_.DlgItemText(11), "***");
    edit.Detach();
    EXPECT_EQ(dialog_.DlgItemText(11), "in the edit");
}

TEST_F(WindowText, OfNoWindowIsEmpty) {
    EXPECT_EQ(CWnd().WindowText(), "");
    EXPECT_EQ(dialog_.DlgItemText(99), "");
}

}  // namespace
