#include "model/same_comments.h"

#include <vector>

namespace tamrikon {

void SameComments::resolveSameComments() {
  states_.clear();
  for (const WrapperRef& wrapper : wrappers_.all) wrapper->topic = nullptr;
  for (const WrapperRef& wrapper : wrappers_.all) {
    if (wrapper->topic == nullptr) resolveSameOf(*wrapper);
  }
}

Wrapper* SameComments::targetOf(const Wrapper& wrapper, bool& points) {
  // Hardly any comment holds the tag, and those that don't needn't be taken apart.
  points = wrapper.comment->contains("@same");
  if (!points) return nullptr;
  const std::string same = parseComment(wrapper.comment, tagWords_, Indents::kept).getSame();
  points = !same.empty();
  if (!points) return nullptr;
  // Through the text of the link, as kinds in it are looked up without regard to case here.
  return findWrapper(wrappers_.all, links_.canonizeLink(&wrapper, same));
}

/// Walks a chain of references to its end and back; a loop, as chains can be as long as a project.
void SameComments::resolveSameOf(Wrapper& first) {
  std::vector<Wrapper*> chain;
  Wrapper* wrapper = &first;
  while (wrapper->topic == nullptr) {  // not visited yet
    wrapper->topic = wrapper;
    bool points = false;
    Wrapper* target = targetOf(*wrapper, points);
    if (target == nullptr) {
      if (points) states_[wrapper] = State::unresolved;
      break;
    }
    states_[wrapper] = State::onTheWay;
    chain.push_back(wrapper);
    wrapper = target;
  }
  const auto known = states_.find(wrapper);
  const bool resolved = known == states_.end() || known->second == State::done;
  for (; !chain.empty(); chain.pop_back()) {
    Wrapper& pointing = *chain.back();
    if (resolved) {
      pointing.shareCommentOf(*wrapper);
      pointing.topic = wrapper->topic;
    }
    states_[&pointing] = resolved ? State::done : State::unresolved;
    wrapper = &pointing;
  }
}

}  // namespace tamrikon
