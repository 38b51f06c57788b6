#include "host/xml/Document.h"

#include <cstring>

#include <libxml/parser.h>
#include <libxml/tree.h>

#include "host/xml/XmlText.h"

namespace XMLBuilder {

using FX::FXString;

namespace {

const xmlChar* bytes(const char* text) {
  return reinterpret_cast<const xmlChar*>(text);
}

}  // namespace

Document::Document(const FXString& rootName) : document_(xmlNewDoc(bytes("1.0"))) {
  // Thousands of elements have the same few names. The document owns the dictionary.
  if (document_ != nullptr) document_->dict = xmlDictCreate();
  xmlNode* root = xmlNewDocNode(document_, nullptr, CleanText(rootName).bytes(), nullptr);
  xmlDocSetRootElement(document_, root);
  adopt(root);
}

Document::~Document() {
  xmlFreeDoc(document_);
}

void Document::addNamespace(const FXString& prefix, const FXString& uri) {
  if (prefix.empty() || uri.empty()) return;
  // xmlNewNs refuses a prefix that the element has already.
  xmlNewNs(xmlDocGetRootElement(document_), bytes(uri.text()), bytes(prefix.text()));
}

FXString Document::toText() const {
  xmlChar* text = nullptr;
  int length = 0;
  xmlDocDumpFormatMemoryEnc(document_, &text, &length, "UTF-8", 1);
  const FXString result(reinterpret_cast<const char*>(text), length);
  xmlFree(text);
  return result;
}

Element* Document::adopt(_xmlNode* node) {
  return &elements_.emplace_back(this, node);
}

_xmlNs* Document::findNamespace(const FXString& uri) const {
  if (uri.empty()) return nullptr;
  for (xmlNs* known = xmlDocGetRootElement(document_)->nsDef; known != nullptr; known = known->next) {
    if (std::strcmp(reinterpret_cast<const char*>(known->href), uri.text()) == 0) return known;
  }
  return nullptr;
}

}  // namespace XMLBuilder
