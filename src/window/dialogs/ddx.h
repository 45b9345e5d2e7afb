#pragma once

#include <string>

#include "base/cstring.h"
#include "base/export.h"
#include "window/data_exchange.h"

/// Attach a handle to a control, when it is not yet.
KVGUICTL_API void DDX_Control(CDataExchange* exchange, int id, CWnd& control);

/// Text of a control, and numbers as text. A text that is no number fails the exchange; an empty
/// text is none.
KVGUICTL_API void DDX_Text(CDataExchange* exchange, int id, CString& value);
KVGUICTL_API void DDX_Text(CDataExchange* exchange, int id, std::string& value);
KVGUICTL_API void DDX_Text(CDataExchange* exchange, int id, int& value);
KVGUICTL_API void DDX_Text(CDataExchange* exchange, int id, double& value);

KVGUICTL_API void DDX_Check(CDataExchange* exchange, int id, int& value);
/// Index of the checked button in the group that begins with `id`, -1 for none.
KVGUICTL_API void DDX_Radio(CDataExchange* exchange, int id, int& value);
/// Text of the current row; shown, the row that begins with it becomes current.
KVGUICTL_API void DDX_LBString(CDataExchange* exchange, int id, CString& value);
KVGUICTL_API void DDX_CBString(CDataExchange* exchange, int id, CString& value);
/// Index of the current row.
KVGUICTL_API void DDX_LBIndex(CDataExchange* exchange, int id, int& value);
KVGUICTL_API void DDX_CBIndex(CDataExchange* exchange, int id, int& value);

/// Validations, right behind the exchange of their control. Shown, DDV_MaxChars limits what can be
/// typed.
KVGUICTL_API void DDV_MaxChars(CDataExchange* exchange, const CString& value, int maximum);
KVGUICTL_API void DDV_MinMaxInt(CDataExchange* exchange, int value, int minimum, int maximum);
KVGUICTL_API void DDV_MinMaxDouble(CDataExchange* exchange, const double& value, double minimum,
                                   double maximum);
