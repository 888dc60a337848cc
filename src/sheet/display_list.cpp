// The display list's tables.
#include "sheet/display_list.hpp"

#include <iterator>

namespace dialwright {

namespace {

template <class Record>
std::size_t bytesOf(const std::vector<Record>& records) {
  return records.size() * sizeof(Record);
}

template <class Record>
void moveBehind(std::vector<Record>& records, std::vector<Record>& others) {
  records.insert(records.end(), std::make_move_iterator(others.begin()),
                 std::make_move_iterator(others.end()));
}

// The meanings of the last records may be left out.
void moveMeanings(std::vector<Meaning>& meanings, std::size_t records,
                  std::vector<Meaning>& others) {
  if (others.empty()) return;
  meanings.resize(records);
  moveBehind(meanings, others);
}

}  // namespace

std::string_view TextRecord::recorded() const {
  std::size_t end = 0;
  for (std::size_t characters = 0; end < text.size() && characters < kLength; ++characters) {
    ++end;
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) ++end;
  }
  return std::string_view(text).substr(0, end);
}

DisplayList::DisplayList() { layer("0"); }

LayerId DisplayList::layer(std::string_view name) {
  if (name.empty()) return {};
  const auto [found, added] =
      numbers_.try_emplace(std::string(name), static_cast<std::uint32_t>(names_.size()));
  if (added) names_.push_back(found->first);
  return {found->second};
}

void DisplayList::clear() {
  order_.clear();
  points.clear();
  lines.clear();
  boxes.clear();
  circles.clear();
  vertices.clear();
  texts.clear();
  lineMeanings_.clear();
  pointMeanings_.clear();
  circleMeanings_.clear();
}

void DisplayList::append(DisplayList&& other) {
  std::vector<LayerId> own;
  own.reserve(other.names_.size());
  for (const std::string& name : other.names_) own.push_back(layer(name));
  other.visit([&own](auto& record) { record.layer = own[record.layer.index]; });
  moveMeanings(lineMeanings_, lines.size(), other.lineMeanings_);
  moveMeanings(pointMeanings_, points.size(), other.pointMeanings_);
  moveBehind(order_, other.order_);
  moveBehind(points, other.points);
  moveBehind(lines, other.lines);
  moveBehind(boxes, other.boxes);
  moveBehind(circles, other.circles);
  moveBehind(vertices, other.vertices);
  moveBehind(texts, other.texts);
  other.clear();
}

std::size_t DisplayList::bytes() const {
  std::size_t bytes = bytesOf(order_) + bytesOf(points) + bytesOf(lines) + bytesOf(boxes) +
                      bytesOf(circles) + bytesOf(vertices) + bytesOf(texts);
  for (const TextRecord& text : texts) bytes += text.text.size();
  return bytes;
}

}  // namespace dialwright
