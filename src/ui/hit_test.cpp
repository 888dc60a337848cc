// Sorts the strokes into cells and searches those around a place.
#include "ui/hit_test.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "app/moment.hpp"
#include "app/program.hpp"
#include "ui/text.hpp"

namespace dialwright {

namespace {

constexpr double kMostCells = 512;  // along a side
constexpr int kChords = 64;         // of a circle

double distance(double x, double y, double x1, double y1, double x2, double y2) {
  const double dx = x2 - x1;
  const double dy = y2 - y1;
  const double square = dx * dx + dy * dy;
  const double t = square > 0 ? std::clamp(((x - x1) * dx + (y - y1) * dy) / square, 0.0, 1.0) : 0;
  return std::hypot(x - x1 - t * dx, y - y1 - t * dy);
}

QString nameOf(const Program& program, Rgb colour) {
  const std::array names = {
      program.T("black"), program.T("dark blue"),  program.T("dark green"),
      program.T("teal"),  program.T("dark red"),   program.T("purple"),
      program.T("olive"), program.T("light grey"), program.T("grey"),
      program.T("blue"),  program.T("green"),      program.T("light blue"),
      program.T("red"),   program.T("magenta"),    program.T("yellow"),
      program.T("white"),
  };
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (palette(static_cast<int>(i)) == colour) return shown(names[i]);
  }
  return QString("#%1").arg(redOf(colour) << 16 | greenOf(colour) << 8 | blueOf(colour), 6, 16,
                            QChar('0'));
}

struct LayerAndColour {
  LayerId layer;
  Rgb colour = kWhite;
};

LayerAndColour lookOf(const DisplayList& list, const Hit& hit) {
  const auto of = [&](const auto& records) {
    return LayerAndColour{records[hit.record].layer, records[hit.record].colour};
  };
  switch (hit.kind) {
    case EntityKind::Point: return of(list.points);
    case EntityKind::Line: return of(list.lines);
    case EntityKind::Box: return of(list.boxes);
    case EntityKind::Circle: return of(list.circles);
    case EntityKind::Vertex: return of(list.vertices);
  }
  return {};
}

}  // namespace

HitGrid::HitGrid(const SheetPlot& sheet) {
  const double width = sheet.QuadranteL();
  const double height = sheet.QuadranteH();
  if (!(width > 0 && height > 0)) return;
  const double wanted = std::sqrt(static_cast<double>(sheet.list().size()) + 1);
  const double side = std::clamp(wanted, 16.0, kMostCells);
  cell_ = std::max(width, height) / side;
  columnCount_ = static_cast<int>(width / cell_) + 1;
  rowCount_ = static_cast<int>(height / cell_) + 1;
  addAll(sheet);
  sort();
}

void HitGrid::addAll(const SheetPlot& sheet) {
  const SheetFrame& frame = sheet.frame();
  const DisplayList& list = sheet.list();
  strokes_.reserve(list.size());
  std::array<std::size_t, 128> next{};  // by kind
  const auto hitOf = [&next](EntityKind kind) {
    return Hit{kind, next[static_cast<std::size_t>(kind)]++};
  };
  const VertexRecord* last = nullptr;
  const auto visit = [&](const auto& record) {
    using Record = std::decay_t<decltype(record)>;
    if constexpr (std::is_same_v<Record, LineRecord>) {
      add(frame, frame.mirrored(record), hitOf(EntityKind::Line));
    } else if constexpr (std::is_same_v<Record, PointRecord>) {
      const double x = record.x * frame.signX;
      const double y = record.y * frame.signY;
      const Hit hit = hitOf(EntityKind::Point);
      if (frame.holds(x, y)) {
        strokes_.push_back(
            {x + frame.shiftX, y + frame.shiftY, x + frame.shiftX, y + frame.shiftY, hit});
      }
    } else if constexpr (std::is_same_v<Record, BoxRecord>) {
      const Hit hit = hitOf(EntityKind::Box);
      const double x1 = record.x1 * frame.signX, x2 = record.x2 * frame.signX;
      const double y1 = record.y1 * frame.signY, y2 = record.y2 * frame.signY;
      for (const Segment& edge : {Segment{x1, y1, x2, y1}, Segment{x2, y1, x2, y2},
                                  Segment{x2, y2, x1, y2}, Segment{x1, y2, x1, y1}}) {
        add(frame, edge, hit);
      }
    } else if constexpr (std::is_same_v<Record, CircleRecord>) {
      addCircle(frame, record, hitOf(EntityKind::Circle));
    } else {
      const Hit hit = hitOf(EntityKind::Vertex);
      if (record.mark == PolylineMark::Vertex && last != nullptr) {
        add(frame, {last->x, last->y, record.x, record.y}, hit);
      }
      last = record.mark == PolylineMark::Vertex ? &record : nullptr;
    }
  };
  list.visit(visit);
}

