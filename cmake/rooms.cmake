# kq_room(NAME SOURCES ... [USES ...] [PRIVATE_USES ...])
#
# A room is one static library, or nothing but headers. An include names the room's folder, as seen from src/lib, from
# src or from the top: "log/config.h". A room sees the headers of the rooms that it names and of no other, so that an
# include against the direction of docs/architecture.md does not build: its include folder is one of its own in the
# build tree, with a link to each of its headers.
function(kq_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;USES;PRIVATE_USES" ${ARGN})
    file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
    string(REGEX REPLACE "^src(/lib)?(/|$)" "" folder "${folder}")
    set(include_folder ${PROJECT_BINARY_DIR}/rooms/${name})
    file(REMOVE_RECURSE ${include_folder})
    set(headers ${ROOM_SOURCES})
    list(FILTER headers INCLUDE REGEX "\\.h$")
    foreach(header IN LISTS headers)
        cmake_path(SET link NORMALIZE "${include_folder}/${folder}/${header}")
        cmake_path(GET link PARENT_PATH link_folder)
        file(MAKE_DIRECTORY ${link_folder})
        file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR}/${header} ${link} SYMBOLIC)
    endforeach()

    if(headers STREQUAL "${ROOM_SOURCES}")
        add_library(${name} INTERFACE ${headers})
        target_include_directories(${name} INTERFACE ${include_folder})
        target_link_libraries(${name} INTERFACE ${ROOM_USES})
    else()
        add_library(${name} STATIC ${ROOM_SOURCES})
        target_include_directories(${name} PUBLIC ${include_folder})
        target_link_libraries(${name} PUBLIC ${ROOM_USES} PRIVATE kq_compiler ${ROOM_PRIVATE_USES})
    endif()
endfunction()

# kq_test(NAME SOURCES ... USES ...)
#
# A test program whose cases CTest lists one by one. Every case runs off screen.
function(kq_test name)
    cmake_parse_arguments(TEST "" "" "SOURCES;USES" ${ARGN})
    add_executable(${name} ${TEST_SOURCES})
    target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE kq_compiler kq_test_support ${TEST_USES})
    gtest_discover_tests(${name}
        TEST_PREFIX "${name}."
        DISCOVERY_MODE PRE_TEST
        DISCOVERY_TIMEOUT 60
        PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()
