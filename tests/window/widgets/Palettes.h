#pragma once

#include <QPalette>
#include <QString>

#include <vector>

namespace quillet::test {

struct NamedPalette {
    const char* name;
    QPalette palette;
};

/// The colours that desktops give their programs, light and dark, so that what is painted is
/// readable in all of them.
[[nodiscard]] inline std::vector<NamedPalette> palettesOfDesktops() {
    const auto made = [](const char* name, const char* window, const char* windowText,
                         const char* base, const char* text, const char* highlight,
                         const char* highlightedText) {
        QPalette palette;
        palette.setColor(QPalette::Window, QColor(window));
        palette.setColor(QPalette::WindowText, QColor(windowText));
        palette.setColor(QPalette::Button, QColor(window));
        palette.setColor(QPalette::ButtonText, QColor(windowText));
        palette.setColor(QPalette::Base, QColor(base));
        palette.setColor(QPalette::Text, QColor(text));
        palette.setColor(QPalette::Highlight, QColor(highlight));
        palette.setColor(QPalette::HighlightedText, QColor(highlightedText));
        return NamedPalette{name, palette};
    };
    return {
        made("Fusion light", "#efefef", "#000000", "#ffffff", "#000000", "#308cc6", "#ffffff"),
        made("Fusion dark", "#323232", "#ffffff", "#242424", "#ffffff", "#308cc6", "#ffffff"),
        made("Adwaita light", "#f6f5f4", "#2e3436", "#ffffff", "#000000", "#3584e4", "#ffffff"),
        made("Adwaita dark", "#353535", "#eeeeec", "#2d2d2d", "#ffffff", "#15539e", "#ffffff"),
        made("Breeze light", "#eff0f1", "#232629", "#fcfcfc", "#232629", "#3daee9", "#ffffff"),
        made("Breeze dark", "#31363b", "#eff0f1", "#232629", "#eff0f1", "#3daee9", "#fcfcfc"),
        made("Yaru light", "#fafafa", "#3d3d3d", "#ffffff", "#3d3d3d", "#e95420", "#ffffff"),
        made("High contrast", "#000000", "#ffffff", "#000000", "#ffffff", "#ffffff", "#000000"),
    };
}

} // namespace quillet::test
