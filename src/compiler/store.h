// The state of a compile: the macro table of a template, the wrappers of a project and what turns
// them into pages. Each of its groups of operations is a class of the folder that it belongs to;
// this one makes them work on one state.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "comments/comment_parser.h"
#include "compiler/progress_log.h"
#include "model/link_lists.h"
#include "model/links.h"
#include "model/module_source.h"
#include "model/page_context.h"
#include "model/wrapper_collections.h"
#include "model/wrapper_comments.h"
#include "template/macro_table.h"

namespace tamrikon {

class store {
 public:
  /// Both must outlive this object; the IDE's objects, as long as it holds their wrappers.
  store(const ProjectSettings& settings, CompileListener& listener);

  /// Loads a template: 0 for success, 2 if the user gave up at the file error dialog, 3 for any
  /// other failure. Throws as MacroTable::loadSrc() does.
  int loadSrc(const std::string& file, bool silent, TextFiles& files);

  /// Finds the documented members of the active project, whose topics serve them, and the lists of
  /// the whole project. Where `shouldContinue` says no, it ends with false and an empty store.
  bool analyse(const std::function<bool()>& shouldContinue);

  std::string evaluateMacro(std::string_view name) { return macros.evaluateMacro(name); }

  /// What to open of the finished documentation: the first line of the template's help file.
  std::string helpFile();

  ProgressLog log;
  MacroTable macros;
  WrapperCollections wrappers;
  WrapperComments comments;
  LinkLists lists;
  Links links;

  /// The wrappers that get a topic, in the order of all wrappers.
  std::vector<WrapperRef> compiledList;

  /// The bytes of the sources that were analysed.
  std::size_t sourceSize() const { return sources_.textSize(); }

  /// What the making of a page needs.
  PageContext pageContext();

  /// Drops the wrappers and all macros.
  void clearCollections();

 private:
  bool findMembers(const std::function<bool()>& shouldContinue);

  const ProjectSettings& settings_;
  SourceCache sources_;
  CommentParser parser_;
};

}  // namespace tamrikon
