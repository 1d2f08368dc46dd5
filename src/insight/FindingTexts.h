#pragma once

#include "insight/Findings.h"
#include "platform/LocaleFormats.h"

#include <QSet>
#include <QString>

#include <vector>

namespace quillet {

/// What was seen, in one sentence. The input is the one in which it was found.
[[nodiscard]] QString findingSentence(const Finding& finding, const FindingsInput& input,
                                      const LocaleFormats& formats);

/// What a finding is known by when the user sets it aside: the rule and, of its events, identity,
/// times and title. So it is shown again when one of them changes. Plain text, fit for a file.
[[nodiscard]] QString findingKey(const Finding& finding, const FindingsInput& input);

/// The findings whose keys are not among those set aside.
[[nodiscard]] std::vector<Finding> withoutSetAside(std::vector<Finding> findings,
                                                   const FindingsInput& input,
                                                   const QSet<QString>& setAside);

} // namespace quillet
