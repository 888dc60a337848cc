// A map of the sky as a surface: a sphere about the tip of a style, whose points are the shadows of
// that tip, projected from its pole on the plane of the equator.
#pragma once

#include "proof/sky.hpp"
#include "proof/surface.hpp"

namespace dialwright::proof {

// The origin is the northern pole of the sky, x runs to the West and y to the South; the equator
// has a radius.
class Chart : public Surface {
 public:
  Chart(const Sky& sky, double radius)
      : pole_(sky.pole()), south_(sky.towards({0, 0})), radius_(radius) {}

  // Opposite to the direction that a spot stands for, at a distance of 1 from the tip. What is
  // below the horizon has the sun behind it.
  std::optional<Place> place(Punto spot) const override;
  // Of any point: the sun alone tells the spot. Nothing for the southern pole, which is off all
  // maps.
  std::optional<Punto> shadow(Vec point, Vec sunwards) const override;

 private:
  Vec pole_, south_;  // south on the equator
  double radius_;
};

}  // namespace dialwright::proof
