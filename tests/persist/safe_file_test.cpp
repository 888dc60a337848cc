// Files stay whole, whatever goes wrong with the new one.
#include "persist/safe_file.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

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

void expectRefused(const fs::path& path, std::string_view why) {
  const std::string sentence = sentenceOf([&] { replaceFile(path, "new"); });
  EXPECT_NE(sentence.find(path.string()), std::string::npos) << sentence;
  EXPECT_NE(sentence.find(why), std::string::npos) << sentence;
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
  expectRefused(folder / "file", "Permission denied. Change the permissions");
  ASSERT_EQ(::chmod((folder / "file").c_str(), 0644), 0);
  ASSERT_EQ(::chmod(folder.path().c_str(), 0555), 0);
  for (const char* name : {"file", "another"}) expectRefused(folder / name, "Permission denied");
  EXPECT_EQ(folder.get("file"), "old");
  EXPECT_EQ(folder.count(), 1u);
}

TEST(ReplaceFile, NamesTheCauseAndWhatHelps) {
  const Folder folder;
  fs::create_symlink("loop", folder / "loop");
  for (const auto& [path, why] :
       {std::pair{folder / "no/such/file", "Check the name and its folder"},
        {folder.path(), "Is a directory. Add a file name"},
        {folder / std::string(300, 'n'), "Choose a shorter name"},
        {fs::path("/dev/full"), "No space left on device. Make room"},
        {folder / "loop", "Check the name"},
        {fs::path(), "can't"}})
    expectRefused(path, why);
  replaceFile("/dev/null", "new");
}

TEST(ReplaceFile, RemovesLeftoversThatNobodyWrites) {
  const Folder folder;
  for (const char* name : {".dialwright-1.tmp", ".dialwright-2.tmp", ".dialwright-x", "a.tmp"})
    folder.put(name, "half");
  const int busy = ::open((folder / ".dialwright-2.tmp").c_str(), O_WRONLY);
  ASSERT_EQ(::flock(busy, LOCK_EX), 0);
  replaceFile(folder / "file", "new");
  EXPECT_EQ(folder.count(), 4u);
  ::close(busy);
  replaceFile(folder / "file", "new");
  EXPECT_EQ(folder.count(), 3u);
  EXPECT_EQ(folder.get("file"), "new");
}

TEST(ReadFile, RefusesWhatIsNoPlainFileOrTooLarge) {
  const Folder folder;
  const auto refusal = [](const fs::path& path, std::size_t largest) {
    return sentenceOf([&] { readFile(path, largest); });
  };
  folder.put("file", "12345");
  EXPECT_EQ(readFile(folder / "file", 5), "12345");
  EXPECT_NE(refusal(folder / "file", 4).find("it is larger than"), std::string::npos);
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  for (const fs::path& path :
       {folder / "pipe", folder.path(), folder / "none", fs::path("/dev/zero")})
    EXPECT_NE(refusal(path, 9).find(path.string()), std::string::npos) << path;
  EXPECT_FALSE(readFile("/proc/self/status").empty());
}

}  // namespace
}  // namespace dialwright
