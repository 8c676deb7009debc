// A settings file: loaded or refused, and if it's loaded, saved so that loading it again gives the
// same.
#include "base/paths.h"
#include "fuzz/fuzz_target.h"
#include "fuzz/memory_files.h"
#include "host/host_ide.h"
#include "settings/setting_fields.h"
#include "settings/settings_file.h"

namespace {

struct NoQuestions final : tamrikon::FileErrorReporter {
  tamrikon::FileErrorAnswer reportFileError(const std::string&, std::string_view,
                                            tamrikon::FileError) override {
    tamrikon::test::demand(false, "a question");
    return tamrikon::FileErrorAnswer::giveUp;
  }
};

const std::string kFile = "/p/P.tamrik";
const std::string kData = "/data";

}  // namespace

void fuzz(const std::string& data) {
  using namespace tamrikon;
  test::MemoryFiles disk;
  disk.files = {{"/p/P.vbp", "Type=Exe\nModule=M; M.bas\nClass=C; C.cls\n"},
                {"/p/M.bas", "Attribute VB_Name = \"M\"\n"},
                {"/p/C.cls", "Attribute VB_Name = \"C\"\n"},
                {"/data/Templates/chm.tmkt", ""},
                {"/t/own.tmkt", ""},
                {kFile, data}};
  std::string why;
  const auto ide = HostIde::open(
      disk, "/p/P.vbp", nullptr, [](const Diagnostic&) {}, why);
  NoQuestions reporter;
  TextFiles files(disk, reporter);

  ProjectSettings settings;
  SettingsFile file(settings, kData, files);
  const bool wasTaken = file.readProjectSettings(*ide);
  const std::string lines = file.settingsLines();
  test::demand(file.writeSettingsFile(*ide) == 0, "the settings aren't saved");
  const std::string saved = disk.files[kFile];
  test::demand(wasTaken ? file.keptAs().empty() : disk.files[file.keptAs()] == data,
               "what couldn't be taken is lost");

  // A template that stands before its folder is looked for in the one before.
  const std::string folder = joinPath(withoutTrailingSeparator(settings.templateFolder), "");
  if (!settings.templatePath.starts_with(folder)) return;
  ProjectSettings again;
  SettingsFile second(again, kData, files);
  test::demand(second.readProjectSettings(*ide), "what was saved is refused");
  test::demand(second.settingsLines() == lines, "other lines are loaded than were saved");
  const std::vector<SettingField> fields = settingFields(settings);
  const std::vector<SettingField> loaded = settingFields(again);
  for (std::size_t n = 0; n < fields.size(); ++n) {
    std::visit(
        [&](auto* value) {
          test::demand(*value == *std::get<decltype(value)>(loaded[n].value), "another value");
        },
        fields[n].value);
  }
  second.writeSettingsFile(*ide);
  test::demand(disk.files[kFile] == saved, "saving isn't stable");
}
