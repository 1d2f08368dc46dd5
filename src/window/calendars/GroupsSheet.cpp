#include "window/calendars/GroupsSheet.h"

#include "texts/Localized.h"
#include "window/main/NameListEditor.h"
#include "window/widgets/LetterWidth.h"
#include "window/widgets/NameListView.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace quillet {

namespace {

QLabel* labelFor(QWidget& control, const QString& text) {
    auto* label = new QLabel(text, control.window());
    label->setBuddy(&control);
    return label;
}

} // namespace

GroupsSheet::GroupsSheet(CalendarGroupsArrayController& groups,
                         CalendarGroupsArraySelectedCalendarsArrayController& checklist,
                         QWidget* parent)
    : QDialog(parent)
    , groups_(groups)
    , checklist_(checklist)
    , groupList_(new NameListEditor(nameList(groups, &CalendarGroup::calendarGroupName,
                                             &CalendarGroupsArrayController::setCalendarGroupName),
                                    localized("Calendar Groups"), this))
    , reason_(new QLabel(this))
    , checklistStack_(new QStackedWidget(this)) {
    setWindowTitle(localized("Calendar Groups"));
    setWindowModality(Qt::WindowModal);
    auto* sides = new QHBoxLayout;
    sides->addLayout(groupsSide(), 1);
    sides->addLayout(calendarsSide(), 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton* close = buttons->button(QDialogButtonBox::Close);
    close->setObjectName(QStringLiteral("closeCalendarGroupsSheet"));
    // Return belongs to the lists and to the name that is being typed.
    close->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &GroupsSheet::closeRequested);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(sides);
    layout->addWidget(buttons);
    resize(letterWidth(fontMetrics()) * 90, fontMetrics().height() * 22);

    // The checklist changes with the selection, and a group may come to be the first one.
    for (ListControllerNotices* notices :
         std::initializer_list<ListControllerNotices*>{&groups, &checklist}) {
        connect(notices, &ListControllerNotices::arrangedObjectsChanged, this,
                &GroupsSheet::showChecklistOrReason);
    }
    connect(&groups, &ListControllerNotices::selectedObjectsChanged, this,
            &GroupsSheet::showChecklistOrReason);
    showChecklistOrReason();
}

GroupsSheet::~GroupsSheet() = default;

QVBoxLayout* GroupsSheet::groupsSide() {
    using Needs = NameListEditor::Needs;
    groupList_->addButton(localized("&New"), "addCalendarGroup", Needs::Nothing,
                          [this] { addGroup(); });
    groupList_->addButton(localized("&Delete"), "removeCalendarGroup", Needs::Selection,
                          [this] { groups_.removeCalendarGroup(); });
    auto* side = new QVBoxLayout;
    side->addWidget(labelFor(*groupList_->focusProxy(), localized("&Groups")));
    side->addWidget(groupList_);
    return side;
}

QVBoxLayout* GroupsSheet::calendarsSide() {
    using Checklist = CalendarGroupsArraySelectedCalendarsArrayController;
    auto* model = new NameListModel(quillet::checklist(checklist_, &CalendarGroupEntry::title,
                                                       &CalendarGroupEntry::isSelected,
                                                       &Checklist::setSelected),
                                    this);
    // After the other side's buttons, where Tab looks for it.
    checklistView_ = new NameListView(*model, this);
    checklistView_->setAccessibleName(localized("Calendars in Group"));
    reason_->setAlignment(Qt::AlignCenter);
    reason_->setWordWrap(true);
    reason_->setForegroundRole(QPalette::PlaceholderText);
    checklistStack_->addWidget(checklistView_);
    checklistStack_->addWidget(reason_);
    auto* side = new QVBoxLayout;
    side->addWidget(labelFor(*checklistView_, localized("&Calendars in Group")));
    side->addWidget(checklistStack_);
    return side;
}

void GroupsSheet::begin() {
    open();
    groupList_->setFocus();
}

void GroupsSheet::commitEditing() {
    groupList_->commitEditing();
}

void GroupsSheet::end() {
    done(QDialog::Accepted);
}

void GroupsSheet::orderOut() {
    hide();
}

void GroupsSheet::reject() {
    Q_EMIT closeRequested();
}

void GroupsSheet::addGroup() {
    groups_.addCalendarGroup();
    groupList_->editName(groups_.selectionIndex());
}

void GroupsSheet::showChecklistOrReason() {
    const bool isSelected = !groups_.selectedRows().empty();
    reason_->setText(isSelected ? localized("This group stands for all calendars.")
                                : localized("Select a group to choose its calendars."));
    checklistStack_->setCurrentWidget(isSelected && groups_.selectionIndex() != 0
                                          ? static_cast<QWidget*>(checklistView_)
                                          : reason_);
}

} // namespace quillet
