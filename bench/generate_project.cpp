// Writes a large Visual Basic project for the benchmark of a compile: the same arguments give the
// same bytes. The names, links and comments are invented, the proportions are those of real code.

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

namespace {

enum class ModuleKind { standard, object, form };
enum class MemberKind { event, constant, variable, declare, sub, function, property, readOnly };

constexpr std::array<std::string_view, 16> kVerbs{
    "Load", "Save",  "Find",  "Count", "Move", "Draw",   "Print", "Check",
    "Open", "Close", "Merge", "Split", "Sort", "Format", "Send",  "Update"};
constexpr std::array<std::string_view, 25> kNouns{
    "Order",   "Invoice", "Article", "Price",  "Customer", "Address", "Letter",
    "Payment", "Account", "Window",  "Report", "Column",   "Row",     "Picture",
    "Filter",  "Setting", "User",    "Ticket", "Shelf",    "Label",   "Route",
    "Driver",  "Carrier", "Parcel",  "Date"};
constexpr std::array<std::string_view, 5> kTypes{"Long", "String", "Boolean", "Currency", "Date"};

struct Module {
  std::string name;
  ModuleKind kind = ModuleKind::standard;
  int number = 0;
  int members = 0;
};

/// A number that looks like chance and depends on its arguments alone.
std::uint32_t mix(int a, int b) {
  std::uint32_t h = static_cast<std::uint32_t>(a) * 2654435761U;
  h ^= static_cast<std::uint32_t>(b) * 2246822519U;
  h ^= h >> 15;
  h *= 3266489917U;
  return h ^ (h >> 13);
}

int pick(int a, int b, std::size_t count) {
  return static_cast<int>(mix(a, b) % static_cast<std::uint32_t>(count));
}

/// Unique within a module; across the modules a name comes back now and then, as Load and Save do.
std::string memberName(const Module& module, int index) {
  const auto verb = static_cast<std::size_t>(index) % kVerbs.size();
  const auto noun =
      (static_cast<std::size_t>(index) / kVerbs.size() + static_cast<std::size_t>(module.number)) %
      kNouns.size();
  return std::string(kVerbs[verb]) + std::string(kNouns[noun]) + std::to_string(module.number / 40);
}

MemberKind memberKind(const Module& module, int index) {
  using enum MemberKind;
  const int share = index * 100 / module.members;
  if (module.kind == ModuleKind::standard) {
    if (share < 15) return constant;
    if (share < 25) return variable;
    if (share < 32) return declare;
    return index % 3 == 0 ? sub : function;
  }
  if (share < 8) return event;
  if (share < 14) return constant;
  if (share < 25) return variable;
  constexpr std::array<MemberKind, 6> kinds{property, sub, function, readOnly, sub, function};
  return kinds[static_cast<std::size_t>(index) % kinds.size()];
}

std::vector<Module> planModules(int members) {
  std::vector<Module> modules;
  for (int left = members, number = 0; left > 0; ++number) {
    Module module;
    module.number = number;
    module.members = std::min(left, 50 + pick(number, 1, 51));
    left -= module.members;
    constexpr std::array<ModuleKind, 6> kinds{ModuleKind::object, ModuleKind::standard,
                                              ModuleKind::object, ModuleKind::form,
                                              ModuleKind::object, ModuleKind::standard};
    module.kind = kinds[static_cast<std::size_t>(number) % kinds.size()];
    constexpr std::array<std::string_view, 3> prefixes{"mod", "cls", "frm"};
    module.name = std::string(prefixes[static_cast<std::size_t>(module.kind)]) +
                  std::string(kNouns[static_cast<std::size_t>(number) % kNouns.size()]) +
                  std::to_string(number);
    modules.push_back(std::move(module));
  }
  return modules;
}

/// The source of one module.
class ModuleText {
 public:
  ModuleText(const std::vector<Module>& modules, const Module& module)
      : modules_(modules), module_(module) {}

  std::string compose() {
    head();
    for (int i = 0; i < module_.members; ++i) {
      const MemberKind kind = memberKind(module_, i);
      comment(i, kind);
      declaration(i, kind);
    }
    return std::move(text_);
  }

 private:
  void line(std::string_view text) { text_.append(text).append("\r\n"); }

