#pragma once

#include <vector>

#include "controls/elements/ElementQuantity.h"

namespace controls::periodic {

/// How the values of a quantity are spread over the colours.
class QuantityScale {
  public:
    /// The usual scale of a quantity, or the other one of linear and logarithmic (not for the year).
    explicit QuantityScale(Quantity quantity, bool other = false);

    bool logarithmic() const { return logarithmic_; }
    double low() const { return low_; }
    double high() const { return high_; }

    /// From 0 at the low end to 1 at the high end; a value beyond an end counts as the end.
    double position(double value) const;

    /// The round values to be marked, in ascending order.
    std::vector<double> ticks() const;

  private:
    std::vector<double> linearTicks() const;
    std::vector<double> decades() const;

    bool logarithmic_;
    double low_;
    double high_;
};

}  // namespace controls::periodic
