#include "workbench/dataset.h"

#include "base/numbers.h"
#include "frame/kvcom/misc.h"
#include "frame/kvdbkvn/db_dataset_set.h"
#include "frame/kvdbkvn/sql_literal.h"

namespace workbench {

std::string TableName(const std::string& suffix) {
    return CKvDbDatasetSet::S_GetGlobalOwner() + "." + CKvDbDatasetSet::S_GetGlobalDataset() +
           suffix;
}

std::string Quoted(const std::string& text) {
    return kv::db::SqlLiteral(text);
}

CKvDbInfo LoginInForce() {
    std::string user, password, server;
    CKvMisc::GetParsedConnectString(user, password, server, true);
    return {user.c_str(), password.c_str(), server.c_str()};
}

Rows::Rows(const std::string& statement) {
    manager_.Connect();
    manager_.Select(statement);
}

Rows::~Rows() {
    manager_.FreeData();
    manager_.Disconnect();
}

double Rows::Number(int row, int column) const {
    return kv::Atof(Cell(row, column));
}

}  // namespace workbench
