#pragma once

#include <QScrollArea>

class QLabel;

namespace quillet {

/// What could not be read, one line for each, at the foot of the list of calendars. However much
/// that is, it takes a few lines of the window only and is scrolled.
class ProblemFoot : public QScrollArea {
    Q_OBJECT

public:
    explicit ProblemFoot(QWidget* parent = nullptr);
    ~ProblemFoot() override;
    Q_DISABLE_COPY_MOVE(ProblemFoot)

    /// Plain text. Of very many the last are only counted; none hides the foot.
    void showProblems(const QStringList& problems);

    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QLabel* text_;
};

} // namespace quillet
