#pragma once

#include "insight/Amounts.h"
#include "insight/Picture.h"
#include "insight/RoundedBilling.h"

#include <QString>

#include <functional>
#include <vector>

namespace quillet {

/// One link of the chain from what a calendar holds to a figure.
struct ExplanationStep {
    QString label;
    /// In the user's formats.
    QString value;
    /// Why it is so, in a sentence; may be empty.
    QString reason;
};

/// How a figure comes about. The last step's value is the text that the figure is shown as.
struct Explanation {
    /// What is explained ("Hours of “Stand-up”").
    QString title;
    std::vector<ExplanationStep> steps;
};

/// The figures that can be explained. Time is shown in any of its units.
enum class ExplainedFigure { Time, Rate, Cost };

struct ExplanationFormats {
    const LocaleFormats& formats;
    TimeUnit unit = TimeUnit::Hours;
    /// The name of the zone in which times are shown ("Europe/Berlin"); empty to leave it out.
    QString zone = {};
    /// Where a calendar stands, a file or a service; may be empty or answer an empty text.
    std::function<QString(const StoreCalendar&)> placeOf = {};
};

/// A cell of the table. The cost of an event while money is off is the empty text of its cell.
[[nodiscard]] Explanation explainEvent(const Event& event, const BillingSettings& billing,
                                       ExplainedFigure figure, const ExplanationFormats& shown);

/// The sum of time or cost over the events, as the results panel shows it: what each calendar has
/// of it, the sum of what the rows show, and the exact sum. Rates have no sum: nothing is
/// explained.
[[nodiscard]] Explanation explainTotal(const InsightInput& input, ExplainedFigure figure,
                                       const ExplanationFormats& shown);

/// A bar of a picture, time or cost likewise.
[[nodiscard]] Explanation explainBar(const Picture& picture, const Bar& bar, ExplainedFigure figure,
                                     const ExplanationFormats& shown);

/// What an entry of a rounded bill is billed for, from the exact minutes on; time, or cost with the
/// rate of the entry's calendar.
[[nodiscard]] Explanation explainBilled(const BilledEntry& entry, const BillingRounding& rounding,
                                        const InsightInput& input, ExplainedFigure figure,
                                        const ExplanationFormats& shown);

/// Rows with tabs (label, value, reason) under the title, for copying and sending.
[[nodiscard]] QString explanationText(const Explanation& explanation);

} // namespace quillet
