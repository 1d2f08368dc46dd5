#include "window/calendars/GroupChooser.h"

#include "platform/Settings.h"
#include "texts/Localized.h"
#include "window/main/NameListModel.h"
#include "window/preferences/SettingsBinding.h"
#include "window/widgets/LetterWidth.h"
#include "window/widgets/NamedComboBox.h"
#include "window/widgets/SymbolIcon.h"

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QToolButton>

namespace quillet {

GroupChooser::GroupChooser(const WindowGroups& groups, SettingsStore& settings, QWidget& window)
    : QWidget(&window)
    , with_(groups)
    , sheet_(new GroupsSheet(groups.groups, groups.checklist, &window))
    , sheetController_(settings, *sheet_)
    , chooser_(new NamedComboBox(this)) {
    chooser_->setAccessibleName(localized("Calendar Group"));
    chooser_->setToolTip(localized("The calendars of the chosen group are listed"));
    chooser_->setObjectName(settings::calendarGroupsSelectedIndex.name());
    // A long name must widen neither the pane nor the list that opens.
    chooser_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    chooser_->setMinimumContentsLength(8);
    constexpr int widestNameInCharacters = 50;
    chooser_->view()->window()->setMaximumWidth(letterWidth(fontMetrics()) *
                                                widestNameInCharacters);
    auto* edit = new QToolButton(this);
    edit->setIcon(symbolIcon(Symbol::Edit));
    edit->setAutoRaise(true);
    edit->setAccessibleName(localized("Edit Calendar Groups"));
    edit->setToolTip(localized("Edit calendar groups"));
    edit->setObjectName(QStringLiteral("openCalendarGroupsSheet"));
    auto* layout = new QHBoxLayout(this);
    const int space = fontMetrics().height() / 3;
    layout->setContentsMargins(space, space, space, space);
    layout->setSpacing(space);
    layout->addWidget(chooser_, 1);
    layout->addWidget(edit);

    connect(edit, &QToolButton::clicked, this, &GroupChooser::openSheet);
    connect(sheet_, &GroupsSheet::closeRequested, this,
            [this] { sheetController_.closeCalendarGroupsSheet(); });
    connect(chooser_, &QComboBox::activated, this, [this](int position) {
        with_.chosen.setCalendarGroupsSelectedIndex(static_cast<std::size_t>(position));
    });
    connect(&with_.groups, &ListControllerNotices::arrangedObjectsChanged, this,
            &GroupChooser::showGroups);
    observeWhileAlive(*this, settings, settings::calendarGroupsSelectedIndex,
                      [this] { showGroups(); });
    showGroups();
}

GroupChooser::~GroupChooser() = default;

void GroupChooser::openSheet() {
    sheetController_.openCalendarGroupsSheet();
}

void GroupChooser::showGroups() {
    QStringList names;
    for (std::size_t row = 0; row < with_.groups.arrangedCount(); ++row) {
        names << shownName(with_.groups.arranged(row).calendarGroupName);
    }
    if (names.isEmpty()) {
        names << localized("All Calendars");
    }
    QStringList shown;
    for (int position = 0; position < chooser_->count(); ++position) {
        shown << chooser_->itemText(position);
    }
    if (names != shown) {
        chooser_->clear();
        chooser_->addItems(names);
    }
    chooser_->setCurrentIndex(static_cast<int>(with_.chosen.calendarGroupsSelectedIndex()));
}

} // namespace quillet
