#pragma once

#include <QLabel>

namespace quillet {

/// A line of plain text that gives way where there is no room: its letters become smaller as far as
/// they may, then it ends in "…", and its tooltip tells it all. Assistive programs always read all
/// of it.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);
    ~ElidedLabel() override;
    Q_DISABLE_COPY_MOVE(ElidedLabel)

    /// How small the letters may become, as a part of their size; 1 without this.
    void setSmallestScale(double scale) { smallestScale_ = scale; }

    /// Room for the first few characters.
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// The font in which the text fits, if it may become so small.
    [[nodiscard]] QFont shownFont() const;
    [[nodiscard]] QString shownText() const;

    double smallestScale_ = 1;
};

} // namespace quillet
