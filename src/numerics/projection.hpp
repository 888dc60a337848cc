// The gnomonic projection of the sky: where the tip of a style that stands upright on a plane
// throws its shadow. The foot of the style is the origin. (Standard: R. J. Rohr, Sundials; the sun
// as a vector in the equator's frame, turned into the plane's and divided by its part along the
// normal.)
#pragma once

#include <cmath>

#include "numerics/fault.hpp"

namespace dialwright {

// A point of the dial's plane in metres, x to the right and y upwards.
struct Punto {
  double x = 0;
  double y = 0;
};

// target := value, each coordinate by itself: one that failed keeps its old value.
inline void assign(Punto& target, Punto value) {
  assign(target.x, value.x);
  assign(target.y, value.y);
}

// The line a x + b y = c of a dial's plane.
struct Retta {
  double a = 0, b = 0, c = 0;

  // Where it meets an upright and a level line; a fault where it runs along it.
  double yAt(double x) const { return over(c - a * x, b); }
  double xAt(double y) const { return over(c - b * y, a); }
  // The line through the origin that it meets squarely, and their crossing.
  Retta normal() const { return {b, -a, 0}; }
  Punto foot() const {
    const double reach = over(c, a * a + b * b);
    return {a * reach, b * reach};
  }
};

// A dial's plane; angles in radians.
struct Piano {
  double Stilo = 0;       // length of the upright style, metres
  double LatRad = 0;      // latitude
  double DeclRad = 0;     // declination of the plane's normal from the South, West positive
  double ZenitPiano = 0;  // zenith distance of the plane: a quarter turn less its reclination
};

// The projection for one plane, with all that the plane fixes worked out. Its results are not
// finite where the ray runs along the plane: `assign` skips them. It knows no back of the plane: a
// sun behind it falls on the point of its opposite.
class Projection {
 public:
  explicit Projection(const Piano& plane) : style_(plane.Stilo) {
    const double sinD = std::sin(plane.DeclRad), cosD = std::cos(plane.DeclRad);
    const double sinF = std::sin(plane.LatRad), cosF = std::cos(plane.LatRad);
    const double sinZ = std::sin(plane.ZenitPiano), cosZ = std::cos(plane.ZenitPiano);
    depth_ = {sinD * sinZ, cosF * cosZ + sinF * sinZ * cosD, sinF * cosZ - cosF * sinZ * cosD};
    right_ = {cosD, -sinF * sinD, cosF * sinD};
    up_ = {cosZ * sinD, -(cosF * sinZ - sinF * cosZ * cosD), -(sinF * sinZ + cosF * cosZ * cosD)};
  }

  // The shadow of a sun given by the sine and cosine of its hour angle and the tangent of its
  // declination.
  Punto operator()(double sinH, double cosH, double tanDelta) const {
    const double reach = style_ / depth_(sinH, cosH, tanDelta);
    return {reach * right_(sinH, cosH, tanDelta), reach * up_(sinH, cosH, tanDelta)};
  }

  // The shadows of one hour: what remains to vary is the tangent of the declination.
  class Hour {
   public:
    Punto operator()(double tanDelta) const {
      const double reach = style_ / (depth_ + depthSlope_ * tanDelta);
      return {reach * (right_ + rightSlope_ * tanDelta), reach * (up_ + upSlope_ * tanDelta)};
    }

   private:
    friend class Projection;
    Hour(const Projection& p, double sinH, double cosH)
        : style_(p.style_),
          depth_(p.depth_(sinH, cosH, 0)),
          depthSlope_(p.depth_.tangent),
          right_(p.right_(sinH, cosH, 0)),
          rightSlope_(p.right_.tangent),
          up_(p.up_(sinH, cosH, 0)),
          upSlope_(p.up_.tangent) {}

    double style_, depth_, depthSlope_, right_, rightSlope_, up_, upSlope_;
  };
  Hour atHour(double H) const { return {*this, std::sin(H), std::cos(H)}; }

  // True when that sun stands before the plane.
  bool lit(double sinH, double cosH, double tanDelta) const {
    return depth_(sinH, cosH, tanDelta) > 0;
  }

  // Towards the sun whose shadow a point is, in the equator's frame: its sine of the hour angle,
  // its cosine of it (both times the cosine of the declination) and its sine of the declination,
  // all as long as the ray from the point to the tip.
  struct Ray {
    double sinH, cosH, sine;
  };
  Ray rayFrom(Punto p) const {
    const auto part = [&](double Form::*of) {
      return p.x * (right_.*of) + p.y * (up_.*of) + style_ * (depth_.*of);
    };
    return {part(&Form::sine), part(&Form::cosine), part(&Form::tangent)};
  }

  // The line of an hour angle, on both sides of the style's centre.
  Retta hourLine(double H) const { return throughTip({std::cos(H), -std::sin(H), 0}); }
  // The shadow of the days when day and night are equal.
  Retta equinoctial() const { return throughTip({0, 0, 1}); }

 private:
  // A linear form in the sun's place: sin H, cos H and tan(declination).
  struct Form {
    double sine = 0, cosine = 0, tangent = 0;
    double operator()(double sinH, double cosH, double tanDelta) const {
      return sine * sinH + cosine * cosH + tangent * tanDelta;
    }
  };

  // The section of the dial with a plane of rays through the style's tip: those whose sun makes
  // the product with the plane's normal, given in the same parts, vanish.
  Retta throughTip(const Form& normal) const {
    const auto part = [&normal](const Form& f) {
      return f(normal.sine, normal.cosine, normal.tangent);
    };
    return {-part(right_), -part(up_), style_ * part(depth_)};
  }

  double style_;
  Form depth_, right_, up_;
};

// The shadow for an hour angle H (positive after noon) and a declination of the sun, radians: one
// point, without anything prepared.
inline Punto ProiezioneSferica(const Piano& plane, double H, double delta) {
  return Projection(plane)(std::sin(H), std::cos(H), std::tan(delta));
}

}  // namespace dialwright
