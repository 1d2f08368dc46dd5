#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace quillet {

/// A text and where its lines begin, so that any line of a long one is found at once. Positions
/// count UTF-16 units from 0; a text that ends with a line feed has an empty last line.
class TextLines {
public:
    TextLines() = default;
    explicit TextLines(QString text);

    [[nodiscard]] const QString& text() const { return text_; }
    /// At least 1.
    [[nodiscard]] qsizetype count() const { return static_cast<qsizetype>(starts_.size()); }
    /// Without its line feed. Lines outside [0, count) are not allowed.
    [[nodiscard]] QStringView line(qsizetype number) const;
    [[nodiscard]] qsizetype start(qsizetype number) const {
        return starts_[static_cast<std::size_t>(number)];
    }
    /// The line in which a position in [0, text length] stands; a line feed belongs to the line
    /// that it ends.
    [[nodiscard]] qsizetype lineAt(qsizetype position) const;
    /// Of the longest line, in UTF-16 units.
    [[nodiscard]] qsizetype longestLength() const { return longestLength_; }

private:
    [[nodiscard]] qsizetype end(qsizetype number) const;

    QString text_;
    std::vector<qsizetype> starts_{0};
    qsizetype longestLength_ = 0;
};

} // namespace quillet
