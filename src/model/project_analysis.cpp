#include "model/project_analysis.h"

#include "model/wrappers.h"

namespace tamrikon {

bool ProjectAnalysis::wantsScope(Scope scope) const {
  switch (scope) {
    case Scope::friend_: return settings_.comFriend;
    case Scope::private_: return settings_.comPrivate;
    case Scope::public_: break;
  }
  return settings_.comPublic;
}

void ProjectAnalysis::analyseProject(const std::function<bool()>& goOn) {
  const bool anyModuleKind = settings_.comStdModule || settings_.comObject || settings_.comForm;
  for (CodeModule* module : settings_.comModules) {
    ModuleSource* source = nullptr;
    if (!tryStep([&] { source = &sources_.of(*module); })) continue;
    if (anyModuleKind) tryStep([&] { analyseModule(*source); });
    for (const ModuleSource::ModuleMember& member : source->members()) {
      if (!goOn()) return;
      tryStep([&] { analyseMember(*source, *member.member); });
    }
  }
}

void ProjectAnalysis::analyseModule(ModuleSource& source) {
  const auto wrapper = std::make_shared<Smodule>(source);
  wrapper->comment = WrapperComments::getModuleComment(source);
  wrapper->hadComment = !wrapper->comment->empty();
  // The number is used up whether or not the module is then documented.
  comments_.takeHelpId(*wrapper);
  if (settings_.wantsModule(moduleKindOf(source.type())) && comments_.prepareComment(*wrapper)) {
    wrappers_.add(wrapper);
  }
}

void ProjectAnalysis::analyseMember(ModuleSource& source, Member& member) {
  const WrapperRef wrapper = makeWrapper(source, member);
  if (!wrapper) return;
  const Scope scope = member.Scope();
  if (!wantsScope(scope)) return;
  const bool isClassVariable = wrapper->kind() == WrapperKind::variable &&
                               scope == Scope::public_ && !isStandardModule(source.type());
  switch (wrapper->kind()) {
    case WrapperKind::constant:
      if (settings_.comConstant) addDocumented(wrapper);
      break;
    case WrapperKind::event:
      if (settings_.comEvent) addDocumented(wrapper);
      break;
    case WrapperKind::method:
      if (settings_.comMethod) addDocumented(wrapper);
      break;
    case WrapperKind::propGet:
    case WrapperKind::propLet:
    case WrapperKind::propSet:
      if (settings_.comProperty) analyseProperty(source, member);
      break;
    case WrapperKind::variable:
      if (isClassVariable && settings_.comProperty) {
        analysePublicVariable(source, *wrapper, member);
      } else if (!isClassVariable && settings_.comVariable) {
        addDocumented(wrapper);
      }
      break;
    case WrapperKind::module: break;
  }
}

void ProjectAnalysis::addDocumented(const WrapperRef& wrapper) {
  wrapper->comment = comments_.getComment(*wrapper);
  if (comments_.prepareComment(*wrapper)) wrappers_.add(wrapper);
}

void ProjectAnalysis::analyseProperty(ModuleSource& source, Member& member) {
  for (const ProcKind kind : {ProcKind::let, ProcKind::set, ProcKind::get}) {
    if (!source.module().HasProc(member.Name(), kind)) continue;
    tryStep([&] {
      const int line = source.module().ProcBodyLine(member.Name(), kind);
      addDocumented(getWrapperAtLine(source, line));
    });
  }
}

void ProjectAnalysis::analysePublicVariable(ModuleSource& source, Wrapper& variable,
                                            Member& member) {
  const CommentList readingComment = comments_.getComment(variable);
  const CommentList writingComment = comments_.getComment(variable);
  const auto reading = std::make_shared<SpropGet>(source, member);
  reading->comment = readingComment;
  reading->hadComment = variable.hadComment;
  reading->helpID = variable.helpID;
  if (comments_.prepareComment(*reading)) wrappers_.add(reading);
  // The writing side never counts as commented, so that the reading side's comment wins.
  const auto writing = std::make_shared<SpropSet>(source, member);
  writing->comment = writingComment;
  writing->helpID = variable.helpID;
  if (!comments_.prepareComment(*writing)) return;
  writing->comment->push_back("@param vData " + reading->getReturns());
  wrappers_.add(writing);
}

}  // namespace tamrikon
