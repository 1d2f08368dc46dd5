#pragma once

#include "backends/programs/CalendarPrograms.h"
#include "backends/programs/MailPrograms.h"
#include "platform/Environment.h"
#include "platform/InstalledPrograms.h"
#include "platform/Pasteboard.h"
#include "platform/ScriptRunner.h"
#include "platform/TextColorSource.h"

namespace quillet {

/// Runs scripts by asking the desktop's own programs for what the scripts want.
class DesktopScriptRunner final : public ScriptRunner {
public:
    struct Collaborators {
        TaskLauncher& launcher;
        Pasteboard& pasteboard;
        AlertPresenter& alerts;
        CalendarPrograms::FindEvent findEvent;
        EnvironmentReader environment = processEnvironment();
    };

    explicit DesktopScriptRunner(Collaborators collaborators);

    /// A message that cannot be shown is told to the user, see MailPrograms::compose(). An event
    /// whose script its identifiers break is not shown.
    std::expected<void, QString> run(const Script& script) override;

private:
    SessionBusPortal portal_;
    SessionCalendarBus bus_;
    Applications applications_;
    MailPrograms mail_;
    CalendarPrograms calendar_;
};

/// Programs here are packages, which have no short version to ask for by a path.
class PackagedPrograms final : public InstalledPrograms {
public:
    [[nodiscard]] QString shortVersion(const QString& path) const override;
};

/// The text colour of the desktop's palette, light or dark as it is.
class PaletteTextColor final : public TextColorSource {
public:
    [[nodiscard]] ColorFractions textColor() const override;
};

/// The desktop's clipboard.
class DesktopPasteboard final : public Pasteboard {
public:
    void clear() override;
    void writeText(const QString& text) override;
};

} // namespace quillet
