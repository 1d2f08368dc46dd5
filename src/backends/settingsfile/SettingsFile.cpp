#include "backends/settingsfile/SettingsFile.h"

#include "backends/settingsfile/SettingsJson.h"
#include "backends/settingsfile/ValueMerge.h"
#include "platform/Logging.h"
#include "texts/Localized.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>

#include <chrono>
#include <tuple>

namespace quillet {

namespace {

using namespace std::chrono_literals;
constexpr auto writeDelay = 300ms;
constexpr auto retryDelay = 5s;
/// A writer that does not replace the file at once has time to end.
constexpr auto readDelay = 50ms;
constexpr auto otherWriterPatience = 500ms;

bool readSettings(QIODevice& device, QSettings::SettingsMap& map) {
    const QByteArray text = device.readAll();
    if (text.trimmed().isEmpty()) {
        return true;
    }
    const auto values = settingsFromText(text);
    if (!values) {
        return false;
    }
    map = *values;
    return true;
}

bool writeSettings(QIODevice& device, const QSettings::SettingsMap& map) {
    const QByteArray text = settingsText(map);
    // A short write of what was buffered is told by flush() alone: closing would pass it over.
    auto* file = qobject_cast<QFileDevice*>(&device);
    return device.write(text) == text.size() && (file == nullptr || file->flush());
}

QSettings::Format jsonFormat() {
    static const QSettings::Format format =
        QSettings::registerFormat(QStringLiteral("json"), readSettings, writeSettings);
    return format;
}

QVariantMap arraysOf(const QVariantMap& values) {
    QVariantMap arrays;
    for (auto value = values.begin(); value != values.end(); ++value) {
        if (value->typeId() == QMetaType::QVariantList) {
            arrays.insert(value.key(), *value);
        }
    }
    return arrays;
}

} // namespace

SettingsFile::SettingsFile(const QString& path)
    : path_(path) {
    readFile();
    writeTimer_.setSingleShot(true);
    QObject::connect(&writeTimer_, &QTimer::timeout, [this] { flush(); });
    readTimer_.setSingleShot(true);
    QObject::connect(&readTimer_, &QTimer::timeout, [this] {
        watch();
        takeInArrays();
    });
    const auto readSoon = [this] { readTimer_.start(readDelay); };
    QObject::connect(&watcher_, &QFileSystemWatcher::directoryChanged, readSoon);
    QObject::connect(&watcher_, &QFileSystemWatcher::fileChanged, readSoon);
    watch();
}

SettingsFile::~SettingsFile() {
    flush();
}

QVariant SettingsFile::object(const QString& key) const {
    const QReadLocker lock(&lock_);
    return values_.value(key);
}

void SettingsFile::setObject(const QString& key, const QVariant& value) {
    {
        const QWriteLocker lock(&lock_);
        if (value.isValid()) {
            values_.insert(key, value);
        } else {
            values_.remove(key);
        }
    }
    changedKeys_.insert(key);
    if (!writeTimer_.isActive()) {
        writeTimer_.start(writeDelay);
    }
    notify(key);
}

void SettingsFile::remove(const QString& key) {
    setObject(key, QVariant());
}

QStringList SettingsFile::keys() const {
    const QReadLocker lock(&lock_);
    return values_.keys();
}

Observation SettingsFile::observe(const QString& key, std::function<void()> callback) {
    return observers_[key].add(std::move(callback));
}

Observation SettingsFile::observeWriteProblem(std::function<void(QString)> callback) {
    return problemObservers_.add(std::move(callback));
}

void SettingsFile::flush() {
    writeTimer_.stop();
    if (changedKeys_.isEmpty()) {
        return;
    }
    QDir().mkpath(QFileInfo(path_).absolutePath());
    // Nobody writes between the reading and the writing. Where there can be no such file, there
    // are hardly two writers, and the writing itself says what is wrong.
    QLockFile onlyWriter(path_ + QStringLiteral(".writer"));
    std::ignore = onlyWriter.tryLock(otherWriterPatience);
    keepBrokenFile();
    takeInArrays();
    // A new one for each write: an error once met stays with the object for good.
    QSettings file(path_, jsonFormat());
    for (const QString& key : std::as_const(changedKeys_)) {
        if (const QVariant value = object(key); value.isValid()) {
            file.setValue(key, value);
        } else {
            file.remove(key);
        }
    }
    file.sync();
    if (file.status() == QSettings::NoError) {
        changedKeys_.clear();
        seenArrays_ = arraysOf(values_);
        watch();
        reportWriteProblem({});
        return;
    }
    reportWriteProblem(
        localized("Settings cannot be saved to %1. They are kept until they can.").arg(path_));
    writeTimer_.start(retryDelay);
}

void SettingsFile::keepBrokenFile() {
    // Another program may have spoilt the file since it was read. Then all settings go into a new
    // one: the old one has none to merge with.
    QFile file(path_);
    if (!QFileInfo(path_).isFile() || !file.open(QIODevice::ReadOnly)) {
        return;
    }
    const QByteArray text = file.readAll();
    file.close();
    if (text.trimmed().isEmpty() || settingsFromText(text)) {
        return;
    }
    if (const auto kept = movedAside()) {
        qCWarning(quilletLog).noquote()
            << QStringLiteral("settings file spoilt by another program kept as %1").arg(*kept);
        for (const QString& key : keys()) {
            changedKeys_.insert(key);
        }
    }
}

std::optional<QString> SettingsFile::movedAside() const {
    int number = 1;
    const auto name = [&] { return QStringLiteral("%1.broken-%2").arg(path_).arg(number); };
    while (QFileInfo::exists(name())) {
        ++number;
    }
    return QFile::rename(path_, name()) ? std::optional(name()) : std::nullopt;
}

void SettingsFile::readFile() {
    const QFileInfo info(path_);
    if (!info.exists() && !info.isSymLink()) {
        return;
    }
    QFile file(path_);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly)) {
        moveBrokenFileAside(info.isFile() ? file.errorString() : localized("it is not a file"));
        return;
    }
    const QByteArray text = file.readAll();
    if (text.trimmed().isEmpty()) {
        return;
    }
    auto values = settingsFromText(text);
    if (!values) {
        moveBrokenFileAside(values.error());
        return;
    }
    values_ = *std::move(values);
    seenArrays_ = arraysOf(values_);
}

