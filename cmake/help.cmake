# The help file of the workbench and the add-in, made from the pages of the manual. It is left out
# where the tools aren't.
find_program(TAMRIKON_CHMCMD chmcmd)
find_program(TAMRIKON_PYTHON python3 PATHS /usr/bin NO_DEFAULT_PATH)  # that of the system's packages
set(markdown_is_missing 1)
if(TAMRIKON_PYTHON)
  execute_process(COMMAND ${TAMRIKON_PYTHON} -c "import markdown" RESULT_VARIABLE markdown_is_missing
                  OUTPUT_QUIET ERROR_QUIET)
endif()
if(TAMRIKON_CHMCMD AND NOT markdown_is_missing)
  set(help_file ${PROJECT_BINARY_DIR}/help/tamrikon.chm)
  set(help_scripts ${PROJECT_SOURCE_DIR}/scripts/build_help.py
      ${PROJECT_SOURCE_DIR}/scripts/manual_pages.py)
  file(GLOB manual_files CONFIGURE_DEPENDS docs/*.md docs/screenshots/*.png)
  add_custom_command(OUTPUT ${help_file}
    COMMAND ${TAMRIKON_PYTHON} -B ${PROJECT_SOURCE_DIR}/scripts/build_help.py ${help_file}
    DEPENDS ${help_scripts} ${manual_files} VERBATIM)
  add_custom_target(help_file ALL DEPENDS ${help_file})
  install(FILES ${help_file} DESTINATION ${CMAKE_INSTALL_DATADIR}/tamrikon COMPONENT tamrikon)
else()
  message(STATUS "The help file is left out: it needs chmcmd and Python's markdown (Debian: "
                 "fp-utils, python3-markdown)")
endif()
