#include "workbench/sample_maker.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QProgressDialog>
#include <QPushButton>
#include <QStandardPaths>

namespace workbench {

namespace {

constexpr const char* kProgram = "sampledata";
/// How many lines the program prints on its way.
constexpr int kSteps = 7;

QString Tr(const char* text) {
    return QCoreApplication::translate("SampleMaker", text);
}

/// Behind the time at which it was begun.
QString StepIn(const QString& line) {
    const auto gap = line.indexOf(QStringLiteral(" s  "));
    return gap < 0 ? line : line.mid(gap + 4);
}

/// What a maker leaves behind that was ended on its way.
void RemoveUnfinished(const QString& path, qint64 id) {
    for (const char* ending : {"", "-journal", "-wal", "-shm"})
        QFile::remove(QStringLiteral("%1.%2.part%3").arg(path).arg(id).arg(QLatin1String(ending)));
}

}  // namespace

std::optional<QString> MissingSample(const CKvDbInfo& info) {
    if (!info.GetServer().empty() || !qEnvironmentVariableIsEmpty("KVGUICTL_DB")) return {};
    const QString path = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                         QStringLiteral("/kvguictl/sample.db");
    if (QFileInfo::exists(path)) return {};
    return path;
}

QString SampleProgram() {
    const QFileInfo program(QDir(QCoreApplication::applicationDirPath()),
                            QString::fromLatin1(kProgram));
    return program.isExecutable() ? program.absoluteFilePath() : QString();
}

bool AskForSample(const QString& path, QWidget* parent) {
    QMessageBox box(QMessageBox::Information, Tr("Workbench"),
                    Tr("There is no sample database yet."), QMessageBox::NoButton, parent);
    box.setInformativeText(Tr("This command makes it, which takes less than a minute:\n\n"
                              "sampledata sqlite:%1")
                               .arg(path));
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QPushButton* make = nullptr;
    if (!SampleProgram().isEmpty()) {
        make = box.addButton(Tr("&Make it now"), QMessageBox::AcceptRole);
        box.addButton(Tr("&Not now"), QMessageBox::RejectRole);
    } else {
        box.addButton(QMessageBox::Ok);
    }
    box.exec();
    return make && box.clickedButton() == make;
}

bool MakeSample(const QString& program, const QString& path, QWidget* parent, QString& failure) {
    failure.clear();
    if (!QDir().mkpath(QFileInfo(path).path())) {
        failure = Tr("The folder of %1 cannot be made.").arg(path);
        return false;
    }
    QProgressDialog progress(Tr("Making the sample database"), Tr("Cancel"), 0, kSteps, parent);
    progress.setWindowTitle(Tr("Workbench"));
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(0);
    progress.setAutoClose(false);
    progress.setAutoReset(false);
    progress.setValue(0);

    QProcess maker;
    QString last;
    int steps = 0;
    QEventLoop loop;
    QObject::connect(&maker, &QProcess::readyReadStandardError, &loop, [&] {
        while (maker.canReadLine() || maker.bytesAvailable() > 0) {
            last = StepIn(QString::fromUtf8(maker.readLine()).trimmed());
            progress.setLabelText(Tr("Making the sample database: %1").arg(last));
            progress.setValue(qMin(++steps, kSteps - 1));
        }
    });
    QObject::connect(&maker, &QProcess::finished, &loop, &QEventLoop::quit);
    QObject::connect(&maker, &QProcess::errorOccurred, &loop, &QEventLoop::quit);
    QObject::connect(&progress, &QProgressDialog::canceled, &maker, &QProcess::terminate);
    maker.setReadChannel(QProcess::StandardError);
    maker.start(program, {QStringLiteral("sqlite:") + path});
    const qint64 id = maker.processId();
    if (maker.state() != QProcess::NotRunning) loop.exec();

    if (progress.wasCanceled()) {
        maker.waitForFinished();
        RemoveUnfinished(path, id);
        return false;
    }
    const bool made = maker.error() == QProcess::UnknownError &&
                      maker.exitStatus() == QProcess::NormalExit && maker.exitCode() == 0;
    if (!made) {
        failure = Tr("The sample database could not be made.") + u'\n' +
                  (last.isEmpty() ? maker.errorString() : last);
    }
    return made;
}

}  // namespace workbench
