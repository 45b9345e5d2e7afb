#pragma once

#include <functional>
#include <string>

#include "frame/kvdbkvn/db_abs_data_mgr.h"

namespace test {

/// The words of the `CKvException` that the action ends with; "" when it ends well.
inline std::string FailureOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const CKvException& failure) {
        return failure.GetErrorMessage(true, true);
    }
    return "";
}

inline void ConnectTo(CKvDbInfo info) {
    CKvDbAbsDataMgr(1).SetDbInfo(info);
}

/// What a manager holds: cells separated by "|", rows by blanks.
inline std::string RowsOf(const CKvDbAbsDataMgr& manager, int columns) {
    std::string text;
    for (int row = 0; row < manager.NumberOfRows(); ++row) {
        if (row > 0) text += ' ';
        for (int column = 0; column < columns; ++column) {
            if (column > 0) text += '|';
            text += manager.GetItem(row, column);
        }
    }
    return text;
}

}  // namespace test
