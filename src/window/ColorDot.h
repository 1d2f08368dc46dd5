#pragma once

#include <QColor>
#include <QIcon>

namespace quillet {

/// A filled circle the size of a small icon; an empty icon for an invalid colour.
[[nodiscard]] QIcon colorDot(const QColor& color);

} // namespace quillet
