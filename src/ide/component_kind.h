// The types of a project's components, and the few kinds that the rest of the program knows of
// them.
#pragma once

namespace tamrikon {

enum class ComponentType {
  standardModule = 1,
  classModule = 2,
  designerForm = 3,
  resourceFile = 4,
  form = 5,
  mdiForm = 6,
  propertyPage = 7,
  userControl = 8,
  userDocument = 9,
  relatedDocument = 10,
  designer = 11,
};

/// How a module is documented, in the order in which modules follow each other.
enum class ModuleKind { form, object, standardModule };

constexpr ModuleKind moduleKindOf(ComponentType type) {
  switch (type) {
    case ComponentType::standardModule: return ModuleKind::standardModule;
    case ComponentType::designerForm:
    case ComponentType::form:
    case ComponentType::mdiForm: return ModuleKind::form;
    default: return ModuleKind::object;
  }
}

constexpr bool isStandardModule(ComponentType type) {
  return type == ComponentType::standardModule;
}

/// Whether components of the type hold code; the others are files for the compiler or for people.
constexpr bool hasCode(ComponentType type) {
  return type != ComponentType::resourceFile && type != ComponentType::relatedDocument;
}

/// Whether the component's file holds the fonts of controls.
constexpr bool hasControls(ComponentType type) {
  return type == ComponentType::form || type == ComponentType::userControl ||
         type == ComponentType::propertyPage || type == ComponentType::userDocument;
}

}  // namespace tamrikon
