#pragma once

#include <vector>

#include "controls/elements/ElementQuantity.h"

namespace controls::periodic {

/// Whether a quantity has a logarithmic scale too. Years have none, and neither have energies that may be 0.
constexpr bool hasBothScales(Quantity quantity) {
    return quantity != Quantity::discovery && quantity != Quantity::electronAffinity;
}

/// How the values of a quantity are spread over the colour scale.
class QuantityScale {
  public:
    /// The usual scale of a quantity. With `other`, a logarithmic scale instead of a linear one and the
    /// reverse, where the quantity has both.
    explicit QuantityScale(Quantity quantity, bool other = false);

    bool logarithmic() const { return logarithmic_; }
    double low() const { return low_; }
    double high() const { return high_; }

    /// The position of a value from 0 (the low end) to 1 (the high end). A value beyond an end is placed at
    /// it.
    double position(double value) const;

    /// The round values that the scale marks, in ascending order.
    std::vector<double> ticks() const;

  private:
    std::vector<double> linearTicks() const;
    std::vector<double> decades() const;

    bool logarithmic_;
    double low_;
    double high_;
};

}  // namespace controls::periodic
