#include "window/dialogs/ddx.h"

#include <algorithm>

#include "base/numbers.h"
#include "base/text.h"
#include "window/controls/combo_box.h"
#include "window/controls/list_box.h"
#include "window/dialog_keys.h"

namespace {

/// Writes a text where it differs, so that the caret of an edit stays where it was.
void ShowText(kv::Node& control, const std::string& text) {
    if (control.Text() != text) kv::Send(control, WM_SETTEXT, 0, kv::AsParam(text.c_str()));
}

/// The messages that read and write one number of a control.
struct NumberMessages {
    UINT get;
    UINT set;
};

void ExchangeNumber(const CDataExchange& exchange, HWND control, NumberMessages messages,
                    int& value) {
    if (!control) return;
    if (exchange.m_bSaveAndValidate) {
        value = static_cast<int>(kv::Send(*control, messages.get));
    } else {
        kv::Send(*control, messages.set, static_cast<WPARAM>(value));
    }
}

bool OnlySpaceBehind(const std::string& text, std::size_t end) {
    return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(end), text.end(), kv::IsSpace);
}

}  // namespace

void DDX_Control(CDataExchange* exchange, int id, CWnd& control) {
    const HWND window = exchange->PrepareCtrl(id);
    if (!control.m_hWnd) control.Attach(window);
}

void DDX_Text(CDataExchange* exchange, int id, CString& value) {
    std::string text(value);
    DDX_Text(exchange, id, text);
    if (exchange->m_bSaveAndValidate) value = text.c_str();
}

void DDX_Text(CDataExchange* exchange, int id, std::string& value) {
    const HWND control = exchange->PrepareEditCtrl(id);
    if (!control) return;
    if (exchange->m_bSaveAndValidate) {
        value = control->Text();
    } else {
        ShowText(*control, value);
    }
}

void DDX_Text(CDataExchange* exchange, int id, int& value) {
    const HWND control = exchange->PrepareEditCtrl(id);
    if (!control) return;
    if (!exchange->m_bSaveAndValidate) {
        ShowText(*control, std::to_string(value));
        return;
    }
    std::size_t end = 0;
    const auto number = kv::ScanInteger(control->Text(), &end);
    if (!number || !OnlySpaceBehind(control->Text(), end)) {
        exchange->Fail("Please enter an integer.");
    }
    value = *number;
}

void DDX_Text(CDataExchange* exchange, int id, double& value) {
    const HWND control = exchange->PrepareEditCtrl(id);
    if (!control) return;
    if (!exchange->m_bSaveAndValidate) {
        ShowText(*control, kv::FormatPrintf("%.15g", value));
        return;
    }
    std::size_t end = 0;
    const auto number = kv::ScanNumber(control->Text(), &end);
    if (!number || !OnlySpaceBehind(control->Text(), end)) {
        exchange->Fail("Please enter a number.");
    }
    value = *number;
}

void DDX_Check(CDataExchange* exchange, int id, int& value) {
    const HWND control = exchange->PrepareCtrl(id);
    ExchangeNumber(*exchange, control, {BM_GETCHECK, BM_SETCHECK}, value);
}

void DDX_Radio(CDataExchange* exchange, int id, int& value) {
    const HWND first = exchange->PrepareCtrl(id);
    if (!first) return;
    if (exchange->m_bSaveAndValidate) value = -1;
    int index = 0;
    for (kv::Node* button : kv::GroupOf(*first)) {
        const bool radio = button->Class() == kv::NodeClass::kButton &&
                           (button->Style() & BS_TYPEMASK) == BS_AUTORADIOBUTTON;
        if (!radio) continue;
        if (!exchange->m_bSaveAndValidate) {
            kv::Send(*button, BM_SETCHECK, index == value);
        } else if (kv::Send(*button, BM_GETCHECK)) {
            value = index;
        }
        ++index;
    }
}

void DDX_LBString(CDataExchange* exchange, int id, CString& value) {
    if (!exchange->PrepareCtrl(id)) return;
    auto& list = exchange->m_pDlgWnd->Control<CListBox>(id);
    if (!exchange->m_bSaveAndValidate) {
        list.SelectString(-1, value);
        return;
    }
    const int row = list.GetCurSel();
    if (row == LB_ERR) {
        value.Empty();
    } else {
        list.GetText(row, value);
    }
}

void DDX_CBString(CDataExchange* exchange, int id, CString& value) {
    if (!exchange->PrepareEditCtrl(id)) return;
    auto& combo = exchange->m_pDlgWnd->Control<CComboBox>(id);
    if (exchange->m_bSaveAndValidate) {
        combo.GetWindowText(value);
    } else if (combo.SelectString(-1, value) == CB_ERR) {
        combo.SetWindowText(value);
    }
}

void DDX_LBIndex(CDataExchange* exchange, int id, int& value) {
    const HWND control = exchange->PrepareCtrl(id);
    ExchangeNumber(*exchange, control, {LB_GETCURSEL, LB_SETCURSEL}, value);
}

void DDX_CBIndex(CDataExchange* exchange, int id, int& value) {
    const HWND control = exchange->PrepareCtrl(id);
    ExchangeNumber(*exchange, control, {CB_GETCURSEL, CB_SETCURSEL}, value);
}

void DDV_MaxChars(CDataExchange* exchange, const CString& value, int maximum) {
    if (!exchange->m_bSaveAndValidate) {
        exchange->LimitLast(maximum);
    } else if (!exchange->LastIsAbsent() && value.GetLength() > maximum) {
        exchange->Fail("Please enter no more than " + std::to_string(maximum) + " characters.");
    }
}

void DDV_MinMaxInt(CDataExchange* exchange, int value, int minimum, int maximum) {
    if (!exchange->m_bSaveAndValidate || exchange->LastIsAbsent()) return;
    if (value >= minimum && value <= maximum) return;
    exchange->Fail("Please enter an integer between " + std::to_string(minimum) + " and " +
                   std::to_string(maximum) + ".");
}

void DDV_MinMaxDouble(CDataExchange* exchange, const double& value, double minimum,
                      double maximum) {
    if (!exchange->m_bSaveAndValidate || exchange->LastIsAbsent()) return;
    if (value >= minimum && value <= maximum) return;
    exchange->Fail("Please enter a number between " + kv::FormatPrintf("%.15g", minimum) + " and " +
                   kv::FormatPrintf("%.15g", maximum) + ".");
}
