# The languages of the dialog, as resources/languages.tsv lists them: KQ_LANGUAGES holds the codes of their catalogs, and
# KQ_LANGUAGE_ROWS a row {"zh-cn", "chs"}, for each.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/languages.tsv)
file(READ ${PROJECT_SOURCE_DIR}/resources/languages.tsv table)
# Read as a whole: a line as such may hold what CMake takes for a list.
string(REGEX MATCHALL "\n[a-z]+\t[a-z]+_[A-Z]+" lines "${table}")
set(KQ_LANGUAGES "")
set(KQ_LANGUAGE_ROWS "")
foreach(line IN LISTS lines)
    string(REGEX MATCH "([a-z]+)\t([a-z]+)_([A-Z]+)" line "${line}")
    list(APPEND KQ_LANGUAGES ${CMAKE_MATCH_1})
    string(TOLOWER "${CMAKE_MATCH_2}-${CMAKE_MATCH_3}" tag)
    string(APPEND KQ_LANGUAGE_ROWS "{\"${tag}\", \"${CMAKE_MATCH_1}\"},\n")
endforeach()
