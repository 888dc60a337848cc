// A dial of a test whose strokes are held against the shadows of its scene: literally as drawn, or
// with true shadows only.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <vector>

#include "proof/prove.hpp"
#include "proof/scenes.hpp"
#include "support/dial_case.hpp"

namespace dialwright {

// The boxes of all families that shadows follow.
inline constexpr std::string_view kFamilies =
    "chkOreAstronomiche Ck_DayLightCurves ck_Equinoziale ck_Lemniscate CkQibla ckAsr ckAz ckAlt"
    " ck_Italiche ck_babiloniche ckTemp ck_Orizzonte ";

// How far a value lies from the nearest multiple of a step.
inline double offStep(double value, double step) { return std::abs(std::remainder(value, step)); }

inline double distance(Punto a, Punto b) { return std::hypot(a.x - b.x, a.y - b.y); }

// A stroke that stands for a sun: its ends in dial coordinates (the same twice for a dot).
struct ProvenStroke {
  Punto from, to;
  LayerId layer;
  Meaning meaning;
  Rgb colour;
  proof::Finding finding;

  double distance(Punto p) const {
    const double dx = to.x - from.x, dy = to.y - from.y, square = dx * dx + dy * dy;
    const double part = square > 0 ? ((p.x - from.x) * dx + (p.y - from.y) * dy) / square : 0;
    const double within = std::clamp(part, 0.0, 1.0);
    return dialwright::distance(p, {from.x + within * dx, from.y + within * dy});
  }
};

class ProvenDial : public DialCase {
 public:
  explicit ProvenDial(Item item, std::string_view settings = {}) : DialCase(item) {
    with(settings);
  }
  ProvenDial& with(std::string_view settings) {
    DialCase::with(settings);
    // As by a click: some dials know of the zone by the record only.
    params.UsaLongitudine = panel.on(Field::ck_Etna) ? 1 : 0;
    return *this;
  }

  // Runs anew; a dial that refuses has no strokes.
  ProvenDial& draw(bool trueOnly = false) {
    sheet.Clear();
    sheet.list().keepMeanings(true);
    panel.setState(Field::ckTrue, trueOnly);
    std::optional<proof::SceneJudge> judge;
    const std::optional<proof::Scene> before = proof::sceneOf(panel);
    if (trueOnly && before) sheet.judge(&judge.emplace(*before));
    run();
    sheet.judge(nullptr);
    // Of the panel with the run's results.
    scene_ = before ? proof::sceneOf(panel) : std::nullopt;
    proof = {};
    keepStrokes();
    return *this;
  }
  // The same with its proof, an empty one for fields that make no scene.
  ProvenDial& prove(bool trueOnly = false) {
    draw(trueOnly);
    if (scene_) proof = proof::prove(sheet.list(), *scene_);
    keepStrokes();
    return *this;
  }

  // Of the last proof; families without strokes are left out.
  const proof::Scene& scene() const { return *scene_; }
  std::map<CurveFamily, proof::LayerProof> tallies() const {
    std::map<CurveFamily, proof::LayerProof> all;
    for (const ProvenStroke& stroke : strokes) {
      proof::LayerProof& sum = all[stroke.meaning.family];
      sum.genuine += stroke.finding == proof::Finding::True;
      sum.ghosts += stroke.finding == proof::Finding::Ghost;
      sum.strays += stroke.finding == proof::Finding::Stray;
    }
    return all;
  }

  // Where the numerals of a run stand that makes them too small to be seen.
  std::vector<Punto> numerals(bool trueOnly = false) {
    sheet.QuadranteH(15);
    sheet.QuadranteL(15);
    sheet.ShiftX(7.5);
    sheet.ShiftY(7.5);
    with("txtNumbersize=1e-9 txtArabi=1e-9").draw(trueOnly);
    std::vector<Punto> places;
    const DisplayList& list = sheet.list();
    for (std::size_t i = 0; i < list.lines.size(); ++i) {
      const LineRecord& line = list.lines[i];
      const Punto at{line.x1, -line.y1};
      const bool small = distance(at, {line.x2, -line.y2}) < 1e-7;
      const bool numeral = small && list.meaningOfLine(i).family == CurveFamily::None;
      if (numeral && (places.empty() || distance(at, places.back()) > 1e-7)) places.push_back(at);
    }
    return places;
  }

  std::vector<ProvenStroke> strokes;
  proof::Proof proof;

 private:
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

}  // namespace dialwright
