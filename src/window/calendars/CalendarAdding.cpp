#include "window/calendars/CalendarAdding.h"

#include "texts/Localized.h"
#include "window/widgets/PlainMessage.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace quillet {

QString CalendarAdding::chosenPath() const {
    QMessageBox box(&window_);
    box.setIcon(QMessageBox::Question);
    box.setText(localized("What would you like to add?"));
    box.setInformativeText(localized("A folder holds a calendar with one file an event; a file "
                                     "holds a whole calendar."));
    // Of two that accept, some desktops have one on each side of the button that cancels.
    QPushButton* folder = box.addButton(localized("&Folder…"), QMessageBox::ActionRole);
    QPushButton* file = box.addButton(localized("F&ile…"), QMessageBox::ActionRole);
    box.addButton(QMessageBox::Cancel);
    box.setDefaultButton(folder);
    box.exec();
    if (box.clickedButton() == folder) {
        return QFileDialog::getExistingDirectory(&window_, localized("Add Calendar Folder"));
    }
    if (box.clickedButton() == file) {
        return QFileDialog::getOpenFileName(&window_, localized("Add Calendar File"), {},
                                            localized("Calendars (*.ics)"));
    }
    return {};
}

void CalendarAdding::choose() const {
    if (const QString path = chosenPath(); !path.isEmpty()) {
        add(path);
    }
}

void CalendarAdding::add(const QString& path) const {
    if (const auto result = addCalendar_(path); !result) {
        QMessageBox box(QMessageBox::Warning, {}, localized("The calendar could not be added"),
                        QMessageBox::Ok, &window_);
        box.setInformativeText(result.error());
        showAsPlainText(box);
        box.exec();
    }
}

} // namespace quillet
