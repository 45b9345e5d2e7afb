#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>

#include "qt/platform_dialogs.h"
#include "qt_fixture.h"
#include "support/temp_folder.h"
#include "window/dialogs/file_dialog.h"
#include "window/dialogs/print_dialog.h"

namespace {

constexpr int kA3 = 8;

class FileDialogs : public test::QtDialogTest {
protected:
    FileDialogs() {
        folder_.Write("wells.txt", "1");
        folder_.Write("blocks.csv", "2");
        initial_ = folder_.Dialog();
    }

    void Prepare(CFileDialog& box) { box.m_ofn.lpstrInitialDir = initial_.c_str(); }
    static QFileDialog* Box() {
        return qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    }
    /// Types a name into the open file dialog and presses Enter.
    static void EnterName(const QString& name) {
        ASSERT_NE(Box(), nullptr);
        auto* edit = Box()->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        ASSERT_NE(edit, nullptr);
        edit->setFocus();
        edit->clear();
        QTest::keyClicks(edit, name);
        QTest::keyClick(edit, Qt::Key_Return);
    }
    static void Answer(QMessageBox::StandardButton button) {
        Then([button] {
            auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(question, nullptr);
            QTest::mouseClick(question->button(button), Qt::LeftButton);
        });
    }

    test::TempFolder folder_;
    std::string initial_;
};

TEST_F(FileDialogs, AnOpenedFileComesInTheDialogsForm) {
    CFileDialog open(TRUE, "txt", nullptr, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST,
                     "Text Files (*.txt)|*.txt|Tables|*.csv;*.tab|All Files (*.*)|*.*|Others");
    open.m_ofn.lpstrTitle = "Open wells";
    Prepare(open);
    Then([] {
        ASSERT_NE(Box(), nullptr);
        EXPECT_EQ(Box()->windowTitle(), "Open wells");
        EXPECT_EQ(Box()->acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(Box()->nameFilters(), (QStringList{"Text Files (*.txt)", "Tables (*.csv *.tab)",
                                                     "All Files (*)", "Others (*)"}));
        EnterName("wells.txt");
    });
    EXPECT_EQ(open.DoModal(), IDOK);
    EXPECT_EQ(open.GetPathName().str(), folder_.Dialog("wells.txt"));
    EXPECT_EQ(open.GetFileTitle().str(), "wells");
}

TEST_F(FileDialogs, EscapeCancels) {
    CFileDialog open(TRUE, nullptr, "before.txt");
    Prepare(open);
    Then([] { QTest::keyClick(Box(), Qt::Key_Escape); });
    EXPECT_EQ(open.DoModal(), IDCANCEL);
    EXPECT_EQ(open.GetPathName().str(), "before.txt");
}

TEST_F(FileDialogs, ANewNameGetsTheDefaultExtension) {
    CFileDialog save(FALSE, "txt", "proposed.txt");
    Prepare(save);
    Then([] {
        auto* edit = Box()->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        EXPECT_EQ(edit->text(), "proposed.txt");
        EXPECT_EQ(Box()->acceptMode(), QFileDialog::AcceptSave);
        EnterName("picked");
    });
    EXPECT_EQ(save.DoModal(), IDOK);
    EXPECT_EQ(save.GetPathName().str(), folder_.Dialog("picked.txt"));
}

TEST_F(FileDialogs, SavingOverAFileAsksFirst) {
    CFileDialog save(FALSE, "txt");
    Prepare(save);
    Then([] {
        Answer(QMessageBox::No);
        EnterName("wells.txt");
        ASSERT_NE(Box(), nullptr) << "it is still open";
        Answer(QMessageBox::Yes);
        EnterName("wells.txt");
    });
    EXPECT_EQ(save.DoModal(), IDOK);
    EXPECT_EQ(save.GetPathName().str(), folder_.Dialog("wells.txt"));
}

TEST_F(FileDialogs, SavingOverAFileWhoseNameDiffersInCaseAloneAsksFirst) {
    CFileDialog save(FALSE, "txt");
    Prepare(save);
    Then([] {
        EnterName("WELLS.txt");
        Then([] {
            auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(question, nullptr);
            EXPECT_THAT(question->text().toStdString(), testing::HasSubstr("wells.txt already"));
            QTest::mouseClick(question->button(QMessageBox::No), Qt::LeftButton);
            Then([] {
                ASSERT_NE(Box(), nullptr) << "it is open again";
                EnterName("new.txt");
            });
        });
    });
    EXPECT_EQ(save.DoModal(), IDOK);
    EXPECT_EQ(save.GetPathName().str(), folder_.Dialog("new.txt"));
    CFileDialog silent(FALSE, "txt", nullptr, 0);
    Prepare(silent);
    Then([] { EnterName("WELLS.txt"); });
    EXPECT_EQ(silent.DoModal(), IDOK) << "who does not want the question is not asked";
}

TEST_F(FileDialogs, OpenOverTheWindowThatAskedForThem) {
    Show({{11, kv::ControlKind::kEdit, "", {7, 7, 80, 12}}});
    CFileDialog open(TRUE, nullptr, nullptr, 0, nullptr, &dialog);
    Prepare(open);
    Then([this] {
        EXPECT_EQ(Box()->parentWidget(), Window());
        Box()->reject();
    });
    EXPECT_EQ(open.DoModal(), IDCANCEL);
    EXPECT_TRUE(dialog.IsWindowEnabled());
    Type("x");
    EXPECT_EQ(Text(11), "x");
}

class PrintSetup : public test::QtDialogTest {
protected:
    static QPageSetupDialog* Box() {
        return qobject_cast<QPageSetupDialog*>(QApplication::activeModalWidget());
    }
    static void Choose(int paper, bool landscape) {
        auto* papers = Box()->findChild<QComboBox*>(QStringLiteral("pageSizeCombo"));
        ASSERT_NE(papers, nullptr);
        const QString name = QPageSize::name(QPageSize::id(paper));
        ASSERT_GE(papers->findText(name), 0) << name.toStdString();
        papers->setFocus();
        while (papers->currentText() != name) {
            const int before = papers->currentIndex();
            QTest::keyClick(papers, papers->findText(name) > before ? Qt::Key_Down : Qt::Key_Up);
            ASSERT_NE(papers->currentIndex(), before);
        }
        const QString side = landscape ? QStringLiteral("landscape") : QStringLiteral("portrait");
        auto* button = Box()->findChild<QRadioButton*>(side);
        ASSERT_NE(button, nullptr);
        button->click();
    }
    static void Press(QDialogButtonBox::StandardButton which) {
        auto* buttons = Box()->findChild<QDialogButtonBox*>();
        QTest::mouseClick(buttons->button(which), Qt::LeftButton);
    }
};

TEST_F(PrintSetup, TakesPaperAndOrientation) {
    CPrintDialog setup(TRUE);
    Then([] {
        ASSERT_NE(Box(), nullptr);
        Choose(kA3, true);
        Press(QDialogButtonBox::Ok);
    });
    EXPECT_EQ(setup.DoModal(), IDOK);
    ASSERT_NE(setup.GetDevMode(), nullptr);
    EXPECT_EQ(setup.GetDevMode()->dmPaperSize, kA3);
    EXPECT_EQ(setup.GetDevMode()->dmOrientation, DMORIENT_LANDSCAPE);
    EXPECT_EQ(setup.GetDevMode()->dmPaperWidth, 2970);
    EXPECT_EQ(setup.GetDevMode()->dmPaperLength, 4200);
    ASSERT_TRUE(kv::CurrentPrinter().has_value());
    EXPECT_EQ(kv::CurrentPrinter()->paper, kA3);
}

TEST_F(PrintSetup, OpensWithWhatWasChosenBefore) {
    CPrintDialog first(TRUE);
    Then([] {
        Choose(kA3, true);
        Press(QDialogButtonBox::Ok);
    });
    ASSERT_EQ(first.DoModal(), IDOK);
    CPrintDialog second(TRUE);
    Then([] {
        EXPECT_EQ(Box()->findChild<QComboBox*>(QStringLiteral("pageSizeCombo"))->currentText(),
                  QPageSize::name(QPageSize::A3));
        EXPECT_TRUE(Box()->findChild<QRadioButton*>(QStringLiteral("landscape"))->isChecked());
        Choose(1, false);
        Press(QDialogButtonBox::Cancel);
    });
    EXPECT_EQ(second.DoModal(), IDCANCEL);
    EXPECT_EQ(second.GetDevMode(), nullptr);
    EXPECT_EQ(kv::CurrentPrinter()->paper, kA3);
}

TEST_F(PrintSetup, LetsThePrinterBeChosen) {
    kv::PrinterSettings settings;
    settings.device = "Office";
    const auto printers = [] { return Box()->findChild<QComboBox*>(QStringLiteral("printers")); };
    Then([&] {
        ASSERT_NE(printers(), nullptr);
        EXPECT_EQ(printers()->currentText(), "Office");
        // It opens anew with the other printer.
        Then([&] {
            EXPECT_EQ(printers()->currentText(), "Plotter");
            Choose(kA3, false);
            Press(QDialogButtonBox::Ok);
        });
        printers()->setFocus();
        QTest::keyClick(printers(), Qt::Key_Down);
    });
    EXPECT_EQ(kv::qt::ShowPrintSetup(settings, {"Office", "Plotter"}), IDOK);
    EXPECT_EQ(settings.device, "Plotter");
    EXPECT_EQ(settings.paper, kA3);
}

TEST_F(PrintSetup, ACancelledOneKeepsThePrinter) {
    kv::PrinterSettings settings;
    settings.device = "Office";
    Then([] {
        Then([] { Box()->reject(); });
        auto* printers = Box()->findChild<QComboBox*>(QStringLiteral("printers"));
        QTest::keyClick(printers, Qt::Key_Down);
    });
    EXPECT_EQ(kv::qt::ShowPrintSetup(settings, {"Office", "Plotter"}), IDCANCEL);
    EXPECT_EQ(settings.device, "Office");
}

TEST_F(PrintSetup, TheDefaultPrinterIsTheMachines) {
    kv::PrinterSettings settings;
    const QString machines = kv::qt::PrinterToUse(QPrinterInfo::defaultPrinterName(),
                                                  QPrinterInfo::availablePrinterNames());
    EXPECT_EQ(desktop.DefaultPrinter(settings), !machines.isEmpty());
    EXPECT_EQ(settings.device, machines.toStdString());
    EXPECT_EQ(desktop.HasPrinter(settings.device), !machines.isEmpty());
    EXPECT_FALSE(desktop.HasPrinter("no such printer"));
}

TEST_F(PrintSetup, WithoutADefaultPrinterItIsTheFirst) {
    EXPECT_EQ(kv::qt::PrinterToUse("Office", {"Plotter", "Office"}), "Office");
    EXPECT_EQ(kv::qt::PrinterToUse("", {"Plotter", "Office"}), "Plotter");
    EXPECT_EQ(kv::qt::PrinterToUse("", {}), "");
}

TEST_F(PrintSetup, EveryPaperHasItsName) {
    const auto formOf = [](QPageSize::PageSizeId id) {
        kv::PrinterSettings settings;
        settings.paper = 0;
        const QSizeF size = QPageSize::size(id, QPageSize::Millimeter) * 10;
        settings.widthTenthMm = qRound(size.width());
        settings.heightTenthMm = qRound(size.height());
        Then([] { Press(QDialogButtonBox::Ok); });
        EXPECT_EQ(kv::qt::ShowPrintSetup(settings, {}), IDOK);
        return settings.form;
    };
    for (const auto id : {QPageSize::A0, QPageSize::ArchE, QPageSize::A4})
        EXPECT_EQ(formOf(id), QPageSize::name(id).toStdString());
}

/// A yard of a roll.
kv::PrinterSettings Roll() {
    kv::PrinterSettings settings;
    settings.paper = 256;
    settings.widthTenthMm = 9144;
    settings.heightTenthMm = 15000;
    settings.form = "Roll 36 in";
    return settings;
}

TEST_F(PrintSetup, APaperOffARollStaysWhatItIs) {
    kv::PrinterSettings settings = Roll();
    Then([] {
        EXPECT_EQ(Box()->findChild<QComboBox*>(QStringLiteral("pageSizeCombo"))->currentText(),
                  "Roll 36 in");
        Box()->findChild<QRadioButton*>(QStringLiteral("landscape"))->click();
        Press(QDialogButtonBox::Ok);
    });
    EXPECT_EQ(kv::qt::ShowPrintSetup(settings, {}), IDOK);
    EXPECT_EQ(settings.widthTenthMm, 9144);
    EXPECT_EQ(settings.heightTenthMm, 15000);
    EXPECT_EQ(settings.form, "Roll 36 in");
    EXPECT_EQ(settings.paper, 256);
    EXPECT_TRUE(settings.landscape);
}

TEST_F(PrintSetup, APaperOffARollCanBeChangedForAnother) {
    kv::PrinterSettings settings = Roll();
    Then([] {
        Choose(kA3, false);
        Press(QDialogButtonBox::Ok);
    });
    EXPECT_EQ(kv::qt::ShowPrintSetup(settings, {}), IDOK);
    EXPECT_EQ(settings.paper, kA3);
    EXPECT_EQ(settings.widthTenthMm, 2970);
    EXPECT_EQ(settings.form, "A3");
}

TEST_F(PrintSetup, APaperOffARollIsKeptWithAnotherPrinter) {
    kv::PrinterSettings settings = Roll();
    settings.device = "Office";
    Then([] {
        Then([] { Press(QDialogButtonBox::Ok); });
        auto* printers = Box()->findChild<QComboBox*>(QStringLiteral("printers"));
        printers->setFocus();
        QTest::keyClick(printers, Qt::Key_Down);
    });
    EXPECT_EQ(kv::qt::ShowPrintSetup(settings, {"Office", "Plotter"}), IDOK);
    EXPECT_EQ(settings.device, "Plotter");
    EXPECT_EQ(settings.form, "Roll 36 in");
}

}  // namespace
