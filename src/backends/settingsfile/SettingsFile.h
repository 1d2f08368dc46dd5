#pragma once

#include "platform/FileReading.h"
#include "platform/ObserverList.h"
#include "platform/SettingsStore.h"

#include <QFileSystemWatcher>
#include <QReadWriteLock>
#include <QSet>
#include <QTimer>

#include <map>
#include <optional>

namespace quillet {

/// The settings store in one JSON file. Values live in memory; changed keys reach the disk shortly
/// after, merged into what another running copy may have written, by an atomic replacement.
/// Settings that vanish from the disk, with the file or out of it, are written again.
///
/// Arrays are the user's own lists, which running copies share: what is written to them from
/// outside is taken in at once, and observers are told. All other values are the state of one
/// window, which another copy's writing must not move; they are read again at the next start.
class SettingsFile final : public SettingsStore {
public:
    /// Reads the file, which need not exist. One that cannot be read as settings is moved beside
    /// itself as "<name>.broken-1" (or the next free number) and startMessage() says so.
    explicit SettingsFile(const QString& path);
    /// Writes what is not yet on disk.
    ~SettingsFile() override;
    SettingsFile(const SettingsFile&) = delete;
    SettingsFile& operator=(const SettingsFile&) = delete;

    [[nodiscard]] QVariant object(const QString& key) const override;
    void setObject(const QString& key, const QVariant& value) override;
    void remove(const QString& key) override;
    [[nodiscard]] QStringList keys() const override;
    [[nodiscard]] Observation observe(const QString& key, std::function<void()> callback) override;

    /// Writes changed keys now. On failure they stay to be written, and a retry is on its way.
    void flush();
    /// Whether all that is set has reached the disk.
    [[nodiscard]] bool isWritten() const { return changedKeys_.isEmpty(); }
    /// What the user should know about the file that was found, if anything.
    [[nodiscard]] const std::optional<QString>& startMessage() const { return startMessage_; }
    /// Calls back when writing begins to fail, with a sentence for the user, and when it works
    /// again, with an empty text.
    [[nodiscard]] Observation observeWriteProblem(std::function<void(QString)> callback);

private:
    void readFile();
    /// Puts the file and its folder, as far as they are there, under observation.
    void watch();
    /// Takes in what became of the file since it was last seen.
    void followFile();
    void takeInArrays(const QVariantMap& onDisk);
    /// What the file holds now; nothing when there is none, or one that another program has spoilt
    /// during the run, which is moved aside first.
    [[nodiscard]] std::expected<QVariantMap, FileRefusal> valuesOnDisk() const;
    /// Whether settings that were in the file are there no more.
    [[nodiscard]] bool isFileShort() const;
    void writeChanges(const QVariantMap& onDisk);
    /// The writing has failed: says so, and tries again in a while.
    void keepForLater();
    void notify(const QString& key);
    void moveBrokenFileAside(const QString& reason);
    void reportWriteProblem(const QString& problem);

    QString path_;
    mutable QReadWriteLock lock_;
    QVariantMap values_;
    /// The arrays as they were when the file was last read or written.
    QVariantMap seenArrays_;
    /// The keys that the file held when it was last read or written.
    QSet<QString> seenKeys_;
    QSet<QString> changedKeys_;
    std::map<QString, ObserverList<>> observers_;
    ObserverList<QString> problemObservers_;
    QString problem_;
    std::optional<QString> startMessage_;
    QTimer writeTimer_;
    QTimer readTimer_;
    QFileSystemWatcher watcher_;
};

} // namespace quillet
