#pragma once

#include <QToolBar>

namespace quillet {

/// A toolbar whose buttons show their texts beside their symbols while there is room for all of
/// them, else the symbols alone, so that its last items stay in sight.
class FittingToolBar : public QToolBar {
    Q_OBJECT

public:
    explicit FittingToolBar(const QString& title, QWidget* parent = nullptr);
    ~FittingToolBar() override;
    Q_DISABLE_COPY_MOVE(FittingToolBar)

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// That the texts need; 0 until it is known.
    int widthWithTexts_ = 0;
};

} // namespace quillet
