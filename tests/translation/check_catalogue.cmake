# Fails unless the template in the folder CATALOGUES holds just the texts that the source tree SOURCES
# marks for translation, and every catalogue there translates just the texts of the template.
cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/../../po/catalogues.cmake")

# complain(WHAT DETAILS)
function(complain what details)
  message(FATAL_ERROR "${what}. Bring the catalogues up to the sources with the target po-update "
                      "and translate what is missing.\n${details}")
endfunction()

# complain_if_lacking(OFFERED ASKED WHAT options...)
#   Fails where the file OFFERED lacks a text of the file ASKED.
function(complain_if_lacking offered asked what)
  execute_process(COMMAND "${MSGCMP_EXECUTABLE}" ${ARGN} "${offered}" "${asked}"
                  RESULT_VARIABLE result ERROR_VARIABLE complaint)
  if(NOT result EQUAL 0)
    complain("${what}" "${complaint}")
  endif()
endfunction()

# complain_if_any(WHAT COMMAND...)
#   Fails where the command, or a pipe of commands, lists any text.
function(complain_if_any what)
  execute_process(${ARGN} OUTPUT_VARIABLE texts COMMAND_ERROR_IS_FATAL ANY)
  if(NOT texts STREQUAL "")
    complain("${what}" "${texts}")
  endif()
endfunction()

# check_template(TEMPLATE FRESH)
function(check_template template fresh)
  set(texts_only --use-untranslated --use-fuzzy)
  complain_if_lacking("${template}" "${fresh}" "The template lacks a text of the sources"
                      ${texts_only})
  complain_if_lacking("${fresh}" "${template}" "The template has a text that no source has"
                      ${texts_only})
endfunction()

# check_catalogue(CATALOGUE TEMPLATE)
function(check_catalogue catalogue template)
  cmake_path(GET catalogue FILENAME name)
  complain_if_lacking("${catalogue}" "${template}" "${name} lacks a translation")
  complain_if_lacking("${template}" "${catalogue}" "${name} has a text that no source has"
                      --use-untranslated --use-fuzzy)
  complain_if_any("${name} has an obsolete text"
                  COMMAND "${MSGATTRIB_EXECUTABLE}" --only-obsolete "${catalogue}")
  # The texts are put together with names and numbers: their ends must stay as they are.
  foreach(end IN ITEMS "^ " " $" "[:=(,] *$")
    complain_if_any("${name} drops the end of a text that others are added to"
      COMMAND "${MSGGREP_EXECUTABLE}" --msgid "--regexp=${end}" "${catalogue}"
      COMMAND "${MSGGREP_EXECUTABLE}" --invert-match --msgstr "--regexp=${end}")
    complain_if_any("${name} adds an end to a text that stands alone"
      COMMAND "${MSGGREP_EXECUTABLE}" --msgstr "--regexp=${end}" "${catalogue}"
      COMMAND "${MSGGREP_EXECUTABLE}" --invert-match --msgid "--regexp=${end}")
  endforeach()
endfunction()

set(ENV{LC_ALL} C.UTF-8)
file(MAKE_DIRECTORY "${SCRATCH}")
catalogue_extract("${SOURCES}" "${SCRATCH}/fresh.pot")
check_template("${CATALOGUES}/Gorm.pot" "${SCRATCH}/fresh.pot")

file(GLOB catalogues "${CATALOGUES}/*.po")
if(NOT catalogues)
  message(FATAL_ERROR "There is no catalogue in ${CATALOGUES}")
endif()
foreach(catalogue IN LISTS catalogues)
  check_catalogue("${catalogue}" "${CATALOGUES}/Gorm.pot")
endforeach()
