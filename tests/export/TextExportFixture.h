#pragma once

#include "backends/icu/IcuLocaleFormats.h"
#include "export/TextExport.h"
#include "support/ExpectedLog.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

#include <gtest/gtest.h>

namespace quillet::test {

/// Speaks a language in which every text is its English one in capitals.
class CapitalTranslator final : public QTranslator {
public:
    CapitalTranslator() { QCoreApplication::installTranslator(this); }
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* /*context*/, const char* text,
                                    const char* /*disambiguation*/, int /*n*/) const override {
        return QString::fromUtf8(text).toUpper();
    }
};

/// What the exports of texts work on: January 2015 in UTC.
class TextExportFixture : public testing::Test {
protected:
    TextExportFixture() {
        settings.setObject("filterStartDate", QVariant::fromValue(utc(2015, 1, 1)));
        settings.setObject("filterEndDate", QVariant::fromValue(utc(2015, 1, 31, 23, 59, 59)));
    }
    [[nodiscard]] TextExport::Collaborators collaborators() {
        return {settings, formats,  panel,
                alerts,   runner,   programs,
                color,    progress, [this](const ExportProgress& asked) { return taken(asked); }};
    }
    void installBrowser(const char* version) {
        programs.versions.insert("/Applications/Safari.app", QString::fromLatin1(version));
    }
    [[nodiscard]] std::string script() const { return runner.sources.value(0).toStdString(); }
    [[nodiscard]] static QByteArray bytesOf(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    /// Asks once, as a report of 1,500 events does.
    [[nodiscard]] std::optional<QString> taken(const ExportProgress& asked) const {
        return asked(1000, 1500) == ExportAnswer::GoOn ? std::optional(text) : std::nullopt;
    }

    MemorySettings settings;
    IcuLocaleFormats formats{{"en_US", "en_US", "en_US"}, "UTC"};
    FakeSavePanel panel;
    FakeAlerts alerts;
    FakeScriptRunner runner;
    FakeInstalledPrograms programs;
    FakeTextColor color;
    FakeProgress progress;
    QString text = QStringLiteral("Report");
};

} // namespace quillet::test
