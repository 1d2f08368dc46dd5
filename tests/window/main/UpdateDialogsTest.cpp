#include "window/main/UpdateDialogs.h"
#include "backends/icu/IcuLocaleFormats.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace quillet {

namespace {

class UpdateDialogsTest : public testing::Test {
protected:
    UpdateDialogsTest() {
        window.show();
        dialogs.setWindow(&window);
    }

    static void deleteClosed() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    template <typename Dialog>
    static Dialog* shown() {
        return qobject_cast<Dialog*>(QApplication::activeModalWidget());
    }
    static void press(QWidget& dialog, const QString& text) {
        for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
            if (button->text().remove(u'&') == text) {
                button->click();
                deleteClosed();
                return;
            }
        }
        ADD_FAILURE() << "no button " << text.toStdString();
    }

    IcuLocaleFormats formats{{"en_US", "en_US", "en_US"}, "UTC"};
    QWidget window;
    UpdateDialogs dialogs{formats};
};

const std::vector<ReleaseNews> twoReleases{{"0.3", QDate(2027, 2, 1), "<b>Groups</b> of calendars"},
                                           {"0.2", QDate(), ""}};

} // namespace

TEST_F(UpdateDialogsTest, ALongSearchIsShownAndCanBeCancelled) {
    int cancelled = 0;
    dialogs.showSearch([&] { ++cancelled; });
    EXPECT_EQ(shown<QProgressDialog>(), nullptr) << "flashes up for a short search";
    ASSERT_TRUE(QTest::qWaitFor([] { return shown<QProgressDialog>() != nullptr; }));
    EXPECT_EQ(shown<QProgressDialog>()->labelText(), QStringLiteral("Looking for newer versions…"));
    EXPECT_EQ(shown<QProgressDialog>()->windowModality(), Qt::WindowModal);
    press(*shown<QProgressDialog>(), "Cancel");
    EXPECT_EQ(cancelled, 1);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(UpdateDialogsTest, TheAnswerTakesThePlaceOfTheSearch) {
    bool isCancelled = false;
    dialogs.showSearch([&] { isCancelled = true; });
    ASSERT_TRUE(QTest::qWaitFor([] { return shown<QProgressDialog>() != nullptr; }));
    dialogs.showUpToDate("0.1");
    deleteClosed();
    EXPECT_FALSE(isCancelled);
    EXPECT_TRUE(window.findChildren<QProgressDialog*>().isEmpty());
    auto* box = shown<QMessageBox>();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text(), QStringLiteral("Quillet is up to date"));
    EXPECT_EQ(box->informativeText(), QStringLiteral("Version 0.1 is the newest one."));
    press(*box, "OK");
}

TEST_F(UpdateDialogsTest, AFailureIsOneSentence) {
    dialogs.showFailure("The list of <i>versions</i> is away.");
    auto* box = shown<QMessageBox>();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text(),
              QStringLiteral("Whether there is a newer version could not be found out"));
    EXPECT_EQ(box->informativeText(), QStringLiteral("The list of <i>versions</i> is away."));
    for (const auto* label : box->findChildren<QLabel*>()) {
        EXPECT_TRUE(label->textFormat() == Qt::PlainText) << label->text().toStdString();
    }
    press(*box, "OK");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(UpdateDialogsTest, TheNewsAreReadAsPlainText) {
    dialogs.showNews("0.1", twoReleases, [] { return true; });
    auto* dialog = shown<QDialog>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->findChild<QLabel*>()->text(),
              QStringLiteral("Quillet 0.3 is available; you have version 0.1. Your system's "
                             "software centre installs it."));
    auto* notes = dialog->findChild<QPlainTextEdit*>();
    EXPECT_EQ(notes->toPlainText(), QStringLiteral("0.3 · February 1, 2027\n\n<b>Groups</b> of "
                                                   "calendars\n\n\n0.2"));
    EXPECT_TRUE(notes->isReadOnly());
    press(*dialog, "Later");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(UpdateDialogsTest, OpensTheSoftwareCentre) {
    int opened = 0;
    dialogs.showNews("0.1", twoReleases, [&] { return ++opened > 0; });
    press(*shown<QDialog>(), "Open Software Centre");
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(UpdateDialogsTest, SaysWhenThereIsNoSoftwareCentre) {
    dialogs.showNews("0.1", twoReleases, [] { return false; });
    press(*shown<QDialog>(), "Open Software Centre");
    auto* box = shown<QMessageBox>();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text(), QStringLiteral("No software centre was found"));
    EXPECT_EQ(
        box->informativeText(),
        QStringLiteral("Install the newer version in the way in which you installed Quillet."));
    press(*box, "OK");
}

} // namespace quillet
