// The catalogue: the menu tree with its dials.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace dialwright {

enum class Item : std::uint8_t {
#define ITEM(name, parent, caption, program) name,
#define SEPARATOR(name, parent) name,
#include "shell/catalogue.def"
  None
};

inline constexpr std::size_t kItemCount = static_cast<std::size_t>(Item::None);

struct ItemRow {
  std::string_view name;
  Item parent;
  std::string_view caption;
  int program;  // 0 where the caption has no number of its own
  bool separator;
};

// All rows in menu order; an item's row stands at its own number.
std::span<const ItemRow, kItemCount> itemTable();
const ItemRow& rowOf(Item item);
constexpr Item itemAt(std::size_t number) { return static_cast<Item>(number); }

// The dials: the items that lie under the menu of sundials and have no items below them, in menu
// order.
const std::vector<Item>& dialItems();
bool isDial(Item item);

// The dial of a menu item's name (without regard to case) or of a program number ("7").
std::optional<Item> findDial(std::string_view nameOrNumber);

}  // namespace dialwright
