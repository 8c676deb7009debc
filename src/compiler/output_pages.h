// Writes the pages of a compile, in one file each or all in one, and runs the closing steps.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "compiler/compile_context.h"

namespace tamrikon {

/// Pages that are out of all proportion to the sources end the compile: std::length_error is
/// thrown.
class OutputPages {
 public:
  /// `context` must outlive this object. The project is the active one.
  explicit OutputPages(CompileContext& context);

  /// A file for each page and each topic.
  void compileFiles();

  /// All pages of the project in one file, the topics module by module.
  void compileSingleFile();

 private:
  enum class Write { replace, append };

  struct Page;
  static const Page kFiles[6];
  static const Page kBeforeTopics[5];
  static const Page kIndex;

  /// In the folder of the project's pages.
  void put(Write write, std::string_view name, std::string_view extension, std::string_view text);
  void putGroupPage(Write write, std::string_view extension, std::string_view text);
  bool writePage(Write write, const std::string& path, std::string_view text);
  bool putPage(const Page& page, std::string& extension);
  bool putFiles();
  bool putTopics();
  void closingSteps();

  std::string topicOf(Wrapper& wrapper);
  bool wantsTopic(const Wrapper& wrapper) const;

  bool appendTopics(const std::string& extension);
  void addTopic(Wrapper& wrapper, std::string& text);

  CompileContext& compile_;
  ProjectSettings& settings_;
  CompileRun& run_;
  store& store_;
  PageContext context_;
  const std::string projectName_;
  const std::size_t maxWritten_;
  std::size_t written_ = 0;  // bytes of all pages
  std::size_t topicsDone_ = 0;
};

}  // namespace tamrikon
