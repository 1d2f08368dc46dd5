#include "window/main/SaveDialog.h"

#include "window/main/DesktopDialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace quillet {

namespace {

class SaveDialogTest : public testing::Test {
protected:
    SaveDialogTest() {
        dialogs.setWindow(&window);
        window.show();
        QApplication::processEvents();
    }
    void begin() {
        dialogs.beginSheet({.fileType = "txt",
                            .message = {},
                            .nameFieldLabel = "Export as:",
                            .startingFolder = folder.path(),
                            .suggestedName = "March 1 2024 - March 31 2024"},
                           [this](const std::optional<QString>& path) {
                               ++answers;
                               answer = path;
                           });
        QApplication::processEvents();
    }
    [[nodiscard]] SaveDialog& dialog() const { return *window.findChild<SaveDialog*>(); }
    [[nodiscard]] QLineEdit& field() const {
        return *dialog().findChild<QLineEdit*>("fileNameEdit");
    }
    void keep(const QString& name) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    /// Confirms a name; the answer is given to the question that may come.
    void confirm(const QString& name, QMessageBox::StandardButton toReplace = QMessageBox::No) {
        field().setText(name);
        asked.clear();
        QTimer::singleShot(0, &window, [this, toReplace] {
            if (auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                asked = question->text();
                question->button(toReplace)->click();
            }
        });
        QTest::keyClick(&field(), Qt::Key_Return);
        QApplication::processEvents();
    }

    QTemporaryDir folder;
    QWidget window;
    DesktopDialogs dialogs;
    int answers = 0;
    std::optional<QString> answer;
    QString asked;
};

} // namespace

TEST_F(SaveDialogTest, SuggestsTheNameInTheStartingFolder) {
    begin();
    EXPECT_EQ(field().text(), "March 1 2024 - March 31 2024.txt");
    EXPECT_EQ(dialog().labelText(QFileDialog::FileName), "Export as:");
    EXPECT_EQ(dialog().directory().path(), folder.path());
    confirm(field().text());
    EXPECT_EQ(answer, folder.filePath("March 1 2024 - March 31 2024.txt"));
    EXPECT_EQ(asked, "");
}

TEST_F(SaveDialogTest, EveryNameGetsTheOneType) {
    for (const char* name : {"report", "report.csv", "Bericht 30. November", "report."}) {
        begin();
        confirm(QString::fromLatin1(name));
        EXPECT_EQ(answer, folder.filePath(QString::fromLatin1(name) + ".txt")) << name;
    }
    begin();
    confirm("REPORT.TXT");
    EXPECT_EQ(answer, folder.filePath("REPORT.TXT"));
}

TEST_F(SaveDialogTest, AFileIsReplacedOnlyIfTheUserAgreesWhateverTheTypedName) {
    keep("report.txt");
    keep("Bericht 30. November.txt");
    for (const char* name : {"report", "report.txt", "Bericht 30. November"}) {
        answers = 0;
        begin();
        confirm(QString::fromLatin1(name), QMessageBox::No);
        EXPECT_TRUE(asked.contains("already exists")) << name;
        EXPECT_EQ(answers, 0) << name << ": the dialog stays";
        confirm(QString::fromLatin1(name), QMessageBox::Yes);
        EXPECT_EQ(answers, 1) << name;
        EXPECT_TRUE(answer.value_or("").endsWith(".txt")) << name;
    }
}

TEST_F(SaveDialogTest, ATypedFolderIsEnteredAndNotWrittenTo) {
    ASSERT_TRUE(QDir(folder.path()).mkdir("years"));
    begin();
    confirm(folder.filePath("years"));
    ASSERT_EQ(answers, 0);
    EXPECT_EQ(dialog().directory().path(), folder.filePath("years"));
}

TEST_F(SaveDialogTest, EscapeAnswersWithNoPlace) {
    begin();
    QTest::keyClick(&field(), Qt::Key_Escape);
    QApplication::processEvents();
    EXPECT_EQ(answers, 1);
    EXPECT_FALSE(answer.has_value());
}

} // namespace quillet
