// The default parameters: a small store of texts beside the program, and what each start takes from
// it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "shell/panel.hpp"

namespace dialwright {

// The store of up to 100 pairs of key and value, read from its file at the first use.
class Parametri {
 public:
  static constexpr std::size_t kMostPairs = 100;

  struct Pair {
    std::string key;
    std::string value;
  };

  explicit Parametri(std::filesystem::path file) : file_(std::move(file)) {}

  const std::filesystem::path& NomeFile() const { return file_; }
  void NomeFile(std::filesystem::path file) { file_ = std::move(file); }

  // The value of a key (case matters), or an empty text.
  std::string Leggi(std::string_view key);

  // All pairs in the file's order.
  const std::vector<Pair>& pairs();

  // Keeps a value and writes the file. Throws FileError when that fails and when the store is full.
  void Scrivi(std::string_view key, std::string_view value);

  // The two halves of Scrivi, for several values at once.
  void keep(std::string_view key, std::string_view value);
  void writeFile() const;

 private:
  void readOnce();
  std::vector<Pair>::iterator find(std::string_view key);

  std::filesystem::path file_;
  std::vector<Pair> pairs_;
};

// The store's usual file in a working folder.
std::filesystem::path storeIn(const std::filesystem::path& folder);

// Puts the stored values into the panel; no click is fired. What is missing or stored as an empty
// text leaves the built-in default.
void CaricaDefault(Panel& panel, Parametri& store);

// Stores the panel's chief inputs. Throws FileError when they can't be written.
void SalvaDefault(const Panel& panel, Parametri& store);

}  // namespace dialwright
