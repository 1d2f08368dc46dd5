#pragma once

#include "app/Core.h"
#include "backends/activation/ApplicationService.h"
#include "backends/combined/CalendarAccess.h"
#include "backends/combined/CombinedEventStore.h"
#include "backends/icsfolder/IcsFolderStore.h"
#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuCollator.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "backends/programs/DesktopPrograms.h"
#include "backends/programs/DesktopScripting.h"
#include "backends/settingsfile/DatesZone.h"
#include "backends/settingsfile/SettingsFile.h"
#include "backends/updates/ReleaseListUpdater.h"
#include "platform/SystemZoneWatch.h"
#include "window/calendars/CalendarOffer.h"
#include "window/events/EventTableModel.h"
#include "window/events/EventTableView.h"
#include "window/main/ActivationWatcher.h"
#include "window/main/DesktopDialogs.h"
#include "window/main/MainWindow.h"
#include "window/main/QuitQuestion.h"
#include "window/main/UpdateDialogs.h"

namespace quillet {

/// Where the program keeps its files, and what languages its texts may have.
struct ProgramPaths {
    QString settingsFile;
    QString calendarsFolder;
    QString stateFolder;
    QString releaseNotes;
    /// The user's, best first, as "de_AT" or "de".
    QStringList languages;
};

/// Every part of the program, built and wired. The members stand in the order in which they need
/// each other.
class Program {
public:
    /// The service's requests are served from start() on; it must outlive the program.
    Program(const ProgramPaths& paths, ApplicationService& service);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Wakes the controllers, shows the window and comes to the front for the first time.
    void start();
    /// Writes the settings and the window's sizes, before the end.
    void save();

private:
    [[nodiscard]] CalendarActions calendarActions();
    /// Writes the settings; whether all of them could be.
    [[nodiscard]] bool isSaved();
    /// Where the window's sizes are kept; whatever is no such file has been moved aside.
    [[nodiscard]] QString windowStateFile() const;
    [[nodiscard]] EventPlace placeOf(const EventRequest& request) const;
    [[nodiscard]] CoreSeams seams();
    [[nodiscard]] EventTableView* makeTable();
    void askForAccessAgain();
    void connectNotices();
    void followTimeZone();
    void serveDesktop();
    void perform(const QString& desktopAction);

    ProgramPaths paths_;
    ApplicationService& service_;
    SettingsFile settings_;
    std::shared_ptr<UserTimeZone> timeZone_;
    LocaleNames locales_;
    IcuCalendarArithmetic gregorian_;
    IcuCalendarArithmetic currentCalendar_;
    IcuLocaleFormats formats_;
    SystemClock clock_;
    DesktopDialogs dialogs_;
    QuitQuestion quitQuestion_;
    DesktopWorkspace workspace_;
    ProcessTaskLauncher taskLauncher_;
    PackagedPrograms installedPrograms_;
    PaletteTextColor textColor_;
    DesktopPasteboard pasteboard_;
    DesktopScriptRunner scriptRunner_;
    CalendarAccess access_;
    IcsFolderStore folderStore_;
    /// Null in a build without the desktop's calendar service.
    std::unique_ptr<EventStore> calendarService_;
    CombinedEventStore store_;
    std::unique_ptr<SerialQueue> mainQueue_;
    std::unique_ptr<OneShotTimer> timer_;
    std::unique_ptr<SerialQueue> fetchQueue_;
    IcuCollator collator_;
    UpdateDialogs updateDialogs_;
    ReleaseListUpdater updater_;
    ColumnTable columns_;
    Core core_;
    EventTableModel eventModel_;
    /// Belongs to the window once that is built.
    EventTableView* eventTable_;
    IcuLocaleFormats reportFormats_;
    IcuCalendarArithmetic reportCalendar_;
    std::unique_ptr<SerialQueue> reportQueue_;
    std::unique_ptr<MainWindow> window_;
    ActivationWatcher activation_;
    Observation storeObservation_;
    Observation settingsProblemObservation_;
    DatesZone datesZone_;
    Observation zoneObservation_;
    std::unique_ptr<SystemZoneWatch> zoneWatch_;
};

} // namespace quillet
