#pragma once

#include <fx.h>

#include "host/xml/Node.h"

namespace XMLBuilder {

/// An element. Texts are UTF-8 and stored as they are; what XML reserves is escaped when the document is written, and
/// what XML 1.0 cannot hold at all (control characters, bytes that are no UTF-8) becomes U+FFFD.
class Element : public Node {
 public:
  /// Appends a child element, owned by the document. The namespace is one that the document has been told of by
  /// addNamespace; an empty or unknown one leaves the child without namespace.
  Element* createElement(const FX::FXString& name, const FX::FXString& namespaceUri);

  /// Sets an attribute, replacing an earlier one of that name. An empty or unknown namespace gives one without prefix.
  void setAttribute(const FX::FXString& name, const FX::FXString& value, const FX::FXString& namespaceUri);

  /// Sets the element's own text. For elements without children.
  void setText(const FX::FXString& text);

 protected:
  using Node::Node;
};

}  // namespace XMLBuilder
