# What every target of the project shares, and the two functions that make a target of a folder.

add_library(quillet_options INTERFACE)
target_compile_options(quillet_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor)
target_compile_definitions(quillet_options INTERFACE
  QT_NO_KEYWORDS QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH)
if(QUILLET_WARNINGS_AS_ERRORS)
  target_compile_options(quillet_options INTERFACE -Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  # Without it ccache would compile anew whatever takes a precompiled header.
  target_compile_options(quillet_options INTERFACE -fpch-preprocess)
endif()
if(QUILLET_HARDENING)
  # scripts/style looks for each of these in what is installed.
  include(CheckCXXCompilerFlag)
  check_cxx_compiler_flag(-fcf-protection=full QUILLET_HAS_CONTROL_FLOW_PROTECTION)
  set(hardening -fstack-protector-strong -fstack-clash-protection
    -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3 -D_GLIBCXX_ASSERTIONS)
  if(QUILLET_HAS_CONTROL_FLOW_PROTECTION)
    list(APPEND hardening -fcf-protection=full)
  endif()
  set(is_release $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
  target_compile_options(quillet_options INTERFACE "$<${is_release}:${hardening}>")
  target_link_options(quillet_options INTERFACE
    $<${is_release}:LINKER:-z,relro,-z,now,-z,noexecstack>)
endif()
if(QUILLET_SANITIZERS)
  target_compile_options(quillet_options INTERFACE
    -fsanitize=${QUILLET_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(quillet_options INTERFACE -fsanitize=${QUILLET_SANITIZERS})
endif()
if(QUILLET_FUZZING)
  target_compile_options(quillet_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# quillet_precompiled(<name> LINKS <target>... HEADERS <header>...)
#
# A precompiled header that other targets take over. What stands in it is the toolkits' and the
# language's alone, so that no change of the project touches it; scripts/style compiles every file
# without it, so that each still includes what it uses.
function(quillet_precompiled name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS;HEADERS")
  set(source ${CMAKE_BINARY_DIR}/${name}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "// Carries the precompiled header.\n")
  add_library(quillet_${name} STATIC ${source})
  target_link_libraries(quillet_${name} PUBLIC ${arg_LINKS} PRIVATE quillet_options)
  target_precompile_headers(quillet_${name} PRIVATE ${arg_HEADERS})
endfunction()

# quillet_sources(<variable> <folder> [<room>...]): the C++ files of a folder and of its rooms.
function(quillet_sources variable folder)
  set(patterns ${folder}/*.cpp ${folder}/*.h)
  foreach(room IN LISTS ARGN)
    list(APPEND patterns ${folder}/${room}/*.cpp ${folder}/${room}/*.h)
  endforeach()
  file(GLOB sources CONFIGURE_DEPENDS ${patterns})
  set(${variable} ${sources} PARENT_SCOPE)
endfunction()

# quillet_library(<folder below src> [ROOMS <subfolder>...] [PRECOMPILED <name>] [LINKS <target>...])
#
# One library for one folder and for its rooms, where it has any. Its headers are reachable as "<folder>/<Header>.h", and only for
# targets that link it: each library publishes a directory that holds nothing but its own folder.
# So a forbidden include does not compile.
function(quillet_library folder)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "PRECOMPILED" "ROOMS;LINKS")
  string(REPLACE "/" "_" suffix ${folder})
  set(target quillet_${suffix})
  quillet_sources(sources ${CMAKE_SOURCE_DIR}/src/${folder} ${arg_ROOMS})
  if(NOT sources)
    add_library(${target} INTERFACE)
    return()
  endif()
  add_library(${target} STATIC ${sources})
  set_target_properties(${target} PROPERTIES AUTOMOC ON)
  if(NOT arg_PRECOMPILED)
    set(arg_PRECOMPILED precompiled_core)
  endif()
  target_precompile_headers(${target} REUSE_FROM quillet_${arg_PRECOMPILED})

  set(published ${CMAKE_BINARY_DIR}/include/${suffix})
  cmake_path(GET folder PARENT_PATH parent)
  file(MAKE_DIRECTORY ${published}/${parent})
  if(NOT EXISTS ${published}/${folder})
    file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${folder} ${published}/${folder} SYMBOLIC)
  endif()
  target_include_directories(${target} PUBLIC ${published})
  target_link_libraries(${target} PUBLIC ${arg_LINKS} PRIVATE quillet_options)
endfunction()

# quillet_string_tables(<target> <language>...)
#
# Compiles translations/quillet_<language>.ts and makes it a resource of the target.
function(quillet_string_tables target)
  find_package(Qt6 6.4 REQUIRED COMPONENTS LinguistTools)
  set(folder ${CMAKE_BINARY_DIR}/translations)
  file(MAKE_DIRECTORY ${folder})
  foreach(language IN LISTS ARGN)
    set(source ${CMAKE_SOURCE_DIR}/translations/quillet_${language}.ts)
    set(table ${folder}/quillet_${language}.qm)
    add_custom_command(OUTPUT ${table} VERBATIM
      COMMAND Qt6::lrelease -silent -nounfinished ${source} -qm ${table}
      DEPENDS ${source})
    list(APPEND tables ${table})
  endforeach()
  qt_add_resources(${target} string_tables PREFIX /translations BASE ${folder} FILES ${tables})
endfunction()

# quillet_tests(<folder below tests> [ROOMS <subfolder>...] [PRECOMPILED <name>] [LINKS <target>...])
#
# One test program for one folder and its rooms: every *Test.cpp in them, registered test by test.
function(quillet_tests folder)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "PRECOMPILED" "ROOMS;LINKS")
  string(REPLACE "/" "_" suffix ${folder})
  set(target ${suffix}_tests)
  set_property(GLOBAL APPEND PROPERTY quillet_test_folders ${folder})
  foreach(room IN LISTS arg_ROOMS)
    set_property(GLOBAL APPEND PROPERTY quillet_test_folders ${folder}/${room})
  endforeach()
  quillet_sources(sources ${CMAKE_SOURCE_DIR}/tests/${folder} ${arg_ROOMS})
  add_executable(${target} ${sources})
  set_target_properties(${target} PROPERTIES AUTOMOC ON)
  target_link_libraries(${target} PRIVATE ${arg_LINKS} quillet_test_support quillet_options)
  target_compile_definitions(${target} PRIVATE
    QUILLET_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/${folder}/data")
  if(NOT arg_PRECOMPILED)
    set(arg_PRECOMPILED test_support)
  endif()
  target_precompile_headers(${target} REUSE_FROM quillet_${arg_PRECOMPILED})
  gtest_discover_tests(${target} TEST_PREFIX "${folder}/" DISCOVERY_MODE PRE_TEST
    PROPERTIES TIMEOUT 120)
endfunction()

# quillet_require_registered_tests()
#
# Stops the configuration when a folder holds a test that no quillet_tests() call above named.
function(quillet_require_registered_tests)
  file(GLOB_RECURSE tests CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR}/tests
    ${CMAKE_SOURCE_DIR}/tests/*Test.cpp)
  get_property(folders GLOBAL PROPERTY quillet_test_folders)
  foreach(test IN LISTS tests)
    cmake_path(GET test PARENT_PATH folder)
    if(NOT folder IN_LIST folders)
      message(FATAL_ERROR "tests/${test} is not registered: add quillet_tests(${folder})")
    endif()
  endforeach()
endfunction()
