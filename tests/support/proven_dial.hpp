// A dial of a test whose strokes are held against the shadows of its scene: literally as drawn, or
// with true shadows only.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <vector>

#include "proof/prove.hpp"
#include "proof/scenes.hpp"
#include "support/dial_case.hpp"

namespace dialwright {

// How far a value lies from the nearest multiple of a step.
inline double offStep(double value, double step) { return std::abs(std::remainder(value, step)); }

// A stroke that stands for a sun: its ends in dial coordinates (the same twice for a dot).
struct ProvenStroke {
  Punto from, to;
  LayerId layer;
  Meaning meaning;
  Rgb colour;
  proof::Finding finding;
};

struct ProofTally {
  std::size_t strokes = 0, genuine = 0, ghosts = 0, strays = 0;
};

// It starts without any box.
class ProvenDial : public DialCase {
 public:
  ProvenDial(Item item, Driver driver) : DialCase(item, driver) { clearBoxes(); }

  // Runs anew without a proof; a dial that refuses has no strokes.
  ProvenDial& draw(bool trueOnly = false) {
    runJudged(trueOnly);
    keepStrokes();
    return *this;
  }
  // The same with its proof, an empty one for fields that make no scene.
  ProvenDial& prove(bool trueOnly = false) {
    runJudged(trueOnly);
    if (scene_) proof = proof::prove(sheet.list(), *scene_);
    keepStrokes();
    return *this;
  }

  // Of the last run, whose results in the panel belong to it.
  const proof::Scene& scene() const { return *scene_; }
  proof::LayerProof total() const { return proof.total(); }
  // A layer's row, of zeros for one without strokes.
  proof::LayerProof row(std::string_view layer) const {
    for (const proof::LayerProof& row : proof.layers) {
      if (row.layer == layer) return row;
    }
    return {};
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

  // What a layer's strokes stand for: fits(hour angle, declination), degrees, of both their ends;
  // of one family alone when it is named. Gives how many strokes there are.
  template <class Fits>
  std::size_t everySun(std::string_view layer, Fits fits, CurveFamily family = CurveFamily::None) {
    std::size_t count = 0, wrong = 0;
    const LayerId id = sheet.layer(layer);
    for (const ProvenStroke& stroke : strokes) {
      if (stroke.layer != id) continue;
      if (family != CurveFamily::None && stroke.meaning.family != family) continue;
      ++count;
      for (const Sun& sun : {stroke.meaning.first, stroke.meaning.second})
        wrong += !fits(proof::degrees(sun.hourAngle), proof::degrees(sun.declination));
    }
    EXPECT_EQ(wrong, 0u) << "of " << count << " on " << layer << " at " << panel.text(Field::txtLAT)
                         << " on " << panel.text(Field::txtDecl);
    return count;
  }

  std::vector<ProvenStroke> strokes;
  proof::Proof proof;

 private:
  void runJudged(bool trueOnly) {
    sheet.Clear();
    sheet.list().keepMeanings(true);
    panel.setState(Field::ckTrue, trueOnly);
    std::optional<proof::SceneJudge> judge;
    const std::optional<proof::Scene> before = proof::sceneOf(panel);
    if (trueOnly && before) sheet.judge(&judge.emplace(*before));
    run();
    sheet.judge(nullptr);
    scene_ = before ? proof::sceneOf(panel) : std::nullopt;
    proof = {};
  }
  void keepStrokes() {
    strokes.clear();
    const DisplayList& list = sheet.list();
    for (std::size_t i = 0; i < list.lines.size(); ++i) {
      const LineRecord& l = list.lines[i];
      const Meaning meaning = list.meaningOfLine(i);
      keep({{l.x1, -l.y1}, {l.x2, -l.y2}, l.layer, meaning, l.colour, findingOf(proof.lines, i)});
    }
    for (std::size_t i = 0; i < list.points.size(); ++i) {
      const PointRecord& p = list.points[i];
      const Punto at{p.x, -p.y};
      keep({at, at, p.layer, list.meaningOfPoint(i), p.colour, findingOf(proof.points, i)});
    }
  }
  void keep(const ProvenStroke& stroke) {
    if (stroke.meaning.first.known() || stroke.meaning.second.known()) strokes.push_back(stroke);
  }
  static proof::Finding findingOf(const std::vector<proof::Finding>& findings, std::size_t i) {
    return i < findings.size() ? findings[i] : proof::Finding::True;
  }

  std::optional<proof::Scene> scene_;
};

inline constexpr CurveFamily kCurveFamilies[] = {
    CurveFamily::Hours,     CurveFamily::Declinations, CurveFamily::Equinoctial,
    CurveFamily::Analemma,  CurveFamily::Italic,       CurveFamily::Babylonian,
    CurveFamily::Temporary, CurveFamily::Altitudes,    CurveFamily::Azimuths,
    CurveFamily::Asr,       CurveFamily::Qibla};

}  // namespace dialwright
