#include "platform/file_system.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <tuple>

#include "platform/file_replacement.h"
#include "platform/folder_listing.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

TEST(FileSystem, ReportsTheClassicErrors) {
  const test::TempFolder folder;
  folder.put("file", "x");
  using Case = std::tuple<std::string, FileError, FileError>;
  for (const auto& [path, reading, saving] : {
           Case{folder / "none", FileError::fileNotFound, FileError::none},
           Case{folder / "no/folder/none", FileError::pathNotFound, FileError::pathNotFound},
           Case{folder / "file/none", FileError::pathNotFound, FileError::pathNotFound},
           Case{folder / "", FileError::pathFileAccess, FileError::pathFileAccess},
           Case{folder / std::string(300, 'n'), FileError::badFileName, FileError::badFileName},
           Case{folder / std::string("file\0x", 6), FileError::badFileName, FileError::badFileName},
           Case{"", FileError::badFileName, FileError::badFileName},
       }) {
    SCOPED_TRACE(path);
    std::string bytes = "old";
    EXPECT_EQ(nativeFileSystem().read(path, bytes), reading);
    EXPECT_EQ(bytes, "");
    EXPECT_EQ(nativeFileSystem().write(path, "new"), saving);
    if (saving == FileError::none) nativeFileSystem().remove(path);
    EXPECT_EQ(nativeFileSystem().append(path, "new"), saving);
  }
  EXPECT_EQ(folder.get("file"), "x");
}

TEST(FileSystem, FileThatHasTheBytesKeepsItsTime) {
  const test::TempFolder folder;
  const std::string page(100000, 'p');
  const std::string path = folder.put("page", page);
  const auto before = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
  for (const auto& [bytes, isKept] : {std::pair(page, true),
                                      {page.substr(1) + 'q', false},
                                      {page + 'p', false},
                                      {page.substr(1), false},
                                      {std::string(), false}}) {
    folder.put("page", page);
    std::filesystem::last_write_time(path, before);
    EXPECT_EQ(nativeFileSystem().write(path, bytes), FileError::none);
    EXPECT_EQ(folder.get("page"), bytes);
    EXPECT_EQ(std::filesystem::last_write_time(path) == before, isKept) << bytes.size();
  }
}

TEST(FileSystem, OldAndNewFilesComeInAnyOrder) {
  const test::TempFolder folder;
  const std::string letters = "onnoonon";  // each file an old or a new one
  for (std::size_t n = 0; n < letters.size(); ++n) {
    const std::string name = std::to_string(n);
    if (letters[n] == 'o') folder.put(name, "a longer text than the new one");
    EXPECT_EQ(nativeFileSystem().write(folder / name, "page"), FileError::none);
    EXPECT_EQ(folder.get(name), "page") << n;
  }
}

TEST(FileSystem, FolderThatIsKeptOpenHidesNothing) {
  const test::TempFolder folder;
  folder.put("pages/sub/old", "x");
  folder.put("other/old", "x");
  FileSystem& files = nativeFileSystem();
  EXPECT_EQ(files.keepOpen(folder / "none"), nullptr);
  const auto outer = files.keepOpen(folder / "pages");
  for (const std::string name : {"pages/a", "pages/sub/b", "pages//c", "other/d", "pages2"}) {
    EXPECT_EQ(files.write(folder / name, name), FileError::none) << name;
    EXPECT_EQ(folder.get(name), name);
  }
  {
    const auto inner = files.keepOpen(folder / "other/");
    std::filesystem::remove_all(folder / "other");
    EXPECT_EQ(files.write(folder / "other/e", "e"), FileError::pathNotFound);
    EXPECT_EQ(files.createFolder(folder / "other"), FileError::none);
    EXPECT_EQ(files.write(folder / "other/e", "e"), FileError::none);
    EXPECT_EQ(folder.get("other/e"), "e");
  }
  std::string bytes;
  EXPECT_EQ(files.read(folder / "pages/a", bytes), FileError::none);
  EXPECT_EQ(files.append(folder / "pages/a", "+"), FileError::none);
  EXPECT_EQ(folder.get("pages/a"), "pages/a+");
}

