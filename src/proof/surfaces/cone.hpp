// The inside of a cone, unrolled to a sector about its vertex.
#pragma once

#include "proof/surface.hpp"

namespace dialwright::proof {

class Cone : public Surface {
 public:
  // How the cone stands in space. `axis` leads from the vertex into the cone, `start` and `quarter`
  // lead from the axis to the generators of the angles 0 and a quarter turn; all are of length 1
  // and square to each other.
  struct Stand {
    Vec vertex, axis, start, quarter;
    double semiAngle;  // radians
  };
  // How the sector lies on the drawing: the vertex, the direction of the generator 0 and the one
  // that the angle grows to.
  struct Sector {
    Punto vertex, start, quarter;
  };

  Cone(const Stand& stand, const Sector& sector)
      : stand_(stand),
        sector_(sector),
        sine_(std::sin(stand.semiAngle)),
        cosine_(std::cos(stand.semiAngle)) {}

  // Nothing off the one turn of the development.
  std::optional<Place> place(Punto spot) const override;
  std::optional<Punto> shadow(Vec point, Vec sunwards) const override;
  // A point of the seam lies on both edges of the sector.
  Punto imageNear(Punto spot, Punto image) const override;

 private:
  // Polar, about the vertex from the generator 0.
  struct Polar {
    double reach, angle;
  };
  Polar polar(Punto spot) const;
  Punto spotAt(const Polar& at) const;

  Stand stand_;
  Sector sector_;
  double sine_, cosine_;
};

}  // namespace dialwright::proof
