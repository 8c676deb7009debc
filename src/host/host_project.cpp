#include "host/host_project.h"

#include <utility>

#include "base/paths.h"
#include "vb/names.h"

namespace tamrikon {

Diagnostic unreadableFile(const std::string& path, std::string_view why) {
  Diagnostic fault{Diagnostic::About::project, Severity::warning, "unreadable-file",
                   "cannot read " + path + std::string(why)};
  fault.place.file = path;
  return fault;
}

HostComponent& HostComponents::Item(int number) const {
  if (number < 1 || number > Count()) throw IdeError("there is no component of that number");
  return *components_[static_cast<std::size_t>(number - 1)];
}

void HostComponents::add(std::unique_ptr<HostComponent> component) {
  components_.push_back(std::move(component));
}

HostProject::HostProject(std::string fileName, std::string bytes, const ProjectContext& context)
    : screen_(context.screen),
      disk_(std::move(fileName), bytes),
      file_(std::move(bytes)),
      found_(std::in_place) {
  const std::string folder(folderOf(disk_.path()));
  CodePageGuess& guess = found_->guess;
  for (const ProjectFile::ComponentLine& line : file_.components()) {
    const FoundPath found = findInCodePages(context.lookup, folder, line.path, context.codePage);
    guess.addPath(found);
    Source* source = nullptr;
    if (hasCode(line.type) && !found.path.empty()) source = context.sources.open(found.path);
    if (source != nullptr) {
      guess.addSource(source->evidence(), hasControls(line.type));
      guess.addBytes(source->undecoded());
    }
    found_->components.push_back({found.path, source});
  }
  guess.addBytes(file_.undecoded());
}

void HostProject::decodeSources(const CodePage& page) {
  for (const FoundComponent& found : found_->components) {
    if (found.source != nullptr) found.source->decode(page);
  }
}

void HostProject::open(const CodePage& page, const DiagnosticSink& warn) {
  page_ = &page;
  file_.setCodePage(page);
  const std::string ownName = file_.name();
  name_ = identifierFrom(ownName.empty() ? baseName(disk_.path()) : ownName);
  constants_ = readConditionalConstants(file_.conditionalConstants());

  for (std::size_t i = 0; i < found_->components.size(); ++i) {
    const ProjectFile::ComponentLine& line = file_.components()[i];
    FoundComponent& found = found_->components[i];
    ComponentFile file{std::move(found.path), false, found.source};
    file.isMissing = hasCode(line.type) ? file.source == nullptr : file.path.empty();
    if (file.isMissing) {
      const std::string tried = PathLookup::tried(folderOf(disk_.path()), file_.text(line.path));
      if (hasCode(line.type)) warn(unreadableFile(tried));
      if (file.path.empty()) file.path = tried;
    }
    std::string name = file_.text(line.name);
    if (name.empty()) name = baseName(file.path);
    components_.add(
        std::make_unique<HostComponent>(*this, line.type, name, std::move(file), constants_));
  }
  found_.reset();
}

}  // namespace tamrikon
