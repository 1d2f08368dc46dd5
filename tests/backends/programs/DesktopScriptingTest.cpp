#include "backends/programs/DesktopScripting.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QPalette>

#include <gtest/gtest.h>

namespace quillet {

TEST(DesktopScriptingTest, NoProgramHasAShortVersion) {
    EXPECT_TRUE(PackagedPrograms().shortVersion("/Applications/Safari.app").isNull());
    EXPECT_TRUE(PackagedPrograms().shortVersion("/usr/bin/env").isNull());
}

TEST(DesktopScriptingTest, TheTextColourFollowsThePalette) {
    const QPalette before = QGuiApplication::palette();
    QPalette palette = before;
    palette.setColor(QPalette::Text, QColor(255, 0, 51));
    QGuiApplication::setPalette(palette);
    const ColorFractions color = PaletteTextColor().textColor();
    EXPECT_NEAR(color.red, 1.0, 1e-6);
    EXPECT_NEAR(color.green, 0.0, 1e-6);
    EXPECT_NEAR(color.blue, 0.2, 1e-4);
    palette.setColor(QPalette::Text, QColor::fromHsv(120, 255, 255));
    QGuiApplication::setPalette(palette);
    EXPECT_NEAR(PaletteTextColor().textColor().green, 1.0, 1e-6);
    EXPECT_NEAR(PaletteTextColor().textColor().red, 0.0, 1e-6);
    QGuiApplication::setPalette(before);
}

TEST(DesktopScriptingTest, ThePasteboardIsTheClipboardAndHoldsPlainText) {
    DesktopPasteboard pasteboard;
    pasteboard.writeText("a\t<b>\n");
    const QClipboard& clipboard = *QGuiApplication::clipboard();
    EXPECT_EQ(clipboard.text(), QStringLiteral("a\t<b>\n"));
    EXPECT_FALSE(clipboard.mimeData()->hasHtml());
    pasteboard.clear();
    EXPECT_EQ(clipboard.text(), QString());
}

} // namespace quillet
