#pragma once

#include "platform/InstalledPrograms.h"
#include "platform/Pasteboard.h"
#include "platform/ScriptRunner.h"
#include "platform/TextColorSource.h"

namespace quillet {

/// For desktops on which no program takes scripts: none is ever run.
class UnavailableScriptRunner final : public ScriptRunner {
public:
    [[nodiscard]] bool isAvailable() const override { return false; }
    std::expected<void, QString> run(const QString& source) override;
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
