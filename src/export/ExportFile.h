#pragma once

#include "platform/FileWriting.h"
#include "platform/LocaleFormats.h"
#include "platform/SavePanel.h"
#include "platform/SettingsStore.h"

#include <QString>

#include <optional>

namespace quillet {

/// The long date with every "/" replaced by a blank and every "," removed; empty without a date.
[[nodiscard]] QString formatFileNameDate(const LocaleFormats& formats, std::optional<Instant> date);

/// "start - end" of the reporting period, each through formatFileNameDate().
[[nodiscard]] QString periodFileName(const SettingsStore& settings, const LocaleFormats& formats);

/// UTF-16 where `fileEncodingPopUpIndex` is 1, else UTF-8.
[[nodiscard]] TextEncoding exportEncoding(const SettingsStore& settings);

/// Whether exports hold the selected events only: `totalsTabViewSelection` is 1.
[[nodiscard]] bool areOnlySelectedEventsExported(const SettingsStore& settings);

/// The panel that all exports of the event table show, but for the file type.
[[nodiscard]] SavePanelRequest exportPanel(const SettingsStore& settings,
                                           const LocaleFormats& formats, const QString& homeFolder,
                                           const QString& fileType);

} // namespace quillet
