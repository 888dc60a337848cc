// The SVG writer: the records go by layer, each as its element or as a stroke of a path.
#include "sheet/svg.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <numbers>
#include <string>

#include "numerics/fault.hpp"
#include "sheet/layer_order.hpp"
#include "sheet/svg_paths.hpp"
#include "sheet/svg_text.hpp"

namespace dialwright {

namespace {

constexpr double kMicrometres = 1e6;  // in a metre
constexpr double kReach = 1e9;        // micrometres; a line beyond is cut to the sheet
constexpr double kAscent = 0.928;  // of DejaVu Sans, in its size: from a line's top to its baseline

// Where the ends of an arc lie on its circle, and which of them are tied to the centre.
struct ArcShape {
  double start, sweep;
  bool startRadius, endRadius;
};

ArcShape shapeOf(double startAngle, double endAngle) {
  constexpr double kTurn = 2 * std::numbers::pi;
  const double start = std::abs(startAngle);
  double sweep = std::fmod(std::abs(endAngle) - start, kTurn);
  if (sweep <= 0) sweep += kTurn;
  return {start, sweep, startAngle < 0, endAngle < 0};
}

class SvgWriter {
 public:
  SvgWriter(const SheetPlot& sheet, const Sink& sink, const SvgOptions& options)
      : sheet_(sheet),
        list_(sheet.list()),
        options_(options),
        dark_(options.dark),
        out_(sink),
        inks_(options.dark) {}

  void write() {
    open();
    const RecordsByLayer records(list_);
    for (std::size_t n = 0; n < records.layers.size(); ++n) layer(records, n);
    texts();
    out_ << "</svg>\n";
    out_.flush();
  }

 private:
  void open();
  void layer(const RecordsByLayer& records, std::size_t n);
  void turnOf(const std::string& name);
  void texts();
  void text(const TextRecord& record);

  void draw(const PointRecord& point);
  void draw(const LineRecord& line);
  void draw(const BoxRecord& box);
  void draw(const CircleRecord& circle);
  void drawVertex(std::size_t index);
  void drawRecord(const RecordPlace& place);
  void drawSegment(Segment segment, Rgb colour, std::int32_t width);
  void drawWhole(SvgSpot centre, SvgSpot radii, Rgb colour, Rgb fill);
  void drawArc(SvgSpot centre, SvgSpot radii, const ArcShape& arc, Rgb colour, Rgb fill);

  static bool reaches(double x, double y) { return std::abs(x) <= kReach && std::abs(y) <= kReach; }
  // Metres of the drawing, signs already applied, to micrometres from the sheet's corner.
  double across(double x) const { return (x + sheet_.ShiftX()) * kMicrometres; }
  double down(double y) const { return (y + sheet_.ShiftY()) * kMicrometres; }
  static SvgSpot spot(double x, double y) { return {std::llround(x), std::llround(y)}; }

  void openGroup(std::string_view id, std::string_view label);
  void element(std::string_view start, Rgb colour, Rgb fill);
  OutputBuffer& attribute(std::string_view name, std::int64_t micrometres);

