// The hollow cone of an ancient dial: its axis is the earth's, its vertex points North and up, and
// the tip of a level style stands on the axis. Unrolled, it is a sector about the vertex.
#pragma once

#include <cmath>

#include "numerics/fault.hpp"
#include "shell/run.hpp"

namespace dialwright {

struct Cone {
  double style = 0;  // metres, level, from the noon generator South to the axis
  double phi = 0;    // latitude, radians
  double sigma = 0;  // semi-angle, radians
  double side = 1;   // of the development: +1 to the right of the vertex, -1 mirrored

  // From the panel; a number too large for a field counts as 0. The latitude and the style go to
  // the record, too.
  explicit Cone(Run& run) {
    DialParams& p = run.params;
    assign(style, run.number(Field::TxtStilo));
    assign(p.LatGradi, run.number(Field::txtLAT));
    assign(p.LatRad, p.radians(p.LatGradi));
    assign(sigma, p.radians(run.number(Field::txtSemi)));
    p.Stilo = style;
    phi = p.LatRad;
    side = run.on(Field::ckFunction) ? -1 : 1;
  }

  // Where the tip's shadow falls on its generator, for a declination in radians: the distance from
  // the vertex. The triangle of vertex, tip and shadow has the angle sigma at the vertex and a
  // quarter turn less sigma + delta at the shadow. Negative where the ray leaves the cone: then it
  // is the point that the ray comes from.
  double RaggioSviluppo(double delta) const { return over(circleRadius(delta), std::sin(sigma)); }

  // The radius of the day's circle on the cone, about the axis.
  double circleRadius(double delta) const {
    return over(style * std::sin(phi + sigma) * std::cos(delta), std::cos(sigma + delta));
  }

  // The foot of the style, from the vertex.
  double styleFoot() const { return over(style * std::sin(phi), std::sin(sigma)); }

  // The eccentricity of the level section, which is the dial's edge.
  double eccentricity() const { return over(std::cos(phi), std::cos(sigma)); }
};

}  // namespace dialwright
