#include "backends/evolution/ServicePicture.h"

#include "texts/Localized.h"

#include <algorithm>

namespace quillet {

namespace {

using Condition = CalendarState::Condition;

QString conditionText(const CalendarState& state, const QString& since) {
    switch (state.condition) {
    case Condition::Fine:
        break;
    case Condition::BeingRead:
        return localized("is still being read");
    case Condition::Unreachable:
        if (!state.refusal.isEmpty()) {
            return localized("cannot be read: %1").arg(state.refusal);
        }
        return localized("not reachable since %1, retrying").arg(since);
    case Condition::ServerUnreachable:
        return localized("its server is not reachable since %1, retrying").arg(since);
    case Condition::NeedsPassword:
        return localized("needs its password, which the calendar program asks for");
    }
    return {};
}

} // namespace

bool ServicePicture::isSettledFor(const CalendarList& wanted) const {
    return std::ranges::all_of(wanted, [this](const auto& calendar) {
        const CalendarState* state = stateOf(calendar->calendarIdentifier);
        return state == nullptr || state->isSettled;
    });
}

const CalendarState* ServicePicture::stateOf(const QString& calendarIdentifier) const {
    const auto state = std::ranges::find_if(calendars, [&](const CalendarState& one) {
        return one.calendar->calendarIdentifier == calendarIdentifier;
    });
    return state == calendars.end() ? nullptr : &*state;
}

std::vector<StoreProblem>
ServicePicture::problems(const std::function<QString(Instant)>& shortTime) const {
    std::vector<StoreProblem> found;
    if (service == Service::NoSessionBus) {
        found.push_back({localized("Desktop calendars"),
                         localized("not reachable, for there is no session bus")});
    } else if (service == Service::Unreachable && calendars.empty()) {
        found.push_back({localized("Desktop calendars"),
                         localized("not reachable since %1, retrying").arg(shortTime(since))});
    }
    for (const CalendarState& state : calendars) {
        // Nothing can be done about one that is on its way as it should be.
        if (state.condition != Condition::Fine &&
            (state.condition != Condition::BeingRead || state.isSettled)) {
            found.push_back({state.calendar->title, conditionText(state, shortTime(state.since))});
        }
    }
    for (const CalendarState& state : calendars) {
        for (const QString& problem : state.problems) {
            found.push_back({state.calendar->title, problem});
        }
    }
    return found;
}

PictureBoard::PictureBoard(ServicePicture first)
    : picture_(std::make_shared<const ServicePicture>(std::move(first))) {}

std::shared_ptr<const ServicePicture> PictureBoard::current() const {
    const std::scoped_lock lock(mutex_);
    return picture_;
}

std::shared_ptr<const ServicePicture>
PictureBoard::settled(const CalendarList& wanted, std::chrono::milliseconds longest) const {
    std::unique_lock lock(mutex_);
    changed_.wait_for(lock, longest, [&] { return picture_->isSettledFor(wanted); });
    return picture_;
}

void PictureBoard::hang(ServicePicture picture) {
    auto next = std::make_shared<const ServicePicture>(std::move(picture));
    {
        const std::scoped_lock lock(mutex_);
        picture_ = std::move(next);
    }
    changed_.notify_all();
}

} // namespace quillet
