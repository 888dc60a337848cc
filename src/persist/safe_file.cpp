// Reading and replacing files with the system's own calls: every one of them is checked.
#include "persist/safe_file.hpp"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <random>
#include <system_error>
#include <utility>

namespace dialwright {

namespace {

namespace fs = std::filesystem;

std::string_view remedyFor(int cause) {
  switch (cause) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG: return "Make room on the disk, or choose another folder.";
    case ENOENT:
    case ENOTDIR:
    case ELOOP: return "Check the name and its folder.";
    case EACCES:
    case EPERM:
    case EROFS:
      return "Change the permissions of the file and its folder, or choose another place.";
    case EISDIR: return "Add a file name to it.";
    case ENAMETOOLONG: return "Choose a shorter name.";
    default: return "Try again, or choose another place.";
  }
}

FileError errorOf(const fs::path& path, std::string_view deed, int cause) {
  std::string sentence = "The file \"" + path.string() + "\" can't be ";
  sentence.append(deed).append(": ").append(std::generic_category().message(cause)).append(". ");
  return FileError(sentence.append(remedyFor(cause)));
}

FileError unwritable(const fs::path& path, int cause) { return errorOf(path, "written", cause); }
FileError unreadable(const fs::path& path, int cause) { return errorOf(path, "read", cause); }

// An open file, closed at the latest when it goes out of scope.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() { close(); }

  bool open() const { return number_ >= 0; }
  int number() const { return number_; }
  // False when what was written did not arrive.
  bool close() { return !open() || ::close(std::exchange(number_, -1)) == 0; }

 private:
  int number_;
};

// Collects small pieces, so that the system is called once for many of them.
class Output {
 public:
  Output(int descriptor, const fs::path& path) : descriptor_(descriptor), path_(path) {}

  void add(std::string_view piece) {
    if (pending_.size() + piece.size() > kBlock) flush();
    if (piece.size() > kBlock) {
      send(piece);
    } else {
      pending_.append(piece);
    }
  }

  void flush() {
    send(pending_);
    pending_.clear();
  }

 private:
  static constexpr std::size_t kBlock = 65536;

