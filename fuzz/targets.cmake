# The fuzz targets and what each is linked with, for libFuzzer's programs here and for the
# replay in tests/fuzz.
set(velmora_fuzz_targets id3_load id3_store asf_load asf_store avi_load avi_store portable_read portable_set)
if(VELMORA_DESKTOP)
  list(APPEND velmora_fuzz_targets bitmap_trim dom_extract)
endif()

set(velmora_fuzz_folder "${CMAKE_CURRENT_LIST_DIR}")

# velmora_fuzz_program(NAME TARGET): the program NAME, still without a main, for one of the targets.
function(velmora_fuzz_program name target)
  add_executable(${name} "${velmora_fuzz_folder}/${target}.cpp" "${velmora_fuzz_folder}/harness.cpp")
  if(target STREQUAL "bitmap_trim")
    target_link_libraries(${name} PRIVATE velmora_bitmap_trim)
  elseif(target MATCHES "^portable_")
    target_sources(${name} PRIVATE "${velmora_fuzz_folder}/portable_input.cpp")
    target_link_libraries(${name} PRIVATE velmora_portable)
  elseif(target STREQUAL "dom_extract")
    target_link_libraries(${name} PRIVATE velmora_weblookup_detail velmora_platform_web_detail)
  else()
    target_sources(${name} PRIVATE "${velmora_fuzz_folder}/tag_edit.cpp")
    target_link_libraries(${name} PRIVATE velmora_taglib velmora_fake_image)
  endif()
  target_link_libraries(${name} PRIVATE velmora_options)
  if(target STREQUAL "id3_store")
    target_link_options(${name} PRIVATE LINKER:--wrap=mktemp)
  endif()
endfunction()
