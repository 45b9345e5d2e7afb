#include <map>
#include <string>

#include "access_fixture.h"
#include "window/controls/progress_node.h"
#include "window/controls/spin_node.h"
#include "window/mnemonics.h"

using kv::ControlKind;

namespace {

const std::map<ControlKind, QAccessible::Role> kRoles = {
    {ControlKind::kLabel, QAccessible::StaticText},
    {ControlKind::kRightLabel, QAccessible::StaticText},
    {ControlKind::kCenterLabel, QAccessible::StaticText},
    {ControlKind::kIcon, QAccessible::Graphic},
    {ControlKind::kGroupBox, QAccessible::Grouping},
    {ControlKind::kEdit, QAccessible::EditableText},
    {ControlKind::kPushButton, QAccessible::Button},
    {ControlKind::kDefaultButton, QAccessible::Button},
    {ControlKind::kOwnerDrawButton, QAccessible::Button},
    {ControlKind::kCheckBox, QAccessible::CheckBox},
    {ControlKind::kRadio, QAccessible::RadioButton},
    {ControlKind::kDropDown, QAccessible::ComboBox},
    {ControlKind::kDropList, QAccessible::ComboBox},
    {ControlKind::kListBox, QAccessible::List},
    {ControlKind::kMultiList, QAccessible::List},
    {ControlKind::kListView, QAccessible::Table},
    {ControlKind::kSpin, QAccessible::SpinBox},
    {ControlKind::kProgress, QAccessible::ProgressBar},
};

bool IsCheck(ControlKind kind) {
    return kind == ControlKind::kCheckBox || kind == ControlKind::kRadio;
}

bool TakesKeyboard(ControlKind kind) {
    switch (kRoles.at(kind)) {
        case QAccessible::StaticText:
        case QAccessible::Graphic:
        case QAccessible::Grouping:
        case QAccessible::SpinBox:
        case QAccessible::ProgressBar:
            return false;
        default:
            return true;
    }
}

std::vector<const kv::DialogTemplate*> Templates() {
    const auto& all = kv::LibraryResources().templates;
    return {all.begin(), all.end()};
}

/// A dialog of the library, or one of its bars, with nothing in it but its template.
class TemplateAccess : public test::QtDialogTest,
                       public testing::WithParamInterface<const kv::DialogTemplate*> {
protected:
    TemplateAccess() { kv::AddToResourceChain(kv::LibraryResources()); }
    ~TemplateAccess() override {
        plain_.DestroyWindow();
        kv::RemoveFromResourceChain(kv::LibraryResources());
    }
    void SetUp() override {
        ASSERT_TRUE(plain_.Create(static_cast<UINT>(GetParam()->id)));
        plain_.ShowWindow(SW_SHOW);
        Process();
        ASSERT_TRUE(QTest::qWaitForWindowActive(kv::qt::WidgetOf(*plain_.m_hWnd)));
        ASSERT_EQ(plain_.m_hWnd->Children().size(), GetParam()->rows.size());
    }

    /// Calls `check` with each row of the template, its control, and what stands for it.
    template <typename Check>
    void ForEach(Check check) {
        std::size_t at = 0;
        for (const kv::ControlRow& row : GetParam()->rows) {
            kv::Node& node = *plain_.m_hWnd->Children()[at++];
            SCOPED_TRACE("control " + std::to_string(row.id) + " at " + std::to_string(at - 1));
            QAccessibleInterface* shown = test::Shown(node);
            ASSERT_NE(shown, nullptr);
            check(row, node, *shown);
        }
    }

    CDialog plain_;
};

TEST_P(TemplateAccess, ControlsTellTheirRolesNamesAndStates) {
    QAccessibleInterface* window = test::Shown(*plain_.m_hWnd);
    ASSERT_EQ(window->childCount(), static_cast<int>(GetParam()->rows.size()));
    int place = 0;
    ForEach([&](const kv::ControlRow& row, kv::Node&, QAccessibleInterface& shown) {
        EXPECT_EQ(window->child(place++), &shown);
        EXPECT_EQ(shown.parent(), window);
        EXPECT_EQ(shown.role(), kRoles.at(row.kind));
        const DWORD style = kv::StyleOf(row);
        const QAccessible::State state = shown.state();
        const bool enabled = (style & WS_DISABLED) == 0;
        EXPECT_EQ(state.disabled, !enabled);
        EXPECT_EQ(state.invisible, (style & WS_VISIBLE) == 0);
        EXPECT_EQ(state.focusable, enabled && TakesKeyboard(row.kind));
        EXPECT_EQ(state.checkable, IsCheck(row.kind));
        EXPECT_EQ(state.readOnly, row.kind == ControlKind::kEdit && (style & ES_READONLY) != 0);
        EXPECT_EQ(state.passwordEdit, row.kind == ControlKind::kEdit && (style & ES_PASSWORD) != 0);
        EXPECT_EQ(TakesKeyboard(row.kind) && test::NameOf(&shown).trimmed().isEmpty(), false);
    });
}

/// The texts of labels as one name.
QString NameFrom(const std::vector<QAccessibleInterface*>& labels) {
    QStringList words;
    for (QAccessibleInterface* label : labels) {
        const QString text = test::NameOf(label).trimmed();
        words << (text.endsWith(u':') ? text.chopped(1) : text);
    }
    return words.join(u' ');
}

TEST_P(TemplateAccess, LabelsAndWhatGoesByThemKnowEachOther) {
    using test::Related;
    using testing::Contains;
    ForEach([](const kv::ControlRow&, kv::Node& node, QAccessibleInterface& shown) {
        const auto labels = Related(shown, QAccessible::Label);
        if (!labels.empty()) {
            EXPECT_EQ(test::NameOf(&shown), NameFrom(labels));
        }
        for (const QAccessibleInterface* label : labels)
            EXPECT_THAT(Related(*label, QAccessible::Labelled), Contains(&shown));
        for (const QAccessibleInterface* labelled : Related(shown, QAccessible::Labelled))
            EXPECT_THAT(Related(*labelled, QAccessible::Label), Contains(&shown));
        // What the key of a label reaches goes by that label.
        const kv::Node* field = kv::FieldOf(node);
        if (!field || node.Text().empty()) return;
        EXPECT_THAT(Related(*test::Shown(*field), QAccessible::Label), Contains(&shown));
    });
}

TEST_P(TemplateAccess, OneControlHasTheKeyboardAndTheDialogKnowsIt) {
    int focused = 0;
    const kv::Node* focus = kv::WindowSystem::Get().Focus();
    ForEach([&](const kv::ControlRow&, kv::Node& node, QAccessibleInterface& shown) {
        QAccessibleInterface* holder = &shown;
        if (node.Class() == kv::NodeClass::kComboBox && focus && focus->Parent() == &node) {
            holder = test::Shown(*focus);
        }
        if (!holder->state().focused) return;
        ++focused;
        EXPECT_EQ(test::Shown(*plain_.m_hWnd)->focusChild(), holder);
    });
    EXPECT_EQ(focused, focus ? 1 : 0);
}

TEST_P(TemplateAccess, ChecksTextsAndValuesAreTheControls) {
    ForEach([](const kv::ControlRow& row, kv::Node& node, QAccessibleInterface& shown) {
        if (IsCheck(row.kind)) {
            EXPECT_FALSE(shown.state().checked);
            kv::Send(node, BM_SETCHECK, BST_CHECKED);
            EXPECT_TRUE(shown.state().checked);
            kv::Send(node, BM_SETCHECK, BST_UNCHECKED);
        } else if (row.kind == ControlKind::kEdit && !(kv::StyleOf(row) & ES_PASSWORD)) {
            kv::Send(node, WM_SETTEXT, 0, kv::AsParam("12"));
            EXPECT_EQ(test::ValueOf(&shown), "12");
            ASSERT_NE(shown.textInterface(), nullptr);
            EXPECT_EQ(shown.textInterface()->text(0, 2), "12");
        } else if (row.kind == ControlKind::kSpin) {
            kv::Send(node, UDM_SETRANGE32, 1, 60);
            kv::Send(node, UDM_SETPOS32, 0, 15);
            EXPECT_EQ(shown.valueInterface()->currentValue(), 15);
            EXPECT_EQ(shown.valueInterface()->maximumValue(), 60);
        } else if (row.kind == ControlKind::kProgress) {
            kv::Send(node, PBM_SETPOS, 40);
            EXPECT_EQ(shown.valueInterface()->currentValue(), 40);
        }
    });
}

void AddRows(kv::Node& node, UINT message) {
    for (const char* text : {"one", "two", "three"})
        kv::Send(node, message, 0, kv::AsParam(text));
}

/// Names of the children that are selected.
std::vector<QString> Selected(QAccessibleInterface& list) {
    std::vector<QString> names;
    for (int index = 0; index < list.childCount(); ++index) {
        QAccessibleInterface* row = list.child(index);
        if (row->state().selected) names.push_back(test::NameOf(row));
    }
    return names;
}

TEST_P(TemplateAccess, SelectedRowsAreTold) {
    using testing::ElementsAre;
    ForEach([](const kv::ControlRow& row, kv::Node& node, QAccessibleInterface& shown) {
        switch (row.kind) {
            case ControlKind::kListBox:
                AddRows(node, LB_ADDSTRING);
                kv::Send(node, LB_SETCURSEL, 1);
                EXPECT_EQ(Selected(shown).size(), 1U);
                EXPECT_THAT(shown.tableInterface()->selectedRows(), ElementsAre(1));
                break;
            case ControlKind::kMultiList:
                AddRows(node, LB_ADDSTRING);
                kv::Send(node, LB_SETSEL, TRUE, 0);
                kv::Send(node, LB_SETSEL, TRUE, 2);
                EXPECT_EQ(Selected(shown).size(), 2U);
                EXPECT_THAT(shown.tableInterface()->selectedRows(), ElementsAre(0, 2));
                break;
            case ControlKind::kDropDown:
            case ControlKind::kDropList: {
                AddRows(node, CB_ADDSTRING);
                kv::Send(node, CB_SETCURSEL, 1);
                QAccessibleInterface* list = test::ChildOfRole(&shown, QAccessible::List);
                ASSERT_NE(list, nullptr);
                EXPECT_THAT(list->tableInterface()->selectedRows(), ElementsAre(1));
                EXPECT_THAT(Selected(*list), ElementsAre(test::ValueOf(&shown)));
                EXPECT_EQ(test::ValueOf(&shown).toStdString(), node.Text());
                break;
            }
            default:
                break;
        }
    });
}

INSTANTIATE_TEST_SUITE_P(, TemplateAccess, testing::ValuesIn(Templates()),
                         [](const auto& each) { return std::to_string(each.param->id); });

}  // namespace
