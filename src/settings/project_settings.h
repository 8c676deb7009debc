// The settings of the active project, as the rest of the program reads them.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/keyed_list.h"
#include "ide/ide.h"

namespace tamrikon {

/// Every field always holds a value. The names are the keys of the settings file.
struct ProjectSettings {
  static constexpr std::size_t kUserTags = 5;

  // What a generated comment gets.
  bool addSee = true;
  bool addParam = true;
  bool addReturn = true;
  bool addDescription = true;
  bool addRem = true;
  bool addSame = false;
  bool addAuthor = false;
  bool addRevision = false;
  bool addVersion = false;
  bool addIncludeSource = false;

  // User tags 1 to 5; [0] is tag 1.
  std::array<bool, kUserTags> addUser{};
  std::array<std::string, kUserTags> userName{"user1", "user2", "user3", "user4", "user5"};
  std::array<std::string, kUserTags> userDefault{};

  // What a compile documents.
  bool comNonCommented = true;
  bool comPublic = true;
  bool comPrivate = false;
  bool comFriend = false;
  bool comEvent = true;
  bool comMethod = true;
  bool comStdModule = false;
  bool comObject = true;
  bool comForm = true;
  bool comProperty = true;
  bool comVariable = false;
  bool comConstant = false;
  bool comContextID = false;
  bool comWriteDescription = false;

  std::int16_t indentMode = 0;          // 1: leading blanks of comment lines are ignored
  std::int16_t addingMode = 0;          // kept, and used by nothing
  std::int16_t insertSourceGlobal = 0;  // 0 never, 1 always, 2 where @includesource asks for it
  std::int16_t autoUpdateParams = 0;
  std::int16_t wordWrapLength = 80;  // negative: switched off, the number is remembered
  std::int16_t autoInsertEOL = 0;

  std::string titlePageText;  // lines divided by CR LF
  std::string outputPath;
  std::string templateFolder;
  std::string templatePath;  // the full path

  KeyedList<CodeModule*> comModules;  // the modules to document, by name

  /// Whether a module of that kind gets a page.
  bool wantsModule(ModuleKind kind) const {
    switch (kind) {
      case ModuleKind::standardModule: return comStdModule;
      case ModuleKind::form: return comForm;
      case ModuleKind::object: break;
    }
    return comObject;
  }
};

}  // namespace tamrikon
