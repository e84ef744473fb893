# What every target of the project has in common.

# Warnings, include path, sanitizers.
function(tavrin_target target)
  target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR})
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
  # The PPD calls of libcups are deprecated in favour of libppd; we know.
  target_compile_options(${target} PRIVATE -Wno-deprecated-declarations)
  if(TAVRIN_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  if(TAVRIN_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=address,undefined -fno-sanitize-recover=all
                                             -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=address,undefined)
  endif()
endfunction()

# tavrin_test(<binary> SOURCES ... LIBRARIES ...): the one test binary of a folder.
function(tavrin_test target)
  if(NOT BUILD_TESTING)
    return()
  endif()
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${target} ${ARG_SOURCES})
  tavrin_target(${target})
  target_link_libraries(${target} PRIVATE ${ARG_LIBRARIES} GTest::gtest_main)
  gtest_discover_tests(${target} TEST_PREFIX ${target}. DISCOVERY_TIMEOUT 60
                       PROPERTIES TIMEOUT 300)
endfunction()
