#include "backends/programs/SoftwareCentre.h"

namespace quillet {

std::expected<void, QString> SoftwareCentre::show(const QString& component) const {
    const QString address = QStringLiteral("appstream:") + component;
    if (portal_ != nullptr) {
        return portal_->openAddress(address);
    }
    std::expected<void, QString> result =
        std::unexpected(QStringLiteral("no program opens ") + address);
    for (const DesktopEntry& entry :
         applications_.handlers(QStringLiteral("x-scheme-handler/appstream"))) {
        result = Applications::open(entry, {address});
        if (result) {
            break;
        }
    }
    return result;
}

} // namespace quillet