  void head() {
    if (module_.kind == ModuleKind::object) {
      line("VERSION 1.0 CLASS");
      line("BEGIN");
      line("  MultiUse = -1  'True");
      line("END");
    } else if (module_.kind == ModuleKind::form) {
      line("VERSION 5.00");
      line("Begin VB.Form " + module_.name + " ");
      line("   Caption         =   \"" + module_.name + "\"");
      line("   ClientHeight    =   3195");
      line("   ClientWidth     =   4680");
      for (int i = 0; i < 12; ++i) {
        line("   Begin VB.TextBox txtField" + std::to_string(i) + " ");
        line("      Height          =   315");
        line("      Left            =   240");
        line("      Top             =   " + std::to_string(120 + 360 * i));
        line("      Width           =   1815");
        line("   End");
      }
      line("End");
    }
    line("Attribute VB_Name = \"" + module_.name + "\"");
    if (module_.kind != ModuleKind::standard) {
      line("Attribute VB_GlobalNameSpace = False");
      line("Attribute VB_Creatable = False");
      line("Attribute VB_PredeclaredId = False");
      line("Attribute VB_Exposed = False");
    }
    line("'**");
    line("' Everything about " + module_.name + ", the " + std::to_string(module_.number + 1) +
         ". module of this project.");
    line("' @see    ." + memberName(module_, 0));
    line("' @author A. Writer");
    line("' @rem    It was made to measure how long a compile takes.");
    line("Option Explicit");
    line("");
  }

  int argumentCount(int index) const { return 1 + pick(module_.number, index, 3); }

  std::string argumentName(int index, int argument) const {
    return "arg" + std::string(kNouns[static_cast<std::size_t>(
                       pick(index, argument, kNouns.size() / 3) * 3 + argument)]);
  }

  static bool hasArguments(MemberKind kind) {
    return kind == MemberKind::event || kind == MemberKind::declare || kind == MemberKind::sub ||
           kind == MemberKind::function || kind == MemberKind::property;
  }

  void comment(int index, MemberKind kind) {
    const std::string name = memberName(module_, index);
    line("'**");
    line("' Takes care of " + name + ": what it is worth, where it goes & who <asks> for it.");
    if (index % 2 == 0) {
      line("' The \"usual\" case needs no more than that; the others are told in the remarks.");
    }
    if (hasArguments(kind)) {
      for (int i = 0; i < argumentCount(index); ++i) {
        line("' @param " + argumentName(index, i) + " The " + std::to_string(i + 1) +
             ". value that it works on.");
      }
      if (index % 6 == 0) {
        const std::string set = "' @set   " + argumentName(index, 0);
        line(set + " modeFirst  0 Begins at the front.");
        line(set + " modeMiddle 1 Begins in the middle.");
        line(set + " modeLast   2 Begins at the end.");
      }
    }
    if (kind == MemberKind::function || kind == MemberKind::declare) {
      line("' @return What was found, or its default if there is nothing.");
    }
    line("' @see   ." + memberName(module_, (index * 5 + 3) % module_.members));
    const Module& other =
        modules_[static_cast<std::size_t>(pick(module_.number, index + 1000, modules_.size()))];
    line("' @see   " + other.name + "." +
         memberName(other, pick(index, module_.number, static_cast<std::size_t>(other.members))) +
         (index % 4 == 0 ? " The other side of it" : ""));
    line("' @rem   Nothing happens twice: a second call finds what the first one left");
    line("'        and comes back at once.");
  }

  std::string arguments(int index) const {
    std::string list = "(";
    for (int i = 0; i < argumentCount(index); ++i) {
      if (i > 0) list += ", ";
      if (i == 2) list += "Optional ";
      list += "ByVal " + argumentName(index, i) + " As " + type(index, i);
    }
    return list + ")";
  }

  std::string type(int index, int argument) const {
    return std::string(kTypes[static_cast<std::size_t>(pick(index, argument + 7, kTypes.size()))]);
  }

  void declaration(int index, MemberKind kind) {
    const std::string name = memberName(module_, index);
    switch (kind) {
      case MemberKind::event:
        line("Public Event " + name + arguments(index));
        line("");
        break;
      case MemberKind::constant:
        line((module_.kind == ModuleKind::standard ? "Public Const " : "Private Const ") + name +
             " As Long = " + std::to_string(index * 11));
        line("");
        break;
      case MemberKind::variable:
        line((index % 2 == 0 ? "Public " : "Private ") + name + " As " + type(index, 0));
        line("");
        break;
      case MemberKind::declare:
        line("Public Declare Function " + name + " Lib \"large.dll\" " + arguments(index) +
             " As Long");
        line("");
        break;
      case MemberKind::sub: procedure(index, "Sub", name + arguments(index)); break;
      case MemberKind::function:
        procedure(index, "Function", name + arguments(index) + " As " + type(index, 5));
        break;
      case MemberKind::property:
        procedure(index, "Property", "Get " + name + "() As " + type(index, 0));
        procedure(
            index, "Property",
            "Let " + name + "(ByVal " + argumentName(index, 0) + " As " + type(index, 0) + ")");
        break;
      case MemberKind::readOnly:
        procedure(index, "Property", "Get " + name + "() As " + type(index, 0));
        break;
    }
  }

