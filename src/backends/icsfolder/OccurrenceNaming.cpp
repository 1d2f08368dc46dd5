#include "backends/icsfolder/OccurrenceNaming.h"

#include <QDateTime>

namespace quillet {

namespace {

class NamesInSeries final : public OccurrenceNames {
public:
    explicit NamesInSeries(const RawTime& start)
        : zone_(start.zone)
        , form_(formFor(start)) {}

    [[nodiscard]] QString nameOf(Instant occurrenceDate) const override {
        const LocalSeconds local =
            zone_->toLocal(std::chrono::floor<std::chrono::seconds>(occurrenceDate));
        return QDateTime::fromSecsSinceEpoch(local.time_since_epoch().count(), Qt::UTC)
            .toString(form_);
    }
    [[nodiscard]] bool isException() const override { return false; }

private:
    static QString formFor(const RawTime& start) {
        if (start.kind == RawTime::Kind::Date) {
            return QStringLiteral("yyyyMMdd");
        }
        // The desktop's calendar service marks times of no zone as well.
        const bool isMarked = start.isUtc || start.kind == RawTime::Kind::Floating;
        return isMarked ? QStringLiteral("yyyyMMdd'T'HHmmss'Z'")
                        : QStringLiteral("yyyyMMdd'T'HHmmss");
    }

    ZoneCatalog::Rules zone_;
    QString form_;
};

class NameOfException final : public OccurrenceNames {
public:
    explicit NameOfException(QString name)
        : name_(std::move(name)) {}

    [[nodiscard]] QString nameOf(Instant /*occurrenceDate*/) const override { return name_; }
    [[nodiscard]] bool isException() const override { return true; }

private:
    QString name_;
};

} // namespace

OccurrenceNamesPointer namesInSeries(const RawTime& start) {
    return OccurrenceNamesPointer(new NamesInSeries(start));
}

OccurrenceNamesPointer nameOfException(const QString& recurrenceText) {
    return OccurrenceNamesPointer(new NameOfException(recurrenceText));
}

} // namespace quillet
