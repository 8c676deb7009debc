// A project with its sources, settings and template, compiled as the command line does it. The
// parts of the data are divided by form feeds.
#include <sstream>

#include "base/text.h"
#include "cli/terminal.h"
#include "compiler/compile.h"
#include "compiler/store.h"
#include "fuzz/fuzz_target.h"
#include "fuzz/memory_files.h"
#include "host/host_ide.h"

void fuzz(const std::string& data) {
  using namespace tamrikon;
  test::MemoryFiles disk;
  const std::vector<std::string_view> parts = split(data, '\f');
  const char* const names[] = {"/p/P.vbp", "/p/M.bas",    "/p/C.cls",
                               "/p/F.frm", "/p/P.tamrik", "/p/t.tmkt"};
  for (std::size_t n = 0; n < std::size(names) && n < parts.size(); ++n) {
    disk.files[names[n]] = (n == 0 ? "Type=Exe\n" : "") + std::string(parts[n]);
  }
  std::string why;
  const auto ide = HostIde::open(
      disk, "/p/P.vbp", nullptr, [](const Diagnostic&) {}, why);
  if (!ide) return;
  std::ostringstream out;
  const Streams streams(out, out);
  Terminal terminal(streams, Terminal::Detail::faults);
  Session session(terminal.fileErrors, disk, nativeProcessServices(), "/data");
  CompileRun run;
  run.runsPrograms = false;
  session.codePageOf = [&](const VBProject& project) -> const CodePage& {
    return ide->codePageOf(project);
  };
  session.loadProjectSettings(*ide);
  session.settings.outputPath = "/out/";
  session.settings.templatePath = "/p/t.tmkt";
  compileProject(session, *ide, run, terminal);
  session.settingsFile.writeSettingsFile(*ide);
  for (const auto& [path, bytes] : disk.files) {
    const bool isOurs = path.starts_with("/p/") || path.starts_with("/out/");
    test::demand(isOurs && path.find('/', 5) == std::string::npos, "a file outside the folders");
  }
}