  const SheetPlot& sheet_;
  const DisplayList& list_;
  const SvgOptions& options_;
  bool dark_;
  OutputBuffer out_;
  SvgInks inks_;
  PathJoiner joiner_{out_, inks_};
};

void SvgWriter::open() {
  const auto width = std::llround(sheet_.QuadranteL() * kMicrometres);
  const auto height = std::llround(sheet_.QuadranteH() * kMicrometres);
  out_ << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
          "<svg xmlns=\"http://www.w3.org/2000/svg\" "
          "xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\" width=\"";
  out_.thousandths(width) << "mm\" height=\"";
  out_.thousandths(height) << "mm\" viewBox=\"0 0 ";
  out_.thousandths(width) << ' ';
  out_.thousandths(height) << "\" overflow=\"hidden\" fill=\"none\" stroke-width=\"";
  out_.thousandths(kSvgStroke) << "\" stroke-linecap=\"round\" stroke-linejoin=\"round\">\n";
  if (!sheet_.caption().empty()) out_ << "<title>" << xmlText(sheet_.caption()) << "</title>\n";
  if (dark_) {
    out_ << "<rect width=\"100%\" height=\"100%\" fill=\"" << hexOf(sheet_.BackColor) << "\"/>\n";
  }
}

void SvgWriter::openGroup(std::string_view id, std::string_view label) {
  out_ << "<g inkscape:groupmode=\"layer\" id=\"" << id << "\" inkscape:label=\"" << xmlText(label)
       << '"';
}

void SvgWriter::layer(const RecordsByLayer& records, std::size_t n) {
  const LayerId id = records.layers[n];
  openGroup("layer" + std::to_string(n + 1), list_.name(id));
  if (sheet_.frame().dotted(id)) out_ << " stroke-dasharray=\"0 0.75\"";
  out_ << ">\n";
  turnOf(list_.name(id));
  records.visit(n, [this](const RecordPlace& place) { drawRecord(place); });
  joiner_.close();
  out_ << "</g>\n";
}

// Shows a layer that takes turns in its own time only, with its name in the sheet's corner.
void SvgWriter::turnOf(const std::string& name) {
  const auto& all = options_.takeTurns;
  const auto at = std::find(all.begin(), all.end(), name);
  if (at == all.end()) return;
  const auto whole = static_cast<double>(all.size());
  const double begin = static_cast<double>(at - all.begin()) / whole, end = begin + 1 / whole;
  std::array<char, 256> text{};
  std::snprintf(text.data(), text.size(),
                "<animate attributeName=\"visibility\" values=\"%s;visible;hidden\" "
                "keyTimes=\"0;%.6f;%.6f\" calcMode=\"discrete\" dur=\"%.3fs\" "
                "repeatCount=\"indefinite\"/>\n",
                begin > 0 ? "hidden" : "visible", begin, std::min(end, 0.999999),
                options_.secondsEach * whole);
  out_ << text.data() << "<text x=\"10\" y=\"20\" font-family=\"DejaVu Sans\" font-size=\"12\" "
       << "stroke=\"none\" fill=\"" << inks_.of(kWhite) << "\">" << xmlText(name) << "</text>\n";
}

void SvgWriter::drawRecord(const RecordPlace& place) {
  switch (place.kind) {
    case EntityKind::Point: draw(list_.points[place.index]); break;
    case EntityKind::Line: draw(list_.lines[place.index]); break;
    case EntityKind::Box: draw(list_.boxes[place.index]); break;
    case EntityKind::Circle: draw(list_.circles[place.index]); break;
    case EntityKind::Vertex: drawVertex(place.index); break;
  }
}

void SvgWriter::draw(const PointRecord& point) {
  if (!sheet_.frame().holds(point.x, point.y)) return;
  const double x = across(point.x * sheet_.SignX());
  const double y = down(point.y * sheet_.SignY());
  if (reaches(x, y)) joiner_.dot(spot(x, y), point.colour);
}

void SvgWriter::draw(const LineRecord& line) {
  drawSegment(sheet_.frame().mirrored(line), line.colour, line.width);
}

// A vertex brings the segment to it from the one before.
void SvgWriter::drawVertex(std::size_t index) {
  if (index == 0) return;
  const VertexRecord& from = list_.vertices[index - 1];
  const VertexRecord& to = list_.vertices[index];
  if (from.mark == PolylineMark::Vertex) drawSegment({from.x, from.y, to.x, to.y}, to.colour, 1);
}

void SvgWriter::drawSegment(Segment segment, Rgb colour, std::int32_t width) {
  if (segment.x1 == segment.x2 && segment.y1 == segment.y2) return;
  const auto mapped = [this](const Segment& s) {
    return Segment{across(s.x1), down(s.y1), across(s.x2), down(s.y2)};
  };
  Segment seen = mapped(segment);
  if (!reaches(seen.x1, seen.y1) || !reaches(seen.x2, seen.y2)) {
    if (sheet_.ClipToSheet(segment) == 0) return;
    seen = mapped(segment);
    if (!reaches(seen.x1, seen.y1) || !reaches(seen.x2, seen.y2)) return;
  }
  joiner_.stroke(spot(seen.x1, seen.y1), spot(seen.x2, seen.y2), colour, width);
}

OutputBuffer& SvgWriter::attribute(std::string_view name, std::int64_t micrometres) {
  out_ << ' ' << name << "=\"";
  return out_.thousandths(micrometres) << '"';
}

// Opens an element with its colours. A fill of the sheet's own colour is the paper's.
void SvgWriter::element(std::string_view start, Rgb colour, Rgb fill) {
  joiner_.close();
  out_ << start << " stroke=\"" << inks_.of(colour) << '"';
  if (fill < 0) return;
  out_ << " fill=\"" << (!dark_ && fill == sheet_.BackColor ? hexOf(kWhite) : inks_.of(fill))
       << '"';
}

void SvgWriter::draw(const BoxRecord& box) {
  const double x1 = across(box.x1 * sheet_.SignX());
  const double y1 = down(box.y1 * sheet_.SignY());
  const double x2 = across(box.x2 * sheet_.SignX());
  const double y2 = down(box.y2 * sheet_.SignY());
  if (!reaches(x1, y1) || !reaches(x2, y2)) return;
  const SvgSpot a = spot(std::min(x1, x2), std::min(y1, y2));
  const SvgSpot b = spot(std::max(x1, x2), std::max(y1, y2));
  if (a.x == b.x || a.y == b.y) {  // a rectangle without area would not be shown
    joiner_.stroke(a, b, box.colour, 1);
    return;
  }
  element("<rect", box.colour, box.filled ? box.colour : kNoFill);
  attribute("x", a.x);
  attribute("y", a.y);
  attribute("width", b.x - a.x);
  attribute("height", b.y - a.y) << "/>\n";
}

// The radius is the longer half axis of an ellipse; the aspect is that of height to width.
void SvgWriter::draw(const CircleRecord& circle) {
  const double x = across(circle.x * sheet_.SignX());
  const double y = down(circle.y * sheet_.SignY());
  const double radius = circle.radius * kMicrometres;
  if (!reaches(x, y) || !(radius >= 0 && radius <= kReach)) return;
  if (radius == 0) {  // which would not be shown
    joiner_.dot(spot(x, y), circle.colour);
    return;
  }
  const double aspect = circle.aspect > 0 && sound(circle.aspect) ? circle.aspect : 1;
  const double wide = aspect > 1 ? radius / aspect : radius;
  const double high = aspect > 1 ? radius : radius * aspect;
  const SvgSpot radii = spot(std::max(wide, 1.0), std::max(high, 1.0));
  if (circle.endAngle == 0) {
    drawWhole(spot(x, y), radii, circle.colour, circle.fill);
  } else if (sound(circle.startAngle) && sound(circle.endAngle)) {
    drawArc(spot(x, y), radii, shapeOf(circle.startAngle, circle.endAngle), circle.colour,
            circle.fill);
  }
}

void SvgWriter::drawWhole(SvgSpot centre, SvgSpot radii, Rgb colour, Rgb fill) {
  const bool round = radii.x == radii.y;
  element(round ? "<circle" : "<ellipse", colour, fill);
  attribute("cx", centre.x);
  attribute("cy", centre.y);
  if (round) {
    attribute("r", radii.x) << "/>\n";
  } else {
    attribute("rx", radii.x);
    attribute("ry", radii.y) << "/>\n";
  }
}

// An arc runs counter-clockwise as seen. It is written as two halves, so that one of a full turn
// has ends apart.
void SvgWriter::drawArc(SvgSpot centre, SvgSpot radii, const ArcShape& arc, Rgb colour, Rgb fill) {
  const auto onCircle = [&](double angle) {
    return SvgSpot{centre.x + std::llround(static_cast<double>(radii.x) * std::cos(angle)),
                   centre.y - std::llround(static_cast<double>(radii.y) * std::sin(angle))};
  };
  const auto arcTo = [&](SvgSpot to) { out_ << 'A' << radii << " 0 0 0 " << to; };
  const bool slice = arc.startRadius && arc.endRadius;
  element("<path", colour, slice ? fill : kNoFill);
  out_ << " d=\"";
  if (arc.startRadius) out_ << 'M' << centre;
  out_ << (arc.startRadius ? 'L' : 'M') << onCircle(arc.start);
  arcTo(onCircle(arc.start + arc.sweep / 2));
  arcTo(onCircle(arc.start + arc.sweep));
  if (slice) {
    out_ << 'z';
  } else if (arc.endRadius) {
    out_ << 'L' << centre;
  }
  out_ << "\"/>\n";
}

void SvgWriter::texts() {
  if (list_.texts.empty()) return;
  openGroup("texts", "texts");
  out_ << " font-family=\"DejaVu Sans\" font-size=\"";
  const double size = kTextSize * sheet_.Scala() / kTwipsPerMeter * kMicrometres;
  out_.thousandths(std::llround(size)) << "\" stroke=\"none\" xml:space=\"preserve\">\n";
  for (const TextRecord& record : list_.texts) text(record);
  out_ << "</g>\n";
}

// A text to the right of the sheet or below it can't be seen: a redraw puts some there, far off.
void SvgWriter::text(const TextRecord& record) {
  if (record.text.find_first_not_of(' ') == std::string::npos) return;
  const double size = kTextSize * sheet_.Scala() / kTwipsPerMeter * kMicrometres;
  const double x = across(record.shownX);
  const double top = down(record.shownY);
  const bool seen =
      reaches(x, top) && record.shownX < sheet_.xMax() && record.shownY < sheet_.yMax();
  if (!seen) return;
  out_ << "<text";
  attribute("x", std::llround(x));
  attribute("y", std::llround(top + kAscent * size));
  out_ << " fill=\"" << inks_.of(record.shownColour) << "\">" << xmlText(record.text)
       << "</text>\n";
}

}  // namespace

void writeSvg(const SheetPlot& sheet, const Sink& sink, const SvgOptions& options) {
  SvgWriter(sheet, sink, options).write();
}

}  // namespace dialwright
