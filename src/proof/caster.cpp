// How casters hide the sun.
#include "proof/caster.hpp"

#include <cmath>
#include <numbers>

namespace dialwright::proof {

namespace {

constexpr int kRingPieces = 180;  // of a ring in a picture

struct Sample {
  double at, value;
};

// Where the parabola through three samples has its vertex; no number where they lie on a line.
double vertexOf(const Sample& a, const Sample& b, const Sample& c) {
  const double left = (b.at - a.at) * (b.value - c.value);
  const double right = (b.at - c.at) * (b.value - a.value);
  return b.at - ((b.at - a.at) * left - (b.at - c.at) * right) / (2 * (left - right));
}

// Where a function of one number is least between two; it has one hollow there, with the middle
// number in it. By parabolas, and by the golden section where these lead nowhere.
template <class Function>
double leastBetween(Function f, double low, double middle, double high) {
  constexpr double kGolden = 0.3819660112501051;
  Sample a{low, f(low)}, b{middle, f(middle)}, c{high, f(high)};
  for (int i = 0; i < 60 && c.at - a.at > 1e-13; ++i) {
    double next = vertexOf(a, b, c);
    const bool inside = next > a.at && next < c.at;
    if (inside && std::abs(next - b.at) < 1e-14) break;
    // Every third time, so that both ends close in.
    if (!inside || i % 3 == 2) {
      next = b.at + kGolden * ((c.at - b.at > b.at - a.at ? c.at : a.at) - b.at);
    }
    const Sample sample{next, f(next)};
    const bool better = sample.value < b.value;
    if (next < b.at) {
      (better ? c : a) = better ? b : sample;
    } else {
      (better ? a : c) = better ? b : sample;
    }
    if (better) b = sample;
  }
  return b.at;
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

CurvedEdge::CurvedEdge(Curve curve, bool closed, int pieces)
    : curve_(std::move(curve)), closed_(closed) {
  for (int i = 0; i <= pieces; ++i) points_.push_back(curve_(static_cast<double>(i) / pieces));
}

std::optional<Vec> CurvedEdge::nearest(Vec place, Vec sunwards) const {
  std::size_t best = 0;
  double most = 0;  // the square of the cosine of the angle from the sun
  for (std::size_t i = 0; i < points_.size(); ++i) {
    const Vec to = points_[i] - place;
    const double along = dot(to, sunwards);
    const double square = along > 0 ? along * along / dot(to, to) : 0;
    if (square > most) most = square, best = i;
  }
  if (!(most > 0)) return std::nullopt;
  // The square of the sine: it keeps its digits where it is small.
  const auto apart = [&](double u) {
    const Vec aside = cross(unit(curve_(u) - place), sunwards);
    return dot(aside, aside);
  };
  const double piece = 1.0 / static_cast<double>(points_.size() - 1);
  const double middle = static_cast<double>(best) * piece;
  double low = middle - piece, high = middle + piece;
  if (!closed_) low = std::fmax(low, 0), high = std::fmin(high, 1);
  return curve_(leastBetween(apart, low, middle, high));
}

std::vector<std::vector<Vec>> CurvedEdge::outline(Vec) const {
  std::vector<Vec> line;
  const std::size_t pieces = 4 * (points_.size() - 1);
  for (std::size_t i = 0; i <= pieces; ++i)
    line.push_back(curve_(static_cast<double>(i) / static_cast<double>(pieces)));
  return {line};
}

std::vector<Vec> Ring::points() const {
  std::vector<Vec> all;
  for (int i = 0; i <= kRingPieces; ++i) all.push_back(at(2 * std::numbers::pi * i / kRingPieces));
  return all;
}

RingEdge::RingEdge(const Ring& ring)
    : CurvedEdge([ring](double u) { return ring.at(2 * std::numbers::pi * u); }, true),
      ring_(ring) {}

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
  const Vec a = square(sunwards);
  return {Ring{centre_, radius_, a, cross(sunwards, a)}.points()};
}

}  // namespace dialwright::proof
