#pragma once

#include "platform/Alert.h"
#include "platform/ProgressPresenter.h"
#include "platform/SavePanel.h"

#include <QPointer>
#include <QWidget>

namespace quillet {

/// The dialogs that belong to the main window. They may be made before it: until it is set, they
/// stand for themselves.
class DesktopDialogs final : public AlertPresenter, public SavePanel, public ProgressPresenter {
public:
    void setWindow(QWidget* window) { window_ = window; }

    [[nodiscard]] int runModal(const Alert& alert) override;
    void beginSheet(const SavePanelRequest& request, Completion completion) override;
    void stopModal(int code) override;
    [[nodiscard]] std::unique_ptr<Run> begin(const QString& label) override;

    /// Asks in the program's own words whether it may read the calendars.
    [[nodiscard]] bool askForCalendarAccess();

private:
    QPointer<QWidget> window_;
};

} // namespace quillet
