#pragma once

#include "host/xml/LibXmlTypes.h"

namespace XMLBuilder {

class Document;

/// Something in a document's tree. Every node belongs to its document and goes with it.
class Node {
 public:
  Node(const Node&) = delete;
  Node& operator=(const Node&) = delete;
  virtual ~Node() = default;

  Document* getDocument() const { return document_; }

 protected:
  Node(Document* document, _xmlNode* node) : document_(document), node_(node) {}

  Document* document_;  // not owned
  _xmlNode* node_;      // owned by the document's tree
};

}  // namespace XMLBuilder
