#include "editor/example_file.h"

#include <utility>

#include "base/paths.h"

namespace tamrikon {

FileChoice exampleFileChoice(std::string title, const Wrapper& member, std::string_view fileName,
                             const ProjectSettings& settings) {
  FileChoice choice{std::move(title), "Text (*.txt)|*.txt|All files (*.*)|*.*", settings.outputPath,
                    std::string(fileName)};
  if (fileName.empty()) {
    choice.fileName = member.source().name() + "_" + member.name() + "_example.txt";
  }
  return choice;
}

std::string exampleLink(std::string_view path, const ProjectSettings& settings) {
  const std::string folder = nativePath(joinPath(settings.outputPath, ""));
  const bool isInOutput = nativePath(path).starts_with(folder);
  return std::string("\"").append(isInOutput ? lastName(path) : path);
}

void openExample(std::string_view link, Toolkit& toolkit, Session& session) {
  if (link.size() < 2) return;
  std::string path(link.substr(1));
  if (lastName(path) == path) path = joinPath(session.settings.outputPath, path);
  toolkit.openDocument(path,
                       {"Error while opening example.", "Cannot show the \"" + path + "\" file"});
}

}  // namespace tamrikon
