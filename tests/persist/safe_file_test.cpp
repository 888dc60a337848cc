// Files stay whole, whatever goes wrong with the new one.
#include "persist/safe_file.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "support/folder.hpp"

namespace dialwright {
namespace {

namespace fs = std::filesystem;

// The sentence of the failure, or an empty text.
template <class Deed>
std::string sentenceOf(Deed deed) {
  try {
    deed();
  } catch (const FileError& error) {
    return error.what();
  }
  return {};
}

std::string replacing(const fs::path& path) {
  return sentenceOf([&] { replaceFile(path, "new"); });
}

bool holds(const std::string& text, std::string_view part) {
  return text.find(part) != std::string::npos;
}

TEST(ReplaceFile, WritesSmallAndLargePiecesInOrder) {
  const Folder folder;
  std::string expected;
  replaceFile(folder / "out", [&](const Sink& sink) {
    for (std::size_t i = 0; i <= 300; ++i) {
      const std::string piece(i == 250 ? 300'000 : i * 37 % 9000, char('a' + i % 26));
      expected += piece;
      sink(piece);
    }
  });
  EXPECT_EQ(folder.get("out"), expected);
  EXPECT_EQ(readFile(folder / "out"), expected);
  EXPECT_EQ(folder.count(), 1u);
}

TEST(ReplaceFile, KeepsOwnerPermissionsAndLinks) {
  const Folder folder;
  const bool root = ::geteuid() == 0;  // who alone can give a file away
  folder.put("real", "old");
  ASSERT_EQ(::chmod((folder / "real").c_str(), 0640), 0);
  ASSERT_TRUE(!root || ::chown((folder / "real").c_str(), 1234, 4321) == 0);
  fs::create_symlink("real", folder / "link");
  fs::create_symlink("missing", folder / "dangling");
  replaceFile(folder / "link", "new");
  replaceFile(folder / "dangling", "made");
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_EQ(folder.get("real"), "new");
  EXPECT_EQ(folder.get("missing"), "made");
  struct stat status {};
  ASSERT_EQ(::stat((folder / "real").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0640u);
  EXPECT_EQ(status.st_uid, root ? 1234u : ::geteuid());
  EXPECT_EQ(status.st_gid, root ? 4321u : ::getegid());
}

TEST(ReplaceFile, LeavesReadOnlyFilesAndFoldersAlone) {
  const Folder folder;
  folder.put("file", "old");
  ASSERT_EQ(::chmod((folder / "file").c_str(), 0444), 0);
  const std::string refusal = replacing(folder / "file");
  EXPECT_TRUE(holds(refusal, (folder / "file").string())) << refusal;
  EXPECT_TRUE(holds(refusal, "Permission denied. Change the permissions")) << refusal;
  ASSERT_EQ(::chmod((folder / "file").c_str(), 0644), 0);
  ASSERT_EQ(::chmod(folder.path().c_str(), 0555), 0);
  for (const char* name : {"file", "another"}) {
    EXPECT_TRUE(holds(replacing(folder / name), "Permission denied")) << name;
  }
  EXPECT_EQ(folder.get("file"), "old");
  EXPECT_EQ(folder.count(), 1u);
}

TEST(ReplaceFile, NamesTheCauseAndWhatHelps) {
  const Folder folder;
  fs::create_symlink("loop", folder / "loop");
  const std::pair<fs::path, const char*> kCases[] = {
      {folder / "no/such/file", "Check the name and its folder"},
      {folder.path(), "Is a directory. Add a file name"},
      {folder / std::string(300, 'n'), "Choose a shorter name"},
      {"/dev/full", "No space left on device. Make room"},
      {folder / "loop", "Check the name"}};
  for (const auto& [path, said] : kCases) EXPECT_TRUE(holds(replacing(path), said)) << path;
  EXPECT_FALSE(replacing("").empty());
  EXPECT_EQ(replacing("/dev/null"), "");
}

// A program that is ended while it writes leaves nothing beside the old file, and so does a writer
// that fails.
TEST(ReplaceFile, HasNoNameUntilItIsWhole) {
  const Folder folder;
  const int nameless = ::open(folder.path().c_str(), O_TMPFILE | O_WRONLY, 0600);
  if (nameless >= 0) ::close(nameless);  // this file system makes files without a name
  folder.put("file", "old");
  const auto failing = [&](const Sink& sink) {
    sink(std::string(500'000, 'x'));
    EXPECT_LE(folder.count(), nameless >= 0 ? 1u : 2u);
    throw std::runtime_error("no more");
  };
  EXPECT_THROW(replaceFile(folder / "file", failing), std::runtime_error);
  EXPECT_EQ(folder.get("file"), "old");
  EXPECT_EQ(folder.count(), 1u);
}

TEST(ReplaceFile, IsWholeAfterAKill) {
  const Folder folder;
  constexpr std::size_t kSize = 1'000'000;
  folder.put("file", std::string(kSize, 'a'));
  for (int round = 0; round < 50; ++round) {
    const pid_t child = ::fork();
    if (child == 0) {
      for (int i = 0;; ++i) replaceFile(folder / "file", std::string(kSize, char('a' + i % 26)));
    }
    std::this_thread::sleep_for(std::chrono::microseconds(500 + 337 * (round % 20)));
    ::kill(child, SIGKILL);
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    const std::string content = folder.get("file");
    ASSERT_EQ(content.size(), kSize);
    ASSERT_EQ(content.find_first_not_of(content.front()), std::string::npos);
  }
}

TEST(ReplaceFile, RemovesLeftoversThatNobodyWrites) {
  const Folder folder;
  for (const char* name : {".dialwright-1.tmp", ".dialwright-2.tmp", ".dialwright-x", "a.tmp"})
    folder.put(name, "half");
  const int busy = ::open((folder / ".dialwright-2.tmp").c_str(), O_WRONLY);
  ASSERT_EQ(::flock(busy, LOCK_EX), 0);
  EXPECT_EQ(replacing(folder / "file"), "");
  EXPECT_EQ(folder.count(), 4u);
  ::close(busy);
  EXPECT_EQ(replacing(folder / "file"), "");
  EXPECT_EQ(folder.count(), 3u);
  EXPECT_EQ(folder.get("file"), "new");
}

TEST(ReadFile, RefusesWhatIsNoPlainFileOrTooLarge) {
  const Folder folder;
  folder.put("file", "12345");
  EXPECT_EQ(readFile(folder / "file", 5), "12345");
  EXPECT_TRUE(holds(sentenceOf([&] { readFile(folder / "file", 4); }), "it is larger than"));
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  for (const fs::path& path :
       {folder / "pipe", folder.path(), folder / "none", fs::path("/dev/zero")}) {
    EXPECT_TRUE(holds(sentenceOf([&] { readFile(path); }), path.string())) << path;
  }
  EXPECT_FALSE(readFile("/proc/self/status").empty());
}

}  // namespace
}  // namespace dialwright
