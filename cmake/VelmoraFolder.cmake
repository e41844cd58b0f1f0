# What every folder of the source tree has in common: one target a folder, and headers that are seen only by the
# targets that link it.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_library(velmora_options INTERFACE)
target_compile_options(velmora_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
if(VELMORA_WERROR)
  target_compile_options(velmora_options INTERFACE -Werror)
endif()
if(VELMORA_SANITIZE)
  target_compile_options(velmora_options INTERFACE -fsanitize=${VELMORA_SANITIZE} -fno-omit-frame-pointer
                                                   -fno-sanitize-recover=all)
  target_link_options(velmora_options INTERFACE -fsanitize=${VELMORA_SANITIZE})
endif()

# velmora_expose(TARGET NAME [DIRECTORY])
#   Lets whoever links TARGET write #include "NAME/header.h" for the headers of DIRECTORY (the current source folder
#   when not given). The include path holds nothing but that one name, so a folder can't reach into one it does not link.
function(velmora_expose target name)
  set(directory "${CMAKE_CURRENT_SOURCE_DIR}")
  if(ARGC GREATER 2)
    set(directory "${ARGV2}")
  endif()
  set(root "${CMAKE_BINARY_DIR}/include/${target}")
  file(MAKE_DIRECTORY "${root}")
  file(CREATE_LINK "${directory}" "${root}/${name}" SYMBOLIC)
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "INTERFACE_LIBRARY")
    target_include_directories(${target} INTERFACE "${root}")
  else()
    target_include_directories(${target} PUBLIC "${root}")
  endif()
endfunction()

# velmora_folder(NAME SOURCES... ): the static library velmora_NAME of the current folder.
function(velmora_folder name)
  add_library(velmora_${name} STATIC ${ARGN})
  target_link_libraries(velmora_${name} PRIVATE velmora_options)
  velmora_expose(velmora_${name} ${name})
endfunction()
