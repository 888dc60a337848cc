// Copies, and the locks that tell a crashed program's from a living one's.
#include "ui/autosave.hpp"

#include <system_error>

#include "persist/project.hpp"
#include "persist/safe_file.hpp"
#include "ui/text.hpp"

namespace dialwright {

namespace fs = std::filesystem;

namespace {

constexpr int kMostUntitled = 20;  // copies in the working folder
constexpr const char* kEnding = ".autosave";

fs::path copyBeside(const fs::path& project) {
  return project.parent_path() / ("." + project.filename().string() + kEnding);
}

fs::path untitledCopy(const fs::path& folder, int number) {
  return folder / (".untitled-" + std::to_string(number) + ".sun" + kEnding);
}

std::unique_ptr<QLockFile> lockOf(const fs::path& copy) {
  auto lock = std::make_unique<QLockFile>(shown(copy.string() + ".lock"));
  lock->setStaleLockTime(0);  // a lock is void when its program is dead, however old it is
  return lock;
}

}  // namespace

Autosave::Autosave(const Program& program, QObject* parent) : QObject(parent), program_(program) {
  timer_.setInterval(kSeconds * 1000);
  connect(&timer_, &QTimer::timeout, this, &Autosave::write);
  timer_.start();
}

Autosave::~Autosave() { remove(); }

void Autosave::setProject(const fs::path& project) {
  remove();
  project_ = project;
}

void Autosave::setChanged(bool changed) {
  changed_ = changed;
  if (!changed) remove();
}

// Beside the project; where that can't be, or for inputs without a file, in the working folder.
std::vector<fs::path> Autosave::places() const {
  std::vector<fs::path> places;
  if (!project_.empty()) places.push_back(copyBeside(project_));
  for (int number = 1; number <= kMostUntitled; ++number) {
    places.push_back(untitledCopy(program_.config().workingFolder, number));
  }
  return places;
}

// A copy that lies there already waits for its recovery.
void Autosave::claim() {
  if (claim_) return;
  for (const fs::path& place : places()) {
    copy_ = place;
    std::unique_ptr<QLockFile> lock = lockOf(place);
    std::error_code ignored;
    if (fs::exists(place, ignored) || !lock->tryLock()) continue;
    claim_ = std::move(lock);
    return;
  }
}

void Autosave::write() {
  if (!changed_) return;
  std::string bytes = progettoDi(program_.panel(), program_.sheet());
  if (bytes == written_) return;
  try {
    claim();
    replaceFile(copy_, bytes);  // where no lock can be, nothing can be written, and this says why
    written_ = std::move(bytes);
    failing_ = false;
  } catch (const FileError& error) {
    if (!failing_) emit failed(shown(error.what()));
    failing_ = true;
  }
}

void Autosave::remove() {
  std::error_code ignored;
  if (claim_) fs::remove(copy_, ignored);
  claim_.reset();
  written_.clear();
}

std::vector<LeftCopy> Autosave::leftCopies(const std::vector<fs::path>& projects) const {
  std::vector<LeftCopy> copies;
  for (int number = 1; number <= kMostUntitled; ++number) {
    copies.push_back({untitledCopy(program_.config().workingFolder, number), {}});
  }
  for (const fs::path& project : projects) copies.push_back({copyBeside(project), project});
  std::erase_if(copies, [](const LeftCopy& left) {
    std::error_code ignored;
    return !fs::exists(left.copy, ignored) || !lockOf(left.copy)->tryLock();
  });
  return copies;
}

void Autosave::discard(const LeftCopy& left) {
  std::error_code ignored;
  fs::remove(left.copy, ignored);
}

}  // namespace dialwright
