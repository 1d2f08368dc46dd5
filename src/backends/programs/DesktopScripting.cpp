#include "backends/programs/DesktopScripting.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPalette>

namespace quillet {

std::expected<void, QString> UnavailableScriptRunner::run(const QString& /*source*/) {
    return std::unexpected(QStringLiteral("scripts cannot be run on this desktop"));
}

QString PackagedPrograms::shortVersion(const QString& /*path*/) const {
    return {};
}

ColorFractions PaletteTextColor::textColor() const {
    const QColor color = QGuiApplication::palette().color(QPalette::Text).toRgb();
    return {.red = color.redF(), .green = color.greenF(), .blue = color.blueF()};
}

void DesktopPasteboard::clear() {
    QGuiApplication::clipboard()->clear();
}

void DesktopPasteboard::writeText(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
}

} // namespace quillet
