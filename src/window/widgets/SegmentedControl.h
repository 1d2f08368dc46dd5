#pragma once

#include <QString>
#include <QWidget>

#include <vector>

namespace quillet {

class Segment;

/// A row of choices of which one holds, drawn as one piece: the chooser of the period's kind, of
/// the events that the figures are about, of a view. To the keyboard and to assistive programs its
/// segments are radio buttons: Tab goes to the chosen one, the arrow keys go on from there.
class SegmentedControl : public QWidget {
    Q_OBJECT

public:
    explicit SegmentedControl(const QString& accessibleName, QWidget* parent = nullptr);
    ~SegmentedControl() override;
    Q_DISABLE_COPY_MOVE(SegmentedControl)

    /// Adds one behind the others; its place, counted from 0, is what names it from then on.
    void addSegment(const QString& text);
    [[nodiscard]] int count() const;
    /// -1 while none is chosen.
    [[nodiscard]] int chosen() const;
    /// Shows this one as chosen and announces nothing; none for a place that there is not.
    void setChosen(int place);

Q_SIGNALS:
    /// The user, or an assistive program for him, has chosen this one; also when it was chosen
    /// already.
    void picked(int place);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void describePlaces();
    /// Tab goes to the chosen one; to the first while there is none.
    void passTabTo(int place);

    std::vector<Segment*> segments_;
    bool isShowing_ = false;
};

} // namespace quillet
