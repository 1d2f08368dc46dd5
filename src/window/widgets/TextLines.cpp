#include "window/widgets/TextLines.h"

#include <algorithm>

namespace quillet {

TextLines::TextLines(QString text)
    : text_(std::move(text)) {
    for (qsizetype feed = text_.indexOf(u'\n'); feed >= 0; feed = text_.indexOf(u'\n', feed + 1)) {
        longestLength_ = std::max(longestLength_, feed - starts_.back());
        starts_.push_back(feed + 1);
    }
    longestLength_ = std::max(longestLength_, text_.size() - starts_.back());
}

qsizetype TextLines::end(qsizetype number) const {
    return number + 1 < count() ? start(number + 1) - 1 : text_.size();
}

QStringView TextLines::line(qsizetype number) const {
    return QStringView(text_).sliced(start(number), end(number) - start(number));
}

qsizetype TextLines::lineAt(qsizetype position) const {
    return std::distance(starts_.begin(), std::ranges::upper_bound(starts_, position)) - 1;
}

} // namespace quillet
