// Windows of the layer beside the same widgets in plain Qt: opening a dialog of 60 controls, and a
// list view of 100,000 rows.

#include <QAbstractTableModel>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTreeView>
#include <QTreeWidget>
#include <memory>
#include <string>
#include <vector>

#include "plain_widgets.h"
#include "qt/qt_desktop.h"
#include "ratio.h"
#include "window/controls/combo_box.h"
#include "window/controls/list_box.h"
#include "window/controls/progress_node.h"
#include "window/dialogs/dialog.h"
#include "window/frames/frame_wnd.h"
#include "window/list_view/list_ctrl.h"
#include "window/list_view/list_view_node.h"
#include "window/templates/resources.h"

namespace {

using enum kv::ControlKind;

constexpr int kTemplate = 100;
constexpr int kRows = 50;
constexpr int kManyRows = 100000;
constexpr int kColumns = 3;

/// Sixty controls in six columns of ten, lists below each other at the right.
std::vector<kv::ControlRow> Rows() {
    constexpr kv::ControlKind kKinds[] = {kLabel,    kEdit,       kLabel, kDropDown, kLabel,
                                          kDropList, kPushButton, kRadio, kCheckBox, kEdit};
    std::vector<kv::ControlRow> rows;
    rows.push_back({99, kGroupBox, "All", {4, 2, 256, 130}});
    for (int index = 0; index < 54; ++index) {
        const int column = index / 10;
        rows.push_back({100 + index,
                        kKinds[index % 10],
                        "&Text",
                        {8 + column * 42, 14 + (index % 10) * 12, 40, 11}});
    }
    rows.push_back({201, kListBox, "", {4, 136, 80, 60}});
    rows.push_back({202, kMultiList, "", {88, 136, 80, 60}});
    rows.push_back({203, kListView, "", {172, 136, 120, 60}});
    rows.push_back({204, kProgress, "", {4, 200, 100, 10}});
    rows.push_back({IDOK, kDefaultButton, "OK", {240, 200, 50, 14}});
    return rows;
}

std::string RowText(int row) {
    return "COMPANY " + std::to_string(row * 7919 % 1000);
}

/// The dialog's handles fill the controls as a dialog's `OnInitDialog` does.
class Sixty : public CDialog {
public:
    BOOL OnInitDialog() override {
        for (int row = 0; row < kRows; ++row) {
            const std::string text = RowText(row);
            for (const auto& child : m_hWnd->Children()) {
                if (child->Class() == kv::NodeClass::kComboBox) {
                    kv::Send(*child, CB_ADDSTRING, 0, kv::AsParam(text.c_str()));
                } else if (child->Class() == kv::NodeClass::kListBox) {
                    kv::Send(*child, LB_ADDSTRING, 0, kv::AsParam(text.c_str()));
                }
            }
        }
        auto& list = Control<CListCtrl>(203);
        for (int column = 0; column < kColumns; ++column) {
            list.InsertColumn(column, "Column", LVCFMT_LEFT, 60);
        }
        for (int row = 0; row < kRows; ++row) {
            list.InsertItem(row, RowText(row).c_str());
            for (int column = 1; column < kColumns; ++column) {
                list.SetItemText(row, column, RowText(row + column).c_str());
            }
        }
        SendDlgItemMessage(204, PBM_SETPOS, 40);
        return CDialog::OnInitDialog();
    }
};

void OpenOurs(benchmark::State& state) {
    kv::qt::QtDesktop desktop;
    const auto rows = Rows();
    const kv::DialogTemplate data{kTemplate, "Sixty", 300, 220, rows};
    kv::ResourceModule module;
    module.templates.push_back(&data);
    kv::AddToResourceChain(module);
    for (auto _ : state) {
        Sixty dialog;
        dialog.Create(kTemplate);
        QApplication::processEvents();
        dialog.DestroyWindow();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    kv::RemoveFromResourceChain(module);
}

QStringList Texts() {
    QStringList texts;
    for (int row = 0; row < kRows; ++row)
        texts.append(QString::fromStdString(RowText(row)));
    return texts;
}

QWidget* MakeTree(QWidget* parent) {
    auto* tree = new QTreeWidget(parent);
    tree->setColumnCount(kColumns);
    tree->setHeaderLabels({"Column", "Column", "Column"});
    tree->setRootIsDecorated(false);
    tree->setUniformRowHeights(true);
    for (int row = 0; row < kRows; ++row) {
        QStringList cells;
        for (int column = 0; column < kColumns; ++column) {
            cells.append(QString::fromStdString(RowText(row + column)));
        }
        new QTreeWidgetItem(tree, cells);
    }
    return tree;
}

QWidget* MakeControl(kv::ControlKind kind, const QString& text, const QStringList& texts,
                     QWidget* parent) {
    switch (kind) {
        case kListBox:
        case kMultiList: {
            auto* list = new QListWidget(parent);
            for (const QString& each : texts)
                list->addItem(each);
            return list;
        }
        case kListView:
            return MakeTree(parent);
        case kProgress: {
            auto* bar = new QProgressBar(parent);
            bar->setValue(40);
            return bar;
        }
        default:
            return bench::MakePlain(kind, text, texts, parent);
    }
}

void OpenPeer(benchmark::State& state) {
    const auto rows = Rows();
    const QSizeF unit = bench::DialogUnit();
    for (auto _ : state) {
        const auto dialog = std::make_unique<QDialog>();
        dialog->setWindowTitle("Sixty");
        dialog->setFixedSize(bench::InPixels({0, 0, 300, 220}, unit).size());
        const QStringList texts = Texts();
        for (const kv::ControlRow& row : rows) {
            QWidget* widget =
                MakeControl(row.kind, QString::fromUtf8(row.text), texts, dialog.get());
            widget->setGeometry(bench::InPixels(row.place, unit));
            widget->setAccessibleName(QString::fromUtf8(row.text));
        }
        dialog->show();
        QApplication::processEvents();
    }
}
const bench::Subject kOpen("window/open a dialog of 60 controls", 1.3, OpenOurs, OpenPeer,
                           bench::Clock::kWall);

// The list view.

struct ManyRows {
    ManyRows() {
        frame.Create("Host", {0, 0, 600, 400});
        node = std::static_pointer_cast<kv::ListViewNode>(
            kv::MakeNode(kv::NodeClass::kListView, 1, WS_CHILD | WS_VISIBLE | LVS_REPORT));
        node->SetRect({0, 0, 600, 400});
        CListCtrl list;
        list.Attach(node.get());
        for (int column = 0; column < kColumns; ++column) {
            list.InsertColumn(column, "Column", LVCFMT_LEFT, 150);
        }
        for (int row = 0; row < kManyRows; ++row) {
            list.InsertItem(row, RowText(row).c_str());
            for (int column = 1; column < kColumns; ++column) {
                list.SetItemText(row, column, RowText(row + column).c_str());
            }
        }
        list.Detach();
    }
    kv::qt::QtDesktop desktop;
    CFrameWnd frame;
    std::shared_ptr<kv::ListViewNode> node;
};

/// Rows of the peer: its model reads them on demand, too.
class PlainModel : public QAbstractTableModel {
public:
    PlainModel() {
        for (int row = 0; row < kManyRows; ++row) {
            for (int column = 0; column < kColumns; ++column) {
                cells_.push_back(QString::fromStdString(RowText(row + column)));
            }
        }
    }
    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : kManyRows;
    }
    int columnCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : kColumns;
    }
    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole) return {};
        return cells_[static_cast<std::size_t>(index.row() * kColumns + index.column())];
    }

