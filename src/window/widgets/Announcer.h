#pragma once

#include <QWidget>

namespace quillet {

/// Says one sentence through the screen reader without moving the focus: a notification that nobody
/// sees. Sentences that come while one is about to be said replace it, so that a period that is
/// stepped through says where it ended.
class Announcer : public QWidget {
    Q_OBJECT

public:
    /// Lies in the corner of the parent, a point wide.
    explicit Announcer(QWidget& parent);
    ~Announcer() override;
    Q_DISABLE_COPY_MOVE(Announcer)

    /// Says it once the program has nothing else to do; the same one as before only when it was
    /// asked for.
    void announce(const QString& sentence);
    /// Says the last sentence again.
    void repeat();

Q_SIGNALS:
    /// Handed to the screen reader.
    void announced(const QString& sentence);

private:
    void schedule();
    void speak();

    QString sentence_;
    bool isScheduled_ = false;
};

} // namespace quillet
