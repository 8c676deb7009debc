#include "model/wrapper.h"

#include <utility>

#include "comments/insert_comment_lines.h"

namespace tamrikon {
namespace {

std::string linkOf(WrapperKind kind, const ModuleSource& source, const std::string& name) {
  if (kind == WrapperKind::module) return source.name();
  return source.name() + "." + name + std::string(traitsOf(kind, source.type()).linkMark);
}

}  // namespace

Wrapper::Wrapper(WrapperKind kind, ModuleSource& source, std::string name)
    : kind_(kind), source_(source), name_(std::move(name)), link_(linkOf(kind_, source_, name_)) {}

void Wrapper::addComment(const ProjectSettings& settings) const {
  insertCommentLines(cmo(), CodeLocation(), generateComment(settings));
}

}  // namespace tamrikon
