// What the tests of the template engine share: a log that can be read and an invented link model.
#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/message_log.h"
#include "template/macro_table.h"

namespace tamrikon {

struct RecordingLog : MessageLog {
  void logMessage(const std::string& text) override { messages.push_back(text); }
  void report(const Diagnostic& diagnostic) override { messages.push_back(logLineOf(diagnostic)); }
  std::vector<std::string> messages;
};

/// Links are keys of `targets`; others are dead and warned of. "~" counts as written for "Home.".
struct FakeLinks : LinkResolver {
  explicit FakeLinks(MessageLog& messageLog) : log(messageLog) {}

  LinkTarget topicOf(std::string_view link) override {
    const std::string full =
        link.starts_with('~') ? "Home." + std::string(link.substr(1)) : std::string(link);
    const std::string canonical = find(full) == nullptr ? std::string(link) : full;
    const auto alias = aliases.find(canonical);
    return parseLink(alias == aliases.end() ? canonical : alias->second);
  }
  LinkTarget parseLink(std::string_view link) override {
    const LinkTarget* target = find(std::string(link));
    return target == nullptr ? LinkTarget() : *target;
  }
  NamedLink linkOf(TopicId id) override {
    const auto& [link, target] = *byId[static_cast<std::size_t>(id) - 1];
    const std::string_view name = target.member.empty() ? target.module : target.member;
    return {link, name, target.module, target.needsModule, topicOf(link)};
  }
  ModuleLists moduleLists(TopicId id) override {
    const std::string module(byId[static_cast<std::size_t>(id) - 1]->second.module);
    return {{}, std::make_shared<MacroList>(MacroList{{module + ".Run\rRun"}}), {}};
  }

  void add(const std::string& link, int helpId, bool needsModule = false) {
    const auto added = targets.try_emplace(link).first;
    byId.push_back(&*added);
    auto& [key, target] = *added;
    const std::string_view name = key;
    const std::size_t dot = name.find('.');
    const std::string_view member = dot == std::string_view::npos ? "" : name.substr(dot + 1);
    target = {TopicId(byId.size()), member, name.substr(0, dot), needsModule, helpId};
  }
  const LinkTarget* find(const std::string& link) {
    const auto found = targets.find(link);
    if (found != targets.end()) return &found->second;
    log.logMessage("Warning: dead " + link);
    return nullptr;
  }

  MessageLog& log;
  std::map<std::string, LinkTarget> targets;
  std::vector<const std::pair<const std::string, LinkTarget>*> byId;
  std::map<std::string, std::string> aliases;
};

/// `text` with "|" for CR, so that cases of several lines stay on one.
inline std::string lines(std::string text) {
  std::replace(text.begin(), text.end(), '|', '\r');
  return text;
}

struct Macros {
  Macros() { table.setLinkResolver(&links); }

  void set(std::string_view name, const std::string& text) {
    table.setMacroValue(name, lines(text));
  }
  void setList(std::string_view name, std::vector<std::string> items) {
    for (std::string& item : items) item = lines(item);
    table.setMacroValue(name, std::make_shared<MacroList>(MacroList{std::move(items)}));
  }
  /// The expansion of `text`, as the text of a template section, with "|" for CR.
  std::string expand(const std::string& text) {
    set("tamrik-test-body", text);
    std::string result = table.evaluateMacro("tamrik-test-body");
    std::replace(result.begin(), result.end(), '\r', '|');
    return result;
  }

  RecordingLog log;
  FakeLinks links{log};
  MacroTable table{log};
};

inline const std::string kConfig = "WARNING (config file): ";

inline std::vector<std::string> withPrefix(const std::string& prefix,
                                           std::vector<std::string> messages) {
  for (std::string& message : messages) message.insert(0, prefix);
  return messages;
}

/// The message about a wrong name that was written so.
inline std::string wrongName(const std::string& written) {
  return kConfig + "Wrong macro name " + written + ".";
}

}  // namespace tamrikon
