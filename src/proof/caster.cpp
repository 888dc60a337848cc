// How casters hide the sun.
#include "proof/caster.hpp"

#include <cmath>
#include <numbers>

namespace dialwright::proof {

namespace {

constexpr int kRingPieces = 180;  // of a ring in a picture

// A direction square to another one.
Vec square(Vec a) {
  return unit(std::abs(a.z) < 0.9 * length(a) ? cross(a, {0, 0, 1}) : cross(a, {1, 0, 0}));
}

// Where a function of one number is least between two, by the golden section; it has one hollow
// there.
template <class Function>
double leastBetween(Function f, double low, double high) {
  constexpr double kGolden = 0.6180339887498949;
  double a = high - kGolden * (high - low), b = low + kGolden * (high - low);
  double fa = f(a), fb = f(b);
  for (int i = 0; i < 60 && high - low > 1e-13; ++i) {
    if (fa < fb) {
      high = b, b = a, fb = fa;
      a = high - kGolden * (high - low), fa = f(a);
    } else {
      low = a, a = b, fa = fb;
      b = low + kGolden * (high - low), fb = f(b);
    }
  }
  return (low + high) / 2;
}

}  // namespace

// Seen from the place, the edge is half a great circle: the sun's nearest point on it is where the
// plane square to it through the sun cuts.
std::optional<Vec> StraightEdge::nearest(Vec place, Vec sunwards) const {
  const Vec along = unit(to_ - from_);
  const Vec pole = cross(from_ - place, along);  // of the great circle
  if (!(length(pole) > 0)) return std::nullopt;
  const Vec n = unit(pole);
  const Vec onCircle = sunwards - dot(sunwards, n) * n;
  // The point from + k along whose direction from the place is that of onCircle.
  const Vec start = from_ - place;
  const Vec across = unit(start - dot(start, along) * along);
  const double reach = dot(onCircle, across);
  if (!(reach > 0)) return std::nullopt;
  return place + (dot(start, across) / reach) * onCircle;
}

std::optional<Vec> CurvedEdge::nearest(Vec place, Vec sunwards) const {
  // The square of the sine would do as well, but not behind the place.
  const auto apart = [&](double u) { return 1 - dot(unit(curve_(u) - place), sunwards); };
  const auto fine = [&](double u) { return length(cross(unit(curve_(u) - place), sunwards)); };
  int best = 0;
  double least = std::numeric_limits<double>::infinity();
  for (int i = 0; i <= pieces_; ++i) {
    const double miss = apart(static_cast<double>(i) / pieces_);
    if (miss < least) least = miss, best = i;
  }
  if (!(least < 1)) return std::nullopt;
  double low = static_cast<double>(best - 1) / pieces_;
  double high = static_cast<double>(best + 1) / pieces_;
  if (!closed_) low = std::fmax(low, 0), high = std::fmin(high, 1);
  return curve_(leastBetween(fine, low, high));
}

std::vector<std::vector<Vec>> CurvedEdge::outline(Vec) const {
  std::vector<Vec> line;
  const int pieces = 4 * pieces_;
  for (int i = 0; i <= pieces; ++i) line.push_back(curve_(static_cast<double>(i) / pieces));
  return {line};
}

// The tangent from the place to the ball that lies in the plane of the sun and the centre.
std::optional<Vec> Ball::nearest(Vec place, Vec sunwards) const {
  const Vec to = centre_ - place;
  const double far = length(to);
  if (!(far > radius_)) return std::nullopt;
  const Vec axis = (1 / far) * to;
  Vec aside = sunwards - dot(sunwards, axis) * axis;
  aside = length(aside) > 0 ? unit(aside) : square(axis);
  const double sine = radius_ / far;
  const double cosine = std::sqrt(1 - sine * sine);
  return place + (far * cosine) * (cosine * axis + sine * aside);
}

std::vector<std::vector<Vec>> Ball::outline(Vec sunwards) const {
  const Vec a = square(sunwards), b = cross(sunwards, a);
  std::vector<Vec> ring;
  for (int i = 0; i <= kRingPieces; ++i) {
    const double turn = 2 * std::numbers::pi * i / kRingPieces;
    ring.push_back(centre_ + radius_ * (std::cos(turn) * a + std::sin(turn) * b));
  }
  return {ring};
}

}  // namespace dialwright::proof
