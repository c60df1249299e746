# The two ways in which this project makes targets: a library for each layer, a test for each file.

add_library(arbolith_options INTERFACE)
target_compile_options(
  arbolith_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor
                             -Woverloaded-virtual $<$<BOOL:${ARBOLITH_WERROR}>:-Werror>)
# g++ 12 sees overlaps in plain string sums where there are none.
target_compile_options(arbolith_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(ARBOLITH_SANITIZE)
  target_compile_options(arbolith_options INTERFACE -fsanitize=address,undefined
                                                    -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(arbolith_options INTERFACE -fsanitize=address,undefined)
endif()
if(ARBOLITH_COVERAGE)
  target_compile_options(arbolith_options INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(arbolith_options INTERFACE --coverage)
endif()

# arbolith_library(NAME folder SOURCES ... [LINKS ...])
#
# One layer: the library arbolith_NAME from the sources of the folder it is called in. It sees the
# headers of the layers that it links and no others below it: a slip upwards doesn't link.
function(arbolith_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  add_library(arbolith_${name} STATIC ${arg_SOURCES})
  add_library(arbolith::${name} ALIAS arbolith_${name})
  target_include_directories(arbolith_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(arbolith_${name} PUBLIC ${arg_LINKS} PRIVATE arbolith_options)
  if(ARBOLITH_FUZZ)
    target_compile_options(arbolith_${name} PRIVATE -fsanitize-coverage=trace-pc)
  endif()
endfunction()

# arbolith_unit_tests(NAME SOURCES ... LINKS ...)
#
# The program unit_NAME with the GoogleTest files given, run as one test.
function(arbolith_unit_tests name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  add_executable(unit_${name} ${arg_SOURCES})
  target_include_directories(unit_${name} PRIVATE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(unit_${name} PRIVATE ${arg_LINKS} GTest::gtest_main arbolith_options)
  arbolith_register_test_files(${arg_SOURCES})
  add_test(NAME unit_${name} COMMAND unit_${name} --gtest_brief=1)
  set_tests_properties(unit_${name} PROPERTIES TIMEOUT 120)
endfunction()

# Notes test files as registered; arbolith_check_test_files() fails for every other one.
function(arbolith_register_test_files)
  foreach(file IN LISTS ARGN)
    cmake_path(ABSOLUTE_PATH file NORMALIZE)
    set_property(GLOBAL APPEND PROPERTY ARBOLITH_TEST_FILES ${file})
  endforeach()
endfunction()

# Stops the configuration when a source or script under tests/ belongs to no test.
function(arbolith_check_test_files)
  get_property(registered GLOBAL PROPERTY ARBOLITH_TEST_FILES)
  file(GLOB_RECURSE present CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/*.cpp
       ${CMAKE_SOURCE_DIR}/tests/*.script)
  foreach(file IN LISTS present)
    if(NOT file IN_LIST registered)
      message(SEND_ERROR "No test uses ${file}: name it in the CMakeLists.txt of its folder.")
    endif()
  endforeach()
endfunction()
