#pragma once

namespace quillet {

/// Looks for a newer version of the program and shows the user what it found.
class SoftwareUpdater {
public:
    virtual ~SoftwareUpdater() = default;
    virtual void checkForUpdates() = 0;
};

} // namespace quillet
