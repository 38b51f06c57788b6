#include <gtest/gtest.h>

#include "host/xml/Document.h"
#include "host/xml/Element.h"
#include "tests/host/xml/ParsedXml.h"

using XMLBuilder::Document;
using XMLBuilder::Element;

namespace {

constexpr const char* kUri = "urn:brontel:plugin:itemdata";

class ElementTest : public ::testing::Test {
 protected:
  ElementTest() : document("root") { document.addNamespace("itemdata", kUri); }

  /// The text of one element after it has been written and read.
  static std::string roundTrip(const FX::FXString& text) {
    Document own("a");
    own.getRoot()->setText(text);
    const ParsedXml parsed(own);
    EXPECT_TRUE(parsed.isWellFormed());
    return parsed.isWellFormed() ? ParsedXml::contentOf(parsed.root()) : "";
  }

  static std::string roundTripAttribute(const FX::FXString& value) {
    Document own("a");
    own.getRoot()->setAttribute("v", value, "");
    const ParsedXml parsed(own);
    EXPECT_TRUE(parsed.isWellFormed());
    return parsed.isWellFormed() ? ParsedXml::attributeOf(parsed.root(), "v") : "";
  }

  Document document;
};

}  // namespace

TEST_F(ElementTest, appendsChildrenInCallOrder) {
  Element* child = document.getRoot()->createElement("b", "");
  document.getRoot()->createElement("a", "");
  Element* grandchild = child->createElement("c", "");
  EXPECT_EQ(child->getDocument(), &document);
  EXPECT_EQ(grandchild->getDocument(), &document);
  const ParsedXml parsed(document);
  ASSERT_TRUE(parsed.isWellFormed());
  xmlNode* first = parsed.root()->children;
  EXPECT_EQ(ParsedXml::nameOf(first), "b");
  EXPECT_EQ(ParsedXml::nameOf(first->children), "c");
  EXPECT_EQ(ParsedXml::nameOf(first->next), "a");
}

TEST_F(ElementTest, hasTheNamespaceThatItIsGiven) {
  Element* child = document.getRoot()->createElement("data", kUri);
  child->createElement("inner", kUri);
  const ParsedXml parsed(document);
  ASSERT_TRUE(parsed.isWellFormed());
  EXPECT_EQ(ParsedXml::namespaceOf(parsed.root()->children), kUri);
  EXPECT_EQ(ParsedXml::namespaceOf(parsed.root()->children->children), kUri);
  EXPECT_GE(document.toText().find("<itemdata:data"), 0);
}

TEST_F(ElementTest, hasNoNamespaceBelowAParentThatHasOne) {
  Element* child = document.getRoot()->createElement("data", kUri);
  child->createElement("plain", "")->createElement("unknown", "urn:never-declared");
  const ParsedXml parsed(document);
  ASSERT_TRUE(parsed.isWellFormed());
  const xmlNode* plain = parsed.root()->children->children;
  EXPECT_EQ(ParsedXml::nameOf(plain), "plain");
  EXPECT_EQ(ParsedXml::namespaceOf(plain), "");
  EXPECT_EQ(ParsedXml::namespaceOf(plain->children), "");
}

TEST_F(ElementTest, isTakenInByNoDefaultNamespace) {
  document.addNamespace("", "urn:default");
  document.addNamespace("empty", "");
  document.getRoot()->createElement("inside", "urn:default")->createElement("outside", "");
  const ParsedXml parsed(document);
  ASSERT_TRUE(parsed.isWellFormed());
  const xmlNode* inside = parsed.root()->children;
  EXPECT_EQ(ParsedXml::namespaceOf(inside), "");
  EXPECT_EQ(ParsedXml::namespaceOf(inside->children), "");
}

TEST_F(ElementTest, bringsAnyPairOfBytesThroughWellFormed) {
  std::string text;
  for (int first = 0; first < 256; ++first) {
    for (int second = 0; second < 256; ++second) {
      text += {static_cast<char>(first), static_cast<char>(second), ' '};
    }
  }
  Document own("a");
  own.getRoot()->setText(FX::FXString(text.data(), static_cast<FX::FXint>(text.size())));
  EXPECT_TRUE(ParsedXml(own).isWellFormed());
}

TEST_F(ElementTest, setsAttributesWithAndWithoutNamespace) {
  Element* child = document.getRoot()->createElement("data", kUri);
  child->setAttribute("id", "1", "");
  child->setAttribute("id", "2", kUri);
  child->setAttribute("other", "3", "urn:never-declared");
  const ParsedXml parsed(document);
  ASSERT_TRUE(parsed.isWellFormed());
  xmlNode* node = parsed.root()->children;
  EXPECT_EQ(ParsedXml::attributeOf(node, "id"), "1");
  EXPECT_EQ(ParsedXml::attributeOf(node, "id", kUri), "2");
  EXPECT_EQ(ParsedXml::attributeOf(node, "other"), "3");
}

TEST_F(ElementTest, replacesAnAttributeOfTheSameName) {
  Element* child = document.getRoot()->createElement("data", kUri);
  for (const char* value : {"1", "2", ""}) {
    child->setAttribute("id", value, "");
    child->setAttribute("id", value, kUri);
    const ParsedXml parsed(document);
    ASSERT_TRUE(parsed.isWellFormed());
    EXPECT_EQ(ParsedXml::attributeOf(parsed.root()->children, "id"), value);
    EXPECT_EQ(ParsedXml::attributeOf(parsed.root()->children, "id", kUri), value);
  }
}

TEST_F(ElementTest, bringsAnyTextThroughUnchanged) {
  for (const char* text :
       {"", "a<b&\"c\"", "&amp;&lt;&#60;", "]]>", "<!-- x -->", " a \n b\t", "ő\xF0\x9F\x98\x80", "line\r\nend"}) {
    EXPECT_EQ(roundTrip(text), text);
    EXPECT_EQ(roundTripAttribute(text), text);
  }
}

TEST_F(ElementTest, bringsAnyByteThroughWellFormed) {
  for (int byte = 0; byte < 256; ++byte) {
    const char text[] = {'a', static_cast<char>(byte), 'b'};
    const std::string back = roundTrip(FX::FXString(text, 3));
    EXPECT_EQ(back.front(), 'a') << byte;
    EXPECT_EQ(back.back(), 'b') << byte;
    EXPECT_EQ(roundTripAttribute(FX::FXString(text, 3)), back) << byte;
  }
  EXPECT_EQ(roundTrip("01\x1d"
                      "23"),
            "01\xEF\xBF\xBD"
            "23");
}

TEST_F(ElementTest, replacesItsText) {
  Element* child = document.getRoot()->createElement("a", "");
  for (const char* text : {"one", "two & three", ""}) {
    child->setText(text);
    const ParsedXml parsed(document);
    ASSERT_TRUE(parsed.isWellFormed());
    EXPECT_EQ(ParsedXml::contentOf(parsed.root()->children), text);
  }
}

TEST_F(ElementTest, takesTenThousandChildren) {
  for (int i = 0; i < 10000; ++i) document.getRoot()->createElement("a", kUri)->setText("x");
  const ParsedXml parsed(document);
  ASSERT_TRUE(parsed.isWellFormed());
  EXPECT_EQ(xmlChildElementCount(parsed.root()), 10000u);
}
