#include <algorithm>

#include "cli/commands.h"
#include "cli/project_opening.h"
#include "cli/source_places.h"
#include "connect/copy_selection_as_code.h"
#include "settings/settings_file.h"

namespace tamrikon {

int exampleCommand(const ExampleOptions& options, const Streams& streams) {
  Terminal terminal(streams);
  const std::unique_ptr<HostIde> ide = openProject(options, terminal);
  if (!ide) return kFailed;
  const SourceRange range = *readSourceRange(options.range);
  const KeyedList<CodeModule*> modules = SettingsFile::codeModules(*ide);
  try {
    CodeModule* const* module = modules.find(range.module);
    if (module == nullptr) throw IdeError("there is no module '" + range.module + "'");
    const int count = (*module)->CountOfLines();
    const int last = std::max(range.selection.startLine, range.selection.endLine);
    if (last > count) {
      throw IdeError("module " + (*module)->Name() + " has " + std::to_string(count) + " lines");
    }
    std::string text = codeExample(**module, range.selection);
    std::replace(text.begin(), text.end(), '\r', '\n');
    streams.out << text << '\n';
    return kDone;
  } catch (const IdeError& error) {
    terminal.complain("tamrikon: '" + options.range + "': " + error.what());
    return kFailed;
  }
}

}  // namespace tamrikon
