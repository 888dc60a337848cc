// The catalogue's table, built from the list of menu items.
#include "shell/catalogue.hpp"

#include <algorithm>
#include <array>
#include <string>

#include "shell/names.hpp"

namespace dialwright {

namespace {

constexpr std::array<ItemRow, kItemCount> kItems = {{
#define ITEM(name, parent, caption, program) {#name, Item::parent, caption, program, false},
#define SEPARATOR(name, parent) {#name, Item::parent, "-", 0, true},
#include "shell/catalogue.def"
}};

bool hasChildren(Item item) {
  return std::any_of(kItems.begin(), kItems.end(),
                     [item](const ItemRow& row) { return row.parent == item; });
}

bool liesUnder(Item item, Item menu) {
  for (Item at = item; at != Item::None; at = rowOf(at).parent) {
    if (at == menu) return true;
  }
  return false;
}

std::vector<Item> collectDials() {
  std::vector<Item> dials;
  for (std::size_t i = 0; i < kItemCount; ++i) {
    if (liesUnder(itemAt(i), Item::M_Quadranti) && !hasChildren(itemAt(i)))
      dials.push_back(itemAt(i));
  }
  return dials;
}

}  // namespace

std::span<const ItemRow, kItemCount> itemTable() { return kItems; }

const ItemRow& rowOf(Item item) { return kItems[static_cast<std::size_t>(item)]; }

const std::vector<Item>& dialItems() {
  static const std::vector<Item> kDials = collectDials();
  return kDials;
}

bool isDial(Item item) {
  return std::find(dialItems().begin(), dialItems().end(), item) != dialItems().end();
}

std::optional<Item> findDial(std::string_view nameOrNumber) {
  for (const Item item : dialItems()) {
    const ItemRow& row = rowOf(item);
    const bool numbered = row.program != 0 && std::to_string(row.program) == nameOrNumber;
    if (numbered || equalIgnoringCase(row.name, nameOrNumber)) return item;
  }
  return {};
}

}  // namespace dialwright
