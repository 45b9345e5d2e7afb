#include "workbench/pictures.h"

#include <QImage>

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

TEST_F(WorkbenchPictures, AreTakenOfModelessTools) {
    Open();
    EXPECT_FALSE(PictureOf("CKvCoordDialog").isNull());
}

}  // namespace

}  // namespace workbench
