# What every target is compiled with, and how a room becomes a library and a test program.

add_library(tensarix_flags INTERFACE)
target_compile_options(tensarix_flags INTERFACE
  $<IF:$<CXX_COMPILER_ID:MSVC>,/W4;/utf-8,-Wall;-Wextra;-Wpedantic;-Wconversion;-Wshadow>)
if(WIN32)
  target_compile_definitions(tensarix_flags INTERFACE NOMINMAX WIN32_LEAN_AND_MEAN UNICODE)
endif()
if(TENSARIX_SANITIZE)
  # The undefined behaviour looked for is the program's: its tests do without, which halves the time
  # that they take to compile.
  set(only_tests $<BOOL:$<TARGET_PROPERTY:TENSARIX_ONLY_TESTS>>)
  target_compile_options(tensarix_flags INTERFACE
    -Wno-maybe-uninitialized # false alarms of this compiler in instrumented code
    -g1 -fno-omit-frame-pointer -fsanitize=address -fno-sanitize-recover=all
    $<$<NOT:${only_tests}>:-O1> $<$<NOT:${only_tests}>:-fsanitize=undefined>)
  target_link_options(tensarix_flags INTERFACE -fsanitize=address,undefined)
endif()

# A room's headers are included as "room/Header.h". Each room gets an include folder that holds
# nothing but a link to the room itself, so that an include of a room that was not declared under
# USES does not build.
function(tensarix_room_includes room target scope)
  set(floor ${CMAKE_BINARY_DIR}/floors/${room})
  file(MAKE_DIRECTORY ${floor})
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${room} ${floor}/${room} SYMBOLIC RESULT failed)
  if(failed)
    set(floor ${CMAKE_SOURCE_DIR}/src)
  endif()
  target_include_directories(${target} ${scope} ${floor})
endfunction()

# What most sources include of the standard library, prepared once for all rooms, with the compiler
# of the full run, whose time it saves.
function(tensarix_rooms_header)
  if(WIN32 OR NOT CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    return()
  endif()
  file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/rooms_header.cpp CONTENT "")
  add_library(tensarix_rooms_header OBJECT ${CMAKE_BINARY_DIR}/rooms_header.cpp)
  target_link_libraries(tensarix_rooms_header PRIVATE tensarix_flags)
  target_precompile_headers(tensarix_rooms_header PRIVATE <algorithm> <cmath> <filesystem>
    <functional> <map> <memory> <optional> <string> <string_view> <vector>)
endfunction()

# tensarix_room(name [USES rooms...] [LIBRARIES targets...])
# builds src/name/*.cpp into the library tensarix_name, and tests/name/*.cpp into the program
# name_tests.
function(tensarix_room name)
  cmake_parse_arguments(ROOM "" "" "USES;LIBRARIES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${name}/*.cpp)
  list(TRANSFORM ROOM_USES PREPEND tensarix_)
  set(room tensarix_${name})
  if(sources)
    add_library(${room} STATIC ${sources})
    tensarix_room_includes(${name} ${room} PUBLIC)
    target_link_libraries(${room} PUBLIC ${ROOM_USES} PRIVATE ${ROOM_LIBRARIES} tensarix_flags)
    if(TARGET tensarix_rooms_header)
      target_precompile_headers(${room} REUSE_FROM tensarix_rooms_header)
    endif()
  else()
    add_library(${room} INTERFACE)
    tensarix_room_includes(${name} ${room} INTERFACE)
    target_link_libraries(${room} INTERFACE ${ROOM_USES})
  endif()
  if(TENSARIX_TESTS)
    tensarix_tests(${name})
  endif()
endfunction()

# tensarix_program(name sources...): a program beside the one that users start. Its target has the
# project's prefix, as every target has; its file has not.
function(tensarix_program name)
  add_executable(tensarix_${name} ${ARGN})
  set_target_properties(tensarix_${name} PROPERTIES OUTPUT_NAME ${name})
  target_link_libraries(tensarix_${name} PRIVATE tensarix_flags)
endfunction()

# The test library's header, compiled once for all test programs.
function(tensarix_tests_header)
  file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/tests_header.cpp CONTENT "")
  add_library(tensarix_tests_header OBJECT ${CMAKE_BINARY_DIR}/tests_header.cpp)
  target_link_libraries(tensarix_tests_header PRIVATE GTest::gtest tensarix_flags)
  tensarix_tests_options(tensarix_tests_header)
  target_precompile_headers(tensarix_tests_header PRIVATE <gtest/gtest.h>)
endfunction()

# Tests are compiled as fast as can be; what they call is optimized.
function(tensarix_tests_options target)
  target_compile_options(${target} PRIVATE -O0)
  set_target_properties(${target} PROPERTIES TENSARIX_ONLY_TESTS ON)
endfunction()

# tensarix_tests(name [targets...]): tests/name/*.cpp as one program, run by CTest.
function(tensarix_tests name)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/${name}/*.cpp)
  if(WIN32) # what these put there, and how they start processes, is Unix's
    list(FILTER sources EXCLUDE REGEX "(Unix|Fault|DesktopVoice|BuildSectionStore)Tests\\.cpp$")
  endif()
  if(NOT sources)
    return()
  endif()
  set(tests tensarix_${name}_tests)
  tensarix_program(${name}_tests ${sources})
  target_include_directories(${tests} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_compile_definitions(${tests} PRIVATE
    TENSARIX_SOURCE_DIR="${CMAKE_SOURCE_DIR}" TENSARIX_PROGRAM_DIR="${CMAKE_BINARY_DIR}/program")
  target_link_libraries(${tests} PRIVATE
    $<TARGET_NAME_IF_EXISTS:tensarix_${name}> ${ARGN} GTest::gtest GTest::gtest_main)
  tensarix_tests_options(${tests})
  if(NOT name STREQUAL window) # which has one of its own
    target_precompile_headers(${tests} REUSE_FROM tensarix_tests_header)
  endif()
  tensarix_add_test(${name} ${tests})
endfunction()

# add_test, and what the sanitizers have to know of the libraries around us.
function(tensarix_add_test name)
  add_test(NAME ${name} COMMAND ${ARGN})
  set_tests_properties(${name} PROPERTIES TIMEOUT 300 ENVIRONMENT
    "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/leaks.supp:print_suppressions=0")
endfunction()
