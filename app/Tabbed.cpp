#include "app/Tabbed.h"

#include "app/ErrorText.h"

namespace Brontel::App {

using FX::FXString;

namespace {

void appendField(std::string& output, const FXString& field, bool isLast) {
  output.append(toOneLine(field).text()).push_back(isLast ? '\n' : '\t');
}

}  // namespace

void appendLine(std::string& output, std::initializer_list<FXString> fields) {
  for (const FXString& field : fields) appendField(output, field, &field == fields.end() - 1);
}

int TabbedRows::processValue(int column, const char* name, const char* value) {
  appendField(output_, FXString(value), column == columns_ - 1);
  return DataBaseValueLoader::processValue(column, name, value);
}

}  // namespace Brontel::App
