#pragma once

#include <QCalendarWidget>

class QTableView;

namespace quillet {

/// A month grid from which one end of the reporting period is picked. A click acts as soon as the
/// button goes down; with the keyboard a day is reached first and picked with Return.
class PeriodPicker final : public QCalendarWidget {
    Q_OBJECT

public:
    /// The name is what assistive programs tell.
    PeriodPicker(const QString& name, Qt::DayOfWeek firstDayOfWeek, QWidget* parent);
    ~PeriodPicker() override;
    Q_DISABLE_COPY_MOVE(PeriodPicker)

Q_SIGNALS:
    void picked(QDate date);
    /// The focus went elsewhere; a day that was reached and not picked is still the selected one.
    void left();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintCell(QPainter* painter, const QRect& rect, QDate date) const override;

private:
    void drawInPaletteColors();
    void clickAt(const QMouseEvent& press);

    QTableView* grid_;
    bool isClicking_ = false;
};

} // namespace quillet
