// Writing the lists.
#include "cli/listing.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <vector>

namespace dialwright {

namespace {

using Json = nlohmann::ordered_json;
using Row = std::vector<std::string>;

std::size_t columns(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  }));
}

// Columns of equal width, two blanks between them, none at a line's end.
std::string table(const std::vector<Row>& rows) {
  std::vector<std::size_t> widths;
  for (const Row& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], columns(row[i]));
  }
  std::string text;
  for (const Row& row : rows) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i)
      line += row[i] + std::string(widths[i] + 2 - columns(row[i]), ' ');
    line.erase(line.find_last_not_of(' ') + 1);
    text += line + '\n';
  }
  return text;
}

// Every row as an object under the header's names.
std::string asJson(const std::vector<Json>& objects) { return Json(objects).dump(2) + '\n'; }

bool isListed(FieldKind kind) {
  return kind == FieldKind::Text || kind == FieldKind::Check || kind == FieldKind::Option ||
         kind == FieldKind::Button || kind == FieldKind::Combo;
}

std::string defaultOf(const Panel& panel, Field field) {
  const FieldKind kind = rowOf(field).kind;
  if (kind == FieldKind::Check || kind == FieldKind::Option) return panel.on(field) ? "1" : "0";
  return panel.text(field);
}

std::string labelOf(const Panel& panel, Field field) {
  const Field label = rowOf(field).label;
  return label == Field::None ? panel[field].caption : panel[label].caption;
}

std::string tipOf(const Panel& panel, Field field) {
  const Field label = rowOf(field).label;
  const std::string& own = panel[field].tip;
  return own.empty() && label != Field::None ? panel[label].tip : own;
}

}  // namespace

std::string listOfDials(const Program& program, bool json) {
  std::vector<Row> rows = {{"item", "program", "caption", "draws"}};
  std::vector<Json> objects;
  for (const Item item : dialItems()) {
    const ItemRow& row = rowOf(item);
    const std::string caption = program.T(row.caption);
    rows.push_back({std::string(row.name), row.program ? std::to_string(row.program) : "-", caption,
                    draws(item) ? "draws" : "-"});
    objects.push_back({{"item", row.name},
                       {"program", row.program ? Json(row.program) : Json(nullptr)},
                       {"caption", caption},
                       {"draws", draws(item)}});
  }
  return json ? asJson(objects) : table(rows);
}

std::string listOfFields(Program& program, std::optional<Item> dial, bool json) {
  if (dial) program.click(*dial);
  const Panel& panel = program.panel();
  std::vector<Row> rows = {{"name", "kind", "default", "label", "tip"}};
  std::vector<Json> objects;
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field field = fieldAt(i);
    const FieldRow& row = rowOf(field);
    if (!isListed(row.kind) || (dial && !panel[field].visible)) continue;
    const Row cells = {std::string(row.name), std::string(nameOf(row.kind)),
                       defaultOf(panel, field), labelOf(panel, field), tipOf(panel, field)};
    rows.push_back(cells);
    objects.push_back({{"name", cells[0]},
                       {"kind", cells[1]},
                       {"default", cells[2]},
                       {"label", cells[3]},
                       {"tip", cells[4]},
                       {"enabled", panel[field].enabled}});
  }
  return json ? asJson(objects) : table(rows);
}

namespace {

// With three decimals; "-" for what is infinite.
std::string figure(double value) {
  if (!std::isfinite(value)) return "-";
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.3f", value);
  return text.data();
}

Json figureInJson(double value) { return std::isfinite(value) ? Json(value) : Json(nullptr); }

}  // namespace

std::string proofTable(const proof::Proof& proof, bool json) {
  std::vector<proof::LayerProof> layers = proof.layers;
  layers.push_back(proof.total());
  layers.back().layer = "all";
  std::vector<Row> rows = {{"layer", "strokes", "true", "ghosts", "strays", "worst mm", "minutes"}};
  std::vector<Json> objects;
  for (const proof::LayerProof& each : layers) {
    rows.push_back({each.layer, std::to_string(each.strokes), std::to_string(each.genuine),
                    std::to_string(each.ghosts), std::to_string(each.strays),
                    figure(each.millimetres), figure(each.minutes)});
    objects.push_back({{"layer", each.layer},
                       {"strokes", each.strokes},
                       {"true", each.genuine},
                       {"ghosts", each.ghosts},
                       {"strays", each.strays},
                       {"millimetres", figureInJson(each.millimetres)},
                       {"minutes", figureInJson(each.minutes)}});
  }
  return json ? asJson(objects) : table(rows);
}

}  // namespace dialwright
