// Text at every place of a project from which it gets into pages. The pages of html.tmkt and
// json.tmkt must have the markup that harmless text of the same form gives, and no other.
#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <vector>

#include "base/text.h"
#include "cli/terminal.h"
#include "compiler/compile.h"
#include "fuzz/fuzz_target.h"
#include "fuzz/memory_files.h"
#include "host/host_ide.h"

namespace {

using namespace tamrikon;

/// The first line of `text` alone, without what would end a string, a name or a word there.
std::string oneLine(const std::string& text, std::string_view without) {
  std::string line = text.substr(0, text.find('\n'));
  std::erase_if(line, [&](char c) { return without.find(c) != without.npos; });
  return line;
}

std::string sourceWith(const std::string& text) {
  const std::string value = oneLine(text, "\"");
  const std::string name = "[n" + oneLine(text, "]'\",():") + "]";
  const std::string all = "' " + replaceAll(text, "\n", "\n' ");
  std::string comment = "'**\n" + all + "\n' @see \"f" + oneLine(text, " \t") + "\n' @see \"f " +
                        value + "\n' @see Nowhere " + value + "\n' @example \"f" + value +
                        "\n' @set  k m" + oneLine(text, " \t") + " \"v" + value + "\" d" + value;
  for (const char* tag : {"param p", "rem", "return", "author", "version", "user1"}) {
    comment.append("\n' @").append(tag).append(" x\n").append(all);
  }
  return "Attribute VB_Name = \"M\"\n" + comment + "\nOption Explicit\n" + comment +
         "\nPublic Const K = \"" + value + "\"\n" + comment + "\nPublic V As " + name + "\n" +
         comment + "\nPublic Sub A(Optional ByVal s As String = \"" + value + "\")\nx = \"" +
         value + "\"\nEnd Sub\nPublic Sub B(Optional ByVal s As String = \"" + value +
         "\")\nAttribute B.VB_Description = \"" + value + "\"\nEnd Sub\nPublic Sub " + name +
         "(ByVal " + name + " As " + name + ")\nEnd Sub\n";
}

std::map<std::string, std::string> pagesOf(const std::string& text, const std::string& name) {
  std::ifstream file(TAMRIKON_TEMPLATES + name, std::ios::binary);
  test::MemoryFiles disk;
  disk.files["/t.tmkt"] = {std::istreambuf_iterator<char>(file), {}};
  test::demand(!disk.files["/t.tmkt"].empty(), "no template");
  disk.files["/p/P.vbp"] =
      "Type=Exe\nModule=M; M.bas\nName=\"P\"\nDescription=\"" + oneLine(text, "\"") + "\"\n";
  disk.files["/p/M.bas"] = sourceWith(text);
  std::string why;
  const CodePage& page = *CodePage::find(1252);
  const auto ide = HostIde::open(
      disk, "/p/P.vbp", &page, [](const Diagnostic&) {}, why);
  test::demand(ide != nullptr, "the project isn't read");
  std::ostringstream out;
  const Streams streams(out, out);
  Terminal terminal(streams, Terminal::Detail::faults);
  Session session(terminal.fileErrors, disk, nativeProcessServices(), "/data");
  CompileRun run;
  run.runsPrograms = false;
  session.codePageOf = [&](const VBProject&) -> const CodePage& { return page; };
  session.loadProjectSettings(*ide);
  ProjectSettings& settings = session.settings;
  settings.comStdModule = settings.comVariable = settings.comConstant = true;
  settings.comNonCommented = settings.addDescription = true;
  settings.insertSourceGlobal = 1;
  settings.titlePageText = page.decode(replaceAll(text, "\n", "\r"));
  settings.outputPath = "/out/";
  settings.templatePath = "/t.tmkt";
  compileProject(session, *ide, run, terminal);
  std::erase_if(disk.files, [](const auto& file) { return !file.first.starts_with("/out/"); });
  test::demand(!disk.files.empty(), "no page");
  return disk.files;
}

/// Lists are sorted by their labels, so that the same lines can come in another order.
std::string sorted(const std::string& text) {
  std::vector<std::string_view> lines = split(text, '\n');
  std::sort(lines.begin(), lines.end());
  std::string result;
  for (const std::string_view line : lines) result.append(line).push_back('\n');
  return result;
}

/// The tags with the names of their attributes, as a browser finds them.
std::string tagsOf(const std::string& page) {
  std::string tags;
  for (std::size_t at = 0; (at = page.find('<', at)) != std::string::npos;) {
    char quote = 0;
    for (; at < page.size() && (quote != 0 || page[at] != '>'); ++at) {
      const bool isQuote = page[at] == '"' || page[at] == '\'';
      if (quote == 0) tags += page[at];
      if (isQuote && (quote == 0 || quote == page[at])) quote = quote == 0 ? page[at] : '\0';
    }
    tags += '\n';
  }
  return sorted(tags);
}

/// All but the strings of a JSON text, whose escapes must be right.
std::string frameOf(const std::string& json) {
  std::string frame;
  std::string marks;  // which end a line or not by the line's place in a list
  bool isString = false;
  for (std::size_t at = 0; at < json.size(); ++at) {
    const auto c = static_cast<unsigned char>(json[at]);
    if (c == '"') isString = !isString;
    if (!isString || c == '"') {
      (c == ',' || c == ']' || c == '}' ? marks : frame) += json[at];
      continue;
    }
    test::demand(c >= ' ', "a control character in a string");
    if (c != '\\') continue;
    const char escape = at + 1 < json.size() ? json[++at] : '\0';
    test::demand(std::string_view("\"\\/bfnrtu").find(escape) != std::string_view::npos, "escape");
  }
  test::demand(!isString, "a string without end");
  std::sort(marks.begin(), marks.end());
  return sorted(frame) + marks;
}

/// The backquotes and placeholders of a script, which holds names within backquotes.
std::string templatesOf(const std::string& script) {
  std::string found;
  for (std::size_t at = 0; at < script.size(); ++at) {
    if (script[at] == '`' || script.substr(at, 2) == "${") found += script[at];
  }
  return found;
}

}  // namespace

void fuzz(const std::string& data) {
  std::string text = data.substr(0, 2000);
  // No call of CODE and its kin, which brings tags of the template; no byte that ends a line
  // elsewhere alone.
  std::replace(text.begin(), text.end(), 'O', '0');
  std::replace(text.begin(), text.end(), 'o', '0');
  std::erase_if(text, [](char c) { return c == '\r' || c == '\0' || c == '\x1a'; });
  // No links but those of the source above: their quote decides whether they lead anywhere.
  for (const char* tag : {"@see", "@example", "@same"}) text = replaceAll(text, tag, "see");
  std::string harmless = text;
  for (char& c : harmless) {
    if (std::string_view("<>&\"'`$\\{}[]()=/|:;,#%!?*+~^").find(c) != std::string_view::npos)
      c = 'x';
  }
  const auto pages = pagesOf(text, "html.tmkt");
  for (const auto& [path, page] : pagesOf(harmless, "html.tmkt")) {
    const auto found = pages.find(path);
    if (found == pages.end()) continue;  // named after the text
    const bool isScript = path.ends_with(".js");
    test::demand(isScript ? templatesOf(found->second) == templatesOf(page)
                          : !path.ends_with(".html") || tagsOf(found->second) == tagsOf(page),
                 "markup that isn't the template's");
  }
  test::demand(frameOf(pagesOf(text, "json.tmkt").begin()->second) ==
                   frameOf(pagesOf(harmless, "json.tmkt").begin()->second),
               "a value that isn't the template's");
}
