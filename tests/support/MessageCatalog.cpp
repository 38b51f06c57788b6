#include "tests/support/MessageCatalog.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/ChildProcess.h"
#include "tests/support/TemporaryDirectory.h"

namespace {

std::string quoted(const std::string& text) {
  std::string result = "\"";
  for (const char c : text) {
    if (c == '\n') {
      result += "\\n";
    } else if (c == '\t') {
      result += "\\t";
    } else {
      if (c == '"' || c == '\\') result += '\\';
      result += c;
    }
  }
  return result + "\"";
}

}  // namespace

bool MessageCatalog::install(const std::string& directory, const std::string& language,
                             const std::string& domain) const {
  const TemporaryDirectory scratch;
  const std::string source = scratch.write("texts.po", toPo());
  const std::string folder = directory + "/" + language + "/LC_MESSAGES";
  std::filesystem::create_directories(folder);
  ChildProcess msgfmt({"msgfmt", "-o", folder + "/" + domain + ".mo", source});
  EXPECT_EQ(msgfmt.run(), 0) << msgfmt.getErrors();
  return msgfmt.getExitCode() == 0;
}

std::string MessageCatalog::toPo() const {
  std::string po = "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n";
  for (const auto& [msgid, msgstr] : texts_) po += "\nmsgid " + quoted(msgid) + "\nmsgstr " + quoted(msgstr) + "\n";
  return po;
}
