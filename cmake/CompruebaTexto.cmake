# Program text is written in UTF-8 and converted with A1252 where a
# Windows-1252 string is wanted: no file under SRC writes a byte above 0x7F
# as an escape ("Direcci\xF3n", "\xC2\xB0").
#   cmake -DSRC=<tree>/src -P CompruebaTexto.cmake
# Fails with one line per escaped text.

cmake_minimum_required(VERSION 3.25)

get_filename_component(SRC "${SRC}" ABSOLUTE)
file(GLOB_RECURSE fuentes ${SRC}/*.h ${SRC}/*.cpp)
set(malas 0)
foreach(f IN LISTS fuentes)
  file(STRINGS ${f} lineas REGEX "\\\\x[89A-Fa-f][0-9A-Fa-f]")
  file(RELATIVE_PATH nombre ${SRC} ${f})
  foreach(l IN LISTS lineas)
    string(STRIP "${l}" l)
    message("${nombre}: ${l}")
    math(EXPR malas "${malas} + 1")
  endforeach()
endforeach()
list(LENGTH fuentes n)
if(malas GREATER 0)
  message(FATAL_ERROR "texto con escapes \\x en ${malas} línea(s): escríbalo en UTF-8 (y A1252 donde haga falta)")
endif()
message("${n} ficheros; texto en UTF-8")
