#pragma once

#include <QString>
#include <QTimeZone>

namespace quillet {

/// In which time zone the dates of the settings were stored. The settings hold instants, which are
/// days only in one zone; a file of its own keeps which.
class DatesZone {
public:
    explicit DatesZone(QString path)
        : path_(std::move(path)) {}

    /// Not valid when nothing is kept, or nothing that means a zone.
    [[nodiscard]] QTimeZone kept() const;
    /// A zone without a name is not kept, nor is any that was before. A failure is logged.
    void keep(const QTimeZone& zone) const;

private:
    QString path_;
};

} // namespace quillet
