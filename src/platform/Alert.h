#pragma once

#include <QString>
#include <QStringList>

namespace quillet {

enum class AlertStyle { Warning, Informational };

struct Alert {
    AlertStyle style = AlertStyle::Warning;
    QString messageText;
    QString informativeText;
    /// At least one; the first is the default button.
    QStringList buttonTitles;
};

class AlertPresenter {
public:
    virtual ~AlertPresenter() = default;
    /// Shows the alert, modal to the application, and returns the index of the chosen button.
    /// Closing it without a choice counts as its last button.
    [[nodiscard]] virtual int runModal(const Alert& alert) = 0;
};

} // namespace quillet
