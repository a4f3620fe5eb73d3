# On a Mac: adds to CMAKE_PREFIX_PATH the folders of those libraries that Homebrew keeps apart, because the system has
# others of the same name.
find_program(KQ_BREW brew)
if(KQ_BREW)
    execute_process(COMMAND ${KQ_BREW} --prefix qt@5 icu4c libarchive
        OUTPUT_VARIABLE kq_prefixes OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE "\n" ";" kq_prefixes "${kq_prefixes}")
    list(APPEND CMAKE_PREFIX_PATH ${kq_prefixes})
endif()
