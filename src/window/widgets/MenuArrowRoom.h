#pragma once

#include <QProxyStyle>

namespace quillet {

/// Keeps the text of a tool button off the arrow that tells of its menu, for which the styles
/// leave no room.
class MenuArrowRoom final : public QProxyStyle {
    Q_OBJECT

public:
    explicit MenuArrowRoom(QObject* parent);
    ~MenuArrowRoom() override;
    Q_DISABLE_COPY_MOVE(MenuArrowRoom)

    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option,
                                         const QSize& size, const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

} // namespace quillet
