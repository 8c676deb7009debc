// The operations that a compile spends its time with, each alone.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

#include "comments/parsed_comment.h"
#include "host/module_analysis.h"
#include "platform/data_folder.h"
#include "source/source_file.h"
#include "template/link_items.h"
#include "template/macro_table.h"

namespace tamrikon {
namespace {

struct NoErrors final : FileErrorReporter {
  FileErrorAnswer reportFileError(const std::string&, std::string_view, FileError) override {
    return FileErrorAnswer::fail;
  }
};

/// Leads every link to a topic of its own name.
struct EchoLinks final : LinkResolver {
  LinkTarget parseLink(std::string_view link) override {
    const std::size_t dot = std::min(link.find('.'), link.size());
    return {TopicId{1}, link.substr(std::min(dot + 1, link.size())), link.substr(0, dot), false, 1};
  }
  LinkTarget topicOf(std::string_view link) override { return parseLink(link); }
  NamedLink linkOf(TopicId) override { return {}; }
  ModuleLists moduleLists(TopicId) override { return {}; }
};

std::string templatePath() {
  return dataFolder() + "/Templates/html.tmkt";
}

struct Table {
  Table() {
    macros.setLinkResolver(&links);
    macros.loadSrc(templatePath(), true, files);
  }

  NoLog log;
  NoErrors errors;
  TextFiles files{nativeFileSystem(), errors};
  EchoLinks links;
  MacroTable macros{log};
};

void Load_a_template(benchmark::State& state) {
  Table table;
  for (auto _ : state) table.macros.loadSrc(templatePath(), true, table.files);
}
BENCHMARK(Load_a_template);

void Expand_a_topic(benchmark::State& state) {
  Table table;
  MacroTable& macros = table.macros;
  for (const char* name : {"PROJECT-NAME", "MEMBER-NAME", "MEMBER-MODULE", "MEMBER-REMARKS",
                           "MEMBER-RETURN", "MEMBER-DESCRIPTION", "MEMBER-DECLARATION"}) {
    macros.setMacroValue(name, "Function Find(ByVal Name As String) As \"Order\" & <more>\r");
  }
  std::string source;
  for (int line = 0; line < 20; ++line) source += "    If i < 3 Then i = i + 1  ' a step$EOL$";
  macros.setMacroValue("MEMBER-SOURCECODE", source);
  macros.setMacroValue("PARAM-LIST", std::make_shared<MacroList>(
                                         MacroList{{"Name\rWhat it is called.\r", "Kind\r"}}));
  macros.setMacroValue("SEE-LINK-LIST", std::make_shared<MacroList>(
                                            MacroList{{"Orders.Add\r", "Orders\rAll of them"}}));
  for (auto _ : state) benchmark::DoNotOptimize(macros.evaluateMacro("tamrik-method-body"));
}
BENCHMARK(Expand_a_topic);

void Sort_a_list_of_30000_items(benchmark::State& state) {
  EchoLinks links;
  MacroList list;
  for (unsigned n = 0; n < 30000; ++n) {
    list.texts.push_back("Module" + std::to_string(n % 400) + ".Member" +
                         std::to_string(n * 2654435761U % 100000) + "\r");
  }
  for (auto _ : state) {
    LinkItems items;
    benchmark::DoNotOptimize(items.sort(list, &links));
  }
}
BENCHMARK(Sort_a_list_of_30000_items);

void Parse_a_comment(benchmark::State& state) {
  const ProjectSettings settings;
  const auto comment = stripCommentQuotes(CommentLines{
      "' Finds an order by its name, and makes one if there is none.", "' The name may be empty.",
      "' @param Name Required. String.", "' @param Kind Optional. What it is.", "' @return Order.",
      "' @see .Add", "' @see Orders.Remove The opposite", "' @rem Nothing happens twice.",
      "'      A second call comes back at once."});
  const TagWords words(settings.userName);
  for (auto _ : state) {
    const ParsedComment parsed = parseComment(comment, words, indentsFor(settings));
    benchmark::DoNotOptimize(parsed.getDescription());
    benchmark::DoNotOptimize(parsed.getParamList());
    benchmark::DoNotOptimize(parsed.getSeeList());
    benchmark::DoNotOptimize(parsed.getRemarks());
    benchmark::DoNotOptimize(parsed.getReturn());
  }
}
BENCHMARK(Parse_a_comment);

void Parse_a_module_of_10000_lines(benchmark::State& state) {
  std::string text;
  for (int n = 0; n < 1000; ++n) {
    const std::string name = "Find" + std::to_string(n);
    text += "'**\r\n' Finds what is asked for.\r\n' @param Name Required. String.\r\n";
    text += "Public Function " + name + "(ByVal Name As String) As Long\r\n";
    text += "    Dim i As Long: i = 1\r\n\r\n    If i < 3 Then i = i + 1  ' a step\r\n";
    text += "    " + name + " = i\r\nEnd Function\r\n\r\n";
  }
  const CodePage& page = *CodePage::find(1252);
  for (auto _ : state) {
    const SourceFile file(text, page);
    const ModuleAnalysis analysis(file.lines(), ConditionalConstants());
    benchmark::DoNotOptimize(analysis.members().size());
  }
}
BENCHMARK(Parse_a_module_of_10000_lines);

}  // namespace
}  // namespace tamrikon

BENCHMARK_MAIN();
