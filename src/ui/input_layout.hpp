// Where each field of the panel stands: sections under a heading, rows of fields in the panel's
// order.
#pragma once

#include <span>
#include <vector>

#include "shell/fields.hpp"

namespace dialwright {

struct InputRow {
  std::vector<Field> fields;  // the first one stands in the column of labels when it is a label
  bool flows = false;         // check boxes that fill two columns in their order
};

struct InputSection {
  Field heading;  // Field::None for a section that continues the one before
  std::vector<InputRow> rows;
};

std::span<const InputSection> inputSections();

// The buttons under the panel.
std::span<const Field> inputButtons();

}  // namespace dialwright
