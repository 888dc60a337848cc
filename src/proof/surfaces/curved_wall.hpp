// Upright walls with a bent level section: the drawing's x is the length of the section's arc from
// the origin, to the right of who faces the wall; y is the height over the origin.
#pragma once

#include <array>

#include "proof/surface.hpp"

namespace dialwright::proof {

class CurvedWall : public Surface {
 public:
  std::optional<Place> place(Punto spot) const override;
  // Through the wall itself from behind, but not through its other side.
  std::optional<Punto> shadow(Vec point, Vec sunwards) const override;

 protected:
  using Crossings = std::array<std::optional<double>, 2>;

  // The section on the level of the origin by a parameter u, 0 in the origin.
  virtual Place section(double u) const = 0;
  virtual double arc(double u) const = 0;
  // The u of an arc; nothing beyond the section's ends.
  virtual std::optional<double> unroll(double arc) const = 0;
  // Where the level line through a point, both ways without end, meets the section.
  virtual Crossings crossings(Vec through, Vec along) const = 0;
};

// A cylinder that looks to a declination (radians, West positive) where the origin is; the dial is
// on its outside, or inside, in a cylinder that is open at the top.
class RoundWall : public CurvedWall {
 public:
  enum class Side { Outside, Inside };
  RoundWall(double radius, Side side, double declination);

  Vec normal() const { return normal_; }  // in the origin
  Punto imageNear(Punto spot, Punto image) const override;

 protected:
  Place section(double u) const override;  // u is the central angle
  double arc(double u) const override { return radius_ * u; }
  std::optional<double> unroll(double arc) const override;
  Crossings crossings(Vec through, Vec along) const override;

 private:
  double radius_, side_;
  Vec normal_, right_, centre_;
};

// A parabola with its axis in the meridian, its vertex to the South (side +1) or to the North (-1),
// which looks to a declination (radians, West positive) where the origin is.
class ParabolicWall : public CurvedWall {
 public:
  ParabolicWall(double parameter, double side, double declination)
      : parameter_(side * parameter), slope_(-std::tan(declination)) {}

  Vec normal() const { return section(0).normal; }  // in the origin

 protected:
  Place section(double u) const override;  // u is the way to the East
  double arc(double u) const override;
  std::optional<double> unroll(double arc) const override;
  Crossings crossings(Vec through, Vec along) const override;

 private:
  double slopeAt(double u) const { return slope_ + u / parameter_; }  // to the North
  double northOf(double u) const { return u * (slope_ + u / (2 * parameter_)); }

  double parameter_;  // negative with the vertex to the North
  double slope_;      // in the origin
};

}  // namespace dialwright::proof
