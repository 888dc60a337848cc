// A dial of a test whose strokes are held against the shadows of its scene: literally as drawn, or
// with true shadows only.
#pragma once

#include <optional>
#include <vector>

#include "proof/prove.hpp"
#include "proof/scenes.hpp"
#include "support/dial_case.hpp"

namespace dialwright {

// A stroke that stands for a sun: its ends in dial coordinates (the same twice for a dot).
struct ProvenStroke {
  Punto from, to;
  Meaning meaning;
  Rgb colour;
  proof::Finding finding;
};

struct ProofTally {
  std::size_t strokes = 0, genuine = 0, ghosts = 0, strays = 0;
};

class ProvenDial : public DialCase {
 public:
  using DialCase::DialCase;

  // Runs anew; a dial that refuses, or that has no scene, has no strokes.
  ProvenDial& prove(bool trueOnly) {
    sheet.Clear();
    strokes.clear();
    panel.setState(Field::ckTrue, trueOnly);
    DisplayList& list = sheet.list();
    list.keepMeanings(true);
    const std::optional<proof::Scene> scene = proof::sceneOf(panel);
    if (!scene) {
      run();
      return *this;
    }
    proof::SceneJudge judge(*scene);
    sheet.judge(trueOnly ? &judge : nullptr);
    run();
    sheet.judge(nullptr);
    // What a run writes into the panel belongs to the scene.
    proof = proof::prove(list, *proof::sceneOf(panel));
    for (std::size_t i = 0; i < list.lines.size(); ++i) {
      const LineRecord& l = list.lines[i];
      keep({{l.x1, -l.y1}, {l.x2, -l.y2}, list.meaningOfLine(i), l.colour, proof.lines[i]});
    }
    for (std::size_t i = 0; i < list.points.size(); ++i) {
      const PointRecord& p = list.points[i];
      keep({{p.x, -p.y}, {p.x, -p.y}, list.meaningOfPoint(i), p.colour, proof.points[i]});
    }
    return *this;
  }

  ProofTally tally(CurveFamily family) const {
    ProofTally sum;
    for (const ProvenStroke& stroke : strokes) {
      if (stroke.meaning.family != family) continue;
      ++sum.strokes;
      sum.genuine += stroke.finding == proof::Finding::True;
      sum.ghosts += stroke.finding == proof::Finding::Ghost;
      sum.strays += stroke.finding == proof::Finding::Stray;
    }
    return sum;
  }

  std::vector<ProvenStroke> strokes;
  proof::Proof proof;

 private:
  void keep(const ProvenStroke& stroke) {
    if (stroke.meaning.first.known() || stroke.meaning.second.known()) strokes.push_back(stroke);
  }
};

inline constexpr CurveFamily kCurveFamilies[] = {
    CurveFamily::Hours,     CurveFamily::Declinations, CurveFamily::Equinoctial,
    CurveFamily::Analemma,  CurveFamily::Italic,       CurveFamily::Babylonian,
    CurveFamily::Temporary, CurveFamily::Altitudes,    CurveFamily::Azimuths,
    CurveFamily::Asr,       CurveFamily::Qibla};

}  // namespace dialwright
