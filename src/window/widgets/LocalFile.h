#pragma once

#include <QString>
#include <QUrl>

namespace quillet {

/// The path of a file on this computer, which the address may name; empty when the file is
/// elsewhere, or the address none of a file.
[[nodiscard]] QString localPath(const QUrl& address);

} // namespace quillet
