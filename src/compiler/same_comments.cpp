#include "compiler/same_comments.h"

#include <vector>

namespace tamrikon {

void SameComments::resolveSameComments() {
  states_.clear();
  for (const WrapperRef& wrapper : wrappers_.all) {
    if (states_[wrapper.get()] == State::notVisited) resolveSameOf(*wrapper);
  }
}

Wrapper* SameComments::targetOf(const Wrapper& wrapper, bool& points) {
  parser_.setComment(wrapper.comment);
  const std::string same = parser_.getSame();
  points = !same.empty();
  if (!points) return nullptr;
  // Through the text of the link, as kinds in it are looked up without regard to case here.
  return findWrapper(wrappers_.all, links_.canonizeLink(&wrapper, same));
}

void SameComments::finish(Wrapper& wrapper, const Wrapper& target) {
  wrapper.comment = target.comment;
  wrapper.topic = target.topic;
}

/// Walks a chain of references to its end and back; a loop, as chains can be as long as a project.
void SameComments::resolveSameOf(Wrapper& first) {
  std::vector<Wrapper*> chain;
  Wrapper* wrapper = &first;
  State end = State::notVisited;
  while (end == State::notVisited) {
    State& state = states_[wrapper];
    if (state != State::notVisited) {
      end = state == State::onTheWay ? State::unresolved : state;
      break;
    }
    wrapper->topic = wrapper;
    bool points = false;
    Wrapper* target = targetOf(*wrapper, points);
    if (target == nullptr) {
      state = end = points ? State::unresolved : State::done;
      break;
    }
    state = State::onTheWay;
    chain.push_back(wrapper);
    wrapper = target;
  }
  for (; !chain.empty(); chain.pop_back()) {
    Wrapper& pointing = *chain.back();
    if (end == State::done) finish(pointing, *wrapper);
    states_[&pointing] = end;
    wrapper = &pointing;
  }
}

}  // namespace tamrikon
