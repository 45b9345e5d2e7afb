#pragma once

#include <string>
#include <vector>

#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/db_info.h"

namespace workbench {

/// The current dataset's table of that suffix, such as "_lbi", with its owner ahead.
std::string TableName(const std::string& suffix);

/// The text as an SQL literal.
std::string Quoted(const std::string& text);

/// The user, password and server of connections that are made now.
CKvDbInfo LoginInForce();

/// A connection that is given back at the end, whatever happens, and the rows of one statement.
class Rows {
public:
    /// Throws CKvException.
    explicit Rows(const std::string& statement);
    ~Rows();
    Rows(const Rows&) = delete;
    Rows& operator=(const Rows&) = delete;

    int Count() const { return manager_.NumberOfRows(); }
    const char* Cell(int row, int column) const { return manager_.GetItem(row, column); }
    double Number(int row, int column) const;

private:
    CKvDbAbsDataMgr manager_{KV_CONNECT_DEFAULT};
};

}  // namespace workbench
