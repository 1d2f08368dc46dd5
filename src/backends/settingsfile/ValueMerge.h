#pragma once

#include <QVariant>

namespace quillet {

/// What a value becomes that two writers changed, both from the same base.
///
/// What only one of them changed is taken from it. Records are merged member by member and lists of
/// an unchanged length place by place. In other lists the writers' own changes are made to what
/// the others wrote: an element that was replaced or removed is found by its value, wherever it is
/// now, and what was added comes last. Where both changed the same thing, `ours` wins; of elements
/// of a list, both versions stay. An invalid value is one that is not there.
[[nodiscard]] QVariant mergedValue(const QVariant& base, const QVariant& ours,
                                   const QVariant& theirs);

} // namespace quillet
