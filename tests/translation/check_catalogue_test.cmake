# The check of the catalogues lets good ones pass and finds each fault by its name: it is run on a
# source tree of one file with two texts, with a template and a catalogue of each kind.
cmake_minimum_required(VERSION 3.25)

set(header "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n")
set(error_text "msgid \"Errore: \"\n")
set(wall_text "msgid \"Paratia\"\n")
set(untranslated "msgstr \"\"\n")
set(good_template "${header}${error_text}${untranslated}${wall_text}${untranslated}")
set(good_error "${error_text}msgstr \"Error: \"\n")
set(good_wall "${wall_text}msgstr \"Wall\"\n")
set(other_text "msgid \"Falda\"\n")

# expect(FAULT TEMPLATE CATALOGUE)
#   Runs the check on these two and wants it to complain of FAULT, or to pass where FAULT is empty.
function(expect fault template catalogue)
  set(tree "${SCRATCH}/tree")
  file(REMOVE_RECURSE "${tree}")
  file(WRITE "${tree}/src/wall.cpp"
       "const char* error() { return iTranslate(\"Errore: \"); }\n"
       "constexpr auto label = quillet::translatable(\"Para\" \"tia\");\n"
       "constexpr auto unmarked = \"Tirante\";\n")
  file(WRITE "${tree}/po/Gorm.pot" "${template}")
  file(WRITE "${tree}/po/en.po" "${catalogue}")
  execute_process(
    COMMAND "${CMAKE_COMMAND}" "-DSOURCES=${tree}" "-DCATALOGUES=${tree}/po"
            "-DSCRATCH=${SCRATCH}"
            "-DXGETTEXT_EXECUTABLE=${XGETTEXT_EXECUTABLE}"
            "-DMSGATTRIB_EXECUTABLE=${MSGATTRIB_EXECUTABLE}"
            "-DMSGCMP_EXECUTABLE=${MSGCMP_EXECUTABLE}"
            "-DMSGGREP_EXECUTABLE=${MSGGREP_EXECUTABLE}"
            -P "${CMAKE_CURRENT_LIST_DIR}/check_catalogue.cmake"
    RESULT_VARIABLE result ERROR_VARIABLE complaint OUTPUT_VARIABLE output)
  # The message comes broken into lines.
  string(REGEX REPLACE "[ \n]+" " " complaint "${complaint}")
  if(fault STREQUAL "" AND NOT result EQUAL 0)
    message(SEND_ERROR "Good catalogues are refused: ${complaint}")
  elseif(NOT fault STREQUAL "" AND (result EQUAL 0 OR NOT complaint MATCHES "${fault}"))
    message(SEND_ERROR "Not found: ${fault}. The check says: ${complaint}")
  endif()
endfunction()

expect("" "${good_template}" "${header}${good_error}${good_wall}")
expect("" "${header}#: src/wall.cpp:99\n${wall_text}${untranslated}${error_text}${untranslated}"
       "${header}${good_wall}${good_error}")

expect("template lacks a text" "${header}${error_text}${untranslated}" "${header}${good_error}")
expect("template has a text that no source has" "${good_template}${other_text}${untranslated}"
       "${header}${good_error}${good_wall}${other_text}msgstr \"Water table\"\n")

expect("en.po lacks a translation.*used but not defined" "${good_template}"
       "${header}${good_error}")
expect("en.po lacks a translation.*untranslated" "${good_template}"
       "${header}${good_error}${wall_text}${untranslated}")
expect("en.po lacks a translation.*reviewed" "${good_template}"
       "${header}${good_error}#, fuzzy\n${good_wall}")
expect("en.po has a text that no source has" "${good_template}"
       "${header}${good_error}${good_wall}${other_text}msgstr \"Water table\"\n")
expect("en.po has an obsolete text" "${good_template}"
       "${header}${good_error}${good_wall}#~ msgid \"Falda\"\n#~ msgstr \"Water table\"\n")

expect("en.po drops the end of a text" "${good_template}"
       "${header}${error_text}msgstr \"Error:\"\n${good_wall}")
expect("en.po drops the end of a text" "${good_template}"
       "${header}${error_text}msgstr \"Error \"\n${good_wall}")
expect("en.po adds an end to a text" "${good_template}"
       "${header}${good_error}${wall_text}msgstr \"Wall:\"\n")
expect("en.po adds an end to a text" "${good_template}"
       "${header}${good_error}${wall_text}msgstr \" Wall\"\n")
