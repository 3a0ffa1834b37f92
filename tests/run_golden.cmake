# One golden case: runs `ORVALIS run CASE` and compares what it prints.
#
#   cmake -DORVALIS=path/to/orvalis -DCASE=tests/cases/NAME.json -P tests/run_golden.cmake
#
# Beside NAME.json: NAME.expected is the exact standard output; NAME.status the exit status
# (0 when the file is absent); NAME.stderr, when present, the exact standard error. A case
# that exits with 0 must print nothing on standard error.
cmake_minimum_required(VERSION 3.20)

if(NOT DEFINED ORVALIS OR NOT DEFINED CASE)
  message(FATAL_ERROR "usage: cmake -DORVALIS=<orvalis> -DCASE=<case.json> -P run_golden.cmake")
endif()

get_filename_component(CASE "${CASE}" ABSOLUTE)
get_filename_component(dir "${CASE}" DIRECTORY)
get_filename_component(name "${CASE}" NAME_WLE)
set(base "${dir}/${name}")

if(NOT EXISTS "${base}.expected")
  message(FATAL_ERROR "${name}: ${base}.expected is missing")
endif()
file(READ "${base}.expected" expected_out)

set(expected_status 0)
if(EXISTS "${base}.status")
  file(READ "${base}.status" expected_status)
  string(STRIP "${expected_status}" expected_status)
endif()

# Run beside the case, by its file name: messages that name the input read the same anywhere.
execute_process(
  COMMAND "${ORVALIS}" run "${name}.json"
  WORKING_DIRECTORY "${dir}"
  RESULT_VARIABLE status
  OUTPUT_VARIABLE out
  ERROR_VARIABLE err)

set(failures "")

if(NOT "${status}" STREQUAL "${expected_status}")
  string(APPEND failures "exit status ${status}, expected ${expected_status}\n")
endif()

if(NOT "${out}" STREQUAL "${expected_out}")
  # Keep what was printed beside the build, and show the difference when diff is at hand.
  set(actual "${CMAKE_CURRENT_BINARY_DIR}/golden/${name}.actual")
  file(WRITE "${actual}" "${out}")
  string(APPEND failures "standard output differs from ${base}.expected (got ${actual})\n")
  find_program(DIFF diff)
  if(DIFF)
    execute_process(COMMAND "${DIFF}" -u "${base}.expected" "${actual}" OUTPUT_VARIABLE d)
    string(SUBSTRING "${d}" 0 6000 d)
    string(APPEND failures "${d}\n")
  endif()
endif()

if(EXISTS "${base}.stderr")
  file(READ "${base}.stderr" expected_err)
  if(NOT "${err}" STREQUAL "${expected_err}")
    string(APPEND failures "standard error:\n  got      [${err}]\n  expected [${expected_err}]\n")
  endif()
elseif("${expected_status}" STREQUAL "0" AND NOT "${err}" STREQUAL "")
  string(APPEND failures "unexpected standard error: ${err}\n")
endif()

if(NOT "${failures}" STREQUAL "")
  message(FATAL_ERROR "golden case ${name}:\n${failures}")
endif()
