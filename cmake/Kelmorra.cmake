# How every target of the project is compiled and linked.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# The oldest Windows served is XP. Newer functions are looked up at run time.
add_compile_definitions(UNICODE _UNICODE WINVER=0x0501 _WIN32_WINNT=0x0501 _WIN32_IE=0x0600)
# No section for each function: with one come tables of its own for exceptions, more than what the linker could leave out.
add_compile_options(
  $<$<COMPILE_LANGUAGE:CXX>:-Oz> $<$<COMPILE_LANGUAGE:CXX>:-fdata-sections>
  $<$<COMPILE_LANGUAGE:CXX>:-Wall> $<$<COMPILE_LANGUAGE:CXX>:-Wextra> $<$<COMPILE_LANGUAGE:CXX>:-Wpedantic>
  $<$<COMPILE_LANGUAGE:CXX>:-Wconversion> $<$<COMPILE_LANGUAGE:CXX>:-Wshadow> $<$<COMPILE_LANGUAGE:CXX>:-Woverloaded-virtual>
  $<$<COMPILE_LANGUAGE:CXX>:-Wold-style-cast> $<$<COMPILE_LANGUAGE:CXX>:-Wimplicit-fallthrough>
  $<$<COMPILE_LANGUAGE:CXX>:-Wduplicated-cond> $<$<COMPILE_LANGUAGE:CXX>:-Wnull-dereference>
  $<$<COMPILE_LANGUAGE:CXX>:-Werror>)
# No dynamic_cast or typeid, and statics are first used by the one thread of windows.
add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fno-rtti> $<$<COMPILE_LANGUAGE:CXX>:-fno-threadsafe-statics>)
# GetProcAddress results are cast to their real function types.
add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-Wno-cast-function-type>)
# Paths in diagnostics start at the project folder.
add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=>)
if(KELMORRA_CHECKED)
  add_compile_definitions(_GLIBCXX_ASSERTIONS)
  add_compile_options(
    $<$<COMPILE_LANGUAGE:CXX>:-fsanitize=undefined> $<$<COMPILE_LANGUAGE:CXX>:-fsanitize-undefined-trap-on-error>
    $<$<COMPILE_LANGUAGE:CXX>:-g1>)
else()
  add_link_options(-s)
endif()
add_link_options(-static -Wl,--gc-sections -Wl,--no-insert-timestamp)
# The program is compiled as a whole when it is linked, which makes it a fifth smaller. Libraries hold both forms of their
# code: the tests, and builds that are not given to anybody, link the ordinary one. In one piece: GCC 12 fails with more.
set(KELMORRA_WHOLE OFF)
if(CMAKE_SIZEOF_VOID_P EQUAL 4 AND NOT KELMORRA_CHECKED)
  set(KELMORRA_WHOLE ON)
endif()
function(kelmorra_compile_for_whole target)
  if(KELMORRA_WHOLE)
    target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-flto> $<$<COMPILE_LANGUAGE:CXX>:-ffat-lto-objects>)
  endif()
endfunction()
function(kelmorra_link_whole target)
  if(KELMORRA_WHOLE)
    target_link_options(${target} PRIVATE -flto -flto-partition=one)
  endif()
endfunction()
add_link_options(-fno-lto)

# kelmorra_library(NAME SOURCES ... LINKS ...): a folder of src as one static library.
function(kelmorra_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${arg_LINKS})
  kelmorra_compile_for_whole(${name})
endfunction()

# kelmorra_late(NAME): NAME_late is the system's DLL, loaded when one of its functions is first called: those of
# cmake/late/NAME.def, with the bytes of their arguments. The 64-bit compile takes the ordinary library.
function(kelmorra_late name)
  add_library(${name}_late INTERFACE)
  if(NOT CMAKE_SIZEOF_VOID_P EQUAL 4)
    target_link_libraries(${name}_late INTERFACE ${name})
    return()
  endif()
  set(functions ${CMAKE_SOURCE_DIR}/cmake/late/${name}.def)
  set(archive ${CMAKE_CURRENT_BINARY_DIR}/lib${name}_late.a)
  add_custom_command(OUTPUT ${archive}
    COMMAND i686-w64-mingw32-dlltool --kill-at --input-def ${functions} --output-delaylib ${archive}
    DEPENDS ${functions} VERBATIM)
  add_custom_target(${name}_late_archive DEPENDS ${archive})
  add_dependencies(${name}_late ${name}_late_archive)
  target_link_libraries(${name}_late INTERFACE ${archive} delayimp)
  # The linker does not see that the table of addresses needs the functions that load, and leaves them out.
  file(STRINGS ${functions} names REGEX @)
  foreach(function IN LISTS names)
    target_link_options(${name}_late INTERFACE
      $<$<NOT:$<BOOL:$<TARGET_PROPERTY:KELMORRA_PLAIN>>>:-Wl,--undefined=_${function}>)
  endforeach()
endfunction()
