#pragma once

#include "platform/Alert.h"
#include "platform/ListController.h"
#include "platform/Observation.h"
#include "platform/Setting.h"

#include <QVariantMap>

namespace quillet {

/// An element of a stored list, to which the user gives a name.
struct NamedRecord {
    /// What stands in the list; empty where the record has no name.
    QString name;
    /// All that is stored of it, the name too, as it came: what this version does not know or
    /// cannot read is written back as it is, and what is missing stays missing.
    QVariantMap members;

    friend bool operator==(const NamedRecord&, const NamedRecord&) = default;
};

/// Whether a record has this member as a bool, a number or a text, which the typed getters read.
[[nodiscard]] bool isReadableMember(const QVariant& value);

/// An empty text where there is none: a record that the program makes lacks nothing.
[[nodiscard]] QString presentText(const QString& text);

/// The array of one setting as a list of records: they are made, renamed, and deleted, but for the
/// first. Every change is written to the setting, and every write of it is shown. The list is
/// neither sorted nor filtered. Elements of the array that are no records are not shown; they are
/// kept behind the records.
class NamedRecordsController : public ListController<NamedRecord> {
    Q_OBJECT

public:
    /// The user's new name for a record; a row that is not there is left alone.
    void rename(std::size_t row, const QString& name);

Q_SIGNALS:
    /// The name cell of this row is to be edited, with its text selected.
    void nameEditingRequested(std::size_t row);

protected:
    struct Kind {
        const Setting<QVariantList>& list;
        QString nameMember;
        /// The alert that refuses to delete the first record, in English.
        const char* firstStaysMessage;
        const char* firstStaysReason;
    };

    NamedRecordsController(SettingsStore& settings, AlertPresenter& alerts, Kind kind);

    /// Stores an empty list where there is none, and shows the list from now on.
    void followStoredList();
    /// Selects the first record unless one is selected: the keys of the list have something to
    /// begin with.
    void selectFirstUnlessSelected();
    /// Appends and selects a record.
    void append(const QString& name, QVariantMap members);
    /// A first name for the next record: the text and its number in the list, from 1.
    [[nodiscard]] QString numberedName(const QString& text) const;
    /// Asks for the name of the last record to be edited.
    void editLastName();
    /// Deletes the first selected record, once the user agrees; the first of the list is refused.
    /// Nothing without a selection.
    void removeSelected();

    [[nodiscard]] SettingsStore& settings() const { return settings_; }

private:
    void read();
    void store(const std::vector<NamedRecord>& records);

    SettingsStore& settings_;
    AlertPresenter& alerts_;
    Kind kind_;
    QVariantList otherElements_;
    Observation storedList_;
};

} // namespace quillet
