#pragma once

namespace quillet {

/// A colour by its components, each from 0 to 1.
struct ColorFractions {
    double red = 0;
    double green = 0;
    double blue = 0;

    friend bool operator==(const ColorFractions&, const ColorFractions&) = default;
};

class TextColorSource {
public:
    virtual ~TextColorSource() = default;
    /// The colour in which the desktop writes text, now.
    [[nodiscard]] virtual ColorFractions textColor() const = 0;
};

} // namespace quillet
