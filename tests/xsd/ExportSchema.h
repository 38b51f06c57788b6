#pragma once

#include <memory>
#include <string>
#include <vector>

/// The schemas of exported invoices, the host's and the plug-in's together, as XML Schema has it.
class ExportSchema {
 public:
  ExportSchema();
  ExportSchema(const ExportSchema&) = delete;
  ExportSchema& operator=(const ExportSchema&) = delete;
  ~ExportSchema();

  /// What is wrong with a document, a line each; nothing when it is as it should be.
  std::vector<std::string> findFaults(const std::string& document) const;

 private:
  struct Schema;
  std::unique_ptr<Schema> schema_;
};
