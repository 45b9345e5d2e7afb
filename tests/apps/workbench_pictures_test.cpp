#include "workbench/pictures.h"

#include <QApplication>
#include <QImage>
#include <cstdlib>

#include "workbench_window_fixture.h"

namespace workbench {

namespace {

class WorkbenchPictures : public WorkbenchTest {
protected:
    QImage PictureOf(const std::string& className) {
        EXPECT_TRUE(SaveDialog(*host, *adaptors::Find(className), folder.Native("")));
        return QImage(QString::fromStdString(folder.Native(className + ".png")));
    }
};

TEST_F(WorkbenchPictures, AreTakenOfADialogThatTellsSomethingWhileItOpens) {
    Open();
    // Here is no printer.
    const QImage picture = PictureOf("CKvGuiPrintControl");
    EXPECT_GT(picture.width(), 300);
    EXPECT_GT(picture.height(), 300);
}

TEST_F(WorkbenchPictures, ShowWhatHasTheFocus) {
    Open();
    const QImage picture = PictureOf("CKvGuiSearchReplaceDlg");
    // Its first field, at the top; the default button stands at the bottom.
    const QColor mark = QApplication::palette().color(QPalette::Highlight);
    int marked = 0;
    for (int x = 0; x < picture.width(); ++x) {
        for (int y = 0; y < picture.height() / 3; ++y) {
            const QColor at = picture.pixelColor(x, y);
            const bool colored = at.saturation() > mark.saturation() / 2;
            marked += colored && std::abs(at.hue() - mark.hue()) < 15;
        }
    }
    EXPECT_GT(marked, 20);
}

TEST_F(WorkbenchPictures, AreTakenOfModelessTools) {
    Open();
    EXPECT_FALSE(PictureOf("CKvCoordDialog").isNull());
}

}  // namespace

}  // namespace workbench