// What of the piece is seen, in drawing coordinates.
void HitGrid::add(const SheetFrame& frame, Segment piece, const Hit& hit) {
  if (frame.clip(piece) == 0) return;
  strokes_.push_back({piece.x1 + frame.shiftX, piece.y1 + frame.shiftY, piece.x2 + frame.shiftX,
                      piece.y2 + frame.shiftY, hit});
}

void HitGrid::addCircle(const SheetFrame& frame, const CircleRecord& circle, const Hit& hit) {
  const TargetCircle shape{
      circle.x * frame.signX, circle.y * frame.signY, circle.radius, circle.aspect,
      circle.startAngle,      circle.endAngle,        circle.colour, circle.fill};
  Segment chord{};
  for (int i = 0; i <= kChords; ++i) {
    const double angle = shape.start() + shape.sweep() * i / kChords;
    chord = {chord.x2, chord.y2, shape.x + shape.radiusX() * std::cos(angle),
             shape.y - shape.radiusY() * std::sin(angle)};
    if (i > 0) add(frame, chord, hit);
  }
}

HitGrid::Cells HitGrid::columns(double a, double b) const {
  const double most = columnCount_ - 1;
  return {static_cast<int>(std::clamp(std::floor(std::min(a, b) / cell_), 0.0, most)),
          static_cast<int>(std::clamp(std::floor(std::max(a, b) / cell_), 0.0, most))};
}

HitGrid::Cells HitGrid::rows(double a, double b) const {
  const double most = rowCount_ - 1;
  return {static_cast<int>(std::clamp(std::floor(std::min(a, b) / cell_), 0.0, most)),
          static_cast<int>(std::clamp(std::floor(std::max(a, b) / cell_), 0.0, most))};
}

// Row by row those columns that the stroke passes through there.
template <class Visitor>
void HitGrid::visitCells(const Stroke& s, Visitor&& visitor) const {
  const Cells down = rows(s.y1, s.y2);
  for (int row = down.first; row <= down.last; ++row) {
    double from = s.x1;
    double to = s.x2;
    if (down.first != down.last) {
      const auto xAt = [&](double y) {
        return s.x1 + (s.x2 - s.x1) * std::clamp((y - s.y1) / (s.y2 - s.y1), 0.0, 1.0);
      };
      from = xAt(row * cell_);
      to = xAt((row + 1) * cell_);
    }
    const Cells across = columns(from, to);
    for (int column = across.first; column <= across.last; ++column) {
      visitor(cellOf(column, row));
    }
  }
}

