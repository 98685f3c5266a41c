# Fails when a language file lacks a text the program declares, holds one not yet translated, or translates a
# template with other "%d"/"%s" fields than the English one (the filled-in text would read the wrong values).
# The committed files are never touched: each is gathered afresh from the sources into a copy, as
# update_translations would, and the copy is compiled.
#
# cmake -D LUPDATE=... -D LRELEASE=... -D SOURCES=<list file> -D OPTIONS=<;-list> -D WORK=<dir>
#       -D TS_FILES=<;-list> -P TranslationsFinished.cmake

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")
set(failures "")

# The "%" fields of `text`, in order.
function(fields_of text out)
    string(REGEX MATCHALL "%[-+ #0-9.]*[a-zA-Z]" found "${text}")
    set(${out} "${found}" PARENT_SCOPE)
endfunction()

foreach(ts IN LISTS TS_FILES)
    get_filename_component(name "${ts}" NAME)
    set(copy "${WORK}/${name}")
    file(COPY_FILE "${ts}" "${copy}")
    execute_process(COMMAND "${LUPDATE}" ${OPTIONS} "@${SOURCES}" -ts "${copy}"
        OUTPUT_VARIABLE gathered ERROR_VARIABLE gathered RESULT_VARIABLE status)
    if(NOT status EQUAL 0 OR NOT gathered MATCHES "\\(([0-9]+) new and")
        string(APPEND failures "${name}: lupdate failed:\n${gathered}\n")
        continue()
    endif()
    if(NOT CMAKE_MATCH_1 EQUAL 0)
        string(APPEND failures "${name}: ${CMAKE_MATCH_1} declared text(s) missing\n")
    endif()

    execute_process(COMMAND "${LRELEASE}" "${copy}" -qm "${WORK}/${name}.qm"
        OUTPUT_VARIABLE compiled ERROR_VARIABLE compiled RESULT_VARIABLE status)
    if(NOT status EQUAL 0 OR NOT compiled MATCHES "\\(([0-9]+) finished and ([0-9]+) unfinished\\)")
        string(APPEND failures "${name}: lrelease failed:\n${compiled}\n")
        continue()
    endif()
    if(NOT CMAKE_MATCH_2 EQUAL 0)
        string(APPEND failures "${name}: ${CMAKE_MATCH_2} unfinished translation(s)\n")
    endif()
    # Entries with no translation at all are not counted as unfinished but reported apart.
    if(compiled MATCHES "Ignored ([0-9]+) untranslated")
        string(APPEND failures "${name}: ${CMAKE_MATCH_1} untranslated text(s)\n")
    endif()

    # Sources and translations are escaped XML, so neither holds a "<" of its own. Semicolons and brackets would
    # cut or join CMake's list items, and only the "%" fields are compared, so they are set aside first.
    file(READ "${copy}" entries)
    string(REGEX REPLACE "[][;]" "_" entries "${entries}")
    string(REGEX MATCHALL "<source>[^<]*</source>[ \n]*<translation>[^<]*</translation>" pairs "${entries}")
    foreach(pair IN LISTS pairs)
        string(REGEX REPLACE "^<source>([^<]*)</source>.*$" "\\1" source "${pair}")
        string(REGEX REPLACE "^.*<translation>([^<]*)</translation>$" "\\1" translation "${pair}")
        fields_of("${source}" expected)
        fields_of("${translation}" actual)
        if(NOT expected STREQUAL actual)
            string(APPEND failures "${name}: \"${source}\" has fields [${expected}] but [${actual}] translated\n")
        endif()
    endforeach()
endforeach()

if(failures)
    message(FATAL_ERROR "${failures}")
endif()
