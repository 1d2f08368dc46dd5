#include "eventdata/MissedChanges.h"

#include "platform/Settings.h"

#include <QPointer>

namespace quillet {

MissedChanges::MissedChanges(const Collaborators& collaborators)
    : with_(collaborators) {}

void MissedChanges::awakeFromNib() {
    // Rates and hours of a day change figures, not what is fetched.
    for (const SettingKey* key : settingGroup(settings::datesChangedTrigger, settings::calendars,
                                              settings::allDayEventsNotIncluded)) {
        observations_.push_back(key->observe(with_.settings, [this] { noteRequest(); }));
    }
    connect(&with_.calendarsArrayController, &ListControllerNotices::arrangedObjectsChanged, this,
            &MissedChanges::noteRequest);
    connect(&with_.eventKitManager, &EventKitManager::storeChanged, this,
            &MissedChanges::noteRequest);
    observations_.push_back(settings::isProgressIndicatorOn.observe(with_.settings, [this] {
        if (!isFetching()) {
            fetchEnded();
        }
    }));
}

bool MissedChanges::isFetching() const {
    return settings::isProgressIndicatorOn.read(with_.settings);
}

void MissedChanges::noteRequest() {
    hasMissed_ = hasMissed_ || isFetching();
}

void MissedChanges::fetchEnded() {
    if (!hasMissed_) {
        return;
    }
    hasMissed_ = false;
    // Later, so that all who wait for the end of this fetch have heard of it.
    with_.mainQueue.async([self = QPointer(this)] {
        if (self) {
            settings::datesChangedTrigger.flip(self->with_.settings);
        }
    });
}

} // namespace quillet
