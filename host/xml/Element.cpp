#include "host/xml/Element.h"

#include <string>

#include <libxml/tree.h>

#include "host/xml/Document.h"
#include "host/xml/XmlText.h"

namespace XMLBuilder {

using FX::FXString;

namespace {

const xmlChar* bytes(const std::string& text) {
  return reinterpret_cast<const xmlChar*>(text.c_str());
}

}  // namespace

Element* Element::createElement(const FXString& name, const FXString& namespaceUri) {
  const std::string clean = cleanText(name);
  xmlNode* child = xmlNewDocNode(node_->doc, document_->findNamespace(namespaceUri), bytes(clean), nullptr);
  // xmlNewDocNode leaves a null namespace null, where xmlNewChild would inherit the parent's.
  xmlAddChild(node_, child);
  return document_->adopt(child);
}

void Element::setAttribute(const FXString& name, const FXString& value, const FXString& namespaceUri) {
  const std::string cleanName = cleanText(name);
  const std::string cleanValue = cleanText(value);
  xmlSetNsProp(node_, document_->findNamespace(namespaceUri), bytes(cleanName), bytes(cleanValue));
}

void Element::setText(const FXString& text) {
  const std::string clean = cleanText(text);
  // xmlNodeSetContent would read entities in the text; a text node takes it as it is.
  xmlNodeSetContent(node_, nullptr);
  if (!clean.empty()) xmlAddChild(node_, xmlNewDocText(node_->doc, bytes(clean)));
}

}  // namespace XMLBuilder
