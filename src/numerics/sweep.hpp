// The counted loop: from the lower bound by the step, accumulating, while not past the upper bound.
#pragma once

#include <cmath>
#include <cstddef>

namespace dialwright {

// A range of accumulated samples. A step of zero or below, a fault in a bound, or a range past its
// limit of samples makes it empty, so that a loop over it always ends.
class Sweep {
 public:
  static constexpr double kMaxSamples = 2'000'000;

  Sweep() = default;

  // The samples first, first + step, ... up to last.
  Sweep(double first, double last, double step) : first_(first), last_(last), step_(step) {
    const bool advances = step > 0 && first + step > first && last + step > last;
    if (!advances || !(std::floor(samples()) <= kMaxSamples)) *this = {};
  }

  class Iterator {
   public:
    using value_type = double;
    using difference_type = std::ptrdiff_t;

    Iterator(double value, double step) : value_(value), step_(step) {}
    double operator*() const { return value_; }
    Iterator& operator++() {
      value_ += step_;
      return *this;
    }
    double value() const { return value_; }

   private:
    double value_;
    double step_;
  };

  class End {
   public:
    explicit End(double last) : last_(last) {}
    friend bool operator==(const Iterator& at, const End& end) {
      return !(at.value() <= end.last_);
    }

   private:
    double last_;
  };

  Iterator begin() const { return {first_, step_}; }
  End end() const { return End{last_}; }

  // The lower bound: the value of the first sample, which most curves never draw to.
  double first() const { return first_; }

  // The number of samples that the bounds allow for, before rounding in the accumulated value; a
  // NaN on faults.
  double samples() const { return last_ < first_ ? 0 : (last_ - first_) / step_ + 1; }

 private:
  double first_ = 1;
  double last_ = 0;
  double step_ = 1;
};

}  // namespace dialwright
