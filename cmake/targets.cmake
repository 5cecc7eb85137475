# How this project's own targets are compiled. Foreign code never passes through here.

add_library(tm_options INTERFACE)
target_compile_options(tm_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)
if(WIN32)
  target_compile_definitions(tm_options INTERFACE UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX
    STRICT _WIN32_WINNT=0x0601 WINVER=0x0601 MMC_VER=0x0200)
  # The products need nothing but system libraries, so the compiler's own runtime goes in.
  target_link_options(tm_options INTERFACE -static -static-libgcc -static-libstdc++ $<$<CONFIG:Release>:-s>)
endif()

# tm_library(name SOURCES … LINKS …): one folder, one static library. What a library does not link to it cannot
# include: headers are found only through the folders of the linked targets.
function(tm_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC ${arg_LINKS} PRIVATE tm_options)
endfunction()

function(tm_program name)
  cmake_parse_arguments(arg "WINDOWED" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${arg_LINKS} tm_options)
  if(WIN32)
    # wmain and wWinMain, so that arguments of any script arrive whole.
    target_link_options(${name} PRIVATE -municode)
    if(arg_WINDOWED)
      target_link_options(${name} PRIVATE -mwindows)
    endif()
  endif()
endfunction()

# A program of tests: not optimized, since it is built more often than it is run. The compiler then no longer sees what
# is initialized.
function(tm_tests name)
  tm_program(${name} ${ARGN})
  target_compile_options(${name} PRIVATE -O0 -Wno-maybe-uninitialized)
endfunction()

# Has the files of a test program compiled folder by folder, some together: nearly all of a test's compilation is reading
# GoogleTest's and the system's headers. Files of one folder then cannot define the same name. Sources that are added
# later in this folder or below it count.
function(tm_compile_together name)
  # A deferred call evaluates its arguments only when it is made.
  cmake_language(EVAL CODE "cmake_language(DEFER CALL tm_group_by_folder ${name})")
endfunction()

function(tm_group_by_folder name)
  set(together 8)
  get_target_property(sources ${name} SOURCES)
  list(FILTER sources INCLUDE REGEX "\\.cpp$")
  foreach(source IN LISTS sources)
    cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR})
    cmake_path(RELATIVE_PATH source BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE short)
    cmake_path(GET short PARENT_PATH folder)
    string(MAKE_C_IDENTIFIER "${folder}" group)
    list(LENGTH ${group} earlier)
    list(APPEND ${group} ${source})
    math(EXPR batch "${earlier} / ${together}")
    set_source_files_properties(${source} TARGET_DIRECTORY ${name} PROPERTIES UNITY_GROUP ${group}_${batch})
  endforeach()
  set_target_properties(${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  # A test outside of the nameless namespace in which its fixture is: harmless in a source, taken for a header here.
  target_compile_options(${name} PRIVATE -Wno-subobject-linkage)
endfunction()
