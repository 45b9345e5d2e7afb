#pragma once

#include <QString>
#include <optional>

#include "frame/kvdbkvn/db_info.h"

class QWidget;

namespace workbench {

/// Where the sample database belongs, if it is the one that this record means and it is not there.
std::optional<QString> MissingSample(const CKvDbInfo& info);

/// The program that makes it, beside this one; an empty text where there is none.
QString SampleProgram();

/// Tells that it is missing and what to run, and asks whether to run it now. True for yes.
bool AskForSample(const QString& path, QWidget* parent);

/// Runs `program` to make it, and shows how far it is. False with the reason in `failure`, which is
/// empty where the user cancelled.
bool MakeSample(const QString& program, const QString& path, QWidget* parent, QString& failure);

}  // namespace workbench
