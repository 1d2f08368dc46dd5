#pragma once

#include "eventdata/EventKitManager.h"
#include "platform/ListController.h"
#include "platform/Observation.h"
#include "platform/SerialQueue.h"
#include "platform/SettingsStore.h"

#include <QObject>

#include <vector>

namespace quillet {

/// Sees to it that the list never stays behind what the user chose. A fetch drops the requests that
/// come while it runs; where one of them would have fetched something else, this asks once more
/// after the fetch, by flipping `datesChangedTrigger`. Main thread only.
class MissedChanges : public QObject {
    Q_OBJECT

public:
    struct Collaborators {
        SettingsStore& settings;
        EventKitManager& eventKitManager;
        ListControllerNotices& calendarsArrayController;
        SerialQueue& mainQueue;
    };

    explicit MissedChanges(const Collaborators& collaborators);

    /// Begins to observe; before the events controller does, so that a request which starts a fetch
    /// is not taken for one that came while it ran.
    void awakeFromNib();

private:
    [[nodiscard]] bool isFetching() const;
    void noteRequest();
    void fetchEnded();

    Collaborators with_;
    bool hasMissed_ = false;
    std::vector<Observation> observations_;
};

} // namespace quillet
