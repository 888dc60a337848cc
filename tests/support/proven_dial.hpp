// A dial of a test whose strokes are held against the shadows of its scene: literally as drawn, or
// with true shadows only.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
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

// It starts with the boxes that it is given, without any other.
class ProvenDial : public DialCase {
 public:
  ProvenDial(Item item, Driver driver, const std::vector<Field>& boxes = {})
      : DialCase(item, driver) {
    clearBoxes();
    for (const Field box : boxes) check(box);
  }

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

  // The part of some suns' shadows that a layer's lines pass, of those that fall into the window
  // and do not graze the surface or the horizon; 1 when none does.
  double drawn(std::string_view layer, const std::vector<Sun>& suns) {
    const std::vector<LineRecord> lines = linesOf(layer);
    double wanted = 0, found = 0;
    for (const Sun& sun : suns) {
      const proof::Vec sunwards = scene().sky.towards(sun);
      const double height = dot(scene().surface->place({0, 0})->normal, sunwards);
      const proof::Judgement there = scene().judge({0, -0.1}, CurveFamily::None, sun);
      if (!there.lit || std::fmin(sunwards.z, height) < 0.05 || !holds(there.shadow)) continue;
      ++wanted;
      found += std::any_of(lines.begin(), lines.end(), [&](const LineRecord& line) {
        return distance(there.shadow, line) < 0.0002;
      });
    }
    return wanted > 0 ? found / wanted : 1;
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

  // Well within the window.
  bool holds(Punto p) const {
    const double edge = 0.02;
    return p.x > panel.number(Field::x1txt) + edge && p.x < panel.number(Field::x2txt) - edge &&
           p.y > panel.number(Field::y2txt) + edge && p.y < panel.number(Field::y1txt) - edge;
  }
  static double distance(Punto p, const LineRecord& line) {
    const double dx = line.x2 - line.x1, dy = line.y1 - line.y2;
    const double square = dx * dx + dy * dy;
    double part = square > 0 ? ((p.x - line.x1) * dx + (p.y + line.y1) * dy) / square : 0;
    part = std::clamp(part, 0.0, 1.0);
    return std::hypot(line.x1 + part * dx - p.x, -line.y1 + part * dy - p.y);
  }

  std::optional<proof::Scene> scene_;
};

// The suns of an hour through the year, and of a day through its hours; degrees.
inline std::vector<Sun> sunsOfHours(double first, double last, double step) {
  std::vector<Sun> suns;
  for (double H = first; H <= last; H += step) {
    for (const double day : {-22.0, -13.0, -4.0, 0.5, 6.0, 15.0, 23.0})
      suns.push_back({proof::radians(H), proof::radians(day)});
  }
  return suns;
}
inline std::vector<Sun> sunsOfDay(double day, double first, double last) {
  std::vector<Sun> suns;
  for (double H = first; H <= last; H += 7.3)
    suns.push_back({proof::radians(H), proof::radians(day)});
  return suns;
}

inline constexpr CurveFamily kCurveFamilies[] = {
    CurveFamily::Hours,     CurveFamily::Declinations, CurveFamily::Equinoctial,
    CurveFamily::Analemma,  CurveFamily::Italic,       CurveFamily::Babylonian,
    CurveFamily::Temporary, CurveFamily::Altitudes,    CurveFamily::Azimuths,
    CurveFamily::Asr,       CurveFamily::Qibla};

}  // namespace dialwright
