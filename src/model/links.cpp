#include "model/links.h"

namespace tamrikon {

void Links::warn(const Wrapper* context, const LinkFault& fault, std::string_view link) {
  if (context == nullptr) return;
  const std::string& module = context->source().name();
  Diagnostic diagnostic{Diagnostic::About::comment, Severity::warning, fault.code, "The "};
  diagnostic.text.append(fault.what).append(" '").append(link).append("'").append(fault.found);
  diagnostic.text.append(" in '").append(context->name()).append("' member of '");
  diagnostic.text.append(module).append("' module").append(fault.ending);
  diagnostic.place.module = module;
  diagnostic.place.member = context->name();
  const bool hasOwnComment = context->topic == context && context->comment != nullptr;
  if (hasOwnComment) diagnostic.place.line = context->comment->lineWith(link);
  log_.report(diagnostic);
}

Wrapper* Links::getWrapperFromLink(const Wrapper* context, std::string_view link) {
  if (link.starts_with('"')) return nullptr;
  // A canonical link, as the program itself makes them, needs no taking apart.
  Wrapper* const named = link.starts_with('.') ? nullptr : findWrapper(wrappers_.all, link);
  if (named != nullptr && link == named->link()) return named;
  const std::size_t dot = link.find('.');
  const std::size_t apostrophe = link.find('\'');
  if (dot == std::string_view::npos && apostrophe != std::string_view::npos) {
    warn(context, {"link-syntax", "link", "", " has wrong syntax."}, link);
    return nullptr;
  }
  std::string& key = key_;
  key = link.substr(0, dot);
  if (key.empty() && context != nullptr) key = context->source().name();
  std::string_view kind;
  if (dot != std::string_view::npos) {
    if (apostrophe != std::string_view::npos) kind = link.substr(apostrophe);
    const std::size_t end = link.size() - kind.size();
    std::string_view member = end > dot ? link.substr(dot + 1, end - dot - 1) : "";
    if (member.empty() && context != nullptr) member = context->name();
    if (!kind.empty() && kind != "'set" && kind != "'let" && kind != "'get") {
      const std::string specifier = "\"" + std::string(kind) + "\".";
      warn(context,
           {"link-kind", "link", "", " contains wrong property type specifier " + specifier}, link);
      return nullptr;
    }
    key.append(".").append(member).append(kind);
  }
  Wrapper* found = key == link ? named : findWrapper(wrappers_.all, key);
  if (kind.empty()) {
    for (const std::string_view mark : {"'set", "'let", "'get"}) {
      if (found == nullptr) found = findWrapper(wrappers_.all, key + std::string(mark));
    }
  }
  if (found == nullptr) warn(context, {"dead-link", "dead link", " was found", "."}, link);
  return found;
}

std::string Links::canonizeLink(const Wrapper* context, std::string_view link) {
  const Wrapper* found = getWrapperFromLink(context, link);
  return found == nullptr ? std::string(link) : found->link();
}

LinkTarget Links::targetOf(const Wrapper* wrapper) {
  LinkTarget target;
  if (wrapper == nullptr) return target;
  target.id = wrapper->id;
  target.module = wrapper->source().name();
  if (wrapper->kind() != WrapperKind::module) target.member = wrapper->name();
  target.needsModule = wrapper->needsModule;
  target.helpId = wrapper->helpID;
  return target;
}

LinkTarget Links::parseLink(std::string_view link) {
  return targetOf(getWrapperFromLink(compiledWrapper, link));
}

LinkTarget Links::topicOf(std::string_view link) {
  const Wrapper* named = getWrapperFromLink(compiledWrapper, link);
  // A link with a kind in the wrong case was warned of; the topics are looked up without regard to
  // case, so that it leads somewhere all the same.
  if (named == nullptr) named = findWrapper(wrappers_.all, link);
  if (named == nullptr) return parseLink(link);
  return targetOf(named->topic != nullptr ? named->topic : named);
}

NamedLink Links::linkOf(TopicId id) {
  const Wrapper& named = wrapperOf(wrappers_, id);
  return {named.link(), named.name(), named.source().name(), named.needsModule,
          targetOf(named.topic != nullptr ? named.topic : &named)};
}

std::string Links::pageInWork() {
  if (compiledWrapper == nullptr) return {};
  const std::string& module = compiledWrapper->source().name();
  const bool isModule = compiledWrapper->kind() == WrapperKind::module;
  return isModule ? module : module + "." + compiledWrapper->name();
}

ModuleLists Links::moduleLists(TopicId module) {
  const Wrapper& wrapper = wrapperOf(wrappers_, module);
  return {lists_.getPropsList(wrapper), lists_.getMethodsList(wrapper),
          lists_.getEventsList(wrapper)};
}

}  // namespace tamrikon
