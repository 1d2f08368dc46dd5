#include "backends/updates/ReleaseList.h"

#include "backends/updates/ReleaseNotes.h"
#include "backends/updates/VersionOrder.h"

#include <QDateTime>
#include <QXmlStreamReader>

#include <algorithm>

namespace quillet {

namespace {

constexpr qsizetype longestVersion = 64;
constexpr std::size_t mostReleases = 1000;

QString attribute(const QXmlStreamReader& xml, QLatin1StringView name) {
    return xml.attributes().value(name).toString().trimmed();
}

QDate dateOf(const QXmlStreamReader& xml) {
    const QString date = attribute(xml, QLatin1StringView("date"));
    if (!date.isEmpty()) {
        return QDate::fromString(date.left(10), Qt::ISODate);
    }
    bool isNumber = false;
    const qint64 seconds = attribute(xml, QLatin1StringView("timestamp")).toLongLong(&isNumber);
    // A number beyond the calendar's range gives no date.
    constexpr qint64 yearTenThousand = 253'402'300'800;
    return isNumber && seconds > 0 && seconds < yearTenThousand
               ? QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC).date()
               : QDate();
}

bool isForEverybody(const QXmlStreamReader& xml) {
    const QString type = attribute(xml, QLatin1StringView("type"));
    return type.isEmpty() || type == u"stable";
}

ReleaseNews readRelease(QXmlStreamReader& xml, const QStringList& languages) {
    ReleaseNews release{attribute(xml, QLatin1StringView("version")), dateOf(xml), {}};
    while (xml.readNextStartElement()) {
        if (xml.name() == u"description") {
            const QString notes = readReleaseNotes(xml, languages);
            release.notes = release.notes.isEmpty() ? notes : release.notes;
        } else {
            xml.skipCurrentElement();
        }
    }
    return release;
}

struct ListContent {
    std::vector<ReleaseNews> releases;
    /// Such as are only for trying out count too.
    bool namesAnyRelease = false;
};

ListContent readReleases(QXmlStreamReader& xml, const QStringList& languages) {
    ListContent content;
    auto& [releases, namesAnyRelease] = content;
    while (xml.readNextStartElement()) {
        namesAnyRelease =
            namesAnyRelease ||
            (xml.name() == u"release" && !attribute(xml, QLatin1StringView("version")).isEmpty());
        if (xml.name() != u"release" || !isForEverybody(xml) || releases.size() == mostReleases) {
            xml.skipCurrentElement();
            continue;
        }
        ReleaseNews release = readRelease(xml, languages);
        if (!release.version.isEmpty() && release.version.size() <= longestVersion) {
            releases.push_back(std::move(release));
        }
    }
    return content;
}

/// To the start of the next element below the current one. Lists of releases declare no entities,
/// hostile texts do: their declaration is an error.
bool enter(QXmlStreamReader& xml, QStringView name) {
    while (!xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement:
            if (xml.name() == name) {
                return true;
            }
            xml.skipCurrentElement();
            break;
        case QXmlStreamReader::DTD:
        case QXmlStreamReader::EndElement:
            return false;
        default:
            break;
        }
    }
    return false;
}

bool enterReleases(QXmlStreamReader& xml) {
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::DTD) {
            return false;
        }
        if (token == QXmlStreamReader::StartElement) {
            return xml.name() == u"releases" ||
                   (xml.name() == u"component" && enter(xml, u"releases"));
        }
    }
    return false;
}

} // namespace

std::optional<std::vector<ReleaseNews>> readReleaseList(const QByteArray& xml,
                                                        const QStringList& languages) {
    QXmlStreamReader reader(xml);
    if (!enterReleases(reader)) {
        return std::nullopt;
    }
    ListContent content = readReleases(reader, languages);
    // What follows counts too: half a list may lack just the release that matters.
    while (!reader.atEnd()) {
        reader.readNext();
    }
    if (reader.hasError() || !content.namesAnyRelease) {
        return std::nullopt;
    }
    return std::move(content.releases);
}

std::vector<ReleaseNews> newerReleases(std::vector<ReleaseNews> releases,
                                       const QString& installedVersion) {
    std::erase_if(releases, [&](const ReleaseNews& release) {
        return compareVersions(release.version, installedVersion) <= 0;
    });
    std::ranges::stable_sort(releases, [](const ReleaseNews& left, const ReleaseNews& right) {
        return compareVersions(left.version, right.version) > 0;
    });
    return releases;
}

} // namespace quillet