void SettingsFile::watch() {
    for (const QString& place : {QFileInfo(path_).absolutePath(), path_}) {
        if (QFileInfo::exists(place)) {
            std::ignore = watcher_.addPath(place);
        }
    }
}

void SettingsFile::takeInArrays() {
    QFile file(path_);
    if (!file.open(QIODevice::ReadOnly)) {
        return;
    }
    const auto values = settingsFromText(file.readAll());
    if (!values) {
        return;
    }
    QStringList takenIn;
    const QVariantMap theirs = arraysOf(*values);
    for (const QString& key : theirs.keys()) {
        const QVariant ours = object(key);
        const QVariant merged = changedKeys_.contains(key)
                                    ? mergedValue(seenArrays_.value(key), ours, theirs.value(key))
                                    : theirs.value(key);
        seenArrays_.insert(key, theirs.value(key));
        if (merged != ours) {
            const QWriteLocker lock(&lock_);
            values_.insert(key, merged);
            takenIn.append(key);
        }
    }
    for (const QString& key : std::as_const(takenIn)) {
        notify(key);
    }
}

void SettingsFile::notify(const QString& key) {
    if (const auto found = observers_.find(key); found != observers_.end()) {
        found->second.notify();
    }
}

void SettingsFile::moveBrokenFileAside(const QString& reason) {
    const auto kept = movedAside();
    startMessage_ =
        kept ? localized("The settings file could not be read (%1). It was kept as %2, and "
                         "Quillet starts with its first-run settings.")
                   .arg(reason, *kept)
             : localized("The settings file %2 could not be read (%1) nor moved aside. Quillet "
                         "starts with its first-run settings.")
                   .arg(reason, path_);
}

void SettingsFile::reportWriteProblem(const QString& problem) {
    if (problem.isEmpty() == problem_.isEmpty()) {
        return;
    }
    problem_ = problem;
    problemObservers_.notify(problem);
}

} // namespace quillet
