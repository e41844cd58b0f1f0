# What ctest reads of a program that is entered suite by suite: the program itself says which suites it has,
# those of types and of parameters included. Set by who includes it: PROGRAM, NAME, LABEL, COST and
# ENVIRONMENT.
if(NOT EXISTS "${PROGRAM}")
  add_test("${NAME}_is_not_built" "${PROGRAM}")
  set_tests_properties("${NAME}_is_not_built" PROPERTIES LABELS "${LABEL}")
  return()
endif()

set(list "${PROGRAM}_suites.txt")
if(NOT EXISTS "${list}" OR NOT "${list}" IS_NEWER_THAN "${PROGRAM}")
  execute_process(COMMAND env ${ENVIRONMENT} "${PROGRAM}" --gtest_list_tests OUTPUT_VARIABLE suites COMMAND_ERROR_IS_FATAL ANY)
  file(WRITE "${list}" "${suites}")
endif()
file(STRINGS "${list}" suites REGEX "^[A-Za-z0-9_/]+\\.( +#.*)?$")
foreach(suite IN LISTS suites)
  string(REGEX REPLACE "\\..*" "" suite "${suite}")
  add_test("${NAME}.${suite}" "${PROGRAM}" "--gtest_filter=${suite}.*")
  set_tests_properties("${NAME}.${suite}" PROPERTIES TIMEOUT 300 LABELS "${LABEL}" COST "${COST}" ENVIRONMENT "${ENVIRONMENT}")
endforeach()
