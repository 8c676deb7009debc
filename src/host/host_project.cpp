#include "host/host_project.h"

#include <utility>

#include "base/paths.h"
#include "host/code_page_guess.h"
#include "host/names.h"

namespace tamrikon {
namespace {

/// Whether the component's file holds the fonts of controls.
bool hasControls(ComponentType type) {
  return type == ComponentType::form || type == ComponentType::userControl ||
         type == ComponentType::propertyPage || type == ComponentType::userDocument;
}

}  // namespace

std::string cannotReadWarning(const std::string& path) {
  return "warning: cannot read " + path;
}

HostComponent& HostComponents::Item(int number) const {
  if (number < 1 || number > Count()) throw IdeError("there is no component of that number");
  return *components_[static_cast<std::size_t>(number - 1)];
}

void HostComponents::add(std::unique_ptr<HostComponent> component) {
  components_.push_back(std::move(component));
}

HostProject::HostProject(std::string fileName, std::string bytes, const ProjectContext& context)
    : screen_(context.screen), disk_(std::move(fileName), bytes), file_(std::move(bytes)) {
  open(context);
}

void HostProject::open(const ProjectContext& context) {
  const std::string folder(folderOf(disk_.path()));
  struct Opened {
    FoundPath found;
    Source* source = nullptr;
  };
  std::vector<Opened> opened;
  CodePageGuess guess;
  for (const ProjectFile::ComponentLine& line : file_.components()) {
    Opened entry;
    entry.found = findInCodePages(context.lookup, folder, line.path, context.codePage);
    guess.addPath(entry.found);
    if (hasCode(line.type) && !entry.found.path.empty()) {
      entry.source = context.sources.open(entry.found.path);
      if (entry.source != nullptr) {
        guess.addSource(entry.source->evidence(), hasControls(line.type));
      }
    }
    opened.push_back(std::move(entry));
  }

  page_ = context.codePage != nullptr ? context.codePage : &guess.page();
  file_.setCodePage(*page_);
  const std::string ownName = file_.name();
  name_ = identifierFrom(ownName.empty() ? baseName(disk_.path()) : ownName);
  constants_ = readConditionalConstants(file_.conditionalConstants());

  for (std::size_t i = 0; i < opened.size(); ++i) {
    const ProjectFile::ComponentLine& line = file_.components()[i];
    ComponentFile file{std::move(opened[i].found.path), false, opened[i].source};
    file.isMissing = hasCode(line.type) ? file.source == nullptr : file.path.empty();
    if (file.isMissing) {
      const std::string tried = PathLookup::tried(folder, file_.text(line.path));
      context.warn(cannotReadWarning(tried));
      if (file.path.empty()) file.path = tried;
    }
    if (file.source != nullptr) file.source->decode(*page_);
    std::string name = file_.text(line.name);
    if (name.empty()) name = baseName(file.path);
    components_.add(
        std::make_unique<HostComponent>(*this, line.type, name, std::move(file), constants_));
  }
}

}  // namespace tamrikon
