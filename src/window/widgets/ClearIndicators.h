#pragma once

#include <QProxyStyle>

namespace quillet {

/// The desktop's style with boxes and buttons to tick that can be told from a dark ground: the
/// toolkit's own style outlines them in a still darker colour.
class ClearIndicators : public QProxyStyle {
    Q_OBJECT

public:
    explicit ClearIndicators(QStyle* style = nullptr)
        : QProxyStyle(style) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

/// Puts it over the application's style, where that is the one that needs it.
void installClearIndicators();

} // namespace quillet
