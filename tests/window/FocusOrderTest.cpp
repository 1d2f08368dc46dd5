#include "WindowFixture.h"

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
    /// The controls that Tab reaches, from the first on.
    QStringList walk(const QString& first) {
        QStringList names;
        for (QWidget* control = window->nextInFocusChain(); control != window.get();
             control = control->nextInFocusChain()) {
            if (control->isVisible() && control->isEnabled() &&
                (control->focusPolicy() & Qt::TabFocus) != 0 && control->focusProxy() == nullptr) {
                names << nameOf(*control);
            }
        }
        std::ranges::rotate(names, std::ranges::find(names, first));
        return names;
    }
};

} // namespace

TEST_F(FocusOrderTest, TabFollowsTheEye) {
    open();
    exportItems.notes.action().trigger();
    fetch();
    const QStringList names = walk("Previous");
    qsizetype last = -1;
    for (const char* name :
         {"Previous", "Current", "Next", "Calendars", "Events", "Save…", "Close", "Calendar",
          "Location", "Event Notes", "Hourly Rate", "One rate for all calendars", "Results", "Day",
          "Custom", "Start Date", "Locked", "End Date"}) {
        const qsizetype at = names.indexOf(QString::fromUtf8(name));
        EXPECT_GT(at, last) << name << " in " << names.join(", ").toStdString();
        last = at;
    }
}

} // namespace quillet
