#include "tests/support/TemporaryDirectory.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace fs = std::filesystem;

TemporaryDirectory::TemporaryDirectory() : path_((fs::temp_directory_path() / "brontel-test-XXXXXX").string()) {
  if (mkdtemp(path_.data()) == nullptr) {
    // Without its folder a test would write into the working directory.
    std::perror(path_.c_str());
    std::abort();
  }
}

TemporaryDirectory::~TemporaryDirectory() {
  std::error_code error;
  // A folder that a test has made unwritable could not be emptied.
  for (fs::recursive_directory_iterator entry(path_, error), end; !error && entry != end; entry.increment(error)) {
    if (entry->is_directory(error) && !entry->is_symlink(error)) {
      fs::permissions(entry->path(), fs::perms::owner_all, fs::perm_options::add, error);
    }
  }
  fs::remove_all(path_, error);
}

std::string TemporaryDirectory::path(std::string_view name) const {
  return path_ + "/" + std::string(name);
}

std::string TemporaryDirectory::write(std::string_view name, std::string_view content) const {
  const std::string file = path(name);
  std::ofstream(file, std::ios::binary) << content;
  return file;
}

void TemporaryDirectory::share() const {
  fs::permissions(path_, fs::perms::owner_all | fs::perms::group_read | fs::perms::group_exec | fs::perms::others_read |
                             fs::perms::others_exec);
}

std::string readFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), {});
}
