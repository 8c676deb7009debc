#include "base/paths.h"
#include "base/text.h"
#include "base/utf8.h"
#include "cli/commands.h"
#include "cli/template_names.h"
#include "cli/terminal.h"
#include "compiler/store.h"
#include "compiler/template_description.h"
#include "platform/data_folder.h"

namespace tamrikon {
int templatesCommand(int codePage, const Streams& streams) {
  constexpr std::size_t kNameWidth = 16;
  Terminal terminal(
      streams, Terminal::Detail::faults);  // faults of a template show when it is compiled with
  Session session(terminal.fileErrors, nativeFileSystem(), nativeProcessServices(), dataFolder());
  if (codePage != 0) session.files.setCodePage(*CodePage::find(codePage));
  session.settings.outputPath = session.addInFolder;  // as for a project without a file
  const std::string folder = joinPath(session.addInFolder, "Templates");
  for (const std::string& name : templateNames(session.files.files(), folder)) {
    std::string line(baseName(name));
    const std::size_t width = codePointCount(line);
    line.append(width < kNameWidth ? kNameWidth - width : 1, ' ');
    line += replaceAll(readTemplateDescription(session, joinPath(folder, name)), "\n", " ");
    streams.out << line << '\n';
  }
  return kDone;
}

}  // namespace tamrikon
