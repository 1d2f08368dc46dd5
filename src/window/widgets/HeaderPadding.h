#pragma once

#include <QProxyStyle>

namespace quillet {

/// Lets the titles of a table's columns begin, or end, where the texts of `CellPadding` do.
class HeaderPadding final : public QProxyStyle {
    Q_OBJECT

public:
    explicit HeaderPadding(QObject* parent);
    ~HeaderPadding() override;
    Q_DISABLE_COPY_MOVE(HeaderPadding)

    [[nodiscard]] QRect subElementRect(SubElement element, const QStyleOption* option,
                                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

} // namespace quillet
