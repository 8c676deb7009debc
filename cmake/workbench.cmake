# Whether the workbench is built: only where Qt is, as all else does without.
set(TAMRIKON_HAS_WORKBENCH OFF)
if(TAMRIKON_WORKBENCH)
  set(qt_components Widgets)
  if(TAMRIKON_TESTS)
    list(APPEND qt_components Test)
  endif()
  find_package(Qt6 6.2 COMPONENTS ${qt_components} QUIET)
  set(TAMRIKON_HAS_WORKBENCH ${Qt6_FOUND})
endif()
if(NOT TAMRIKON_HAS_WORKBENCH)
  message(STATUS "The workbench is left out: it needs Qt 6 (Debian: qt6-base-dev) and "
                 "TAMRIKON_WORKBENCH=ON")
endif()
