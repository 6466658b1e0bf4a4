// Documents as a reader takes them, and the schemas that they are held against.
#pragma once

#include <libxml/xmlschemas.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

class parsed_document {
 public:
  explicit parsed_document(const std::string& text);
  bool well_formed() const { return document_ != nullptr; }
  // The contents of all elements of a name.
  std::set<std::string> contents(const std::string& element) const;
  xmlDoc* get() const { return document_.get(); }

 private:
  std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> document_;
};

// Something that a schema does not accept, and the amount of the transaction in
// which it stands, if it stands in one.
struct schema_error {
  std::string text;
  std::string amount;
};

class schema {
 public:
  explicit schema(const std::string& file);
  std::vector<schema_error> errors_of(const parsed_document& document) const;

 private:
  std::unique_ptr<xmlSchema, void (*)(xmlSchema*)> schema_;
};
