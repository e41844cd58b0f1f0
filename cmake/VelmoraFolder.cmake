# What every folder of the source tree has in common: one target a folder, and headers that are seen only by
# the targets that link it.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# A linker that takes half the time, where there is one.
find_program(VELMORA_LLD ld.lld)
if(VELMORA_LLD)
  add_link_options(-fuse-ld=lld)
endif()

add_library(velmora_options INTERFACE)
target_compile_options(velmora_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
if(VELMORA_WERROR)
  target_compile_options(velmora_options INTERFACE -Werror)
endif()
# What files and pages hold is not to be trusted, and neither is the code that reads them: what the compiler
# and the loader can do against a slip is done. Builds that look for slips do without; of a debug build only
# the program and its module are compiled so.
set(VELMORA_HARDENING "")
if(NOT VELMORA_SANITIZE)
  include(CheckPIESupported)
  check_pie_supported()
  set(VELMORA_HARDENING -fstack-protector-strong)
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|amd64|AMD64|i.86)$")
    list(APPEND VELMORA_HARDENING -fcf-protection=full)
  endif()
  # Fortified functions need the optimiser. Some compilers define the macro on their own.
  target_compile_options(velmora_options INTERFACE
                         "$<$<NOT:$<CONFIG:Debug>>:${VELMORA_HARDENING};-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
  target_link_options(velmora_options INTERFACE LINKER:-z,relro,-z,now)
else()
  target_compile_options(velmora_options INTERFACE -fsanitize=${VELMORA_SANITIZE} -fno-omit-frame-pointer
                                                   -fno-sanitize-recover=all)
  target_link_options(velmora_options INTERFACE -fsanitize=${VELMORA_SANITIZE})
endif()

# velmora_expose(TARGET NAME [DIRECTORY])
#   Lets whoever links TARGET write #include "NAME/header.h" for the headers that lie in DIRECTORY itself (the current
#   source folder when not given). Its subfolders are not exposed: a room inside a room is exposed by its own target, and a
#   folder "detail" by velmora_expose_detail alone. The include path of TARGET holds nothing but what is exposed for it, so a
#   target can't reach into one that it does not link.
function(velmora_expose target name)
  set(directory "${CMAKE_CURRENT_SOURCE_DIR}")
  if(ARGC GREATER 2)
    set(directory "${ARGV2}")
  endif()
  set(root "${PROJECT_BINARY_DIR}/include/${target}")
  set(links "${root}/${name}")
  if(IS_SYMLINK "${links}")
    file(REMOVE "${links}") # never write links through a link into the source tree
  endif()
  file(MAKE_DIRECTORY "${links}")
  file(GLOB headers CONFIGURE_DEPENDS RELATIVE "${directory}" "${directory}/*.h")
  foreach(header IN LISTS headers)
    file(CREATE_LINK "${directory}/${header}" "${links}/${header}" SYMBOLIC)
  endforeach()
  file(GLOB exposed LIST_DIRECTORIES false RELATIVE "${links}" "${links}/*")
  foreach(header IN LISTS exposed)
    if(NOT header IN_LIST headers)
      file(REMOVE "${links}/${header}")
    endif()
  endforeach()
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "INTERFACE_LIBRARY")
    target_include_directories(${target} INTERFACE "${root}")
  else()
    target_include_directories(${target} PUBLIC "${root}")
  endif()
endfunction()

# velmora_expose_detail(TARGET NAME... )
#   TARGET_detail, an interface target for tests alone: whoever links it sees the internal headers "NAME/detail/header.h"
#   that lie in the project's folders NAME/detail.
function(velmora_expose_detail target)
  add_library(${target}_detail INTERFACE)
  target_link_libraries(${target}_detail INTERFACE ${target})
  foreach(name IN LISTS ARGN)
    velmora_expose(${target}_detail ${name}/detail "${PROJECT_SOURCE_DIR}/${name}/detail")
  endforeach()
endfunction()

# velmora_folder(NAME SOURCES... ): the static library velmora_NAME of the current folder.
function(velmora_folder name)
  add_library(velmora_${name} STATIC ${ARGN})
  target_link_libraries(velmora_${name} PRIVATE velmora_options)
  velmora_expose(velmora_${name} ${name})
endfunction()

# velmora_precompile(NAME HEADERS header... LIBRARIES target... TARGETS target...)
#   The targets, all libraries, share these headers, compiled once by the library NAME. Where a room is compiled in one piece
#   it reads them once anyway, and what it forgot to include is found out.
function(velmora_precompile name)
  if(VELMORA_PIECE_SIZE EQUAL 0)
    return()
  endif()
  cmake_parse_arguments(arg "" "" "HEADERS;LIBRARIES;TARGETS" ${ARGN})
  if(NOT TARGET ${name})
    set(source "${PROJECT_BINARY_DIR}/${name}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "")
    add_library(${name} STATIC "${source}")
    set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF)
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} velmora_options)
    target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
  endif()
  foreach(target IN LISTS arg_TARGETS)
    target_precompile_headers(${target} REUSE_FROM ${name})
  endforeach()
endfunction()

# velmora_precompile_standard(TARGET... ): for libraries without Qt, whose files are shorter than the headers that they
# include. Tests run them thousands of times: they are optimised as far as a debugger bears it.
function(velmora_precompile_standard)
  set(library velmora_standard_headers)
  velmora_precompile(${library}
    HEADERS <algorithm> <array> <cerrno> <cstdint> <cstdio> <cstdlib> <cstring> <functional> <memory> <optional> <span>
            <string> <string_view> <vector>
    TARGETS ${ARGN})
  foreach(target IN LISTS library ARGN)
    if(TARGET ${target})
      target_compile_options(${target} PRIVATE $<$<CONFIG:Debug>:-Og>)
    endif()
  endforeach()
endfunction()

# velmora_precompile_qt(TARGET... ): for libraries that include Qt's headers.
function(velmora_precompile_qt)
  velmora_precompile(velmora_qt_headers
    HEADERS <QApplication> <QComboBox> <QDialog> <QFileInfo> <QHBoxLayout> <QHash> <QHeaderView> <QLabel> <QLineEdit>
            <QPainter> <QPushButton> <QTableView> <QTimer> <QUrl> <QVBoxLayout> <functional> <memory> <optional> <vector>
    LIBRARIES Qt6::Widgets
    TARGETS ${ARGN})
endfunction()