private:
    std::vector<QString> cells_;
};

void SetUp(QTreeView& tree) {
    tree.setRootIsDecorated(false);
    tree.setItemsExpandable(false);
    tree.setUniformRowHeights(true);
}

/// Goes through all of the list in steps of many pages, and paints each.
void ScrollThrough(QTreeView& tree) {
    constexpr int kSteps = 50;
    QScrollBar* bar = tree.verticalScrollBar();
    for (int step = 0; step < kSteps; ++step) {
        bar->setValue(static_cast<int>(static_cast<long long>(bar->maximum()) * step / kSteps));
        tree.viewport()->repaint();
    }
}

void OpenRowsOurs(benchmark::State& state) {
    ManyRows rows;
    rows.frame.ShowWindow(SW_SHOW);
    rows.frame.m_hWnd->AddChild(rows.node);
    rows.node->SetView(nullptr);
    for (auto _ : state) {
        rows.desktop.Created(*rows.node);
        QApplication::processEvents();
        rows.node->SetView(nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}
void OpenRowsPeer(benchmark::State& state) {
    PlainModel model;
    QWidget window;
    window.resize(700, 460);
    window.show();
    for (auto _ : state) {
        const auto tree = std::make_unique<QTreeView>(&window);
        SetUp(*tree);
        tree->setModel(&model);
        tree->resize(window.size());
        tree->show();
        QApplication::processEvents();
    }
}
const bench::Subject kOpenRows("window/open a list view of 100,000 rows", 1.3, OpenRowsOurs,
                               OpenRowsPeer, bench::Clock::kWall);

void ScrollOurs(benchmark::State& state) {
    ManyRows rows;
    rows.frame.ShowWindow(SW_SHOW);
    rows.frame.m_hWnd->AddChild(rows.node);
    QApplication::processEvents();
    auto* tree = dynamic_cast<QTreeView*>(kv::qt::WidgetOf(*rows.node));
    for (auto _ : state)
        ScrollThrough(*tree);
}
void ScrollPeer(benchmark::State& state) {
    PlainModel model;
    QTreeView tree;
    SetUp(tree);
    tree.setModel(&model);
    tree.resize(700, 460);
    tree.show();
    QApplication::processEvents();
    for (auto _ : state)
        ScrollThrough(tree);
}
const bench::Subject kScroll("window/scroll through 100,000 rows", 1.3, ScrollOurs, ScrollPeer,
                             bench::Clock::kWall);

}  // namespace
