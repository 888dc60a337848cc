// A short run of a fuzzer without libFuzzer: the seeds of a folder, and mutations of them that are
// the same each time. A finding is a crash of the process, which the sanitizers explain.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

constexpr int kMutations = 400;
constexpr std::size_t kLongest = 1 << 16;

// What tends to break readers of texts and numbers.
constexpr const char* kWords[] = {"\"", "<", ">", "</", "|", "\r\n", "\0", "1e308", "-1e999", "nan",
                                  "\xC3", "\xFF\xFE", ",", "=", "0", "-", ".", "1e-320", "/"};

class Mutator {
 public:
  std::string operator()(std::string text, const std::vector<std::string>& seeds) {
    for (int i = below(4); i >= 0; --i) change(text, seeds);
    if (text.size() > kLongest) text.resize(kLongest);
    return text;
  }
  int below(std::size_t n) { return static_cast<int>(random_() % n); }

 private:
  void change(std::string& text, const std::vector<std::string>& seeds) {
    const auto at = static_cast<std::size_t>(below(text.size() + 1));
    const auto length = static_cast<std::size_t>(below(16));
    switch (below(5)) {
      case 0: text.insert(at, kWords[below(std::size(kWords))]); break;
      case 1: text.erase(at, length); break;
      case 2: text.insert(at, text.substr(at, length)); break;
      case 3:
        if (at < text.size()) text[at] = static_cast<char>(below(256));
        break;
      default: {
        const std::string& other = seeds[static_cast<std::size_t>(below(seeds.size()))];
        text.replace(at, length, other.substr(static_cast<std::size_t>(below(other.size() + 1))));
      }
    }
  }

  std::minstd_rand random_{20260621};
};

void feed(const std::string& text) {
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: %s FOLDER_OF_SEEDS [MUTATIONS]\n", argv[0]);
    return 2;
  }
  std::vector<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(argv[1])) paths.push_back(entry);
  std::sort(paths.begin(), paths.end());
  std::vector<std::string> seeds = {""};
  for (const auto& path : paths) {
    std::ifstream file(path, std::ios::binary);
    seeds.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  const int mutations = argc > 2 ? std::atoi(argv[2]) : kMutations;
  for (const std::string& seed : seeds) feed(seed);
  Mutator mutate;
  for (int i = 0; i < mutations; ++i)
    feed(mutate(seeds[static_cast<std::size_t>(mutate.below(seeds.size()))], seeds));
  std::printf("%zu seeds and %d mutations\n", seeds.size(), mutations);
}
