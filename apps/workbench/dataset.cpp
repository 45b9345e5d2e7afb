#include "workbench/dataset.h"

#include "frame/db_dataset_set.h"
#include "window/numbers.h"
#include "window/text.h"

namespace workbench {

std::string TableName(const std::string& suffix) {
    return CKvDbDatasetSet::S_GetGlobalOwner() + "." + CKvDbDatasetSet::S_GetGlobalDataset() +
           suffix;
}

std::string Quoted(const std::string& text) {
    return "'" + kv::ReplaceAll(text, "'", "''") + "'";
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
