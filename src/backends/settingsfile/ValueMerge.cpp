#include "backends/settingsfile/ValueMerge.h"

#include <QSet>

#include <algorithm>

namespace quillet {

namespace {

bool areAll(QMetaType::Type type, const QVariant& base, const QVariant& ours,
            const QVariant& theirs) {
    return base.typeId() == type && ours.typeId() == type && theirs.typeId() == type;
}

QVariantMap mergedMap(const QVariantMap& base, const QVariantMap& ours, const QVariantMap& theirs) {
    QVariantMap merged;
    for (const QVariantMap& members : {base, ours, theirs}) {
        for (const QString& name : members.keys()) {
            const QVariant value =
                mergedValue(base.value(name), ours.value(name), theirs.value(name));
            if (value.isValid()) {
                merged.insert(name, value);
            }
        }
    }
    return merged;
}

/// What a writer made of a list: the elements from `first` on, up to those that both lists end
/// with.
struct ListChange {
    QVariantList before;
    QVariantList after;
};

ListChange changeOf(const QVariantList& base, const QVariantList& ours) {
    const auto first = std::ranges::mismatch(base, ours).in1 - base.begin();
    const qsizetype shorter = std::min(base.size(), ours.size());
    qsizetype last = 0;
    while (first + last < shorter &&
           base.at(base.size() - 1 - last) == ours.at(ours.size() - 1 - last)) {
        ++last;
    }
    return {.before = base.mid(first, base.size() - first - last),
            .after = ours.mid(first, ours.size() - first - last)};
}

QVariantList mergedList(const QVariantList& base, const QVariantList& ours,
                        const QVariantList& theirs) {
    const auto [before, after] = changeOf(base, ours);
    QVariantList merged = theirs;
    const qsizetype replaced = std::min(before.size(), after.size());
    for (qsizetype place = 0; place < replaced; ++place) {
        const qsizetype found = merged.indexOf(before.at(place));
        if (found >= 0) {
            merged[found] = after.at(place);
        } else {
            merged.append(after.at(place));
        }
    }
    for (const QVariant& removed : before.mid(replaced)) {
        merged.removeOne(removed);
    }
    return merged + after.mid(replaced);
}

} // namespace

QVariant mergedValue(const QVariant& base, const QVariant& ours, const QVariant& theirs) {
    if (ours == base) {
        return theirs;
    }
    if (theirs == base || theirs == ours) {
        return ours;
    }
    if (areAll(QMetaType::QVariantMap, base, ours, theirs)) {
        return mergedMap(base.toMap(), ours.toMap(), theirs.toMap());
    }
    if (!areAll(QMetaType::QVariantList, base, ours, theirs)) {
        return ours;
    }
    const QVariantList before = base.toList();
    const QVariantList mine = ours.toList();
    const QVariantList other = theirs.toList();
    if (mine.size() != before.size() || other.size() != before.size()) {
        return mergedList(before, mine, other);
    }
    QVariantList merged;
    for (qsizetype place = 0; place < before.size(); ++place) {
        merged.append(mergedValue(before.at(place), mine.at(place), other.at(place)));
    }
    return merged;
}

} // namespace quillet
