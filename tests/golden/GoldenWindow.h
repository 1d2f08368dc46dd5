#pragma once

#include "backends/icsfolder/IcsFolderStore.h"
#include "golden/GoldenCase.h"
#include "support/FakeOutside.h"

#include <QTemporaryDir>

namespace quillet::golden {

/// A core that gives out texts over the calendars of the fixture, as one case describes them. Only
/// what keeps the texts is awake: the case says all settings, and what is listed.
class GoldenWindow {
public:
    explicit GoldenWindow(const GoldenCase& described);

    [[nodiscard]] QByteArray report() const;
    /// The bytes of the saved file.
    [[nodiscard]] QByteArray csv();
    [[nodiscard]] QByteArray tsv();
    [[nodiscard]] QByteArray notes() const;
    /// What the copy command puts on the pasteboard; nothing where it leaves that alone.
    [[nodiscard]] std::optional<QByteArray> copiedRows();

    /// The lines of the report's table and summary row.
    [[nodiscard]] QStringList tableLines() const;

private:
    void fillSettings();
    void fillTable();
    void fillCalendars();
    void fillEvents();
    [[nodiscard]] Instant instant(QDate day, int hour, int minute, int second) const;
    [[nodiscard]] QByteArray savedFile();

    const GoldenCase& case_;
    QTemporaryDir folder_;
    CalendarAccess access_;
    IcsFolderStore store_;
    test::FakeOutside outside_;
    test::MemorySettings& settings_ = outside_.settings;
    Core core_{outside_.seams()};
};

} // namespace quillet::golden
