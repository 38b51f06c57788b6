#pragma once

#include <memory>
#include <string>

#include <libxml/parser.h>
#include <libxml/tree.h>

#include "host/xml/Document.h"

/// A document as any other program reads it. Tests fail when it is not well-formed.
class ParsedXml {
 public:
  explicit ParsedXml(const XMLBuilder::Document& document) : ParsedXml(std::string(document.toText().text())) {}
  explicit ParsedXml(const std::string& text)
      : document_(xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr,
                                XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_NONET | XML_PARSE_NOBLANKS)) {}
  ParsedXml(const ParsedXml&) = delete;
  ParsedXml& operator=(const ParsedXml&) = delete;
  ~ParsedXml() { xmlFreeDoc(document_); }

  bool isWellFormed() const { return document_ != nullptr; }
  /// Null when it is not well-formed.
  xmlNode* root() const { return document_ == nullptr ? nullptr : xmlDocGetRootElement(document_); }

  static std::string nameOf(const xmlNode* node) { return node == nullptr ? "" : text(node->name); }
  /// The node's namespace; empty for none.
  static std::string namespaceOf(const xmlNode* node) {
    return node == nullptr || node->ns == nullptr ? "" : text(node->ns->href);
  }
  static std::string contentOf(xmlNode* node) { return take(xmlNodeGetContent(node)); }
  /// An attribute's value; "(none)" when it is not there in that namespace.
  static std::string attributeOf(xmlNode* node, const char* name, const char* uri = nullptr) {
    xmlChar* value = uri == nullptr ? xmlGetNoNsProp(node, bytes(name)) : xmlGetNsProp(node, bytes(name), bytes(uri));
    return value == nullptr ? "(none)" : take(value);
  }

 private:
  static const xmlChar* bytes(const char* text) { return reinterpret_cast<const xmlChar*>(text); }
  static std::string text(const xmlChar* text) { return reinterpret_cast<const char*>(text); }
  static std::string take(xmlChar* owned) {
    const std::string copy = text(owned);
    xmlFree(owned);
    return copy;
  }

  xmlDoc* document_;
};
