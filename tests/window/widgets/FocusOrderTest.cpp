#include "window/WindowFixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>

namespace quillet {

namespace {

class FocusOrderTest : public test::WindowFixture {
protected:
    /// That of a part of a control is the control's.
    static QString nameOf(const QWidget& control) {
        if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
            return button->text().remove(u'&');
        }
        const QWidget* named = &control;
        while (named->accessibleName().isEmpty() && named->parentWidget() != nullptr) {
            named = named->parentWidget();
        }
        return named->accessibleName();
    }
    /// The controls that the key reaches, from where the focus is until it is there again.
    QStringList walk(Qt::Key key) {
        QStringList names;
        QWidget* const first = window->focusWidget();
        constexpr int moreThanThereAre = 200;
        do {
            names << nameOf(*window->focusWidget());
            QTest::keyClick(window->focusWidget(), key);
        } while (window->focusWidget() != first && names.size() < moreThanThereAre);
        return names;
    }
    void openWithPane(QAction ExportActions::* pane) {
        open();
        (window->exportActions().*pane).trigger();
        fetch();
        for (QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
            if (nameOf(*button) == QStringLiteral("Previous")) {
                button->setFocus();
            }
        }
        ASSERT_EQ(nameOf(*window->focusWidget()), QStringLiteral("Previous"));
    }
    void expectWalk(const QStringList& expected) {
        const QStringList names = walk(Qt::Key_Tab);
        qsizetype last = -1;
        for (const QString& name : expected) {
            const qsizetype at = names.indexOf(name);
            EXPECT_GT(at, last) << name.toStdString() << " in " << names.join(", ").toStdString();
            last = at;
        }
    }
};

} // namespace

TEST_F(FocusOrderTest, TabFollowsTheEyeAndComesRound) {
    openWithPane(&ExportActions::text);
    expectWalk({"Previous",
                "March 2024",
                "Next",
                "Current",
                "Month",
                "Inspector",
                "Total: 11 hours",
                "All Events",
                "Layouts",
                "Events",
                "Options…",
                "Save…",
                "Close",
                "Text Report",
                "Hourly Rate",
                "One rate for all calendars",
                "Start Date",
                "Locked",
                "End Date",
                "Search Events",
                "Calendar Group",
                "Calendars"});
}

TEST_F(FocusOrderTest, SwitchesBelowTheButtonsComeAfterThem) {
    openWithPane(&ExportActions::notes);
    expectWalk({"Events", "Save…", "Close", "Calendar", "Location", "Event Notes", "Hourly Rate"});
}

TEST_F(FocusOrderTest, BacktabGoesTheSameWayBack) {
    openWithPane(&ExportActions::text);
    QStringList names = walk(Qt::Key_Tab);
    std::reverse(names.begin() + 1, names.end());
    EXPECT_EQ(walk(Qt::Key_Backtab), names);
}

TEST_F(FocusOrderTest, RowsAreReadFromTheRightWhereTheLanguageIs) {
    openWithPane(&ExportActions::text);
    window->setLayoutDirection(Qt::RightToLeft);
    QApplication::processEvents();
    const QStringList names = walk(Qt::Key_Tab);
    EXPECT_LT(names.indexOf("Previous"), names.indexOf("Next"));
    EXPECT_LT(names.indexOf("Save…"), names.indexOf("Close"));
}

} // namespace quillet
