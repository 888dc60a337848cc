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
  bool trueShadows = false;

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
  bool mark = false;
  std::string date, time;             // of the clock
  std::string from, to;               // a row of moments
  double step = 0;                    // minutes or days
  double within = 0.05;               // millimetres
  const CLI::App* grammar = nullptr;  // the command line's own
};

}  // namespace dialwright
