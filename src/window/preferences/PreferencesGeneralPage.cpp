#include "window/preferences/PreferencesGeneralPage.h"

#include "platform/Settings.h"
#include "texts/Localized.h"
#include "window/calendars/HourlyRateField.h"
#include "window/preferences/SettingsBinding.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

namespace quillet {

namespace {

/// Lets the control be used while the setting says so.
template <typename IsUsable>
void followUse(QWidget& control, SettingsStore& store, const SettingKey& setting,
               const IsUsable& isUsable) {
    const auto refresh = [&control, isUsable] { control.setEnabled(isUsable()); };
    refresh();
    observeWhileAlive(control, store, setting, refresh);
}

} // namespace

PreferencesGeneralPage::PreferencesGeneralPage(SettingsStore& settings,
                                               const LocaleFormats& formats, QWidget* parent)
    : PreferencesPage(settings, parent) {
    auto* form = new QFormLayout(&body());
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->setRowWrapPolicy(QFormLayout::DontWrapRows);
    addAllDayRows(*form);
    addMoneyRows(*form, formats);
    addFileRows(*form);
}

void PreferencesGeneralPage::addAllDayRows(QFormLayout& form) {
    form.addRow(
        localized("All-day events:"),
        makeCheckBox(
            {&settings::allDayEventsNotIncluded, localizable("&Leave all-day events out"),
             localizable("All-day events are neither listed nor counted in totals and exports")}));
    auto* hours = new QSpinBox(&body());
    constexpr int hoursOfADay = 24;
    hours->setRange(0, hoursOfADay);
    bindSpinBox(*hours, settings(), settings::allDayHours);
    const QString label = localized("&Hours for each day:");
    hours->setAccessibleName(spokenLabel(label));
    hours->setToolTip(localized("The hours for which one day of an all-day event counts"));
    followUse(*hours, settings(), settings::allDayEventsNotIncluded,
              [this] { return !settings::allDayEventsNotIncluded.read(settings()); });
    form.addRow(label, hours);
}

void PreferencesGeneralPage::addMoneyRows(QFormLayout& form, const LocaleFormats& formats) {
    form.addRow(
        localized("Money:"),
        makeCheckBox({&settings::isDollarsOn, localizable("Show &money"),
                      localizable("Rates and costs are shown in the window and in exports")}));
    form.addRow(
        {}, makeCheckBox(
                {&settings::isSingleRate, localizable("&One rate for all calendars"),
                 localizable("When off, each calendar has a rate of its own: select the calendar "
                             "in the main window to set it")}));
    auto* rate = new HourlyRateField(settings(), formats, &body());
    rate->edit().setAccessibleName(localized("Hourly Rate"));
    rate->edit().setToolTip(localized("The rate of an hour, while all calendars have the same"));
    followUse(rate->edit(), settings(), settings::isSingleRate,
              [this] { return settings::isSingleRate.read(settings()); });
    auto* label =
        new QLabel(localized("Hourly &rate (%1):").arg(formats.currencySymbol()), &body());
    label->setBuddy(&rate->edit());
    form.addRow(label, rate);
}

void PreferencesGeneralPage::addFileRows(QFormLayout& form) {
    auto* encoding = new QComboBox(&body());
    encoding->addItem(QStringLiteral("UTF-8"), 0);
    encoding->addItem(QStringLiteral("UTF-16"), 1);
    // Files are in UTF-8 unless the value is that of UTF-16.
    constexpr int utf8 = 0;
    bindComboBox(*encoding, settings(), settings::fileEncodingPopUpIndex, utf8);
    const QString label = localized("&Encoding of saved files:");
    encoding->setAccessibleName(spokenLabel(label));
    encoding->setToolTip(
        localized("UTF-8 suits nearly every program; some spreadsheets want UTF-16"));
    form.addRow(label, encoding);
}

} // namespace quillet