  void procedure(int index, const std::string& word, const std::string& rest) {
    constexpr std::array<std::string_view, 4> scopes{"Public ", "Friend ", "Public ", "Private "};
    // A standard module has no friends.
    const std::string_view scope = module_.kind == ModuleKind::standard
                                       ? scopes[static_cast<std::size_t>(index) % 2 * 2]
                                       : scopes[static_cast<std::size_t>(index) % 4];
    line(std::string(scope) + word + " " + rest);
    line("    Dim i As Long");
    line("");
    const int steps = 2 + pick(module_.number, index + 5, 8);
    for (int i = 0; i < steps; ++i) {
      line("    If i < " + std::to_string(i * 3) + " Then i = i + " + std::to_string(i) +
           "  ' step " + std::to_string(i));
    }
    line("    Debug.Print \"" + module_.name + "\", i");
    line("End " + word);
    line("");
  }

  const std::vector<Module>& modules_;
  const Module& module_;
  std::string text_;
};

constexpr std::array<std::string_view, 3> kExtensions{".bas", ".cls", ".frm"};

std::string fileName(const Module& module) {
  return module.name + std::string(kExtensions[static_cast<std::size_t>(module.kind)]);
}

std::string composeProject(const std::vector<Module>& modules) {
  std::string text = "Type=Exe\r\n";
  for (const Module& module : modules) {
    switch (module.kind) {
      case ModuleKind::standard:
        text += "Module=" + module.name + "; Source\\" + fileName(module);
        break;
      case ModuleKind::object:
        text += "Class=" + module.name + "; Source\\" + fileName(module);
        break;
      case ModuleKind::form: text += "Form=Source\\" + fileName(module); break;
    }
    text += "\r\n";
  }
  return text + "Startup=\"(None)\"\r\nName=\"Large\"\r\nTitle=\"Large\"\r\n";
}

/// Everything is documented, with its source. Paths have their defaults.
std::string composeSettings(const std::vector<Module>& modules) {
  std::string text = "#Tamrikon Project Settings#";
  for (const std::string_view key :
       {"comNonCommented", "comPublic", "comPrivate", "comFriend", "comEvent", "comMethod",
        "comStdModule", "comObject", "comForm", "comProperty", "comVariable", "comConstant",
        "insertSourceGlobal"}) {
    text.append("\r\n").append(key).append(" = 1");
  }
  text += "\r\ntitlePageText = A large project";
  for (const Module& module : modules) text += "\r\ncomModules = " + module.name;
  return text;
}

bool writeFile(const std::filesystem::path& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  file.write(text.data(), static_cast<std::streamsize>(text.size()));
  file.close();
  if (!file) std::cerr << "generate_project: cannot write " << path.string() << '\n';
  return !file.fail();
}

bool writeProject(int members, const std::filesystem::path& folder) {
  std::error_code failure;
  std::filesystem::create_directories(folder / "Source", failure);
  if (failure) {
    std::cerr << "generate_project: cannot make " << folder.string() << ": " << failure.message()
              << '\n';
    return false;
  }
  const std::vector<Module> modules = planModules(members);
  for (const Module& module : modules) {
    if (!writeFile(folder / "Source" / fileName(module), ModuleText(modules, module).compose())) {
      return false;
    }
  }
  return writeFile(folder / "Large.vbp", composeProject(modules)) &&
         writeFile(folder / "Large.tamrik", composeSettings(modules));
}

}  // namespace

int main(int argc, char** argv) {
  int members = 0;
  if (argc == 3) {
    const std::string_view number = argv[1];
    const auto [end, error] =
        std::from_chars(number.data(), number.data() + number.size(), members);
    if (error != std::errc() || end != number.data() + number.size()) members = 0;
  }
  if (members < 1) {
    std::cerr << "usage: generate_project MEMBERS FOLDER\n";
    return 2;
  }
  return writeProject(members, argv[2]) ? 0 : 1;
}
