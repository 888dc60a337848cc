// The man page and the shell's completion, made from the grammar of the command line and the tables
// of dials and fields.
#pragma once

#include <string>

namespace CLI {
class App;
}

namespace dialwright {

// A man page in troff, section 1.
std::string manualPage(const CLI::App& app);

// A completion script for bash: commands, options, dials and fields.
std::string bashCompletion(const CLI::App& app);

}  // namespace dialwright
