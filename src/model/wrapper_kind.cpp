#include "model/wrapper_kind.h"

namespace tamrikon {
namespace {

constexpr KindTraits kMethod = {"Smethod",
                                "",
                                ProcKind::procedure,
                                " method",
                                " Method",
                                "tamrik-method-body",
                                "CONT-METHODS-LINK-LIST"};
constexpr KindTraits kFunction = {"Smethod",
                                  "",
                                  ProcKind::procedure,
                                  " function",
                                  " Function",
                                  "tamrik-function-body",
                                  "CONT-FUNCTIONS-LINK-LIST"};
constexpr KindTraits kEvent = {"Sevent",
                               "",
                               ProcKind::procedure,
                               " event",
                               " Event",
                               "tamrik-event-body",
                               "CONT-EVENTS-LINK-LIST"};
constexpr KindTraits kGet = {"SpropGet",
                             "'get",
                             ProcKind::get,
                             " property",
                             " Property",
                             "tamrik-property-body",
                             "CONT-PROPS-LINK-LIST"};
constexpr KindTraits kLet = {"SpropLet",
                             "'let",
                             ProcKind::let,
                             " property",
                             " Property",
                             "tamrik-property-body",
                             "CONT-PROPS-LINK-LIST"};
constexpr KindTraits kSet = {"SpropSet",
                             "'set",
                             ProcKind::set,
                             " property",
                             " Property",
                             "tamrik-property-body",
                             "CONT-PROPS-LINK-LIST"};
constexpr KindTraits kVariable = {"Svariable",          "",          ProcKind::procedure,
                                  " variable",          " Variable", "tamrik-variable-body",
                                  "CONT-VARS-LINK-LIST"};
constexpr KindTraits kConstant = {"Sconstant",
                                  "",
                                  ProcKind::procedure,
                                  " constant",
                                  " Constant",
                                  "tamrik-constant-body",
                                  "CONT-CONSTANTS-LINK-LIST"};
constexpr KindTraits kStdModule = {"Smodule",
                                   "",
                                   ProcKind::procedure,
                                   " module",
                                   " Module",
                                   "tamrik-stdmodule-body",
                                   "CONT-STDMODULES-LINK-LIST"};
constexpr KindTraits kForm = {"Smodule",
                              "",
                              ProcKind::procedure,
                              " form",
                              " Form",
                              "tamrik-form-body",
                              "CONT-FORMS-LINK-LIST"};
constexpr KindTraits kObject = {"Smodule",
                                "",
                                ProcKind::procedure,
                                " object",
                                " Object",
                                "tamrik-object-body",
                                "CONT-OBJECTS-LINK-LIST"};

}  // namespace

bool isProperty(WrapperKind kind) {
  return kind == WrapperKind::propGet || kind == WrapperKind::propLet ||
         kind == WrapperKind::propSet;
}

const KindTraits& traitsOf(WrapperKind kind, ComponentType type) {
  switch (kind) {
    case WrapperKind::method: return isStandardModule(type) ? kFunction : kMethod;
    case WrapperKind::event: return kEvent;
    case WrapperKind::propGet: return kGet;
    case WrapperKind::propLet: return kLet;
    case WrapperKind::propSet: return kSet;
    case WrapperKind::variable: return kVariable;
    case WrapperKind::constant: return kConstant;
    case WrapperKind::module: break;
  }
  switch (moduleKindOf(type)) {
    case ModuleKind::standardModule: return kStdModule;
    case ModuleKind::form: return kForm;
    case ModuleKind::object: break;
  }
  return kObject;
}

}  // namespace tamrikon
