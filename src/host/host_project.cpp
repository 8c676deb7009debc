#include "host/host_project.h"

#include <utility>

#include "base/paths.h"
#include "host/code_page_guess.h"
#include "host/names.h"

namespace tamrikon {
namespace {

bool hasCode(ComponentType type) {
  return type != ComponentType::resourceFile && type != ComponentType::relatedDocument;
}

/// Whether the component's file holds the fonts of controls.
bool hasControls(ComponentType type) {
  return type == ComponentType::form || type == ComponentType::userControl ||
         type == ComponentType::propertyPage || type == ComponentType::userDocument;
}

}  // namespace

std::string cannotReadWarning(const std::string& path) {
  return "warning: cannot read " + path;
}

VBComponent& HostComponents::Item(int number) const {
  if (number < 1 || number > Count()) throw IdeError("there is no component of that number");
  return *components_[static_cast<std::size_t>(number - 1)];
}

void HostComponents::add(std::unique_ptr<HostComponent> component) {
  components_.push_back(std::move(component));
}

HostProject::HostProject(std::string fileName, std::string bytes, const ProjectContext& context)
    : screen_(context.screen), fileName_(std::move(fileName)), file_(std::move(bytes)) {
  open(context);
}

void HostProject::open(const ProjectContext& context) {
  const std::string folder(folderOf(fileName_));
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
  const std::string name = file_.name();
  name_ = identifierFrom(name.empty() ? baseName(fileName_) : name);
  constants_ = readConditionalConstants(file_.conditionalConstants());

  for (std::size_t i = 0; i < opened.size(); ++i) {
    const ProjectFile::ComponentLine& line = file_.components()[i];
    const Opened& entry = opened[i];
    const bool isThere = hasCode(line.type) ? entry.source != nullptr : !entry.found.path.empty();
    if (!isThere) {
      context.warn(cannotReadWarning(PathLookup::tried(folder, file_.text(line.path))));
    }
    if (entry.source != nullptr) entry.source->decode(*page_);
    const std::string lineName = file_.text(line.name);
    components_.add(std::make_unique<HostComponent>(
        *this, line.type, lineName.empty() ? std::string(baseName(entry.found.path)) : lineName,
        entry.source, constants_));
  }
}

}  // namespace tamrikon
