// The DXF writer: each group is two lines, the code between blanks and then the value.
#include "sheet/dxf.hpp"

#include <array>
#include <tuple>
#include <type_traits>

#include "numerics/fault.hpp"
#include "sheet/utf8.hpp"

namespace dialwright {

namespace {

constexpr double kMillimetres = 1000;  // in a metre

struct ColourIndex {
  Rgb colour;
  int index;
};
// The bright green's index is that of white; white's own test misses white by a digit too many.
constexpr std::array<ColourIndex, 15> kColourIndices = {{{0x000080, 1},
                                                         {0x0000FF, 1},
                                                         {0x008080, 2},
                                                         {0x00FFFF, 2},
                                                         {0x008000, 3},
                                                         {0x00FF00, 7},
                                                         {0x808000, 4},
                                                         {0xFFFF00, 4},
                                                         {0x800000, 5},
                                                         {0xFF0000, 5},
                                                         {0x800080, 6},
                                                         {0xFF00FF, 6},
                                                         {0xC0C0C0, 7},
                                                         {0x808080, 8},
                                                         {167777215, 7}}};

// A drawing without a version is read as Windows-1252, and a layer's name may not hold some signs.
// What has no place becomes an underscore; of our own layers' names nothing does.
std::string layerText(std::string_view name) {
  constexpr std::string_view kForbidden = "<>/\\\":;?*|=`'";
  std::string text;
  while (!name.empty()) {
    const auto [code, length] = firstCharacter(name);
    const bool printable = (code >= 0x20 && code < 0x7F) || (code >= 0xA0 && code <= 0xFF);
    const char c = static_cast<char>(code);
    text += printable && kForbidden.find(c) == std::string_view::npos ? c : '_';
    name.remove_prefix(length);
  }
  return text;
}

}  // namespace

int DXF_QbColorConverter(Rgb colour) {
  for (const ColourIndex& row : kColourIndices) {
    if (row.colour == colour) return row.index;
  }
  return colour;
}

std::string DXF_DefaultName(const std::tm& now) {
  std::string name = "DXF";
  for (const int part :
       {now.tm_year + 1900, now.tm_mon + 1, now.tm_mday, now.tm_hour, now.tm_min, now.tm_sec}) {
    name += std::to_string(part);
  }
  return name;
}

void DXF_Generate(SheetPlot& sheet, double piGreco, const Sink& sink, InvertedAxes axes) {
  OutputBuffer out(sink);
  DxfWriter writer(sheet, piGreco, out, axes);
  writer.DXF_CreaHeader();
  out << " 0 \r\nSECTION\r\n 2 \r\nENTITIES\r\n";
  writer.DXF_Entities();
  out << " 0 \r\nENDSEC\r\n 0 \r\nEOF\r\n";
  out.flush();
}

DxfWriter::DxfWriter(SheetPlot& sheet, double piGreco, OutputBuffer& out, InvertedAxes axes)
    : sheet_(sheet), piGreco_(piGreco), out_(out), trueAxes_(axes == InvertedAxes::True) {
  for (const std::string& name : sheet.list().layerNames()) layers_.push_back(layerText(name));
}

void DxfWriter::DXF_CreaHeader() {
  out_ << " 999 \r\nDXF creato da SheetPlot\r\n 0 \r\nSECTION\r\n 2 \r\nHEADER\r\n"
          " 9 \r\n$EXTMAX\r\n 10 \r\n";
  out_.significant(sheet_.QuadranteL()) << "\r\n 20 \r\n";
  out_.significant(sheet_.QuadranteH()) << "\r\n 30 \r\n0\r\n";
  out_ << " 9 \r\n$EXTMIN\r\n 10 \r\n0\r\n 20 \r\n0\r\n 30 \r\n0\r\n 0 \r\nENDSEC\r\n";
}

void DxfWriter::DXF_Entities() {
  sheet_.list().visit([this](auto& record) {
    using Record = std::remove_reference_t<decltype(record)>;
    if constexpr (!std::is_same_v<Record, VertexRecord>) {  // a vertex is known by its place
      if (trueAxes_) return writeCopy(record);
    }
    write(record);
  });
}

// --- Records: x goes to the writer itself, y as a negated copy.

void DxfWriter::write(PointRecord& point) {
  double y = -point.y;
  DXF_Point(point.x, y, DXF_QbColorConverter(point.colour), point.layer);
}

void DxfWriter::write(LineRecord& line) {
  double y1 = -line.y1;
  double y2 = -line.y2;
  DXF_Line(line.x1, y1, line.x2, y2, DXF_QbColorConverter(line.colour), line.layer);
}

// A box alone goes with its colour as it stands.
void DxfWriter::write(BoxRecord& box) {
  double y1 = -box.y1;
  double y2 = -box.y2;
  DXF_Box(box.x1, y1, box.x2, y2, box.colour, box.layer);
}

void DxfWriter::write(CircleRecord& circle) {
  double y = -circle.y;
  const int colour = DXF_QbColorConverter(circle.colour);
  if (circle.endAngle == 0) {
    DXF_Circle(circle.x, y, circle.radius, colour, circle.layer);
    return;
  }
  DXF_Arc(circle.x, y, circle.radius, circle.startAngle * 180 / piGreco_,
          circle.endAngle * 180 / piGreco_, colour, circle.layer);
}

void DxfWriter::write(VertexRecord& vertex) {
  if (vertex.mark != PolylineMark::Start) return;  // written with its polyline's start
  DXF_PolyLine_Generate(static_cast<std::size_t>(&vertex - sheet_.list().vertices.data()),
                        vertex.layer);
}

// --- Entities. One whose values are no numbers can't be written and is left out.

// Multiplies by the axis signs; false when the place can't be written.
bool DxfWriter::toSheet(double& x, double& y) const {
  x *= sheet_.SignX();
  y *= sheet_.SignY();
  return sound(x * kMillimetres) && sound(y * kMillimetres);
}

void DxfWriter::head(std::string_view entity, LayerId layer) {
  out_ << " 0 \r\n" << entity << "\r\n 8 \r\n" << layers_[layer.index] << "\r\n";
}

void DxfWriter::colourGroup(int colour) {
  out_ << " 62 \r\n" << (colour > 255 ? 1 : colour) << "\r\n";
}

void DxfWriter::position(double x, double y) {
  out_ << " 10 \r\n";
  out_.significant(x * kMillimetres) << "\r\n 20 \r\n";
  out_.significant(y * kMillimetres) << "\r\n";
}

void DxfWriter::DXF_Point(double& x, double& y, int colour, LayerId layer) {
  if (!toSheet(x, y)) return;
  head("POINT", layer);
  colourGroup(colour);
  position(x, y);
  out_ << " 30 \r\n0\r\n";
}

void DxfWriter::DXF_Line(double& x1, double& y1, double& x2, double& y2, int colour,
                         LayerId layer) {
  const bool first = toSheet(x1, y1);
  const bool second = toSheet(x2, y2);
  if (!first || !second) return;
  head("LINE", layer);
  colourGroup(colour);
  position(x1, y1);
  out_ << " 30 \r\n0\r\n 11 \r\n";
  out_.significant(x2 * kMillimetres) << "\r\n 21 \r\n";
  out_.significant(y2 * kMillimetres) << "\r\n 31 \r\n0\r\n";
}

// The four values pass from line to line by reference: each is turned over once for each use, but
// for true axes.
void DxfWriter::DXF_Box(double& x1, double& y1, double& x2, double& y2, int colour, LayerId layer) {
  if (trueAxes_) {
    const auto edge = [&](double fromX, double fromY, double toX, double toY) {
      DXF_Line(fromX, fromY, toX, toY, colour, layer);
    };
    edge(x1, y2, x2, y2);
    edge(x2, y2, x2, y1);
    edge(x2, y1, x1, y1);
    edge(x1, y1, x1, y2);
    return;
  }
  DXF_Line(x1, y2, x2, y2, colour, layer);
  DXF_Line(x2, y2, x2, y1, colour, layer);
  DXF_Line(x2, y1, x1, y1, colour, layer);
  DXF_Line(x1, y1, x1, y2, colour, layer);
}

void DxfWriter::DXF_Circle(double& x, double& y, double radius, int colour, LayerId layer) {
  if (!toSheet(x, y) || !sound(radius * kMillimetres)) return;
  head("CIRCLE", layer);
  colourGroup(colour);
  position(x, y);
  out_ << " 30 \r\n0\r\n 40 \r\n";
  out_.significant(radius * kMillimetres) << "\r\n";
}

// An arc's ends, in degrees, as the axes turn it: a mirror changes the way round, and with it the
// ends.
std::pair<double, double> DxfWriter::mirrored(double start, double end) const {
  if (sheet_.SignX() < 0) {
    start = 180 - std::exchange(end, 180 - start);
  }
  if (sheet_.SignY() < 0) {
    start = -std::exchange(end, -start);
  }
  return {start, end};
}

void DxfWriter::DXF_Arc(double& x, double& y, double radius, double start, double end, int colour,
                        LayerId layer) {
  if (!toSheet(x, y) || !sound(radius * kMillimetres) || !sound(start) || !sound(end)) return;
  head("ARC", layer);
  colourGroup(colour);
  position(x, y);
  out_ << " 30 \r\n0\r\n 40 \r\n";
  if (trueAxes_) std::tie(start, end) = mirrored(start, end);
  out_.significant(radius * kMillimetres) << "\r\n 50 \r\n";
  out_.significant(start) << "\r\n 51 \r\n";
  out_.significant(end) << "\r\n";
}

void DxfWriter::DXF_PLINE(int colour, LayerId layer) {
  head("POLYLINE", layer);
  colourGroup(colour);
  out_ << " 70 \r\n0\r\n 10 \r\n0\r\n 20 \r\n0\r\n 30 \r\n0\r\n";
}

void DxfWriter::DXF_VERTEX(double x, double y, LayerId layer) {
  if (!toSheet(x, y)) return;
  head("VERTEX", layer);
  position(x, y);
}

void DxfWriter::DXF_SEQEND(LayerId layer) { head("SEQEND", layer); }

void DxfWriter::DXF_PolyLine_Generate(std::size_t start, LayerId layer) {
  const std::vector<VertexRecord>& all = sheet_.list().vertices;
  const auto vertex = [&all](std::size_t i) {
    return i < all.size() && all[i].mark == PolylineMark::Vertex;
  };
  const auto write = [this, layer](double x, double y) {
    DXF_VERTEX((x + sheet_.ShiftX()) * sheet_.ScreenFactor(),
               -1 * (y + sheet_.ShiftY()) * sheet_.ScreenFactor(), layer);
  };
  DXF_PLINE(vertex(start + 1) ? DXF_QbColorConverter(all[start + 1].colour) : kBlack, layer);
  Segment last{kFault, kFault, kFault, kFault};
  for (std::size_t i = start + 1; vertex(i) && vertex(i + 1); ++i) {
    const Segment whole{all[i].x, all[i].y, all[i + 1].x, all[i + 1].y};
    Segment seen = whole;
    if (sheet_.ClipToSheet(seen) == 0) continue;
    // Clipping may turn a pair round; neighbours share their vertex.
    const double along =
        (seen.x2 - seen.x1) * (whole.x2 - whole.x1) + (seen.y2 - seen.y1) * (whole.y2 - whole.y1);
    if (along < 0) seen = {seen.x2, seen.y2, seen.x1, seen.y1};
    if (seen.x1 != last.x2 || seen.y1 != last.y2) write(seen.x1, seen.y1);
    write(seen.x2, seen.y2);
    last = seen;
  }
  DXF_SEQEND(layer);
}

}  // namespace dialwright
