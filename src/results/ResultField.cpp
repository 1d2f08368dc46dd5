#include "results/ResultField.h"

namespace quillet {

namespace {

struct FieldName {
    const char* first;
    const char* rest;
};

constexpr std::array<FieldName, resultFieldCount> names{{
    {"sum", "Cost"},
    {"sum", "Hours"},
    {"avg", "Hours"},
    {"min", "Hours"},
    {"max", "Hours"},
    {"sum", "Minutes"},
    {"avg", "Minutes"},
    {"min", "Minutes"},
    {"max", "Minutes"},
    {"sum", "Duration"},
    {"avg", "Duration"},
    {"min", "Duration"},
    {"max", "Duration"},
    {"total", "Days"},
    {"count", "Events"},
}};

} // namespace

const std::array<ResultField, resultFieldCount>& resultFields() {
    static const std::array<ResultField, resultFieldCount> fields = [] {
        std::array<ResultField, resultFieldCount> all{};
        for (std::size_t index = 0; index < resultFieldCount; ++index) {
            all.at(index) = static_cast<ResultField>(index);
        }
        return all;
    }();
    return fields;
}

QString resultFieldName(ResultsTab tab, ResultField field) {
    const FieldName& name = names.at(static_cast<std::size_t>(field));
    const char* const infix = tab == ResultsTab::SelectedEvents ? "Selected" : "";
    return QStringLiteral("%1%2%3TokenField")
        .arg(QLatin1StringView(name.first), QLatin1StringView(infix), QLatin1StringView(name.rest));
}

} // namespace quillet
