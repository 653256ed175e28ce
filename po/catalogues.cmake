# How the texts get from the sources into the template and the template into the catalogues: called
# by the targets `pot` and `po-update` and by the tests of the catalogues.

# catalogue_extract(SOURCES TEMPLATE)
#   Writes the file TEMPLATE with every text that the source tree SOURCES marks for translation. It
#   holds no date, no line number and no machine's path, so that it changes only when a text does.
function(catalogue_extract sources template)
  set(files "")
  foreach(folder IN ITEMS include src platform host)
    file(GLOB_RECURSE found RELATIVE "${sources}"
         "${sources}/${folder}/*.h" "${sources}/${folder}/*.cpp")
    list(APPEND files ${found})
  endforeach()
  list(SORT files)
  list(JOIN files "\n" lines)
  file(WRITE "${template}.files" "${lines}\n")
  catalogue_run("${XGETTEXT_EXECUTABLE}" --language=C++ --from-code=UTF-8 --force-po
    --keyword --keyword=iTranslate --keyword=translatable
    --sort-by-file --add-location=file --no-wrap
    --directory=${sources} --files-from=${template}.files --output=${template}.body)
  file(READ "${template}.body" body)
  file(REMOVE "${template}.files" "${template}.body")
  # The tool's own header, which ends at the first empty line, gives way to one without dates.
  string(FIND "${body}" "\n\n" header_end)
  if(header_end EQUAL -1)
    set(body "")
  else()
    string(SUBSTRING "${body}" ${header_end} -1 body)
    string(STRIP "${body}" body)
    string(PREPEND body "\n")
    string(APPEND body "\n")
  endif()
  file(WRITE "${template}"
"# Ostrel: the texts shown to people, in Italian.
# This file is distributed under the same license as Ostrel.
msgid \"\"
msgstr \"\"
\"Project-Id-Version: Ostrel\\n\"
\"Report-Msgid-Bugs-To: \\n\"
\"Language: \\n\"
\"MIME-Version: 1.0\\n\"
\"Content-Type: text/plain; charset=UTF-8\\n\"
\"Content-Transfer-Encoding: 8bit\\n\"
${body}")
endfunction()

# catalogue_merge(TEMPLATE CATALOGUE MEMORY MERGED)
#   Writes the file MERGED, which is CATALOGUE brought to the texts of TEMPLATE: it keeps what is
#   translated, takes over what the file MEMORY has (if there is one), leaves the rest empty and drops
#   what is no longer asked for.
function(catalogue_merge template catalogue memory merged)
  set(compendium "")
  if(EXISTS "${memory}")
    set(compendium --compendium=${memory})
  endif()
  catalogue_run("${GETTEXT_MSGMERGE_EXECUTABLE}" --quiet --force-po --no-fuzzy-matching
    --add-location=file --no-wrap ${compendium}
    --output-file=${merged} "${catalogue}" "${template}")
  catalogue_run("${MSGATTRIB_EXECUTABLE}" --no-obsolete --force-po --no-wrap
    --output-file=${merged} "${merged}")
endfunction()

# catalogue_run(COMMAND...)
#   Runs a gettext tool in a locale that has all characters and stops where it fails.
function(catalogue_run)
  execute_process(COMMAND "${CMAKE_COMMAND}" -E env LC_ALL=C.UTF-8 ${ARGN}
                  RESULT_VARIABLE result ERROR_VARIABLE complaint)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${complaint}")
  elseif(complaint)
    message(STATUS "${complaint}")
  endif()
endfunction()
