#include "host/xml/Element.h"

#include <libxml/tree.h>

#include "host/xml/Document.h"
#include "host/xml/XmlText.h"

namespace XMLBuilder {

using FX::FXString;

Element* Element::createElement(const FXString& name, const FXString& namespaceUri) {
  const CleanText clean(name);
  xmlNode* child = xmlNewDocNode(node_->doc, document_->findNamespace(namespaceUri), clean.bytes(), nullptr);
  // xmlNewDocNode leaves a null namespace null, where xmlNewChild would inherit the parent's.
  xmlAddChild(node_, child);
  return document_->adopt(child);
}

void Element::setAttribute(const FXString& name, const FXString& value, const FXString& namespaceUri) {
  const CleanText cleanName(name);
  const CleanText cleanValue(value);
  xmlSetNsProp(node_, document_->findNamespace(namespaceUri), cleanName.bytes(), cleanValue.bytes());
}

void Element::setText(const FXString& text) {
  const CleanText clean(text);
  // xmlNodeSetContent would read entities in the text; a text node takes it as it is.
  xmlNodeSetContent(node_, nullptr);
  if (!clean.isEmpty()) xmlAddChild(node_, xmlNewDocText(node_->doc, clean.bytes()));
}

}  // namespace XMLBuilder
