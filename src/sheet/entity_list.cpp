// The entity list's rows: fourteen columns, empty where nothing applies.
#include "sheet/entity_list.hpp"

#include <string>
#include <vector>

namespace dialwright {

namespace {

constexpr char kHeader[] =
    "kind,x1,y1,x2,y2,radius,aspect,start,end,colour,fill,width,layer,text\r\n";

std::string quoted(std::string_view value) {
  if (value.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(value);
  std::string text = "\"";
  for (const char c : value) text.append(c == '"' ? 2 : 1, c);
  return text + '"';
}

constexpr std::string_view name(PolylineMark mark) {
  switch (mark) {
    case PolylineMark::Start: return "START";
    case PolylineMark::Vertex: return "VERTEX";
    case PolylineMark::End: return "END";
  }
  return {};
}

class EntityListWriter {
 public:
  EntityListWriter(const DisplayList& list, const Sink& sink) : list_(list), out_(sink) {
    for (const std::string& layer : list.layerNames()) layers_.push_back(quoted(layer));
  }

  void write() {
    out_ << kHeader;
    list_.visit([this](const auto& record) { row(record); });
    for (const TextRecord& text : list_.texts) row(text);
    out_.flush();
  }

 private:
  void row(const PointRecord& point) {
    out_ << "P";
    place(point.x, point.y);
    out_ << ",,,,,,," << point.colour << ",,,";
    end(point.layer);
  }

  void row(const LineRecord& line) {
    out_ << "L";
    place(line.x1, line.y1);
    place(line.x2, line.y2);
    out_ << ",,,,," << line.colour << ",," << line.width << ",";
    end(line.layer);
  }

  void row(const BoxRecord& box) {
    out_ << "B";
    place(box.x1, box.y1);
    place(box.x2, box.y2);
    out_ << ",,,,," << box.colour << (box.filled ? ",1,," : ",0,,");
    end(box.layer);
  }

  void row(const CircleRecord& circle) {
    out_ << "C";
    place(circle.x, circle.y);
    out_ << ",,";
    place(circle.radius, circle.aspect);
    place(circle.startAngle, circle.endAngle);
    out_ << "," << circle.colour << "," << (circle.fill < 0 ? kNoFill : circle.fill) << ",,";
    end(circle.layer);
  }

  void row(const VertexRecord& vertex) {
    out_ << "V";
    place(vertex.x, vertex.y);
    out_ << ",,,,,,," << vertex.colour << ",,,";
    end(vertex.layer, name(vertex.mark));
  }

  void row(const TextRecord& text) {
    out_ << "T";
    place(text.x, text.y);
    out_ << ",,,,,,,,,,," << quoted(text.recorded()) << "\r\n";
  }

  void place(double first, double second) {
    out_ << ",";
    out_.shortest(first) << ",";
    out_.shortest(second);
  }

  void end(LayerId layer, std::string_view text = {}) {
    out_ << layers_[layer.index] << "," << text << "\r\n";
  }

  const DisplayList& list_;
  OutputBuffer out_;
  std::vector<std::string> layers_;
};

}  // namespace

void writeEntityList(const DisplayList& list, const Sink& sink) {
  EntityListWriter(list, sink).write();
}

void writeTexts(const DisplayList& list, const Sink& sink) {
  OutputBuffer out(sink);
  for (const TextRecord& record : list.texts) {
    std::string line = record.text;
    for (char& c : line) {
      if (c == '\r' || c == '\n') c = ' ';
    }
    out << line << '\n';
  }
  out.flush();
}

}  // namespace dialwright
