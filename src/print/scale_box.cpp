#include "print/scale_box.h"

#include <map>
#include <string>

#include "base/numbers.h"

namespace kv::print {

namespace {

void AddRow(CComboBox& box, const std::string& text, int scale) {
    box.SetItemData(box.AddString(text.c_str()), scale);
}

int FindText(const CComboBox& box, const std::string& text) {
    return box.FindStringExact(-1, text.c_str());
}

}  // namespace

void FillScales(CComboBox& box, std::span<const int> scales) {
    box.ResetContent();
    for (const int scale : scales)
        AddRow(box, std::to_string(scale), scale);
}

void ShowScale(CComboBox& box, int scale) {
    const std::string text = std::to_string(scale);
    const int row = FindText(box, text);
    if (row >= 0) {
        box.SetCurSel(row);
    } else {
        box.SetWindowText(text.c_str());
    }
}

int ScaleIn(const CComboBox& box) {
    const std::string text = box.WindowText();
    int row = box.GetCurSel();
    if (row < 0) row = FindText(box, text);
    return row < 0 ? Atoi(text) : static_cast<int>(box.GetItemData(row));
}

bool AddScale(CComboBox& box, double scale) {
    if (!(scale >= 0.0)) return false;
    // By what their texts will say, so that each text is there once.
    std::map<double, int> scales;
    const auto add = [&](double shown, int number) { scales[Atof(FormatStream(shown))] = number; };
    CString text;
    for (int row = 0; row < box.GetCount(); ++row) {
        box.GetLBText(row, text);
        add(Atof(text.str()), static_cast<int>(box.GetItemData(row)));
    }
    add(scale, ToInt(scale));
    box.ResetContent();
    for (const auto& [shown, number] : scales)
        AddRow(box, FormatStream(shown), number);
    return true;
}

void SelectAddedScale(CComboBox& box, double scale) {
    box.SetCurSel(FindText(box, FormatStream(scale)));
}

}  // namespace kv::print
