// The set-up that each dial's click gives the panel, as a table.
#pragma once

#include <string_view>
#include <vector>

#include "shell/clicks.hpp"

namespace dialwright {

struct FieldText {
  Field field;
  std::string_view text;
};

struct SetUp {
  Item item;
  std::vector<Field> shown{};   // besides the common fields
  std::vector<Field> hidden{};  // of the common fields
  std::vector<FieldText> texts{};
  std::vector<FieldText>
      captions{};  // of labels, boxes and options; they go through the dictionary
  std::vector<FieldText> tips{};
  bool convex = false;            // selects OptConvex
  bool hasMap = false;            // enables the map's controls
  bool keepsOthers = false;       // fields that the row does not name stay as they stood
  std::vector<Field> disabled{};  // of all fields
  std::vector<Field> enabled{};   // besides the shown fields
};

// The set-up of a dial, or nullptr for the items that have none.
const SetUp* findSetUp(Item item);

// Does all that the row says and checks its item alone.
void apply(const SetUp& setUp, Panel& panel, const Translator& T);

}  // namespace dialwright
