#pragma once

#include "backends/programs/Applications.h"
#include "backends/programs/DesktopPortal.h"

namespace quillet {

/// The program with which the desktop installs programs.
class SoftwareCentre {
public:
    /// The portal is asked instead where there is one, in a sandbox; else null. Both must outlive
    /// the centre.
    SoftwareCentre(const Applications& applications, DesktopPortal* portal)
        : applications_(applications)
        , portal_(portal) {}

    /// Shows the page of a component ("org.example.Program"). The error is a text for the log.
    [[nodiscard]] std::expected<void, QString> show(const QString& component) const;

private:
    const Applications& applications_;
    DesktopPortal* portal_;
};

} // namespace quillet
