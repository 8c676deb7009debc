// Makes the Get, Let and Set of a property share one comment and one topic, in two passes around
// the resolution of @same.
#pragma once

#include "comments/parsed_comment.h"
#include "model/wrapper_collections.h"
#include "settings/project_settings.h"

namespace tamrikon {

class PropertyMerging {
 public:
  /// All of them must outlive this object.
  PropertyMerging(const WrapperCollections& wrappers, const TagWords& tagWords,
                  const ProjectSettings& settings)
      : wrappers_(wrappers), tagWords_(tagWords), settings_(settings) {}

  /// Shares the comments, so that a @same in one procedure's comment holds for the others.
  void makeSamePropsFirst();

  /// Shares them once more and points merged wrappers at the one that keeps the topic.
  /// A Get's comment gets a line for the value argument if it has none.
  void makeSameProps();

 private:
  Wrapper* companion(const Wrapper& wrapper, const WrapperList& list, std::string_view mark) const;
  void addValueArgument(const Wrapper& writing, const Wrapper& reading);

  const WrapperCollections& wrappers_;
  const TagWords& tagWords_;
  const ProjectSettings& settings_;
};

}  // namespace tamrikon
