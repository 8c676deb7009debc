#include "comments/skeleton.h"

#include <algorithm>
#include <iterator>

#include "base/utf8.h"

namespace tamrikon {
namespace {

constexpr std::size_t kTagWidth = 14;

void addCommonTags(CommentLines& lines, const ProjectSettings& settings) {
  if (settings.addAuthor) lines.push_back(tagLine("@author"));
  if (settings.addRevision) lines.push_back(tagLine("@revision"));
  if (settings.addVersion) lines.push_back(tagLine("@version"));
  if (settings.addIncludeSource) lines.push_back(tagLine("@includesource", "yes"));
  for (std::size_t i = 0; i < ProjectSettings::kUserTags; ++i) {
    if (!settings.addUser[i]) continue;
    lines.push_back(tagLine("@" + settings.userName[i], settings.userDefault[i]));
  }
}

}  // namespace

CommentLines procedureSkeleton(std::string_view description, const ProcDefinition& definition,
                               ArgumentStyle style, const ProjectSettings& settings) {
  CommentLines lines;
  lines.emplace_back(settings.addDescription ? description : std::string_view());
  if (settings.addParam) {
    for (const argument& arg : definition.args) lines.push_back(argumentLine(arg, style));
  }
  if (settings.addReturn && !definition.returns.empty()) {
    lines.push_back(tagLine("@return", definition.returns) + ".");
  }
  if (settings.addSee) lines.push_back(tagLine("@see"));
  if (settings.addRem) lines.push_back(tagLine("@rem"));
  if (settings.addSame) lines.push_back(tagLine("@same"));
  addCommonTags(lines, settings);
  return lines;
}

CommentLines variableSkeleton() {
  return {"", "@see"};
}

CommentLines moduleSkeleton(std::string_view description, const ProjectSettings& settings) {
  return {std::string(settings.addDescription ? description : std::string_view()), "@see"};
}

LastArgument lastArgument(const ProcDefinition& definition, const ProjectSettings& settings) {
  LastArgument result{definition.args.size(), std::nullopt};
  if (settings.addParam && !definition.args.empty()) {
    result.line = argumentLine(definition.args.back(), ArgumentStyle::plain);
  }
  return result;
}

std::string argumentLine(const argument& arg, ArgumentStyle style) {
  std::string line = tagLine("@param", arg.aName) + " ";
  if (style == ArgumentStyle::withPresence) line += arg.aOptional ? "Optional. " : "Required. ";
  if (arg.pArray) {
    line += "ParamArray, comma-delimited list of Variant values";
  } else {
    line += arg.aType;
    if (isObjectType(arg.aType)) line += " object";
  }
  line += ".";
  if (!arg.aDefault.empty()) line += " Default value is " + arg.aDefault + ".";
  return line;
}

std::string tagLine(std::string_view tag, std::string_view text) {
  std::string line(tag);
  const std::size_t width = codePointCount(tag);
  line.append(width < kTagWidth ? kTagWidth - width : 1, ' ');
  line += text;
  return line;
}

bool isObjectType(std::string_view name) {
  constexpr std::string_view kIntrinsic[] = {"Boolean", "Byte",    "Currency", "Date",
                                             "Double",  "Integer", "Long",     "Single",
                                             "String",  "Variant", "Error"};
  return std::find(std::begin(kIntrinsic), std::end(kIntrinsic), name) == std::end(kIntrinsic);
}

}  // namespace tamrikon
