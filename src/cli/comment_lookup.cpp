#include "cli/comment_lookup.h"

#include <algorithm>
#include <limits>
#include <set>
#include <unordered_map>
#include <utility>

#include "base/case_folding.h"
#include "comments/comment_finder.h"
#include "model/project_model.h"
#include "model/wrappers.h"

namespace tamrikon {
namespace {

WrapperRef procedureOf(ModuleSource& source, Member& member, ProcKind kind) {
  switch (kind) {
    case ProcKind::get: return std::make_shared<SpropGet>(source, member);
    case ProcKind::let: return std::make_shared<SpropLet>(source, member);
    case ProcKind::set: return std::make_shared<SpropSet>(source, member);
    case ProcKind::procedure: break;
  }
  return nullptr;
}

/// The first procedure of a property in the module.
ProcKind firstKindOf(const ModuleSource& source, const std::string& name) {
  ProcKind first = ProcKind::get;
  int least = std::numeric_limits<int>::max();
  for (const ProcKind kind : {ProcKind::get, ProcKind::let, ProcKind::set}) {
    tryStep([&] {
      const int line = source.module().ProcBodyLine(name, kind);
      if (line >= least) return;
      least = line;
      first = kind;
    });
  }
  return first;
}

/// Whether `kind` names a side of a variable that is documented as a property.
bool isSideOfVariable(const ModuleSource& source, const Member& member, ProcKind kind) {
  return kind != ProcKind::let && member.Type() == MemberType::variable &&
         member.Scope() == Scope::public_ && !isStandardModule(source.type());
}

WrapperRef wrapperOfMember(ModuleSource& source, Member& member, std::optional<ProcKind> kind) {
  const bool isProperty = member.Type() == MemberType::property;
  if (kind && !isProperty && !isSideOfVariable(source, member, *kind)) {
    throw IdeError(member.Name() + " is no property");
  }
  if (!isProperty) return makeWrapper(source, member);
  WrapperRef wrapper =
      procedureOf(source, member, kind.value_or(firstKindOf(source, member.Name())));
  if (!tryStep([&] { wrapper->CodeLocation(); })) {
    throw IdeError("the property " + member.Name() + " has no such procedure");
  }
  return wrapper;
}

WrapperRef wrapperAt(const CommentTarget& target, ModuleSource& source) {
  if (target.line > source.lines().count()) {
    throw IdeError("module " + source.name() + " has no line " + std::to_string(target.line));
  }
  if (target.line != 0) return getWrapperAtLine(source, target.line);
  if (target.isModule()) return std::make_shared<Smodule>(source);
  for (const ModuleSource::ModuleMember& member : source.members()) {
    if (!equalIgnoringCase(member.name, target.member)) continue;
    WrapperRef wrapper = wrapperOfMember(source, *member.member, target.kind);
    if (wrapper) return wrapper;
  }
  throw IdeError("module " + source.name() + " has no member '" + target.member + "'");
}

/// All but the kind of a procedure.
std::string plainName(const Wrapper& wrapper) {
  if (wrapper.kind() == WrapperKind::module) return wrapper.name();
  return wrapper.source().name() + "." + wrapper.name();
}

/// Whether no comment is found where the skeleton would go. It can stand there though the wrapper
/// has none, if the declaration begins on a line that continues another.
bool isFree(const Skeleton& skeleton) {
  if (skeleton.isOfModule) return true;
  const auto range = getCommentRange(skeleton.source->lines(), skeleton.line);
  return !range || range->first == range->last;
}

/// The skeleton of an uncommented wrapper.
Skeleton missingSkeleton(const Wrapper& wrapper, const ProjectSettings& settings) {
  const auto* property = dynamic_cast<const PropertyWrapper*>(&wrapper);
  if (property == nullptr || property->member().Type() == MemberType::property) {
    return skeletonOf(wrapper, plainName(wrapper), settings);
  }
  // What is documented as a property is a variable in the source.
  const Svariable variable(wrapper.source(), property->member());
  return skeletonOf(variable, plainName(wrapper), settings);
}

}  // namespace

Skeleton skeletonAt(const CommentTarget& target, const KeyedList<CodeModule*>& modules,
                    SourceCache& sources, const ProjectSettings& settings) {
  CodeModule* const* module = modules.find(target.module);
  if (module == nullptr) throw IdeError("there is no module '" + target.module + "'");
  const WrapperRef wrapper = wrapperAt(target, sources.of(**module));
  return skeletonOf(*wrapper, target.kind ? wrapper->link() : plainName(*wrapper), settings);
}

std::vector<Skeleton> missingSkeletons(SourceCache& sources, const ProjectSettings& settings,
                                       const std::function<bool()>& goOn) {
  ProjectSettings wanted = settings;
  wanted.comNonCommented = true;
  wanted.comContextID = false;  // help ids are the business of compiles

  NoLog log;  // nothing is compiled, so nobody cares about dead links
  const auto model = analyseProject(wanted, sources, log, goOn);
  if (model == nullptr) return {};
  std::unordered_map<const ModuleSource*, std::size_t> places;
  for (CodeModule* module : wanted.comModules) {
    tryStep([&] { places.emplace(&sources.of(*module), places.size()); });
  }
  std::vector<Skeleton> found;
  std::set<std::pair<const ModuleSource*, int>> lines;
  for (const WrapperRef& wrapper : model->wrappers.all) {
    if (wrapper->hadComment || wrapper->topic != wrapper.get()) continue;
    tryStep([&] {
      Skeleton skeleton = missingSkeleton(*wrapper, wanted);
      const bool isFirst =
          skeleton.isOfModule || lines.emplace(skeleton.source, skeleton.line).second;
      if (isFirst && isFree(skeleton)) found.push_back(std::move(skeleton));
    });
  }
  std::stable_sort(found.begin(), found.end(), [&](const Skeleton& a, const Skeleton& b) {
    const std::size_t placeA = places[a.source];
    const std::size_t placeB = places[b.source];
    if (placeA != placeB) return placeA < placeB;
    if (a.isOfModule != b.isOfModule) return a.isOfModule;
    return a.line < b.line;
  });
  return found;
}

}  // namespace tamrikon
