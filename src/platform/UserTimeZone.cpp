#include "platform/UserTimeZone.h"

namespace quillet {

UserTimeZone::UserTimeZone(const QTimeZone& zone) {
    change(zone);
}

std::shared_ptr<const UserTimeZone> UserTimeZone::named(const QString& name) {
    return std::make_shared<const UserTimeZone>(QTimeZone(name.toUtf8()));
}

void UserTimeZone::change(const QTimeZone& zone) {
    all_.push_back(ZoneRules::fromTimeZone(zone));
    rules_.store(all_.back().get(), std::memory_order_release);
}

} // namespace quillet
