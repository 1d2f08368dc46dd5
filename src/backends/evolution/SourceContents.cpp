#include "backends/evolution/SourceContents.h"

#include "backends/icsfolder/EventAssembly.h"
#include "backends/icsfolder/IcalValues.h"
#include "backends/icsfolder/IcsText.h"
#include "texts/Localized.h"

#include <algorithm>
#include <utility>

namespace quillet {

namespace {

/// What the counted rules of one calendar may cost: about half a second.
constexpr std::int64_t readingBudget = 20'000'000;

/// Calls for each event of a component, which is one or a calendar that holds some.
template <typename Visitor>
void forEachEvent(icalcomponent_impl& component, Visitor visit) {
    if (icalcomponent_isa(&component) == ICAL_VEVENT_COMPONENT) {
        visit(component);
        return;
    }
    icalcompiter inner = icalcomponent_begin_component(&component, ICAL_VEVENT_COMPONENT);
    while (icalcomponent* event = icalcompiter_deref(&inner)) {
        visit(*event);
        icalcompiter_next(&inner);
    }
}

bool standsAlone(const RawEvent& event) {
    return !event.recurrenceId;
}

} // namespace

SourceContents::SourceContents(std::shared_ptr<const StoreCalendar> calendar, ZoneCatalog& zones)
    : calendar_(std::move(calendar))
    , context_{zones, {}, {}, std::make_shared<ZoneLookups>()}
    , contents_(std::make_shared<const CalendarContents>()) {}

void SourceContents::setCalendar(std::shared_ptr<const StoreCalendar> calendar) {
    calendar_ = std::move(calendar);
}

void SourceContents::beginReading() {
    isReading_ = true;
    reading_.clear();
    doubtful_.clear();
    // Asked for again: whoever was asked before may have gone without an answer.
    context_.unknownZones.clear();
    reportedZones_ = 0;
    awaitedZones_.clear();
}

void SourceContents::read(icalcomponent_impl& component) {
    forEachEvent(component, [this](icalcomponent_impl& event) {
        RawEvent raw = readEvent(event, context_);
        reading_[raw.uid].push_back(std::move(raw));
    });
}

void SourceContents::endReading() {
    WorkBudget budget(readingBudget);
    isReading_ = false;
    known_.clear();
    gone_.clear();
    fresh_.clear();
    EventList events;
    std::vector<std::shared_ptr<const Series>> series;
    auto reading = std::exchange(reading_, {});
    for (auto family = reading.begin(); family != reading.end(); ++family) {
        Known known = knownFrom(std::move(family.value()), budget);
        std::ranges::copy(known.file->events, std::back_inserter(events));
        std::ranges::copy(known.file->series, std::back_inserter(series));
        known_.emplace(family.key(), std::move(known));
    }
    contents_ = std::make_shared<const CalendarContents>(std::move(events), std::move(series));
}

void SourceContents::noteChanged(icalcomponent_impl& component) {
    forEachEvent(component, [this](icalcomponent_impl& event) {
        RawEvent raw = readEvent(event, context_);
        const auto known = known_.constFind(raw.uid);
        const bool hasExceptions = known != known_.constEnd() && known->hasExceptions;
        if (isReading_ || !standsAlone(raw) || hasExceptions || doubtful_.contains(raw.uid) ||
            (raw.hasUnknownZone && areZonesAwaited())) {
            doubtful_.insert(raw.uid);
            return;
        }
        const QString uid = raw.uid;
        std::vector<RawEvent> alone;
        alone.push_back(std::move(raw));
        WorkBudget budget(readingBudget);
        setKnown(uid, knownFrom(std::move(alone), budget));
    });
}

void SourceContents::noteRemoved(const QString& uid) {
    const auto known = known_.constFind(uid);
    if (isReading_ || (known != known_.constEnd() && known->hasExceptions)) {
        doubtful_.insert(uid);
    } else {
        forget(uid);
    }
}

void SourceContents::replace(const QString& uid,
                             const std::vector<icalcomponent_impl*>& components) {
    std::vector<RawEvent> events;
    for (icalcomponent_impl* component : components) {
        forEachEvent(*component, [&](icalcomponent_impl& event) {
            events.push_back(readEvent(event, context_));
        });
    }
    if (areZonesAwaited() && std::ranges::any_of(events, &RawEvent::hasUnknownZone)) {
        doubtful_.insert(uid);
    }
    if (events.empty()) {
        forget(uid);
        return;
    }
    WorkBudget budget(readingBudget);
    setKnown(uid, knownFrom(std::move(events), budget));
}

bool SourceContents::apply() {
    if (gone_.isEmpty() && fresh_.isEmpty()) {
        return false;
    }
    const auto files = [](const QHash<QString, std::shared_ptr<const IcsFile>>& some) {
        std::vector<const IcsFile*> pointers;
        for (const auto& file : some) {
            pointers.push_back(file.get());
        }
        return pointers;
    };
    contents_ = std::make_shared<const CalendarContents>(
        contents_->withReplaced(files(gone_), files(fresh_)));
    gone_.clear();
    fresh_.clear();
    return true;
}

std::vector<std::string> SourceContents::takeUnknownZones() {
    const auto& unknown = context_.unknownZones;
    std::vector<std::string> names(
        unknown.begin() + static_cast<std::ptrdiff_t>(std::min(reportedZones_, unknown.size())),
        unknown.end());
    reportedZones_ = unknown.size();
    awaitedZones_.insert(names.begin(), names.end());
    return names;
}

bool SourceContents::areZonesAwaited() const {
    return !awaitedZones_.empty() || context_.unknownZones.size() > reportedZones_;
}

bool SourceContents::define(const std::string& name, const std::string& definition) {
    awaitedZones_.erase(name);
    // The parser behind wants lines without folds.
    const IcsBlocks blocks =
        takeApart("BEGIN:VCALENDAR\r\n" + definition + "\r\nEND:VCALENDAR\r\n");
    for (const auto& calendar : blocks.calendars) {
        for (const std::size_t offset : calendar.zones) {
            if (auto rules = context_.zones.defined(blocks.text.data() + offset).rules) {
                context_.definedZones[name] = std::move(rules);
                reportedZones_ -= std::erase(context_.unknownZones, name);
                return true;
            }
        }
    }
    return false;
}

QStringList SourceContents::problems() const {
    QStringList found;
    int withoutStart = 0;
    for (const Known& known : known_) {
        withoutStart += known.withoutStart;
        for (const QString& problem : known.file->problems) {
            if (!found.contains(problem)) {
                found.append(problem);
            }
        }
    }
    if (withoutStart > 0) {
        found.append(localized("%1 events without a start").arg(withoutStart));
    }
    for (const std::string& zone : context_.unknownZones) {
        found.append(localized("unknown time zone “%1”, taken as local time")
                         .arg(QString::fromStdString(zone).left(100)));
    }
    return found;
}

SourceContents::Known SourceContents::knownFrom(std::vector<RawEvent> events,
                                                WorkBudget& budget) const {
    Known known;
    known.hasExceptions = events.size() > 1 || !std::ranges::all_of(events, standsAlone);
    known.withoutStart =
        static_cast<int>(std::erase_if(events, [](const RawEvent& event) { return !event.start; }));
    auto file = std::make_shared<IcsFile>();
    if (!events.empty()) {
        assembleEvents(std::move(events), calendar_, budget, *file);
    }
    // Nothing else of a calendar bears the same UID.
    file->families = {};
    known.file = std::move(file);
    return known;
}

void SourceContents::setKnown(const QString& uid, Known known) {
    forget(uid);
    fresh_.insert(uid, known.file);
    known_.emplace(uid, std::move(known));
}

void SourceContents::forget(const QString& uid) {
    const auto known = known_.constFind(uid);
    if (known == known_.constEnd()) {
        return;
    }
    // What never came into contents() needs not leave it.
    if (fresh_.remove(uid) == 0) {
        gone_.insert(uid, known->file);
    }
    known_.erase(known);
}

} // namespace quillet
