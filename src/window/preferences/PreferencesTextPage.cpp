#include "window/preferences/PreferencesTextPage.h"

#include "export/TextReportHeader.h"
#include "platform/Settings.h"
#include "texts/Localized.h"
#include "window/preferences/SettingsBinding.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace quillet {

namespace {

/// In the order of the report's lines, so that the boxes look like the report.
std::vector<PreferencesSwitch> headerSwitches() {
    std::vector<PreferencesSwitch> switches;
    for (const ReportHeaderLine& line : reportHeaderLines()) {
        switches.push_back({&line.isWanted, line.label, line.explanation});
    }
    return switches;
}

constexpr std::array<PreferencesSwitch, 2> tableSwitches{{
    {&settings::isTXTWrapping, localizable("&Wrap long texts"),
     localizable(
         "Texts that are longer than their column go on in the next line; when off, they are cut")},
    {&settings::isTXTSummaryRow, localizable("&Summary row"),
     localizable("A last row with the sums of the columns")},
}};

} // namespace

PreferencesTextPage::PreferencesTextPage(SettingsStore& settings,
                                         std::function<void()> openTXTSettingsSheet,
                                         QWidget* parent)
    : PreferencesPage(settings, parent) {
    auto* layout = new QVBoxLayout(&body());
    layout->addWidget(makeFreeText(localized("Te&xt above the report:"),
                                   localized("Stands before everything else in the report"),
                                   settings::txtHeader));
    layout->addWidget(makeGroup(localized("Above the Table"), headerSwitches(), 2));
    layout->addWidget(makeGroup(localized("Table"), tableSwitches, 2));
    layout->addWidget(makeFreeText(localized("Text below the repo&rt:"),
                                   localized("Stands behind everything else in the report"),
                                   settings::txtFooter));
    auto* presets = new QPushButton(localized("&Presets…"), &body());
    presets->setObjectName(QStringLiteral("openTXTSettingsSheet"));
    presets->setToolTip(localized("Keeps all this under a name, and brings it back"));
    presets->setAutoDefault(false);
    connect(presets, &QPushButton::clicked, this, std::move(openTXTSettingsSheet));
    layout->addWidget(presets, 0, Qt::AlignRight);
    layout->addStretch(1);
}

QWidget* PreferencesTextPage::makeFreeText(const QString& label, const QString& toolTip,
                                           const Setting<QString>& setting) {
    auto* area = new QWidget(&body());
    auto* layout = new QVBoxLayout(area);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(fontMetrics().height() / 4);
    auto* text = new QPlainTextEdit(area);
    text->setTabChangesFocus(true);
    text->setAccessibleName(spokenLabel(label));
    text->setToolTip(toolTip);
    constexpr int shownLines = 3;
    text->setFixedHeight(text->fontMetrics().lineSpacing() * shownLines +
                         text->fontMetrics().height());
    bindTextEdit(*text, settings(), setting);
    auto* caption = new QLabel(label, area);
    caption->setBuddy(text);
    layout->addWidget(caption);
    layout->addWidget(text);
    return area;
}

} // namespace quillet
