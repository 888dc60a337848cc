// Writes the display list as a DXF drawing in millimetres, for the CAD work of cutting a dial.
#pragma once

#include <ctime>
#include <string>
#include <utility>
#include <vector>

#include "sheet/output_buffer.hpp"
#include "sheet/sheet_plot.hpp"

namespace dialwright {

// Writes the whole drawing: header, entities in drawing order, end. Texts and fills are not part of
// a DXF, nothing is clipped (but polylines), and the origin is the drawing's.
//
// piGreco is the circle constant that the arcs' angles are turned into degrees with. With an
// inverted x axis every export turns the stored x values over, so that every second one is not
// mirrored; that is why the sheet is not const. A box's edges are turned over edge by edge then,
// and an arc keeps its angles; both are right with InvertedAxes::True, which leaves the sheet as it
// is.
enum class InvertedAxes { Stored, True };
void DXF_Generate(SheetPlot& sheet, double piGreco, const Sink& sink,
                  InvertedAxes axes = InvertedAxes::Stored);

// The name that a save dialogue proposes, without its ending: "DXF", then year, month, day, hour,
// minute and second as plain numbers.
std::string DXF_DefaultName(const std::tm& now);

// The DXF colour index of a colour of the palette; any other value, white's too, comes back as it
// is.
int DXF_QbColorConverter(Rgb colour);

// Writes one entity a call. Coordinates are metres with y upwards. Those that are taken by
// reference are multiplied by the sheet's axis signs for good.
class DxfWriter {
 public:
  DxfWriter(SheetPlot& sheet, double piGreco, OutputBuffer& out,
            InvertedAxes axes = InvertedAxes::Stored);

  void DXF_CreaHeader();
  void DXF_Entities();

  void DXF_Point(double& x, double& y, int colour, LayerId layer);
  void DXF_Line(double& x1, double& y1, double& x2, double& y2, int colour, LayerId layer);
  // The four edges as lines: bottom, right, top, left. The second corner is the lower one.
  void DXF_Box(double& x1, double& y1, double& x2, double& y2, int colour, LayerId layer);
  void DXF_Circle(double& x, double& y, double radius, int colour, LayerId layer);
  // From start to end, in degrees, counter-clockwise.
  void DXF_Arc(double& x, double& y, double radius, double start, double end, int colour,
               LayerId layer);
  void DXF_PLINE(int colour, LayerId layer);
  void DXF_VERTEX(double x, double y, LayerId layer);
  void DXF_SEQEND(LayerId layer);
  // The polyline that starts at the record `start`, clipped to the sheet and in target units.
  void DXF_PolyLine_Generate(std::size_t start, LayerId layer);

 private:
  void write(PointRecord& point);
  void write(LineRecord& line);
  void write(BoxRecord& box);
  void write(CircleRecord& circle);
  void write(VertexRecord& vertex);
  // A record that the writer turns over as a copy.
  template <class Record>
  void writeCopy(Record record) {
    write(record);
  }

  std::pair<double, double> mirrored(double start, double end) const;
  bool toSheet(double& x, double& y) const;
  void head(std::string_view entity, LayerId layer);
  void colourGroup(int colour);
  void position(double x, double y);

  SheetPlot& sheet_;
  double piGreco_;
  OutputBuffer& out_;
  bool trueAxes_;
  std::vector<std::string> layers_;  // the names as a DXF may hold them
};

}  // namespace dialwright
