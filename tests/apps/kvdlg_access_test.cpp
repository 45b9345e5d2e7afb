#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <map>
#include <string>

#include "frame/module.h"
#include "kvdlg/report.h"
#include "qt/qt_desktop.h"
#include "window/dialogs/dialog.h"
#include "window/window_system.h"
#include "workbench_fixture.h"

namespace {

using adaptors::Json;

const std::map<std::string, QAccessible::Role> kRoles = {
    {"label", QAccessible::StaticText},
    {"button", QAccessible::Button},
    {"default button", QAccessible::Button},
    {"drawn button", QAccessible::Button},
    {"check box", QAccessible::CheckBox},
    {"radio button", QAccessible::RadioButton},
    {"group box", QAccessible::Grouping},
    {"edit", QAccessible::EditableText},
    {"combo box", QAccessible::ComboBox},
    {"drop list", QAccessible::ComboBox},
    {"list", QAccessible::List},
    {"list (several rows)", QAccessible::List},
    {"table", QAccessible::Table},
    {"spin button", QAccessible::SpinBox},
    {"progress bar", QAccessible::ProgressBar},
};

/// Rows of a longer list are not all compared.
constexpr int kMostRows = 40;

QAccessibleInterface* Shown(const kv::Node& node) {
    QWidget* widget = kv::qt::WidgetOf(node);
    return widget ? QAccessible::queryAccessibleInterface(widget) : nullptr;
}

/// Of a combo box its list, else the list itself.
QAccessibleInterface* RowsOf(QAccessibleInterface& shown) {
    if (shown.role() != QAccessible::ComboBox) return &shown;
    return shown.childCount() > 0 ? shown.child(shown.childCount() - 1) : nullptr;
}

/// As a script is told of it: cells with tabs between.
QString RowText(QAccessibleTableInterface& table, int row) {
    QStringList cells;
    for (int column = 0; column < table.columnCount(); ++column)
        cells.append(table.cellAt(row, column)->text(QAccessible::Name));
    return cells.join(u'\t');
}

/// What a screen reader is told of every dialog that kvdlg runs, with the inputs that make sense on
/// the sample data, beside what a script is told of it.
class KvdlgAccess : public test::SampleTest, public testing::WithParamInterface<std::string> {
protected:
    KvdlgAccess() { InitControlDll(); }

    /// Runs the dialog, calls `look` in each of its windows, and closes them.
    void Open(const std::function<void(kv::Node&)>& look) {
        const adaptors::Adaptor& adaptor = *adaptors::Find(GetParam());
        QTimer turn;
        int turns = 0;
        QObject::connect(&turn, &QTimer::timeout, [&] {
            ASSERT_LT(++turns, kMostTurns) << "the window is not closed";
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                box->button(QMessageBox::Ok)->click();
                return;
            }
            kv::Node* window = kv::WindowSystem::Get().ActiveWindow();
            QWidget* widget = window ? kv::qt::WidgetOf(*window) : nullptr;
            if (!widget || !widget->isVisible()) return;
            ++windows_;
            look(*window);
            widget->close();
        });
        turn.start(0);
        adaptors::Run run(adaptor.SampleInputs());
        adaptor.run(run);
    }

    int windows_ = 0;

private:
    static constexpr int kMostTurns = 2000;
    kv::qt::QtDesktop desktop_;
};

void CompareRows(const Json& told, QAccessibleInterface& shown) {
    QAccessibleInterface* rows = RowsOf(shown);
    ASSERT_NE(rows, nullptr);
    QAccessibleTableInterface* table = rows->tableInterface();
    ASSERT_NE(table, nullptr);
    const auto count = static_cast<int>(told["rows"].size());
    ASSERT_EQ(table->rowCount(), count);
    for (int row = 0; row < std::min(count, kMostRows); ++row) {
        EXPECT_EQ(RowText(*table, row).toStdString(),
                  told["rows"][static_cast<std::size_t>(row)].get<std::string>());
    }
    std::vector<int> selected;
    for (const int row : table->selectedRows()) {
        selected.push_back(row);
        EXPECT_TRUE(table->cellAt(row, 0)->state().selected) << row;
    }
    EXPECT_EQ(selected, told["selection"].get<std::vector<int>>());
}

void Compare(const Json& told, QAccessibleInterface& shown) {
    const auto kind = told["kind"].get<std::string>();
    const auto text = told["text"].get<std::string>();
    ASSERT_TRUE(kRoles.contains(kind)) << kind;
    const bool picture = kind == "label" && text.empty();
    if (!picture) {
        EXPECT_EQ(shown.role(), kRoles.at(kind));
    }
    EXPECT_EQ(shown.state().invisible, !told["visible"].get<bool>());
    EXPECT_EQ(shown.state().disabled, !told["enabled"].get<bool>());
    if (told.contains("checked")) {
        EXPECT_EQ(shown.state().checked, told["checked"].get<bool>());
    }
    if (kind == "edit") {
        EXPECT_EQ(shown.text(QAccessible::Value).toStdString(), text);
        EXPECT_EQ(shown.state().readOnly, told["readOnly"].get<bool>());
    } else if (kind == "combo box" || kind == "drop list") {
        EXPECT_EQ(shown.text(QAccessible::Value).toStdString(), text);
    }
    if (shown.state().focusable) {
        EXPECT_FALSE(shown.text(QAccessible::Name).trimmed().isEmpty());
    }
    if (told.contains("rows")) CompareRows(told, shown);
}

TEST_P(KvdlgAccess, TellsAScreenReaderWhatItTellsAScript) {
    Open([](kv::Node& window) {
        const Json told = kvdlg::Describe(window, "")["controls"];
        ASSERT_EQ(told.size(), window.Children().size());
        for (std::size_t at = 0; at < told.size(); ++at) {
            SCOPED_TRACE(
                told[at].dump(-1, ' ', false, Json::error_handler_t::replace).substr(0, 160));
            QAccessibleInterface* shown = Shown(*window.Children()[at]);
            ASSERT_NE(shown, nullptr);
            Compare(told[at], *shown);
        }
    });
    EXPECT_GE(windows_, 1);
}

std::vector<std::string> Dialogs() {
    std::vector<std::string> names;
    for (const adaptors::Adaptor* adaptor : adaptors::All()) {
        // The bar's window is a frame, and is tested with the workbench.
        if (adaptor->className != "CVZABEBar") names.push_back(adaptor->className);
    }
    return names;
}

INSTANTIATE_TEST_SUITE_P(, KvdlgAccess, testing::ValuesIn(Dialogs()),
                         [](const auto& each) { return each.param; });

}  // namespace
