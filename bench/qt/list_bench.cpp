// List controls of 100,000 rows beside those of Qt.

#include <QComboBox>
#include <QListWidget>
#include <string>
#include <vector>

#include "ratio.h"
#include "window/controls/combo_box.h"
#include "window/controls/list_box.h"
#include "window/frames/frame_wnd.h"

namespace {

constexpr int kRows = 100000;

/// Company names as the qualifier dialogs list them, in no order.
const std::vector<std::string>& Names() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> list;
        for (int i = 0; i < kRows; ++i) {
            list.push_back("COMPANY " + std::to_string((i * 7919LL) % kRows) + " OIL AND GAS");
        }
        return list;
    }();
    return names;
}

QStringList QtNames() {
    QStringList list;
    for (const std::string& name : Names())
        list.append(QString::fromStdString(name));
    return list;
}

/// The texts that are looked for, from all over the list.
std::vector<std::string> Wanted(std::size_t length) {
    std::vector<std::string> wanted;
    for (int i = 0; i < 10; ++i) {
        wanted.push_back(Names()[static_cast<std::size_t>(i * 9973 + 500)].substr(0, length));
    }
    return wanted;
}

template <typename Control>
struct Host {
    explicit Host(DWORD style) {
        frame.Create("Host");
        control.Create(WS_CHILD | WS_VISIBLE | style, {0, 0, 200, 400}, &frame, 1);
    }
    CFrameWnd frame;
    Control control;
};

template <typename Control>
void Fill(Control& control) {
    for (const std::string& name : Names())
        control.AddString(name.c_str());
}

void FillListOurs(benchmark::State& state) {
    Host<CListBox> host(LBS_NOTIFY);
    for (auto _ : state) {
        Fill(host.control);
        host.control.ResetContent();
    }
}
void FillListPeer(benchmark::State& state) {
    const QStringList names = QtNames();
    QListWidget list;
    for (auto _ : state) {
        for (const QString& name : names)
            list.addItem(name);
        list.clear();
    }
}
const bench::Subject kFillList("list box/fill 100,000 rows", 0.5, FillListOurs, FillListPeer);

// The first search of a list makes what later ones need, which takes some 30 to 40 ms here; the
// subjects below measure searches from then on.

void PrefixOurs(benchmark::State& state) {
    Host<CListBox> host(LBS_NOTIFY);
    Fill(host.control);
    host.control.FindString(-1, "COMPANY");
    const auto wanted = Wanted(12);
    for (auto _ : state) {
        for (const std::string& text : wanted) {
            benchmark::DoNotOptimize(host.control.FindString(-1, text.c_str()));
        }
    }
}
void PrefixPeer(benchmark::State& state) {
    QListWidget list;
    list.addItems(QtNames());
    const auto wanted = Wanted(12);
    for (auto _ : state) {
        for (const std::string& text : wanted) {
            benchmark::DoNotOptimize(
                list.findItems(QString::fromStdString(text), Qt::MatchStartsWith));
        }
    }
}
const bench::Subject kPrefix("list box/first row with a prefix", 0.05, PrefixOurs, PrefixPeer);

void ExactOurs(benchmark::State& state) {
    Host<CListBox> host(LBS_NOTIFY);
    Fill(host.control);
    host.control.FindString(-1, "COMPANY");
    const auto wanted = Wanted(std::string::npos);
    for (auto _ : state) {
        for (const std::string& text : wanted) {
            benchmark::DoNotOptimize(host.control.FindStringExact(-1, text.c_str()));
        }
    }
}
void ExactPeer(benchmark::State& state) {
    QListWidget list;
    list.addItems(QtNames());
    const auto wanted = Wanted(std::string::npos);
    for (auto _ : state) {
        for (const std::string& text : wanted) {
            benchmark::DoNotOptimize(
                list.findItems(QString::fromStdString(text), Qt::MatchFixedString));
        }
    }
}
const bench::Subject kExact("list box/row by its text", 0.05, ExactOurs, ExactPeer);

void FillComboOurs(benchmark::State& state) {
    Host<CComboBox> host(CBS_DROPDOWN);
    for (auto _ : state) {
        Fill(host.control);
        host.control.ResetContent();
    }
}
void FillComboPeer(benchmark::State& state) {
    const QStringList names = QtNames();
    QComboBox combo;
    for (auto _ : state) {
        for (const QString& name : names)
            combo.addItem(name);
        combo.clear();
    }
}
const bench::Subject kFillCombo("combo box/fill 100,000 rows", 0.5, FillComboOurs, FillComboPeer);

void ExactComboOurs(benchmark::State& state) {
    Host<CComboBox> host(CBS_DROPDOWN);
    Fill(host.control);
    host.control.FindString(-1, "COMPANY");
    const auto wanted = Wanted(std::string::npos);
    for (auto _ : state) {
        for (const std::string& text : wanted) {
            benchmark::DoNotOptimize(host.control.FindStringExact(-1, text.c_str()));
        }
    }
}
void ExactComboPeer(benchmark::State& state) {
    QComboBox combo;
    combo.addItems(QtNames());
    const auto wanted = Wanted(std::string::npos);
    for (auto _ : state) {
        for (const std::string& text : wanted) {
            benchmark::DoNotOptimize(
                combo.findText(QString::fromStdString(text), Qt::MatchFixedString));
        }
    }
}
const bench::Subject kExactCombo("combo box/row by its text", 0.05, ExactComboOurs, ExactComboPeer);

}  // namespace