// Counts, then fills: two walks and no allocation a cell.
void HitGrid::sort() {
  starts_.assign(cellOf(0, rowCount_) + 1, 0);
  for (const Stroke& stroke : strokes_) {
    visitCells(stroke, [this](std::size_t cell) { ++starts_[cell + 1]; });
  }
  for (std::size_t i = 1; i < starts_.size(); ++i) starts_[i] += starts_[i - 1];
  held_.resize(starts_.back());
  std::vector<std::uint32_t> next(starts_.begin(), starts_.end() - 1);
  for (std::size_t i = 0; i < strokes_.size(); ++i) {
    visitCells(strokes_[i],
               [&](std::size_t cell) { held_[next[cell]++] = static_cast<std::uint32_t>(i); });
  }
}

std::optional<Hit> HitGrid::at(double x, double y, double reach) const {
  if (strokes_.empty()) return {};
  const Cells across = columns(x - reach, x + reach);
  const Cells down = rows(y - reach, y + reach);
  std::optional<std::uint32_t> found;
  double nearest = reach;
  for (int row = down.first; row <= down.last; ++row) {
    for (int column = across.first; column <= across.last; ++column) {
      const auto cell = cellOf(column, row);
      for (std::uint32_t i = starts_[cell]; i < starts_[cell + 1]; ++i) {
        const Stroke& s = strokes_[held_[i]];
        const double away = distance(x, y, s.x1, s.y1, s.x2, s.y2);
        const bool later = !found || held_[i] > *found;
        if (away < nearest || (away == nearest && later)) {
          nearest = away;
          found = held_[i];
        }
      }
    }
  }
  if (!found) return {};
  return strokes_[*found].hit;
}

namespace {

// The name of a family of curves; empty for what no shadow follows.
std::string nameOf(const Program& program, CurveFamily family) {
  switch (family) {
    case CurveFamily::None: return {};
    case CurveFamily::Hours: return program.T("hour line");
    case CurveFamily::Declinations: return program.T("declination curve");
    case CurveFamily::Equinoctial: return program.T("equinoctial line");
    case CurveFamily::Analemma: return program.T("analemma");
    case CurveFamily::Italic: return program.T("italic hour line");
    case CurveFamily::Babylonian: return program.T("babylonian hour line");
    case CurveFamily::Temporary: return program.T("temporary hour line");
    case CurveFamily::Altitudes: return program.T("altitude curve");
    case CurveFamily::Azimuths: return program.T("azimuth line");
    case CurveFamily::Asr: return program.T("Asr line");
    case CurveFamily::Qibla: return program.T("Qibla line");
    case CurveFamily::Marks: return program.T("marked sun");
  }
  return {};
}

Meaning meaningOf(const DisplayList& list, const Hit& hit) {
  if (hit.kind == EntityKind::Line) return list.meaningOfLine(hit.record);
  if (hit.kind == EntityKind::Point) return list.meaningOfPoint(hit.record);
  return {};
}

// Family, hour and declination, as far as they are known; the sun is that of the stroke's middle.
QString meaningText(const Program& program, const Meaning& meaning) {
  const std::string family = nameOf(program, meaning.family);
  if (family.empty()) return {};
  const Sun sun{(meaning.first.hourAngle + meaning.second.hourAngle) / 2,
                (meaning.first.declination + meaning.second.declination) / 2};
  QString text = shown(family);
  if (!std::isnan(sun.hourAngle)) {
    text += ", " + shown(program.T("at ") + clockText(hourTold(program.panel(), sun)));
  }
  if (!std::isnan(sun.declination)) {
    const double degrees = sun.declination * 180 / std::numbers::pi;
    text += ", " + shown(program.T("sun's declination ")) + QString::number(degrees, 'f', 2) + "°";
  }
  return text;
}

}  // namespace

QString describe(const Program& program, const DisplayList& list, const Hit& hit) {
  const LayerAndColour look = lookOf(list, hit);
  const QString drawn = shown(program.T("layer ")) + shown(list.name(look.layer)) + ", " +
                        nameOf(program, look.colour);
  const QString meant = meaningText(program, meaningOf(list, hit));
  return meant.isEmpty() ? drawn : meant + "   " + drawn;
}

}  // namespace dialwright
