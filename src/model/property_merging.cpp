#include "model/property_merging.h"

#include "model/wrappers.h"

namespace tamrikon {
namespace {

void shareFirst(Wrapper& wrapper, Wrapper& companion) {
  if (companion.kind() == WrapperKind::propGet) {
    static_cast<SpropGet&>(companion).hasNoLetSet = false;
  }
  if (companion.hadComment) {
    wrapper.shareCommentOf(companion);
  } else {
    companion.shareCommentOf(wrapper);
  }
}

}  // namespace

Wrapper* PropertyMerging::companion(const Wrapper& wrapper, const WrapperList& list,
                                    std::string_view mark) const {
  const std::string& link = wrapper.link();
  return findWrapper(list, link.substr(0, link.size() - mark.size()) + std::string(mark));
}

void PropertyMerging::makeSamePropsFirst() {
  for (const WrapperRef& set : wrappers_.sets) {
    if (Wrapper* get = companion(*set, wrappers_.gets, "'get")) shareFirst(*set, *get);
  }
  for (const WrapperRef& let : wrappers_.lets) {
    if (Wrapper* get = companion(*let, wrappers_.gets, "'get")) shareFirst(*let, *get);
    if (Wrapper* set = companion(*let, wrappers_.sets, "'set")) shareFirst(*let, *set);
  }
}

void PropertyMerging::addValueArgument(const Wrapper& writing, const Wrapper& reading) {
  const auto& property = static_cast<const PropertyWrapper&>(writing);
  LastArgument last;
  tryStep([&] { last = property.generateCommentForLastArgument(settings_); });
  if (!last.line) return;
  const ParsedComment parsed = parseComment(reading.comment, tagWords_, indentsFor(settings_));
  if (parsed.getParamList().size() < last.count) {
    reading.comment->push_back(*last.line);
  }
}

void PropertyMerging::makeSameProps() {
  const auto share = [&](Wrapper& wrapper, Wrapper& companion) {
    if (companion.hadComment) {
      if (companion.kind() == WrapperKind::propGet) addValueArgument(wrapper, companion);
      wrapper.shareCommentOf(companion);
      wrapper.topic = companion.topic;
    } else {
      companion.shareCommentOf(wrapper);
      companion.topic = wrapper.topic;
    }
  };
  for (const WrapperRef& set : wrappers_.sets) {
    if (Wrapper* get = companion(*set, wrappers_.gets, "'get")) share(*set, *get);
  }
  for (const WrapperRef& let : wrappers_.lets) {
    if (Wrapper* get = companion(*let, wrappers_.gets, "'get")) share(*let, *get);
    if (Wrapper* set = companion(*let, wrappers_.sets, "'set")) share(*let, *set);
  }
}

}  // namespace tamrikon
