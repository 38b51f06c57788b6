#pragma once

#include <string>
#include <string_view>

/// A new empty folder under the system's folder for temporary files; it goes with everything in it when the object
/// does.
class TemporaryDirectory {
 public:
  TemporaryDirectory();
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
  ~TemporaryDirectory();

  const std::string& path() const { return path_; }
  /// The path of a file of that name in the folder; nothing is created.
  std::string path(std::string_view name) const;

  /// Writes a file of that name and returns its path.
  std::string write(std::string_view name, std::string_view content) const;

  /// Lets every user of the machine read the folder, for tests that run as somebody else meanwhile.
  void share() const;

 private:
  std::string path_;
};

/// The content of a file; empty when there is none.
std::string readFile(const std::string& path);