TEST(FileSystem, ReplacingKeepsPermissionsAndLinks) {
  const test::TempFolder folder;
  const std::string target = folder.put("real/target", "old");
  ::chmod(target.c_str(), 0640);
  const std::string link = folder / "link";
  std::filesystem::create_symlink(target, link);

  EXPECT_EQ(nativeFileSystem().replaceAtomically(link, "new"), FileError::none);

  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(folder.get("real/target"), "new");
  struct stat status {};
  ASSERT_EQ(::stat(target.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0640U);
  EXPECT_EQ(nativeFileSystem().list(folder / "real").size(), 1U);
}

TEST(FileSystem, FailedReplacementLeavesNothingBehind) {
  const test::TempFolder folder;
  folder.put("folder/inner", "x");
  EXPECT_NE(nativeFileSystem().replaceAtomically(folder / "folder", "new"), FileError::none);
  EXPECT_EQ(nativeFileSystem().replaceAtomically(folder / "no/file", "new"),
            FileError::pathNotFound);
  EXPECT_EQ(nativeFileSystem().list(folder / "").size(), 1U);
  EXPECT_EQ(folder.get("folder/inner"), "x");
}

TEST(FileSystem, ReplacingRemovesWhatKilledRunsHaveLeftInTheFolderAndNothingElse) {
  const test::TempFolder folder;
  const std::string start = replacementStart("Cart.cls");
  const std::string dead = folder.put(start + "aB3xyz", "half");
  const std::string locked = folder.put(start + "locked", "half");
  const int writer = ::open(locked.c_str(), O_RDWR);
  ASSERT_EQ(::flock(writer, LOCK_EX), 0);
  folder.put(start + "longer1", "of somebody");
  folder.put("sub/" + start + "abcdef", "in another folder");
  folder.put("Cart.cls.tamrikon-" + std::string(8, 'f') + "-abcdef", "of another machine");
  std::filesystem::create_symlink(folder / "Cart.cls", folder / (start + "shlink"));
  EXPECT_EQ(nativeFileSystem().replaceAtomically(folder / "Till.bas", "new"), FileError::none);
  EXPECT_FALSE(std::filesystem::exists(dead));
  EXPECT_EQ(nativeFileSystem().list(folder.path()).size(), 6U);
  ::close(writer);
  removeDeadReplacements(folder.path());
  EXPECT_FALSE(std::filesystem::exists(locked));
  EXPECT_EQ(nativeFileSystem().list(folder.path()).size(), 5U);

  for (const std::size_t length : {229U, 230U, 253U}) {  // before a letter of two bytes
    const std::string name = std::string(length, 'n') + "\u00E9";
    EXPECT_EQ(nativeFileSystem().replaceAtomically(folder / name, "new"), FileError::none);
    EXPECT_EQ(folder.get(name), "new");
  }
}

TEST(FileSystem, IsFileTakesOnlyWhatEnds) {
  const test::TempFolder folder;
  folder.put("file", "");
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  EXPECT_TRUE(nativeFileSystem().isFile(folder / "file"));
  EXPECT_FALSE(nativeFileSystem().isFile(folder / ""));
  EXPECT_FALSE(nativeFileSystem().isFile(folder / "pipe"));

  std::filesystem::resize_file(folder.put("hole", ""), std::uintmax_t{1} << 40);
  for (const std::string& path : {folder / "pipe", folder / "hole", std::string("/dev/zero")}) {
    std::string bytes = "old";
    EXPECT_EQ(nativeFileSystem().read(path, bytes), FileError::pathFileAccess) << path;
    EXPECT_EQ(bytes, "");
  }
  const std::string page(1 << 20, 'p');  // more than a pipe holds
  EXPECT_NE(nativeFileSystem().write(folder / "pipe", page), FileError::none);
  EXPECT_NE(nativeFileSystem().append(folder / "pipe", page), FileError::none);
}

TEST(FileSystem, FoldersAndFilesAreListedApart) {
  const test::TempFolder folder;
  for (const char* name : {"b/x", "A/x", "c.txt", "a.txt"}) folder.put(name, "");
  std::filesystem::create_directory_symlink(folder / "A", folder / "link");
  std::filesystem::create_symlink(folder / "gone", folder / "broken");
  FileSystem& files = nativeFileSystem();
  using Names = std::vector<std::string>;
  for (const std::string& path : {folder.path(), folder / "", folder.path() + "\\"}) {
    EXPECT_EQ(foldersIn(files, path), (Names{"A", "b", "link"})) << path;
    EXPECT_EQ(filesIn(files, path), (Names{"a.txt", "c.txt"})) << path;
  }
  for (const std::string& path : {folder / "c.txt", folder / "gone", std::string()}) {
    EXPECT_FALSE(files.isFolder(path)) << path;
    EXPECT_EQ(foldersIn(files, path), Names{}) << path;
    EXPECT_EQ(filesIn(files, path), Names{}) << path;
  }
}

}  // namespace
}  // namespace tamrikon
