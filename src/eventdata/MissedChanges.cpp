#include "eventdata/MissedChanges.h"

#include <QPointer>

namespace quillet {

namespace {

const QString progressKey = QStringLiteral("isProgressIndicatorOn");
const QString triggerKey = QStringLiteral("datesChangedTrigger");

} // namespace

MissedChanges::MissedChanges(const Collaborators& collaborators)
    : with_(collaborators) {}

void MissedChanges::awakeFromNib() {
    // Rates and hours of a day change figures, not what is fetched.
    for (const char* key : {"datesChangedTrigger", "calendars", "allDayEventsNotIncluded"}) {
        observations_.push_back(
            with_.settings.observe(QString::fromLatin1(key), [this] { noteRequest(); }));
    }
    connect(&with_.calendarsArrayController, &ListControllerNotices::arrangedObjectsChanged, this,
            &MissedChanges::noteRequest);
    connect(&with_.eventKitManager, &EventKitManager::storeChanged, this,
            &MissedChanges::noteRequest);
    observations_.push_back(with_.settings.observe(progressKey, [this] {
        if (!isFetching()) {
            fetchEnded();
        }
    }));
}

bool MissedChanges::isFetching() const {
    return boolForKey(with_.settings, progressKey);
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
            flipBool(self->with_.settings, triggerKey);
        }
    });
}

} // namespace quillet
