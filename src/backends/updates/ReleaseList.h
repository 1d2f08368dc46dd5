#pragma once

#include "platform/UpdatePresenter.h"

#include <QByteArray>
#include <QStringList>

#include <optional>
#include <vector>

namespace quillet {

/// Reads a list of releases in AppStream's XML: a "releases" element, alone or within a
/// "component". Versions that are only for trying out are left out, as is what has no version. The
/// notes are those in the first of the languages ("de_AT", "de") that they are written in, else the
/// untranslated ones. Nothing when the text is no such list, or names no release at all; one that
/// names only versions for trying out is an empty list.
[[nodiscard]] std::optional<std::vector<ReleaseNews>> readReleaseList(const QByteArray& xml,
                                                                      const QStringList& languages);

/// Those newer than the installed version, the newest first.
[[nodiscard]] std::vector<ReleaseNews> newerReleases(std::vector<ReleaseNews> releases,
                                                     const QString& installedVersion);

} // namespace quillet
