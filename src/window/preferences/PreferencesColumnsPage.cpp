#include "window/preferences/PreferencesColumnsPage.h"

#include "eventtable/EventColumns.h"
#include "platform/Settings.h"
#include "texts/Localized.h"
#include "window/preferences/SettingsBinding.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillet {

namespace {

using TimeColumns = PreferencesColumnsViewController;

struct HiddenFlag {
    bool (TimeColumns::*isHidden)() const = nullptr;
    void (TimeColumns::*changed)() = nullptr;
};

/// Null for a column that belongs to every time type.
HiddenFlag hiddenFlagOf(const EventColumn& column) {
    const QLatin1StringView identifier(column.identifier);
    if (identifier == "hours") {
        return {&TimeColumns::isHoursHidden, &TimeColumns::isHoursHiddenChanged};
    }
    if (identifier == "minutes") {
        return {&TimeColumns::isMinutesHidden, &TimeColumns::isMinutesHiddenChanged};
    }
    if (identifier == "duration") {
        return {&TimeColumns::isDurationHidden, &TimeColumns::isDurationHiddenChanged};
    }
    return {};
}

bool isMoneyColumn(const EventColumn& column) {
    const QLatin1StringView identifier(column.identifier);
    return identifier == "cost" || identifier == "rate";
}

constexpr int gapColumn = 2;

} // namespace

PreferencesColumnsPage::PreferencesColumnsPage(SettingsStore& settings,
                                               std::function<void()> resetAllColumnTitles,
                                               QWidget* parent)
    : PreferencesPage(settings, parent)
    , timeColumns_(settings) {
    auto* layout = new QVBoxLayout(&body());
    layout->addWidget(makeTimeType());
    layout->addWidget(makeNote(localized(
        "Tick the columns that the table shows. Their titles also stand in reports and exports.")));
    auto* grid = new QGridLayout;
    addColumns(*grid);
    // The second pair of columns stands apart from the first one's fields.
    grid->setColumnMinimumWidth(gapColumn, fontMetrics().height() / 2);
    layout->addLayout(grid);
    auto* reset = new QPushButton(localized("&Reset All Titles"), &body());
    reset->setObjectName(QStringLiteral("resetAllColumnTitles"));
    reset->setToolTip(localized("Gives every column its first title back"));
    reset->setAutoDefault(false);
    connect(reset, &QPushButton::clicked, this, std::move(resetAllColumnTitles));
    layout->addWidget(reset, 0, Qt::AlignRight);
    layout->addStretch(1);
    timeColumns_.awakeFromNib();
}

QWidget* PreferencesColumnsPage::makeTimeType() {
    auto* row = new QWidget(&body());
    auto* form = new QFormLayout(row);
    form->setContentsMargins(0, 0, 0, 0);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    auto* timeType = new QComboBox(row);
    timeType->addItem(localized("Hours"), 1);
    timeType->addItem(localized("Minutes"), 2);
    timeType->addItem(localized("Duration"), 3);
    bindComboBox(*timeType, settings(), settings::timeTypeSelection);
    const QString label = localized("Show &time as:");
    timeType->setAccessibleName(spokenLabel(label));
    timeType->setToolTip(localized("Which time column the table, the results and reports show"));
    form->addRow(label, timeType);
    return row;
}

void PreferencesColumnsPage::addColumns(QGridLayout& grid) {
    // The three time columns share a place, as they do in the table.
    int timePlace = -1;
    int nextPlace = 0;
    for (const EventColumn& column : eventColumns()) {
        const bool isTime = hiddenFlagOf(column).isHidden != nullptr;
        const int place = isTime && timePlace >= 0 ? timePlace : nextPlace++;
        timePlace = isTime ? place : timePlace;
        addColumn(grid, column, place);
    }
}

void PreferencesColumnsPage::addColumn(QGridLayout& grid, const EventColumn& column, int place) {
    const int rows = (static_cast<int>(eventColumns().size()) - 2) / 2;
    auto* box = makeCheckBox(
        QString::fromLatin1(column.visibilityKey), column.defaultTitle,
        isMoneyColumn(column) ? localizable("The table has this column only while money is shown")
                              : nullptr);
    auto* title = new QLineEdit(&body());
    title->setAccessibleName(localized("Title of “%1”").arg(localized(column.defaultTitle)));
    bindLineEdit(*title, settings(), QString::fromLatin1(column.titleKey));
    const int left = place / rows == 0 ? 0 : gapColumn + 1;
    grid.addWidget(box, place % rows, left);
    grid.addWidget(title, place % rows, left + 1);
    const auto [isHidden, changed] = hiddenFlagOf(column);
    if (isHidden != nullptr) {
        connect(&timeColumns_, changed, this, [this, box, title, flag = isHidden] {
            box->setHidden((timeColumns_.*flag)());
            title->setHidden((timeColumns_.*flag)());
        });
    }
}

} // namespace quillet
