#pragma once

#include <deque>

#include <fx.h>

#include "host/xml/Element.h"
#include "host/xml/LibXmlTypes.h"

namespace XMLBuilder {

/// An XML document under construction, with its elements.
class Document {
 public:
  explicit Document(const FX::FXString& rootName);
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;
  ~Document();

  Element* getRoot() { return &elements_.front(); }

  /// Declares a namespace on the root element. The same prefix again changes nothing, and neither does an empty prefix
  /// or an empty namespace: a default namespace would take in the elements that are to have none.
  void addNamespace(const FX::FXString& prefix, const FX::FXString& uri);

  /// The whole document as UTF-8 text, indented.
  FX::FXString toText() const;

 private:
  friend class Element;

  /// What the container can make in place.
  struct HeldElement : Element {
    HeldElement(Document* document, _xmlNode* node) : Element(document, node) {}
  };

  Element* adopt(_xmlNode* node);
  _xmlNs* findNamespace(const FX::FXString& uri) const;

  _xmlDoc* document_;  // owned
  std::deque<HeldElement> elements_;
};

}  // namespace XMLBuilder
