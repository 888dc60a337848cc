// Writing the manual and the completion.
#include "cli/manual.hpp"

#include <CLI/CLI.hpp>

#include "board/board_fields.hpp"
#include "shell/catalogue.hpp"
#include "shell/fields.hpp"

namespace dialwright {

namespace {

std::vector<const CLI::App*> commandsOf(const CLI::App& app) {
  return app.get_subcommands([](const CLI::App*) { return true; });
}

// Troff takes a leading dot or quote for a request and a hyphen for a break.
std::string troff(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '\\') {
      escaped += "\\e";
    } else if (c == '-') {
      escaped += "\\-";
    } else {
      escaped += c;
    }
  }
  const bool request = !escaped.empty() && (escaped[0] == '.' || escaped[0] == '\'');
  return request ? "\\&" + escaped : escaped;
}

std::string entry(const std::string& head, const std::string& text) {
  return ".TP\n.B " + troff(head) + "\n" + troff(text) + "\n";
}

std::string optionsOf(const CLI::App& command) {
  std::string page;
  for (const CLI::Option* option : command.get_options()) {
    std::string head = option->get_name(option->get_positional(), true);
    if (!option->get_type_name().empty() && !option->get_positional())
      head += " " + option->get_type_name();
    page += entry(head, option->get_description());
  }
  return page;
}

// A field's caption, or its label's, and its tip.
template <class Row>
std::string fieldEntry(const Row& row) {
  std::string text(row.kind == FieldKind::Text ? "" : row.text);
  if (row.label != decltype(row.label)::None) text = rowOf(row.label).text;
  if (!row.tip.empty()) text += (text.empty() ? "" : ": ") + std::string(row.tip);
  return entry(std::string(row.name), text);
}

std::string boardNames() {
  std::string names;
  for (std::size_t i = 0; i < kBoardFieldCount; ++i) {
    if (isInput(boardFieldAt(i))) names += std::string(rowOf(boardFieldAt(i)).name) + "= ";
  }
  return names;
}

}  // namespace

std::string manualPage(const CLI::App& app) {
  std::string page = ".TH DIALWRIGHT 1\n.SH NAME\ndialwright \\- " + troff(app.get_description()) +
                     "\n.SH SYNOPSIS\n.B dialwright\n.I command\n[\n.I options\n]\n.SH COMMANDS\n";
  for (const CLI::App* command : commandsOf(app)) {
    page += ".SS " + troff(command->get_name()) + "\n" + troff(command->get_description()) + "\n" +
            optionsOf(*command);
  }
  page += ".SH DIALS\n";
  for (const Item item : dialItems()) {
    page += entry(std::string(rowOf(item).name), std::string(rowOf(item).caption));
  }
  page += ".SH FIELDS\n";
  for (const FieldRow& row : fieldTable()) {
    if (row.kind == FieldKind::Label || row.kind == FieldKind::Frame) continue;
    page += fieldEntry(row);
  }
  page += ".SH UTILITY BOARD\n";
  for (std::size_t i = 0; i < kBoardFieldCount; ++i) {
    if (isInput(boardFieldAt(i))) page += fieldEntry(rowOf(boardFieldAt(i)));
  }
  page +=
      ".SH EXIT STATUS\n0 on success, 1 when a dial, a file or an input can't be worked with, 2 for a wrong word on the "
      "command line.\n";
  return page;
}

std::string bashCompletion(const CLI::App& app) {
  std::string commands, options, dials, fields;
  for (const CLI::App* command : commandsOf(app)) {
    commands += command->get_name() + " ";
    std::string own;
    for (const CLI::Option* option : command->get_options()) {
      for (const std::string& name : option->get_lnames()) own += "--" + name + " ";
    }
    options += "    " + command->get_name() + ") options='" + own + "' ;;\n";
  }
  for (const Item item : dialItems()) dials += std::string(rowOf(item).name) + " ";
  for (const FieldRow& row : fieldTable()) {
    if (row.kind == FieldKind::Text || row.kind == FieldKind::Check ||
        row.kind == FieldKind::Option) {
      fields += std::string(row.name) + "= ";
    }
  }
  return "# bash completion of dialwright\n"
         "_dialwright() {\n"
         "  local word=${COMP_WORDS[COMP_CWORD]} options=\n"
         "  case ${COMP_WORDS[1]} in\n" +
         options +
         "  esac\n"
         "  if [ \"$COMP_CWORD\" = 1 ]; then\n"
         "    COMPREPLY=($(compgen -W '" +
         commands +
         "' -- \"$word\"))\n"
         "  elif [[ $word = -* ]]; then\n"
         "    COMPREPLY=($(compgen -W \"$options\" -- \"$word\"))\n"
         "  elif [ \"${COMP_WORDS[1]}\" = board ]; then\n"
         "    compopt -o nospace\n"
         "    COMPREPLY=($(compgen -W '" +
         boardNames() +
         "' -- \"$word\"))\n"
         "  elif [ \"$COMP_CWORD\" = 2 ]; then\n"
         "    COMPREPLY=($(compgen -W '" +
         dials +
         "' -f -- \"$word\"))\n"
         "  else\n"
         "    compopt -o nospace\n"
         "    COMPREPLY=($(compgen -W '" +
         fields +
         "' -f -- \"$word\"))\n"
         "  fi\n"
         "}\n"
         "complete -F _dialwright dialwright\n";
}

}  // namespace dialwright
