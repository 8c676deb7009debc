// Links: texts that name a wrapper.
//
// `Module`, `Module.Member`, `.Member` (in the module of the context), `Module.` (the member named
// as the context's) and `.` (the context's own); each form with a dot may end in 'get, 'let or
// 'set. A link that begins with a double quote names a file and no wrapper.
#pragma once

#include <string>
#include <string_view>

#include "base/message_log.h"
#include "model/link_lists.h"
#include "model/wrapper_collections.h"
#include "template/link_resolver.h"

namespace tamrikon {

class Links final : public LinkResolver {
 public:
  /// All of them must outlive this object.
  Links(const WrapperCollections& wrappers, LinkLists& lists, MessageLog& log)
      : wrappers_(wrappers), lists_(lists), log_(log) {}

  /// The wrapper whose page is in work, from which the links of a page count; null before the first
  /// page.
  Wrapper* compiledWrapper = nullptr;

  /// The wrapper that `link`, written in the comment of `context`, names; null if there is none,
  /// with a warning of wrong syntax, of a wrong property kind or of a dead link.
  Wrapper* getWrapperFromLink(const Wrapper* context, std::string_view link);

  /// The canonical form of `link`, or `link` itself if it leads nowhere.
  std::string canonizeLink(const Wrapper* context, std::string_view link);

  // What the list macros ask; the context is compiledWrapper.
  LinkTarget parseLink(std::string_view link) override;
  LinkTarget topicOf(std::string_view link) override;
  NamedLink linkOf(TopicId id) override;
  std::string pageInWork() override;
  ModuleLists moduleLists(TopicId module) override;

 private:
  static LinkTarget targetOf(const Wrapper* wrapper);

  struct LinkFault {
    std::string_view code;
    std::string_view what;
    std::string_view found;
    std::string ending;
  };

  /// Without a context there is no place to name, and no warning.
  void warn(const Wrapper* context, const LinkFault& fault, std::string_view link);

  const WrapperCollections& wrappers_;
  LinkLists& lists_;
  MessageLog& log_;
  std::string key_;  // of the link in work; keeps its memory
};

}  // namespace tamrikon
