#include "workbench/recording/dialog_recorder.h"

#include <QDir>
#include <utility>

#include "recording/recorded_run.h"

namespace workbench {

void DialogRecorder::Begin(const QString& folder) {
    folder_ = folder;
    count_ = 0;
}

int DialogRecorder::End() {
    folder_.clear();
    return count_;
}

/// The names tell the order, and the class that plays the script.
QString DialogRecorder::Run(const adaptors::Adaptor& adaptor, adaptors::Run& run) {
    if (!Records()) {
        adaptor.run(run);
        return {};
    }
    const QDir folder(folder_);
    QString name;
    do {
        name = QStringLiteral("%1-%2.json")
                   .arg(++count_, 3, 10, QLatin1Char('0'))
                   .arg(QString::fromStdString(adaptor.className));
    } while (folder.exists(name));
    const QString path = folder.filePath(name);
    const bool written = recording::RunRecorded(adaptor, run, path.toStdString());
    return written ? QString() : path;
}

}  // namespace workbench
