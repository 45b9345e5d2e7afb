#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

#include "support/temp_folder.h"
#include "workbench/sample_maker.h"
#include "workbench_window_fixture.h"

namespace workbench {
namespace {

using testing::HasSubstr;

/// A user who has no sample database yet.
class MissingSampleTest : public WorkbenchTest {
protected:
    MissingSampleTest() {
        qputenv("XDG_DATA_HOME", QByteArray::fromStdString(folder.Native("data")));
        qunsetenv("KVGUICTL_DB");
    }
    ~MissingSampleTest() override { qputenv("XDG_DATA_HOME", before_); }

    QString Path() const {
        return QString::fromStdString(folder.Native("data/kvguictl/sample.db"));
    }
    /// A program that stands in for the one that makes it.
    QString Program(const char* script) {
        const QString path = QString::fromStdString(folder.Native("maker"));
        folder.Write("maker", std::string("#!/bin/sh\n") + script);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path;
    }

private:
    QByteArray before_ = qgetenv("XDG_DATA_HOME");
};

TEST_F(MissingSampleTest, IsTheUsersOwnUnlessAnotherDatabaseIsMeant) {
    ASSERT_TRUE(MissingSample({}));
    EXPECT_EQ(*MissingSample({}), Path());
    EXPECT_FALSE(MissingSample({"", "", "sqlite:elsewhere.db"}));
    qputenv("KVGUICTL_DB", "sqlite:elsewhere.db");
    EXPECT_FALSE(MissingSample({}));
    qunsetenv("KVGUICTL_DB");
    QDir().mkpath(QFileInfo(Path()).path());
    QFile file(Path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_FALSE(MissingSample({}));
}

TEST_F(MissingSampleTest, IsToldWithTheCommandThatMakesIt) {
    std::string text;
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        text = (box->text() + u'\n' + box->informativeText()).toStdString();
        for (QAbstractButton* button : box->buttons()) {
            if (box->buttonRole(button) == QMessageBox::AcceptRole) button->click();
        }
    });
    ASSERT_FALSE(SampleProgram().isEmpty());
    EXPECT_TRUE(AskForSample(Path(), nullptr));
    EXPECT_THAT(text, HasSubstr("There is no sample database yet."));
    EXPECT_THAT(text, HasSubstr("sampledata sqlite:" + Path().toStdString()));
}

TEST_F(MissingSampleTest, IsSaidWithoutABoxWhereNobodyIsThere) {
    host = std::make_unique<Workbench>(CKvDbInfo());
    host->SetFailureShown(
        [this](const QString& message) { failures.push_back(message.toStdString()); });
    QSignalSpy painted(host.get(), &Workbench::FirstPainted);
    host->Show();
    while (painted.isEmpty())
        QApplication::processEvents();
    EXPECT_THAT(failures, testing::ElementsAre(HasSubstr(Path().toStdString())));
}

TEST_F(MissingSampleTest, IsMadeWithItsFolderWhileTheStepsAreShown) {
    QStringList steps;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        const auto* box = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
        if (box && (steps.isEmpty() || steps.last() != box->labelText())) steps << box->labelText();
    });
    watch.start(1);
    QString failure;
    EXPECT_TRUE(MakeSample(Program("echo '   0.1 s  blocks' >&2; sleep 0.2\n"
                                   "echo made > \"${1#sqlite:}\"\n"),
                           Path(), nullptr, failure));
    EXPECT_EQ(failure.toStdString(), "");
    EXPECT_TRUE(QFile::exists(Path()));
    EXPECT_TRUE(steps.contains(QStringLiteral("Making the sample database: blocks")));
}

TEST_F(MissingSampleTest, AFailureIsToldInTheProgramsWords) {
    QString failure;
    EXPECT_FALSE(MakeSample(Program("echo 'sampledata: the disk is full' >&2; exit 1\n"), Path(),
                            nullptr, failure));
    EXPECT_EQ(failure.toStdString(),
              "The sample database could not be made.\nsampledata: the disk is full");
    EXPECT_FALSE(MakeSample(QStringLiteral("/no/such/program"), Path(), nullptr, failure));
    EXPECT_THAT(failure.toStdString(), HasSubstr("could not be made."));
}

TEST_F(MissingSampleTest, ACancelEndsItAndLeavesNothing) {
    QTimer cancel;
    QObject::connect(&cancel, &QTimer::timeout, [&] {
        auto* box = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
        if (box && box->labelText().endsWith(QStringLiteral("blocks"))) box->cancel();
    });
    cancel.start(1);
    QString failure = QStringLiteral("old");
    EXPECT_FALSE(MakeSample(Program("touch \"${1#sqlite:}.$$.part\"\n"
                                    "echo '   0.1 s  blocks' >&2; exec sleep 30\n"),
                            Path(), nullptr, failure));
    EXPECT_EQ(failure.toStdString(), "");
    EXPECT_TRUE(QDir(QFileInfo(Path()).path()).isEmpty());
}

}  // namespace
}  // namespace workbench
