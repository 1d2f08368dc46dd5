#include "backends/combined/CalendarAccess.h"

#include "platform/FileReading.h"
#include "platform/FileWriting.h"

#include <QDir>
#include <QFile>
#include <QObject>

#include <utility>

namespace quillet {

namespace {

const QByteArray grantedWord = QByteArrayLiteral("granted");
const QByteArray deniedWord = QByteArrayLiteral("denied");

constexpr qint64 longestAnswer = 64;

AuthorizationStatus keptStatus(const QString& path) {
    const QByteArray word = contentsOfFile(path, longestAnswer).value_or(QByteArray()).trimmed();
    if (word == grantedWord) {
        return AuthorizationStatus::Authorized;
    }
    return word == deniedWord ? AuthorizationStatus::Denied : AuthorizationStatus::NotDetermined;
}

std::optional<QString> keep(const QString& path, bool isGranted) {
    if (!QDir().mkpath(QFileInfo(path).path())) {
        return QStringLiteral("%1: cannot be created").arg(QFileInfo(path).path());
    }
    const auto written = writeAtomically(path, (isGranted ? grantedWord : deniedWord) + '\n');
    return written ? std::nullopt : std::optional(written.error());
}

} // namespace

/// Brings an answer from any thread to the main one, and nowhere once the access object is gone.
struct CalendarAccess::Link : QObject {
    CalendarAccess* access = nullptr;
};

CalendarAccess::CalendarAccess(const QString& stateFolder, Asker asker)
    : path_(stateFolder + QStringLiteral("/calendar-access"))
    , asker_(std::move(asker))
    , status_(keptStatus(path_))
    , link_(std::make_shared<Link>()) {
    link_->access = this;
}

CalendarAccess::~CalendarAccess() {
    link_->access = nullptr;
}

void CalendarAccess::request(EventStore::AccessCompletion completion) {
    const AuthorizationStatus known = status();
    if (known != AuthorizationStatus::NotDetermined) {
        completion(known == AuthorizationStatus::Authorized, std::nullopt);
        return;
    }
    waiting_.push_back(std::move(completion));
    if (waiting_.size() > 1) {
        return;
    }
    asker_([link = link_](bool isGranted) {
        QMetaObject::invokeMethod(
            link.get(),
            [link, isGranted] {
                if (link->access) {
                    link->access->answered(isGranted);
                }
            },
            Qt::AutoConnection);
    });
}

void CalendarAccess::forget() {
    QFile::remove(path_);
    setStatus(AuthorizationStatus::NotDetermined);
}

Observation CalendarAccess::observeStatus(std::function<void()> callback) {
    return observers_.add(std::move(callback));
}

void CalendarAccess::answered(bool isGranted) {
    const auto waiting = std::exchange(waiting_, {});
    if (waiting.empty()) {
        return;
    }
    const std::optional<QString> error = keep(path_, isGranted);
    setStatus(isGranted ? AuthorizationStatus::Authorized : AuthorizationStatus::Denied);
    // Only the first hears of the error, so that it is told once.
    std::optional<QString> untold = error;
    for (const auto& completion : waiting) {
        completion(isGranted, std::exchange(untold, std::nullopt));
    }
}

void CalendarAccess::setStatus(AuthorizationStatus status) {
    if (status_.exchange(status) != status) {
        observers_.notify();
    }
}

} // namespace quillet
