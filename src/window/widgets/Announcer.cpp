#include "window/widgets/Announcer.h"

#include <QAccessibleWidget>
#include <QTimer>

namespace quillet {

namespace {

/// Screen readers say the name of a notification when it begins to show; of all that Qt 6.4 tells
/// them this alone is said whatever has the focus.
QAccessibleInterface* makeAccessible(const QString& className, QObject* object) {
    if (className != QLatin1StringView(Announcer::staticMetaObject.className())) {
        return nullptr;
    }
    return new QAccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::Notification);
}

} // namespace

Announcer::Announcer(QWidget& parent)
    : QWidget(&parent) {
    [[maybe_unused]] static const bool isInstalled = [] {
        QAccessible::installFactory(makeAccessible);
        return true;
    }();
    setFixedSize(1, 1);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

Announcer::~Announcer() = default;

void Announcer::announce(const QString& sentence) {
    if (sentence != sentence_) {
        sentence_ = sentence;
        schedule();
    }
}

void Announcer::repeat() {
    schedule();
}

void Announcer::schedule() {
    if (!isScheduled_) {
        isScheduled_ = true;
        // After the events that already wait: those of one action may change it more than once.
        QTimer::singleShot(0, this, &Announcer::speak);
    }
}

void Announcer::speak() {
    isScheduled_ = false;
    setAccessibleName(sentence_);
    QAccessibleEvent hidden(this, QAccessible::ObjectHide);
    QAccessible::updateAccessibility(&hidden);
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
    Q_EMIT announced(sentence_);
}

} // namespace quillet
