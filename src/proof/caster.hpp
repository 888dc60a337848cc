// What throws a dial's shadow, and the one question that the proof asks of it: from a place, in
// which directions does it hide the sun?
#pragma once

#include <cmath>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "proof/vec.hpp"

namespace dialwright::proof {

class Caster {
 public:
  virtual ~Caster() = default;
  // The point of the caster that, seen from a place, stands nearest to the sun's direction: the
  // place is in the shadow's edge when the two directions are one. Nothing where no part of the
  // caster can be seen against the sky.
  virtual std::optional<Vec> nearest(Vec place, Vec sunwards) const = 0;
  // The caster as lines in space, for a picture of its shadow.
  virtual std::vector<std::vector<Vec>> outline(Vec sunwards) const = 0;
};

// The tip of a style.
class Tip : public Caster {
 public:
  explicit Tip(Vec at, Vec foot = {}) : at_(at), foot_(foot) {}
  std::optional<Vec> nearest(Vec, Vec) const override { return at_; }
  // The style that carries it.
  std::vector<std::vector<Vec>> outline(Vec) const override { return {{foot_, at_}}; }

 private:
  Vec at_, foot_;
};

// A straight edge through a point; without end in both directions as a shadow goes, drawn with its
// two ends.
class StraightEdge : public Caster {
 public:
  StraightEdge(Vec from, Vec to) : from_(from), to_(to) {}
  std::optional<Vec> nearest(Vec place, Vec sunwards) const override;
  std::vector<std::vector<Vec>> outline(Vec) const override { return {{from_, to_}}; }

 private:
  Vec from_, to_;
};

// An edge or a wire along any curve of space: its point for each value from 0 to 1.
class CurvedEdge : public Caster {
 public:
  using Curve = std::function<Vec(double)>;
  // A curve that is one piece without sharp bends is found well with some dozens of pieces.
  explicit CurvedEdge(Curve curve, bool closed = false, int pieces = 64);
  std::optional<Vec> nearest(Vec place, Vec sunwards) const override;
  std::vector<std::vector<Vec>> outline(Vec) const override;

 private:
  Curve curve_;
  bool closed_;
  std::vector<Vec> points_;  // of the ends of its pieces
};

// A ring about a centre, in the plane of two directions that are square to one another.
struct Ring {
  Vec centre;
  double radius = 0;
  Vec a, b;

  // Its point at an angle (radians) from the first direction.
  Vec at(double angle) const {
    return centre + radius * (std::cos(angle) * a + std::sin(angle) * b);
  }
  // The whole of it, for a picture.
  std::vector<Vec> points() const;
};

// An edge that is a ring.
class RingEdge : public CurvedEdge {
 protected:
  explicit RingEdge(const Ring& ring);

  const Ring ring_;
};

// A ball: the ring of it that the sun's rays touch.
class Ball : public Caster {
 public:
  Ball(Vec centre, double radius) : centre_(centre), radius_(radius) {}
  std::optional<Vec> nearest(Vec place, Vec sunwards) const override;
  std::vector<std::vector<Vec>> outline(Vec sunwards) const override;

 protected:
  const Vec centre_;
  const double radius_;
};

}  // namespace dialwright::proof
