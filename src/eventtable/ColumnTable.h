#pragma once

#include "eventtable/EventColumns.h"
#include "platform/SettingsStore.h"

#include <QObject>
#include <QStringList>

#include <memory>
#include <vector>

namespace quillet {

/// One column of a table as it stands: how wide it is, and whether it is hidden.
class TableColumn : public QObject {
    Q_OBJECT

public:
    /// Shown, and as wide as in the layout that every user has.
    TableColumn(QString identifier, const SettingsStore& settings);
    ~TableColumn() override;
    Q_DISABLE_COPY_MOVE(TableColumn)

    [[nodiscard]] const QString& identifier() const { return identifier_; }
    /// Null for an identifier that is none of eventColumns().
    [[nodiscard]] const EventColumn* known() const { return known_; }
    /// The text that the header cell shows: the title as it is set now; empty when unknown.
    [[nodiscard]] QString headerTitle() const;
    /// In points (device-independent pixels); kept while the column is hidden.
    [[nodiscard]] double widthPoints() const { return widthPoints_; }
    void setWidthPoints(double width);
    [[nodiscard]] bool isHidden() const { return isHidden_; }
    void setHidden(bool isHidden);

Q_SIGNALS:
    /// A width was set, be it the same as before.
    void widthPointsSet();
    void isHiddenChanged();

private:
    QString identifier_;
    const SettingsStore& settings_;
    const EventColumn* known_;
    double widthPoints_;
    bool isHidden_ = false;
};

/// The columns of a table in display order, hidden ones counted, 0 the leftmost. What shows the
/// table on screen mirrors them; a program without a screen has them just the same.
class ColumnTable : public QObject {
    Q_OBJECT

public:
    /// With the columns of eventColumns(), in their order.
    explicit ColumnTable(const SettingsStore& settings);
    /// With columns of these identifiers, no two of them equal.
    ColumnTable(const SettingsStore& settings, const QStringList& identifiers);
    ~ColumnTable() override;
    Q_DISABLE_COPY_MOVE(ColumnTable)

    /// Those of eventColumns(), in their order.
    [[nodiscard]] static QStringList knownIdentifiers();

    [[nodiscard]] int columnCount() const { return static_cast<int>(columns_.size()); }
    /// The column at a position; positions outside [0, columnCount) are not allowed.
    [[nodiscard]] const TableColumn& columnAt(int position) const;
    [[nodiscard]] TableColumn& columnAt(int position);
    /// The position of a column, -1 when there is none with that identifier.
    [[nodiscard]] int positionOf(const QString& identifier) const;
    /// The column of an identifier, which must be there.
    [[nodiscard]] TableColumn& column(const QString& identifier);
    /// Takes the column at `from` out and puts it in at `to`; those between move up by one.
    void moveColumn(int from, int to);

Q_SIGNALS:
    void columnMoved(int from, int to);
    /// A shown column was given a width.
    void columnResized();

private:
    std::vector<std::unique_ptr<TableColumn>> columns_;
};

} // namespace quillet
