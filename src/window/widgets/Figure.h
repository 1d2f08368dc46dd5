#pragma once

#include <QLabel>

namespace quillet {

/// One figure: its value to be read and copied, and what it is the value of, in quiet letters. To
/// assistive programs it is one text that says both.
class Figure : public QLabel {
    Q_OBJECT

public:
    enum class Size {
        /// The value with its unit behind it, larger than all around.
        Large,
        /// The caption above the value.
        Small,
    };

    Figure(const QString& caption, Size size, QWidget* parent = nullptr);
    ~Figure() override;
    Q_DISABLE_COPY_MOVE(Figure)

    /// The unit is said behind the value; a spoken form of both may have the unit's full word.
    void setValue(const QString& value, const QString& unit = {}, const QString& spoken = {});

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void arrange();
    [[nodiscard]] QFont quietFont() const;

    QString caption_;
    QString unit_;
    Size size_;
    bool isArranging_ = false;
};

} // namespace quillet
