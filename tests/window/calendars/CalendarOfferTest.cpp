#include "window/calendars/CalendarOffer.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSysInfo>
#include <QTest>

#include <gtest/gtest.h>

namespace quillet {

namespace {

class CalendarOfferTest : public testing::Test {
protected:
    CalendarOfferTest() { window.show(); }

    static QMessageBox* shownBox() {
        return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    }
    /// The text of the question or message that comes up; empty when none does.
    static QString waitForBox() {
        return QTest::qWaitFor([] { return shownBox() != nullptr; }) ? shownBox()->text()
                                                                     : QString();
    }
    static void press(const QString& text) {
        QMessageBox* box = shownBox();
        ASSERT_NE(box, nullptr);
        for (QAbstractButton* button : box->buttons()) {
            if (button->text().remove(u'&') == text) {
                button->click();
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                return;
            }
        }
        ADD_FAILURE() << "no button " << text.toStdString();
    }

    QWidget window;
    QStringList added;
    std::expected<void, QString> result;
    CalendarOffer* offer = new CalendarOffer(
        [this](const QString& path) {
            added << path;
            return result;
        },
        window);
};

} // namespace

TEST_F(CalendarOfferTest, TheFileIsAddedOnceTheUserAgrees) {
    offer->offer({"file:///home/anna/My%20work.ics"});
    EXPECT_EQ(waitForBox(), QStringLiteral("Add “My work.ics” as a calendar?"));
    EXPECT_EQ(shownBox()->windowModality(), Qt::WindowModal);
    EXPECT_EQ(shownBox()->parentWidget(), &window);
    EXPECT_EQ(added, QStringList());
    press("Add");
    EXPECT_EQ(added, QStringList{"/home/anna/My work.ics"});
    EXPECT_EQ(shownBox(), nullptr);
}

TEST_F(CalendarOfferTest, NothingIsAddedWhenTheUserDeclines) {
    offer->offer({"file:///a.ics"});
    waitForBox();
    press("Cancel");
    EXPECT_EQ(added, QStringList());
    EXPECT_EQ(shownBox(), nullptr);
}

TEST_F(CalendarOfferTest, SeveralFilesAreOneQuestionThatNamesThem) {
    offer->offer({"file:///a.ics", "file:///b.ics", "file:///a.ics", "file:///c.ics"});
    EXPECT_EQ(waitForBox(), QStringLiteral("Add these 3 files as calendars?"));
    EXPECT_TRUE(shownBox()->informativeText().startsWith("a.ics\nb.ics\nc.ics\n\n"));
    press("Add");
    EXPECT_EQ(added, (QStringList{"/a.ics", "/b.ics", "/c.ics"}));
}

TEST_F(CalendarOfferTest, AThousandFilesFillNoScreen) {
    QStringList addresses;
    for (int number = 0; number < 1000; ++number) {
        addresses << QStringLiteral("file:///%1.ics").arg(number);
    }
    offer->offer(addresses);
    EXPECT_EQ(waitForBox(), QStringLiteral("Add these 1000 files as calendars?"));
    EXPECT_LT(shownBox()->informativeText().count(u'\n'), 15);
    result = std::unexpected(QStringLiteral("no"));
    press("Add");
    EXPECT_EQ(added.size(), 1000);
    waitForBox();
    EXPECT_LT(shownBox()->informativeText().count(u'\n'), 15);
    press("OK");
}

TEST_F(CalendarOfferTest, NamesAreNeverMarkup) {
    offer->offer({"file:///<b>bold<%2Fb>.ics", "file:///<i>.ics"});
    waitForBox();
    for (const auto* label : shownBox()->findChildren<QLabel*>()) {
        EXPECT_TRUE(label->textFormat() == Qt::PlainText) << label->text().toStdString();
    }
    press("Cancel");
}

TEST_F(CalendarOfferTest, WhatFailsIsSaidInTheReasonsOwnWords) {
    result = std::unexpected(QStringLiteral("“a.ics” is among the calendars already."));
    offer->offer({"file:///a.ics"});
    waitForBox();
    press("Add");
    EXPECT_EQ(waitForBox(), QStringLiteral("The calendar could not be added"));
    EXPECT_EQ(shownBox()->informativeText(),
              QStringLiteral("“a.ics” is among the calendars already."));
    press("OK");
}

TEST_F(CalendarOfferTest, AddressesElsewhereAndNonsenseAreRefused) {
    for (const char* address :
         {"https://quillet.example/a.ics", "webcal://a", "", "a.ics", "file:", "file://%zz", "%",
          "file://elsewhere.example/a.ics", "file:///a.ics%00.txt"}) {
        offer->offer({address});
        EXPECT_EQ(waitForBox(), QStringLiteral("The calendar could not be added")) << address;
        press("OK");
        EXPECT_EQ(shownBox(), nullptr) << address;
    }
    EXPECT_EQ(added, QStringList());
    offer->offer({});
    EXPECT_EQ(shownBox(), nullptr);
}

TEST_F(CalendarOfferTest, WhatIsHereIsOfferedAfterTheRefusalOfTheOthers) {
    offer->offer({"https://quillet.example/a.ics", "file:///good.ics", "file:"});
    EXPECT_EQ(waitForBox(), QStringLiteral("The calendar could not be added"));
    press("OK");
    EXPECT_EQ(waitForBox(), QStringLiteral("Add “good.ics” as a calendar?"));
    press("Add");
    EXPECT_EQ(added, QStringList{"/good.ics"});
}

TEST_F(CalendarOfferTest, NamesThatNobodyEncodedAreTakenAsTheyAre) {
    offer->offer({"file:///tmp/100%.ics", "file:///tmp/two words.ics"});
    waitForBox();
    press("Add");
    EXPECT_EQ(added, (QStringList{"/tmp/100%.ics", "/tmp/two words.ics"}));
}

TEST_F(CalendarOfferTest, AnAddressMayNameThisComputer) {
    for (const QString& host : {QStringLiteral("localhost"), QSysInfo::machineHostName()}) {
        added.clear();
        offer->offer({"file://" + host + "/tmp/%C3%BCber%20100%25.ics"});
        EXPECT_EQ(waitForBox(), QStringLiteral("Add “über 100%.ics” as a calendar?"));
        press("Add");
        EXPECT_EQ(added, QStringList{QStringLiteral("/tmp/über 100%.ics")});
    }
}

TEST_F(CalendarOfferTest, TheNextQuestionWaitsForTheDialogThatIsOpen) {
    auto* other = new QDialog(&window);
    other->setModal(true);
    other->open();
    offer->offer({"file:///a.ics"});
    offer->offer({"file:///b.ics"});
    QTest::qWait(250);
    EXPECT_EQ(QApplication::activeModalWidget(), other);
    delete other;
    EXPECT_EQ(waitForBox(), QStringLiteral("Add “a.ics” as a calendar?"));
    press("Cancel");
    EXPECT_EQ(waitForBox(), QStringLiteral("Add “b.ics” as a calendar?"));
    press("Add");
    EXPECT_EQ(added, QStringList{"/b.ics"});
}

} // namespace quillet
