// The first step of a compile: walks the selected modules and makes a wrapper for everything that
// the settings want documented.
#pragma once

#include <functional>

#include "model/module_source.h"
#include "model/wrapper_collections.h"
#include "model/wrapper_comments.h"
#include "settings/project_settings.h"

namespace tamrikon {

class ProjectAnalysis {
 public:
  /// All of them must outlive this object.
  ProjectAnalysis(const ProjectSettings& settings, SourceCache& sources, WrapperComments& comments,
                  WrapperCollections& wrappers)
      : settings_(settings), sources_(sources), comments_(comments), wrappers_(wrappers) {}

  /// Fills the collections. `goOn` is called before each member; where it says no, the walk ends
  /// with what was found so far. A step that the IDE fails is skipped.
  void analyseProject(const std::function<bool()>& goOn);

 private:
  void analyseModule(ModuleSource& source);
  void analyseMember(ModuleSource& source, Member& member);
  void analyseProperty(ModuleSource& source, Member& member);
  void analysePublicVariable(ModuleSource& source, Wrapper& variable, Member& member);
  void addDocumented(const WrapperRef& wrapper);
  bool wantsScope(Scope scope) const;

  const ProjectSettings& settings_;
  SourceCache& sources_;
  WrapperComments& comments_;
  WrapperCollections& wrappers_;
};

}  // namespace tamrikon
