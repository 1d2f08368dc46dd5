#pragma once

#include "platform/LocaleFormats.h"
#include "window/preferences/PreferencesPage.h"

class QFormLayout;

namespace quillet {

/// All-day events, money, and the encoding of saved files.
class PreferencesGeneralPage : public PreferencesPage {
    Q_OBJECT

public:
    PreferencesGeneralPage(SettingsStore& settings, const LocaleFormats& formats, QWidget* parent);

private:
    void addAllDayRows(QFormLayout& form);
    void addMoneyRows(QFormLayout& form, const LocaleFormats& formats);
    void addFileRows(QFormLayout& form);
};

} // namespace quillet
