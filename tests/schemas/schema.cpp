#include "schemas/schema.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

std::string name_of(const xmlNode* node) { return reinterpret_cast<const char*>(node->name); }

std::string content_of(xmlNode* node) {
  const std::unique_ptr<xmlChar, void (*)(void*)> content(xmlNodeGetContent(node), xmlFree);
  return reinterpret_cast<const char*>(content.get());
}

void for_each_below(xmlNode* parent, const std::string& element,
                    const std::function<void(const std::string&)>& use) {
  for (xmlNode* child = parent->children; child != nullptr; child = child->next) {
    if (child->type != XML_ELEMENT_NODE) continue;
    if (name_of(child) == element) use(content_of(child));
    for_each_below(child, element, use);
  }
}

std::string amount_around(xmlNode* node) {
  std::string amount;
  for (; node != nullptr && node->type == XML_ELEMENT_NODE; node = node->parent) {
    if (!name_of(node).ends_with("TxInf")) continue;
    for_each_below(node, "InstdAmt", [&](const std::string& text) { amount = text; });
  }
  return amount;
}

void note_error(void* errors, xmlError* error) {
  static_cast<std::vector<schema_error>*>(errors)->push_back(
      {error->message, amount_around(static_cast<xmlNode*>(error->node))});
}

}  // namespace

parsed_document::parsed_document(const std::string& text)
    : document_(xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr,
                              XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_NONET),
                xmlFreeDoc) {}

std::set<std::string> parsed_document::contents(const std::string& element) const {
  std::set<std::string> found;
  for_each_below(xmlDocGetRootElement(get()), element,
                 [&](const std::string& text) { found.insert(text); });
  return found;
}

schema::schema(const std::string& file) : schema_(nullptr, xmlSchemaFree) {
  const std::unique_ptr<xmlSchemaParserCtxt, void (*)(xmlSchemaParserCtxt*)> parser(
      xmlSchemaNewParserCtxt(file.c_str()), xmlSchemaFreeParserCtxt);
  schema_.reset(xmlSchemaParse(parser.get()));
  EXPECT_NE(schema_, nullptr) << file;
}

std::vector<schema_error> schema::errors_of(const parsed_document& document) const {
  std::vector<schema_error> errors;
  const std::unique_ptr<xmlSchemaValidCtxt, void (*)(xmlSchemaValidCtxt*)> validation(
      xmlSchemaNewValidCtxt(schema_.get()), xmlSchemaFreeValidCtxt);
  xmlSchemaSetValidStructuredErrors(validation.get(), note_error, &errors);
  const int result = xmlSchemaValidateDoc(validation.get(), document.get());
  EXPECT_EQ(result == 0, errors.empty());
  return errors;
}
