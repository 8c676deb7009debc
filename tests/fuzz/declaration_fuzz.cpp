// A declaration on one line, read in each way.
#include "fuzz/fuzz_target.h"
#include "vb/proc_definition.h"

void fuzz(const std::string& data) {
  using tamrikon::ProcDefinition;
  for (const auto read :
       {&ProcDefinition::parse, &ProcDefinition::parsePropGetReturn,
        &ProcDefinition::parseVariableReturn, &ProcDefinition::parseConstantReturn}) {
    ProcDefinition definition;
    definition.pLine = data;
    (definition.*read)();
    tamrikon::test::demand(definition.endOfArgs() <= data.size(), "the end lies behind the line");
  }
}
