// The judge of strokes: true where the shadow runs, a ghost where there is no sun, astray where the
// shadow is elsewhere.
#pragma once

#include <array>

#include "proof/scene.hpp"

namespace dialwright::proof {

// How far a stroke may lie from its shadow by default, metres: a line cut in stone is ten times as
// wide.
inline constexpr double kWithin = 0.00005;

enum class Finding : char { True, Ghost, Stray };

struct StrokeFinding {
  Finding finding = Finding::True;
  double miss = 0, minutes = 0;  // the worse one of a lit stroke's ends and of its middle
};

class SceneJudge : public ShadowJudge {
 public:
  explicit SceneJudge(Scene scene, double within = kWithin)
      : scene_(std::move(scene)), within_(within) {}

  bool isShadow(Punto at, CurveFamily family, const Sun& sun) override;
  bool isTrack(Punto from, Punto to, const Meaning& meaning) override;

  // The whole verdict on a chord, or on a point (a chord without length).
  StrokeFinding find(Punto from, Punto to, const Meaning& meaning);

 private:
  struct Known {
    Punto at;
    Sun sun;
    CurveFamily family = CurveFamily::None;
    Judgement judgement;
  };

  // The judgement of a sample; neighbouring strokes share an end, which is judged once.
  Judgement judge(Punto at, CurveFamily family, const Sun& sun);
  // How far the shadow of the sun half way between those of the ends lies from a chord, less what a
  // chord of a bent line is allowed, metres.
  double strayOfMiddle(Punto from, Punto to, const Meaning& meaning) const;

  Scene scene_;
  double within_;
  std::array<Known, 2> known_;
  std::size_t next_ = 0;
};

}  // namespace dialwright::proof
