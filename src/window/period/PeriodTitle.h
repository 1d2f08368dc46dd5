#pragma once

#include <QToolButton>

namespace quillet {

/// The period's name as a button: larger than all but the totals, and with a menu. Where there is
/// no room for all of it, it says the rest in its tooltip, and never makes its surroundings wider.
class PeriodTitle : public QToolButton {
    Q_OBJECT

public:
    explicit PeriodTitle(QWidget* parent = nullptr);
    ~PeriodTitle() override;
    Q_DISABLE_COPY_MOVE(PeriodTitle)

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void enlarge();
    [[nodiscard]] int roomForArrow() const;
    [[nodiscard]] QString shownText() const;

    bool isEnlarging_ = false;
};

} // namespace quillet
