// The commands of the sheet's bar and panels by number and by name, with what stands on them.
#pragma once

#include <optional>
#include <string_view>

namespace dialwright {

enum class SheetCommand {
#define COMMAND(name, caption, tip) name,
#define NUMBER(name, label)
#define LABEL(name, caption)
#include "sheet/commands.def"
};

enum class SheetField {
#define COMMAND(name, caption, tip)
#define NUMBER(name, label) name,
#define LABEL(name, caption)
#include "sheet/commands.def"
};

struct SheetCommandRow {
  SheetCommand command;
  std::string_view name, caption, tip;
};

inline constexpr SheetCommandRow kSheetCommands[] = {
#define COMMAND(name, caption, tip) {SheetCommand::name, #name, caption, tip},
#define NUMBER(name, label)
#define LABEL(name, caption)
#include "sheet/commands.def"
};

struct SheetFieldRow {
  SheetField field;
  std::string_view name, label;
};

inline constexpr SheetFieldRow kSheetFields[] = {
#define COMMAND(name, caption, tip)
#define NUMBER(name, label) {SheetField::name, #name, label},
#define LABEL(name, caption)
#include "sheet/commands.def"
};

// What stands on the panels and before the read-outs.
namespace sheet_caption {
#define COMMAND(name, caption, tip)
#define NUMBER(name, label)
#define LABEL(name, caption) inline constexpr std::string_view name = caption;
#include "sheet/commands.def"
}  // namespace sheet_caption

// The command of a name; upper and lower case don't count.
std::optional<SheetCommand> findSheetCommand(std::string_view name);

// The number field of a name, likewise.
std::optional<SheetField> findSheetField(std::string_view name);

}  // namespace dialwright
