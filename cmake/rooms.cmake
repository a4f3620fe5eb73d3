# kq_room(NAME SOURCES ... USES ... [PRIVATE_USES ...])
#
# A room is one static library whose own folder is its only include folder. A room sees the headers of the rooms that
# it names and of no other, so that an include against the direction of docs/architecture.md does not build.
function(kq_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;USES;PRIVATE_USES" ${ARGN})
    add_library(${name} STATIC ${ROOM_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ROOM_USES} PRIVATE kq_compiler ${ROOM_PRIVATE_USES})
endfunction()

# kq_test(NAME SOURCES ... USES ...)
#
# A test program whose cases CTest lists one by one. Every case runs off screen.
function(kq_test name)
    cmake_parse_arguments(TEST "" "TIMEOUT" "SOURCES;USES;PROPERTIES" ${ARGN})
    if(NOT TEST_TIMEOUT)
        set(TEST_TIMEOUT 120)
    endif()
    add_executable(${name} ${TEST_SOURCES})
    target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE kq_compiler kq_test_support ${TEST_USES})
    gtest_discover_tests(${name}
        TEST_PREFIX "${name}."
        DISCOVERY_MODE PRE_TEST
        PROPERTIES TIMEOUT ${TEST_TIMEOUT} ENVIRONMENT "QT_QPA_PLATFORM=offscreen" ${TEST_PROPERTIES})
endfunction()
