#include "vb/proc_definition.h"

#include <gtest/gtest.h>

#include "support/text_cases.h"

namespace tamrikon {
namespace {

/// An argument as text: what its keywords set, name, type and default.
std::string show(const argument& arg) {
  std::string text;
  if (arg.aOptional) text += "optional ";
  if (arg.aByVal) text += "byval ";
  if (arg.pArray) text += "array ";
  text += arg.aName + ":" + arg.aType;
  if (!arg.aDefault.empty()) text += "=" + arg.aDefault;
  return text;
}

std::string show(const ProcDefinition& definition) {
  std::string text = definition.pType + "/" + definition.returns;
  for (const argument& arg : definition.args) text += "/" + show(arg);
  return text;
}

TEST(ProcDefinition, ReadsDeclarations) {
  const auto check = [](const test::TextCase& c) {
    ProcDefinition definition;
    definition.pLine = c["line"];
    if (c.has("procedure")) {
      definition.parse();
      EXPECT_EQ(show(definition), c["procedure"]);
    } else if (c.has("property")) {
      definition.parsePropGetReturn();
      EXPECT_EQ(definition.returns, c["property"]);
    } else if (c.has("variable")) {
      definition.parseVariableReturn();
      EXPECT_EQ(definition.returns, c["variable"]);
    } else if (c.has("constant")) {
      definition.parseConstantReturn();
      EXPECT_EQ(definition.returns, c["constant"]);
    } else {
      argument arg;
      arg.parse(c["line"]);
      EXPECT_EQ(show(arg), c["argument"]);
    }
  };
  test::forEachCase("vb/declarations.txt",
                    {"line", "procedure", "property", "variable", "constant", "argument"}, check);
}

}  // namespace
}  // namespace tamrikon