  void send(std::string_view bytes) const {
    while (!bytes.empty()) {
      const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
      if (written < 0 && errno == EINTR) continue;
      if (written <= 0) throw unwritable(path_, written < 0 ? errno : ENOSPC);
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
  }

  int descriptor_;
  const fs::path& path_;
  std::string pending_;
};

void fill(int descriptor, const fs::path& path, const Writer& writer) {
  Output output(descriptor, path);
  writer([&output](std::string_view piece) { output.add(piece); });
  output.flush();
}

// A lock goes with the open file and ends with its process, however that ends.
bool lock(const Descriptor& file) { return ::flock(file.number(), LOCK_EX | LOCK_NB) == 0; }

// A new file in a folder. It gets a name when it is whole, so that a program that is interrupted
// while it writes leaves nothing behind; where the file system makes no files without a name, it
// has one of its own from the start. Under that name it is locked: what bears such a name and isn't
// was left by a program that came to a sudden end.
class Temporary {
 public:
  Temporary(const fs::path& folder, const fs::path& wanted) : folder_(folder), wanted_(wanted) {
    if (::access(kOpenFiles, X_OK) == 0) {
      file_ = Descriptor(::open(folder.c_str(), O_WRONLY | O_TMPFILE | O_CLOEXEC, 0666));
    }
    if (file_.open()) {
      lock(file_);
      return;
    }
    findName([this](const char* name) {
      file_ = Descriptor(::open(name, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
      return file_.open() && keepsName();
    });
  }
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;
  ~Temporary() {
    if (!name_.empty()) ::unlink(name_.c_str());
  }

  int descriptor() const { return file_.number(); }

  void put(const fs::path& target) {
    if (::fsync(file_.number()) != 0) throw unwritable(wanted_, errno);
    if (name_.empty()) {
      const std::string nameless = kOpenFiles + std::to_string(file_.number());
      findName([&nameless](const char* name) {
        return ::linkat(AT_FDCWD, nameless.c_str(), AT_FDCWD, name, AT_SYMLINK_FOLLOW) == 0;
      });
    }
    // Some file systems tell only here that something did not arrive. The lock stays with the other
    // descriptor until the file is in its place.
    Descriptor twin(::dup(file_.number()));
    if (!twin.open() || !twin.close()) throw unwritable(wanted_, errno);
    if (::rename(name_.c_str(), target.c_str()) != 0) throw unwritable(wanted_, errno);
    name_.clear();
  }

  // Removes what programs that came to a sudden end have left in a folder.
  static void removeLeftovers(const fs::path& folder) {
    std::error_code none;
    for (fs::directory_iterator at(folder, none), end; !none && at != end; at.increment(none)) {
      const std::string name = at->path().filename().string();
      if (!name.starts_with(kPrefix) || !name.ends_with(kEnding)) continue;
      const Descriptor file(::open(at->path().c_str(), O_WRONLY | O_NOFOLLOW | O_CLOEXEC));
      if (file.open() && lock(file)) ::unlink(at->path().c_str());
    }
  }

 private:
  static constexpr std::string_view kPrefix = ".dialwright-";
  static constexpr std::string_view kEnding = ".tmp";

  // Locks a file that was made under a name; false when it was taken for a leftover before that.
  bool keepsName() const {
    struct stat status {};
    const bool locked = lock(file_) || errno != EWOULDBLOCK;  // some file systems have no locks
    if (locked && ::fstat(file_.number(), &status) == 0 && status.st_nlink > 0) return true;
    errno = EEXIST;
    return false;
  }

  // Where the system shows a program its open files; a file is named by way of it.
  static constexpr char kOpenFiles[] = "/proc/self/fd/";

  // Gives `make` one new name after the other until it can use it.
  template <class Make>
  void findName(Make make) {
    constexpr int kAttempts = 100;
    std::random_device random;
    for (int i = 0; i < kAttempts; ++i) {
      const fs::path name =
          folder_ / std::string(kPrefix).append(std::to_string(random())).append(kEnding);
      if (make(name.c_str())) {
        name_ = name;
        return;
      }
      if (errno != EEXIST) break;
    }
    throw unwritable(wanted_, errno);
  }

  const fs::path& folder_;
  const fs::path& wanted_;
  fs::path name_;  // while the file has one and is not yet in its place
  Descriptor file_;
};

// What a path means, and how it is now.
struct Place {
  fs::path path;
  struct stat status {};
  bool exists = false;

  bool is(mode_t kind) const { return exists && (status.st_mode & S_IFMT) == kind; }
};

Place look(const fs::path& path) {
  Place place{.path = path};
  place.exists = ::stat(path.c_str(), &place.status) == 0;
  if (!place.exists && errno != ENOENT) throw unwritable(path, errno);
  return place;
}

// Follows a link to the file that it stands for, so that the link itself is not replaced.
fs::path targetOf(fs::path path) {
  constexpr int kLongestChain = 40;
  std::error_code unlinked;
  for (int i = 0; i < kLongestChain; ++i) {
    const fs::path next = fs::read_symlink(path, unlinked);
    if (unlinked) break;
    path = path.parent_path() / next;  // an absolute target replaces the folder
  }
  return path;
}

// Refuses what the user may not write, and what nobody may: a file or folder without any permission
// to write is meant to stay, even where the superuser could change it.
void requireWritable(const Place& place, const fs::path& wanted) {
  constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
  if ((place.status.st_mode & kAnyWrite) == 0) throw unwritable(wanted, EACCES);
  if (::access(place.path.c_str(), W_OK) != 0) throw unwritable(wanted, errno);
}

// Gives a new file the owner and the permissions of the one that it replaces.
void inherit(int descriptor, const Place& old, const fs::path& wanted) {
  // Only the superuser can give a file away; anybody else owns the new one.
  [[maybe_unused]] const int given = ::fchown(descriptor, old.status.st_uid, old.status.st_gid);
  if (::fchmod(descriptor, old.status.st_mode & 07777) != 0) throw unwritable(wanted, errno);
}

void writeDirectly(const fs::path& path, const Writer& writer) {
  Descriptor file(::open(path.c_str(), O_WRONLY | O_CLOEXEC));
  if (!file.open()) throw unwritable(path, errno);
  fill(file.number(), path, writer);
  if (!file.close()) throw unwritable(path, errno);
}

void syncFolder(const fs::path& folder) {
  const Descriptor open(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (open.open()) ::fsync(open.number());  // where it fails, the file is in place all the same
}

}  // namespace

void replaceFile(const fs::path& path, const Writer& writer) {
  Place old = look(path);
  if (old.is(S_IFDIR)) throw unwritable(path, EISDIR);
  if (old.exists && !old.is(S_IFREG)) return writeDirectly(path, writer);
  old.path = targetOf(path);
  const Place folder = look(old.path.has_parent_path() ? old.path.parent_path() : ".");
  if (!folder.exists) throw unwritable(path, ENOENT);
  if (old.exists) requireWritable(old, path);
  requireWritable(folder, path);

  Temporary::removeLeftovers(folder.path);
  Temporary file(folder.path, path);
  fill(file.descriptor(), path, writer);
  if (old.exists) inherit(file.descriptor(), old, path);
  file.put(old.path);
  syncFolder(folder.path);
}

void replaceFile(const fs::path& path, std::string_view content) {
  replaceFile(path, [content](const Sink& sink) { sink(content); });
}

std::string readFile(const fs::path& path, std::size_t largest) {
  // Without O_NONBLOCK a pipe that nobody writes to would hold the program up here.
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  struct stat status {};
  if (!file.open() || ::fstat(file.number(), &status) != 0) throw unreadable(path, errno);
  if (S_ISDIR(status.st_mode)) throw unreadable(path, EISDIR);
  if (!S_ISREG(status.st_mode)) throw unreadable(path, EINVAL);
  std::string content;
  std::size_t size = static_cast<std::size_t>(status.st_size);
  std::size_t length = 0;
  // The file may grow while it is read, and files of the system's own tell no size.
  while (size <= largest) {
    content.resize(std::max(size, length) + 1);
    const ssize_t got = ::read(file.number(), content.data() + length, content.size() - length);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) throw unreadable(path, errno);
    length += static_cast<std::size_t>(got);
    if (got == 0) {
      content.resize(length);
      return content;
    }
    if (length == content.size()) size = length + length / 2 + 4096;
    if (length > largest) break;
  }
  throw FileError("The file \"" + path.string() + "\" can't be read: it is larger than " +
                  std::to_string(largest >> 20) + " MB. Check that it is the right one.");
}

}  // namespace dialwright
