#include "window/main/DesktopDialogs.h"

#include "texts/Localized.h"
#include "window/main/SaveDialog.h"
#include "window/main/ShownRun.h"
#include "window/widgets/PlainMessage.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace quillet {

int DesktopDialogs::runModal(const Alert& alert) {
    // Over a sheet that is open, which would hide it otherwise.
    QWidget* sheet = QApplication::activeModalWidget();
    const QPointer below = sheet != nullptr ? sheet : window_.data();
    QMessageBox box(below);
    box.setIcon(alert.style == AlertStyle::Warning ? QMessageBox::Warning
                                                   : QMessageBox::Information);
    box.setText(alert.messageText);
    box.setInformativeText(alert.informativeText);
    showAsPlainText(box);
    QList<QPushButton*> buttons;
    for (const QString& title : alert.buttonTitles) {
        buttons << box.addButton(title, buttons.isEmpty() ? QMessageBox::AcceptRole
                                                          : QMessageBox::RejectRole);
    }
    box.setDefaultButton(buttons.first());
    box.setEscapeButton(buttons.last());
    box.exec();
    if (below != nullptr) {
        // Window managers may choose another of the program's windows.
        below->activateWindow();
    }
    const auto chosen = buttons.indexOf(static_cast<QPushButton*>(box.clickedButton()));
    return static_cast<int>(chosen < 0 ? buttons.size() - 1 : chosen);
}

void DesktopDialogs::beginSheet(const SavePanelRequest& request, Completion completion) {
    auto* dialog = new SaveDialog(request, window_);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QFileDialog::finished, dialog,
                     [dialog, completion = std::move(completion)](int result) {
                         completion(result == QDialog::Accepted
                                        ? std::optional(dialog->chosenPath())
                                        : std::nullopt);
                     });
    dialog->open();
}

void DesktopDialogs::stopModal(int /*code*/) {
    // The sheet ends by itself: it is modal to its window, not a session of its own.
}

std::unique_ptr<ProgressPresenter::Run> DesktopDialogs::begin(const QString& label) {
    return std::make_unique<ShownRun>(label, window_);
}

bool DesktopDialogs::askForCalendarAccess() {
    QMessageBox box(window_);
    box.setIcon(QMessageBox::Question);
    box.setText(localized("May Quillet read your calendars?"));
    box.setInformativeText(
        localized("Quillet lists the events of your calendars and adds up their hours. It reads "
                  "them on this computer only, and changes nothing."));
    const QAbstractButton* allow = box.addButton(localized("Allow"), QMessageBox::AcceptRole);
    box.addButton(localized("Don’t Allow"), QMessageBox::RejectRole);
    box.exec();
    return box.clickedButton() == allow;
}

} // namespace quillet
