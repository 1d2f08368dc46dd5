#pragma once

#include "platform/LocaleFormats.h"
#include "platform/SettingsStore.h"

#include <QWidget>

class QLabel;
class QLineEdit;

namespace quillet {

/// The field of the one rate for all calendars. A text that is no rate is refused beside the field,
/// and the old rate comes back.
class HourlyRateField : public QWidget {
    Q_OBJECT

public:
    HourlyRateField(SettingsStore& settings, const LocaleFormats& formats, QWidget* parent);
    ~HourlyRateField() override;
    Q_DISABLE_COPY_MOVE(HourlyRateField)

    /// Bears the key as its object name; the caller names it.
    [[nodiscard]] QLineEdit& edit() const { return *edit_; }

protected:
    /// What was typed counts, also when the window closes over it.
    void hideEvent(QHideEvent* event) override;

private:
    void showRate();
    void takeText();
    void takeTextOfAssistiveProgram(const QString& text);

    SettingsStore& settings_;
    const LocaleFormats& formats_;
    QLineEdit* edit_;
    QLabel* complaint_;
    /// What the field shows unless somebody has put in something else.
    QString shownText_;
};

} // namespace quillet
