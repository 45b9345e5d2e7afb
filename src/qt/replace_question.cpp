#include "qt/replace_question.h"

#include <QFile>
#include <QFileDialog>
#include <QMessageBox>

#include "base/paths.h"
#include "qt/drawing/text.h"

namespace kv::qt {

bool MayReplace(QFileDialog& dialog, const QString& path) {
    const std::string bytes = ToBytes(path);
    if (QFile::exists(path) || !Exists(bytes)) return true;
    const QString there = ToQString(NameOf(ToNative(bytes)));
    return QMessageBox::warning(
               &dialog, dialog.windowTitle(),
               QFileDialog::tr("%1 already exists.\nDo you want to replace it?").arg(there),
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

}  // namespace kv::qt
