#include "backends/updates/VersionOrder.h"

#include <algorithm>

namespace quillet {

namespace {

/// Only these count as numbers, whatever other digits Unicode knows.
bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

bool isLetter(QChar character) {
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
}

struct Parts {
    QStringView epoch;
    QStringView upstream;
    QStringView revision;
};

Parts partsOf(QStringView version) {
    Parts parts;
    const qsizetype colon = version.indexOf(u':');
    if (colon > 0 && std::ranges::all_of(version.first(colon), isDigit)) {
        parts.epoch = version.first(colon);
        version = version.sliced(colon + 1);
    }
    const qsizetype hyphen = version.lastIndexOf(u'-');
    parts.upstream = hyphen < 0 ? version : version.first(hyphen);
    parts.revision = hyphen < 0 ? QStringView() : version.sliced(hyphen + 1);
    return parts;
}

/// Of the first sign of the rest; its end, and the digits that end it, lie between tilde and
/// letters.
int weight(QStringView rest) {
    if (rest.isEmpty() || isDigit(rest.front())) {
        return 0;
    }
    const QChar first = rest.front();
    if (first == u'~') {
        return -1;
    }
    constexpr int afterLetters = 0x10000;
    return isLetter(first) ? first.unicode() : first.unicode() + afterLetters;
}

QStringView takeNumber(QStringView& rest) {
    const auto* end = std::ranges::find_if_not(rest, isDigit);
    const auto count = end - rest.begin();
    const QStringView digits = rest.first(count);
    rest = rest.sliced(count);
    const auto* firstThatCounts =
        std::ranges::find_if(digits, [](QChar digit) { return digit != u'0'; });
    return digits.sliced(firstThatCounts - digits.begin());
}

std::weak_ordering compareNumbers(QStringView left, QStringView right) {
    if (left.size() != right.size()) {
        return left.size() <=> right.size();
    }
    return left.compare(right) <=> 0;
}

std::weak_ordering comparePart(QStringView left, QStringView right) {
    while (!left.isEmpty() || !right.isEmpty()) {
        const auto isInText = [](QStringView rest) {
            return !rest.isEmpty() && !isDigit(rest.front());
        };
        while (isInText(left) || isInText(right)) {
            if (const auto order = weight(left) <=> weight(right); order != 0) {
                return order;
            }
            left = left.sliced(1);
            right = right.sliced(1);
        }
        const QStringView leftNumber = takeNumber(left);
        const QStringView rightNumber = takeNumber(right);
        if (const auto order = compareNumbers(leftNumber, rightNumber); order != 0) {
            return order;
        }
    }
    return std::weak_ordering::equivalent;
}

} // namespace

std::weak_ordering compareVersions(QStringView left, QStringView right) {
    const Parts leftParts = partsOf(left);
    const Parts rightParts = partsOf(right);
    for (const auto part : {&Parts::epoch, &Parts::upstream, &Parts::revision}) {
        if (const auto order = comparePart(leftParts.*part, rightParts.*part); order != 0) {
            return order;
        }
    }
    return std::weak_ordering::equivalent;
}

} // namespace quillet
