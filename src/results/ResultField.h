#pragma once

#include <QString>

#include <array>

namespace quillet {

enum class ResultsTab { AllEvents = 0, SelectedEvents = 1 };

/// The value fields of one tab of the results panel.
enum class ResultField {
    SumCost,
    SumHours,
    AvgHours,
    MinHours,
    MaxHours,
    SumMinutes,
    AvgMinutes,
    MinMinutes,
    MaxMinutes,
    SumDuration,
    AvgDuration,
    MinDuration,
    MaxDuration,
    TotalDays,
    CountEvents,
};

inline constexpr std::size_t resultFieldCount = 15;

/// In the order of the enumeration.
[[nodiscard]] const std::array<ResultField, resultFieldCount>& resultFields();

/// "sumCostTokenField"; in the other tab "sumSelectedCostTokenField".
[[nodiscard]] QString resultFieldName(ResultsTab tab, ResultField field);

} // namespace quillet
