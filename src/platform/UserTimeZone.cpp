#include "platform/UserTimeZone.h"

namespace quillet {

UserTimeZone::UserTimeZone(const QTimeZone& zone) {
    adopt(zone);
}

std::shared_ptr<const UserTimeZone> UserTimeZone::named(const QString& name) {
    return std::make_shared<const UserTimeZone>(QTimeZone(name.toUtf8()));
}

void UserTimeZone::change(const QTimeZone& zone) {
    const ZoneRules& former = rules();
    adopt(zone);
    observers_.notify(former);
}

Observation UserTimeZone::observe(std::function<void(const ZoneRules& former)> changed) const {
    return observers_.add(std::move(changed));
}

void UserTimeZone::adopt(const QTimeZone& zone) {
    zone_ = zone;
    all_.push_back(ZoneRules::fromTimeZone(zone));
    rules_.store(all_.back().get(), std::memory_order_release);
}

} // namespace quillet
