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
    bool (TimeColumns::*isHidden)() const;
    void (TimeColumns::*changed)();
};

HiddenFlag hiddenFlagOf(TimeType timeType) {
    switch (timeType) {
    case TimeType::Hours:
        return {&TimeColumns::isHoursHidden, &TimeColumns::isHoursHiddenChanged};
    case TimeType::Minutes:
        return {&TimeColumns::isMinutesHidden, &TimeColumns::isMinutesHiddenChanged};
    case TimeType::Duration:
        break;
    }
    return {&TimeColumns::isDurationHidden, &TimeColumns::isDurationHiddenChanged};
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
        const bool isTime = column.timeType.has_value();
        const int place = isTime && timePlace >= 0 ? timePlace : nextPlace++;
        timePlace = isTime ? place : timePlace;
        addColumn(grid, column, place);
    }
}

void PreferencesColumnsPage::addColumn(QGridLayout& grid, const EventColumn& column, int place) {
    // Two columns of places; the time columns have one place among them.
    const int rows = (static_cast<int>(eventColumns().size()) - 1) / 2;
    auto* box =
        makeCheckBox({&column.visibility, column.title.englishFirstRunText(),
                      column.kind == ColumnKind::Money
                          ? localizable("The table has this column only while money is shown")
                          : nullptr});
    auto* title = new QLineEdit(&body());
    title->setAccessibleName(
        localized("Title of “%1”").arg(column.title.firstRunValue().toString()));
    bindLineEdit(*title, settings(), column.title);
    const int left = place / rows == 0 ? 0 : gapColumn + 1;
    grid.addWidget(box, place % rows, left);
    grid.addWidget(title, place % rows, left + 1);
    if (column.timeType) {
        const auto [isHidden, changed] = hiddenFlagOf(*column.timeType);
        connect(&timeColumns_, changed, this, [this, box, title, flag = isHidden] {
            box->setHidden((timeColumns_.*flag)());
            title->setHidden((timeColumns_.*flag)());
        });
    }
}

} // namespace quillet
