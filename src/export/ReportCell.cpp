#include "export/ReportCell.h"

#include <algorithm>

namespace quillet {

namespace {

constexpr qsizetype minimumLength = 2;
constexpr QStringView ellipsis = u"...";

bool isInsidePair(QStringView text, qsizetype position) {
    return position > 0 && position < text.size() && text[position - 1].isHighSurrogate() &&
           text[position].isLowSurrogate();
}

/// The first characters of a text, `length` of them, or one less where that would part a pair.
QStringView cutTo(QStringView text, qsizetype length) {
    return text.first(isInsidePair(text, length) ? length - 1 : length);
}

} // namespace

qsizetype reportColumnLength(double widthPoints) {
    // 7.2 in single precision: a width of a whole number of characters holds them all.
    constexpr double pointsOfACharacter = 7.199999809265137;
    constexpr double maximumLength = 1e6;
    const double characters = widthPoints / pointsOfACharacter;
    return characters > minimumLength ? static_cast<qsizetype>(std::min(characters, maximumLength))
                                      : minimumLength;
}

ReportCellLines::Line ReportCellLines::unwrapped() const {
    constexpr qsizetype shortestWithEllipsis = 5;
    if (text_.size() <= length_) {
        return {.text = text_};
    }
    if (length_ < shortestWithEllipsis) {
        return {.text = cutTo(text_, length_)};
    }
    return {.text = cutTo(text_, length_ - ellipsis.size()), .isShortened = true};
}

qsizetype ReportCellLines::nextStart() const {
    const qsizetype blank = text_.sliced(start_, length_).lastIndexOf(u' ');
    if (blank >= 0) {
        return start_ + blank + 1;
    }
    const qsizetype cut = start_ + length_ - 1;
    if (!isInsidePair(text_, cut)) {
        return cut;
    }
    return cut - 1 > start_ ? cut - 1 : cut + 1;
}

ReportCellLines::Line ReportCellLines::next() {
    if (wrapping_ == CellWrapping::Off) {
        return unwrapped();
    }
    if (isUsedUp_) {
        return {};
    }
    const qsizetype start = start_;
    const qsizetype remaining = text_.size() - start;
    if (remaining < length_) {
        isUsedUp_ = true;
        return {.text = text_.sliced(start)};
    }
    start_ = nextStart();
    if (remaining == length_) {
        return {.text = text_.sliced(start)};
    }
    return {.text = text_.sliced(start, start_ - start), .hasMore = true};
}

void writeCellLine(QChar* cell, const ReportCellLines::Line& line) {
    const QChar* const source = line.text.data();
    const qsizetype length = line.text.size();
    std::replace_copy(source, source + length, cell, QChar(u'\n'), QChar(u' '));
    if (line.isShortened) {
        std::ranges::copy(ellipsis, cell + length);
    }
}

QString paddedCell(QStringView text, qsizetype length) {
    const QStringView shown = text.size() > length ? cutTo(text, length) : text;
    return shown.toString().leftJustified(length + 1);
}

QString reportCell(QStringView text, qsizetype length, std::size_t line, CellWrapping wrapping) {
    const qsizetype usedLength = std::max(length, minimumLength);
    ReportCellLines lines(text, usedLength, wrapping);
    for (std::size_t skipped = 0; skipped < line && wrapping == CellWrapping::On; ++skipped) {
        (void)lines.next();
    }
    QString cell(usedLength + 1, u' ');
    writeCellLine(cell.data(), lines.next());
    return cell;
}

} // namespace quillet
