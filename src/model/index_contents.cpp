#include "model/index_contents.h"

#include <algorithm>
#include <array>

#include "model/link_lists.h"

namespace tamrikon {
namespace {

constexpr std::array<std::string_view, 9> kContentsLists = {
    "CONT-FORMS-LINK-LIST",   "CONT-OBJECTS-LINK-LIST",   "CONT-STDMODULES-LINK-LIST",
    "CONT-METHODS-LINK-LIST", "CONT-FUNCTIONS-LINK-LIST", "CONT-PROPS-LINK-LIST",
    "CONT-EVENTS-LINK-LIST",  "CONT-VARS-LINK-LIST",      "CONT-CONSTANTS-LINK-LIST",
};

/// Whether a topic of its own serves the wrapper; if not, it takes the help id of the one that
/// does.
bool keepsTopic(Wrapper& wrapper, const ProjectSettings& settings) {
  if (wrapper.topic == nullptr || wrapper.topic == &wrapper) return true;
  wrapper.helpID = wrapper.topic->helpID;
  tryStep([&] { wrapper.setIdeHelpContextID(wrapper.helpID, settings.comContextID); });
  return false;
}

}  // namespace

std::vector<WrapperRef> makeIndex(const WrapperCollections& wrappers,
                                  const ProjectSettings& settings) {
  std::vector<WrapperRef> result;
  for (const WrapperRef& wrapper : wrappers.all) {
    if (keepsTopic(*wrapper, settings)) result.push_back(wrapper);
  }
  return result;
}

void makeSameHelpIDs(const WrapperCollections& wrappers, const ProjectSettings& settings) {
  for (const WrapperRef& wrapper : wrappers.all) keepsTopic(*wrapper, settings);
}

void makeContents(const std::vector<WrapperRef>& compiledList, MacroTable& macros) {
  std::array<std::shared_ptr<MacroList>, kContentsLists.size()> lists;
  for (auto& list : lists) list = std::make_shared<MacroList>();
  for (const WrapperRef& wrapper : compiledList) {
    const KindTraits& traits = wrapper->traits();
    const auto* name = std::find(kContentsLists.begin(), kContentsLists.end(), traits.contentsList);
    lists[static_cast<std::size_t>(name - kContentsLists.begin())]->topics.push_back(
        {wrapper->id, true, traits.title});
  }
  for (std::size_t n = 0; n < lists.size(); ++n) macros.setMacroValue(kContentsLists[n], lists[n]);
}

}  // namespace tamrikon
