#include <type_traits>

#include <gtest/gtest.h>

#include "host/xml/Document.h"
#include "tests/host/xml/ParsedXml.h"

using XMLBuilder::Document;

namespace {

int count(const FX::FXString& text, const FX::FXString& part) {
  int found = 0;
  for (FX::FXint at = text.find(part); at >= 0; at = text.find(part, at + 1)) ++found;
  return found;
}

constexpr const char* kUri = "urn:brontel:test";

}  // namespace

TEST(DocumentTest, isAWellFormedTextFromTheStart) {
  const Document document("invoice");
  EXPECT_STREQ(document.toText().text(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<invoice/>\n");
  const ParsedXml parsed(document);
  ASSERT_TRUE(parsed.isWellFormed());
  EXPECT_EQ(ParsedXml::nameOf(parsed.root()), "invoice");
}

TEST(DocumentTest, knowsItsRootAndTheRootKnowsIt) {
  Document document("invoice");
  EXPECT_EQ(document.getRoot()->getDocument(), &document);
  EXPECT_FALSE(std::is_copy_constructible_v<Document>);
}

TEST(DocumentTest, declaresANamespaceOnce) {
  Document document("invoice");
  for (int i = 0; i < 3; ++i) document.addNamespace("itemdata", kUri);
  EXPECT_EQ(count(document.toText(), "xmlns:itemdata=\"urn:brontel:test\""), 1);
  EXPECT_TRUE(ParsedXml(document).isWellFormed());
  EXPECT_EQ(ParsedXml::namespaceOf(ParsedXml(document).root()), "");
}

TEST(DocumentTest, keepsTheFirstMeaningOfAPrefix) {
  Document document("invoice");
  document.addNamespace("p", "urn:first");
  document.addNamespace("p", "urn:second");
  const FX::FXString text = document.toText();
  EXPECT_EQ(count(text, "xmlns:p="), 1);
  EXPECT_EQ(count(text, "urn:first"), 1);
  EXPECT_TRUE(ParsedXml(document).isWellFormed());
}

TEST(DocumentTest, declaresSeveralNamespacesAndPrefixes) {
  Document document("invoice");
  document.addNamespace("a", "urn:a");
  document.addNamespace("b", "urn:b");
  document.addNamespace("c", "urn:a");
  EXPECT_EQ(count(document.toText(), "xmlns:"), 3);
  EXPECT_TRUE(ParsedXml(document).isWellFormed());
}

TEST(DocumentTest, canBeWrittenAgainAfterAChange) {
  Document document("a");
  const FX::FXString before = document.toText();
  EXPECT_STREQ(document.toText().text(), before.text());
  document.getRoot()->createElement("b", "");
  EXPECT_STREQ(document.toText().text(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a>\n  <b/>\n</a>\n");
}

TEST(DocumentTest, writesLettersOfAllLanguages) {
  Document document("számla");
  const ParsedXml parsed(document);
  ASSERT_TRUE(parsed.isWellFormed());
  EXPECT_EQ(ParsedXml::nameOf(parsed.root()), "számla");
}
