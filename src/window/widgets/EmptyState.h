#pragma once

#include <QWidget>

#include <functional>

class QLabel;
class QPushButton;

namespace quillet {

/// What stands in place of the table when there is nothing to list: why, and the button that helps.
class EmptyState : public QWidget {
    Q_OBJECT

public:
    explicit EmptyState(QWidget* parent = nullptr);
    ~EmptyState() override;
    Q_DISABLE_COPY_MOVE(EmptyState)

    void show(const QString& title, const QString& explanation, const QString& buttonText,
              std::function<void()> help);

private:
    QLabel* title_;
    QLabel* explanation_;
    QPushButton* button_;
    std::function<void()> help_;
};

} // namespace quillet
