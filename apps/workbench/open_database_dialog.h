#pragma once

#include <QDialog>

#include "frame/kvdbkvn/db_info.h"

class QLineEdit;

namespace workbench {

/// Asks which database to work on.
class OpenDatabaseDialog : public QDialog {
    Q_OBJECT
public:
    explicit OpenDatabaseDialog(const CKvDbInfo& current, QWidget* parent = nullptr);
    CKvDbInfo Info() const;

private:
    void Browse();

    QLineEdit* server_;
    QLineEdit* user_;
    QLineEdit* password_;
};

}  // namespace workbench
