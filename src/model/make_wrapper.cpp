#include <algorithm>

#include "model/wrappers.h"

namespace tamrikon {
namespace {

WrapperRef makeProperty(ModuleSource& source, Member& member, ProcKind kind) {
  switch (kind) {
    case ProcKind::let: return std::make_shared<SpropLet>(source, member);
    case ProcKind::set: return std::make_shared<SpropSet>(source, member);
    case ProcKind::get: return std::make_shared<SpropGet>(source, member);
    case ProcKind::procedure: break;
  }
  return nullptr;
}

/// The wrapper of a member that isn't a property.
WrapperRef makeSimple(ModuleSource& source, Member& member, MemberType type) {
  switch (type) {
    case MemberType::method: return std::make_shared<Smethod>(source, member);
    case MemberType::variable: return std::make_shared<Svariable>(source, member);
    case MemberType::event: return std::make_shared<Sevent>(source, member);
    case MemberType::constant: return std::make_shared<Sconstant>(source, member);
    case MemberType::property: break;
  }
  return nullptr;
}

}  // namespace

WrapperRef makeWrapper(ModuleSource& source, Member& member) {
  const MemberType type = member.Type();
  if (type != MemberType::property) return makeSimple(source, member, type);
  ProcKind kind = ProcKind::procedure;
  const int line = source.lines().toPhysicalLine(member.CodeLocation());
  if (source.module().ProcOfLine(line, kind) != member.Name()) return nullptr;
  return makeProperty(source, member, kind);
}

WrapperRef getWrapperAtLine(ModuleSource& source, int line) {
  line = source.lines().statementStartLine(line);
  ProcKind kind = ProcKind::procedure;
  const ModuleSource::ModuleMember* procedure = nullptr;
  tryStep([&] {
    const std::string name = source.module().ProcOfLine(line, kind);
    procedure = source.procedureMember(name, kind);
  });
  const ModuleSource::ModuleMember* hit = source.memberAtLine(line);
  // Both are of one array: the member that stands first in the module wins.
  if (hit == nullptr || (procedure != nullptr && procedure < hit)) hit = procedure;
  if (hit == nullptr) return std::make_shared<Smodule>(source);
  if (hit->type == MemberType::property) return makeProperty(source, *hit->member, kind);
  return makeSimple(source, *hit->member, hit->type);
}

}  // namespace tamrikon
