#include "tests/xsd/ExportSchema.h"

#include <libxml/parser.h>
#include <libxml/xmlschemas.h>

namespace {

using Faults = std::vector<std::string>;

#if LIBXML_VERSION >= 21200
using Error = const xmlError*;
#else
using Error = xmlError*;
#endif

void collect(void* faults, Error error) {
  static_cast<Faults*>(faults)->emplace_back(error->message == nullptr ? "no reason" : error->message);
}

// Either schema knows nothing of the other; whoever wants to check all of a document names both.
constexpr const char* kBoth =
    "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>"
    "<xs:import namespace='urn:brontel:plugin:itemdata' schemaLocation='" ITEMDATA_SCHEMA
    "'/>"
    "<xs:include schemaLocation='" INVOICE_SCHEMA
    "'/>"
    "</xs:schema>";

}  // namespace

struct ExportSchema::Schema {
  Faults faults;
  std::unique_ptr<xmlSchema, decltype(&xmlSchemaFree)> compiled{nullptr, xmlSchemaFree};
};

ExportSchema::ExportSchema() : schema_(std::make_unique<Schema>()) {
  const std::unique_ptr<xmlSchemaParserCtxt, decltype(&xmlSchemaFreeParserCtxt)> parser(
      xmlSchemaNewMemParserCtxt(kBoth, static_cast<int>(std::string(kBoth).size())), xmlSchemaFreeParserCtxt);
  xmlSchemaSetParserStructuredErrors(parser.get(), collect, &schema_->faults);
  schema_->compiled.reset(xmlSchemaParse(parser.get()));
}

ExportSchema::~ExportSchema() = default;

std::vector<std::string> ExportSchema::findFaults(const std::string& document) const {
  // A schema that cannot be read finds nothing, which must not pass for a good document.
  if (schema_->compiled == nullptr) return schema_->faults.empty() ? Faults{"no schema"} : schema_->faults;
  Faults faults;
  const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> tree(
      xmlReadMemory(document.data(), static_cast<int>(document.size()), "export.xml", nullptr,
                    XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING),
      xmlFreeDoc);
  if (tree == nullptr) return {"not well-formed"};
  const std::unique_ptr<xmlSchemaValidCtxt, decltype(&xmlSchemaFreeValidCtxt)> validator(
      xmlSchemaNewValidCtxt(schema_->compiled.get()), xmlSchemaFreeValidCtxt);
  xmlSchemaSetValidStructuredErrors(validator.get(), collect, &faults);
  if (xmlSchemaValidateDoc(validator.get(), tree.get()) != 0 && faults.empty()) faults.emplace_back("not valid");
  return faults;
}
