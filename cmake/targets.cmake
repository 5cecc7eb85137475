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
