#pragma once

#include "platform/LocaleFormats.h"
#include "platform/SettingsStore.h"
#include "window/calendars/RateEditing.h"

#include <QWidget>

class QLabel;
class QLineEdit;

namespace quillet {

/// The field of the one rate for all calendars. A text that is no rate is refused beside it.
class HourlyRateField : public QWidget {
    Q_OBJECT

public:
    HourlyRateField(SettingsStore& settings, const LocaleFormats& formats, QWidget* parent);
    ~HourlyRateField() override;
    Q_DISABLE_COPY_MOVE(HourlyRateField)

    /// Bears the key as its object name; the caller names it.
    [[nodiscard]] QLineEdit& edit() const { return *edit_; }

protected:
    /// The typing is over.
    void hideEvent(QHideEvent* event) override;

private:
    QLineEdit* edit_;
    QLabel* complaint_;
    RateEditing* editing_;
};

/// The rate of the setting `hourlyRate`.
[[nodiscard]] EditedRate sharedRate(SettingsStore& settings);

} // namespace quillet
