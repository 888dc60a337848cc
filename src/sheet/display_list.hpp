// The display list: everything drawn on the sheet, in drawing order, as the caller gave it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "sheet/colour.hpp"
#include "sheet/meaning.hpp"

namespace dialwright {

// A layer's place in the display list's table of names.
struct LayerId {
  std::uint32_t index = 0;
  friend bool operator==(LayerId, LayerId) = default;
};

enum class EntityKind : char { Point = 'P', Line = 'L', Box = 'B', Circle = 'C', Vertex = 'V' };

struct PointRecord {
  double x, y;
  Rgb colour;
  LayerId layer;
};

struct LineRecord {
  double x1, y1, x2, y2;
  Rgb colour;
  std::int32_t width;  // in target pixels
  LayerId layer;
};

struct BoxRecord {
  double x1, y1, x2, y2;
  Rgb colour;
  bool filled;
  LayerId layer;
};

struct CircleRecord {
  double x, y, radius, aspect;
  Rgb colour;
  Rgb fill;  // below 0 for none
  double startAngle, endAngle;
  LayerId layer;
};

enum class PolylineMark : char { Start, Vertex, End };

struct VertexRecord {
  double x, y;
  Rgb colour;
  PolylineMark mark;
  LayerId layer;
};

// A text keeps where it was asked for (metres for a given coordinate, the cursor's target units for
// one left out) and, beside it, where and in which colour it last came to stand.
struct TextRecord {
  double x, y;
  std::string text;
  double shownX, shownY;  // metres
  Rgb shownColour;

  static constexpr std::size_t kLength = 100;

  // The text cut to the record's 100 characters.
  std::string_view recorded() const;
};

// One order list and one list a kind; the nth line of the order is the nth record of the lines.
// Walk it with `visit`.
class DisplayList {
 public:
  DisplayList();

  // Layers are kept by number; the name "0" is number 0 and stands for no layer.
  LayerId layer(std::string_view name);
  const std::string& name(LayerId id) const { return names_[id.index]; }
  const std::vector<std::string>& layerNames() const { return names_; }

  // The two kinds that come by the hundred thousand are made in their place: copying a whole record
  // that was just written waits for its small numbers.
  void add(const PointRecord& r) {
    points.emplace_back(r.x, r.y, r.colour, r.layer);
    order_.push_back(EntityKind::Point);
  }
  void add(const LineRecord& r) {
    lines.emplace_back(r.x1, r.y1, r.x2, r.y2, r.colour, r.width, r.layer);
    order_.push_back(EntityKind::Line);
  }
  void add(const BoxRecord& record) { append(EntityKind::Box, boxes, record); }
  void add(const CircleRecord& record) { append(EntityKind::Circle, circles, record); }
  void add(const VertexRecord& record) { append(EntityKind::Vertex, vertices, record); }
  void add(TextRecord record) { texts.push_back(std::move(record)); }

  // What the strokes stand for is kept beside the records, once somebody wants to know.
  void keepMeanings(bool keep) { keepsMeanings_ = keep; }
  bool keepsMeanings() const { return keepsMeanings_; }
  // The meaning of the line, the point and the circle that came last.
  void meanLine(const Meaning& meaning) { mean(lineMeanings_, lines.size(), meaning); }
  void meanPoint(const Meaning& meaning) { mean(pointMeanings_, points.size(), meaning); }
  void meanCircle(const Meaning& meaning) { mean(circleMeanings_, circles.size(), meaning); }
  // The meaning of a line, a point and a circle by its place in its list; of family None when it
  // stands for no sun or nobody asked before it was drawn.
  Meaning meaningOfLine(std::size_t line) const { return meaningIn(lineMeanings_, line); }
  Meaning meaningOfPoint(std::size_t point) const { return meaningIn(pointMeanings_, point); }
  Meaning meaningOfCircle(std::size_t circle) const { return meaningIn(circleMeanings_, circle); }

  void clear();
  // Takes over what another list holds, behind what this one has.
  void append(DisplayList&& other);
  std::size_t size() const { return order_.size(); }
  const std::vector<EntityKind>& order() const { return order_; }

  // Bytes that the records need: the yard-stick for memory figures.
  std::size_t bytes() const;

  // Calls visitor(record) for each entity (no texts) in drawing order; the records may be changed.
  template <class Visitor>
  void visit(Visitor&& visitor) {
    visitIn(*this, visitor);
  }
  template <class Visitor>
  void visit(Visitor&& visitor) const {
    visitIn(*this, visitor);
  }

  std::vector<PointRecord> points;
  std::vector<LineRecord> lines;
  std::vector<BoxRecord> boxes;
  std::vector<CircleRecord> circles;
  std::vector<VertexRecord> vertices;
  std::vector<TextRecord> texts;

 private:
  template <class Record>
  void append(EntityKind kind, std::vector<Record>& records, const Record& record) {
    records.push_back(record);
    order_.push_back(kind);
  }

  static void mean(std::vector<Meaning>& meanings, std::size_t count, const Meaning& meaning) {
    if (count == 0) return;
    meanings.resize(count);
    meanings.back() = meaning;
  }
  static Meaning meaningIn(const std::vector<Meaning>& meanings, std::size_t place) {
    return place < meanings.size() ? meanings[place] : Meaning{};
  }

  template <class Self, class Visitor>
  static void visitIn(Self& list, Visitor& visitor) {
    std::size_t point = 0, line = 0, box = 0, circle = 0, vertex = 0;
    for (const EntityKind kind : list.order_) {
      switch (kind) {
        case EntityKind::Point: visitor(list.points[point++]); break;
        case EntityKind::Line: visitor(list.lines[line++]); break;
        case EntityKind::Box: visitor(list.boxes[box++]); break;
        case EntityKind::Circle: visitor(list.circles[circle++]); break;
        case EntityKind::Vertex: visitor(list.vertices[vertex++]); break;
      }
    }
  }

  std::vector<EntityKind> order_;
  std::vector<Meaning> lineMeanings_;
  std::vector<Meaning> pointMeanings_;
  std::vector<Meaning> circleMeanings_;
  bool keepsMeanings_ = false;
  std::vector<std::string> names_;
  std::unordered_map<std::string, std::uint32_t> numbers_;
};

}  // namespace dialwright
