#pragma once

#include <QWidget>

#include <vector>

namespace quillet {

/// A row of widgets that shows as many as there is room for: the last ones go first. It asks for
/// room for all and makes do with none.
class FoldingRow : public QWidget {
    Q_OBJECT

public:
    explicit FoldingRow(QWidget* parent = nullptr);
    ~FoldingRow() override;
    Q_DISABLE_COPY_MOVE(FoldingRow)

    /// Adds one behind the others and makes it the row's.
    void addWidget(QWidget& widget);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    void arrange();
    [[nodiscard]] int gap() const;

    std::vector<QWidget*> widgets_;
};

} // namespace quillet
