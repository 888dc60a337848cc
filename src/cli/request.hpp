// What a command line asks for.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace dialwright {

struct Request {
  // Options of every command.
  std::string folder;
  std::string language;
  std::string size;
  std::string shift;
  std::string invert;
  int scale = 0;
  bool quiet = false;
  bool verbose = false;

  // What a command works on.
  std::string item;
  std::vector<std::string> words;  // assignments, and for some commands a file at the end
  std::vector<std::string> presses;
  std::vector<std::string> outputs;
  std::string format;
  std::string viewer;
  std::vector<int> pages;  // none for all that carry ink
  bool allPages = false;
  bool colour = false;
  bool dark = false;
  bool json = false;
  bool now = false;
  bool bash = false;
  const CLI::App* grammar = nullptr;  // the command line's own
};

}  // namespace dialwright
