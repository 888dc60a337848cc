// A dial of a test that is held against the shadows of its scene.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "proof/prove.hpp"
#include "proof/scenes.hpp"
#include "support/dial_case.hpp"

namespace dialwright {

// How far a value lies from the nearest multiple of a step.
inline double offGrid(double value, double step) { return std::abs(std::remainder(value, step)); }

// It draws the families of its boxes alone and no numerals.
class ProvedDial : public DialCase {
 public:
  ProvedDial(Item item, Driver driver, const std::vector<Field>& boxes) : DialCase(item, driver) {
    clearBoxes();
    for (const Field box : boxes) check(box);
    for (const Field both : {Field::ckRomani, Field::ckArabi}) panel.setState(both, true);
  }

  // Draws anew, nothing but true shadows when asked for.
  void draw(bool onlyTrue = false) {
    sheet.list().clear();
    sheet.list().keepMeanings(true);
    panel.setState(Field::ckTrue, onlyTrue);
    scene_ = proof::sceneOf(panel);
    std::optional<proof::SceneJudge> judge;
    if (onlyTrue && scene_) sheet.judge(&judge.emplace(*scene_));
    run();
    sheet.judge(nullptr);
  }
  // The same, and its proof; an empty one for fields that make no scene.
  const proof::Proof& prove(bool onlyTrue = false) {
    draw(onlyTrue);
    return proof_ = scene_ ? proof::prove(sheet.list(), *scene_) : proof::Proof{};
  }

  // A layer's row, of zeros for one without strokes.
  proof::LayerProof row(std::string_view layer) const {
    for (const proof::LayerProof& row : proof_.layers) {
      if (row.layer == layer) return row;
    }
    return {};
  }

  // What a layer's strokes stand for: fits(hour angle, declination), degrees, of both ends of each
  // line and of each point; of one family alone when it is named. Gives how many strokes there are.
  template <class Fits>
  std::size_t everySun(std::string_view layer, Fits fits) {
    return everySun(layer, CurveFamily::None, fits);
  }
  template <class Fits>
  std::size_t everySun(std::string_view layer, CurveFamily family, Fits fits) {
    std::size_t count = 0, wrong = 0;
    const LayerId id = sheet.layer(layer);
    const auto look = [&](LayerId its, const Meaning& meaning) {
      if (its != id || (family != CurveFamily::None && meaning.family != family)) return;
      ++count;
      for (const Sun& sun : {meaning.first, meaning.second})
        wrong += !fits(proof::degrees(sun.hourAngle), proof::degrees(sun.declination));
    };
    const DisplayList& list = sheet.list();
    for (std::size_t i = 0; i < list.lines.size(); ++i)
      look(list.lines[i].layer, list.meaningOfLine(i));
    for (std::size_t i = 0; i < list.points.size(); ++i)
      look(list.points[i].layer, list.meaningOfPoint(i));
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
      const proof::Vec sunwards = scene_->sky.towards(sun);
      const double height = dot(scene_->surface->place({0, 0})->normal, sunwards);
      const proof::Judgement there = scene_->judge({0, -0.1}, CurveFamily::None, sun);
      if (!there.lit || std::fmin(sunwards.z, height) < 0.05 || !holds(there.shadow)) continue;
      ++wanted;
      found += std::any_of(lines.begin(), lines.end(), [&](const LineRecord& line) {
        return distance(there.shadow, line) < 0.0002;
      });
    }
    return wanted > 0 ? found / wanted : 1;
  }

  const proof::Scene& scene() const { return *scene_; }

 private:
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
  proof::Proof proof_;
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

}  // namespace dialwright
