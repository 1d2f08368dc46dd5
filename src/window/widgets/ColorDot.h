#pragma once

#include <QColor>
#include <QIcon>

namespace quillet {

/// A filled circle the size of a small icon; a grey ring for an invalid colour, which keeps the
/// names of calendars without a colour in line with the others. On selected rows it has a white
/// rim.
[[nodiscard]] QIcon colorDot(const QColor& color);

} // namespace quillet
