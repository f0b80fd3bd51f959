# One library per folder of src/, bottom layer first. Each library lists the
# libraries it may use; that list is both what it links and what it can see:
# a library's headers are offered to others through a folder of links of its
# own (build/capas/<library>), so an include of a layer that is not on the
# list is not found and the build stops. tests/capas.cmake checks the same
# table against every `#include "..."` line, for the arrows that the link
# graph alone would let through.

set(VEDRANO_CAPAS "" CACHE INTERNAL "")

# vedrano_capa(<library> <folder under src/> [USA <libraries>...]
#              [PENDIENTE <libraries>...] [PRIVADO <libraries>...] [QT])
# Builds the .cpp files directly in the folder (not its subfolders, which are
# libraries of their own). A folder with headers only becomes an interface
# library. USA names the libraries the layer may use (it may also use what
# those may use); PENDIENTE the ones it still uses but should not, which the
# include check tolerates until the arrow is gone; PRIVADO outside libraries
# used only inside the .cpp files. QT runs moc.
function(vedrano_capa nombre carpeta)
  cmake_parse_arguments(C "QT" "" "USA;PENDIENTE;PRIVADO" ${ARGN})
  set(src ${PROJECT_SOURCE_DIR}/src)
  file(GLOB fuentes CONFIGURE_DEPENDS ${src}/${carpeta}/*.cpp)
  file(GLOB cabeceras CONFIGURE_DEPENDS RELATIVE ${src} ${src}/${carpeta}/*.h)
  if(carpeta STREQUAL "cli")
    list(REMOVE_ITEM fuentes ${src}/cli/main.cpp)
  endif()
  set(raiz ${PROJECT_BINARY_DIR}/capas/${nombre})
  file(REMOVE_RECURSE ${raiz})
  file(MAKE_DIRECTORY ${raiz}/${carpeta})
  foreach(h IN LISTS cabeceras)
    file(CREATE_LINK ${src}/${h} ${raiz}/${h} SYMBOLIC)
  endforeach()
  if(fuentes)
    add_library(${nombre} STATIC ${fuentes})
    set(vis PUBLIC)
    target_link_libraries(${nombre} PRIVATE ${C_PRIVADO})
  else()
    add_library(${nombre} INTERFACE)
    set(vis INTERFACE)
    target_link_libraries(${nombre} INTERFACE ${C_PRIVADO})
  endif()
  target_include_directories(${nombre} ${vis} ${raiz})
  target_link_libraries(${nombre} ${vis} ${C_USA} ${C_PENDIENTE})
  if(C_QT AND fuentes)
    set_target_properties(${nombre} PROPERTIES AUTOMOC ON)
  endif()
  # One line of the include check's table: folder library uses... | pending...
  list(FILTER C_USA INCLUDE REGEX "^vedrano_")
  string(JOIN " " linea ${carpeta} ${nombre} ${C_USA} "|" ${C_PENDIENTE})
  set(VEDRANO_CAPAS ${VEDRANO_CAPAS} "${linea}" CACHE INTERNAL "")
endfunction()

find_package(PkgConfig REQUIRED)
pkg_check_modules(ERFA REQUIRED IMPORTED_TARGET erfa)

# Ground floor: arithmetic, formats, Windows-1252 text, run-time errors,
# constants, fixed tables, the message port. Standard library only.
vedrano_capa(vedrano_base app/base)
# Ports to the operating system; Qt Core finds folders and local numbers.
vedrano_capa(vedrano_plataforma platform USA vedrano_base PRIVADO Qt6::Core)
# The astronomy: value in, value out; neither the state, the catalogue, the
# clock nor Qt.
vedrano_capa(vedrano_astro astro USA vedrano_base PkgConfig::ERFA)
vedrano_capa(vedrano_catalogo catalogue USA vedrano_base vedrano_plataforma vedrano_astro)
vedrano_capa(vedrano_estado app/estado USA vedrano_base vedrano_astro vedrano_catalogo)
vedrano_capa(vedrano_config config USA vedrano_base vedrano_plataforma vedrano_catalogo vedrano_estado)
# The sky model: projection, then pointing.
vedrano_capa(vedrano_proyeccion sky/proyeccion USA vedrano_base vedrano_astro vedrano_catalogo vedrano_estado)
vedrano_capa(vedrano_apunta sky/apunta USA vedrano_proyeccion)
# The sky drawing: canvas, plotters, rendering pass, printed page.
vedrano_capa(vedrano_dibujo sky USA vedrano_proyeccion vedrano_apunta vedrano_config
             vedrano_plataforma Qt6::Gui)
# Rules both front ends need.
vedrano_capa(vedrano_acciones app/acciones USA vedrano_base vedrano_plataforma vedrano_astro
             vedrano_catalogo vedrano_estado vedrano_config vedrano_proyeccion vedrano_apunta)
# Qt adapters of the ports, with the program's resources.
vedrano_capa(vedrano_plataforma_qt platform/qt QT USA vedrano_plataforma Qt6::Widgets
             PRIVADO Qt6::Multimedia)
file(GLOB_RECURSE RECURSOS CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}/resources
     ${PROJECT_SOURCE_DIR}/resources/*)
list(FILTER RECURSOS EXCLUDE REGEX "(^|/)LEEME\\.md$")
list(TRANSFORM RECURSOS PREPEND ${PROJECT_SOURCE_DIR}/resources/)
qt_add_resources(vedrano_plataforma_qt "recursos" PREFIX "/" BASE ${PROJECT_SOURCE_DIR}/resources
                 FILES ${RECURSOS})
# The program's icon, drawn once for the desktop and the window alike.
file(GLOB ICONOS CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/paquete/iconos/*.png)
qt_add_resources(vedrano_plataforma_qt "iconos" PREFIX "/icono" BASE ${PROJECT_SOURCE_DIR}/paquete/iconos
                 FILES ${ICONOS})
# The widgets: drawn controls, shared form pieces, one entry per form, the
# main window. The controls know only their own context (ui/controles/Contexto.h).
vedrano_capa(vedrano_controles ui/controles QT USA vedrano_base vedrano_plataforma
             vedrano_plataforma_qt)
# What the main window hands a form and how a form is shown: the port
# through which the window opens forms without knowing them.
vedrano_capa(vedrano_formas ui/formas USA vedrano_base vedrano_estado vedrano_catalogo
             vedrano_controles vedrano_plataforma_qt Qt6::Widgets)
vedrano_capa(vedrano_piezas dialogs/piezas QT USA vedrano_controles vedrano_acciones vedrano_dibujo
             vedrano_plataforma_qt vedrano_formas)
vedrano_capa(vedrano_dialogos dialogs QT USA vedrano_piezas Qt6::PrintSupport)
# The main window: no form of dialogs/ is known to it (the start-up wires
# them into DialogosCielo).
vedrano_capa(vedrano_ventana ui/cielo QT USA vedrano_controles vedrano_dibujo vedrano_acciones
             vedrano_formas)
# The orders of vedrano-cli and the command lines of both programs, apart
# from main() so that tests and fuzzers can call them.
vedrano_capa(vedrano_ordenes cli USA vedrano_acciones vedrano_dibujo PRIVADO Qt6::Svg)
target_compile_definitions(vedrano_ordenes PRIVATE VEDRANO_VERSION="${PROJECT_VERSION}")

# Groups under the names the tests and benchmarks use.
add_library(vedrano_nucleo INTERFACE)
target_link_libraries(vedrano_nucleo INTERFACE vedrano_acciones)
add_library(vedrano_cielo INTERFACE)
target_link_libraries(vedrano_cielo INTERFACE vedrano_dibujo)
add_library(vedrano_ui INTERFACE)
target_link_libraries(vedrano_ui INTERFACE vedrano_ventana vedrano_dialogos)

# The entry points, wiring everything.
add_executable(vedrano-cli src/cli/main.cpp)
target_link_libraries(vedrano-cli PRIVATE vedrano_ordenes)
file(GLOB ARRANQUE_FUENTES CONFIGURE_DEPENDS src/app/gui/*.cpp)
add_executable(vedrano ${ARRANQUE_FUENTES})
target_include_directories(vedrano PRIVATE ${PROJECT_SOURCE_DIR}/src)
target_link_libraries(vedrano PRIVATE vedrano_ui vedrano_ordenes)
set_target_properties(vedrano PROPERTIES AUTOMOC ON)

# The catalogue fills the astronomy's records but calls none of its
# routines: of astro it may include only the headers of types.
list(APPEND VEDRANO_CAPAS "tipos catalogue astro astro/Vector3f.h astro/Cuerpos.h")

# The table of layers for the include check (tests/CMakeLists.txt).
string(JOIN "\n" tabla ${VEDRANO_CAPAS})
file(WRITE ${PROJECT_BINARY_DIR}/capas.txt "${tabla}\n")
