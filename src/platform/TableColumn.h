#pragma once

#include <QString>

namespace quillet {

/// One column of a table on screen.
class TableColumn {
public:
    virtual ~TableColumn() = default;
    [[nodiscard]] virtual QString identifier() const = 0;
    /// The text that the header cell shows.
    [[nodiscard]] virtual QString headerTitle() const = 0;
    /// In points (device-independent pixels); kept while the column is hidden.
    [[nodiscard]] virtual double widthPoints() const = 0;
    virtual void setWidthPoints(double width) = 0;
    [[nodiscard]] virtual bool isHidden() const = 0;
    virtual void setHidden(bool isHidden) = 0;
};

/// The columns of a table in display order, hidden ones counted, 0 the leftmost.
class ColumnTable {
public:
    virtual ~ColumnTable() = default;
    [[nodiscard]] virtual int columnCount() const = 0;
    /// The column at a position; positions outside [0, columnCount) are not allowed.
    [[nodiscard]] virtual TableColumn& columnAt(int position) = 0;
    /// The position of a column, -1 when there is none with that identifier.
    [[nodiscard]] virtual int positionOf(const QString& identifier) const = 0;
    /// Takes the column at `from` out and puts it in at `to`; those between move up by one.
    virtual void moveColumn(int from, int to) = 0;
};

} // namespace quillet
