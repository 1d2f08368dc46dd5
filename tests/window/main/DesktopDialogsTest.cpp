#include "window/main/DesktopDialogs.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace quillet {

namespace {

const Alert question{.style = AlertStyle::Warning,
                     .messageText = QStringLiteral("Delete the record?"),
                     .informativeText = QStringLiteral("Deleted records cannot be restored."),
                     .buttonTitles = {QStringLiteral("OK"), QStringLiteral("Cancel")}};

/// Answers the alert with a key as soon as it stands, and tells what it looked like.
struct Seen {
    QString text;
    QString informativeText;
    QString defaultButton;
    QWidget* parent = nullptr;
    bool areTextsPlain = true;
};

int answered(DesktopDialogs& dialogs, Qt::Key key, Seen& seen) {
    QTimer::singleShot(0, [&seen, key] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        seen = {box->text(), box->informativeText(), box->defaultButton()->text(),
                box->parentWidget()};
        for (const auto* label : box->findChildren<QLabel*>()) {
            seen.areTextsPlain = seen.areTextsPlain && label->textFormat() == Qt::PlainText;
        }
        QTest::keyClick(box, key);
    });
    return dialogs.runModal(question);
}

} // namespace

TEST(DesktopDialogsTest, TheFirstButtonOfAnAlertIsWhatReturnPresses) {
    DesktopDialogs dialogs;
    QWidget window;
    dialogs.setWindow(&window);
    Seen seen;
    EXPECT_EQ(answered(dialogs, Qt::Key_Return, seen), 0);
    EXPECT_EQ(seen.text, QStringLiteral("Delete the record?"));
    EXPECT_EQ(seen.informativeText, QStringLiteral("Deleted records cannot be restored."));
    EXPECT_EQ(seen.defaultButton.remove(u'&'), QStringLiteral("OK"));
    EXPECT_EQ(seen.parent, &window);
    EXPECT_TRUE(seen.areTextsPlain);
}

TEST(DesktopDialogsTest, ClosingAnAlertCountsAsItsLastButton) {
    DesktopDialogs dialogs;
    Seen seen;
    EXPECT_EQ(answered(dialogs, Qt::Key_Escape, seen), 1);
}

TEST(DesktopDialogsTest, AnAlertStandsOverTheSheetThatIsOpen) {
    DesktopDialogs dialogs;
    QWidget window;
    dialogs.setWindow(&window);
    QDialog sheet(&window);
    sheet.open();
    Seen seen;
    EXPECT_EQ(answered(dialogs, Qt::Key_Return, seen), 0);
    EXPECT_EQ(seen.parent, &sheet);
}

} // namespace quillet
