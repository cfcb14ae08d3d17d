# Writes the tables of a resource module: directory.cpp and pictures.S in the folder OUTPUT.
#   PICTURES  file with a "key size png" line for each picture, in the order of the table
#   STRINGS   file with a number and a quoted text a line; may be left out

cmake_minimum_required(VERSION 3.25)

set(strings "")
set(string_count 0)
if(DEFINED STRINGS)
  file(STRINGS "${STRINGS}" lines ENCODING UTF-8)
  set(previous 0)
  foreach(line IN LISTS lines)
    if(line MATCHES "^[ \t]*(#.*)?$")
      continue()
    endif()
    if(NOT line MATCHES "^([0-9]+)[ \t]+(\"([^\"\\]|\\\\.)*\")[ \t]*(#.*)?$")
      message(FATAL_ERROR "${STRINGS}: not a number and a quoted text: ${line}")
    endif()
    set(number "${CMAKE_MATCH_1}")
    if(NOT number GREATER previous)
      message(FATAL_ERROR "${STRINGS}: ${number} follows ${previous}; numbers must ascend")
    endif()
    set(previous "${number}")
    string(APPEND strings "    {${number}U, ${CMAKE_MATCH_2}},\n")
    math(EXPR string_count "${string_count} + 1")
  endforeach()
endif()

set(declarations "")
set(pictures "")
set(picture_count 0)
set(embedded "    .section .rodata\n")
file(STRINGS "${PICTURES}" lines)
foreach(line IN LISTS lines)
  if(NOT line MATCHES "^([^ ]+) ([0-9]+) (.+)$")
    message(FATAL_ERROR "${PICTURES}: not a key, a size and a file: ${line}")
  endif()
  set(key "${CMAKE_MATCH_1}")
  set(size "${CMAKE_MATCH_2}")
  set(png "${CMAKE_MATCH_3}")
  file(SIZE "${png}" length)
  set(symbol "picture_${picture_count}")
  string(APPEND declarations "extern const unsigned char ${symbol}[];\n")
  string(APPEND pictures "    {\"${key}\", ${size}U, ${symbol}, ${length}U},\n")
  string(APPEND embedded "    .global ${symbol}\n    .hidden ${symbol}\n"
    "${symbol}:\n    .incbin \"${png}\"\n")
  math(EXPR picture_count "${picture_count} + 1")
endforeach()
string(APPEND embedded "    .section .note.GNU-stack,\"\",%progbits\n")

set(string_table "nullptr")
set(string_definition "")
if(string_count GREATER 0)
  set(string_table "kStrings")
  set(string_definition "constexpr ResourceString kStrings[] = {\n${strings}};\n")
endif()
set(picture_table "nullptr")
set(picture_definition "")
if(picture_count GREATER 0)
  set(picture_table "kPictures")
  set(picture_definition "constexpr ResourcePicture kPictures[] = {\n${pictures}};\n")
endif()

file(WRITE "${OUTPUT}/directory.cpp"
"#include \"workbench/resources/resource_directory.h\"

extern \"C\" {
${declarations}}

namespace {
${string_definition}${picture_definition}}

extern \"C\" __attribute__((visibility(\"default\"))) const ResourceDirectory vxResourceDirectory;
const ResourceDirectory vxResourceDirectory = {${string_table}, ${string_count}U,
                                               ${picture_table}, ${picture_count}U};
")
file(WRITE "${OUTPUT}/pictures.S" "${embedded}")
