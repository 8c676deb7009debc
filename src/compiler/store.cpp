#include "compiler/store.h"

#include "base/case_folding.h"
#include "model/index_contents.h"

namespace tamrikon {

store::store(const ProjectSettings& settings, CompileListener& listener)
    : settings_(settings), log_(listener), macros_(log_) {}

int store::loadSrc(const std::string& file, bool silent, TextFiles& files) {
  return macros_.loadSrc(file, silent, files);
}

std::string store::helpFile() {
  const std::string lines = macros_.evaluateMacro("tamrik-help-file");
  return lines.substr(0, lines.find_first_of("\r\n"));
}

PageContext store::pageContext() {
  PageContext context{macros_, model_->tagWords, settings_, model_->wrappers, model_->lists, {}};
  for (std::size_t tag = 0; tag < ProjectSettings::kUserTags; ++tag) {
    const std::string& name = settings_.userName[tag];
    std::vector<std::string>& names = context.userTagMacros[tag];
    // That one is no text: it is part of the names of files, and of links to them.
    if (macros_.limitsComments() && equalIgnoringCase(name, "EXT")) continue;
    names = {"MEMBER-" + uppered(name)};
    // The capital of a letter can have another small one.
    if (!equalIgnoringCase(uppered(name), name)) names.push_back("MEMBER-" + name);
  }
  return context;
}

void store::clearCollections() {
  macros_.clear();
  macros_.setLinkResolver(nullptr);
  compiledList_.clear();
  model_.reset();
}

bool store::analyse(const std::function<bool()>& shouldContinue) {
  model_ = analyseProject(settings_, sources_, log_, shouldContinue);
  if (model_ == nullptr) {
    clearCollections();
    return false;
  }
  macros_.setLinkResolver(&model_->links);
  compiledList_ = makeIndex(model_->wrappers, settings_);
  macros_.setMacroValue("INDEX-LINK-LIST", LinkLists::makeLinkList(compiledList_));
  makeContents(compiledList_, macros_);
  return true;
}

}  // namespace tamrikon
