// The surfaces that dials are drawn on: each with its development, from space to the drawing, and
// the development's inverse.
#pragma once

#include <optional>

#include "numerics/projection.hpp"
#include "proof/vec.hpp"

namespace dialwright::proof {

// A point of a surface in space, and the surface's normal there on the side that carries the dial.
struct Place {
  Vec at, normal;
};

class Surface {
 public:
  virtual ~Surface() = default;
  // Where a point of the drawing (metres, y upwards) lies in space; nothing off the surface.
  virtual std::optional<Place> place(Punto spot) const = 0;
  // Where on the drawing the light that passes a point in space, coming from that direction, first
  // meets the dial's side; nothing when it misses it.
  virtual std::optional<Punto> shadow(Vec point, Vec sunwards) const = 0;
  // Of the points of the drawing that are one place in space the one that lies nearest to a spot:
  // there are several where a development closes.
  virtual Punto imageNear(Punto /*spot*/, Punto image) const { return image; }
};

// A plane, through a point of space that is the drawing's origin.
class Plane : public Surface {
 public:
  // The normal and the direction of the drawing's x axis, both of length 1 and square to each
  // other.
  Plane(Vec origin, Vec normal, Vec right)
      : origin_(origin), normal_(normal), right_(right), up_(cross(normal, right)) {}

  // A dial's plane through the origin of space: the declination of its normal from the South, West
  // positive, and its reclination from the upright, radians. A level one (a quarter turn) has its
  // drawing's top in the direction opposite to the declination.
  static Plane facing(double declination, double reclination);

  std::optional<Place> place(Punto spot) const override {
    return Place{origin_ + spot.x * right_ + spot.y * up_, normal_};
  }
  std::optional<Punto> shadow(Vec point, Vec sunwards) const override;

  Vec normal() const { return normal_; }
  Vec right() const { return right_; }
  Vec up() const { return up_; }

 private:
  Vec origin_, normal_, right_, up_;
};

}  // namespace dialwright::proof
