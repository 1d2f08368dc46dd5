#include "backends/settingsfile/SettingsFile.h"

#include "backends/settingsfile/SettingsJson.h"
#include "backends/settingsfile/ValueMerge.h"
#include "platform/Logging.h"
#include "texts/Localized.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>

#include <algorithm>
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

/// Nobody's settings are that long; what is longer is no such file.
constexpr qint64 largestFile = qint64(32) * 1024 * 1024;

/// The settings in the file; none in an empty one.
std::expected<QVariantMap, FileRefusal> readValues(const QString& path) {
    const auto text = contentsOfFile(path, largestFile);
    if (!text) {
        return std::unexpected(text.error());
    }
    if (text->trimmed().isEmpty()) {
        return QVariantMap();
    }
    auto values = settingsFromText(*text);
    if (!values) {
        return std::unexpected(FileRefusal{FileRefusal::Kind::Spoilt, values.error()});
    }
    return *std::move(values);
}

QSet<QString> keysOf(const QVariantMap& values) {
    return {values.keyBegin(), values.keyEnd()};
}

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
    if (text.size() > largestFile) {
        return false;
    }
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
        followFile();
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
    if (changedKeys_.isEmpty() && !isFileShort()) {
        return;
    }
    QDir().mkpath(QFileInfo(path_).absolutePath());
    // Nobody writes between the reading and the writing. Where there can be no such file, there
    // are hardly two writers, and the writing itself says what is wrong.
    QLockFile onlyWriter(path_ + QStringLiteral(".writer"));
    std::ignore = onlyWriter.tryLock(otherWriterPatience);
    if (const auto onDisk = valuesOnDisk()) {
        takeInArrays(*onDisk);
        writeChanges(*onDisk);
    } else {
        // Reported below: what cannot be read cannot be merged with either.
        keepForLater();
    }
}

void SettingsFile::writeChanges(const QVariantMap& onDisk) {
    // What the file does not hold, though it is set, has been taken out of it from outside.
    for (const QString& key : keys()) {
        if (!onDisk.contains(key)) {
            changedKeys_.insert(key);
        }
    }
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
    if (file.status() != QSettings::NoError) {
        keepForLater();
        return;
    }
    changedKeys_.clear();
    seenArrays_ = arraysOf(values_);
    seenKeys_ = keysOf(readValues(path_).value_or(QVariantMap()));
    watch();
    reportWriteProblem({});
}

void SettingsFile::keepForLater() {
    reportWriteProblem(
        localized("Settings cannot be saved to %1. They are kept until they can.").arg(path_));
    writeTimer_.start(retryDelay);
}

std::expected<QVariantMap, FileRefusal> SettingsFile::valuesOnDisk() const {
    auto values = readValues(path_);
    if (values || values.error().kind == FileRefusal::Kind::Missing) {
        return values.value_or(QVariantMap());
    }
    // What the system does not let be read may be whole; all else has been spoilt by another
    // program since it was read, and is kept too.
    if (values.error().kind == FileRefusal::Kind::Unreadable) {
        return values;
    }
    const auto kept = movedAside(path_);
    if (!kept) {
        return values;
    }
    qCWarning(quilletLog).noquote()
        << QStringLiteral("settings file spoilt by another program kept as %1").arg(*kept);
    return QVariantMap();
}

bool SettingsFile::isFileShort() const {
    const auto onDisk = readValues(path_);
    if (!onDisk && onDisk.error().kind != FileRefusal::Kind::Missing) {
        return false;
    }
    const QStringList present = keys();
    return std::ranges::any_of(present, [&](const QString& key) {
        return seenKeys_.contains(key) && !(onDisk && onDisk->contains(key));
    });
}

void SettingsFile::readFile() {
    auto values = readValues(path_);
    if (values) {
        values_ = *std::move(values);
        seenArrays_ = arraysOf(values_);
        seenKeys_ = keysOf(values_);
    } else if (values.error().kind != FileRefusal::Kind::Missing || QFileInfo(path_).isSymLink()) {
        moveBrokenFileAside(values.error().reason);
    }
}

void SettingsFile::watch() {
    for (const QString& place : {QFileInfo(path_).absolutePath(), path_}) {
        if (QFileInfo::exists(place)) {
            std::ignore = watcher_.addPath(place);
        }
    }
}

void SettingsFile::followFile() {
    if (const auto onDisk = readValues(path_)) {
        takeInArrays(*onDisk);
    }
    // The file, or some of it, may be gone.
    if (!writeTimer_.isActive() && isFileShort()) {
        writeTimer_.start(writeDelay);
    }
}

void SettingsFile::takeInArrays(const QVariantMap& onDisk) {
    QStringList takenIn;
    const QVariantMap theirs = arraysOf(onDisk);
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
    const auto kept = movedAside(path_);
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
