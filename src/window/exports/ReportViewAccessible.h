#pragma once

namespace quillet {

/// Lets assistive programs read the text of report views. Needed once, before the first is shown.
void installReportViewAccessibility();

} // namespace quillet
