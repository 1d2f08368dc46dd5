#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <expected>
#include <functional>

namespace quillet {

/// Offers to add files that were opened with the program from elsewhere as calendars. The questions
/// come one after the other, none over another dialog.
class CalendarOffer : public QObject {
    Q_OBJECT

public:
    /// Adds a folder or file of calendars; the error is a sentence for the user.
    using AddCalendar = std::function<std::expected<void, QString>(const QString& path)>;

    /// The questions are modal to the window, whose child the offer becomes.
    CalendarOffer(AddCalendar addCalendar, QWidget& window);
    ~CalendarOffer() override;
    Q_DISABLE_COPY_MOVE(CalendarOffer)

    /// One question for all the addresses, which are as the desktop wrote them. What is not on this
    /// computer is refused with a message, before the question for the others.
    void offer(const QStringList& addresses);

private:
    void showNext();
    void showOne();
    void showQuestion(const QStringList& addresses);
    void addAll(const QStringList& paths);
    void showRefusal(const QString& reasons);

    AddCalendar addCalendar_;
    QWidget& window_;
    /// The addresses of each request that waits for its turn.
    QList<QStringList> waiting_;
    QTimer turn_;
};

} // namespace quillet
