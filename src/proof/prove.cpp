// Proving a display list.
#include "proof/prove.hpp"

#include <algorithm>

#include "sheet/pen.hpp"

namespace dialwright::proof {

namespace {

constexpr Rgb kGhostGrey = rgb(128, 128, 128);
constexpr Rgb kStrayRed = rgb(255, 0, 0);

// The table while it grows, with the row of each layer.
class Table {
 public:
  Table(const DisplayList& list, std::vector<LayerProof>& rows)
      : list_(list), rows_(rows), rowOf_(list.layerNames().size(), kNone) {}

  void count(LayerId layer, const StrokeFinding& found) {
    std::size_t& at = rowOf_[layer.index];
    if (at == kNone) {
      at = rows_.size();
      rows_.push_back({.layer = list_.name(layer)});
    }
    LayerProof& row = rows_[at];
    ++row.strokes;
    switch (found.finding) {
      case Finding::True: ++row.genuine; break;
      case Finding::Ghost: ++row.ghosts; break;
      case Finding::Stray: ++row.strays; break;
    }
    row.millimetres = std::max(row.millimetres, found.miss * 1000);
    row.minutes = std::max(row.minutes, found.minutes);
  }

 private:
  static constexpr std::size_t kNone = ~std::size_t{0};

  const DisplayList& list_;
  std::vector<LayerProof>& rows_;
  std::vector<std::size_t> rowOf_;
};

template <class Records>
void paint(Records& records, const std::vector<Finding>& findings) {
  for (std::size_t i = 0; i < findings.size(); ++i) {
    if (findings[i] == Finding::Ghost) records[i].colour = kGhostGrey;
    if (findings[i] == Finding::Stray) records[i].colour = kStrayRed;
  }
}

}  // namespace

LayerProof Proof::total() const {
  LayerProof sum;
  for (const LayerProof& row : layers) {
    sum.strokes += row.strokes;
    sum.genuine += row.genuine;
    sum.ghosts += row.ghosts;
    sum.strays += row.strays;
    sum.millimetres = std::max(sum.millimetres, row.millimetres);
    sum.minutes = std::max(sum.minutes, row.minutes);
  }
  return sum;
}

Proof prove(const DisplayList& list, const Scene& scene, double within,
            const std::function<bool()>& stopped) {
  Proof proof;
  Table table(list, proof.layers);
  SceneJudge judge(scene, within);
  proof.lines.assign(list.lines.size(), Finding::True);
  proof.points.assign(list.points.size(), Finding::True);
  proof.circles.assign(list.circles.size(), Finding::True);
  for (std::size_t i = 0; i < list.lines.size(); ++i) {
    if (stopped && stopped()) break;
    const Meaning meaning = list.meaningOfLine(i);
    if (!meaning.first.known() && !meaning.second.known()) continue;
    const LineRecord& line = list.lines[i];
    const StrokeFinding found = judge.find({line.x1, -line.y1}, {line.x2, -line.y2}, meaning);
    proof.lines[i] = found.finding;
    table.count(line.layer, found);
  }
  for (std::size_t i = 0; i < list.points.size(); ++i) {
    if (stopped && stopped()) break;
    const Meaning meaning = list.meaningOfPoint(i);
    if (!meaning.first.known()) continue;
    const PointRecord& point = list.points[i];
    const Punto at{point.x, -point.y};
    const StrokeFinding found = judge.find(at, at, meaning);
    proof.points[i] = found.finding;
    table.count(point.layer, found);
  }
  for (std::size_t i = 0; i < list.circles.size(); ++i) {
    const Meaning meaning = list.meaningOfCircle(i);
    if (!meaning.first.known()) continue;
    const CircleRecord& circle = list.circles[i];
    StrokeFinding worst;
    alongArc(circle, [&](Punto at) {
      const StrokeFinding found = judge.find(at, at, meaning);
      if (found.finding > worst.finding) worst.finding = found.finding;
      worst.miss = std::max(worst.miss, found.miss);
      worst.minutes = std::max(worst.minutes, found.minutes);
    });
    proof.circles[i] = worst.finding;
    table.count(circle.layer, worst);
  }
  return proof;
}

void mark(DisplayList& list, const Proof& proof) {
  paint(list.lines, proof.lines);
  paint(list.points, proof.points);
  paint(list.circles, proof.circles);
}

}  // namespace dialwright::proof
